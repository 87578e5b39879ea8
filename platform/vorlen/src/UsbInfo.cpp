#include "UsbInfo.h"

#include <dirent.h>

#include <cstdlib>
#include <fstream>

namespace Vorlen {
namespace GenICam {

namespace {

std::string readFirstLine(const std::string& path)
{
    std::ifstream in(path);
    std::string line;
    std::getline(in, line);
    return line;
}

} // namespace

bool usbSysfsInfo(const std::string& serial, SUsbSysfsInfo& info)
{
    if (serial.empty())
        return false;
    const std::string base = "/sys/bus/usb/devices/";
    DIR* dir = opendir(base.c_str());
    if (!dir)
        return false;
    bool found = false;
    while (dirent* entry = readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        const std::string path = base + entry->d_name + "/";
        if (readFirstLine(path + "serial") != serial)
            continue;
        info.vendorId = readFirstLine(path + "idVendor");
        info.productId = readFirstLine(path + "idProduct");
        info.revision = readFirstLine(path + "bcdDevice");
        info.speedMbps = readFirstLine(path + "speed");
        info.maxPower = readFirstLine(path + "bMaxPower");
        found = true;
        break;
    }
    closedir(dir);
    return found;
}

std::string usbSpeedName(const std::string& speedMbps)
{
    const long mbps = std::strtol(speedMbps.c_str(), nullptr, 10);
    if (mbps >= 10000)
        return "SuperPlus";
    if (mbps >= 5000)
        return "Super";
    if (mbps >= 480)
        return "High";
    if (mbps >= 12)
        return "Full";
    if (mbps > 0)
        return "Low";
    return std::string();
}

} // namespace GenICam
} // namespace Vorlen
