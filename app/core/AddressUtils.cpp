#include "AddressUtils.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QStringList>
#include <cstdio>
#include <cstring>

unsigned int IPStrToInt(const std::string& ip)
{
    QHostAddress address;
    if (!address.setAddress(QString::fromLocal8Bit(ip.c_str())))
        return 0;
    bool ok = false;
    const quint32 value = address.toIPv4Address(&ok);
    return ok ? value : 0;
}

std::string IPIntToStr(unsigned int ip)
{
    return QHostAddress(static_cast<quint32>(ip)).toString().toLocal8Bit().toStdString();
}

void splitStr(const char* text, const char* separator, std::vector<std::string>& parts)
{
    parts.clear();
    if (!text)
        return;
    const std::string s(text);
    const std::string sep(separator ? separator : "");
    if (sep.empty()) {
        parts.push_back(s);
        return;
    }
    std::string::size_type start = 0;
    while (true) {
        const std::string::size_type pos = s.find(sep, start);
        if (pos == std::string::npos) {
            parts.push_back(s.substr(start));
            break;
        }
        parts.push_back(s.substr(start, pos - start));
        start = pos + sep.size();
    }
}

bool isValidIP(const char* ip)
{
    if (!ip)
        return false;
    std::vector<std::string> parts;
    splitStr(ip, ".", parts);
    if (parts.size() != 4)
        return false;
    // The separator is deliberately an unescaped '.', as the rule has always been.
    static const QRegularExpression re(
        QStringLiteral("^(([1]?\\d\\d?|2[0-4]\\d|25[0-5]).){3}([1]?\\d\\d?|2[0-4]\\d|25[0-5])$"));
    return re.match(QString::fromLocal8Bit(ip)).hasMatch();
}

namespace {
// First octet read with "%d"; false when there is no '.'.
bool firstOctet(const std::string& ip, int& value)
{
    const std::string::size_type dot = ip.find('.');
    if (dot == std::string::npos)
        return false;
    value = 0;
    std::sscanf(ip.substr(0, dot).c_str(), "%d", &value);
    return true;
}
} // namespace

bool isValidRange(const std::string& ip)
{
    int first = 0;
    if (!firstOctet(ip, first))
        return false;
    return first <= 223;
}

bool isLookBackIP(const std::string& ip)
{
    int first = 0;
    if (!firstOctet(ip, first))
        return false;
    return first != 127;
}

bool isSubnetMskValid(const QString& mask)
{
    if (mask.isEmpty())
        return false;
    const QStringList parts = mask.split('.');
    quint64 combined = 0;
    int shift = 0;
    for (int i = parts.size() - 1; i >= 0 && shift < 64; --i, shift += 8)
        combined |= static_cast<quint64>(parts.at(i).toUInt()) << shift;
    const quint32 value = static_cast<quint32>(combined);
    if (value == 0)
        return false;
    if (value & 1u)
        return value == 0xFFFFFFFFu;
    int trailing = 0;
    while (!(value & (1u << trailing)))
        ++trailing;
    return (static_cast<quint64>(value) >> trailing) + 1 == (quint64(1) << (32 - trailing));
}

int checkIp(std::string interfaceIp, std::string interfaceMask, std::string interfaceGateway, std::string deviceIp,
            std::string deviceMask, std::string deviceGateway)
{
    (void)interfaceGateway;   // part of the call, not of the rules

    // An empty field would read as 0.0.0.0 after normalising; report it as empty.
    const bool emptyInput = deviceIp.empty() || deviceMask.empty();
    deviceIp = IPIntToStr(IPStrToInt(deviceIp));
    deviceMask = IPIntToStr(IPStrToInt(deviceMask));
    deviceGateway = IPIntToStr(IPStrToInt(deviceGateway));

    if (emptyInput || deviceIp.empty() || deviceMask.empty())
        return CHECK_IP_EMPTY;
    if (!isValidIP(deviceIp.c_str()) || !isValidIP(deviceMask.c_str()))
        return CHECK_IP_MALFORMED;

    const quint32 ip = IPStrToInt(deviceIp);
    const quint32 mask = IPStrToInt(deviceMask);
    const quint32 gw = IPStrToInt(deviceGateway);

    if (gw != 0) {
        if (!isValidIP(deviceGateway.c_str()))
            return CHECK_IP_MALFORMED;
        if (!isValidRange(deviceIp) || !isValidRange(deviceGateway))
            return CHECK_IP_RANGE;
    } else if (!isValidRange(deviceIp)) {
        return CHECK_IP_RANGE;
    }
    if (!isLookBackIP(deviceIp) || !isLookBackIP(deviceGateway))
        return CHECK_IP_LOOPBACK;

    if ((mask & ip) == ip)
        return CHECK_IP_HOST_ALL_ZERO;
    if ((mask | ~ip) == mask)
        return CHECK_IP_HOST_ALL_ONE;
    if (gw != 0) {
        if ((gw & mask) == gw)
            return CHECK_IP_GATEWAY_ALL_ZERO;
        if (static_cast<quint32>(~((~mask) & gw)) == mask)
            return CHECK_IP_GATEWAY_ALL_ONE;
    }
    if (deviceIp == interfaceIp)
        return CHECK_IP_SAME_AS_INTERFACE;
    if ((ip & mask) != (IPStrToInt(interfaceIp) & IPStrToInt(interfaceMask)))
        return CHECK_IP_OTHER_SUBNET;
    if (!isSubnetMskValid(QString::fromLocal8Bit(deviceMask.c_str())))
        return CHECK_IP_OTHER_SUBNET;
    return CHECK_IP_OK;
}

QPoint getMenuPos(QPoint pos, QSize size, const QRect& screen)
{
    QPoint result = pos;
    if (pos.y() + size.height() > screen.height())
        result.setY(qMax(0, pos.y() - size.height()));
    if (pos.x() + size.width() > screen.width())
        result.setX(qMax(0, screen.x() + screen.width() - size.width()));
    return result;
}
