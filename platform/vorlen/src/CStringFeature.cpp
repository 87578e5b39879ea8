#include "CStringFeature.h"

#include <cinttypes>
#include <cstdio>

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

bool isString(ArvGcNode* node)
{
    return ARV_IS_GC_STRING(node) && CNodeAccess::typeOf(node) == CInternalParameterNode::featureTypeString;
}

const CNodeAccess::SKind kString{isString, "not a string"};

} // namespace

bool CStringFeature::get(CString& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &kString);
    if (!a)
        return false;
    GError* e = nullptr;
    const char* v = arv_gc_string_get_value(ARV_GC_STRING(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    value = v;
    return a.succeed();
}

bool CStringFeature::set(const CString& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &kString);
    if (!a)
        return false;
    GError* e = nullptr;
    const gint64 maxLength = arv_gc_string_get_max_length(ARV_GC_STRING(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    if (maxLength > 0 && gint64(value.size()) > maxLength) {
        char text[96];
        std::snprintf(text, sizeof(text), "%zu characters, at most %" PRId64, value.size(), maxLength);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    arv_gc_string_set_value(ARV_GC_STRING(a.node()), value.c_str(), &e);
    return a.check(e, ERR_WRITE_FAILED) && a.written();
}

bool CStringFeature::maxLength(unsigned int& length) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kString);
    if (!a)
        return false;
    GError* e = nullptr;
    const gint64 v = arv_gc_string_get_max_length(ARV_GC_STRING(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    length = v > 0 ? unsigned(v) : 0;
    return a.succeed();
}

} // namespace GenICam
} // namespace Vorlen
