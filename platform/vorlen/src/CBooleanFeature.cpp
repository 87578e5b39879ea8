#include "CBooleanFeature.h"

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

bool isBoolean(ArvGcNode* node)
{
    return ARV_IS_GC_BOOLEAN(node);
}

const CNodeAccess::SKind kBoolean{isBoolean, "not a boolean"};

} // namespace

bool CBooleanFeature::get(bool& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &kBoolean);
    if (!a)
        return false;
    GError* e = nullptr;
    const gboolean v = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(a.node()), &e);
    if (!a.check(e, ERR_READ_FAILED))
        return false;
    value = v != FALSE;
    return a.succeed();
}

bool CBooleanFeature::set(bool value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &kBoolean);
    if (!a)
        return false;
    GError* e = nullptr;
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(a.node()), value, &e);
    return a.check(e, ERR_WRITE_FAILED) && a.written();
}

} // namespace GenICam
} // namespace Vorlen
