#include "CFeatureNodeInfo.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

using namespace Vorlen::GenICam;

static QString qstr(const Vorlen::Infra::CString& s)
{
    return QString::fromLocal8Bit(s.c_str());
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
        long v = 0, mx = 0, mn = 0, inc = 1;
        if (info.readable && node->getIntValue(v))
        {
            info.valueOk = true;
            info.intValue = v;
        }
        info.intRangeOk = node->getIntMaxMin(mx, mn);
        info.intMax = mx;
        info.intMin = mn;
        info.intIncOk = node->getIntIncrement(inc) && inc > 0;
        info.intInc = info.intIncOk ? inc : 1;
        Vorlen::Infra::CString unit;
        info.hasUnit = node->getUnit(unit);
        info.unit = qstr(unit);
        break;
    }
    case Node::featureTypeFloat:
    {
        double v = 0, mx = 0, mn = 0;
        Vorlen::Infra::CString unit;
        info.hasUnit = node->getUnit(unit);
        info.unit = qstr(unit);
        if (info.readable && node->getFloatValue(v))
        {
            info.valueOk = true;
            info.floatValue = v;
        }
        info.floatRangeOk = node->getFloatMaxMin(mx, mn);
        info.floatMax = mx;
        info.floatMin = mn;
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
