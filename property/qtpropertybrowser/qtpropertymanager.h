#pragma once
// The property managers the feature tree uses: groups (no value), doubles
// (also integers, shown with 0 decimals), enumerations and strings.
#include <QHash>
#include <QIcon>
#include <QRegExp>
#include <QStringList>

#include "qtpropertybrowser.h"

// The icon shown beside a value: the property's display icon in any mode
// other than the normal one.
QIcon displayModeIcon(const QtProperty* property);

// A manager whose properties each hold one Data record, made when the
// property is added and dropped when it goes. The record's field val is the
// property's value.
template <class Data>
class QtRecordPropertyManager : public QtAbstractPropertyManager
{
public:
    explicit QtRecordPropertyManager(QObject* parent) : QtAbstractPropertyManager(parent) {}
    ~QtRecordPropertyManager() override { clear(); }

    decltype(Data::val) value(const QtProperty* property) const { return record(property).val; }

protected:
    // A copy of the property's record (a default one for a stranger).
    Data record(const QtProperty* property) const { return m_values.value(property); }
    // The property's record; null for a stranger.
    const Data* recordOf(const QtProperty* property) const
    {
        auto it = m_values.constFind(property);
        return it == m_values.constEnd() ? nullptr : &it.value();
    }
    Data* recordOf(const QtProperty* property)
    {
        auto it = m_values.find(property);
        return it == m_values.end() ? nullptr : &it.value();
    }
    // Sets one field of the property's record; false when the property is a
    // stranger or the field holds the value already.
    template <class T>
    bool changeField(const QtProperty* property, T Data::*field, const T& value)
    {
        Data* r = recordOf(property);
        if (!r || r->*field == value)
            return false;
        r->*field = value;
        return true;
    }
    QIcon valueIcon(const QtProperty* property) const override { return displayModeIcon(property); }
    void initializeProperty(QtProperty* property) override { m_values.insert(property, Data()); }
    void uninitializeProperty(QtProperty* property) override { m_values.remove(property); }

private:
    QHash<const QtProperty*, Data> m_values;
};

struct QtDoubleRecord
{
    double val = 0;
    double minVal = -2147483647.0;
    double maxVal = 2147483647.0;
    double singleStep = 1;
    int decimals = 2;
    // Texts around the value, shown by DecoratedDoublePropertyManager only.
    QString prefix;
    QString suffix;
};

struct QtEnumRecord
{
    int val = -1;
    QStringList enumNames;
    QMap<int, QIcon> enumIcons;
};

struct QtStringRecord
{
    QString val;
    QRegExp regExp;
};

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
class QtDoublePropertyManager : public QtRecordPropertyManager<QtDoubleRecord>
{
    Q_OBJECT
public:
    explicit QtDoublePropertyManager(QObject* parent = nullptr);

    double minimum(const QtProperty* property) const { return record(property).minVal; }
    double maximum(const QtProperty* property) const { return record(property).maxVal; }
    double singleStep(const QtProperty* property) const { return record(property).singleStep; }
    int decimals(const QtProperty* property) const { return record(property).decimals; }

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
};

class QtEnumPropertyManager : public QtRecordPropertyManager<QtEnumRecord>
{
    Q_OBJECT
public:
    explicit QtEnumPropertyManager(QObject* parent = nullptr);

    QStringList enumNames(const QtProperty* property) const { return record(property).enumNames; }
    QMap<int, QIcon> enumIcons(const QtProperty* property) const { return record(property).enumIcons; }

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
};

class QtStringPropertyManager : public QtRecordPropertyManager<QtStringRecord>
{
    Q_OBJECT
public:
    explicit QtStringPropertyManager(QObject* parent = nullptr);

    QRegExp regExp(const QtProperty* property) const { return record(property).regExp; }

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
};
