#pragma once
// Editors of the feature tree: a double spin box (doubles and integers), a
// combo box (enumerations and booleans) and a line edit (strings).
#include <QDoubleSpinBox>
#include <QLineEdit>

#include "CComboBoxEx.h"
#include "qtpropertymanager.h"

class QtDoubleSpinBoxFactory : public QtAbstractEditorFactory<QtDoublePropertyManager>
{
    Q_OBJECT
public:
    explicit QtDoubleSpinBoxFactory(QObject* parent = nullptr);
    ~QtDoubleSpinBoxFactory() override;

protected:
    void connectPropertyManager(QtDoublePropertyManager* manager) override;
    QWidget* createEditor(QtDoublePropertyManager* manager, QtProperty* property, QWidget* parent) override;
    void disconnectPropertyManager(QtDoublePropertyManager* manager) override;

private slots:
    void slotPropertyChanged(QtProperty* property, double value);
    void slotRangeChanged(QtProperty* property, double minVal, double maxVal);
    void slotSingleStepChanged(QtProperty* property, double step);
    void slotDecimalsChanged(QtProperty* property, int prec);
    void slotSetValue(double value);
    void slotEditorDestroyed(QObject* object);

private:
    EditorFactoryPrivate<QDoubleSpinBox> d;
};

class QtEnumEditorFactory : public QtAbstractEditorFactory<QtEnumPropertyManager>
{
    Q_OBJECT
public:
    explicit QtEnumEditorFactory(QObject* parent = nullptr);
    ~QtEnumEditorFactory() override;

protected:
    void connectPropertyManager(QtEnumPropertyManager* manager) override;
    QWidget* createEditor(QtEnumPropertyManager* manager, QtProperty* property, QWidget* parent) override;
    void disconnectPropertyManager(QtEnumPropertyManager* manager) override;

private slots:
    void slotPropertyChanged(QtProperty* property, int value);
    void slotEnumNamesChanged(QtProperty* property, const QStringList& names);
    void slotSetValue(int value);
    void slotEditorDestroyed(QObject* object);

private:
    EditorFactoryPrivate<CComboBoxEx> d;
};

class QtLineEditFactory : public QtAbstractEditorFactory<QtStringPropertyManager>
{
    Q_OBJECT
public:
    explicit QtLineEditFactory(QObject* parent = nullptr);
    ~QtLineEditFactory() override;

protected:
    void connectPropertyManager(QtStringPropertyManager* manager) override;
    QWidget* createEditor(QtStringPropertyManager* manager, QtProperty* property, QWidget* parent) override;
    void disconnectPropertyManager(QtStringPropertyManager* manager) override;

private slots:
    void slotPropertyChanged(QtProperty* property, const QString& value);
    void slotRegExpChanged(QtProperty* property, const QRegExp& regExp);
    void slotEditingFinished();
    void slotEditorDestroyed(QObject* object);

private:
    EditorFactoryPrivate<QLineEdit> d;
};
