#pragma once
// IPv4 address helpers shared by the IP configuration, the unicast dialog and
// the feature conversions. Addresses as integers are in host order with the
// first octet in the most significant byte (192.168.1.10 == 0xC0A8010A).
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <string>
#include <vector>

// Codes of checkIp.
enum ECheckIpResult
{
    CHECK_IP_OK = 0,
    CHECK_IP_EMPTY = 1,
    CHECK_IP_MALFORMED = 2,
    CHECK_IP_RANGE = 3,
    CHECK_IP_LOOPBACK = 4,
    CHECK_IP_HOST_ALL_ZERO = 5,
    CHECK_IP_HOST_ALL_ONE = 6,
    CHECK_IP_GATEWAY_ALL_ZERO = 7,
    CHECK_IP_GATEWAY_ALL_ONE = 8,
    CHECK_IP_SAME_AS_INTERFACE = 9,
    CHECK_IP_OTHER_SUBNET = 10
};

// 0 for text that is not an IPv4 address.
unsigned int IPStrToInt(const std::string& ip);
std::string IPIntToStr(unsigned int ip);
// Four dot-separated decimal parts of 0..255.
bool isValidIP(const char* ip);
// First octet at most 223 (no multicast / reserved addresses).
bool isValidRange(const std::string& ip);
// True when the first octet is NOT 127 (the name is historical).
bool isLookBackIP(const std::string& ip);
// Contiguous ones followed by zeros; 0 is invalid.
bool isSubnetMskValid(const QString& mask);
// Validates a device address against its host interface; returns ECheckIpResult.
int checkIp(std::string interfaceIp, std::string interfaceMask, std::string interfaceGateway, std::string deviceIp,
            std::string deviceMask, std::string deviceGateway);
// Splits text at every occurrence of the separator; parts is replaced.
void splitStr(const char* text, const char* separator, std::vector<std::string>& parts);

// Top-left corner for a pop-up of the size opened at pos so that it stays on
// the given screen: flipped above pos when it would run off the bottom,
// pulled in from the right edge when it would run off the right (never
// below 0). The widgets' getMenuPos(pos, size) applies it to the real screen.
QPoint getMenuPos(QPoint pos, QSize size, const QRect& screen);
