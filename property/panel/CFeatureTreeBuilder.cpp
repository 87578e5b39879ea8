#include "CFeatureTreeBuilder.h"

#include <QHostAddress>

#include "ParamTransTables.h"
#include "DecoratedDoublePropertyManager.h"
#include "qtpropertymanager.h"

using Node = Vorlen::GenICam::CInternalParameterNode;

const char* const kFmtBoldStart = "<b><font color='#FFFFFF'>";
const char* const kFmtBoldEnd = "</font></b>";
const char* const kFmtNewLine = "<br>";
const char* const kFmtNormalStart = "<font color = '#BCBCBC'>";
const char* const kFmtNormalEnd = "</font>";
const char* const kRangeWarningIcon = ":/Pic/Icon_Common_Exclamation_Mark.png";

// Integers whose range cannot be read accept 0 to 2^63.
static const double kIntRangeFallbackMax = 9223372036854775808.0;
static const int kFloatDecimals = 5;

static bool s_translated = true;

namespace {

// Tooltip text in the common layout: normal parts escaped, bold parts bold.
class CToolTip
{
public:
    CToolTip& normal(const QString& text)
    {
        m_html += QLatin1String(kFmtNormalStart) + text.toHtmlEscaped() + QLatin1String(kFmtNormalEnd);
        return *this;
    }
    CToolTip& bold(const QString& text)
    {
        m_html += QLatin1String(kFmtBoldStart) + text.toHtmlEscaped() + QLatin1String(kFmtBoldEnd);
        return *this;
    }
    CToolTip& newLine(int count = 1)
    {
        for (int i = 0; i < count; ++i)
            m_html += QLatin1String(kFmtNewLine);
        return *this;
    }
    CToolTip& line(const QString& label, const QString& value)
    {
        return newLine().normal(label).bold(value);
    }
    QString html() const { return m_html; }

private:
    QString m_html;
};

QString featureText(const QMap<QString, QString>& table, const QString& name, const QString& fallback)
{
    auto it = table.constFind(name);
    return it != table.constEnd() && !it.value().isEmpty() ? it.value() : fallback;
}

} // namespace

void CFeatureTreeBuilder::setTranslated(bool translated)
{
    s_translated = translated;
}

bool CFeatureTreeBuilder::isTranslated()
{
    return s_translated;
}

QString CFeatureTreeBuilder::nodeLabel(const CFeatureNodeInfo& node)
{
    if (node.name == QLatin1String("StrobeDelay") && node.type == Node::featureTypeInteger)
        return QStringLiteral("StrobeDelay ");
    if (!s_translated)
        return node.name;
    return featureText(g_mapNameToDispTrans, node.name, node.displayName.isEmpty() ? node.name : node.displayName);
}

QString CFeatureTreeBuilder::anyValueText(const QString& text)
{
    auto any = g_mapNameToValueTransMap.constFind(QStringLiteral("Any"));
    if (any != g_mapNameToValueTransMap.constEnd())
    {
        auto it = any->constFind(text);
        if (it != any->constEnd() && !it.value().isEmpty())
            return it.value();
    }
    return QCoreApplication::translate("CFeatureTreeBuilder", text.toUtf8().constData());
}

QString CFeatureTreeBuilder::valueText(const QString& featureName, const QString& symbol)
{
    auto table = g_mapNameToValueTransMap.constFind(featureName);
    if (table != g_mapNameToValueTransMap.constEnd())
    {
        auto it = table->constFind(symbol);
        if (it != table->constEnd() && !it.value().isEmpty())
            return it.value();
    }
    auto any = g_mapNameToValueTransMap.constFind(QStringLiteral("Any"));
    if (any != g_mapNameToValueTransMap.constEnd())
    {
        auto it = any->constFind(symbol);
        if (it != any->constEnd() && !it.value().isEmpty())
            return it.value();
    }
    return symbol;
}

QStringList CFeatureTreeBuilder::enumNames(const CFeatureNodeInfo& node)
{
    QStringList names;
    names.reserve(node.entries.size());
    for (const CFeatureNodeInfo::SEntry& e : node.entries)
        names.append(valueText(node.name, e.symbol));
    return names;
}

QStringList CFeatureTreeBuilder::boolNames(const QString& featureName)
{
    return {valueText(featureName, QStringLiteral("False")), valueText(featureName, QStringLiteral("True"))};
}

QString CFeatureTreeBuilder::specialIntText(qint64 value, int represent)
{
    if (represent == Node::representIPV4Address)
        return QHostAddress(quint32(value)).toString();
    if (represent == Node::representMACAddress)
        return QString::number(quint64(value) & 0xFFFFFFFFFFFFull, 16).toUpper().rightJustified(12, QLatin1Char('0'));
    return QString::number(value);
}

bool CFeatureTreeBuilder::isOutOfRange(const CFeatureNodeInfo& node)
{
    if (!node.valueOk)
        return false;
    if (node.type == Node::featureTypeInteger && node.representation != Node::representIPV4Address &&
        node.representation != Node::representMACAddress)
        return node.intRangeOk && (node.intValue < node.intMin || node.intValue > node.intMax);
    if (node.type == Node::featureTypeFloat)
        return node.floatRangeOk && (node.floatValue < node.floatMin || node.floatValue > node.floatMax);
    return false;
}

// ---------------------------------------------------------------- tooltips

static QString typeWord(const CFeatureNodeInfo& node)
{
    switch (node.type)
    {
    case Node::featureTypeInteger: return CFeatureTreeBuilder::tr("Integer");
    case Node::featureTypeFloat: return CFeatureTreeBuilder::tr("Float");
    case Node::featureTypeEnum: return CFeatureTreeBuilder::tr("Enumeration");
    case Node::featureTypeBool: return CFeatureTreeBuilder::tr("Bool");
    case Node::featureTypeString: return CFeatureTreeBuilder::tr("String");
    case Node::featureTypeCommand: return CFeatureTreeBuilder::tr("Command");
    case Node::featureTypeRegister: return CFeatureTreeBuilder::anyValueText(QStringLiteral("{Register}"));
    default: return CFeatureTreeBuilder::tr("Category");
    }
}

static QString nameSpaceWord(int nameSpace)
{
    return nameSpace == Node::nameSpaceStandard ? CFeatureTreeBuilder::tr("Standard")
                                                : CFeatureTreeBuilder::tr("Custom");
}

static QString visibilityWord(int visibility)
{
    switch (visibility)
    {
    case Node::visibilityBeginner: return CFeatureTreeBuilder::tr("Beginner");
    case Node::visibilityExpert: return CFeatureTreeBuilder::tr("Expert");
    case Node::visibilityGuru: return CFeatureTreeBuilder::tr("Guru");
    default: return QString();
    }
}

static QString boolWord(bool value)
{
    return value ? CFeatureTreeBuilder::tr("True") : CFeatureTreeBuilder::tr("False");
}

static QString numberText(double v)
{
    return QString::number(v, 'g', 15);
}

// Label, selectors, description, feature name and type: the head of every tooltip.
static CToolTip toolTipHead(const CFeatureNodeInfo& node)
{
    CToolTip tip;
    tip.bold(CFeatureTreeBuilder::nodeLabel(node));
    if (!node.selectors.isEmpty())
    {
        QStringList names;
        for (const QString& s : node.selectors)
            names.append(featureText(g_mapNameToTrans, s, s));
        tip.newLine().normal(CFeatureTreeBuilder::tr("Selector: ")).bold(names.join(QLatin1Char(' ')));
    }
    tip.newLine().normal(featureText(g_mapNameToDespTrans, node.name, node.description));
    tip.newLine(2).normal(CFeatureTreeBuilder::tr("Feature Name: ")).bold(node.name);
    tip.line(CFeatureTreeBuilder::tr("Type: "), typeWord(node));
    return tip;
}

static void toolTipTail(CToolTip& tip, const CFeatureNodeInfo& node)
{
    tip.line(CFeatureTreeBuilder::tr("Name Space: "), nameSpaceWord(node.nameSpace));
    tip.line(CFeatureTreeBuilder::tr("Visibility: "), visibilityWord(node.visibility));
    tip.line(CFeatureTreeBuilder::tr("Streamable: "), boolWord(node.streamable));
}

QString CFeatureTreeBuilder::genToolTip(const CFeatureNodeInfo& node)
{
    if (node.isCategory())
    {
        CToolTip tip;
        tip.bold(nodeLabel(node));
        tip.newLine().normal(featureText(g_mapNameToDespTrans, node.name, node.description));
        tip.newLine(2).normal(tr("Category Name: ")).bold(node.name);
        tip.line(tr("Type: "), typeWord(node));
        return tip.html();
    }
    if (node.type == Node::featureTypeEnum || node.type == Node::featureTypeBool)
    {
        QString out;
        genEnumToolTip(node, out);
        return out;
    }
    CToolTip tip = toolTipHead(node);
    switch (node.type)
    {
    case Node::featureTypeInteger:
        if (node.representation == Node::representIPV4Address || node.representation == Node::representMACAddress)
            break;
        tip.line(tr("Min: "), node.intRangeOk ? QString::number(node.intMin) : QStringLiteral("0"));
        tip.line(tr("Max: "), node.intRangeOk ? QString::number(node.intMax) : numberText(kIntRangeFallbackMax));
        tip.line(tr("Increment: "), QString::number(node.intInc));
        break;
    case Node::featureTypeFloat:
        tip.line(tr("Min: "), numberText(node.floatMin));
        tip.line(tr("Max: "), numberText(node.floatMax));
        break;
    case Node::featureTypeString:
        tip.line(tr("Max Length: "), QString::number(node.maxStringLen) + tr(" bytes"));
        break;
    case Node::featureTypeRegister:
        tip.line(tr("Length:"), QString::number(node.regLength) + tr(" Bytes"));
        break;
    default:
        break;
    }
    toolTipTail(tip, node);
    return tip.html();
}

void CFeatureTreeBuilder::genEnumToolTip(const CFeatureNodeInfo& node, QString& out)
{
    CToolTip tip = toolTipHead(node);
    toolTipTail(tip, node);
    tip.newLine(2);
    if (node.type == Node::featureTypeBool)
    {
        out = tip.html();
        return;
    }
    for (int i = 0; i < node.entries.size(); ++i)
    {
        const CFeatureNodeInfo::SEntry& e = node.entries.at(i);
        if (i > 0)
            tip.newLine(2);
        tip.normal(tr("Enum Entry Name: ")).bold(valueText(node.name, e.symbol));
        tip.line(tr("Enum Entry Value: "), QString::number(e.value));
        tip.line(tr("Name Space: "), nameSpaceWord(e.nameSpace));
        tip.line(tr("Visibility: "), visibilityWord(e.visibility));
    }
    out = tip.html();
}

void CFeatureTreeBuilder::updateToolTip(const CFeatureNodeInfo& node, QtProperty* property)
{
    const QString full = genToolTip(node);
    property->setTxtTag(full);
    if (isOutOfRange(node))
    {
        property->setDisplayIcon(QIcon(QString::fromLatin1(kRangeWarningIcon)));
        property->setDisplayMode(QtProperty::DisplayIcon);
        property->setToolTip(tr("Parameter out of range"));
    }
    else
    {
        property->setDisplayMode(QtProperty::DisplayNormal);
        property->setToolTip(full);
    }
}

// ---------------------------------------------------------------- values

void CFeatureTreeBuilder::updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property,
                                             const SManagers& managers)
{
    if (!node.valid || !property)
        return;
    QtAbstractPropertyManager* manager = property->propertyManager();
    switch (node.type)
    {
    case Node::featureTypeInteger:
        if (auto* strings = qobject_cast<QtStringPropertyManager*>(manager))
        {
            if (node.valueOk)
                strings->setValue(property, specialIntText(node.intValue, node.representation));
        }
        else if (auto* doubles = qobject_cast<QtDoublePropertyManager*>(manager))
        {
            doubles->setDecimals(property, 0);
            if (node.intRangeOk)
                doubles->setRange(property, double(node.intMin), double(node.intMax));
            else
                doubles->setRange(property, 0.0, kIntRangeFallbackMax);
            doubles->setSingleStep(property, double(node.intInc));
            if (node.valueOk)
                doubles->setValue(property, double(node.intValue));
        }
        break;
    case Node::featureTypeFloat:
        if (auto* doubles = qobject_cast<QtDoublePropertyManager*>(manager))
        {
            doubles->setDecimals(property, kFloatDecimals);
            if (node.floatRangeOk)
                doubles->setRange(property, node.floatMin, node.floatMax);
            if (node.valueOk)
                doubles->setValue(property, node.floatValue);
            if (auto* decorated = qobject_cast<DecoratedDoublePropertyManager*>(manager))
                decorated->setSuffix(property, node.unit);
        }
        break;
    case Node::featureTypeEnum:
        if (auto* enums = qobject_cast<QtEnumPropertyManager*>(manager))
        {
            enums->setEnumNames(property, enumNames(node));
            if (node.currentEntry >= 0)
                enums->setValue(property, node.currentEntry);
        }
        break;
    case Node::featureTypeBool:
        if (auto* enums = qobject_cast<QtEnumPropertyManager*>(manager))
        {
            enums->setEnumNames(property, boolNames(node.name));
            if (node.valueOk)
                enums->setValue(property, node.boolValue ? 1 : 0);
        }
        break;
    case Node::featureTypeString:
        if (auto* strings = qobject_cast<QtStringPropertyManager*>(manager))
        {
            property->setMaxLength(node.maxStringLen > 0 ? int(node.maxStringLen) : -1);
            if (node.valueOk)
                strings->setValue(property, node.stringValue);
        }
        break;
    case Node::featureTypeCommand:
        if (auto* strings = qobject_cast<QtStringPropertyManager*>(manager))
        {
            property->setDoneText(anyValueText(QStringLiteral("{Command}")));
            property->setExecutingText(anyValueText(QStringLiteral("{Executing}")));
            strings->setValue(property, property->doneText());
        }
        break;
    case Node::featureTypeRegister:
        if (auto* strings = qobject_cast<QtStringPropertyManager*>(manager))
            strings->setValue(property, anyValueText(QStringLiteral("{Register}")));
        break;
    default:
        break;
    }
    if (!node.isCategory())
        property->setEnabled(node.writeable);
    property->setNotAvailableText(anyValueText(QStringLiteral("{Not Available}")));
    property->setAvailable(node.available);
    Q_UNUSED(managers);
}

void CFeatureTreeBuilder::retranslateRow(const CFeatureNodeInfo& node, QtProperty* property, const SManagers& managers)
{
    property->setPropertyName(nodeLabel(node));
    updatePropertyDisp(node, property, managers);
    updateToolTip(node, property);
}

// ---------------------------------------------------------------- builders

static QtProperty* makeRow(const CFeatureNodeInfo& node, QtAbstractPropertyManager* manager)
{
    if (!manager || !node.valid)
        return nullptr;
    QtProperty* property = manager->addProperty(CFeatureTreeBuilder::nodeLabel(node));
    property->setWhatsThis(node.name);
    CFeatureTreeBuilder::updatePropertyDisp(node, property, CFeatureTreeBuilder::SManagers());
    CFeatureTreeBuilder::updateToolTip(node, property);
    return property;
}

QtProperty* CFeatureTreeBuilder::addGroupProperty(const CFeatureNodeInfo& node, QtGroupPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addIntProperty(const CFeatureNodeInfo& node, QtDoublePropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addSpecialIntProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager,
                                                       int represent)
{
    if (represent != Node::representIPV4Address && represent != Node::representMACAddress)
        return nullptr;
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addDoubleProperty(const CFeatureNodeInfo& node, QtDoublePropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addDecDoubleProperty(const CFeatureNodeInfo& node,
                                                      DecoratedDoublePropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addEnumProperty(const CFeatureNodeInfo& node, QtEnumPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addBoolProperty(const CFeatureNodeInfo& node, QtEnumPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addStringProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addCommandProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::addRegProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager)
{
    return makeRow(node, manager);
}

QtProperty* CFeatureTreeBuilder::getGenProperty(const CFeatureNodeInfo& node, const SManagers& m, QtProperty* parent)
{
    if (!node.valid || node.visibility > Node::visibilityGuru)
        return nullptr;
    QtProperty* property = nullptr;
    switch (node.type)
    {
    case Node::featureTypeNone:
    case Node::featureTypeCategory: property = addGroupProperty(node, m.group); break;
    case Node::featureTypeInteger:
        if (node.representation == Node::representIPV4Address || node.representation == Node::representMACAddress)
            property = addSpecialIntProperty(node, m.string, node.representation);
        else
            property = addIntProperty(node, m.integer);
        break;
    case Node::featureTypeFloat:
        property = node.hasUnit ? addDecDoubleProperty(node, m.decFloating) : addDoubleProperty(node, m.floating);
        break;
    case Node::featureTypeEnum: property = addEnumProperty(node, m.enumeration); break;
    case Node::featureTypeBool: property = addBoolProperty(node, m.boolean); break;
    case Node::featureTypeString: property = addStringProperty(node, m.string); break;
    case Node::featureTypeCommand:
        property = addCommandProperty(node, m.command);
        if (property)
            property->setCommandType(true);
        break;
    case Node::featureTypeRegister: property = addRegProperty(node, m.string); break;
    default: break;
    }
    if (!property)
        return nullptr;
    property->setAvailable(node.available);
    if (!node.available)
        property->setNotAvailableText(anyValueText(QStringLiteral("{Not Available}")));
    property->SetType(node.visibility);
    property->initTypeChanged();
    if (parent)
        parent->addSubProperty(property);
    for (const CFeatureNodeInfo& child : node.children)
        getGenProperty(child, m, property);
    return property;
}

// ---------------------------------------------------------------- writes

bool setPropertyEnum(Node* node, const QString& text, const QMap<QString, QString>& valueMap)
{
    if (!node)
        return false;
    Vorlen::Infra::TVector<Node::SEnumEntry> entries;
    if (!node->getEnumEntry(entries))
        return false;
    for (const Node::SEnumEntry& e : entries)
    {
        const QString symbol = QString::fromLocal8Bit(e.symbol.c_str());
        if (symbol == text || (valueMap.contains(symbol) && valueMap.value(symbol) == text))
            return node->setEnumValueBySymbol(e.symbol);
    }
    return false;
}
