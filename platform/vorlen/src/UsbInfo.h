#pragma once
// What the kernel knows about a USB device (sysfs), looked up by serial.
#include <string>

namespace Vorlen {
namespace GenICam {

struct SUsbSysfsInfo
{
    std::string vendorId, productId, revision;   // hexadecimal texts from the descriptor
    std::string speedMbps;                       // "5000", "480", ...
    std::string maxPower;                        // "896mA"
};

bool usbSysfsInfo(const std::string& serial, SUsbSysfsInfo& info);
// "Super", "SuperPlus", "High", "Full", "Low" or "" from the speed in Mbit/s.
std::string usbSpeedName(const std::string& speedMbps);

} // namespace GenICam
} // namespace Vorlen
