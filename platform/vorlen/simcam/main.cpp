// lumidor-simcam: a simulated GigE Vision camera (Aravis' fake camera with
// our GenICam description) answering on one IPv4 address until SIGINT or
// SIGTERM.
#include <arv.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <climits>

#include "SimCamSetup.h"

namespace {

volatile std::sig_atomic_t g_stop = 0;

void onSignal(int)
{
    g_stop = 1;
}

void usage()
{
    std::fprintf(stderr,
                 "Usage: lumidor-simcam --address 127.0.0.N --serial SERIAL [--xml path]\n"
                 "       [--width W --height H --pixel-format NAME --fps F --packet-size B\n"
                 "        --lost-packet-ratio R]\n"
                 "Pixel formats: Mono8 Mono16 BayerRG8 BayerGR8 BayerGB8 BayerBG8 RGB8\n");
}

std::string defaultXml(const char* argv0)
{
    char path[PATH_MAX] = {0};
    ssize_t n = readlink("/proc/self/exe", path, sizeof(path) - 1);
    std::string exe = n > 0 ? std::string(path, size_t(n)) : std::string(argv0);
    std::string dir = exe.substr(0, exe.find_last_of('/') == std::string::npos ? 0 : exe.find_last_of('/'));
    if (dir.empty())
        dir = ".";
    return dir + "/simcam/LumidorSimCam.xml";
}

} // namespace

int main(int argc, char** argv)
{
    std::string address, serial, xml, pixelFormat;
    long width = 0, height = 0, packetSize = 0;
    double fps = 0.0, lostRatio = -1.0;

    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&](const char* name) -> const char* {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "lumidor-simcam: %s needs a value\n", name);
                std::exit(2);
            }
            return argv[++i];
        };
        if (arg == "--address") address = value("--address");
        else if (arg == "--serial") serial = value("--serial");
        else if (arg == "--xml") xml = value("--xml");
        else if (arg == "--width") width = std::strtol(value("--width"), nullptr, 10);
        else if (arg == "--height") height = std::strtol(value("--height"), nullptr, 10);
        else if (arg == "--pixel-format") pixelFormat = value("--pixel-format");
        else if (arg == "--fps") fps = std::strtod(value("--fps"), nullptr);
        else if (arg == "--packet-size") packetSize = std::strtol(value("--packet-size"), nullptr, 10);
        else if (arg == "--lost-packet-ratio") lostRatio = std::strtod(value("--lost-packet-ratio"), nullptr);
        else if (arg == "-h" || arg == "--help") {
            usage();
            return 0;
        } else {
            std::fprintf(stderr, "lumidor-simcam: unknown option %s\n", arg.c_str());
            usage();
            return 2;
        }
    }
    if (address.empty() || serial.empty()) {
        usage();
        return 2;
    }
    if (serial.size() > 15) {
        std::fprintf(stderr, "lumidor-simcam: the serial number has at most 15 characters\n");
        return 2;
    }
    if (xml.empty())
        xml = defaultXml(argv[0]);
    if (access(xml.c_str(), R_OK) != 0) {
        std::fprintf(stderr, "lumidor-simcam: cannot read %s\n", xml.c_str());
        return 1;
    }
    uint32_t pfCode = 0;
    if (!pixelFormat.empty() && (pfCode = SimCam::pixelFormatCode(pixelFormat)) == 0) {
        std::fprintf(stderr, "lumidor-simcam: unknown pixel format %s\n", pixelFormat.c_str());
        return 2;
    }

    if (!SimCam::controlPortFree(address)) {
        std::fprintf(stderr, "lumidor-simcam: %s:3956 is not available (no such local address, or in use)\n",
                     address.c_str());
        return 1;
    }
    ArvGvFakeCamera* camera = arv_gv_fake_camera_new_full(address.c_str(), serial.c_str(), xml.c_str());
    if (!camera || !arv_gv_fake_camera_is_running(camera)) {
        std::fprintf(stderr, "lumidor-simcam: cannot start a camera on %s (address missing or port 3956 taken)\n",
                     address.c_str());
        if (camera)
            g_object_unref(camera);
        return 1;
    }
    ArvFakeCamera* fake = arv_gv_fake_camera_get_fake_camera(camera);
    SimCam::setup(fake, serial);
    SimCam::setImage(fake, width, height, pfCode);
    if (fps > 0.0)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US,
                                       uint32_t(1000000.0 / fps + 0.5));
    if (packetSize > 0)
        arv_fake_camera_write_register(fake, 0x0D04, uint32_t(packetSize) & 0xFFFF);
    if (lostRatio >= 0.0)
        g_object_set(camera, "gvsp-lost-ratio", lostRatio, nullptr);

    std::signal(SIGINT, onSignal);
    std::signal(SIGTERM, onSignal);
    std::printf("lumidor-simcam: serial %s on %s, description %s\n", serial.c_str(), address.c_str(), xml.c_str());
    std::fflush(stdout);
    while (!g_stop)
        usleep(100 * 1000);
    g_object_unref(camera);
    return 0;
}
