#include "CParamFileNodeMap.h"

#include <QCoreApplication>

#include "Utils.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;
using Vorlen::Infra::TVector;

namespace {
// Integer selectors with more values than this are saved at their current value only.
const long kMaxIntSelectorValues = 64;

CString cs(const QString& s)
{
    return CString(s.toUtf8().constData());
}
}

CParamFileNodeMap::CParamFileNodeMap(const Vorlen::Memory::TSharedPtr<ICamera>& camera) : m_camera(camera) {}

bool CParamFileNodeMap::isExcluded(const QString& name)
{
    static const QStringList prefixes = {
        QStringLiteral("GevCurrentIPConfiguration"), QStringLiteral("GevPersistent"), QStringLiteral("GevCCP"),
        QStringLiteral("GevSCDA"), QStringLiteral("GevSCPHostPort"), QStringLiteral("GevMCDA"),
        QStringLiteral("GevMCPHostPort"), QStringLiteral("GevMCTT"), QStringLiteral("GevMCRC"),
        QStringLiteral("GevHeartbeatTimeout"), QStringLiteral("DeviceUserID"), QStringLiteral("GevSCPSFireTestPacket")};
    for (const QString& p : prefixes)
        if (name.startsWith(p))
            return true;
    return false;
}

bool CParamFileNodeMap::isValueType(int type)
{
    return type == int(CInternalParameterNode::featureTypeInteger) ||
           type == int(CInternalParameterNode::featureTypeFloat) ||
           type == int(CInternalParameterNode::featureTypeBool) ||
           type == int(CInternalParameterNode::featureTypeEnum) ||
           type == int(CInternalParameterNode::featureTypeString);
}

bool CParamFileNodeMap::build(const std::function<bool()>& keepGoing)
{
    m_nodes.clear();
    m_index.clear();
    if (!m_camera)
        return false;
    CInternalParameterNode root(m_camera, "Root");
    if (!root.isValid())
        return false;
    bool stopped = false;
    walk(root, keepGoing, stopped);
    if (stopped)
        return false;
    for (SNode& n : m_nodes)
        for (const QString& s : n.selectors)
        {
            auto it = m_index.constFind(s);
            if (it != m_index.constEnd())
                m_nodes[*it].isSelector = true;
        }
    return !m_nodes.isEmpty();
}

void CParamFileNodeMap::walk(const CInternalParameterNode& node, const std::function<bool()>& keepGoing,
                             bool& stopped)
{
    TVector<Vorlen::Memory::TSharedPtr<CInternalParameterNode>> children;
    if (!node.getChildren(children))
        return;
    for (const auto& child : children)
    {
        if (stopped || (keepGoing && !keepGoing()))
        {
            stopped = true;
            return;
        }
        if (!child)
            continue;
        const QString name = QString::fromUtf8(child->getName().c_str());
        if (child->getType() == CInternalParameterNode::featureTypeCategory)
        {
            walk(*child, keepGoing, stopped);
            continue;
        }
        if (m_index.contains(name))
            continue;
        SNode n;
        n.name = name;
        n.order = m_nodes.size();
        n.type = int(child->getType());
        for (const CString& s : child->getSelectorsName())
            n.selectors.append(QString::fromUtf8(s.c_str()));
        m_index.insert(name, m_nodes.size());
        m_nodes.append(n);
    }
}

const CParamFileNodeMap::SNode* CParamFileNodeMap::find(const QString& name) const
{
    auto it = m_index.constFind(name);
    return it == m_index.constEnd() ? nullptr : &m_nodes.at(*it);
}

bool CParamFileNodeMap::isReadWrite(const QString& name) const
{
    const QByteArray n = name.toUtf8();
    CInternalParameterNode node(m_camera, n.constData());
    return node.isValid() && node.isAvailable() && node.isReadable() && node.isWriteable();
}

bool CParamFileNodeMap::readValue(const QString& name, QString& text) const
{
    const QByteArray n = name.toUtf8();
    CInternalParameterNode node(m_camera, n.constData());
    if (!node.isValid() || !node.isReadable())
        return false;
    switch (node.getType())
    {
    case CInternalParameterNode::featureTypeInteger: {
        long v = 0;
        if (!node.getIntValue(v))
            return false;
        text = QString::number(v);
        return true;
    }
    case CInternalParameterNode::featureTypeFloat: {
        double v = 0;
        if (!node.getFloatValue(v))
            return false;
        text = QString::number(v, 'g', 17);
        return true;
    }
    case CInternalParameterNode::featureTypeBool: {
        bool v = false;
        if (!node.getBoolValue(v))
            return false;
        text = v ? QStringLiteral("1") : QStringLiteral("0");
        return true;
    }
    case CInternalParameterNode::featureTypeEnum: {
        CEnumNode en(m_camera, n.constData());
        CString symbol;
        if (!en.getValueSymbol(symbol))
            return false;
        text = QString::fromUtf8(symbol.c_str());
        return true;
    }
    case CInternalParameterNode::featureTypeString: {
        CString v;
        if (!node.getStringValue(v))
            return false;
        text = QString::fromUtf8(v.c_str());
        return true;
    }
    default:
        return false;
    }
}

bool CParamFileNodeMap::writeValue(const QString& name, const QString& text, QString& error) const
{
    const QByteArray n = name.toUtf8();
    CInternalParameterNode node(m_camera, n.constData());
    if (!node.isValid())
    {
        error = QCoreApplication::translate("CParamFileNodeMap", "no such feature");
        return false;
    }
    if (!node.isAvailable() || !node.isWriteable())
    {
        error = QCoreApplication::translate("CParamFileNodeMap", "not writeable now");
        return false;
    }
    bool parsed = true;
    bool ok = false;
    switch (node.getType())
    {
    case CInternalParameterNode::featureTypeInteger: {
        const long v = text.trimmed().toLong(&parsed);
        if (parsed)
        {
            // Writing the value the camera already holds changes nothing
            // and spares features that refuse any write while locked.
            long cur = 0;
            ok = (node.getIntValue(cur) && cur == v) || node.setIntValue(v);
        }
        break;
    }
    case CInternalParameterNode::featureTypeFloat: {
        const double v = text.trimmed().toDouble(&parsed);
        if (parsed)
            ok = node.setFloatValue(v);
        break;
    }
    case CInternalParameterNode::featureTypeBool: {
        const QString t = text.trimmed().toLower();
        if (t == QLatin1String("1") || t == QLatin1String("true"))
            ok = node.setBoolValue(true);
        else if (t == QLatin1String("0") || t == QLatin1String("false"))
            ok = node.setBoolValue(false);
        else
            parsed = false;
        break;
    }
    case CInternalParameterNode::featureTypeEnum:
        ok = node.setEnumValueBySymbol(cs(text.trimmed()));
        break;
    case CInternalParameterNode::featureTypeString:
        ok = node.setStringValue(cs(text));
        break;
    default:
        error = QCoreApplication::translate("CParamFileNodeMap", "not a value feature");
        return false;
    }
    if (!parsed)
    {
        error = QCoreApplication::translate("CParamFileNodeMap", "\"%1\" is not a value of this feature's type").arg(text);
        return false;
    }
    if (!ok)
    {
        error = GetErrorDesc();
        if (error.isEmpty())
            error = QCoreApplication::translate("CParamFileNodeMap", "refused by the camera");
    }
    return ok;
}

QStringList CParamFileNodeMap::selectorValues(const QString& name) const
{
    QStringList values;
    const QByteArray n = name.toUtf8();
    CInternalParameterNode node(m_camera, n.constData());
    if (!node.isValid() || !node.isReadable())
        return values;
    if (node.getType() == CInternalParameterNode::featureTypeEnum)
    {
        CEnumNode en(m_camera, n.constData());
        TVector<CString> symbols;
        if (en.getEnumSymbolList(symbols))
            for (const CString& s : symbols)
                values.append(QString::fromUtf8(s.c_str()));
    }
    else if (node.getType() == CInternalParameterNode::featureTypeInteger)
    {
        long mx = 0, mn = 0, inc = 1;
        node.getIntIncrement(inc);
        if (inc <= 0)
            inc = 1;
        if (node.getIntMaxMin(mx, mn) && (mx - mn) / inc < kMaxIntSelectorValues)
            for (long v = mn; v <= mx; v += inc)
                values.append(QString::number(v));
    }
    if (values.isEmpty())
    {
        QString current;
        if (readValue(name, current))
            values.append(current);
    }
    return values;
}
