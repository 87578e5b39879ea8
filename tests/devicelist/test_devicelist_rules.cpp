// The device list's rules without window or camera: status icons, inline
// buttons, menu entries and connection checks from a device state; the item
// type helpers; the copied information's layout; the discovery requests
// waiting for a busy worker; and the camera-task worker with its callbacks.
#include <QSemaphore>
#include <QStringList>
#include <QtTest>
#include <atomic>

#include "CCameraTaskThread.h"
#include "CDeviceInfoRows.h"
#include "CDiscoveryScheduler.h"
#include "CSetIpThread.h"
#include "DeviceListRules.h"
#include "DiscoveryItemTypes.h"
#include "QueuedSignalSpy.h"
#include "Vorlen/GenICam/Defs.h"

namespace {
SDeviceState gige(bool connected = false)
{
    SDeviceState s;
    s.cameraType = cameraTypeGigE;
    s.found = true;
    s.ipValid = true;
    s.accessPermission = Vorlen::GenICam::accessPermissionOpen;
    s.connected = connected;
    return s;
}

SDeviceState usb(const QString& speed)
{
    SDeviceState s;
    s.cameraType = cameraTypeUsb;
    s.found = true;
    s.usb3Port = isUsb3PortSpeed(speed);
    s.superSpeed = isSuperSpeedPort(speed);
    return s;
}

// "C+ D- F-" style: each button shown (+) enabled, shown disabled (~) or hidden (-).
QString describe(const SInlineButtonsState& b)
{
    auto one = [](const char* name, const SButtonState& s) {
        return QString(name) + (s.visible ? (s.enabled ? "+" : "~") : "-");
    };
    return QStringList({one("C", b.connect), one("D", b.disconnect), one("F", b.forceIp)}).join(' ');
}
} // namespace

class TestDeviceListRules : public QObject
{
    Q_OBJECT
private slots:
    void itemTypes();
    void statusIcons();
    void inlineButtons();
    void deviceMenu();
    void connectChecks();
    void copiedInfoText();
    void discoveryWaitsForABusyWorker();
    void cameraTasks();
};

void TestDeviceListRules::itemTypes()
{
    QCOMPARE(treeItemType(0, true), 1001);
    QCOMPARE(treeItemType(1, false), 1008);
    QCOMPARE(treeItemType(5, false), 1012);
    QCOMPARE(treeItemType(6, false), 1000);   // no such row
    QVERIFY(isInterfaceItemType(1001) && isInterfaceItemType(1006) && !isInterfaceItemType(1007));
    QVERIFY(isDeviceItemType(1007) && isDeviceItemType(1012) && !isDeviceItemType(1013) && !isDeviceItemType(1006));
    QCOMPARE(deviceCameraType(1008), 1);
    QCOMPARE(deviceCameraType(1001), -1);
    QCOMPARE(interfaceType(Vorlen::GenICam::typeUsb3Vision), 2);
    QCOMPARE(interfaceType(Vorlen::GenICam::typeUndefined), 0);
    QCOMPARE(deviceType(6), 6);
    QCOMPARE(deviceType(0), 0);
    setLastCreatedId(0xFFFFFFFEu);
    QCOMPARE(createId(), 0xFFFFFFFFu);
    QCOMPARE(createId(), 1u);   // wraps to 1, never 0
    QCOMPARE(toUid(QVariant(7)), 7u);
}

void TestDeviceListRules::statusIcons()
{
    SDeviceState s = gige();
    QCOMPARE(statusIcon(s), int(iconNormal));
    s.accessPermission = Vorlen::GenICam::accessPermissionControl;   // another host controls it
    QCOMPARE(statusIcon(s), int(iconError));
    s.connected = true;   // ours now
    QCOMPARE(statusIcon(s), int(iconConnected));
    s.grabbing = true;
    QCOMPARE(statusIcon(s), int(iconAcquisition));
    s.ipValid = false;   // an invalid address wins over everything
    QCOMPARE(statusIcon(s), int(iconWarn));
    s = gige();
    s.found = false;   // a row whose device went: never "connected"
    s.connected = true;
    QCOMPARE(statusIcon(s), int(iconNormal));

    QCOMPARE(statusIcon(usb("SuperSpeed")), int(iconNormal));
    QCOMPARE(statusIcon(usb("SuperSpeedPlus")), int(iconNormal));
    QCOMPARE(statusIcon(usb("HighSpeed")), int(iconWarn));
    QCOMPARE(statusIcon(usb("FullSpeed")), int(iconError));
    QCOMPARE(statusIcon(usb(QString())), int(iconError));
    SDeviceState slow = usb("HighSpeed");
    slow.connected = true;
    QCOMPARE(statusIcon(slow), int(iconWarn));   // the port rule stays while connected
    SDeviceState other;
    other.cameraType = 5;
    other.found = other.connected = other.grabbing = true;
    QCOMPARE(statusIcon(other), int(iconAcquisition));

    // Stream messages: the icon follows them only while connected.
    QCOMPARE(acquisitionIcon(gige(true), true), int(iconAcquisition));
    QCOMPARE(acquisitionIcon(gige(true), false), int(iconConnected));
    QCOMPARE(acquisitionIcon(gige(false), true), int(iconNormal));

    QVERIFY(isValidIpConfig("Persistent IP, LLA"));
    QVERIFY(!isValidIpConfig("Invalid On This Interface"));
    QVERIFY(!isValidIpConfig(QString()));
}

void TestDeviceListRules::inlineButtons()
{
    QCOMPARE(describe(inlineButtonsState(gige())), QString("C+ D- F+"));
    QCOMPARE(describe(inlineButtonsState(gige(true))), QString("C- D+ F-"));
    SDeviceState s = gige();
    s.ipValid = false;
    QCOMPARE(describe(inlineButtonsState(s)), QString("C+ D- F+"));
    s = gige();
    s.connecting = true;   // everything waits for the connection
    QCOMPARE(describe(inlineButtonsState(s)), QString("C~ D- F~"));
    s = gige(true);
    s.disconnecting = true;
    QCOMPARE(describe(inlineButtonsState(s)), QString("C- D~ F-"));
    QCOMPARE(describe(inlineButtonsState(usb("SuperSpeed"))), QString("C+ D- F-"));
    SDeviceState other;
    other.cameraType = 2;
    other.found = true;
    QCOMPARE(describe(inlineButtonsState(other)), QString("C+ D- F-"));
}

void TestDeviceListRules::deviceMenu()
{
    // Connected, not streaming.
    SDeviceState s = gige(true);
    s.acqModeEnable = true;
    SDeviceMenuState m = deviceMenuState(s);
    QVERIFY(m.connectIsDisconnect && m.connectEnabled);
    QVERIFY(m.playEnabled && !m.playIsStop);
    QVERIFY(m.openConfigEnabled && m.saveConfigEnabled);
    QVERIFY(m.forceIpVisible && !m.forceIpEnabled);
    QVERIFY(m.setUserIdEnabled && m.saveXmlEnabled && m.copyInfoEnabled);
    // Streaming: no configuration files.
    s.grabbing = true;
    m = deviceMenuState(s);
    QVERIFY(m.playIsStop && m.playEnabled);
    QVERIFY(!m.openConfigEnabled && !m.saveConfigEnabled);
    // Acquisition follows the device's mode, except for type 5.
    s = gige(true);
    QVERIFY(!deviceMenuState(s).playEnabled);
    s.cameraType = 5;
    QVERIFY(deviceMenuState(s).playEnabled);
    QVERIFY(!deviceMenuState(s).forceIpVisible);

    // Disconnected.
    m = deviceMenuState(gige());
    QVERIFY(!m.connectIsDisconnect && m.connectEnabled);
    QVERIFY(m.forceIpVisible && m.forceIpEnabled && m.openConfigEnabled);
    QVERIFY(!m.playEnabled && !m.playIsStop && !m.saveConfigEnabled && !m.setUserIdEnabled && !m.saveXmlEnabled);
    QVERIFY(m.copyInfoEnabled);
    s = gige();
    s.accessPermission = Vorlen::GenICam::accessPermissionControl;
    m = deviceMenuState(s);
    QVERIFY(!m.forceIpEnabled && !m.openConfigEnabled);
    QVERIFY(!deviceMenuState(usb("FullSpeed")).openConfigEnabled);
    QVERIFY(deviceMenuState(usb("HighSpeed")).openConfigEnabled);
    QVERIFY(!deviceMenuState(usb("SuperSpeed")).forceIpVisible);
}

void TestDeviceListRules::connectChecks()
{
    QCOMPARE(connectPrecheck(gige()), connectGo);
    SDeviceState s = gige();
    s.ipValid = false;
    QCOMPARE(connectPrecheck(s), connectIpInvalid);
    s.found = false;   // a vanished GigE device reads as an invalid address first
    QCOMPARE(connectPrecheck(s), connectIpInvalid);
    QCOMPARE(connectPrecheck(usb("FullSpeed")), connectUsbIncompatible);
    QCOMPARE(connectPrecheck(usb("HighSpeed")), connectAskSlowUsb);
    QCOMPARE(connectPrecheck(usb("SuperSpeed")), connectGo);

    QCOMPARE(connectFinalCheck(gige(), 0), connectGo);
    QCOMPARE(connectFinalCheck(gige(), kMaxConnections - 1), connectGo);   // the sixteenth
    QCOMPARE(connectFinalCheck(gige(), kMaxConnections), connectLimitReached);
    QCOMPARE(connectFinalCheck(gige(true), kMaxConnections), connectAlreadyOpen);
    s = gige();
    s.connecting = true;
    QCOMPARE(connectFinalCheck(s, 0), connectAlreadyOpen);
    s.found = false;
    QCOMPARE(connectFinalCheck(s, 0), connectNotFound);
    QCOMPARE(kMaxConnections, 16);
}

void TestDeviceListRules::copiedInfoText()
{
    SDeviceInfoRows rows;
    rows.interfaceRows << InfoRow("Description", "eth0");
    rows.deviceRows << InfoRow("Serial Number", "SN1") << InfoRow("A label longer than twenty-five", "v");
    QCOMPARE(CDeviceInfoRows::toCopyText(rows), QString("Interface Info\n"
                                                        "Description               eth0\n"
                                                        "\n"
                                                        "Device Info\n"
                                                        "Serial Number             SN1\n"
                                                        "A label longer than twenty-five v\n"));
}

void TestDeviceListRules::discoveryWaitsForABusyWorker()
{
    bool busy = false;
    QStringList started;
    CDiscoveryScheduler scheduler([&busy]() { return busy; }, [&started](const QString& ip) { started << ip; });

    // Idle: at once.
    scheduler.request(QString());
    QCOMPARE(started, QStringList({QString()}));
    QVERIFY(!scheduler.isPending());

    // Busy: waits for the end of the pass under way.
    busy = true;
    started.clear();
    scheduler.request("10.0.0.5");
    scheduler.request(QString());   // a plain refresh does not replace the address
    QVERIFY(scheduler.isPending());
    QCOMPARE(scheduler.pendingIp(), QString("10.0.0.5"));
    QVERIFY(started.isEmpty());
    scheduler.passFinished();   // another pass was asked for meanwhile: still waiting
    QVERIFY(started.isEmpty());
    busy = false;
    scheduler.passFinished();
    QCOMPARE(started, QStringList({"10.0.0.5"}));
    QVERIFY(!scheduler.isPending());
    scheduler.passFinished();   // nothing waits: nothing goes
    QCOMPARE(started.size(), 1);

    // A later address replaces an earlier one.
    busy = true;
    scheduler.request("10.0.0.6");
    scheduler.request("10.0.0.7");
    busy = false;
    scheduler.passFinished();
    QCOMPARE(started, QStringList({"10.0.0.5", "10.0.0.7"}));
}

void TestDeviceListRules::cameraTasks()
{
    QCOMPARE(CCameraTaskThread::liveCount(), 0);
    auto* worker = new CCameraTaskThread("TestTasks");
    QCOMPARE(CCameraTaskThread::liveCount(), 1);

    // Results come back in order, on this thread, and only to living contexts.
    QStringList answers;
    QObject context;
    auto* gone = new QObject;
    QSemaphore release;
    auto blocked = [&release]() {
        release.acquire();
        return true;
    };
    worker->run(&context, blocked, [&](bool ok, const QString&) { answers << QString("first %1").arg(ok); });
    worker->run(gone, []() { return true; }, [&](bool, const QString&) { answers << "gone"; });
    worker->run(&context, []() { return false; }, [&](bool ok, const QString&) {
        const bool onThisThread = QThread::currentThread() == QCoreApplication::instance()->thread();
        answers << QString("third %1 %2").arg(ok).arg(onThisThread);
    });
    delete gone;   // before its task ran
    release.release();
    QVERIFY(worker->waitIdle(10000));
    QCoreApplication::processEvents();   // every answer the worker sent is delivered now
    QCOMPARE(answers, QStringList({"first 1", "third 0 1"}));

    // The owner closes while a task runs: it retires the worker without
    // waiting; the task finishes, its answer goes nowhere, the worker goes.
    auto* owner = new QObject;
    std::atomic<bool> ran{false};
    QSemaphore entered;
    worker->run(owner, [&]() {
        entered.release();
        return blocked() && (ran = true);
    }, [&](bool, const QString&) { answers << "late"; });
    QVERIFY(entered.tryAcquire(1, 10000));   // under way, not merely queued
    delete owner;
    worker->retire();
    release.release();
    QTRY_COMPARE(CCameraTaskThread::liveCount(), 0);
    QVERIFY(ran);
    QCOMPARE(answers.size(), 2);

    // The persistent address worker reports a key no device answers to.
    CSetIpThread setIp;
    QueuedSignalSpy ended(&setIp, &CSetIpThread::signalSetIpEnd);
    setIp.startSetIp("no such camera", "192.168.7.21", "255.255.255.0", "0.0.0.0");
    QVERIFY(ended.wait(10000));
    QCOMPARE(ended.first().first().toBool(), false);
}

QTEST_GUILESS_MAIN(TestDeviceListRules)
#include "test_devicelist_rules.moc"
