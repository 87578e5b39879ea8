#pragma once
// The property managers the feature tree uses: groups (no value), doubles
// (also integers, shown with 0 decimals), enumerations and strings.
#include <QHash>
#include <QIcon>
#include <QRegExp>
#include <QStringList>

#include "qtpropertybrowser.h"

class QtGroupPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtGroupPropertyManager(QObject* parent = nullptr);
    ~QtGroupPropertyManager() override;

protected:
    bool hasValue(const QtProperty* property) const override;
    void initializeProperty(QtProperty* property) override;
    void uninitializeProperty(QtProperty* property) override;
};

// Doubles with a range, a step and a number of decimals. A value outside
// the range is kept as it is: the feature tree shows what the camera holds
// and marks it, rather than clamping it.
class QtDoublePropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtDoublePropertyManager(QObject* parent = nullptr);
    ~QtDoublePropertyManager() override;

    double value(const QtProperty* property) const;
    double minimum(const QtProperty* property) const;
    double maximum(const QtProperty* property) const;
    double singleStep(const QtProperty* property) const;
    int decimals(const QtProperty* property) const;

public slots:
    void setValue(QtProperty* property, double value);
    void setMinimum(QtProperty* property, double minVal);
    void setMaximum(QtProperty* property, double maxVal);
    void setRange(QtProperty* property, double minVal, double maxVal);
    void setSingleStep(QtProperty* property, double step);
    void setDecimals(QtProperty* property, int prec);

signals:
    void valueChanged(QtProperty* property, double value);
    void rangeChanged(QtProperty* property, double minVal, double maxVal);
    void singleStepChanged(QtProperty* property, double step);
    void decimalsChanged(QtProperty* property, int prec);

protected:
    QString valueText(const QtProperty* property) const override;
    QIcon valueIcon(const QtProperty* property) const override;
    void initializeProperty(QtProperty* property) override;
    void uninitializeProperty(QtProperty* property) override;

private:
    struct Data
    {
        double val = 0;
        double minVal = -2147483647.0;
        double maxVal = 2147483647.0;
        double singleStep = 1;
        int decimals = 2;
    };
    QHash<const QtProperty*, Data> m_values;
};

class QtEnumPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtEnumPropertyManager(QObject* parent = nullptr);
    ~QtEnumPropertyManager() override;

    int value(const QtProperty* property) const;
    QStringList enumNames(const QtProperty* property) const;
    QMap<int, QIcon> enumIcons(const QtProperty* property) const;

public slots:
    void setValue(QtProperty* property, int value);
    void setEnumNames(QtProperty* property, const QStringList& names);
    void setEnumIcons(QtProperty* property, const QMap<int, QIcon>& icons);

signals:
    void valueChanged(QtProperty* property, int value);
    void enumNamesChanged(QtProperty* property, const QStringList& names);
    void enumIconsChanged(QtProperty* property, const QMap<int, QIcon>& icons);

protected:
    QString valueText(const QtProperty* property) const override;
    QIcon valueIcon(const QtProperty* property) const override;
    void initializeProperty(QtProperty* property) override;
    void uninitializeProperty(QtProperty* property) override;

private:
    struct Data
    {
        int val = -1;
        QStringList enumNames;
        QMap<int, QIcon> enumIcons;
    };
    QHash<const QtProperty*, Data> m_values;
};

class QtStringPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtStringPropertyManager(QObject* parent = nullptr);
    ~QtStringPropertyManager() override;

    QString value(const QtProperty* property) const;
    QRegExp regExp(const QtProperty* property) const;

    // A command row's button was pressed: announces it through onClick.
    void click(QtProperty* property, bool checked);

public slots:
    void setValue(QtProperty* property, const QString& value);
    void setRegExp(QtProperty* property, const QRegExp& regExp);

signals:
    void valueChanged(QtProperty* property, const QString& value);
    void regExpChanged(QtProperty* property, const QRegExp& regExp);
    void onClick(QtProperty* property, bool checked);

protected:
    QString valueText(const QtProperty* property) const override;
    QIcon valueIcon(const QtProperty* property) const override;
    void initializeProperty(QtProperty* property) override;
    void uninitializeProperty(QtProperty* property) override;

private:
    struct Data
    {
        QString val;
        QRegExp regExp;
    };
    QHash<const QtProperty*, Data> m_values;
};

// The icon shown beside a value: the property's display icon in any mode
// other than the normal one.
QIcon displayModeIcon(const QtProperty* property);
