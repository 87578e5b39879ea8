#include "CGigEConnector.h"

#include <mutex>

#include "Gvcp.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

constexpr uint32_t kCcpExclusive = 0x1;

// The local address Aravis talks to the camera from.
uint32_t interfaceIp(ArvGvDevice* device)
{
    uint32_t ip = 0;
    GSocketAddress* local = arv_gv_device_get_interface_address(device);
    if (local && G_IS_INET_SOCKET_ADDRESS(local)) {
        gchar* text = g_inet_address_to_string(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(local)));
        Gvcp::parseIp(text, ip);
        g_free(text);
    }
    return ip;
}

} // namespace

bool CGigEConnector::open(const CAravisCamera::SDiscoveryInfo& info, ECameraAccessPermission permission,
                          unsigned int answerTimeoutMs, SConnection& out)
{
    uint32_t cameraIp = 0;
    if (!Gvcp::parseIp(info.ipAddress.c_str(), cameraIp)) {
        setLastError(ERR_INVALID_PARAMETER, "camera address");
        return false;
    }
    Gvcp::SHostInterface host;
    uint32_t hostIp = Gvcp::hostInterfaceFor(cameraIp, host) ? host.ip : 0;

    // A privilege held by another host is not judged here: the camera
    // itself refuses the take-over while that host's heartbeat lasts, and
    // grants it once the heartbeat has expired.
    uint32_t ccp = 0;
    if (Gvcp::readRegister(cameraIp, Gvcp::REG_CCP, ccp, answerTimeoutMs) == ERR_TIMEOUT) {
        setLastError(ERR_TIMEOUT, info.ipAddress.c_str());
        LOG_ERROR("connect %s: no answer from %s", info.key.c_str(), info.ipAddress.c_str());
        return false;
    }

    ArvDevice* device = openDevice(info, hostIp);
    if (!device)
        return false;
    ArvGvDevice* gvDevice = ARV_GV_DEVICE(device);
    if (permission != accessPermissionMonitor && !arv_gv_device_is_controller(gvDevice)) {
        g_object_unref(device);
        setLastError(ERR_ACCESS_DENIED, info.key.c_str());
        LOG_ERROR("connect %s: control of the camera was refused", info.key.c_str());
        return false;
    }
    permission = settlePrivilege(device, info, permission);
    if (!hostIp)
        hostIp = interfaceIp(gvDevice);

    GError* error = nullptr;
    ArvCamera* camera = arv_camera_new_with_device(device, &error);
    g_object_unref(device);
    if (!camera)
        return failed(ERR_IO, info.key, error);
    out.camera = camera;
    out.hostIp = hostIp;
    out.permission = permission;
    return true;
}

ArvDevice* CGigEConnector::openDevice(const CAravisCamera::SDiscoveryInfo& info, uint32_t hostIp)
{
    GInetAddress* interfaceAddress = hostIp ? g_inet_address_new_from_string(Gvcp::ipToString(hostIp).c_str())
                                            : g_inet_address_new_any(G_SOCKET_FAMILY_IPV4);
    GInetAddress* deviceAddress = g_inet_address_new_from_string(info.ipAddress.c_str());
    // Aravis parses the camera's description while it builds the device,
    // and its parser is not safe on two threads at once: cameras that
    // connect side by side take turns here.
    static std::mutex parseMutex;
    GError* error = nullptr;
    ArvDevice* device = nullptr;
    {
        std::lock_guard<std::mutex> parseLock(parseMutex);
        device = arv_gv_device_new(interfaceAddress, deviceAddress, &error);
    }
    g_object_unref(interfaceAddress);
    g_object_unref(deviceAddress);
    if (!device)
        failed(ERR_TIMEOUT, info.key, error);
    return device;
}

ECameraAccessPermission CGigEConnector::settlePrivilege(ArvDevice* device, const CAravisCamera::SDiscoveryInfo& info,
                                                        ECameraAccessPermission permission)
{
    ArvGvDevice* gvDevice = ARV_GV_DEVICE(device);
    if (permission == accessPermissionExclusive) {
        GError* error = nullptr;
        if (!arv_device_write_register(device, Gvcp::REG_CCP, kCcpExclusive, &error)) {
            LOG_WARN("connect %s: exclusive access refused, keeping control: %s", info.key.c_str(),
                     error && error->message ? error->message : "");
            g_clear_error(&error);
            return accessPermissionControl;
        }
    } else if (permission == accessPermissionMonitor && arv_gv_device_is_controller(gvDevice)) {
        arv_gv_device_leave_control(gvDevice, nullptr);
    }
    return permission;
}

} // namespace GenICam
} // namespace Vorlen
