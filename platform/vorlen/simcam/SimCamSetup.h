#pragma once
// Identity and GigE Vision bootstrap values of a simulated camera, written
// into the memory of Aravis' fake camera before anybody talks to it. Shared
// by lumidor-simcam and the test rig so both present the same camera.
#include <arv.h>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cstdint>
#include <algorithm>
#include <cstring>
#include <string>

namespace SimCam {

inline void writeString(ArvFakeCamera* fake, uint32_t address, uint32_t size, const std::string& text)
{
    std::string buffer(size, '\0');
    buffer.replace(0, std::min<size_t>(text.size(), size - 1), text.substr(0, size - 1));
    arv_fake_camera_write_memory(fake, address, size, buffer.data());
}

// Locally administered MAC address derived from the serial number, so a
// camera keeps its MAC across runs.
inline uint64_t macFromSerial(const std::string& serial)
{
    uint32_t h = 2166136261u;
    for (unsigned char c : serial)
        h = (h ^ c) * 16777619u;
    return (uint64_t(0x024C55) << 24) | (h & 0xFFFFFF);
}

inline void setup(ArvFakeCamera* fake, const std::string& serial)
{
    if (!fake)
        return;
    arv_fake_camera_write_register(fake, 0x0000, 0x00020000);            // GigE Vision 2.0
    arv_fake_camera_write_register(fake, 0x0004, 0x80000000);            // big-endian, transmitter
    const uint64_t mac = macFromSerial(serial);
    arv_fake_camera_write_register(fake, 0x0008, uint32_t(mac >> 32));
    arv_fake_camera_write_register(fake, 0x000C, uint32_t(mac & 0xFFFFFFFFu));
    arv_fake_camera_write_register(fake, 0x0010, 0x00000007);            // LLA, DHCP, persistent IP supported
    arv_fake_camera_write_register(fake, 0x0014, 0x00000006);            // LLA and DHCP enabled
    arv_fake_camera_write_register(fake, 0x0034, 0xFF000000);            // 255.0.0.0
    writeString(fake, 0x0048, 32, "Lumidor");
    writeString(fake, 0x0068, 32, "SimCam");
    writeString(fake, 0x0088, 32, "1.0.0");
    writeString(fake, 0x00A8, 48, "Lumidor simulated camera");
    arv_fake_camera_write_register(fake, 0x0900, 1);                     // one message channel
    arv_fake_camera_write_register(fake, 0x065C, 0xFFFFFF00);            // persistent mask 255.255.255.0

    // The description's URL keeps its location but names our file, which
    // is the name offered when the description is saved.
    char url[512] = {0};
    arv_fake_camera_read_memory(fake, 0x0200, sizeof(url) - 1, url);
    std::string text(url);
    const std::string::size_type colon = text.find(':');
    const std::string::size_type semicolon = text.find(';');
    if (colon != std::string::npos && semicolon != std::string::npos && semicolon > colon)
        writeString(fake, 0x0200, 512, text.substr(0, colon + 1) + "LumidorSimCam.xml" + text.substr(semicolon));
}

// Image geometry and pixel format (PFNC code); 0 keeps the camera's own.
inline void setImage(ArvFakeCamera* fake, int width, int height, uint32_t pixelFormat)
{
    if (width > 0)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_WIDTH, uint32_t(width));
    if (height > 0)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_HEIGHT, uint32_t(height));
    if (pixelFormat)
        arv_fake_camera_write_register(fake, ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, pixelFormat);
}

// Aravis' fake camera binds its control port with address reuse, so a second
// camera on a taken address starts "successfully" and the two answer at
// random. A plain bind tells whether the port is free.
inline bool controlPortFree(const std::string& address)
{
    const int fd = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (fd < 0)
        return false;
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(3956);
    if (inet_pton(AF_INET, address.c_str(), &a.sin_addr) != 1) {
        ::close(fd);
        return false;
    }
    const bool free = ::bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof(a)) == 0;
    ::close(fd);
    return free;
}

// PFNC code of a pixel format name the simulated camera offers, 0 when unknown.
inline uint32_t pixelFormatCode(const std::string& name)
{
    struct SFormat { const char* name; uint32_t code; };
    static const SFormat formats[] = {
        {"Mono8", ARV_PIXEL_FORMAT_MONO_8},         {"Mono16", ARV_PIXEL_FORMAT_MONO_16},
        {"BayerRG8", ARV_PIXEL_FORMAT_BAYER_RG_8},  {"BayerGR8", ARV_PIXEL_FORMAT_BAYER_GR_8},
        {"BayerGB8", ARV_PIXEL_FORMAT_BAYER_GB_8},  {"BayerBG8", ARV_PIXEL_FORMAT_BAYER_BG_8},
        {"RGB8", ARV_PIXEL_FORMAT_RGB_8_PACKED},    {"RGB8Packed", ARV_PIXEL_FORMAT_RGB_8_PACKED},
    };
    for (const SFormat& f : formats)
        if (name == f.name)
            return f.code;
    return 0;
}

} // namespace SimCam
