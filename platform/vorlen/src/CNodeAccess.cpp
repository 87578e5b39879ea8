#include "CNodeAccess.h"

#include <chrono>
#include <cstring>

#include "EventHub.h"
#include "NodeMap.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using T = CInternalParameterNode;

namespace {

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

bool isValueType(T::EFeatureType t)
{
    return t != T::featureTypeNone && t != T::featureTypeCategory;
}

// ERR_OK when the feature is implemented and available now, else why not.
int presence(ArvGcFeatureNode* f)
{
    GError* e = nullptr;
    int code = ERR_OK;
    if (!arv_gc_feature_node_is_implemented(f, &e))
        code = e ? mapError(e, ERR_READ_FAILED) : ERR_NOT_IMPLEMENTED;
    else if (!arv_gc_feature_node_is_available(f, &e))
        code = e ? mapError(e, ERR_READ_FAILED) : ERR_NOT_AVAILABLE;
    g_clear_error(&e);
    return code;
}

bool isInteger(ArvGcNode* n) { return ARV_IS_GC_INTEGER(n); }
bool isPlainInteger(ArvGcNode* n) { return ARV_IS_GC_INTEGER(n) && !ARV_IS_GC_ENUMERATION(n); }
bool isFloat(ArvGcNode* n) { return ARV_IS_GC_FLOAT(n) && CNodeAccess::typeOf(n) == T::featureTypeFloat; }
bool isBoolean(ArvGcNode* n) { return ARV_IS_GC_BOOLEAN(n); }
bool isString(ArvGcNode* n) { return ARV_IS_GC_STRING(n) && CNodeAccess::typeOf(n) == T::featureTypeString; }
bool isEnumeration(ArvGcNode* n) { return ARV_IS_GC_ENUMERATION(n); }
bool isRegister(ArvGcNode* n) { return ARV_IS_GC_REGISTER(n); }
bool isCommand(ArvGcNode* n) { return ARV_IS_GC_COMMAND(n); }

} // namespace

const CNodeAccess::SKind CNodeAccess::kInteger{isInteger, "not an integer"};
const CNodeAccess::SKind CNodeAccess::kPlainInteger{isPlainInteger, "not an integer"};
const CNodeAccess::SKind CNodeAccess::kFloat{isFloat, "not a float"};
const CNodeAccess::SKind CNodeAccess::kBoolean{isBoolean, "not a boolean"};
const CNodeAccess::SKind CNodeAccess::kString{isString, "not a string"};
const CNodeAccess::SKind CNodeAccess::kEnumeration{isEnumeration, "not an enumeration"};
const CNodeAccess::SKind CNodeAccess::kRegister{isRegister, "not a register"};
const CNodeAccess::SKind CNodeAccess::kCommand{isCommand, "not a command"};

CNodeAccess::CNodeAccess(const Memory::TSharedPtr<ICamera>& camera, const CString& name, EUse use,
                         const SKind* kind)
    : m_cameraPtr(camera), m_name(name)
{
    m_ok = resolve(use, kind);
}

bool CNodeAccess::resolve(EUse use, const SKind* kind)
{
    m_camera = toAravisCamera(m_cameraPtr);
    if (!m_camera)
        return fail(ERR_INVALID_HANDLE);
    if (!m_camera->lockAccess(m_lock))
        return false;
    ArvDevice* device = m_camera->arvDevice();
    if (!device)
        return fail(ERR_NOT_CONNECTED);
    ArvGc* gc = arv_device_get_genicam(device);
    m_node = gc && !m_name.empty() ? arv_gc_get_node(gc, m_name.c_str()) : nullptr;
    if (!m_node || !ARV_IS_GC_FEATURE_NODE(m_node))
        return fail(ERR_NOT_FOUND);
    if (use != useDescribe) {
        const int code = use == useRead ? readability(m_node) : writability(m_node);
        if (code != ERR_OK)
            return fail(code);
    }
    if (kind && !kind->matches(m_node))
        return fail(ERR_TYPE_MISMATCH, kind->mismatch);
    return true;
}

bool CNodeAccess::check(GError*& e, int fallback) const
{
    if (!e)
        return true;
    if (m_camera && m_camera->isLost()) {
        g_clear_error(&e);
        return m_camera->failLost();
    }
    std::string detail = m_name.str();
    if (e->message) {
        detail += ": ";
        detail += e->message;
    }
    setLastError(mapError(e, fallback), detail.c_str());
    g_clear_error(&e);
    return false;
}

bool CNodeAccess::fail(int code, const std::string& more) const
{
    if (m_camera && m_camera->isLost())
        return m_camera->failLost();
    std::string detail = m_name.str();
    if (!more.empty())
        detail += ": " + more;
    setLastError(code, detail.c_str());
    return false;
}

bool CNodeAccess::succeed() const
{
    clearLastError();
    return true;
}

bool CNodeAccess::written() const
{
    std::shared_ptr<CNodeMap> map = m_camera->nodeMap();
    SParamUpdataArg arg;
    arg.isPoll = false;
    arg.timestamp = uint64_t(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                 std::chrono::system_clock::now().time_since_epoch())
                                 .count());
    arg.key = m_cameraPtr->getKey();
    if (map) {
        for (const std::string& n : map->affectedBy(m_name.str()))
            arg.paramNames.push_back(n);
    } else {
        arg.paramNames.push_back(m_name);
    }
    EventHub::publishParamUpdate(m_cameraPtr.get(), arg);
    return succeed();
}

T::EFeatureType CNodeAccess::typeOf(ArvGcNode* node)
{
    const char* tag = arv_dom_node_get_node_name(ARV_DOM_NODE(node));
    if (!tag)
        return T::featureTypeNone;
    static const struct
    {
        const char* tag;
        T::EFeatureType type;
    } table[] = {
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

ArvGcPropertyNode* CNodeAccess::property(ArvGcNode* node, ArvGcPropertyNodeType type)
{
    for (ArvDomNode* c = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); c; c = arv_dom_node_get_next_sibling(c))
        if (ARV_IS_GC_PROPERTY_NODE(c) && arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(c)) == type)
            return ARV_GC_PROPERTY_NODE(c);
    return nullptr;
}

int CNodeAccess::readability(ArvGcNode* node)
{
    return usability(node, false);
}

int CNodeAccess::writability(ArvGcNode* node)
{
    return usability(node, true);
}

int CNodeAccess::usability(ArvGcNode* node, bool forWrite)
{
    const int refused = forWrite ? ERR_NOT_WRITABLE : ERR_NOT_READABLE;
    ArvGcFeatureNode* f = ARV_GC_FEATURE_NODE(node);
    if (!isValueType(typeOf(node)))
        return refused;
    if (const int code = presence(f))
        return code;
    if (forWrite) {
        GError* e = nullptr;
        const bool locked = arv_gc_feature_node_is_locked(f, &e);
        g_clear_error(&e);
        if (locked)
            return refused;
    }
    const ArvGcAccessMode excluded = forWrite ? ARV_GC_ACCESS_MODE_RO : ARV_GC_ACCESS_MODE_WO;
    return arv_gc_feature_node_get_actual_access_mode(f) == excluded ? refused : ERR_OK;
}

} // namespace GenICam
} // namespace Vorlen
