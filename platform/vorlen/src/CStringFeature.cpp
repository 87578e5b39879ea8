#include "CStringFeature.h"

#include <cinttypes>
#include <cstdio>

#include "CNodeAccess.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

bool CStringFeature::get(CString& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kString);
    return a && a.read(value, [&a](GError** e) {
               return CString(arv_gc_string_get_value(ARV_GC_STRING(a.node()), e));
           });
}

bool CStringFeature::set(const CString& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kString);
    int64_t maxLength = 0;
    if (!a || !a.read(maxLength, [&a](GError** e) { return arv_gc_string_get_max_length(ARV_GC_STRING(a.node()), e); }))
        return false;
    if (maxLength > 0 && int64_t(value.size()) > maxLength) {
        char text[96];
        std::snprintf(text, sizeof(text), "%zu characters, at most %" PRId64, value.size(), maxLength);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    return a.write([&a, &value](GError** e) { arv_gc_string_set_value(ARV_GC_STRING(a.node()), value.c_str(), e); });
}

bool CStringFeature::maxLength(unsigned int& length) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kString);
    int64_t v = 0;
    if (!a || !a.read(v, [&a](GError** e) { return arv_gc_string_get_max_length(ARV_GC_STRING(a.node()), e); }))
        return false;
    length = v > 0 ? unsigned(v) : 0;
    return true;
}

} // namespace GenICam
} // namespace Vorlen
