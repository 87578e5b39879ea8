#include "CUsbConnector.h"

#include "AravisSystem.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

bool CUsbConnector::open(const CAravisCamera::SDiscoveryInfo& info, ECameraAccessPermission permission,
                         unsigned int, SConnection& out)
{
    GError* error = nullptr;
    ArvCamera* camera = nullptr;
    {
        std::lock_guard<std::mutex> systemLock(aravisSystemMutex());
        camera = arv_camera_new(info.arvId.c_str(), &error);
    }
    if (!camera)
        return failed(ERR_IO, info.key, error);
    out.camera = camera;
    out.hostIp = 0;
    out.permission = permission;
    return true;
}

} // namespace GenICam
} // namespace Vorlen
