#include "NodeMap.h"

#include <algorithm>
#include <cstdlib>
#include <deque>

namespace Vorlen {
namespace GenICam {

namespace {

std::string featureName(ArvGcNode* node)
{
    if (!node || !ARV_IS_GC_FEATURE_NODE(node))
        return std::string();
    const char* name = arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(node));
    return name ? name : "";
}

// Adds to reached every node the edges lead to from the queued ones,
// transitively.
template <class Edges>
void spread(std::set<std::string>& reached, std::deque<std::string> queue, const Edges& edges)
{
    while (!queue.empty()) {
        const std::string node = queue.front();
        queue.pop_front();
        auto next = edges.find(node);
        if (next == edges.end())
            continue;
        for (const std::string& n : next->second)
            if (reached.insert(n).second)
                queue.push_back(n);
    }
}

} // namespace

CNodeMap::CNodeMap(ArvGc* genicam)
{
    if (!genicam)
        return;
    ArvDomElement* root = arv_dom_document_get_document_element(ARV_DOM_DOCUMENT(genicam));
    if (!root)
        return;
    walk(ARV_DOM_NODE(root), std::string());
    std::set<std::string> seen;
    collectTree("Root", seen);
}

void CNodeMap::walk(ArvDomNode* node, const std::string& owner)
{
    for (ArvDomNode* child = arv_dom_node_get_first_child(node); child; child = arv_dom_node_get_next_sibling(child)) {
        if (ARV_IS_GC_PROPERTY_NODE(child)) {
            if (owner.empty())
                continue;
            ArvGcPropertyNode* prop = ARV_GC_PROPERTY_NODE(child);
            const ArvGcPropertyNodeType type = arv_gc_property_node_get_node_type(prop);
            if (type == ARV_GC_PROPERTY_NODE_TYPE_EVENT_ID) {
                GError* error = nullptr;
                const char* text = arv_gc_property_node_get_string(prop, &error);
                if (error)
                    g_clear_error(&error);
                else if (text)
                    m_eventPorts[owner] = uint32_t(std::strtoul(text, nullptr, 16));   // hexadecimal in GenICam
                continue;
            }
            if (type <= ARV_GC_PROPERTY_NODE_TYPE_P_UNKNONW)
                continue;
            const std::string target = featureName(arv_gc_property_node_get_linked_node(prop));
            if (target.empty() || target == owner)
                continue;
            switch (type) {
            case ARV_GC_PROPERTY_NODE_TYPE_P_FEATURE:
                m_categoryChildren[owner].push_back(target);
                break;
            case ARV_GC_PROPERTY_NODE_TYPE_P_PORT:
                m_portOf[owner] = target;
                break;
            case ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED:
                // The selected feature depends on its selector.
                m_selectors[target].push_back(owner);
                m_referencedBy[owner].insert(target);
                break;
            case ARV_GC_PROPERTY_NODE_TYPE_P_VALUE:
                m_valueTargets[owner].push_back(target);
                m_referencedBy[target].insert(owner);
                break;
            default:
                m_referencedBy[target].insert(owner);
                break;
            }
            continue;
        }
        if (ARV_IS_GC_ENUM_ENTRY(child)) {
            // An entry's references (its availability) belong to its enumeration.
            if (owner == "EventSelector")
                m_eventSelectorEntries.push_back(featureName(ARV_GC_NODE(child)));
            walk(child, owner);
            continue;
        }
        if (ARV_IS_GC_FEATURE_NODE(child)) {
            const std::string name = featureName(ARV_GC_NODE(child));
            if (!name.empty() && !m_index.count(name)) {
                m_index[name] = m_order.size();
                m_order.push_back(name);
            }
            walk(child, name.empty() ? owner : name);
            continue;
        }
        if (arv_dom_node_get_node_type(child) == ARV_DOM_NODE_TYPE_ELEMENT_NODE)
            walk(child, owner);
    }
}

void CNodeMap::collectTree(const std::string& category, std::set<std::string>& seen)
{
    if (!seen.insert(category).second)
        return;
    m_inTree.insert(category);
    auto it = m_categoryChildren.find(category);
    if (it == m_categoryChildren.end())
        return;
    for (const std::string& child : it->second) {
        m_inTree.insert(child);
        collectTree(child, seen);
    }
}

std::vector<std::string> CNodeMap::affectedBy(const std::string& written)
{
    {
        std::lock_guard<std::mutex> lock(m_cacheMutex);
        auto cached = m_affectedCache.find(written);
        if (cached != m_affectedCache.end())
            return cached->second;
    }

    // The nodes the write goes through (pValue chain), then everything that
    // refers to any of them, transitively.
    std::set<std::string> reached{written};
    spread(reached, {written}, m_valueTargets);
    spread(reached, std::deque<std::string>(reached.begin(), reached.end()), m_referencedBy);

    std::vector<std::string> others;
    for (const std::string& name : reached)
        if (name != written && m_inTree.count(name))
            others.push_back(name);
    std::sort(others.begin(), others.end(), [this](const std::string& a, const std::string& b) {
        auto ia = m_index.find(a), ib = m_index.find(b);
        const size_t pa = ia == m_index.end() ? SIZE_MAX : ia->second;
        const size_t pb = ib == m_index.end() ? SIZE_MAX : ib->second;
        return pa < pb;
    });
    std::vector<std::string> result;
    result.reserve(others.size() + 1);
    result.push_back(written);
    result.insert(result.end(), others.begin(), others.end());

    std::lock_guard<std::mutex> lock(m_cacheMutex);
    m_affectedCache[written] = result;
    return result;
}

std::vector<std::string> CNodeMap::selectorsOf(const std::string& feature) const
{
    auto it = m_selectors.find(feature);
    return it == m_selectors.end() ? std::vector<std::string>() : it->second;
}

bool CNodeMap::eventInfo(uint16_t eventId, std::string& name, std::vector<std::string>& params) const
{
    name.clear();
    params.clear();
    std::set<std::string> ports;
    for (const auto& p : m_eventPorts)
        if (p.second == eventId)
            ports.insert(p.first);
    if (ports.empty())
        return false;

    // Registers on the event's ports, then the features of the tree that
    // read them (directly or through a chain of pValue).
    std::set<std::string> carriers;
    for (const auto& r : m_portOf)
        if (ports.count(r.second))
            carriers.insert(r.first);
    bool grown = true;
    while (grown) {
        grown = false;
        for (const auto& v : m_valueTargets) {
            if (carriers.count(v.first))
                continue;
            for (const std::string& t : v.second) {
                if (carriers.count(t)) {
                    carriers.insert(v.first);
                    grown = true;
                    break;
                }
            }
        }
    }
    for (const std::string& n : m_order)
        if (carriers.count(n) && m_inTree.count(n))
            params.push_back(n);

    // Name: the event selector entry the carriers are named after
    // ("EventExposureEndTimestamp" -> "ExposureEnd"), else the port's name.
    for (const std::string& entry : m_eventSelectorEntries) {
        const std::string prefix = "Event" + entry;
        for (const std::string& p : params) {
            if (p.compare(0, prefix.size(), prefix) == 0 && entry.size() > name.size())
                name = entry;
        }
    }
    if (name.empty()) {
        name = *ports.begin();
        if (name.compare(0, 5, "Event") == 0 && name.size() > 5)
            name = name.substr(5);
        if (name.size() > 4 && name.compare(name.size() - 4, 4, "Port") == 0)
            name = name.substr(0, name.size() - 4);
    }
    return true;
}

} // namespace GenICam
} // namespace Vorlen
