#include "CIntegerFeature.h"

#include <cinttypes>
#include <cstdio>

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

bool isInteger(ArvGcNode* node)
{
    return ARV_IS_GC_INTEGER(node);
}

bool isPlainInteger(ArvGcNode* node)
{
    return ARV_IS_GC_INTEGER(node) && !ARV_IS_GC_ENUMERATION(node);
}

const CNodeAccess::SKind kInteger{isInteger, "not an integer"};
const CNodeAccess::SKind kPlainInteger{isPlainInteger, "not an integer"};

} // namespace

bool CIntegerFeature::get(long& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &kInteger);
    if (!a)
        return false;
    GError* e = nullptr;
    const gint64 v = arv_gc_integer_get_value(ARV_GC_INTEGER(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    value = long(v);
    return a.succeed();
}

bool CIntegerFeature::set(long value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &kPlainInteger);
    if (!a)
        return false;
    ArvGcInteger* node = ARV_GC_INTEGER(a.node());
    GError* e = nullptr;
    const gint64 min = arv_gc_integer_get_min(node, &e);
    const gint64 max = e ? 0 : arv_gc_integer_get_max(node, &e);
    const gint64 inc = e ? 1 : arv_gc_integer_get_inc(node, &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    char text[128];
    if (value < min || value > max) {
        std::snprintf(text, sizeof(text), "%ld outside [%" PRId64 ", %" PRId64 "]", value, min, max);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    if (inc > 1 && (gint64(value) - min) % inc != 0) {
        std::snprintf(text, sizeof(text), "%ld is not %" PRId64 " plus a multiple of %" PRId64, value, min, inc);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    arv_gc_integer_set_value(node, value, &e);
    return a.check(e, ERR_WRITE_FAILED) && a.written();
}

bool CIntegerFeature::range(long& max, long& min) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kInteger);
    if (!a)
        return false;
    GError* e = nullptr;
    const gint64 lo = arv_gc_integer_get_min(ARV_GC_INTEGER(a.node()), &e);
    const gint64 hi = e ? 0 : arv_gc_integer_get_max(ARV_GC_INTEGER(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    min = long(lo);
    max = long(hi);
    return a.succeed();
}

bool CIntegerFeature::increment(long& inc) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kInteger);
    if (!a)
        return false;
    GError* e = nullptr;
    const gint64 v = arv_gc_integer_get_inc(ARV_GC_INTEGER(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    inc = v > 0 ? long(v) : 1;
    return a.succeed();
}

} // namespace GenICam
} // namespace Vorlen
