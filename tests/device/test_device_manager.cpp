// The device manager with two simulated cameras: disconnect-all, a camera
// lost while streaming and found again, and the map across discovery passes.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include <QtTest>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"
#include "QueuedSignalSpy.h"

using namespace Vorlen::GenICam;

class TestDeviceManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void disconnectAllClosesEveryDevice();
    void offlineWhileStreamingThenBack();
    void endAndStartAgain();

private:
    bool startCamera(int slot);
    bool waitForDevices();

    FakeCameraRig m_rig;
    std::unique_ptr<CSingletonOwner> m_owner;
    BusRecorder m_bus;
    int m_cam[2] = {-1, -1};
    const char* m_address[2] = {"127.0.0.3", "127.0.0.4"};
    const char* m_serial[2] = {"LUMMGR01", "LUMMGR02"};
};

bool TestDeviceManager::startCamera(int slot)
{
    m_cam[slot] = m_rig.start(m_address[slot], m_serial[slot], std::string(), 320, 240, "Mono8");
    return m_cam[slot] >= 0;
}

bool TestDeviceManager::waitForDevices()
{
    return QTest::qWaitFor(
        [&]() { return findDeviceBySerial(m_serial[0]) && findDeviceBySerial(m_serial[1]); }, 15000);
}

void TestDeviceManager::initTestCase()
{
    enableLogWhenAsked();
    if (!FakeCameraRig::hasAddress(m_address[0]) || !FakeCameraRig::hasAddress(m_address[1]))
        QFAIL("rig missing: 127.0.0.3 and 127.0.0.4 are not on the loopback interface (run scripts/loopback.sh 5)");
    QVERIFY(startCamera(0) && startCamera(1));

    m_owner = makeSingletons();
    // Quick loss detection for the offline case.
    CConfiguration::getInstance()->iHeartbeatIval = 500;
    CConfiguration::getInstance()->iAnswerTimeout = 200;

    CDeviceManager::getInstance()->attach(&m_bus);
    QVERIFY(waitForDevices() || (rediscover() && waitForDevices()));
}

void TestDeviceManager::cleanupTestCase()
{
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        manager->detach(&m_bus);
    m_owner.reset();
}

void TestDeviceManager::init()
{
    // What the previous case asked for is over before the slate is cleaned.
    for (const char* serial : m_serial)
        if (const CTavDevicePtr d = findDeviceBySerial(serial))
            QVERIFY(settle(d));
    m_bus.clear();
}

void TestDeviceManager::disconnectAllClosesEveryDevice()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QList<CTavDevicePtr> devices = {findDeviceBySerial(m_serial[0]), findDeviceBySerial(m_serial[1])};
    FrameCounter counter0(devices[0].get());
    FrameCounter counter1(devices[1].get());
    for (const CTavDevicePtr& device : devices)
    {
        QVERIFY(device->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECTED, device->getDeviceKey()));
        QVERIFY(device->openStream() && m_bus.waitFor(MSG_STREAM_OPENED, device->getDeviceKey()));
    }
    QCOMPARE(manager->getOpenedDeviceCount(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(counter0.frames >= 2 && counter1.frames >= 2, 10000);

    // The closes run side by side, each on its own device's worker, not on
    // the disconnect-all worker nor on the GUI thread.
    QList<QThread*> closingThreads;
    QMutex closingMutex;
    QList<QMetaObject::Connection> watches;
    for (const CTavDevicePtr& device : devices)
        watches.append(connect(device.get(), &CTavDevice::device_status_changed, this,
                               [&closingThreads, &closingMutex](EN_MESSAGE_TYPE type, CTavDevicePtr) {
                                   QMutexLocker locker(&closingMutex);
                                   if (type == MSG_DEVICE_DISCONNECTING)
                                       closingThreads.append(QThread::currentThread());
                               },
                               Qt::DirectConnection));

    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    QueuedSignalSpy begin(closer, &CDisconnectAllThread::closeAllBegin);
    QueuedSignalSpy finished(closer, &CDisconnectAllThread::closeAllFinished);
    closer->closeAll();
    QVERIFY(finished.wait(15000));
    QCOMPARE(begin.count(), 1);
    QVERIFY(closer->waitIdle(5000));
    for (const QMetaObject::Connection& watch : watches)
        disconnect(watch);
    QCOMPARE(closingThreads.size(), 2);
    QVERIFY(closingThreads[0] != closingThreads[1]);
    for (QThread* thread : closingThreads)
        QVERIFY(thread != QThread::currentThread() && thread != closer);

    QCOMPARE(manager->getOpenedDeviceCount(), 0);
    for (const CTavDevicePtr& device : devices)
    {
        QVERIFY(!device->isConnected() && !device->GetStreamThread()->isRunning());
        QTRY_COMPARE(m_bus.count(MSG_DEVICE_DISCONNECTED, device->getDeviceKey()), 1);
        QCOMPARE(m_bus.count(MSG_STREAM_CLOSED, device->getDeviceKey()), 1);
    }

    // Nothing open: it finishes at once.
    closer->closeAll();
    QVERIFY(finished.wait(5000) && closer->waitIdle(5000));
}

void TestDeviceManager::offlineWhileStreamingThenBack()
{
    CTavDevicePtr device = findDeviceBySerial(m_serial[0]);
    QVERIFY(device);
    const QString key = device->getDeviceKey();
    FrameCounter counter(device.get());

    QVERIFY(device->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECTED, key) && device->openStream());
    QTRY_VERIFY_WITH_TIMEOUT(counter.frames >= 2, 10000);

    // The camera disappears.
    m_rig.stop(m_cam[0]);
    QVERIFY(m_bus.waitFor(MSG_DEVICE_OFFLINE, key, 30000) && !device->isConnected());
    // The dead connection is taken down on the worker after the report.
    QTRY_VERIFY_WITH_TIMEOUT(device->connectionState() == CTavDevice::stateDisconnected, 30000);
    QVERIFY(!device->GetStreamThread()->isRunning() && !device->getStreamSource());
    QCOMPARE(CDeviceManager::getInstance()->getOpenedDeviceCount(), 0);
    QCOMPARE(m_bus.count(MSG_DEVICE_OFFLINE, key), 1);
    QCOMPARE(m_bus.count(MSG_DEVICE_DISCONNECTED, key), 0);

    // Back on the network: found again under its key, with the same object,
    // and it connects and streams again.
    QVERIFY(startCamera(0) && rediscover());
    QTRY_VERIFY_WITH_TIMEOUT(CDeviceManager::getInstance()->getDeviceByKey(key) != nullptr, 15000);
    QCOMPARE(CDeviceManager::getInstance()->getDeviceByKey(key), device);

    m_bus.clear();
    counter.frames = 0;
    QVERIFY(device->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECTED, key, 15000));
    QVERIFY(device->openStream());
    QTRY_VERIFY_WITH_TIMEOUT(counter.frames >= 2, 10000);
    QVERIFY(device->closeDevice(true) && !device->isConnected());
}

void TestDeviceManager::endAndStartAgain()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    CTavDevicePtr device = findDeviceBySerial(m_serial[1]);
    QVERIFY(device && device->openDevice(true) && device->openStream());
    QVERIFY(m_bus.waitFor(MSG_STREAM_OPENED, device->getDeviceKey()));
    manager->detach(&m_bus);

    // The end of the singletons closes what is open, on the device's own
    // worker, and waits for it before it returns.
    m_owner.reset();
    QVERIFY(!device->isConnected() && !device->getDevice()->isConnected());
    QVERIFY(!device->GetStreamThread()->isRunning());
    device.reset();

    // A new owner starts afresh.
    m_owner = makeSingletons();
    CDeviceManager* again = CDeviceManager::getInstance();
    again->attach(&m_bus);
    QVERIFY(waitForDevices() || (rediscover() && waitForDevices()));
    CTavDevicePtr fresh = findDeviceBySerial(m_serial[1]);
    QVERIFY(fresh->openDevice(true) && fresh->closeDevice(true));
}

QTEST_GUILESS_MAIN(TestDeviceManager)
#include "test_device_manager.moc"
