#include "CBooleanFeature.h"

#include "CNodeAccess.h"

namespace Vorlen {
namespace GenICam {

bool CBooleanFeature::get(bool& value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kBoolean);
    return a && a.read(value, [&a](GError** e) {
               return arv_gc_boolean_get_value(ARV_GC_BOOLEAN(a.node()), e) != FALSE;
           });
}

bool CBooleanFeature::set(bool value) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kBoolean);
    return a && a.write([&a, value](GError** e) { arv_gc_boolean_set_value(ARV_GC_BOOLEAN(a.node()), value, e); });
}

} // namespace GenICam
} // namespace Vorlen
