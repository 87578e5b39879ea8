#include "CIntegerFeature.h"

#include <cinttypes>
#include <cstdio>

#include "CNodeAccess.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

bool CIntegerFeature::get(long& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kInteger);
    return a && a.read(value, [&a](GError** e) { return arv_gc_integer_get_value(ARV_GC_INTEGER(a.node()), e); });
}

bool CIntegerFeature::set(long value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kPlainInteger);
    long max = 0, min = 0, inc = 1;
    if (!a || !bounds(a, max, min) ||
        !a.read(inc, [&a](GError** e) { return arv_gc_integer_get_inc(ARV_GC_INTEGER(a.node()), e); }))
        return false;
    char text[128];
    if (value < min || value > max) {
        std::snprintf(text, sizeof(text), "%ld outside [%ld, %ld]", value, min, max);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    if (inc > 1 && (value - min) % inc != 0) {
        std::snprintf(text, sizeof(text), "%ld is not %ld plus a multiple of %ld", value, min, inc);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    return a.write([&a, value](GError** e) { arv_gc_integer_set_value(ARV_GC_INTEGER(a.node()), value, e); });
}

bool CIntegerFeature::range(long& max, long& min) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kInteger);
    return a && bounds(a, max, min) && a.succeed();
}

bool CIntegerFeature::increment(long& inc) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kInteger);
    if (!a || !a.read(inc, [&a](GError** e) { return arv_gc_integer_get_inc(ARV_GC_INTEGER(a.node()), e); }))
        return false;
    inc = inc > 0 ? inc : 1;
    return true;
}

bool CIntegerFeature::bounds(const CNodeAccess& a, long& max, long& min)
{
    ArvGcInteger* node = ARV_GC_INTEGER(a.node());
    return a.read(min, [node](GError** e) { return arv_gc_integer_get_min(node, e); }) &&
           a.read(max, [node](GError** e) { return arv_gc_integer_get_max(node, e); });
}

} // namespace GenICam
} // namespace Vorlen
