#pragma once
// What the library needs to know about a camera's GenICam description
// beyond single nodes: which features depend on which (for parameter-update
// events), who selects whom, the category tree, and the event ports of the
// message channel. Built once per connection from Aravis' node tree; the
// object is immutable afterwards except for its cache, which has its own lock.
#include <arv.h>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace Vorlen {
namespace GenICam {

class CNodeMap
{
public:
    explicit CNodeMap(ArvGc* genicam);

    // The written feature followed by every feature of the category tree
    // whose value, range, availability or lock state may change with it.
    std::vector<std::string> affectedBy(const std::string& written);
    // Features that select this one (selectors listing it in pSelected).
    std::vector<std::string> selectorsOf(const std::string& feature) const;
    bool inCategoryTree(const std::string& feature) const { return m_inTree.count(feature) != 0; }

    // Message-channel event with this id: its name and the features that
    // carry its data. False when the description has no such event.
    bool eventInfo(uint16_t eventId, std::string& name, std::vector<std::string>& params) const;

    size_t nodeCount() const { return m_order.size(); }

private:
    enum EEdge
    {
        edgeValue,    // the node reads and writes through the target (pValue)
        edgeOther     // any other reference (range, availability, selector, ...)
    };
    void walk(ArvDomNode* node, const std::string& owner);
    void collectTree(const std::string& category, std::set<std::string>& seen);

    std::vector<std::string> m_order;                                     // description order
    std::map<std::string, size_t> m_index;
    std::map<std::string, std::vector<std::string>> m_valueTargets;       // node -> pValue targets
    std::map<std::string, std::set<std::string>> m_referencedBy;          // target -> nodes that depend on it
    std::map<std::string, std::vector<std::string>> m_categoryChildren;
    std::map<std::string, std::vector<std::string>> m_selectors;          // selected -> selectors
    std::map<std::string, std::string> m_portOf;                          // register -> port
    std::map<std::string, uint32_t> m_eventPorts;                         // port -> event id
    std::vector<std::string> m_eventSelectorEntries;
    std::set<std::string> m_inTree;

    std::mutex m_cacheMutex;
    std::map<std::string, std::vector<std::string>> m_affectedCache;
};

} // namespace GenICam
} // namespace Vorlen
