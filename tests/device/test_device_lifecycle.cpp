// Devices under real use, against simulated cameras on 127.0.0.2..5: a close
// asked for during a connection, a camera that vanishes while connecting,
// while its stream starts and while it closes, a camera killed mid-stream
// while another thread reads its statistics, and link settings changed while
// four cameras stream.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include <QSignalSpy>
#include <QtTest>
#include <atomic>
#include <thread>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"

using namespace Vorlen::GenICam;

class TestDeviceLifecycle : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void closeDuringConnectFollowsIt();
    void cameraVanishesAtEachStep();
    void killedMidStreamWhileStatisticsAreRead();
    void settingsChangeWhileFourStream();

private:
    bool startCamera(int slot);
    CTavDevicePtr device(int slot) { return findDeviceBySerial(m_serial[slot]); }
    // Back to a running, closed camera in the slot.
    bool restore(int slot);

    FakeCameraRig m_rig;
    std::unique_ptr<CSingletonOwner> m_owner;
    BusRecorder m_bus;
    int m_cam[4] = {-1, -1, -1, -1};
    const char* m_address[4] = {"127.0.0.2", "127.0.0.3", "127.0.0.4", "127.0.0.5"};
    const char* m_serial[4] = {"LUMLIFE1", "LUMLIFE2", "LUMLIFE3", "LUMLIFE4"};
};

bool TestDeviceLifecycle::startCamera(int slot)
{
    m_cam[slot] = m_rig.start(m_address[slot], m_serial[slot], std::string(), 320, 240, "Mono8");
    return m_cam[slot] >= 0;
}

bool TestDeviceLifecycle::restore(int slot)
{
    if (!m_rig.isRunning(m_cam[slot]))
    {
        if (!startCamera(slot))
            return false;
        rediscover();
    }
    return QTest::qWaitFor(
        [&]() { return device(slot) && device(slot)->connectionState() == CTavDevice::stateDisconnected; },
        30000);
}

void TestDeviceLifecycle::initTestCase()
{
    enableLogWhenAsked();
    for (const char* address : m_address)
        if (!FakeCameraRig::hasAddress(address))
            QFAIL(qPrintable(QString("rig missing: %1 is not on the loopback interface (run scripts/loopback.sh 5)")
                                 .arg(address)));
    for (int slot = 0; slot < 4; ++slot)
        if (!startCamera(slot))
            QFAIL(qPrintable(QString("rig missing: the simulated camera cannot start on %1").arg(m_address[slot])));

    m_owner = makeSingletons();
    CDeviceManager::getInstance()->attach(&m_bus);
    auto all = [&]() { return device(0) && device(1) && device(2) && device(3); };
    QVERIFY(QTest::qWaitFor(all, 15000) || (rediscover() && all()));
}

void TestDeviceLifecycle::cleanupTestCase()
{
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        manager->detach(&m_bus);
    m_owner.reset();
}

void TestDeviceLifecycle::init()
{
    // What the previous case asked for is over before the slate is cleaned.
    for (int slot = 0; slot < 4; ++slot)
        if (const CTavDevicePtr d = device(slot))
            QVERIFY(settle(d));
    m_bus.clear();
}

void TestDeviceLifecycle::closeDuringConnectFollowsIt()
{
    const CTavDevicePtr d = device(0);
    const QString key = d->getDeviceKey();

    // The close is accepted at once and carried out after the connection.
    QVERIFY(d->openDevice(false));
    QCOMPARE(d->connectionState(), CTavDevice::stateConnecting);
    QVERIFY(d->closeDevice(false));
    QVERIFY(!d->openDevice(false));   // still busy: nothing new starts
    QVERIFY(m_bus.waitFor(MSG_DEVICE_DISCONNECTED, key, 20000) && settle(d));
    QCOMPARE(m_bus.statusTypes(key), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECTED,
                                                 MSG_DEVICE_DISCONNECTING, MSG_STREAM_CLOSED,
                                                 MSG_DEVICE_DISCONNECTED}));
    QCOMPARE(d->connectionState(), CTavDevice::stateDisconnected);
    QVERIFY(!d->isConnected() && !d->getStreamSource() && !d->getEventManager());
    QVERIFY(!d->getDevice()->isConnected());

    // Same with the stream asked for in between: it is opened, then closed.
    m_bus.clear();
    QVERIFY(d->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECTED, key) && d->openStream());
    QVERIFY(d->closeDevice(false) && m_bus.waitFor(MSG_DEVICE_DISCONNECTED, key, 20000) && settle(d));
    QCOMPARE(m_bus.statusTypes(key), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECTED, MSG_STREAM_OPENED,
                                                 MSG_DEVICE_DISCONNECTING, MSG_STREAM_CLOSED,
                                                 MSG_DEVICE_DISCONNECTED}));
    QVERIFY(!d->GetStreamThread()->isRunning());
}

void TestDeviceLifecycle::cameraVanishesAtEachStep()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    const CTavDevicePtr d = device(1);
    const QString key = d->getDeviceKey();
    const QList<int> connectFailed({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECT_FAILED});

    // During the connection: it fails (message 3) or, when the camera went
    // just after answering, is reported lost (message 6); never both.
    QVERIFY(d->openDevice(false));
    m_rig.stop(m_cam[1]);
    QVERIFY(QTest::qWaitFor(
        [&]() { return m_bus.count(MSG_DEVICE_CONNECT_FAILED, key) + m_bus.count(MSG_DEVICE_OFFLINE, key) > 0; },
        30000));
    QTRY_VERIFY_WITH_TIMEOUT(d->connectionState() == CTavDevice::stateDisconnected, 30000);
    QVERIFY(settle(d));
    if (m_bus.count(MSG_DEVICE_CONNECT_FAILED, key))
        QCOMPARE(m_bus.statusTypes(key), connectFailed);
    else
        QCOMPARE(m_bus.statusTypes(key).mid(0, 2), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECTED}));
    QCOMPARE(m_bus.count(MSG_DEVICE_DISCONNECTED, key), 0);
    QCOMPARE(manager->getOpenedDeviceCount(), 0);

    // While the stream starts: reported lost, the stream thread ends, and
    // no close message is made up.
    QVERIFY(restore(1));
    m_bus.clear();
    QVERIFY(d->openDevice(true) && d->openStream());
    m_rig.stop(m_cam[1]);
    QVERIFY(m_bus.waitFor(MSG_DEVICE_OFFLINE, key, 30000));
    QTRY_VERIFY_WITH_TIMEOUT(d->connectionState() == CTavDevice::stateDisconnected, 30000);
    QVERIFY(!d->GetStreamThread()->isRunning() && !d->getStreamSource());
    QCOMPARE(m_bus.count(MSG_DEVICE_DISCONNECTED, key), 0);
    QVERIFY(!d->openStream());

    // While it closes: the close ends as asked (messages 4, 8, 5).
    QVERIFY(restore(1));
    m_bus.clear();
    QVERIFY(d->openDevice(true) && d->openStream() && m_bus.waitFor(MSG_STREAM_OPENED, key));
    QVERIFY(d->closeDevice(false));
    m_rig.stop(m_cam[1]);
    QVERIFY(m_bus.waitFor(MSG_DEVICE_DISCONNECTED, key, 30000) && settle(d));
    const QList<int> types = m_bus.statusTypes(key);
    QVERIFY2(types.mid(types.size() - 3) ==
                 QList<int>({MSG_DEVICE_DISCONNECTING, MSG_STREAM_CLOSED, MSG_DEVICE_DISCONNECTED}),
             qPrintable(m_bus.dump()));
    QCOMPARE(m_bus.count(MSG_DEVICE_OFFLINE, key), 0);
    QCOMPARE(d->connectionState(), CTavDevice::stateDisconnected);

    // Back again, the camera opens as before.
    QVERIFY(restore(1) && d->openDevice(true) && d->closeDevice(true));
}

void TestDeviceLifecycle::killedMidStreamWhileStatisticsAreRead()
{
    const CTavDevicePtr d = device(2);
    const QString key = d->getDeviceKey();
    FrameCounter counter(d.get());
    QVERIFY(d->openDevice(true) && d->openStream() && m_bus.waitFor(MSG_STREAM_OPENED, key));
    QTRY_VERIFY_WITH_TIMEOUT(counter.frames >= 2, 10000);

    // A status bar reads the statistics on its own thread all along.
    std::atomic<bool> reading{true};
    std::atomic<unsigned long long> reads{0};
    std::thread reader([&]() {
        while (reading)
        {
            QString rx, disp, bw, error;
            unsigned long long total = 0, errors = 0;
            d->getStreamStatistic(rx, disp, total, bw);
            d->getStreamStatistic(rx, disp, total, bw, error, errors);
            StreamStatisticsInfo info;
            d->getStatisticsInfo(info);
            ++reads;
        }
    });
    QTRY_VERIFY(reads > 10);
    m_rig.stop(m_cam[2]);
    const bool offline = m_bus.waitFor(MSG_DEVICE_OFFLINE, key, 30000);
    const bool down = QTest::qWaitFor([&]() { return d->connectionState() == CTavDevice::stateDisconnected; }, 30000);
    const unsigned long long before = reads;
    QTRY_VERIFY(reads > before);   // the reader never blocked
    reading = false;
    reader.join();
    QVERIFY(offline && down && !d->GetStreamThread()->isRunning() && restore(2));
}

void TestDeviceLifecycle::settingsChangeWhileFourStream()
{
    QList<CTavDevicePtr> devices;
    QList<std::shared_ptr<FrameCounter>> counters;
    for (int slot = 0; slot < 4; ++slot)
    {
        QVERIFY(restore(slot));
        devices.append(device(slot));
        counters.append(std::make_shared<FrameCounter>(devices.last().get()));
    }
    for (const CTavDevicePtr& d : devices)
        QVERIFY(d->openDevice(false));
    for (const CTavDevicePtr& d : devices)
    {
        QVERIFY(m_bus.waitFor(MSG_DEVICE_CONNECTED, d->getDeviceKey(), 20000) && d->openStream());
    }
    for (const CTavDevicePtr& d : devices)
        QVERIFY(m_bus.waitFor(MSG_STREAM_OPENED, d->getDeviceKey(), 20000));

    // A settings dialog changes the link settings while all four stream.
    CConfiguration* cfg = CConfiguration::getInstance();
    const uint16_t heartbeat = cfg->iHeartbeatIval;
    const uint16_t answer = cfg->iAnswerTimeout;
    for (int round = 0; round < 6; ++round)
    {
        cfg->setHeartbeatInterval(round % 2 ? 3000 : 2500);
        cfg->setAnswerTimeout(round % 2 ? 900 : 800);
        cfg->setInterPacketTimeout(round % 2 ? 0 : 20);
        cfg->setSingleResendMaxPackNum(round % 2 ? 65536 : 100);
        cfg->setMaximumLostPacketNum(round % 2 ? 65536 : 200);
        cfg->saveConfigToUserXml();
        // Each round is applied before the next one comes.
        for (const CTavDevicePtr& d : devices)
            QVERIFY(d->waitForWorker(10000));
    }
    // The last values reach every camera, and every stream goes on.
    for (const CTavDevicePtr& d : devices)
    {
        long value = 0;
        QTRY_VERIFY_WITH_TIMEOUT(d->getParaIntValue("GevHeartbeatTimeout", value) && value == 3000, 10000);
    }
    for (const auto& counter : counters)
        counter->frames = 0;
    for (const auto& counter : counters)
        QTRY_VERIFY_WITH_TIMEOUT(counter->frames >= 2, 10000);
    QCOMPARE(m_bus.count(MSG_DEVICE_OFFLINE), 0);

    cfg->setHeartbeatInterval(heartbeat);
    cfg->setAnswerTimeout(answer);
    for (const CTavDevicePtr& d : devices)
        QVERIFY(d->closeDevice(false));
    for (const CTavDevicePtr& d : devices)
        QVERIFY(m_bus.waitFor(MSG_DEVICE_DISCONNECTED, d->getDeviceKey(), 20000));
    QCOMPARE(CDeviceManager::getInstance()->getActiveDeviceCount(), 0);
}

QTEST_GUILESS_MAIN(TestDeviceLifecycle)
#include "test_device_lifecycle.moc"
