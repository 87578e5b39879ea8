#include "CFloatFeature.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

bool isFloat(ArvGcNode* node)
{
    // Integers offer Aravis' float interface too; they are not floats here.
    return ARV_IS_GC_FLOAT(node) && CNodeAccess::typeOf(node) == CInternalParameterNode::featureTypeFloat;
}

const CNodeAccess::SKind kFloat{isFloat, "not a float"};

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

} // namespace

bool CFloatFeature::get(double& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &kFloat);
    if (!a)
        return false;
    GError* e = nullptr;
    const double v = arv_gc_float_get_value(ARV_GC_FLOAT(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    value = v;
    return a.succeed();
}

bool CFloatFeature::set(double value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &kFloat);
    if (!a)
        return false;
    if (!std::isfinite(value))
        return a.fail(ERR_OUT_OF_RANGE, "not a number");
    GError* e = nullptr;
    double min = 0, max = 0;
    floatRange(a.node(), min, max, &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    const double slack = (std::fabs(min) + std::fabs(max)) * 1e-12;
    if (value < min - slack || value > max + slack) {
        char text[128];
        std::snprintf(text, sizeof(text), "%g outside [%g, %g]", value, min, max);
        return a.fail(ERR_OUT_OF_RANGE, text);
    }
    arv_gc_float_set_value(ARV_GC_FLOAT(a.node()), std::min(std::max(value, min), max), &e);
    return a.check(e, ERR_WRITE_FAILED) && a.written();
}

bool CFloatFeature::range(double& max, double& min) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kFloat);
    if (!a)
        return false;
    GError* e = nullptr;
    floatRange(a.node(), min, max, &e);
    return a.check(e, ERR_READ_FAILED) && a.succeed();
}

bool CFloatFeature::increment(double& inc) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kFloat);
    if (!a)
        return false;
    if (!CNodeAccess::property(a.node(), ARV_GC_PROPERTY_NODE_TYPE_INCREMENT) &&
        !CNodeAccess::property(a.node(), ARV_GC_PROPERTY_NODE_TYPE_P_INCREMENT))
        return a.fail(ERR_NOT_SUPPORTED, "no increment");
    GError* e = nullptr;
    const double v = arv_gc_float_get_inc(ARV_GC_FLOAT(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    inc = v;
    return a.succeed();
}

bool CFloatFeature::displayPrecision(long& precision) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &kFloat);
    if (!a)
        return false;
    precision = long(arv_gc_float_get_display_precision(ARV_GC_FLOAT(a.node())));
    return a.succeed();
}

} // namespace GenICam
} // namespace Vorlen
