#include "CNodeMetadata.h"

#include "NodeMap.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Node = CInternalParameterNode;

Node::EVisibility CNodeMetadata::visibilityOf(ArvGcVisibility v)
{
    switch (v) {
    case ARV_GC_VISIBILITY_INVISIBLE: return Node::visibilityInvisible;
    case ARV_GC_VISIBILITY_GURU: return Node::visibilityGuru;
    case ARV_GC_VISIBILITY_EXPERT: return Node::visibilityExpert;
    default: return Node::visibilityBeginner;   // GenICam's default
    }
}

Node::ENameSpace CNodeMetadata::nameSpaceOf(ArvGcNameSpace n)
{
    return n == ARV_GC_NAME_SPACE_STANDARD ? Node::nameSpaceStandard : Node::nameSpaceCustom;
}

bool CNodeMetadata::isValid() const
{
    return describe(false, [](const CNodeAccess&) { return true; });
}

bool CNodeMetadata::isImplemented() const
{
    return ask([](ArvGcFeatureNode* f, GError** e) { return arv_gc_feature_node_is_implemented(f, e); });
}

bool CNodeMetadata::isAvailable() const
{
    return ask([](ArvGcFeatureNode* f, GError** e) {
        return arv_gc_feature_node_is_implemented(f, e) && arv_gc_feature_node_is_available(f, e);
    });
}

bool CNodeMetadata::isReadable() const
{
    return describe(false, [](const CNodeAccess& a) { return CNodeAccess::readability(a.node()) == ERR_OK; });
}

bool CNodeMetadata::isWriteable() const
{
    return describe(false, [](const CNodeAccess& a) { return CNodeAccess::writability(a.node()) == ERR_OK; });
}

bool CNodeMetadata::isStreamable() const
{
    return describe(false, [](const CNodeAccess& a) {
        ArvGcPropertyNode* s = CNodeAccess::property(a.node(), ARV_GC_PROPERTY_NODE_TYPE_STREAMABLE);
        return s && arv_gc_property_node_get_streamable(s, ARV_GC_STREAMABLE_NO) == ARV_GC_STREAMABLE_YES;
    });
}

Node::EFeatureType CNodeMetadata::type() const
{
    return describe(Node::featureTypeNone, [](const CNodeAccess& a) { return CNodeAccess::typeOf(a.node()); });
}

Node::ERepresent CNodeMetadata::representation() const
{
    return describe(Node::representUndefined, [](const CNodeAccess& a) {
        const Node::EFeatureType type = CNodeAccess::typeOf(a.node());
        ArvGcRepresentation r = ARV_GC_REPRESENTATION_UNDEFINED;
        if (type == Node::featureTypeInteger && ARV_IS_GC_INTEGER(a.node()))
            r = arv_gc_integer_get_representation(ARV_GC_INTEGER(a.node()));
        else if (type == Node::featureTypeFloat && ARV_IS_GC_FLOAT(a.node()))
            r = arv_gc_float_get_representation(ARV_GC_FLOAT(a.node()));
        else
            return Node::representUndefined;
        switch (r) {
        case ARV_GC_REPRESENTATION_LINEAR: return Node::representLinear;
        case ARV_GC_REPRESENTATION_LOGARITHMIC: return Node::representLogarithmic;
        case ARV_GC_REPRESENTATION_BOOLEAN: return Node::representBoolean;
        case ARV_GC_REPRESENTATION_PURE_NUMBER: return Node::representPureNumber;
        case ARV_GC_REPRESENTATION_HEX_NUMBER: return Node::representHexNumber;
        case ARV_GC_REPRESENTATION_IPV4_ADDRESS: return Node::representIPV4Address;
        case ARV_GC_REPRESENTATION_MAC_ADDRESS: return Node::representMACAddress;
        default: return Node::representPureNumber;   // GenICam's default for numbers
        }
    });
}

Node::EVisibility CNodeMetadata::visibility() const
{
    return describe(Node::visibilityUndefined, [](const CNodeAccess& a) {
        return visibilityOf(arv_gc_feature_node_get_visibility(a.feature()));
    });
}

Node::ENameSpace CNodeMetadata::nameSpace() const
{
    return describe(Node::nameSpaceUndefined, [](const CNodeAccess& a) {
        return nameSpaceOf(arv_gc_feature_node_get_name_space(a.feature()));
    });
}

CString CNodeMetadata::displayName() const
{
    return describe(m_name, [this](const CNodeAccess& a) {
        const char* text = arv_gc_feature_node_get_display_name(a.feature());
        return text && *text ? CString(text) : m_name;
    });
}

CString CNodeMetadata::description() const
{
    return describe(CString(),
                    [](const CNodeAccess& a) { return CString(arv_gc_feature_node_get_description(a.feature())); });
}

CString CNodeMetadata::toolTip() const
{
    return describe(CString(),
                    [](const CNodeAccess& a) { return CString(arv_gc_feature_node_get_tooltip(a.feature())); });
}

bool CNodeMetadata::unit(CString& unit) const
{
    unit = describe(CString(), [](const CNodeAccess& a) {
        const char* text = nullptr;
        const Node::EFeatureType type = CNodeAccess::typeOf(a.node());
        if (type == Node::featureTypeInteger && ARV_IS_GC_INTEGER(a.node()))
            text = arv_gc_integer_get_unit(ARV_GC_INTEGER(a.node()));
        else if (type == Node::featureTypeFloat && ARV_IS_GC_FLOAT(a.node()))
            text = arv_gc_float_get_unit(ARV_GC_FLOAT(a.node()));
        return CString(text);
    });
    return !unit.empty();
}

TVector<CString> CNodeMetadata::selectors() const
{
    return describe(TVector<CString>(), [this](const CNodeAccess& a) {
        TVector<CString> names;
        if (std::shared_ptr<CNodeMap> map = a.camera()->nodeMap())
            for (const std::string& s : map->selectorsOf(m_name.str()))
                names.push_back(s);
        return names;
    });
}

TVector<CString> CNodeMetadata::selected() const
{
    return describe(TVector<CString>(), [](const CNodeAccess& a) {
        TVector<CString> names;
        if (ARV_IS_GC_SELECTOR(a.node()) && arv_gc_selector_is_selector(ARV_GC_SELECTOR(a.node()))) {
            for (const GSList* it = arv_gc_selector_get_selected_features(ARV_GC_SELECTOR(a.node())); it;
                 it = it->next)
                if (it->data && ARV_IS_GC_FEATURE_NODE(it->data))
                    names.push_back(arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(it->data)));
        }
        return names;
    });
}

bool CNodeMetadata::children(TVector<Memory::TSharedPtr<Node>>& children) const
{
    // The list is filled last: the caller may pass the list that holds
    // this very node.
    TVector<Memory::TSharedPtr<Node>> found;
    {
        CNodeAccess a(m_camera, m_name);
        if (!a) {
            const int code = getLastError();
            const std::string detail = m_name.str();
            children.clear();
            setLastError(code, detail.c_str());
            return false;
        }
        if (ARV_IS_GC_CATEGORY(a.node())) {
            ArvGc* gc = arv_gc_node_get_genicam(a.node());
            for (const GSList* it = arv_gc_category_get_features(ARV_GC_CATEGORY(a.node())); it; it = it->next) {
                const char* child = static_cast<const char*>(it->data);
                if (child && gc && arv_gc_get_node(gc, child))
                    found.push_back(std::make_shared<Node>(m_camera, child));
            }
        }
    }
    clearLastError();
    children.swap(found);
    return true;
}

} // namespace GenICam
} // namespace Vorlen
