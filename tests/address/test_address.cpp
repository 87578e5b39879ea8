// The IPv4 helpers, quirks included: conversions, the address, range,
// loopback and mask rules, the verdict of checkIp for each of its rules, and
// where a menu opens so that it stays on the screen.
#include <QtTest>

#include "AddressUtils.h"

class TestAddress : public QObject
{
    Q_OBJECT
private slots:
    void conversions();
    void addressTextRules();
    void checkIpVerdicts();
    void menuPosition();
};

void TestAddress::conversions()
{
    QCOMPARE(IPStrToInt("192.168.1.10"), 0xC0A8010Au);
    QCOMPARE(IPStrToInt("not an address"), 0u);
    QCOMPARE(IPStrToInt(""), 0u);
    QCOMPARE(IPIntToStr(0xC0A8010Au), std::string("192.168.1.10"));
    QCOMPARE(IPIntToStr(0), std::string("0.0.0.0"));
}

void TestAddress::addressTextRules()
{
    // Four parts of one or two digits, or of three that start with 1, or with 2 and stay at most 255.
    for (const char* good : {"192.168.1.1", "0.0.0.0", "01.2.3.4", "199.99.9.0", "255.255.255.255"})
        QVERIFY2(isValidIP(good), good);
    for (const char* bad : {"001.2.3.4", "256.1.1.1", "300.1.1.1", "1234.1.1.1", "1.2.3", "1.2.3.4.5", "1.2.3.4 ",
                            "1..3.4", "1.2.3.", "1.a.3.4", ""})
        QVERIFY2(!isValidIP(bad), bad);
    QVERIFY(!isValidIP(nullptr));

    QVERIFY(isValidRange("223.1.1.1") && !isValidRange("224.0.0.1"));
    QVERIFY(isValidRange("0.1.2.3"));   // the range rule lets 0.*.*.* pass
    QVERIFY(!isValidRange("223"));      // no dot
    QVERIFY(isValidRange("abc.1"));     // an unreadable first part counts as 0

    // True means "not a loopback address".
    QVERIFY(isLookBackIP("10.0.0.1") && !isLookBackIP("127.0.0.2"));
    QVERIFY(!isLookBackIP("127"));   // no dot

    for (const char* good : {"255.255.255.0", "255.255.255.255", "128.0.0.0", "255.255.254.0", "255.255.255.252"})
        QVERIFY2(isSubnetMskValid(QString::fromLatin1(good)), good);
    for (const char* bad : {"", "0.0.0.0", "255.0.255.0", "255.255.0.255", "0.0.0.1", "255.255.255.253"})
        QVERIFY2(!isSubnetMskValid(QString::fromLatin1(bad)), bad);
    // Parts are packed from the right: "255.0" is 0x0000FF00, whose ones do
    // not reach the top bit, and "255.255.255.255.0" keeps the low 32 bits.
    QVERIFY(!isSubnetMskValid(QStringLiteral("255.0")));
    QVERIFY(isSubnetMskValid(QStringLiteral("255.255.255.255.0")));
}

void TestAddress::checkIpVerdicts()
{
    // Against the interface 192.168.1.5/24, unless a row names another mask.
    struct SCase
    {
        const char *ip, *mask, *gateway;
        int code;
        const char* interfaceMask;
    };
    const SCase cases[] = {
        {"192.168.1.7", "255.255.255.0", "0.0.0.0", CHECK_IP_OK, nullptr},
        {"192.168.1.7", "255.255.255.0", "192.168.1.1", CHECK_IP_OK, nullptr},
        {"", "255.255.255.0", "0.0.0.0", CHECK_IP_EMPTY, nullptr},
        {"192.168.1.7", "", "0.0.0.0", CHECK_IP_EMPTY, nullptr},
        {"224.0.0.1", "255.255.255.0", "0.0.0.0", CHECK_IP_RANGE, nullptr},
        {"192.168.1.7", "255.255.255.0", "230.0.0.1", CHECK_IP_RANGE, nullptr},
        {"127.0.0.2", "255.0.0.0", "0.0.0.0", CHECK_IP_LOOPBACK, nullptr},
        {"192.168.1.7", "255.255.255.0", "127.0.0.1", CHECK_IP_LOOPBACK, nullptr},
        {"192.168.1.0", "255.255.255.0", "0.0.0.0", CHECK_IP_HOST_ALL_ZERO, nullptr},
        {"192.168.1.255", "255.255.255.0", "0.0.0.0", CHECK_IP_HOST_ALL_ONE, nullptr},
        {"192.168.1.7", "255.255.255.0", "192.168.1.0", CHECK_IP_GATEWAY_ALL_ZERO, nullptr},
        {"192.168.1.7", "255.255.255.0", "192.168.1.255", CHECK_IP_GATEWAY_ALL_ONE, nullptr},
        {"192.168.1.5", "255.255.255.0", "0.0.0.0", CHECK_IP_SAME_AS_INTERFACE, nullptr},
        {"192.168.2.7", "255.255.255.0", "0.0.0.0", CHECK_IP_OTHER_SUBNET, nullptr},
        // 0.*.*.* passes the range rule; it fails later, on the subnet.
        {"0.1.2.3", "255.255.255.0", "0.0.0.0", CHECK_IP_OTHER_SUBNET, nullptr},
        // Unreadable text becomes 0.0.0.0: an address of host number 0, a
        // mask that matches no network, a gateway that is left out.
        {"garbage", "255.255.255.0", "0.0.0.0", CHECK_IP_HOST_ALL_ZERO, nullptr},
        {"192.168.1.7", "255.255.255.x", "0.0.0.0", CHECK_IP_OTHER_SUBNET, nullptr},
        {"192.168.1.7", "255.255.255.0", "300.1.1.1", CHECK_IP_OK, nullptr},
        // A non-contiguous mask is caught only after the network comparison.
        {"192.168.7.5", "255.255.0.255", "0.0.0.0", CHECK_IP_OTHER_SUBNET, "255.255.0.255"},
        {"192.168.7.5", "255.255.0.0", "0.0.0.0", CHECK_IP_OK, "255.255.0.0"},
    };
    for (const SCase& c : cases) {
        const int code = checkIp("192.168.1.5", c.interfaceMask ? c.interfaceMask : "255.255.255.0", "192.168.1.1",
                                 c.ip, c.mask, c.gateway);
        QVERIFY2(code == c.code, qPrintable(QString("%1 %2 %3: %4").arg(c.ip, c.mask, c.gateway).arg(code)));
    }
}

void TestAddress::menuPosition()
{
    const QRect screen(0, 0, 1000, 800);
    const QSize menu(200, 300);
    QCOMPARE(getMenuPos(QPoint(100, 100), menu, screen), QPoint(100, 100));
    QCOMPARE(getMenuPos(QPoint(100, 500), menu, screen), QPoint(100, 500));   // exactly fits
    QCOMPARE(getMenuPos(QPoint(100, 600), menu, screen), QPoint(100, 300));   // flipped above
    QCOMPARE(getMenuPos(QPoint(900, 100), menu, screen), QPoint(800, 100));   // pulled in from the right
    QCOMPARE(getMenuPos(QPoint(900, 700), menu, screen), QPoint(800, 400));
    QCOMPARE(getMenuPos(QPoint(10, 100), QSize(1200, 900), screen), QPoint(0, 0));   // never below 0
}

QTEST_MAIN(TestAddress)
#include "test_address.moc"
