// The device manager's map across discovery passes, on stand-in cameras that
// a test can make vanish while connected, and the disconnect-all worker with
// a camera that takes long to close.
#include <QSignalSpy>
#include <QtTest>
#include <QDeadlineTimer>
#include <atomic>
#include <memory>

#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"
#include "QueuedSignalSpy.h"

// Configuration files go to the test's own home (CTest sets HOME per test).
static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

using namespace Vorlen::GenICam;

namespace {

class StubCamera : public CInternalCamera
{
public:
    explicit StubCamera(const std::string& serial) : m_serial(serial) {}

    CString getKey() const override { return CString("Stub:Cam:") + CString(m_serial); }
    CString getName() const override { return "StubCam"; }
    CString getSerialNumber() const override { return m_serial; }
    CString getVendorName() const override { return "Stub"; }
    EInterfaceType getType() const override { return typeGigEVision; }
    bool isConnected() const override { return m_connected; }
    bool connect(ECameraAccessPermission) override
    {
        QThread::msleep(connectDelayMs);
        if (!allowConnect)
            return false;
        m_connected = true;
        return true;
    }
    bool disConnect() override
    {
        QThread::msleep(disconnectDelayMs);
        while (hold)
            QThread::msleep(5);
        m_connected = false;
        return true;
    }
    bool isDriverInstalled(bool& installed) const override
    {
        installed = true;
        return true;
    }
    bool setAnswerTimeout(unsigned short) override { return true; }
    bool setHeartbeatIntervel(unsigned short) override { return true; }
    bool forceIpAddress(const char*, const char*, const char*) override { return false; }
    bool downLoadGenICamXML(const char*) override { return false; }
    CString getDefXMLFilename() const override { return CString(); }

    std::atomic<bool> allowConnect{true};
    std::atomic<int> disconnectDelayMs{0};
    std::atomic<bool> hold{false};
    std::atomic<int> connectDelayMs{0};   // disConnect hangs while set

private:
    std::string m_serial;
    std::atomic<bool> m_connected{false};
};

class StubSystem : public IDiscoverySystem
{
public:
    bool discovery(CameraPtrVector&, EInterfaceType type) override
    {
        record(QString("bc%1").arg(int(type)));
        return true;
    }
    bool discoveryEx(CameraPtrVector&, EDiscoveryMode, CSystem::_DiscoveryModeInfo info) override
    {
        record(QString("uc:%1").arg(info.ipAddress));
        return true;
    }
    bool getCameraPtrAll(CameraPtrVector& cameras) override
    {
        record("all");
        QMutexLocker locker(&mutex);
        cameras = registry;
        return true;
    }
    void setRegistry(const QList<std::shared_ptr<StubCamera>>& cams)
    {
        QMutexLocker locker(&mutex);
        registry.clear();
        for (const auto& c : cams)
            registry.push_back(Vorlen::Memory::TSharedPtr<ICamera>(c));
    }
    QStringList takeCalls()
    {
        QMutexLocker locker(&mutex);
        QStringList out = calls;
        calls.clear();
        return out;
    }

    QMutex mutex;
    CameraPtrVector registry;
    QStringList calls;

private:
    void record(const QString& call)
    {
        QMutexLocker locker(&mutex);
        calls.append(call);
    }
};

QString keyOf(const std::shared_ptr<StubCamera>& camera)
{
    return QString(camera->getKey().c_str());
}
}

class TestDeviceMap : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void firstPassBuildsMapInKeyOrder();
    void mapFollowsTheCameras();
    void refreshPassesTheRequest();
    void disconnectAllGivesUp();
    void disconnectAllWaitsForAConnection();
    void managerGoesAfterDisconnectAll();

private:
    std::shared_ptr<StubSystem> m_system;
    std::unique_ptr<BusRecorder> m_bus;
    std::shared_ptr<StubCamera> m_a, m_b, m_c;
};

void TestDeviceMap::init()
{
    enableLogWhenAsked();
    m_system = std::make_shared<StubSystem>();
    m_a = std::make_shared<StubCamera>("A1");
    m_b = std::make_shared<StubCamera>("B2");
    m_c = std::make_shared<StubCamera>("C3");
    m_system->setRegistry({m_c, m_a});
    CDiscoveryDevicesThread::setDefaultSystem(m_system);
    m_bus.reset(new BusRecorder);
}

void TestDeviceMap::cleanup()
{
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        manager->detach(m_bus.get());
    CDeviceManager::destroyInstance();
    CDiscoveryDevicesThread::setDefaultSystem(nullptr);
    m_bus.reset();
}

void TestDeviceMap::firstPassBuildsMapInKeyOrder()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QSignalSpy finished(manager, &CDeviceManager::discoveryDevicesFinished);
    manager->attach(m_bus.get());
    QVERIFY(finished.wait(10000));

    // The start-up pass: broadcast, second interface, registry.
    QCOMPARE(m_system->takeCalls(), QStringList({"bc0", "bc1", "all"}));
    const QMap<QString, CTavDevicePtr> devices = manager->getAllDevices();
    QCOMPARE(devices.keys(), QStringList({keyOf(m_a), keyOf(m_c)}));
    for (auto it = devices.begin(); it != devices.end(); ++it)
    {
        QCOMPARE(it.value()->getDeviceKey(), it.key());
        QVERIFY(!it.value()->isConnected());
    }
    QCOMPARE(manager->getDeviceByKey(keyOf(m_a))->getDevice().get(), static_cast<ICamera*>(m_a.get()));
    QVERIFY(!manager->getDeviceByKey("Stub:Cam:none"));
    QCOMPARE(manager->getOpenedDeviceCount(), 0);

    QTRY_COMPARE(m_bus->count(MSG_DISCOVERY_FINISHED), 1);
    QVERIFY(!m_bus->records[0].msg->device);
}

void TestDeviceMap::mapFollowsTheCameras()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    manager->attach(m_bus.get());
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    const CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    const CTavDevicePtr c = manager->getDeviceByKey(keyOf(m_c));

    // A is open, then both A and C vanish and B appears.
    QVERIFY(a->openDevice(true));
    QVERIFY(a->isConnected());
    QCOMPARE(manager->getOpenedDeviceCount(), 1);
    m_system->setRegistry({m_b});
    QVERIFY(rediscover());
    QCOMPARE(manager->getAllDevices().keys(), QStringList({keyOf(m_a), keyOf(m_b)}));
    QCOMPARE(manager->getDeviceByKey(keyOf(m_a)), a);   // kept until closed
    QVERIFY(!manager->getDeviceByKey(keyOf(m_c)));     // closed: dropped

    // A dropped device no longer reaches the bus.
    QTest::qWait(50);
    m_bus->clear();
    emit c->device_status_changed(MSG_ACCESS_STATUS_CHANGED, c);
    emit a->device_status_changed(MSG_ACCESS_STATUS_CHANGED, a);
    QTRY_COMPARE(m_bus->count(MSG_ACCESS_STATUS_CHANGED), 1);
    QCOMPARE(m_bus->records[0].key, keyOf(m_a));

    // Everything comes back: the kept device keeps its object, C gets a new one.
    m_system->setRegistry({m_a, m_b, m_c});
    QVERIFY(rediscover());
    QCOMPARE(manager->getAllDevices().keys(), QStringList({keyOf(m_a), keyOf(m_b), keyOf(m_c)}));
    QCOMPARE(manager->getDeviceByKey(keyOf(m_a)), a);
    QVERIFY(manager->getDeviceByKey(keyOf(m_c)) != c);
    const CTavDevicePtr b = manager->getDeviceByKey(keyOf(m_b));
    QVERIFY(rediscover());
    QCOMPARE(manager->getDeviceByKey(keyOf(m_b)), b);   // same camera, same object

    // Once closed, a vanished camera goes at the next pass.
    QVERIFY(a->closeDevice(true));
    m_system->setRegistry({m_b, m_c});
    QVERIFY(rediscover());
    QCOMPARE(manager->getAllDevices().keys(), QStringList({keyOf(m_b), keyOf(m_c)}));

    // A refused connection: message 3 only, nothing created.
    m_bus->clear();
    m_b->allowConnect = false;
    QVERIFY(b->openDevice(false));
    QVERIFY(m_bus->waitFor(MSG_DEVICE_CONNECT_FAILED, keyOf(m_b)));
    QTest::qWait(100);
    QCOMPARE(m_bus->statusTypes(keyOf(m_b)), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECT_FAILED}));
    QVERIFY(!b->isConnected() && !b->isConnecting());
    QVERIFY(!b->getEventManager() && !b->getStreamSource());
}

void TestDeviceMap::refreshPassesTheRequest()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    m_system->takeCalls();

    QSignalSpy finished(manager, &CDeviceManager::discoveryDevicesFinished);
    manager->refreshDeviceMap("10.0.0.9", 0);
    QVERIFY(finished.wait(10000));
    QCOMPARE(m_system->takeCalls(), QStringList({"uc:10.0.0.9", "bc1", "all"}));
}

void TestDeviceMap::disconnectAllGivesUp()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    const CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    const CTavDevicePtr c = manager->getDeviceByKey(keyOf(m_c));
    QVERIFY(a->openDevice(true));
    QVERIFY(c->openDevice(true));
    m_a->hold = true;   // A hangs in its disconnection until released

    // Simulated clock: each pause lets the real closes progress (until C,
    // which does not hang, is closed), then advances by the poll step.
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    std::atomic<qint64> fakeNow{100000};
    std::atomic<int> pauses{0};
    std::atomic<bool> cClosedDuringWait{false};
    closer->setClock([&]() { return fakeNow.load(); },
                     [&](int ms) {
                         QDeadlineTimer limit(20000);
                         while (c->connectionState() != CTavDevice::stateDisconnected && !limit.hasExpired())
                             QThread::msleep(5);
                         cClosedDuringWait = c->connectionState() == CTavDevice::stateDisconnected;
                         ++pauses;
                         fakeNow += ms;
                     });
    QueuedSignalSpy finished(closer, &CDisconnectAllThread::closeAllFinished);
    closer->start();
    QVERIFY(finished.wait(30000));
    QVERIFY(closer->wait(5000));
    closer->setClock(nullptr, nullptr);

    // It gave up after 5000 ms of its clock with A still closing; C closed
    // meanwhile, on its own worker, beside the hanging A.
    QCOMPARE(pauses.load(), CDisconnectAllThread::kTimeoutMs / CDisconnectAllThread::kPollMs);
    QVERIFY(cClosedDuringWait);
    QCOMPARE(manager->getOpenedDeviceCount(), 1);
    QVERIFY(a->isConnected() && a->isDisconnecting());
    QVERIFY(!c->isConnected());

    // A's disconnection ends once the camera lets go.
    m_a->hold = false;
    QTRY_VERIFY_WITH_TIMEOUT(a->connectionState() == CTavDevice::stateDisconnected, 10000);
    QCOMPARE(manager->getOpenedDeviceCount(), 0);
}

void TestDeviceMap::disconnectAllWaitsForAConnection()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    const CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    m_a->connectDelayMs = 300;
    QVERIFY(a->openDevice(false));
    QCOMPARE(a->connectionState(), CTavDevice::stateConnecting);

    // A device still connecting is closed once connected, and waited for.
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    QueuedSignalSpy finished(closer, &CDisconnectAllThread::closeAllFinished);
    closer->start();
    QVERIFY(finished.wait(15000));
    QVERIFY(closer->wait(5000));
    QCOMPARE(a->connectionState(), CTavDevice::stateDisconnected);
    QVERIFY(!m_a->isConnected());
    QCOMPARE(manager->getActiveDeviceCount(), 0);
}

void TestDeviceMap::managerGoesAfterDisconnectAll()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    const CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    QVERIFY(a->openDevice(true));

    // The program ends while the disconnect-all worker is still waiting for
    // the devices: the manager it polls must outlive it.
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    QueuedSignalSpy begin(closer, &CDisconnectAllThread::closeAllBegin);
    closer->start();
    QTRY_COMPARE_WITH_TIMEOUT(begin.count(), 1, 5000);
    CDeviceManager::destroyInstance();
    QVERIFY(!closer->isRunning());
    QVERIFY(!a->isConnected());
    QVERIFY(!m_a->isConnected());
}

QTEST_GUILESS_MAIN(TestDeviceMap)
#include "test_device_map.moc"
