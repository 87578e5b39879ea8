#include <arv.h>

#include "FakeCameraRig.h"

#include "SimCamSetup.h"
#include "Vorlen/GenICam.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

FakeCameraRig::FakeCameraRig() = default;

FakeCameraRig::~FakeCameraRig()
{
    stopAll();
}

int FakeCameraRig::start(const std::string& address, const std::string& serial, const std::string& xmlPath, int width,
                         int height, const std::string& pixelFormat)
{
    m_lastError.clear();
    if (!hasAddress(address)) {
        m_lastError = address + " is not on any local interface (CTest runs each test through scripts/netns.sh, "
                                "in a network namespace with 127.0.0.1 to 127.0.0.5 on loopback)";
        return -1;
    }
    // Each test has a network namespace of its own: whatever holds the port
    // belongs to this test.
    if (!SimCam::controlPortFree(address)) {
        m_lastError = "the GigE Vision control port of " + address + " is taken by another camera of this test";
        return -1;
    }
    const std::string xml = xmlPath.empty() ? defaultXmlPath() : xmlPath;
    if (access(xml.c_str(), R_OK) != 0) {
        m_lastError = "the camera description " + xml + " cannot be read";
        return -1;
    }
    ArvGvFakeCamera* camera = arv_gv_fake_camera_new_full(address.c_str(), serial.c_str(), xml.c_str());
    if (!camera || !arv_gv_fake_camera_is_running(camera)) {
        if (camera)
            g_object_unref(camera);
        m_lastError = "Aravis' simulated camera did not start on " + address;
        return -1;
    }
    ArvFakeCamera* fake = arv_gv_fake_camera_get_fake_camera(camera);
    SimCam::setup(fake, serial);
    if (width > 0)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_WIDTH, uint32_t(width));
    if (height > 0)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_HEIGHT, uint32_t(height));
    if (!pixelFormat.empty()) {
        const uint32_t code = pixelFormatCode(pixelFormat);
        if (code != 0)
            arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, code);
    }
    SEntry e;
    e.camera = camera;
    e.address = address;
    e.serial = serial;
    m_cameras.push_back(e);
    return int(m_cameras.size()) - 1;
}

void FakeCameraRig::stop(int i)
{
    if (i < 0 || i >= count() || !m_cameras[i].camera)
        return;
    g_object_unref(m_cameras[i].camera);
    m_cameras[i].camera = nullptr;
}

void FakeCameraRig::stopAll()
{
    for (int i = 0; i < count(); ++i)
        stop(i);
}

bool FakeCameraRig::isRunning(int i) const
{
    return i >= 0 && i < count() && m_cameras[i].camera;
}

ArvFakeCamera* FakeCameraRig::fake(int i) const
{
    return isRunning(i) ? arv_gv_fake_camera_get_fake_camera(m_cameras[i].camera) : nullptr;
}

ArvGvFakeCamera* FakeCameraRig::gvFake(int i) const
{
    return isRunning(i) ? m_cameras[i].camera : nullptr;
}

std::string FakeCameraRig::address(int i) const
{
    return (i >= 0 && i < count()) ? m_cameras[i].address : std::string();
}

std::string FakeCameraRig::serial(int i) const
{
    return (i >= 0 && i < count()) ? m_cameras[i].serial : std::string();
}

bool FakeCameraRig::writeRegister(int i, uint32_t address, uint32_t value)
{
    ArvFakeCamera* f = fake(i);
    return f && arv_fake_camera_write_register(f, address, value);
}

bool FakeCameraRig::readRegister(int i, uint32_t address, uint32_t& value) const
{
    ArvFakeCamera* f = fake(i);
    return f && arv_fake_camera_read_register(f, address, &value);
}

Vorlen::GenICam::CInternalCameraPtr FakeCameraRig::startConnected(const std::string& address,
                                                                  const std::string& serial, int width, int height,
                                                                  const std::string& pixelFormat,
                                                                  uint32_t framePeriodUs, int* index)
{
    using namespace Vorlen::GenICam;
    const int i = start(address, serial, std::string(), width, height, pixelFormat);
    if (i < 0)
        return CInternalCameraPtr();
    if (index)
        *index = i;
    writeRegister(i, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US, framePeriodUs);
    CSystem::_DiscoveryModeInfo info;
    std::strncpy(info.ipAddress, address.c_str(), sizeof(info.ipAddress) - 1);
    info.timeoutMs = 2000;
    Vorlen::Infra::TVector<ICameraPtr> found;
    const char* step = "unicast discovery of ";
    CInternalCameraPtr camera;
    if (CSystem::getInstance().discoveryEx(found, discoveryUnicast, info)) {
        for (const ICameraPtr& c : found)
            if (c->getSerialNumber().str() == serial)
                camera = Vorlen::Memory::dynamicPointerCast<CInternalCamera>(c);
        if (!camera) {
            m_lastError = "camera " + serial + " not found on " + address;
            return camera;
        }
        step = "connect to ";
        if (camera->connect(accessPermissionControl))
            return camera;
    }
    m_lastError = step + address + ": " + Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError());
    return CInternalCameraPtr();
}

std::string FakeCameraRig::defaultXmlPath()
{
    const char* env = std::getenv("LUMIDOR_SOURCE_DIR");
    std::string root = (env && *env) ? env : LUMIDOR_SOURCE_DIR_FALLBACK;
    return root + "/res/simcam/LumidorSimCam.xml";
}

bool FakeCameraRig::hasAddress(const std::string& address)
{
    in_addr wanted{};
    if (inet_pton(AF_INET, address.c_str(), &wanted) != 1)
        return false;
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return false;
    bool found = false;
    for (ifaddrs* it = list; it && !found; it = it->ifa_next) {
        if (it->ifa_addr && it->ifa_addr->sa_family == AF_INET)
            found = reinterpret_cast<sockaddr_in*>(it->ifa_addr)->sin_addr.s_addr == wanted.s_addr;
    }
    freeifaddrs(list);
    return found;
}

uint32_t FakeCameraRig::pixelFormatCode(const std::string& name)
{
    return SimCam::pixelFormatCode(name);
}
