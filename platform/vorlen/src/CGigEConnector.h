#pragma once
// Opens a GigE Vision camera: a quick probe first (a camera that does not
// answer fails at once, before Aravis' own retries), then Aravis' device
// with the privilege asked for.
#include "CCameraConnector.h"

namespace Vorlen {
namespace GenICam {

class CGigEConnector : public CCameraConnector
{
public:
    bool open(const CAravisCamera::SDiscoveryInfo& info, ECameraAccessPermission permission,
              unsigned int answerTimeoutMs, SConnection& out) override;

private:
    // Aravis' device for the camera, control taken unless only monitoring.
    ArvDevice* openDevice(const CAravisCamera::SDiscoveryInfo& info, uint32_t hostIp);
    // Adjusts the privilege held to the one asked for; returns what is held.
    ECameraAccessPermission settlePrivilege(ArvDevice* device, const CAravisCamera::SDiscoveryInfo& info,
                                            ECameraAccessPermission permission);
};

} // namespace GenICam
} // namespace Vorlen
