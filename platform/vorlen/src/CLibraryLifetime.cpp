#include "CLibraryLifetime.h"

#include <atomic>

#include "CBackgroundWork.h"
#include "CCameraRegistry.h"
#include "EventHub.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/GenICam/CSystem.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

namespace {
std::atomic<bool> g_shutDown{false};
}

void CLibraryLifetime::shutdown()
{
    if (g_shutDown.exchange(true))
        return;
    // Cameras first: closing one stops its threads; then the releases the
    // closing may have started, then the delivery of what they published.
    std::vector<CCameraRegistry::CameraPtr> cameras = CCameraRegistry::instance().takeAll();
    for (const CCameraRegistry::CameraPtr& camera : cameras)
        camera->disConnect();
    CBackgroundWork::instance().shutdown();
    EventHub::shutdown();
    LOG_DEBUG("camera library shut down, %zu camera(s) closed", cameras.size());
}

// The public singletons and the entry points of their end.
CSystem& CSystem::getInstance()
{
    static CSystem instance;
    return instance;
}

CInternalSystem& CInternalSystem::getInstance()
{
    static CInternalSystem instance;
    return instance;
}

void CSystem::shutdownInstance() { CLibraryLifetime::shutdown(); }
void CInternalSystem::shutdownInstance() { CLibraryLifetime::shutdown(); }

bool CLibraryLifetime::isShutDown()
{
    return g_shutDown.load();
}

bool CLibraryLifetime::refuse()
{
    if (!isShutDown())
        return false;
    Infra::setLastError(Infra::ERR_INVALID_HANDLE, "the camera library is shut down");
    return true;
}

} // namespace GenICam
} // namespace Vorlen
