// The device list's rules without window or camera: for each device state
// its status icon, inline buttons, menu entries and connection checks; the
// copied information's layout; the discovery requests waiting for a busy
// worker; and the camera-task worker with its callbacks.
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
// A found device with a valid address, open to anyone, and what the words
// say: "gige", "usb:<port speed>", "type<n>", "connected", "connecting",
// "disconnecting", "grabbing", "acq" (acquisition mode enabled), "badip",
// "controlled" (by another host), "gone" (the key no longer resolves).
SDeviceState state(const QString& words)
{
    SDeviceState s;
    s.found = s.ipValid = true;
    s.accessPermission = Vorlen::GenICam::accessPermissionOpen;
    for (const QString& w : words.split(' ')) {
        if (w == "gige") {
            s.cameraType = cameraTypeGigE;
        } else if (w.startsWith("usb:")) {
            s.cameraType = cameraTypeUsb;
            s.usb3Port = isUsb3PortSpeed(w.mid(4));
            s.superSpeed = isSuperSpeedPort(w.mid(4));
        } else if (w.startsWith("type")) {
            s.cameraType = w.mid(4).toInt();
        } else {
            bool* flags[] = {&s.connected, &s.connecting, &s.disconnecting, &s.grabbing, &s.acqModeEnable};
            const int flag = QStringList({"connected", "connecting", "disconnecting", "grabbing", "acq"}).indexOf(w);
            if (flag >= 0)
                *flags[flag] = true;
            else if (w == "badip")
                s.ipValid = false;
            else if (w == "controlled")
                s.accessPermission = Vorlen::GenICam::accessPermissionControl;
            else if (w == "gone")
                s.found = false;
            else
                qFatal("unknown state word %s", qPrintable(w));
        }
    }
    return s;
}

// "C+ D- F-": each inline button shown (+), shown disabled (~) or hidden (-).
QString describe(const SInlineButtonsState& b)
{
    auto one = [](const char* name, const SButtonState& s) {
        return QString(name) + (s.visible ? (s.enabled ? "+" : "~") : "-");
    };
    return QStringList({one("C", b.connect), one("D", b.disconnect), one("F", b.forceIp)}).join(' ');
}

// The menu entries that are set, in menu order: "disc" (the first entry
// reads Disconnect), "conn" (it is enabled), "open", "save", "play", "stop"
// (play reads Stop Acquisition), "ip" (Force IP shown), "ip+" (enabled),
// "uid", "xml", "copy".
QString describe(const SDeviceMenuState& m)
{
    const bool set[] = {m.connectIsDisconnect, m.connectEnabled, m.openConfigEnabled, m.saveConfigEnabled,
                        m.playEnabled,         m.playIsStop,     m.forceIpVisible,    m.forceIpEnabled,
                        m.setUserIdEnabled,    m.saveXmlEnabled, m.copyInfoEnabled};
    const char* names[] = {"disc", "conn", "open", "save", "play", "stop", "ip", "ip+", "uid", "xml", "copy"};
    QStringList out;
    for (int i = 0; i < 11; ++i)
        if (set[i])
            out << names[i];
    return out.join(' ');
}
} // namespace

class TestDeviceListRules : public QObject
{
    Q_OBJECT
private slots:
    void rulesOfADeviceState();
    void copiedInfoText();
    void discoveryWaitsForABusyWorker();
    void cameraTasks();
};

void TestDeviceListRules::rulesOfADeviceState()
{
    const struct
    {
        const char* state;
        int icon;
        const char* buttons;
        const char* menu;
        EConnectVerdict precheck;
    } rows[] = {
        {"gige", iconNormal, "C+ D- F+", "conn open ip ip+ copy", connectGo},
        // Another host controls it: error, no Force IP, no configuration file.
        {"gige controlled", iconError, "C+ D- F+", "conn ip copy", connectGo},
        {"gige controlled connected acq", iconConnected, "C- D+ F-", "disc conn open save play ip uid xml copy",
         connectGo},
        // Streaming: no configuration files.
        {"gige controlled connected acq grabbing", iconAcquisition, "C- D+ F-",
         "disc conn play stop ip uid xml copy", connectGo},
        // An invalid address wins over everything; acquisition follows the device's mode.
        {"gige connected grabbing badip", iconWarn, "C- D+ F-", "disc conn stop ip uid xml copy", connectIpInvalid},
        {"gige badip", iconWarn, "C+ D- F+", "conn open ip ip+ copy", connectIpInvalid},
        {"gige badip gone", iconWarn, "C+ D- F+", "conn open ip ip+ copy", connectIpInvalid},
        // A row whose device went is never shown connected.
        {"gige gone connected", iconNormal, "C- D+ F-", "disc conn open save ip uid xml copy", connectGo},
        // Everything waits while a connection opens or closes.
        {"gige connecting", iconNormal, "C~ D- F~", "conn open ip ip+ copy", connectGo},
        {"gige connected disconnecting", iconConnected, "C- D~ F-", "disc conn open save ip uid xml copy", connectGo},
        {"usb:SuperSpeed", iconNormal, "C+ D- F-", "conn open copy", connectGo},
        {"usb:SuperSpeedPlus", iconNormal, "C+ D- F-", "conn open copy", connectGo},
        {"usb:HighSpeed", iconWarn, "C+ D- F-", "conn open copy", connectAskSlowUsb},
        {"usb:FullSpeed", iconError, "C+ D- F-", "conn copy", connectUsbIncompatible},
        {"usb:", iconError, "C+ D- F-", "conn copy", connectUsbIncompatible},
        // The port rule stays while connected.
        {"usb:HighSpeed connected", iconWarn, "C- D+ F-", "disc conn open save uid xml copy", connectAskSlowUsb},
        // Type 5 acquires whatever its mode.
        {"type5 connected grabbing", iconAcquisition, "C- D+ F-", "disc conn play stop uid xml copy", connectGo},
        {"type2", iconNormal, "C+ D- F-", "conn open copy", connectGo},
    };
    for (const auto& r : rows) {
        const SDeviceState s = state(r.state);
        QVERIFY2(statusIcon(s) == r.icon, r.state);
        QCOMPARE(describe(inlineButtonsState(s)), QString(r.buttons));
        QCOMPARE(describe(deviceMenuState(s)), QString(r.menu));
        QVERIFY2(connectPrecheck(s) == r.precheck, r.state);
    }

    // Once the user has agreed: the sixteenth connection is the last.
    QCOMPARE(connectFinalCheck(state("gige"), 15), connectGo);
    QCOMPARE(connectFinalCheck(state("gige"), 16), connectLimitReached);
    QCOMPARE(connectFinalCheck(state("gige connected"), 16), connectAlreadyOpen);
    QCOMPARE(connectFinalCheck(state("gige connecting"), 0), connectAlreadyOpen);
    QCOMPARE(connectFinalCheck(state("gige connecting gone"), 0), connectNotFound);

    // Stream messages: the icon follows them only while connected.
    QCOMPARE(acquisitionIcon(state("gige connected"), true), int(iconAcquisition));
    QCOMPARE(acquisitionIcon(state("gige connected grabbing"), false), int(iconConnected));
    QCOMPARE(acquisitionIcon(state("gige"), true), int(iconNormal));

    QVERIFY(isValidIpConfig("Persistent IP, LLA"));
    QVERIFY(!isValidIpConfig("Invalid On This Interface") && !isValidIpConfig(QString()));
    // Row ids wrap to 1, never 0.
    setLastCreatedId(0xFFFFFFFEu);
    QCOMPARE(createId(), 0xFFFFFFFFu);
    QCOMPARE(createId(), 1u);
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
