// The IPv4 helpers: the rules as they stand (quirks included) on hand-picked
// cases, and on generated addresses checked against a model written here
// from the rules, independent of the code under test.
#include <QtTest>

#include <random>

#include "AddressUtils.h"

namespace {

// ---- the model

bool parseQuad(const std::string& text, quint32& value)
{
    int parts = 0;
    quint32 result = 0;
    size_t i = 0;
    while (parts < 4) {
        size_t j = i;
        unsigned part = 0;
        while (j < text.size() && text[j] >= '0' && text[j] <= '9' && j - i < 4)
            part = part * 10 + unsigned(text[j++] - '0');
        if (j == i || part > 255)
            return false;
        result = (result << 8) | part;
        ++parts;
        if (parts < 4) {
            if (j >= text.size() || text[j] != '.')
                return false;
            i = j + 1;
        } else if (j != text.size()) {
            return false;
        }
    }
    value = result;
    return true;
}

// Four parts; a part is one digit, two digits, or three digits that start
// with 1, or with 2 and stay at most 255.
bool modelValidIp(const std::string& text)
{
    std::vector<std::string> parts;
    size_t start = 0;
    while (true) {
        const size_t dot = text.find('.', start);
        parts.push_back(text.substr(start, dot == std::string::npos ? std::string::npos : dot - start));
        if (dot == std::string::npos)
            break;
        start = dot + 1;
    }
    if (parts.size() != 4)
        return false;
    for (const std::string& p : parts) {
        if (p.empty() || p.size() > 3)
            return false;
        for (char c : p)
            if (c < '0' || c > '9')
                return false;
        if (p.size() == 3 && !(p[0] == '1' || (p[0] == '2' && std::stoi(p) <= 255)))
            return false;
    }
    return true;
}

bool modelContiguousMask(quint32 mask)
{
    if (mask == 0)
        return false;
    const quint32 inverted = ~mask;
    return (inverted & (inverted + 1)) == 0;
}

std::string quad(quint32 v)
{
    return std::to_string(v >> 24) + "." + std::to_string((v >> 16) & 255) + "." + std::to_string((v >> 8) & 255) +
           "." + std::to_string(v & 255);
}

int modelCheckIp(const std::string& ifIp, const std::string& ifMask, const std::string& ipText,
                 const std::string& maskText, const std::string& gwText)
{
    if (ipText.empty() || maskText.empty())
        return 1;
    quint32 ip = 0, mask = 0, gw = 0, iip = 0, imask = 0;
    // Unparsable text counts as 0.0.0.0.
    if (!parseQuad(ipText, ip))
        ip = 0;
    if (!parseQuad(maskText, mask))
        mask = 0;
    if (!parseQuad(gwText, gw))
        gw = 0;
    parseQuad(ifIp, iip);
    parseQuad(ifMask, imask);
    const unsigned ipFirst = ip >> 24, gwFirst = gw >> 24;
    if (ipFirst > 223 || (gw != 0 && gwFirst > 223))
        return 3;
    if (ipFirst == 127 || gwFirst == 127)
        return 4;
    if ((ip & ~mask) == 0)
        return 5;
    if ((ip | mask) == 0xFFFFFFFFu)
        return 6;
    if (gw != 0 && (gw & ~mask) == 0)
        return 7;
    if (gw != 0 && (gw & ~mask) == ~mask)
        return 8;
    if (quad(ip) == ifIp)
        return 9;
    if ((ip & mask) != (iip & imask) || !modelContiguousMask(mask))
        return 10;
    return 0;
}

} // namespace

class TestAddress : public QObject
{
    Q_OBJECT
private slots:
    void conversions();
    void validIpAndRangeRules();
    void subnetMaskRule();
    void checkIpFixedCases();
    void checkIpOnGeneratedAddresses();
    void validIpOnGeneratedTexts();
    void menuPosition();
};

void TestAddress::conversions()
{
    QCOMPARE(IPStrToInt("192.168.1.10"), 0xC0A8010Au);
    QCOMPARE(IPStrToInt("not an address"), 0u);
    QCOMPARE(IPStrToInt(""), 0u);
    QCOMPARE(IPIntToStr(0xC0A8010Au), std::string("192.168.1.10"));
    QCOMPARE(IPIntToStr(0), std::string("0.0.0.0"));

    std::vector<std::string> parts;
    splitStr("a..b.", ".", parts);
    QCOMPARE(parts, (std::vector<std::string>{"a", "", "b", ""}));
    splitStr("1::2::3", "::", parts);
    QCOMPARE(parts, (std::vector<std::string>{"1", "2", "3"}));
    splitStr("", ".", parts);
    QCOMPARE(parts, (std::vector<std::string>{""}));
}

void TestAddress::validIpAndRangeRules()
{
    QVERIFY(isValidIP("192.168.1.1"));
    QVERIFY(isValidIP("0.0.0.0"));
    QVERIFY(isValidIP("01.2.3.4"));          // two digits, any digits
    QVERIFY(!isValidIP("001.2.3.4"));        // three digits must start with 1 or 2
    QVERIFY(!isValidIP("256.1.1.1"));
    QVERIFY(!isValidIP("1.2.3"));
    QVERIFY(!isValidIP("1.2.3.4.5"));
    QVERIFY(!isValidIP("1.2.3.4 "));
    QVERIFY(!isValidIP(""));
    QVERIFY(!isValidIP(nullptr));

    QVERIFY(isValidRange("223.1.1.1"));
    QVERIFY(!isValidRange("224.0.0.1"));
    QVERIFY(isValidRange("0.1.2.3"));        // the range rule lets 0.*.*.* pass
    QVERIFY(!isValidRange("223"));           // no dot
    QVERIFY(isValidRange("abc.1"));          // unreadable first part counts as 0

    // True means "not a loopback address".
    QVERIFY(isLookBackIP("10.0.0.1"));
    QVERIFY(!isLookBackIP("127.0.0.2"));
    QVERIFY(!isLookBackIP("127"));           // no dot
}

void TestAddress::subnetMaskRule()
{
    for (const char* good : {"255.255.255.0", "255.255.255.255", "128.0.0.0", "255.255.254.0", "255.255.255.252"})
        QVERIFY2(isSubnetMskValid(QString::fromLatin1(good)), good);
    for (const char* bad : {"", "0.0.0.0", "255.0.255.0", "255.255.0.255", "0.0.0.1", "255.255.255.253"})
        QVERIFY2(!isSubnetMskValid(QString::fromLatin1(bad)), bad);
    // Parts are packed from the right: "255.0" is 0x0000FF00, whose ones do
    // not reach the top bit, and "255.255.255.255.0" keeps the low 32 bits.
    QVERIFY(!isSubnetMskValid(QStringLiteral("255.0")));
    QVERIFY(isSubnetMskValid(QStringLiteral("255.255.255.255.0")));
}

void TestAddress::checkIpFixedCases()
{
    const std::string ifIp = "192.168.1.5", ifMask = "255.255.255.0", ifGw = "192.168.1.1";
    auto check = [&](const std::string& ip, const std::string& mask, const std::string& gw) {
        return checkIp(ifIp, ifMask, ifGw, ip, mask, gw);
    };
    QCOMPARE(check("", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_EMPTY));
    QCOMPARE(check("192.168.1.7", "", "0.0.0.0"), int(CHECK_IP_EMPTY));
    QCOMPARE(check("192.168.1.0", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_HOST_ALL_ZERO));
    QCOMPARE(check("192.168.1.255", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_HOST_ALL_ONE));
    QCOMPARE(check("224.0.0.1", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_RANGE));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "230.0.0.1"), int(CHECK_IP_RANGE));
    QCOMPARE(check("127.0.0.2", "255.0.0.0", "0.0.0.0"), int(CHECK_IP_LOOPBACK));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "127.0.0.1"), int(CHECK_IP_LOOPBACK));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "192.168.1.0"), int(CHECK_IP_GATEWAY_ALL_ZERO));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "192.168.1.255"), int(CHECK_IP_GATEWAY_ALL_ONE));
    QCOMPARE(check("192.168.1.5", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_SAME_AS_INTERFACE));
    QCOMPARE(check("192.168.2.7", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_OTHER_SUBNET));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_OK));
    QCOMPARE(check("192.168.1.7", "255.255.255.0", "192.168.1.1"), int(CHECK_IP_OK));
    // 0.*.*.* passes the range rule; it fails later, on the subnet.
    QCOMPARE(check("0.1.2.3", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_OTHER_SUBNET));
    // Unparsable text becomes 0.0.0.0: a host number of all zeros.
    QCOMPARE(check("garbage", "255.255.255.0", "0.0.0.0"), int(CHECK_IP_HOST_ALL_ZERO));
    // A non-contiguous mask is caught only after the network comparison.
    QCOMPARE(checkIp("192.168.1.5", "255.255.0.255", ifGw, "192.168.7.5", "255.255.0.255", "0.0.0.0"),
             int(CHECK_IP_OTHER_SUBNET));
    QCOMPARE(checkIp("192.168.1.5", "255.255.0.0", ifGw, "192.168.7.5", "255.255.0.0", "0.0.0.0"), int(CHECK_IP_OK));
}

void TestAddress::checkIpOnGeneratedAddresses()
{
    std::mt19937 rng(20240611u);
    auto pick = [&](int n) { return int(rng() % unsigned(n)); };
    auto octet = [&]() {
        static const int special[] = {0, 1, 127, 223, 224, 254, 255};
        return pick(4) == 0 ? special[pick(7)] : pick(256);
    };
    auto maskOf = [&]() -> quint32 {
        switch (pick(5)) {
        case 0: return quint32(rng());                                        // anything
        case 1: return 0;
        default: {
            const int prefix = 1 + pick(32);
            return prefix == 32 ? 0xFFFFFFFFu : ~(0xFFFFFFFFu >> prefix);
        }
        }
    };
    int codes[11] = {0};
    for (int n = 0; n < 800; ++n) {
        const quint32 ifIpValue = (quint32(octet()) << 24) | quint32(rng() & 0xFFFFFF);
        const quint32 ifMaskValue = ~(0xFFFFFFFFu >> (8 + pick(23)));
        const std::string ifIp = quad(ifIpValue), ifMask = quad(ifMaskValue);
        quint32 mask = pick(2) ? ifMaskValue : maskOf();
        quint32 ip = (quint32(octet()) << 24) | quint32(rng() & 0xFFFFFF);
        if (pick(2))   // often in the interface's subnet
            ip = (ifIpValue & ifMaskValue) | (ip & ~ifMaskValue);
        quint32 gw = pick(3) == 0 ? 0 : ((ip & mask) | (quint32(rng()) & ~mask));
        std::string ipText = quad(ip), maskText = quad(mask), gwText = quad(gw);
        switch (pick(20)) {
        case 0: ipText.clear(); break;
        case 1: maskText.clear(); break;
        case 2: ipText = ifIp; break;
        case 3: gwText = quad(ip | ~mask); break;
        case 4: ipText = "1.2.3.300"; break;
        default: break;
        }
        const int expected = modelCheckIp(ifIp, ifMask, ipText, maskText, gwText);
        const int actual = checkIp(ifIp, ifMask, "0.0.0.0", ipText, maskText, gwText);
        if (expected != actual)
            QFAIL(qPrintable(QString("checkIp(%1/%2; %3 %4 %5) = %6, expected %7")
                                 .arg(QString::fromStdString(ifIp), QString::fromStdString(ifMask),
                                      QString::fromStdString(ipText), QString::fromStdString(maskText),
                                      QString::fromStdString(gwText))
                                 .arg(actual)
                                 .arg(expected)));
        ++codes[expected];

        const bool maskExpected = modelContiguousMask(mask);
        QCOMPARE(isSubnetMskValid(QString::fromStdString(quad(mask))), maskExpected);
    }
    // The generator reaches the interesting outcomes, not just one of them.
    for (int code : {0, 1, 3, 4, 5, 6, 7, 8, 9, 10})
        QVERIFY2(codes[code] > 0, qPrintable(QString("no generated case gave code %1").arg(code)));
}

void TestAddress::validIpOnGeneratedTexts()
{
    std::mt19937 rng(77u);
    const char alphabet[] = "0123456789.0123456789.12a ";
    for (int n = 0; n < 1500; ++n) {
        std::string text;
        if (rng() % 2) {
            // Something close to an address: four parts of 1 to 3 digits.
            for (int p = 0; p < 4; ++p) {
                if (p)
                    text += '.';
                const int digits = 1 + int(rng() % 3);
                for (int d = 0; d < digits; ++d)
                    text += char('0' + rng() % 10);
            }
        } else {
            const int length = int(rng() % 16);
            for (int i = 0; i < length; ++i)
                text += alphabet[rng() % (sizeof(alphabet) - 1)];
        }
        QVERIFY2(isValidIP(text.c_str()) == modelValidIp(text), text.c_str());
        const bool rangeExpected = text.find('.') != std::string::npos &&
                                   std::atoi(text.substr(0, text.find('.')).c_str()) <= 223;
        QVERIFY2(isValidRange(text) == rangeExpected, text.c_str());
    }
}

void TestAddress::menuPosition()
{
    const QRect screen(0, 0, 1000, 800);
    const QSize menu(200, 300);
    QCOMPARE(getMenuPos(QPoint(100, 100), menu, screen), QPoint(100, 100));
    QCOMPARE(getMenuPos(QPoint(100, 600), menu, screen), QPoint(100, 300));      // flipped above
    QCOMPARE(getMenuPos(QPoint(900, 100), menu, screen), QPoint(800, 100));      // pulled in from the right
    QCOMPARE(getMenuPos(QPoint(900, 700), menu, screen), QPoint(800, 400));
    QCOMPARE(getMenuPos(QPoint(10, 100), QSize(1200, 900), screen), QPoint(0, 0));   // clamped at 0
    QCOMPARE(getMenuPos(QPoint(100, 500), menu, screen), QPoint(100, 500));      // exactly fits
}

QTEST_MAIN(TestAddress)
#include "test_address.moc"
