// The device manager's map across discovery passes, on stand-in cameras that
// a test can make vanish while connected, the disconnect-all worker with a
// camera that takes long to close, and the end of the singletons meanwhile.
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QWaitCondition>
#include <QtTest>
#include <atomic>
#include <memory>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CJobQueueThread.h"
#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"
#include "QueuedSignalSpy.h"

using namespace Vorlen::GenICam;

namespace {

// A door a stub call waits at while it is shut.
class CDoor
{
public:
    void shut()
    {
        QMutexLocker locker(&m_mutex);
        m_open = false;
    }
    void open()
    {
        QMutexLocker locker(&m_mutex);
        m_open = true;
        m_opened.wakeAll();
    }
    void pass()
    {
        QMutexLocker locker(&m_mutex);
        while (!m_open)
            m_opened.wait(&m_mutex);
    }

private:
    QMutex m_mutex;
    QWaitCondition m_opened;
    bool m_open = true;
};

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
        connectDoor.pass();
        if (!allowConnect)
            return false;
        m_connected = true;
        return true;
    }
    bool disConnect() override
    {
        disconnectDoor.pass();
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
    CDoor connectDoor;      // connect() waits while it is shut
    CDoor disconnectDoor;   // disConnect() waits while it is shut

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
    void ownerEndsDuringDisconnectAll();
    void deviceReleasedWhileOpenClosesOnItsWorker();

private:
    std::shared_ptr<StubSystem> m_system;
    std::unique_ptr<CSingletonOwner> m_owner;
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
    m_owner = makeSingletons();
    m_bus.reset(new BusRecorder);
}

void TestDeviceMap::cleanup()
{
    for (const auto& camera : {m_a, m_b, m_c})
    {
        camera->connectDoor.open();
        camera->disconnectDoor.open();
    }
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        manager->detach(m_bus.get());
    m_owner.reset();
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
    QVERIFY(a->openDevice(true) && a->isConnected());
    QCOMPARE(manager->getOpenedDeviceCount(), 1);
    m_system->setRegistry({m_b});
    QVERIFY(rediscover());
    QCOMPARE(manager->getAllDevices().keys(), QStringList({keyOf(m_a), keyOf(m_b)}));
    QCOMPARE(manager->getDeviceByKey(keyOf(m_a)), a);   // kept until closed
    QVERIFY(!manager->getDeviceByKey(keyOf(m_c)));     // closed: dropped

    // A dropped device no longer reaches the bus.
    deliverQueued();
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
    QVERIFY(b->openDevice(false) && m_bus->waitFor(MSG_DEVICE_CONNECT_FAILED, keyOf(m_b)) && settle(b));
    QCOMPARE(m_bus->statusTypes(keyOf(m_b)), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECT_FAILED}));
    QVERIFY(!b->isConnected() && !b->isConnecting() && !b->getEventManager() && !b->getStreamSource());
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
    QVERIFY(a->openDevice(true) && c->openDevice(true));
    m_a->disconnectDoor.shut();   // A hangs in its disconnection until let go

    // Simulated clock: the first pause lets C's close (on its own worker,
    // beside the hanging A) come through, then each pause advances the
    // clock by the poll step.
    QSemaphore cClosed;
    connect(c.get(), &CTavDevice::device_status_changed, this, [&cClosed](EN_MESSAGE_TYPE type, CTavDevicePtr) {
        if (type == MSG_DEVICE_DISCONNECTED)
            cClosed.release();
    });
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    std::atomic<qint64> fakeNow{100000};
    std::atomic<int> pauses{0};
    std::atomic<bool> cClosedDuringWait{false};
    closer->setClock([&]() { return fakeNow.load(); },
                     [&](int ms) {
                         if (pauses++ == 0)
                             cClosedDuringWait = cClosed.tryAcquire(1, 20000);
                         fakeNow += ms;
                         return true;
                     });
    QueuedSignalSpy finished(closer, &CDisconnectAllThread::closeAllFinished);
    closer->closeAll();
    QVERIFY(finished.wait(30000) && closer->waitIdle(5000));
    closer->setClock(nullptr, nullptr);

    // It gave up after 5000 ms of its clock with A still closing.
    QCOMPARE(pauses.load(), CDisconnectAllThread::kTimeoutMs / CDisconnectAllThread::kPollMs);
    QVERIFY(cClosedDuringWait);
    QCOMPARE(manager->getOpenedDeviceCount(), 1);
    QVERIFY(a->isConnected() && a->isDisconnecting() && !c->isConnected());

    // A's disconnection ends once the camera lets go.
    m_a->disconnectDoor.open();
    QTRY_VERIFY_WITH_TIMEOUT(a->connectionState() == CTavDevice::stateDisconnected, 10000);
    QCOMPARE(manager->getOpenedDeviceCount(), 0);
}

void TestDeviceMap::disconnectAllWaitsForAConnection()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    const CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    m_a->connectDoor.shut();
    QVERIFY(a->openDevice(false));
    QCOMPARE(a->connectionState(), CTavDevice::stateConnecting);

    // A device still connecting is closed once connected, and waited for.
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    QueuedSignalSpy begin(closer, &CDisconnectAllThread::closeAllBegin);
    QueuedSignalSpy finished(closer, &CDisconnectAllThread::closeAllFinished);
    closer->closeAll();
    QVERIFY(begin.wait(10000));
    m_a->connectDoor.open();
    QVERIFY(finished.wait(15000));
    QCOMPARE(a->connectionState(), CTavDevice::stateDisconnected);
    QVERIFY(!m_a->isConnected());
    QCOMPARE(manager->getActiveDeviceCount(), 0);
}

void TestDeviceMap::ownerEndsDuringDisconnectAll()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY(QTest::qWaitFor([&]() { return manager->getAllDevices().size() == 2; }, 10000));
    CTavDevicePtr a = manager->getDeviceByKey(keyOf(m_a));
    QVERIFY(a->openDevice(true));
    QPointer<CTavDevice> aAlive(a.get());
    m_a->disconnectDoor.shut();

    // The program ends while the disconnect-all worker waits for a camera
    // that does not let go: the end does not wait for that worker, and
    // nothing can be made again afterwards.
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    QueuedSignalSpy begin(closer, &CDisconnectAllThread::closeAllBegin);
    closer->closeAll();
    QVERIFY(begin.wait(5000));
    QTRY_VERIFY(a->isDisconnecting());   // the close reached the device's worker
    a.reset();
    m_owner->shutdown();
    QVERIFY(!CDeviceManager::getInstance() && !CDisconnectAllThread::getInstance());
    QVERIFY(!CDiscoveryDevicesThread::getInstance() && !CConfiguration::getInstance());

    // The camera lets go: its device's worker finishes the close and the
    // device goes with it.
    QVERIFY(!CJobQueueThread::waitUntilQuiet(0));
    m_a->disconnectDoor.open();
    m_owner.reset();
    QVERIFY(!m_a->isConnected() && aAlive.isNull());
}

void TestDeviceMap::deviceReleasedWhileOpenClosesOnItsWorker()
{
    // A device let go while its camera is open does not wait for the camera
    // on this thread: its worker closes the camera and then ends by itself.
    CTavDevicePtr device = CTavDevice::create();
    Vorlen::Memory::TSharedPtr<ICamera> camera(m_b);
    device->setDevice(camera);
    device->init();
    QVERIFY(device->openDevice(true) && m_b->isConnected());
    QPointer<CTavDevice> alive(device.get());
    m_b->disconnectDoor.shut();
    device.reset();
    QVERIFY(alive.isNull() && m_b->isConnected() && !CJobQueueThread::waitUntilQuiet(0));
    m_b->disconnectDoor.open();
    QVERIFY(CJobQueueThread::waitUntilQuiet(10000) && !m_b->isConnected());
}

QTEST_GUILESS_MAIN(TestDeviceMap)
#include "test_device_map.moc"
