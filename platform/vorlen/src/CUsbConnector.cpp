#include "CUsbConnector.h"

#include "AravisSystem.h"
#include "Tavlog4cpp/TavLogMacros.h"
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
    if (!camera) {
        const std::string text = error && error->message ? error->message : "";
        setLastError(ERR_IO, text.c_str());
        LOG_ERROR("connect %s: %s", info.key.c_str(), text.c_str());
        g_clear_error(&error);
        return false;
    }
    out.camera = camera;
    out.hostIp = 0;
    out.permission = permission;
    return true;
}

} // namespace GenICam
} // namespace Vorlen
