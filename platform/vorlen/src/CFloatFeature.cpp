#include "CFloatFeature.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "CNodeAccess.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

bool CFloatFeature::get(double& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kFloat);
    return a && a.read(value, [&a](GError** e) { return arv_gc_float_get_value(ARV_GC_FLOAT(a.node()), e); });
}

bool CFloatFeature::set(double value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kFloat);
    if (!a)
        return false;
    if (!std::isfinite(value))
        return a.fail(ERR_OUT_OF_RANGE, "not a number");
    double min = 0, max = 0;
    if (!bounds(a, max, min))
        return false;
    // Tolerate rounding in the last digits of the limits.
    const double slack = (std::fabs(min) + std::fabs(max)) * 1e-12;
    if (value < min - slack || value > max + slack) {
        char text[128];
        std::snprintf(text, sizeof(text), "%g outside [%g, %g]", value, min, max);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    value = std::min(std::max(value, min), max);
    return a.write([&a, value](GError** e) { arv_gc_float_set_value(ARV_GC_FLOAT(a.node()), value, e); });
}

bool CFloatFeature::range(double& max, double& min) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kFloat);
    return a && bounds(a, max, min);
}

bool CFloatFeature::increment(double& inc) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kFloat);
    if (!a)
        return false;
    if (!CNodeAccess::property(a.node(), ARV_GC_PROPERTY_NODE_TYPE_INCREMENT) &&
        !CNodeAccess::property(a.node(), ARV_GC_PROPERTY_NODE_TYPE_P_INCREMENT))
        return a.fail(ERR_NOT_SUPPORTED, "no increment");
    return a.read(inc, [&a](GError** e) { return arv_gc_float_get_inc(ARV_GC_FLOAT(a.node()), e); });
}

bool CFloatFeature::displayPrecision(long& precision) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kFloat);
    if (!a)
        return false;
    precision = long(arv_gc_float_get_display_precision(ARV_GC_FLOAT(a.node())));
    return a.succeed();
}

bool CFloatFeature::bounds(const CNodeAccess& a, double& max, double& min)
{
    ArvGcFloat* node = ARV_GC_FLOAT(a.node());
    if (!a.read(min, [node](GError** e) { return arv_gc_float_get_min(node, e); }) ||
        !a.read(max, [node](GError** e) { return arv_gc_float_get_max(node, e); }))
        return false;
    if (min > max)   // a converter with a decreasing formula
        std::swap(min, max);
    return true;
}

} // namespace GenICam
} // namespace Vorlen
