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

QtDoublePropertyManager::QtDoublePropertyManager(QObject* parent) : QtAbstractPropertyManager(parent) {}

QtDoublePropertyManager::~QtDoublePropertyManager()
{
    clear();
}

double QtDoublePropertyManager::value(const QtProperty* property) const
{
    return m_values.value(property).val;
}

double QtDoublePropertyManager::minimum(const QtProperty* property) const
{
    return m_values.value(property).minVal;
}

double QtDoublePropertyManager::maximum(const QtProperty* property) const
{
    return m_values.value(property).maxVal;
}

double QtDoublePropertyManager::singleStep(const QtProperty* property) const
{
    return m_values.value(property).singleStep;
}

int QtDoublePropertyManager::decimals(const QtProperty* property) const
{
    return m_values.value(property).decimals;
}

QString QtDoublePropertyManager::valueText(const QtProperty* property) const
{
    auto it = m_values.constFind(property);
    if (it == m_values.constEnd())
        return QString();
    return QLocale::c().toString(it->val, 'f', it->decimals);
}

QIcon QtDoublePropertyManager::valueIcon(const QtProperty* property) const
{
    return displayModeIcon(property);
}

void QtDoublePropertyManager::setValue(QtProperty* property, double val)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->val == val)
        return;
    it->val = val;
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
    auto it = m_values.find(property);
    if (it == m_values.end())
        return;
    if (minVal > maxVal)
        qSwap(minVal, maxVal);
    if (it->minVal == minVal && it->maxVal == maxVal)
        return;
    it->minVal = minVal;
    it->maxVal = maxVal;
    emit rangeChanged(property, minVal, maxVal);
}

void QtDoublePropertyManager::setSingleStep(QtProperty* property, double step)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || step < 0 || it->singleStep == step)
        return;
    it->singleStep = step;
    emit singleStepChanged(property, step);
}

void QtDoublePropertyManager::setDecimals(QtProperty* property, int prec)
{
    auto it = m_values.find(property);
    prec = qBound(0, prec, 13);
    if (it == m_values.end() || it->decimals == prec)
        return;
    it->decimals = prec;
    emit decimalsChanged(property, prec);
    emit propertyChanged(property);
}

void QtDoublePropertyManager::initializeProperty(QtProperty* property)
{
    m_values.insert(property, Data());
}

void QtDoublePropertyManager::uninitializeProperty(QtProperty* property)
{
    m_values.remove(property);
}

// ----------------------------------------------------- QtEnumPropertyManager

QtEnumPropertyManager::QtEnumPropertyManager(QObject* parent) : QtAbstractPropertyManager(parent) {}

QtEnumPropertyManager::~QtEnumPropertyManager()
{
    clear();
}

int QtEnumPropertyManager::value(const QtProperty* property) const
{
    return m_values.value(property).val;
}

QStringList QtEnumPropertyManager::enumNames(const QtProperty* property) const
{
    return m_values.value(property).enumNames;
}

QMap<int, QIcon> QtEnumPropertyManager::enumIcons(const QtProperty* property) const
{
    return m_values.value(property).enumIcons;
}

QString QtEnumPropertyManager::valueText(const QtProperty* property) const
{
    auto it = m_values.constFind(property);
    if (it == m_values.constEnd() || it->val < 0 || it->val >= it->enumNames.size())
        return QString();
    return it->enumNames.at(it->val);
}

QIcon QtEnumPropertyManager::valueIcon(const QtProperty* property) const
{
    const QIcon mode = displayModeIcon(property);
    if (!mode.isNull())
        return mode;
    auto it = m_values.constFind(property);
    return it == m_values.constEnd() ? QIcon() : it->enumIcons.value(it->val);
}

void QtEnumPropertyManager::setValue(QtProperty* property, int val)
{
    auto it = m_values.find(property);
    if (it == m_values.end())
        return;
    if (val >= it->enumNames.size() || (val < 0 && !it->enumNames.isEmpty()))
        return;
    if (it->val == val)
        return;
    it->val = val;
    emit propertyChanged(property);
    emit valueChanged(property, val);
}

void QtEnumPropertyManager::setEnumNames(QtProperty* property, const QStringList& names)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->enumNames == names)
        return;
    it->enumNames = names;
    it->val = names.isEmpty() ? -1 : (it->val >= 0 && it->val < names.size() ? it->val : 0);
    emit enumNamesChanged(property, names);
    emit propertyChanged(property);
}

void QtEnumPropertyManager::setEnumIcons(QtProperty* property, const QMap<int, QIcon>& icons)
{
    auto it = m_values.find(property);
    if (it == m_values.end())
        return;
    it->enumIcons = icons;
    emit enumIconsChanged(property, icons);
    emit propertyChanged(property);
}

void QtEnumPropertyManager::initializeProperty(QtProperty* property)
{
    m_values.insert(property, Data());
}

void QtEnumPropertyManager::uninitializeProperty(QtProperty* property)
{
    m_values.remove(property);
}

// --------------------------------------------------- QtStringPropertyManager

QtStringPropertyManager::QtStringPropertyManager(QObject* parent) : QtAbstractPropertyManager(parent) {}

QtStringPropertyManager::~QtStringPropertyManager()
{
    clear();
}

QString QtStringPropertyManager::value(const QtProperty* property) const
{
    return m_values.value(property).val;
}

QRegExp QtStringPropertyManager::regExp(const QtProperty* property) const
{
    return m_values.value(property).regExp;
}

void QtStringPropertyManager::click(QtProperty* property, bool checked)
{
    emit onClick(property, checked);
}

QString QtStringPropertyManager::valueText(const QtProperty* property) const
{
    return value(property);
}

QIcon QtStringPropertyManager::valueIcon(const QtProperty* property) const
{
    return displayModeIcon(property);
}

void QtStringPropertyManager::setValue(QtProperty* property, const QString& val)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->val == val)
        return;
    if (it->regExp.isValid() && !it->regExp.isEmpty() && !it->regExp.exactMatch(val))
        return;
    it->val = val;
    emit propertyChanged(property);
    emit valueChanged(property, val);
}

void QtStringPropertyManager::setRegExp(QtProperty* property, const QRegExp& regExp)
{
    auto it = m_values.find(property);
    if (it == m_values.end() || it->regExp == regExp)
        return;
    it->regExp = regExp;
    emit regExpChanged(property, regExp);
}

void QtStringPropertyManager::initializeProperty(QtProperty* property)
{
    m_values.insert(property, Data());
}

void QtStringPropertyManager::uninitializeProperty(QtProperty* property)
{
    m_values.remove(property);
}
