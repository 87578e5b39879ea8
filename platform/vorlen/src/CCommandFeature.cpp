#include "CCommandFeature.h"

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

// The property given directly or by reference, or null.
ArvGcPropertyNode* either(ArvGcNode* node, ArvGcPropertyNodeType linked, ArvGcPropertyNodeType direct)
{
    ArvGcPropertyNode* p = CNodeAccess::property(node, linked);
    return p ? p : CNodeAccess::property(node, direct);
}

} // namespace

bool CCommandFeature::execute() const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kCommand);
    return a && a.write([&a](GError** e) { arv_gc_command_execute(ARV_GC_COMMAND(a.node()), e); });
}

bool CCommandFeature::isDone(bool& done) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kCommand);
    if (!a)
        return false;
    ArvGcPropertyNode* valueProp =
        either(a.node(), ARV_GC_PROPERTY_NODE_TYPE_P_VALUE, ARV_GC_PROPERTY_NODE_TYPE_VALUE);
    ArvGcPropertyNode* commandProp =
        either(a.node(), ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE, ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE);
    done = true;
    if (!valueProp || !commandProp)
        return a.succeed();
    ArvGcNode* target = arv_gc_property_node_get_linked_node(valueProp);
    const bool readable = !target || !ARV_IS_GC_FEATURE_NODE(target) ||
                          arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(target)) !=
                              ARV_GC_ACCESS_MODE_WO;
    if (!readable)
        return a.succeed();
    int64_t current = 0, command = 0;
    if (!a.read(current, [valueProp](GError** e) { return arv_gc_property_node_get_int64(valueProp, e); }) ||
        !a.read(command, [commandProp](GError** e) { return arv_gc_property_node_get_int64(commandProp, e); }))
        return false;
    done = current != command;
    return true;
}

} // namespace GenICam
} // namespace Vorlen
