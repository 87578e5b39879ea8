#include "CEnumerationFeature.h"

#include <cstdio>
#include <vector>

#include "CNodeAccess.h"
#include "CNodeMetadata.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

std::vector<ArvGcFeatureNode*> entryNodes(ArvGcNode* enumeration)
{
    std::vector<ArvGcFeatureNode*> entries;
    for (ArvDomNode* c = arv_dom_node_get_first_child(ARV_DOM_NODE(enumeration)); c;
         c = arv_dom_node_get_next_sibling(c))
        if (ARV_IS_GC_ENUM_ENTRY(c))
            entries.push_back(ARV_GC_FEATURE_NODE(c));
    return entries;
}

std::string entrySymbol(ArvGcFeatureNode* entry, const CString& enumeration)
{
    const char* raw = arv_gc_feature_node_get_name(entry);
    const std::string name = raw ? raw : "";
    const std::string prefix = "EnumEntry_" + enumeration.str() + "_";
    if (name.size() > prefix.size() && name.compare(0, prefix.size(), prefix) == 0)
        return name.substr(prefix.size());
    return name;
}

gint64 entryValue(ArvGcFeatureNode* entry, GError** e)
{
    return arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), e);
}

} // namespace

bool CEnumerationFeature::get(unsigned long& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kEnumeration);
    return a && a.read(value, [&a](GError** e) {
               return arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(a.node()), e);
           });
}

bool CEnumerationFeature::set(unsigned long value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kEnumeration);
    if (!a)
        return false;
    GError* e = nullptr;
    bool known = false;
    for (ArvGcFeatureNode* entry : entryNodes(a.node())) {
        const gint64 v = entryValue(entry, &e);
        g_clear_error(&e);
        if (static_cast<unsigned long>(v) != value)
            continue;
        known = true;
        const bool available = arv_gc_feature_node_is_available(entry, &e);
        g_clear_error(&e);
        if (!available)
            return a.fail(ERR_NOT_AVAILABLE, entrySymbol(entry, m_name));
        break;
    }
    if (!known) {
        char text[64];
        std::snprintf(text, sizeof(text), "no entry with the value %lu", value);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    return a.write([&a, value](GError** e) {
        arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(a.node()), gint64(value), e);
    });
}

bool CEnumerationFeature::setBySymbol(const CString& symbol) const
{
    gint64 value = 0;
    {
        CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kEnumeration);
        if (!a)
            return false;
        bool found = false;
        for (ArvGcFeatureNode* entry : entryNodes(a.node())) {
            if (entrySymbol(entry, m_name) != symbol.str())
                continue;
            if (!a.read(value, [entry](GError** e) { return entryValue(entry, e); }))
                return false;
            found = true;
            break;
        }
        if (!found)
            return a.fail(ERR_OUT_OF_RANGE, "no entry " + symbol.str());
    }
    return set(static_cast<unsigned long>(value));
}

bool CEnumerationFeature::entries(TVector<CInternalParameterNode::SEnumEntry>& entries) const
{
    entries.clear();
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kEnumeration);
    if (!a)
        return false;
    for (ArvGcFeatureNode* entry : entryNodes(a.node())) {
        CInternalParameterNode::SEnumEntry out;
        GError* e = nullptr;
        out.symbol = entrySymbol(entry, m_name);
        out.value = static_cast<unsigned long>(entryValue(entry, &e));
        g_clear_error(&e);
        const char* display = arv_gc_feature_node_get_display_name(entry);
        out.displayName = display && *display ? CString(display) : out.symbol;
        out.available = arv_gc_feature_node_is_implemented(entry, &e) && arv_gc_feature_node_is_available(entry, &e);
        if (e) {
            out.available = false;
            g_clear_error(&e);
        }
        out.visibility = CNodeMetadata::visibilityOf(arv_gc_feature_node_get_visibility(entry));
        out.nameSpace = CNodeMetadata::nameSpaceOf(arv_gc_feature_node_get_name_space(entry));
        entries.push_back(out);
    }
    return a.succeed();
}

bool CEnumerationFeature::symbol(CString& symbol) const
{
    unsigned long value = 0;
    TVector<CInternalParameterNode::SEnumEntry> all;
    if (!get(value) || !entries(all))
        return false;
    for (const auto& entry : all) {
        if (entry.value == value) {
            symbol = entry.symbol;
            return true;
        }
    }
    char text[64];
    std::snprintf(text, sizeof(text), "value %lu has no entry", value);
    const std::string detail = m_name.str() + ": " + text;
    setLastError(ERR_OUT_OF_RANGE, detail.c_str());
    return false;
}

} // namespace GenICam
} // namespace Vorlen
