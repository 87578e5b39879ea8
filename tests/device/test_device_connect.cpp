// One device against a simulated camera: connect, stream, close and again,
// without leaking threads; a second open during a connection; a camera held
// by another client; the bus messages the manager publishes.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <arv.h>
#include "FakeCameraRig.h"
#include <cstring>
#include <QPointer>
#include <QSemaphore>
#include <QtTest>
#include <atomic>

#include "AccessStatusThread.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDeviceResetThread.h"
#include "CTavDevice.h"
#include "DeviceTestSupport.h"
#include "QueuedSignalSpy.h"

using namespace Vorlen::GenICam;

class TestDeviceConnect : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void openStreamCloseRepeatedly();
    void secondOpenDuringConnectStartsNothing();
    void resetAndLinkSettingChanges();
    void refusedWhenAnotherClientHoldsControl();
    void busMessagesFromDeviceSignals();
    void streamNeedsConnection();
    void nameUsesCachedUserId();
    void accessRefreshDuringReadIsCarriedOut();

private:
    // Puts a user id straight into the simulated camera's memory, behind
    // the device's back.
    void setCameraUserId(const char* text);

    FakeCameraRig m_rig;
    std::unique_ptr<CSingletonOwner> m_owner;
    BusRecorder m_bus;
    CTavDevicePtr m_device;
    QString m_key;
};

namespace {
// A permission read that waits until the test lets it answer.
class CBlockingAccessThread : public AccessStatusThread
{
public:
    QSemaphore entered, release;
    std::atomic<int> reads{0};
    std::atomic<ECameraAccessPermission> answer{accessPermissionOpen};

protected:
    ECameraAccessPermission readPermission(const Vorlen::Memory::TSharedPtr<CInternalCamera>&) override
    {
        ++reads;
        const ECameraAccessPermission read = answer;   // what the camera said when asked
        entered.release();
        release.acquire();
        return read;
    }
};
} // namespace

void TestDeviceConnect::initTestCase()
{
    enableLogWhenAsked();
    if (m_rig.start("127.0.0.1", "LUMCONN1", std::string(), 320, 240, "Mono8") < 0)
        QFAIL("rig missing: the simulated camera cannot start on 127.0.0.1 (port 3956 taken or loopback down)");

    m_owner = makeSingletons();
    CDeviceManager* manager = CDeviceManager::getInstance();
    manager->attach(&m_bus);
    QVERIFY(QTest::qWaitFor([&]() { return findDeviceBySerial("LUMCONN1") != nullptr; }, 15000) ||
            (rediscover() && findDeviceBySerial("LUMCONN1")));
    m_device = findDeviceBySerial("LUMCONN1");
    QVERIFY(m_device);
    m_device->getDeviceKey(m_key);
    QVERIFY(!m_key.isEmpty());
    QCOMPARE(manager->getDeviceByKey(m_key), m_device);
    QCOMPARE(manager->getOpenedDeviceCount(), 0);
}

void TestDeviceConnect::cleanupTestCase()
{
    m_device.reset();
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        manager->detach(&m_bus);
    m_owner.reset();
}

void TestDeviceConnect::init()
{
    // What the previous case asked for is over before the slate is cleaned.
    QVERIFY(settle(m_device));
    m_bus.clear();
}

void TestDeviceConnect::openStreamCloseRepeatedly()
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    FrameCounter counter(m_device.get());
    int baseline = -1;   // threads alive before the second round

    for (int round = 0; round < 20; ++round)
    {
        m_bus.clear();
        counter.frames = 0;
        if (round == 1)
            baseline = liveThreadCount();

        // The last round opens and closes synchronously.
        const bool sync = round == 19;
        QVERIFY(m_device->openDevice(sync));
        QVERIFY(sync ? m_device->isConnected() && m_device->getStreamSource() : m_device->isConnecting());
        QVERIFY(m_bus.waitFor(MSG_DEVICE_CONNECTED, m_key) && m_device->isConnected());
        // The steps after the connection follow message 2 on the worker.
        QTRY_VERIFY(!m_device->isConnecting() && m_device->getStreamSource());
        QVERIFY(m_device->getEventManager());
        QCOMPARE(manager->getOpenedDeviceCount(), 1);

        QVERIFY2(m_device->openStream(), qPrintable(QString("round %1").arg(round)));
        // Already asked for: a second open of the stream is refused.
        QVERIFY(!m_device->openStream());
        QVERIFY(m_bus.waitFor(MSG_STREAM_OPENED, m_key) && m_device->isGrabing() && !m_device->openStream());
        QVERIFY(m_device->GetStreamThread()->isRunning());
        QTRY_VERIFY_WITH_TIMEOUT(counter.frames >= 3, 10000);
        QVERIFY(counter.valid == counter.frames || counter.valid > 0);

        QString rx, disp, bw;
        unsigned long long total = 0;
        QTRY_VERIFY_WITH_TIMEOUT((m_device->getStreamStatistic(rx, disp, total, bw), total >= 3), 5000);

        QVERIFY(m_device->closeDevice(sync));
        QVERIFY(!sync || (!m_device->isConnected() && !m_device->GetStreamThread()->isRunning()));
        QVERIFY(m_bus.waitFor(MSG_DEVICE_DISCONNECTED, m_key));
        QVERIFY(!m_device->isConnected() && !m_device->isDisconnecting() && !m_device->isGrabing());
        QVERIFY(!m_device->GetStreamThread()->isRunning() && !m_device->getStreamSource());
        QVERIFY(!m_device->getEventManager());
        QCOMPARE(manager->getOpenedDeviceCount(), 0);
        QCOMPARE(m_bus.statusTypes(m_key),
                 QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECTED, MSG_STREAM_OPENED, MSG_DEVICE_DISCONNECTING,
                             MSG_STREAM_CLOSED, MSG_DEVICE_DISCONNECTED}));

        // Every thread of a round ends with it: after the first round the
        // count comes back to the same figure each time.
        if (round > 1)
        {
            QTRY_VERIFY2_WITH_TIMEOUT(liveThreadCount() <= baseline,
                                      qPrintable(QString("round %1: %2 threads, baseline %3")
                                                     .arg(round)
                                                     .arg(liveThreadCount())
                                                     .arg(baseline)),
                                      5000);
        }
    }
}

void TestDeviceConnect::secondOpenDuringConnectStartsNothing()
{
    QVERIFY(m_device->openDevice(false));
    QVERIFY(!m_device->openDevice(false));   // the worker still runs
    QVERIFY(m_bus.waitFor(MSG_DEVICE_CONNECTED, m_key) && settle(m_device));
    QCOMPARE(m_bus.count(MSG_DEVICE_CONNECTING, m_key), 1);
    QCOMPARE(m_bus.count(MSG_DEVICE_CONNECTED, m_key), 1);
    QCOMPARE(m_bus.count(MSG_DEVICE_CONNECT_FAILED, m_key), 0);

    // Open while connected changes nothing either.
    QVERIFY(!m_device->openDevice(false) && m_device->isConnected());

    QVERIFY(m_device->closeDevice(false) && m_bus.waitFor(MSG_DEVICE_DISCONNECTED, m_key));
}

void TestDeviceConnect::resetAndLinkSettingChanges()
{
    QVERIFY(m_device->openDevice(true));
    const ICameraPtr camera = m_device->getDevice();

    // The reset worker selects and loads the factory user set and makes it the default.
    CEnumNode selector(camera, "UserSetSelector");
    CEnumNode userSetDefault(camera, "UserSetDefault");
    QVERIFY(selector.setValueBySymbol("UserSet1") && userSetDefault.setValueBySymbol("UserSet2"));
    CDeviceResetThread reset;
    QueuedSignalSpy resetDone(&reset, &CDeviceResetThread::device_reset);
    reset.setDevice(m_device);
    reset.start();
    QVERIFY(resetDone.wait(15000));
    QCOMPARE(resetDone.first().first().toInt(), 1);
    reset.wait();
    Vorlen::Infra::CString symbol;
    QVERIFY(selector.getValueSymbol(symbol));
    QCOMPARE(QString(symbol.c_str()), QString("Default"));
    QVERIFY(userSetDefault.getValueSymbol(symbol));
    QCOMPARE(QString(symbol.c_str()), QString("Default"));

    // A heartbeat change in the settings reaches the connected camera at once.
    CConfiguration* cfg = CConfiguration::getInstance();
    const uint16_t before = cfg->iHeartbeatIval;
    cfg->setHeartbeatInterval(3500);
    long heartbeat = 0;
    QTRY_VERIFY_WITH_TIMEOUT(m_device->getParaIntValue("GevHeartbeatTimeout", heartbeat) && heartbeat == 3500, 5000);
    cfg->setHeartbeatInterval(before);

    QVERIFY(m_device->closeDevice(true));
    // Closed: later changes are kept for the next connection and touch nothing.
    cfg->setHeartbeatInterval(4000);
    cfg->setHeartbeatInterval(before);
}

void TestDeviceConnect::refusedWhenAnotherClientHoldsControl()
{
    // Another client opens the camera and takes control of it.
    GError* error = nullptr;
    ArvDevice* other = arv_open_device("127.0.0.1", &error);
    if (!other)
    {
        const QString why = error ? QString(error->message) : QString();
        g_clear_error(&error);
        QFAIL(qPrintable("second client cannot open the camera: " + why));
    }
    QVERIFY(ARV_IS_GV_DEVICE(other));
    if (!arv_gv_device_is_controller(ARV_GV_DEVICE(other)))
        arv_gv_device_take_control(ARV_GV_DEVICE(other), nullptr);
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(other)));

    // The access permission as seen from here.
    m_device->refreshAccessPermission();
    QVERIFY(m_bus.waitFor(MSG_ACCESS_STATUS_CHANGED, m_key));
    QVERIFY(m_device->getAccessPermission() == accessPermissionControl ||
            m_device->getAccessPermission() == accessPermissionExclusive);

    m_bus.clear();
    QVERIFY(m_device->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECT_FAILED, m_key, 20000));
    QVERIFY(settle(m_device));
    QCOMPARE(m_bus.statusTypes(m_key), QList<int>({MSG_DEVICE_CONNECTING, MSG_DEVICE_CONNECT_FAILED}));
    QVERIFY(!m_device->isConnected() && !m_device->isConnecting() && !m_device->getEventManager());
    QVERIFY(!m_device->getStreamSource() && !m_device->openStream());

    g_object_unref(other);

    // Once the other client has gone the camera can be opened again.
    m_bus.clear();
    m_device->refreshAccessPermission();
    QVERIFY(m_bus.waitFor(MSG_ACCESS_STATUS_CHANGED, m_key));
    QCOMPARE(int(m_device->getAccessPermission()), int(accessPermissionOpen));
    QVERIFY(m_device->openDevice(true) && m_device->closeDevice(true));
}

void TestDeviceConnect::busMessagesFromDeviceSignals()
{
    CDeviceManager* manager = CDeviceManager::getInstance();

    // Events of a key the manager does not hold reach nobody.
    SParamUpdataArg param;
    param.paramNames.push_back("Width");
    param.paramNames.push_back("PayloadSize");
    manager->on_Device_Param_Update(param, "no such key");
    manager->on_Device_Stream_Event(SStreamArg(), "no such key");
    manager->on_Device_Msg_Channel(SMsgChannelArg(), "no such key");
    deliverQueued();
    QVERIFY2(m_bus.records.isEmpty(), qPrintable(m_bus.dump()));

    // For a known key each becomes one message with the record copied.
    SStreamArg stream;
    stream.blockId = 42;
    stream.eStreamEventStatus = streamEventLostPacket;
    SMsgChannelArg channel;
    channel.eventID = 0x9001;
    channel.paramNames.push_back("EventExposureEndTimestamp");
    manager->on_Device_Param_Update(param, m_key);
    manager->on_Device_Stream_Event(stream, m_key);
    manager->on_Device_Msg_Channel(channel, m_key);
    QTRY_COMPARE(m_bus.records.size(), 3);
    QCOMPARE(int(m_bus.records[0].type), int(MSG_PARAM_UPDATE));
    QCOMPARE(m_bus.records[0].msg->device, m_device);
    QCOMPARE(int(m_bus.records[0].msg->paramUpdateArg.paramNames.size()), 2);
    QCOMPARE(QString(m_bus.records[0].msg->paramUpdateArg.paramNames[1].c_str()), QString("PayloadSize"));
    QCOMPARE(int(m_bus.records[1].type), int(MSG_STREAM_EVENT));
    QCOMPARE(m_bus.records[1].msg->streamArg.blockId, 42ull);
    QCOMPARE(int(m_bus.records[2].type), int(MSG_MSG_CHANNEL));
    QCOMPARE(int(m_bus.records[2].msg->msgChannelArg.eventID), 0x9001);

    // Device signals travel to the manager and come out as messages.
    m_bus.clear();
    emit m_device->device_param_update(param, m_key);
    QTRY_COMPARE(m_bus.count(MSG_PARAM_UPDATE, m_key), 1);

    // Status changes are always published.
    m_bus.clear();
    manager->on_Device_Status_Changed(MSG_ACCESS_STATUS_CHANGED, m_device);
    manager->on_Device_Status_Changed(MSG_DEVICE_OFFLINE, CTavDevicePtr());
    QTRY_COMPARE(m_bus.records.size(), 2);
    QCOMPARE(m_bus.records[0].msg->device, m_device);
    QCOMPARE(int(m_bus.records[1].type), int(MSG_DEVICE_OFFLINE));
    QVERIFY(!m_bus.records[1].msg->device);

    // A discovery pass ends with a type-0 message without a device.
    m_bus.clear();
    QVERIFY(rediscover());
    QTRY_COMPARE(m_bus.count(MSG_DISCOVERY_FINISHED), 1);
    for (const BusRecord& r : m_bus.records)
        if (r.type == MSG_DISCOVERY_FINISHED)
            QVERIFY(!r.msg->device);
    // The same camera keeps its device object across passes.
    QCOMPARE(manager->getDeviceByKey(m_key), m_device);
}

void TestDeviceConnect::streamNeedsConnection()
{
    QVERIFY(!m_device->isConnected() && !m_device->openStream() && !m_device->GetStreamThread()->isRunning());

    // The save name is a usable file-name stem ending in the serial number.
    const QString save = m_device->getDeviceSaveName();
    QVERIFY2(save.endsWith("_LUMCONN1") && !save.contains('/') && !save.contains(' '), qPrintable(save));
}

void TestDeviceConnect::setCameraUserId(const char* text)
{
    char buffer[16] = {};
    std::strncpy(buffer, text, sizeof(buffer) - 1);
    arv_fake_camera_write_memory(m_rig.fake(0), 0xe8, sizeof(buffer), buffer);
}

void TestDeviceConnect::nameUsesCachedUserId()
{
    auto name = [this]() {
        Vorlen::Infra::CString text;
        return m_device->generateDeviceNameByUserID(text) ? QString::fromUtf8(text.c_str()) : QString("<failed>");
    };
    Vorlen::Infra::CString modelName;
    QVERIFY(m_device->generateDeviceName(modelName));
    const QString plain = QString::fromUtf8(modelName.c_str());
    QVERIFY(plain.endsWith("(LUMCONN1)"));

    setCameraUserId("Line-A");
    QCOMPARE(name(), plain);   // not connected: no user id

    // Read by the worker before message 2, so the list shows it at once.
    QVERIFY(m_device->openDevice(false) && m_bus.waitFor(MSG_DEVICE_CONNECTED, m_key));
    QCOMPARE(name(), QString("Line-A (LUMCONN1)"));
    QTRY_VERIFY(!m_device->isConnecting());

    // The name never asks the camera: a change behind the device's back
    // shows only once the device was asked to read it again.
    setCameraUserId("Line-B");
    QCOMPARE(name(), QString("Line-A (LUMCONN1)"));
    m_device->refreshUserId();
    QVERIFY(m_device->waitForWorker(10000));
    QCOMPARE(name(), QString("Line-B (LUMCONN1)"));

    // A write through the device reads back what the camera kept.
    QVERIFY(m_device->setParaStringValue("DeviceUserID", "Line-C"));
    QCOMPARE(name(), QString("Line-C (LUMCONN1)"));
    QCOMPARE(m_device->cachedUserId(), QString("Line-C"));

    // A write through a parameter node (as the feature panel does) reaches
    // the cache by the camera's update event.
    Vorlen::GenICam::CStringNode node(m_device->getDevice(), "DeviceUserID");
    QVERIFY(node.setValue(Vorlen::Infra::CString("Line-D")));
    QTRY_COMPARE(name(), QString("Line-D (LUMCONN1)"));

    // A discovery pass reads it again for a connected device.
    setCameraUserId("Line-E");
    QVERIFY(rediscover() && m_device->waitForWorker(10000));
    QCOMPARE(name(), QString("Line-E (LUMCONN1)"));

    QVERIFY(m_device->closeDevice(false) && m_bus.waitFor(MSG_DEVICE_DISCONNECTED, m_key));
    QCOMPARE(name(), plain);
    QVERIFY(m_device->cachedUserId().isEmpty());
    setCameraUserId("");
}

void TestDeviceConnect::accessRefreshDuringReadIsCarriedOut()
{
    const Vorlen::Memory::TSharedPtr<CInternalCamera> camera = m_device->getInternalDevice();
    // Asked again twice while a read runs: one more read follows it.
    {
        CBlockingAccessThread thread;
        QueuedSignalSpy answered(&thread, &AccessStatusThread::signalRefreshAccessStatus);
        QVERIFY(thread.RefreshAccessStatus(camera) && thread.entered.tryAcquire(1, 10000));
        thread.answer = accessPermissionControl;   // the second read sees the change
        QVERIFY(thread.RefreshAccessStatus(camera) && thread.RefreshAccessStatus(camera));
        thread.release.release();
        QVERIFY(thread.entered.tryAcquire(1, 10000));
        thread.release.release();
        QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 2, 10000);
        QVERIFY(thread.waitIdle(10000));
        QCOMPARE(thread.reads.load(), 2);
        QCOMPARE(answered.at(0).at(0).value<ECameraAccessPermission>(), accessPermissionOpen);
        QCOMPARE(answered.at(1).at(0).value<ECameraAccessPermission>(), accessPermissionControl);
        // An idle thread starts again.
        QVERIFY(thread.RefreshAccessStatus(camera) && thread.entered.tryAcquire(1, 10000));
        thread.release.release();
        QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 3, 10000);
    }
    // Retired inside a read: returns at once, the pending read is dropped,
    // the thread goes once the read returns and its answer reaches nobody.
    {
        auto* owner = new QObject;
        auto* thread = new CBlockingAccessThread;
        thread->setParent(owner);
        QPointer<AccessStatusThread> alive(thread);
        bool delivered = false;
        connect(thread, &AccessStatusThread::signalRefreshAccessStatus, owner, [&]() { delivered = true; },
                Qt::QueuedConnection);
        QVERIFY(thread->RefreshAccessStatus(camera) && thread->entered.tryAcquire(1, 10000));
        QVERIFY(thread->RefreshAccessStatus(camera));
        QSemaphore* release = &thread->release;
        std::atomic<int>* reads = &thread->reads;
        // As the device's destructor: the thread, its child, is retired and
        // then the owner goes.
        thread->retire();
        delete owner;
        QVERIFY(alive && !thread->RefreshAccessStatus(camera));
        QCOMPARE(reads->load(), 1);
        release->release();
        QTRY_VERIFY_WITH_TIMEOUT(alive.isNull(), 10000);
        QVERIFY(!delivered);
    }
}

QTEST_GUILESS_MAIN(TestDeviceConnect)
#include "test_device_connect.moc"
