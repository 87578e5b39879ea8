// Parameter nodes over the Aravis node map of a connected camera.
#include "Vorlen/GenICam/CInternalParameterNode.h"

#include <chrono>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "CAravisCamera.h"
#include "EventHub.h"
#include "Gvcp.h"
#include "NodeMap.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Memory::TSharedPtr;

namespace {

// A node of a connected camera, with the camera's node-map lock held for
// as long as the object lives.
struct SAccess
{
    std::unique_lock<std::recursive_mutex> lock;
    CAravisCamera* camera = nullptr;
    ArvGcNode* node = nullptr;
};

bool resolve(const TSharedPtr<ICamera>& cameraPtr, const CString& name, SAccess& a)
{
    a.camera = toAravisCamera(cameraPtr);
    if (!a.camera) {
        setLastError(ERR_INVALID_HANDLE, name.c_str());
        return false;
    }
    a.lock = std::unique_lock<std::recursive_mutex>(a.camera->gcMutex());
    ArvDevice* device = a.camera->arvDevice();
    if (!device) {
        setLastError(ERR_NOT_CONNECTED, name.c_str());
        return false;
    }
    ArvGc* gc = arv_device_get_genicam(device);
    a.node = gc && !name.empty() ? arv_gc_get_node(gc, name.c_str()) : nullptr;
    if (!a.node || !ARV_IS_GC_FEATURE_NODE(a.node)) {
        setLastError(ERR_NOT_FOUND, name.c_str());
        return false;
    }
    return true;
}

ArvGcFeatureNode* feature(const SAccess& a)
{
    return ARV_GC_FEATURE_NODE(a.node);
}

CInternalParameterNode::EFeatureType typeOf(ArvGcNode* node)
{
    using T = CInternalParameterNode;
    const char* tag = arv_dom_node_get_node_name(ARV_DOM_NODE(node));
    if (!tag)
        return T::featureTypeNone;
    static const struct { const char* tag; T::EFeatureType type; } table[] = {
        {"Integer", T::featureTypeInteger},       {"IntReg", T::featureTypeInteger},
        {"MaskedIntReg", T::featureTypeInteger},  {"IntSwissKnife", T::featureTypeInteger},
        {"IntConverter", T::featureTypeInteger},  {"StructEntry", T::featureTypeInteger},
        {"Float", T::featureTypeFloat},           {"FloatReg", T::featureTypeFloat},
        {"SwissKnife", T::featureTypeFloat},      {"Converter", T::featureTypeFloat},
        {"Enumeration", T::featureTypeEnum},      {"Boolean", T::featureTypeBool},
        {"String", T::featureTypeString},         {"StringReg", T::featureTypeString},
        {"Command", T::featureTypeCommand},       {"Category", T::featureTypeCategory},
        {"Register", T::featureTypeRegister},
    };
    for (const auto& row : table)
        if (std::strcmp(tag, row.tag) == 0)
            return row.type;
    return T::featureTypeNone;
}

// Property child of a node (ToolTip, Streamable, pValue, ...), or null.
ArvGcPropertyNode* property(ArvGcNode* node, ArvGcPropertyNodeType type)
{
    for (ArvDomNode* c = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); c; c = arv_dom_node_get_next_sibling(c))
        if (ARV_IS_GC_PROPERTY_NODE(c) && arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(c)) == type)
            return ARV_GC_PROPERTY_NODE(c);
    return nullptr;
}

int mapError(const GError* e, int fallback)
{
    if (!e)
        return fallback;
    if (e->domain == ARV_DEVICE_ERROR) {
        switch (e->code) {
        case ARV_DEVICE_ERROR_TIMEOUT: return ERR_TIMEOUT;
        case ARV_DEVICE_ERROR_NOT_CONNECTED: return ERR_NOT_CONNECTED;
        case ARV_DEVICE_ERROR_NOT_CONTROLLER:
        case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED: return ERR_ACCESS_DENIED;
        case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT: return ERR_NOT_WRITABLE;
        case ARV_DEVICE_ERROR_FEATURE_NOT_FOUND: return ERR_NOT_FOUND;
        case ARV_DEVICE_ERROR_WRONG_FEATURE: return ERR_TYPE_MISMATCH;
        default: return fallback;
        }
    }
    if (e->domain == arv_gc_error_quark()) {
        switch (e->code) {
        case ARV_GC_ERROR_OUT_OF_RANGE:
        case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND: return ERR_OUT_OF_RANGE;
        case ARV_GC_ERROR_READ_ONLY: return ERR_NOT_WRITABLE;
        case ARV_GC_ERROR_NODE_NOT_FOUND: return ERR_NOT_FOUND;
        default: return fallback;
        }
    }
    return fallback;
}

// Sets the last error from an Aravis error (consumed) and returns false.
bool fail(GError*& e, int fallback, const CString& name)
{
    std::string detail = name.str();
    if (e && e->message) {
        detail += ": ";
        detail += e->message;
    }
    setLastError(mapError(e, fallback), detail.c_str());
    g_clear_error(&e);
    return false;
}

bool failWith(int code, const CString& name, const std::string& more = std::string())
{
    std::string detail = name.str();
    if (!more.empty())
        detail += ": " + more;
    setLastError(code, detail.c_str());
    return false;
}

bool isValueType(CInternalParameterNode::EFeatureType t)
{
    return t != CInternalParameterNode::featureTypeNone && t != CInternalParameterNode::featureTypeCategory;
}

// ERR_OK when the feature is implemented and available now, else why not.
int presence(ArvGcFeatureNode* f)
{
    GError* e = nullptr;
    if (!arv_gc_feature_node_is_implemented(f, &e)) {
        const int code = e ? mapError(e, ERR_READ_FAILED) : ERR_NOT_IMPLEMENTED;
        g_clear_error(&e);
        return code;
    }
    if (!arv_gc_feature_node_is_available(f, &e)) {
        const int code = e ? mapError(e, ERR_READ_FAILED) : ERR_NOT_AVAILABLE;
        g_clear_error(&e);
        return code;
    }
    return ERR_OK;
}

// ERR_OK when the node can be read now, else why not.
int readability(ArvGcNode* node)
{
    ArvGcFeatureNode* f = ARV_GC_FEATURE_NODE(node);
    if (!isValueType(typeOf(node)))
        return ERR_NOT_READABLE;
    if (const int code = presence(f))
        return code;
    return arv_gc_feature_node_get_actual_access_mode(f) == ARV_GC_ACCESS_MODE_WO ? ERR_NOT_READABLE : ERR_OK;
}

int writability(ArvGcNode* node)
{
    ArvGcFeatureNode* f = ARV_GC_FEATURE_NODE(node);
    if (!isValueType(typeOf(node)))
        return ERR_NOT_WRITABLE;
    if (const int code = presence(f))
        return code;
    GError* e = nullptr;
    const bool locked = arv_gc_feature_node_is_locked(f, &e);
    g_clear_error(&e);
    if (locked)
        return ERR_NOT_WRITABLE;
    return arv_gc_feature_node_get_actual_access_mode(f) == ARV_GC_ACCESS_MODE_RO ? ERR_NOT_WRITABLE : ERR_OK;
}

bool checkRead(const SAccess& a, const CString& name)
{
    const int code = readability(a.node);
    return code == ERR_OK || failWith(code, name);
}

bool checkWrite(const SAccess& a, const CString& name)
{
    const int code = writability(a.node);
    return code == ERR_OK || failWith(code, name);
}

// Tells the camera's subscribers what a successful write may have changed.
void publishWrite(const SAccess& a, const TSharedPtr<ICamera>& camera, const CString& name)
{
    std::shared_ptr<CNodeMap> map = a.camera->nodeMap();
    SParamUpdataArg arg;
    arg.isPoll = false;
    arg.timestamp = uint64_t(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                 std::chrono::system_clock::now().time_since_epoch())
                                 .count());
    arg.key = camera->getKey();
    if (map) {
        for (const std::string& n : map->affectedBy(name.str()))
            arg.paramNames.push_back(n);
    } else {
        arg.paramNames.push_back(name);
    }
    EventHub::publishParamUpdate(camera.get(), arg);
}

// Entries of an enumeration in description order (Aravis' own list is not).
std::vector<ArvGcFeatureNode*> enumEntries(ArvGcNode* enumeration)
{
    std::vector<ArvGcFeatureNode*> entries;
    for (ArvDomNode* c = arv_dom_node_get_first_child(ARV_DOM_NODE(enumeration)); c;
         c = arv_dom_node_get_next_sibling(c))
        if (ARV_IS_GC_ENUM_ENTRY(c))
            entries.push_back(ARV_GC_FEATURE_NODE(c));
    return entries;
}

// Symbol of an entry: its name, without the "EnumEntry_<Enumeration>_"
// prefix some descriptions give their entry names.
std::string entrySymbol(ArvGcFeatureNode* entry, const char* enumeration)
{
    std::string name = arv_gc_feature_node_get_name(entry) ? arv_gc_feature_node_get_name(entry) : "";
    const std::string prefix = std::string("EnumEntry_") + (enumeration ? enumeration : "") + "_";
    if (name.size() > prefix.size() && name.compare(0, prefix.size(), prefix) == 0)
        return name.substr(prefix.size());
    return name;
}

CInternalParameterNode::EVisibility mapVisibility(ArvGcVisibility v)
{
    switch (v) {
    case ARV_GC_VISIBILITY_INVISIBLE: return CInternalParameterNode::visibilityInvisible;
    case ARV_GC_VISIBILITY_GURU: return CInternalParameterNode::visibilityGuru;
    case ARV_GC_VISIBILITY_EXPERT: return CInternalParameterNode::visibilityExpert;
    default: return CInternalParameterNode::visibilityBeginner;   // GenICam's default
    }
}

CInternalParameterNode::ENameSpace mapNameSpace(ArvGcNameSpace n)
{
    return n == ARV_GC_NAME_SPACE_STANDARD ? CInternalParameterNode::nameSpaceStandard
                                           : CInternalParameterNode::nameSpaceCustom;
}

std::string formatDouble(double v)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%.15g", v);
    return text;
}

// Reads one property of the feature under the camera's lock. Returns
// `fallback` when the feature cannot be resolved; the last error says why.
template <class T, class Read>
T readMeta(const TSharedPtr<ICamera>& camera, const CString& name, T fallback, Read read)
{
    SAccess a;
    if (!resolve(camera, name, a))
        return fallback;
    clearLastError();
    return read(a);
}

} // namespace

CInternalParameterNode::CInternalParameterNode(const TSharedPtr<ICamera>& camera, const char* name)
    : m_camera(camera), m_name(name ? name : "")
{
}

CInternalParameterNode::~CInternalParameterNode() = default;

// ---- Metadata -----------------------------------------------------------

bool CInternalParameterNode::isValid() const
{
    return readMeta(m_camera, m_name, false, [](const SAccess&) { return true; });
}

bool CInternalParameterNode::isImplemented() const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    GError* e = nullptr;
    const bool yes = arv_gc_feature_node_is_implemented(feature(a), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    clearLastError();
    return yes;
}

bool CInternalParameterNode::isAvailable() const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    GError* e = nullptr;
    const bool yes = arv_gc_feature_node_is_implemented(feature(a), &e) &&
                     arv_gc_feature_node_is_available(feature(a), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    clearLastError();
    return yes;
}

bool CInternalParameterNode::isReadable() const
{
    return readMeta(m_camera, m_name, false, [](const SAccess& a) { return readability(a.node) == ERR_OK; });
}

bool CInternalParameterNode::isWriteable() const
{
    return readMeta(m_camera, m_name, false, [](const SAccess& a) { return writability(a.node) == ERR_OK; });
}

bool CInternalParameterNode::isStreamable() const
{
    return readMeta(m_camera, m_name, false, [](const SAccess& a) {
        ArvGcPropertyNode* s = property(a.node, ARV_GC_PROPERTY_NODE_TYPE_STREAMABLE);
        return s && arv_gc_property_node_get_streamable(s, ARV_GC_STREAMABLE_NO) == ARV_GC_STREAMABLE_YES;
    });
}

CInternalParameterNode::EFeatureType CInternalParameterNode::getType() const
{
    return readMeta(m_camera, m_name, featureTypeNone, [](const SAccess& a) { return typeOf(a.node); });
}

CInternalParameterNode::ERepresent CInternalParameterNode::getRepresentation() const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return representUndefined;
    clearLastError();
    const EFeatureType type = typeOf(a.node);
    ArvGcRepresentation r = ARV_GC_REPRESENTATION_UNDEFINED;
    if (type == featureTypeInteger && ARV_IS_GC_INTEGER(a.node))
        r = arv_gc_integer_get_representation(ARV_GC_INTEGER(a.node));
    else if (type == featureTypeFloat && ARV_IS_GC_FLOAT(a.node))
        r = arv_gc_float_get_representation(ARV_GC_FLOAT(a.node));
    else
        return representUndefined;
    switch (r) {
    case ARV_GC_REPRESENTATION_LINEAR: return representLinear;
    case ARV_GC_REPRESENTATION_LOGARITHMIC: return representLogarithmic;
    case ARV_GC_REPRESENTATION_BOOLEAN: return representBoolean;
    case ARV_GC_REPRESENTATION_PURE_NUMBER: return representPureNumber;
    case ARV_GC_REPRESENTATION_HEX_NUMBER: return representHexNumber;
    case ARV_GC_REPRESENTATION_IPV4_ADDRESS: return representIPV4Address;
    case ARV_GC_REPRESENTATION_MAC_ADDRESS: return representMACAddress;
    default: return representPureNumber;   // GenICam's default for numbers
    }
}

CInternalParameterNode::EVisibility CInternalParameterNode::getVisibility() const
{
    return readMeta(m_camera, m_name, visibilityUndefined,
                    [](const SAccess& a) { return mapVisibility(arv_gc_feature_node_get_visibility(feature(a))); });
}

CInternalParameterNode::ENameSpace CInternalParameterNode::getNameSpace() const
{
    return readMeta(m_camera, m_name, nameSpaceUndefined,
                    [](const SAccess& a) { return mapNameSpace(arv_gc_feature_node_get_name_space(feature(a))); });
}

CString CInternalParameterNode::getName() const
{
    return m_name;
}

CString CInternalParameterNode::getDisplayName() const
{
    return readMeta(m_camera, m_name, m_name, [this](const SAccess& a) {
        const char* text = arv_gc_feature_node_get_display_name(feature(a));
        return text && *text ? CString(text) : m_name;
    });
}

CString CInternalParameterNode::getDescription() const
{
    return readMeta(m_camera, m_name, CString(),
                    [](const SAccess& a) { return CString(arv_gc_feature_node_get_description(feature(a))); });
}

CString CInternalParameterNode::getToolTip() const
{
    return readMeta(m_camera, m_name, CString(),
                    [](const SAccess& a) { return CString(arv_gc_feature_node_get_tooltip(feature(a))); });
}

bool CInternalParameterNode::getUnit(CString& unit) const
{
    unit.clear();
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    const char* text = nullptr;
    const EFeatureType type = typeOf(a.node);
    if (type == featureTypeInteger && ARV_IS_GC_INTEGER(a.node))
        text = arv_gc_integer_get_unit(ARV_GC_INTEGER(a.node));
    else if (type == featureTypeFloat && ARV_IS_GC_FLOAT(a.node))
        text = arv_gc_float_get_unit(ARV_GC_FLOAT(a.node));
    clearLastError();
    if (!text || !*text)
        return false;
    unit = text;
    return true;
}

TVector<CString> CInternalParameterNode::getSelectorsName() const
{
    TVector<CString> names;
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return names;
    if (std::shared_ptr<CNodeMap> map = a.camera->nodeMap())
        for (const std::string& s : map->selectorsOf(m_name.str()))
            names.push_back(s);
    clearLastError();
    return names;
}

TVector<CString> CInternalParameterNode::getSelectedName() const
{
    TVector<CString> names;
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return names;
    if (ARV_IS_GC_SELECTOR(a.node) && arv_gc_selector_is_selector(ARV_GC_SELECTOR(a.node))) {
        for (const GSList* it = arv_gc_selector_get_selected_features(ARV_GC_SELECTOR(a.node)); it; it = it->next)
            if (it->data && ARV_IS_GC_FEATURE_NODE(it->data))
                names.push_back(arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(it->data)));
    }
    clearLastError();
    return names;
}

bool CInternalParameterNode::getChildren(TVector<TSharedPtr<CInternalParameterNode>>& children) const
{
    // The list is filled last: the caller may pass the list that holds
    // this very node.
    TVector<TSharedPtr<CInternalParameterNode>> found;
    {
        SAccess a;
        if (!resolve(m_camera, m_name, a)) {
            const int code = getLastError();
            const std::string detail = m_name.str();
            children.clear();
            setLastError(code, detail.c_str());
            return false;
        }
        if (ARV_IS_GC_CATEGORY(a.node)) {
            ArvGc* gc = arv_gc_node_get_genicam(a.node);
            for (const GSList* it = arv_gc_category_get_features(ARV_GC_CATEGORY(a.node)); it; it = it->next) {
                const char* child = static_cast<const char*>(it->data);
                if (child && gc && arv_gc_get_node(gc, child))
                    found.push_back(std::make_shared<CInternalParameterNode>(m_camera, child));
            }
        }
    }
    clearLastError();
    children.swap(found);
    return true;
}

// ---- Integer ------------------------------------------------------------

bool CInternalParameterNode::getIntValue(long& value) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_INTEGER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an integer");
    GError* e = nullptr;
    const gint64 v = arv_gc_integer_get_value(ARV_GC_INTEGER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    value = long(v);
    clearLastError();
    return true;
}

bool CInternalParameterNode::setIntValue(long value)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_INTEGER(a.node) || ARV_IS_GC_ENUMERATION(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an integer");
    ArvGcInteger* node = ARV_GC_INTEGER(a.node);
    GError* e = nullptr;
    const gint64 min = arv_gc_integer_get_min(node, &e);
    const gint64 max = e ? 0 : arv_gc_integer_get_max(node, &e);
    const gint64 inc = e ? 1 : arv_gc_integer_get_inc(node, &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    char text[128];
    if (value < min || value > max) {
        std::snprintf(text, sizeof(text), "%ld outside [%" PRId64 ", %" PRId64 "]", value, min, max);
        return failWith(ERR_OUT_OF_RANGE, m_name, text);
    }
    if (inc > 1 && (gint64(value) - min) % inc != 0) {
        std::snprintf(text, sizeof(text), "%ld is not %" PRId64 " plus a multiple of %" PRId64, value, min, inc);
        return failWith(ERR_OUT_OF_RANGE, m_name, text);
    }
    arv_gc_integer_set_value(node, value, &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getIntMaxMin(long& max, long& min) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_INTEGER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an integer");
    GError* e = nullptr;
    const gint64 lo = arv_gc_integer_get_min(ARV_GC_INTEGER(a.node), &e);
    const gint64 hi = e ? 0 : arv_gc_integer_get_max(ARV_GC_INTEGER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    min = long(lo);
    max = long(hi);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getIntIncrement(long& inc) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_INTEGER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an integer");
    GError* e = nullptr;
    const gint64 v = arv_gc_integer_get_inc(ARV_GC_INTEGER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    inc = v > 0 ? long(v) : 1;
    clearLastError();
    return true;
}

// ---- Float --------------------------------------------------------------

namespace {

bool floatRange(ArvGcNode* node, double& min, double& max, GError** e)
{
    min = arv_gc_float_get_min(ARV_GC_FLOAT(node), e);
    if (*e)
        return false;
    max = arv_gc_float_get_max(ARV_GC_FLOAT(node), e);
    if (*e)
        return false;
    if (min > max)   // a converter with a decreasing formula
        std::swap(min, max);
    return true;
}

bool hasFloatIncrement(ArvGcNode* node)
{
    return property(node, ARV_GC_PROPERTY_NODE_TYPE_INCREMENT) || property(node, ARV_GC_PROPERTY_NODE_TYPE_P_INCREMENT);
}

} // namespace

bool CInternalParameterNode::getFloatValue(double& value) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_FLOAT(a.node) || typeOf(a.node) != featureTypeFloat)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a float");
    GError* e = nullptr;
    const double v = arv_gc_float_get_value(ARV_GC_FLOAT(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    value = v;
    clearLastError();
    return true;
}

bool CInternalParameterNode::setFloatValue(double value)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_FLOAT(a.node) || typeOf(a.node) != featureTypeFloat)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a float");
    if (!std::isfinite(value))
        return failWith(ERR_OUT_OF_RANGE, m_name, "not a number");
    GError* e = nullptr;
    double min = 0, max = 0;
    if (!floatRange(a.node, min, max, &e))
        return fail(e, ERR_READ_FAILED, m_name);
    // Tolerate rounding in the last digits of the limits.
    const double slack = (std::fabs(min) + std::fabs(max)) * 1e-12;
    if (value < min - slack || value > max + slack) {
        char text[128];
        std::snprintf(text, sizeof(text), "%g outside [%g, %g]", value, min, max);
        return failWith(ERR_OUT_OF_RANGE, m_name, text);
    }
    value = std::min(std::max(value, min), max);
    arv_gc_float_set_value(ARV_GC_FLOAT(a.node), value, &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getFloatMaxMin(double& max, double& min) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_FLOAT(a.node) || typeOf(a.node) != featureTypeFloat)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a float");
    GError* e = nullptr;
    if (!floatRange(a.node, min, max, &e))
        return fail(e, ERR_READ_FAILED, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getFloatIncrement(double& inc) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_FLOAT(a.node) || typeOf(a.node) != featureTypeFloat)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a float");
    if (!hasFloatIncrement(a.node))
        return failWith(ERR_NOT_SUPPORTED, m_name, "no increment");
    GError* e = nullptr;
    const double v = arv_gc_float_get_inc(ARV_GC_FLOAT(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    inc = v;
    clearLastError();
    return true;
}

bool CInternalParameterNode::getFloatDisplayPrecision(long& precision) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_FLOAT(a.node) || typeOf(a.node) != featureTypeFloat)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a float");
    precision = long(arv_gc_float_get_display_precision(ARV_GC_FLOAT(a.node)));
    clearLastError();
    return true;
}

// ---- Boolean ------------------------------------------------------------

bool CInternalParameterNode::getBoolValue(bool& value) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_BOOLEAN(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a boolean");
    GError* e = nullptr;
    const gboolean v = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    value = v != FALSE;
    clearLastError();
    return true;
}

bool CInternalParameterNode::setBoolValue(bool value)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_BOOLEAN(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a boolean");
    GError* e = nullptr;
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(a.node), value, &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

// ---- String -------------------------------------------------------------

bool CInternalParameterNode::getStringValue(CString& value) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_STRING(a.node) || typeOf(a.node) != featureTypeString)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a string");
    GError* e = nullptr;
    const char* v = arv_gc_string_get_value(ARV_GC_STRING(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    value = v;
    clearLastError();
    return true;
}

bool CInternalParameterNode::setStringValue(const CString& value)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_STRING(a.node) || typeOf(a.node) != featureTypeString)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a string");
    GError* e = nullptr;
    const gint64 maxLength = arv_gc_string_get_max_length(ARV_GC_STRING(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    if (maxLength > 0 && gint64(value.size()) > maxLength) {
        char text[96];
        std::snprintf(text, sizeof(text), "%zu characters, at most %" PRId64, value.size(), maxLength);
        return failWith(ERR_OUT_OF_RANGE, m_name, text);
    }
    arv_gc_string_set_value(ARV_GC_STRING(a.node), value.c_str(), &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getMaxStringLen(unsigned int& len) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_STRING(a.node) || typeOf(a.node) != featureTypeString)
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a string");
    GError* e = nullptr;
    const gint64 v = arv_gc_string_get_max_length(ARV_GC_STRING(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    len = v > 0 ? unsigned(v) : 0;
    clearLastError();
    return true;
}

// ---- Enumeration --------------------------------------------------------

bool CInternalParameterNode::getEnumValue(unsigned long& value) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_ENUMERATION(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an enumeration");
    GError* e = nullptr;
    const gint64 v = arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    value = static_cast<unsigned long>(v);
    clearLastError();
    return true;
}

bool CInternalParameterNode::setEnumValue(unsigned long value)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_ENUMERATION(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an enumeration");
    GError* e = nullptr;
    bool known = false;
    for (ArvGcFeatureNode* entry : enumEntries(a.node)) {
        const gint64 v = arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), &e);
        g_clear_error(&e);
        if (static_cast<unsigned long>(v) != value)
            continue;
        known = true;
        const bool available = arv_gc_feature_node_is_available(entry, &e);
        g_clear_error(&e);
        if (!available)
            return failWith(ERR_NOT_AVAILABLE, m_name, entrySymbol(entry, m_name.c_str()));
        break;
    }
    if (!known) {
        char text[64];
        std::snprintf(text, sizeof(text), "no entry with the value %lu", value);
        return failWith(ERR_OUT_OF_RANGE, m_name, text);
    }
    arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(a.node), gint64(value), &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::setEnumValueBySymbol(const CString& symbol)
{
    gint64 value = 0;
    {
        SAccess a;
        if (!resolve(m_camera, m_name, a))
            return false;
        if (!ARV_IS_GC_ENUMERATION(a.node))
            return failWith(ERR_TYPE_MISMATCH, m_name, "not an enumeration");
        bool found = false;
        for (ArvGcFeatureNode* entry : enumEntries(a.node)) {
            if (entrySymbol(entry, m_name.c_str()) != symbol.str())
                continue;
            GError* e = nullptr;
            value = arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), &e);
            if (e)
                return fail(e, ERR_READ_FAILED, m_name);
            found = true;
            break;
        }
        if (!found)
            return failWith(ERR_OUT_OF_RANGE, m_name, "no entry " + symbol.str());
    }
    return setEnumValue(static_cast<unsigned long>(value));
}

bool CInternalParameterNode::getEnumEntry(TVector<SEnumEntry>& entries) const
{
    entries.clear();
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_ENUMERATION(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not an enumeration");
    for (ArvGcFeatureNode* entry : enumEntries(a.node)) {
        SEnumEntry out;
        GError* e = nullptr;
        out.symbol = entrySymbol(entry, m_name.c_str());
        out.value = static_cast<unsigned long>(arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), &e));
        g_clear_error(&e);
        const char* display = arv_gc_feature_node_get_display_name(entry);
        out.displayName = display && *display ? CString(display) : out.symbol;
        out.available = arv_gc_feature_node_is_implemented(entry, &e) && arv_gc_feature_node_is_available(entry, &e);
        if (e) {
            out.available = false;
            g_clear_error(&e);
        }
        out.visibility = mapVisibility(arv_gc_feature_node_get_visibility(entry));
        out.nameSpace = mapNameSpace(arv_gc_feature_node_get_name_space(entry));
        entries.push_back(out);
    }
    clearLastError();
    return true;
}

bool CEnumNode::getEnumSymbolList(TVector<CString>& symbols) const
{
    symbols.clear();
    TVector<SEnumEntry> entries;
    if (!getEnumEntry(entries))
        return false;
    for (const SEnumEntry& e : entries)
        if (e.available)
            symbols.push_back(e.symbol);
    return true;
}

namespace {

bool valueSymbol(const CInternalParameterNode& node, CString& symbol)
{
    unsigned long value = 0;
    TVector<CInternalParameterNode::SEnumEntry> entries;
    if (!node.getEnumValue(value) || !node.getEnumEntry(entries))
        return false;
    for (const auto& e : entries) {
        if (e.value == value) {
            symbol = e.symbol;
            return true;
        }
    }
    char text[64];
    std::snprintf(text, sizeof(text), "value %lu has no entry", value);
    return failWith(ERR_OUT_OF_RANGE, node.getName(), text);
}

} // namespace

bool CEnumNode::getValueSymbol(CString& symbol) const
{
    return valueSymbol(*this, symbol);
}

// ---- Text form ----------------------------------------------------------

bool CInternalParameterNode::getValueAsString(CString& value) const
{
    const EFeatureType type = getType();
    if (type == featureTypeNone && getLastError() != ERR_OK)
        return false;
    switch (type) {
    case featureTypeInteger: {
        long v = 0;
        if (!getIntValue(v))
            return false;
        const ERepresent r = getRepresentation();
        if (r == representIPV4Address)
            value = Gvcp::ipToString(uint32_t(v));
        else if (r == representMACAddress)
            value = Gvcp::macToString(uint64_t(v));
        else
            value = std::to_string(v);
        return true;
    }
    case featureTypeFloat: {
        double v = 0;
        if (!getFloatValue(v))
            return false;
        value = formatDouble(v);
        return true;
    }
    case featureTypeBool: {
        bool v = false;
        if (!getBoolValue(v))
            return false;
        value = v ? "true" : "false";
        return true;
    }
    case featureTypeString:
        return getStringValue(value);
    case featureTypeEnum:
        return valueSymbol(*this, value);
    case featureTypeRegister: {
        TVector<unsigned char> bytes;
        if (!getRegValue(bytes))
            return false;
        std::string text;
        char hex[3];
        for (unsigned char b : bytes) {
            std::snprintf(hex, sizeof(hex), "%02x", b);
            text += hex;
        }
        value = text;
        return true;
    }
    default:
        return failWith(ERR_NOT_READABLE, m_name, "no value");
    }
}

bool CInternalParameterNode::setValueFromString(const CString& value)
{
    const EFeatureType type = getType();
    if (type == featureTypeNone && getLastError() != ERR_OK)
        return false;
    const char* text = value.c_str();
    char* end = nullptr;
    switch (type) {
    case featureTypeInteger: {
        uint32_t ip = 0;
        uint64_t mac = 0;
        const ERepresent r = getRepresentation();
        if (r == representIPV4Address && std::strchr(text, '.') && Gvcp::parseIp(text, ip))
            return setIntValue(long(ip));
        if (r == representMACAddress && (std::strchr(text, ':') || std::strchr(text, '-')) && Gvcp::parseMac(text, mac))
            return setIntValue(long(mac));
        const long long v = std::strtoll(text, &end, 0);
        if (end == text || *end)
            return failWith(ERR_INVALID_PARAMETER, m_name, "not an integer: " + value.str());
        return setIntValue(long(v));
    }
    case featureTypeFloat: {
        const double v = std::strtod(text, &end);
        if (end == text || *end)
            return failWith(ERR_INVALID_PARAMETER, m_name, "not a number: " + value.str());
        return setFloatValue(v);
    }
    case featureTypeBool: {
        std::string s = value.str();
        for (char& c : s)
            c = char(std::tolower(static_cast<unsigned char>(c)));
        if (s == "true" || s == "1" || s == "on")
            return setBoolValue(true);
        if (s == "false" || s == "0" || s == "off")
            return setBoolValue(false);
        return failWith(ERR_INVALID_PARAMETER, m_name, "not a boolean: " + value.str());
    }
    case featureTypeString:
        return setStringValue(value);
    case featureTypeEnum:
        return setEnumValueBySymbol(value);
    case featureTypeRegister: {
        const std::string s = value.str();
        if (s.size() % 2 != 0)
            return failWith(ERR_INVALID_PARAMETER, m_name, "odd number of hex digits");
        TVector<unsigned char> bytes;
        for (size_t i = 0; i < s.size(); i += 2) {
            const std::string pair = s.substr(i, 2);
            const unsigned long b = std::strtoul(pair.c_str(), &end, 16);
            if (*end)
                return failWith(ERR_INVALID_PARAMETER, m_name, "not hexadecimal: " + s);
            bytes.push_back(static_cast<unsigned char>(b));
        }
        return setRegValue(bytes);
    }
    case featureTypeCommand:
        return execute();
    default:
        return failWith(ERR_NOT_WRITABLE, m_name, "no value");
    }
}

// ---- Register -----------------------------------------------------------

bool CInternalParameterNode::getRegLength(long& length) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_REGISTER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a register");
    GError* e = nullptr;
    const guint64 v = arv_gc_register_get_length(ARV_GC_REGISTER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    length = long(v);
    clearLastError();
    return true;
}

bool CInternalParameterNode::getRegValue(TVector<unsigned char>& bytes) const
{
    bytes.clear();
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkRead(a, m_name))
        return false;
    if (!ARV_IS_GC_REGISTER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a register");
    GError* e = nullptr;
    const guint64 length = arv_gc_register_get_length(ARV_GC_REGISTER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    if (length > 16u * 1024 * 1024)
        return failWith(ERR_READ_FAILED, m_name, "register too long");
    bytes.resize(size_t(length));
    arv_gc_register_get(ARV_GC_REGISTER(a.node), bytes.data(), length, &e);
    if (e) {
        bytes.clear();
        return fail(e, ERR_READ_FAILED, m_name);
    }
    clearLastError();
    return true;
}

bool CInternalParameterNode::setRegValue(const TVector<unsigned char>& bytes)
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_REGISTER(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a register");
    GError* e = nullptr;
    const guint64 length = arv_gc_register_get_length(ARV_GC_REGISTER(a.node), &e);
    if (e)
        return fail(e, ERR_READ_FAILED, m_name);
    if (bytes.size() != length) {
        char text[64];
        std::snprintf(text, sizeof(text), "%zu bytes given, the register has %" PRIu64, bytes.size(),
                      uint64_t(length));
        return failWith(ERR_INVALID_PARAMETER, m_name, text);
    }
    arv_gc_register_set(ARV_GC_REGISTER(a.node), bytes.data(), length, &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

// ---- Command ------------------------------------------------------------

bool CInternalParameterNode::execute()
{
    SAccess a;
    if (!resolve(m_camera, m_name, a) || !checkWrite(a, m_name))
        return false;
    if (!ARV_IS_GC_COMMAND(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a command");
    GError* e = nullptr;
    arv_gc_command_execute(ARV_GC_COMMAND(a.node), &e);
    if (e)
        return fail(e, ERR_WRITE_FAILED, m_name);
    publishWrite(a, m_camera, m_name);
    clearLastError();
    return true;
}

bool CInternalParameterNode::isDone(bool& done) const
{
    SAccess a;
    if (!resolve(m_camera, m_name, a))
        return false;
    if (!ARV_IS_GC_COMMAND(a.node))
        return failWith(ERR_TYPE_MISMATCH, m_name, "not a command");
    // A command is in progress while its value reads back as the command
    // value; one whose value cannot be read completes at once.
    ArvGcPropertyNode* valueProp = property(a.node, ARV_GC_PROPERTY_NODE_TYPE_P_VALUE);
    if (!valueProp)
        valueProp = property(a.node, ARV_GC_PROPERTY_NODE_TYPE_VALUE);
    ArvGcPropertyNode* commandProp = property(a.node, ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE);
    if (!commandProp)
        commandProp = property(a.node, ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE);
    done = true;
    if (valueProp && commandProp) {
        ArvGcNode* target = arv_gc_property_node_get_linked_node(valueProp);
        const bool readable = !target || !ARV_IS_GC_FEATURE_NODE(target) ||
                              arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(target)) !=
                                  ARV_GC_ACCESS_MODE_WO;
        if (readable) {
            GError* e = nullptr;
            const gint64 current = arv_gc_property_node_get_int64(valueProp, &e);
            if (e)
                return fail(e, ERR_READ_FAILED, m_name);
            const gint64 command = arv_gc_property_node_get_int64(commandProp, &e);
            if (e)
                return fail(e, ERR_READ_FAILED, m_name);
            done = current != command;
        }
    }
    clearLastError();
    return true;
}

bool CInternalParameterNode::isDone() const
{
    bool done = true;
    return isDone(done) ? done : true;
}

} // namespace GenICam
} // namespace Vorlen
