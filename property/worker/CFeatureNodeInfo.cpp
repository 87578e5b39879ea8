#include "CFeatureNodeInfo.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

using namespace Vorlen::GenICam;
using Node = CFeatureNodeInfo::Node;

static QString qstr(const Vorlen::Infra::CString& s)
{
    return QString::fromLocal8Bit(s.c_str());
}

static void readUnit(const Node& node, CFeatureNodeInfo& info)
{
    Vorlen::Infra::CString unit;
    info.hasUnit = node.getUnit(unit);
    info.unit = qstr(unit);
}

template <class T>
static CFeatureNodeInfo::SNumber<T> readNumber(const Node& node, bool withValue, bool (Node::*value)(T&) const,
                                               bool (Node::*range)(T&, T&) const, bool (Node::*increment)(T&) const)
{
    CFeatureNodeInfo::SNumber<T> n;
    n.valueOk = withValue && (node.*value)(n.value);
    n.rangeOk = (node.*range)(n.max, n.min);
    n.incrementOk = increment && (node.*increment)(n.increment) && n.increment > 0;
    return n;
}

CFeatureNodeInfo::SNumber<long> CFeatureNodeInfo::readInt(const Node& node, bool withValue)
{
    return readNumber<long>(node, withValue, &Node::getIntValue, &Node::getIntMaxMin, &Node::getIntIncrement);
}

CFeatureNodeInfo::SNumber<double> CFeatureNodeInfo::readFloat(const Node& node, bool withValue, bool withIncrement)
{
    return readNumber<double>(node, withValue, &Node::getFloatValue, &Node::getFloatMaxMin,
                              withIncrement ? &Node::getFloatIncrement : nullptr);
}

CFeatureNodeInfo CFeatureNodeInfo::read(const Node* node)
{
    CFeatureNodeInfo info;
    if (!node || !node->isValid())
        return info;
    info.valid = true;
    info.name = qstr(node->getName());
    info.displayName = qstr(node->getDisplayName());
    info.description = qstr(node->getDescription());
    for (const Vorlen::Infra::CString& s : node->getSelectorsName())
        info.selectors.append(qstr(s));
    info.type = node->getType();
    info.representation = node->getRepresentation();
    info.visibility = node->getVisibility();
    info.nameSpace = node->getNameSpace();
    if (info.visibility > Node::visibilityGuru || info.isCategory())
    {
        info.available = true;
        return info;
    }
    info.available = node->isAvailable();
    info.readable = node->isReadable();
    info.writeable = node->isWriteable();
    info.streamable = node->isStreamable();

    switch (info.type)
    {
    case Node::featureTypeInteger:
    {
        const SNumber<long> n = readInt(*node, info.readable);
        info.valueOk = n.valueOk;
        info.intValue = n.value;
        info.intRangeOk = n.rangeOk;
        info.intMax = n.max;
        info.intMin = n.min;
        info.intIncOk = n.incrementOk;
        info.intInc = n.incrementOk ? n.increment : 1;
        readUnit(*node, info);
        break;
    }
    case Node::featureTypeFloat:
    {
        const SNumber<double> n = readFloat(*node, info.readable, false);
        readUnit(*node, info);
        info.valueOk = n.valueOk;
        info.floatValue = n.value;
        info.floatRangeOk = n.rangeOk;
        info.floatMax = n.max;
        info.floatMin = n.min;
        break;
    }
    case Node::featureTypeEnum:
    {
        Vorlen::Infra::TVector<Node::SEnumEntry> entries;
        unsigned long current = 0;
        const bool haveCurrent = info.readable && node->getEnumValue(current);
        if (node->getEnumEntry(entries))
        {
            for (const Node::SEnumEntry& e : entries)
            {
                const bool isCurrent = haveCurrent && e.value == current;
                // Invisible entries are never offered, unless the camera holds one.
                if (e.visibility > Node::visibilityGuru && !isCurrent)
                    continue;
                SEntry entry;
                entry.symbol = qstr(e.symbol);
                entry.value = e.value;
                entry.displayName = qstr(e.displayName);
                entry.visibility = e.visibility;
                entry.nameSpace = e.nameSpace;
                entry.available = e.available;
                if (isCurrent)
                    info.currentEntry = info.entries.size();
                info.entries.append(entry);
            }
        }
        info.valueOk = haveCurrent;
        break;
    }
    case Node::featureTypeBool:
    {
        bool b = false;
        if (info.readable && node->getBoolValue(b))
        {
            info.valueOk = true;
            info.boolValue = b;
        }
        break;
    }
    case Node::featureTypeString:
    {
        Vorlen::Infra::CString s;
        if (info.readable && node->getStringValue(s))
        {
            info.valueOk = true;
            info.stringValue = qstr(s);
        }
        unsigned int len = 0;
        if (node->getMaxStringLen(len))
            info.maxStringLen = len;
        break;
    }
    case Node::featureTypeCommand:
        info.commandDone = !info.readable || node->isDone();
        break;
    case Node::featureTypeRegister:
    {
        long len = 0;
        info.regLengthOk = node->getRegLength(len);
        info.regLength = len;
        if (info.readable)
        {
            Vorlen::Infra::TVector<unsigned char> bytes;
            info.valueOk = node->getRegValue(bytes);
            if (!info.valueOk)
                LOG_ERROR("getRegParam failed.");
        }
        break;
    }
    default:
        break;
    }
    return info;
}

bool CFeatureNodeInfo::lastErrorMeansDeviceLost()
{
    const int err = Vorlen::Infra::getLastError();
    return err == Vorlen::Infra::ERR_DEVICE_LOST || err == Vorlen::Infra::ERR_NOT_CONNECTED ||
           err == Vorlen::Infra::ERR_TIMEOUT;
}

bool CFeatureNodeInfo::readTree(const Vorlen::Memory::TSharedPtr<Node>& node, CFeatureNodeInfo& out,
                                const std::function<bool()>& perNode)
{
    Vorlen::Infra::clearLastError();
    out = read(node.get());
    if (lastErrorMeansDeviceLost())
        return false;
    if (perNode && !perNode())
        return false;
    if (!out.valid || !out.isCategory())
        return true;
    Vorlen::Infra::TVector<Vorlen::Memory::TSharedPtr<Node>> children;
    if (!node->getChildren(children))
        return !lastErrorMeansDeviceLost();
    out.children.reserve(children.size());
    for (const auto& child : children)
    {
        if (!child || !child->isValid() || child->getVisibility() > Node::visibilityGuru)
            continue;
        CFeatureNodeInfo childInfo;
        if (!readTree(child, childInfo, perNode))
            return false;
        out.children.push_back(std::move(childInfo));
    }
    return true;
}

int CFeatureNodeInfo::nodeCount() const
{
    int n = 1;
    for (const CFeatureNodeInfo& c : children)
        n += c.nodeCount();
    return n;
}
