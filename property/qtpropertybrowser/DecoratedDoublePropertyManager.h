#pragma once
// Double properties with a prefix and a suffix around their value text
// (a float feature's unit), and the spin box factory that shows them.
#include "qteditorfactory.h"

class DecoratedDoublePropertyManager : public QtDoublePropertyManager
{
    Q_OBJECT
public:
    explicit DecoratedDoublePropertyManager(QObject* parent = nullptr);

    QString prefix(const QtProperty* property) const { return record(property).prefix; }
    QString suffix(const QtProperty* property) const { return record(property).suffix; }

public slots:
    void setPrefix(QtProperty* property, const QString& prefix);
    void setSuffix(QtProperty* property, const QString& suffix);

signals:
    void prefixChanged(QtProperty* property, const QString& prefix);
    void suffixChanged(QtProperty* property, const QString& suffix);

protected:
    QString valueText(const QtProperty* property) const override;
};

class DecoratedDoubleSpinBoxFactory : public QtEditorFactory<DecoratedDoublePropertyManager, QDoubleSpinBox>
{
    Q_OBJECT
public:
    explicit DecoratedDoubleSpinBoxFactory(QObject* parent = nullptr);

protected:
    void connectPropertyManager(DecoratedDoublePropertyManager* manager) override;
    QWidget* createEditor(DecoratedDoublePropertyManager* manager, QtProperty* property, QWidget* parent) override;
    void disconnectPropertyManager(DecoratedDoublePropertyManager* manager) override;

private:
    void slotPrefixChanged(QtProperty* property, const QString& prefix);
    void slotSuffixChanged(QtProperty* property, const QString& suffix);

    // The plain spin box factory builds and feeds the editors; this one adds
    // the prefix and suffix.
    QtDoubleSpinBoxFactory* m_originalFactory;
};
