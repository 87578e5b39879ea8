#pragma once
// Starts and stops Aravis' simulated GigE Vision cameras inside the test
// process, each answering GVCP on its own loopback address.
//
//   FakeCameraRig rig;
//   int i = rig.start("127.0.0.1", "SIM001");           // our description
//   ArvFakeCamera* cam = rig.fake(i);                   // registers, memory
//   rig.stop(i);                                        // camera vanishes
//
// Every camera still running is stopped by the destructor. A camera
// presents itself as vendor "Lumidor", model "SimCam" with the serial given,
// GigE Vision 2.0 and a MAC address derived from the serial, like the
// lumidor-simcam program.
#include <cstdint>
#include <string>
#include <vector>

#include "Vorlen/GenICam/ICamera.h"

// Aravis types, declared here so that this header mixes with Qt's (GLib's
// headers clash with Qt's "signals" keyword). Include <arv.h> to use them.
typedef struct _ArvFakeCamera ArvFakeCamera;
typedef struct _ArvGvFakeCamera ArvGvFakeCamera;

class FakeCameraRig
{
public:
    FakeCameraRig();
    ~FakeCameraRig();
    FakeCameraRig(const FakeCameraRig&) = delete;
    FakeCameraRig& operator=(const FakeCameraRig&) = delete;

    // Starts a camera on the address with the serial number. Empty xmlPath:
    // defaultXmlPath(). width/height 0 and an empty pixelFormat keep the
    // camera's defaults; pixelFormat is a GenICam name ("Mono8", "BayerRG8",
    // "RGB8", ...). Returns the camera's index, or -1 when it did not start
    // (address missing, port taken, description unreadable).
    int start(const std::string& address, const std::string& serial, const std::string& xmlPath = std::string(),
              int width = 0, int height = 0, const std::string& pixelFormat = std::string());
    // Starts a camera as start() does with our description, sets its frame
    // period, finds it by unicast discovery and connects with control
    // access. Null, with why in lastError(), when a step fails; index (when
    // given) is the camera's index.
    Vorlen::GenICam::CInternalCameraPtr startConnected(const std::string& address, const std::string& serial,
                                                       int width, int height, const std::string& pixelFormat,
                                                       uint32_t framePeriodUs, int* index = nullptr);
    // Why the last start() returned -1, naming what the rig lacks; empty
    // after a successful start (or startConnected()). Tests put it in their failure message.
    const std::string& lastError() const { return m_lastError; }
    // Stops (destroys) camera i; the index stays reserved, fake(i) is then null.
    void stop(int i);
    void stopAll();
    int count() const { return int(m_cameras.size()); }
    bool isRunning(int i) const;

    ArvFakeCamera* fake(int i) const;
    ArvGvFakeCamera* gvFake(int i) const;
    std::string address(int i) const;
    std::string serial(int i) const;

    // Helpers on camera i's memory (32-bit registers are big-endian).
    bool writeRegister(int i, uint32_t address, uint32_t value);
    bool readRegister(int i, uint32_t address, uint32_t& value) const;

    // res/simcam/LumidorSimCam.xml of the source tree (LUMIDOR_SOURCE_DIR
    // when set, as under CTest).
    static std::string defaultXmlPath();
    // True when a local interface carries the IPv4 address.
    static bool hasAddress(const std::string& address);
    // PFNC code of a pixel format name, 0 when unknown.
    static uint32_t pixelFormatCode(const std::string& name);

private:
    struct SEntry
    {
        ArvGvFakeCamera* camera = nullptr;
        std::string address, serial;
    };
    std::vector<SEntry> m_cameras;
    std::string m_lastError;
};
