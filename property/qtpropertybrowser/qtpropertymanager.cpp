#include "qtpropertymanager.h"

#include <QLocale>

QIcon displayModeIcon(const QtProperty* property)
{
    return property->displayMode() != QtProperty::DisplayNormal ? property->displayIcon() : QIcon();
}

// ---------------------------------------------------- QtGroupPropertyManager

QtGroupPropertyManager::QtGroupPropertyManager(QObject* parent) : QtAbstractPropertyManager(parent) {}

QtGroupPropertyManager::~QtGroupPropertyManager()
{
    clear();
}

bool QtGroupPropertyManager::hasValue(const QtProperty*) const
{
    return false;
}

void QtGroupPropertyManager::initializeProperty(QtProperty*) {}

void QtGroupPropertyManager::uninitializeProperty(QtProperty*) {}

// --------------------------------------------------- QtDoublePropertyManager

QtDoublePropertyManager::QtDoublePropertyManager(QObject* parent) : QtRecordPropertyManager(parent) {}

QString QtDoublePropertyManager::valueText(const QtProperty* property) const
{
    const QtDoubleRecord* r = recordOf(property);
    return r ? QLocale::c().toString(r->val, 'f', r->decimals) : QString();
}

void QtDoublePropertyManager::setValue(QtProperty* property, double val)
{
    if (!changeField(property, &QtDoubleRecord::val, val))
        return;
    emit propertyChanged(property);
    emit valueChanged(property, val);
}

void QtDoublePropertyManager::setMinimum(QtProperty* property, double minVal)
{
    setRange(property, minVal, qMax(minVal, maximum(property)));
}

void QtDoublePropertyManager::setMaximum(QtProperty* property, double maxVal)
{
    setRange(property, qMin(minimum(property), maxVal), maxVal);
}

void QtDoublePropertyManager::setRange(QtProperty* property, double minVal, double maxVal)
{
    QtDoubleRecord* r = recordOf(property);
    if (!r)
        return;
    if (minVal > maxVal)
        qSwap(minVal, maxVal);
    if (r->minVal == minVal && r->maxVal == maxVal)
        return;
    r->minVal = minVal;
    r->maxVal = maxVal;
    emit rangeChanged(property, minVal, maxVal);
}

void QtDoublePropertyManager::setSingleStep(QtProperty* property, double step)
{
    if (step >= 0 && changeField(property, &QtDoubleRecord::singleStep, step))
        emit singleStepChanged(property, step);
}

void QtDoublePropertyManager::setDecimals(QtProperty* property, int prec)
{
    prec = qBound(0, prec, 13);
    if (!changeField(property, &QtDoubleRecord::decimals, prec))
        return;
    emit decimalsChanged(property, prec);
    emit propertyChanged(property);
}

// ----------------------------------------------------- QtEnumPropertyManager

QtEnumPropertyManager::QtEnumPropertyManager(QObject* parent) : QtRecordPropertyManager(parent) {}

QString QtEnumPropertyManager::valueText(const QtProperty* property) const
{
    const QtEnumRecord* r = recordOf(property);
    if (!r || r->val < 0 || r->val >= r->enumNames.size())
        return QString();
    return r->enumNames.at(r->val);
}

QIcon QtEnumPropertyManager::valueIcon(const QtProperty* property) const
{
    const QIcon mode = displayModeIcon(property);
    if (!mode.isNull())
        return mode;
    const QtEnumRecord* r = recordOf(property);
    return r ? r->enumIcons.value(r->val) : QIcon();
}

void QtEnumPropertyManager::setValue(QtProperty* property, int val)
{
    // An index into the names; -1 only while there are none.
    const int count = enumNames(property).size();
    if (val >= count || (val < 0 && count > 0) || !changeField(property, &QtEnumRecord::val, val))
        return;
    emit propertyChanged(property);
    emit valueChanged(property, val);
}

void QtEnumPropertyManager::setEnumNames(QtProperty* property, const QStringList& names)
{
    if (!changeField(property, &QtEnumRecord::enumNames, names))
        return;
    QtEnumRecord* r = recordOf(property);
    r->val = names.isEmpty() ? -1 : (r->val >= 0 && r->val < names.size() ? r->val : 0);
    emit enumNamesChanged(property, names);
    emit propertyChanged(property);
}

void QtEnumPropertyManager::setEnumIcons(QtProperty* property, const QMap<int, QIcon>& icons)
{
    QtEnumRecord* r = recordOf(property);
    if (!r)
        return;
    r->enumIcons = icons;
    emit enumIconsChanged(property, icons);
    emit propertyChanged(property);
}

// --------------------------------------------------- QtStringPropertyManager

QtStringPropertyManager::QtStringPropertyManager(QObject* parent) : QtRecordPropertyManager(parent) {}

void QtStringPropertyManager::click(QtProperty* property, bool checked)
{
    emit onClick(property, checked);
}

QString QtStringPropertyManager::valueText(const QtProperty* property) const
{
    return value(property);
}

void QtStringPropertyManager::setValue(QtProperty* property, const QString& val)
{
    const QRegExp pattern = regExp(property);
    if (pattern.isValid() && !pattern.isEmpty() && !pattern.exactMatch(val))
        return;
    if (!changeField(property, &QtStringRecord::val, val))
        return;
    emit propertyChanged(property);
    emit valueChanged(property, val);
}

void QtStringPropertyManager::setRegExp(QtProperty* property, const QRegExp& regExp)
{
    if (changeField(property, &QtStringRecord::regExp, regExp))
        emit regExpChanged(property, regExp);
}
