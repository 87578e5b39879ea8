// The device list without camera: for each device state its status icon,
// inline buttons, menu entries and connection checks; the copied
// information's layout; the discovery requests waiting for a busy worker;
// the camera-task worker with its callbacks; the rows model (roots, the
// in-place merge of discovery passes, remembered items, icons) and the
// information sections.
#include <QSemaphore>
#include <QSignalSpy>
#include <QStringList>
#include <QTreeWidget>
#include <QtTest>

#include "CCameraTaskThread.h"
#include "CDeviceInfoRows.h"
#include "CDeviceInfoSections.h"
#include "CDeviceListModel.h"
#include "CDiscoveryScheduler.h"
#include "CDiscoveryRootForm.h"
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

SDeviceRow row(int type, const char* key, const QByteArray& name = QByteArray())
{
    return SDeviceRow{type, QString::fromLatin1(key), name.isEmpty() ? QByteArray("Cam ") + key : name};
}

QStringList keysUnder(QTreeWidgetItem* root)
{
    QStringList keys;
    for (int i = 0; i < root->childCount(); ++i)
        keys << CDeviceListModel::getDeviceKey(root->child(i));
    return keys;
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
    void init();
    void cleanup();
    void mergeKeepsItemsAtTheirPlace();
    void namesAndIcons();
    void informationSections();

private:
    // A fresh tree with its GigE and USB roots for each test.
    QTreeWidget* m_tree = nullptr;
    CDeviceListModel* m_model = nullptr;
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

    // Idle: at once. Busy: waits for the end of the pass under way.
    scheduler.request(QString());
    QVERIFY(started == QStringList({QString()}) && !scheduler.isPending());
    busy = true;
    started.clear();
    scheduler.request("10.0.0.5");
    scheduler.request(QString());   // a plain refresh does not replace the address
    QVERIFY(scheduler.isPending() && scheduler.pendingIp() == "10.0.0.5" && started.isEmpty());
    scheduler.passFinished();   // another pass was asked for meanwhile: still waiting
    QVERIFY(started.isEmpty());
    busy = false;
    scheduler.passFinished();
    QVERIFY(started == QStringList({"10.0.0.5"}) && !scheduler.isPending());
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

    // (Retiring while a task runs is the job queue's, tested with the feature write worker.)
    delete worker;
    QCOMPARE(CCameraTaskThread::liveCount(), 0);

    // The persistent address worker reports a key no device answers to.
    CSetIpThread setIp;
    QueuedSignalSpy ended(&setIp, &CSetIpThread::signalSetIpEnd);
    setIp.startSetIp("no such camera", "192.168.7.21", "255.255.255.0", "0.0.0.0");
    QVERIFY(ended.wait(10000));
    QCOMPARE(ended.first().first().toBool(), false);
}

void TestDeviceListRules::init()
{
    m_tree = new QTreeWidget;
    m_tree->setColumnCount(2);
    m_model = new CDeviceListModel(m_tree, m_tree);
    m_model->createRootItem(cameraTypeGigE);
    m_model->createRootItem(cameraTypeUsb);
    m_tree->show();
}

void TestDeviceListRules::cleanup()
{
    delete m_tree;
}

void TestDeviceListRules::mergeKeepsItemsAtTheirPlace()
{
    m_model->merge({row(0, "A"), row(0, "B"), row(1, "U")});
    QTreeWidgetItem* gige = m_model->getRootItem(0);
    QTreeWidgetItem* usb = m_model->getRootItem(1);
    QCOMPARE(keysUnder(gige), QStringList({"A", "B"}));
    QCOMPARE(keysUnder(usb), QStringList({"U"}));
    QTreeWidgetItem* a = gige->child(0);
    QTreeWidgetItem* b = gige->child(1);
    QVERIFY(a->type() == 1007 && usb->child(0)->type() == 1008 && gige->type() == 1001 && usb->type() == 1002);
    QCOMPARE(m_tree->itemWidget(gige, 0), static_cast<QWidget*>(m_model->rootForm(0)));
    QCOMPARE(a->text(0), QString("Cam A"));
    QCOMPARE(a->toolTip(0), QString("Cam A"));
    QCOMPARE(m_model->getItemByKey("U"), usb->child(0));
    QVERIFY(!m_model->getItemByKey("Z") && !m_model->getItemByKey(QString()));
    QVERIFY(m_model->rootForm(0)->isCheckBoxVisible() && m_model->rootForm(1)->isCheckBoxVisible());

    // A camera of a kind without a root (only GigE and USB have one) is not shown.
    m_model->merge({row(0, "A"), row(0, "B"), row(1, "U"), row(2, "CL"), row(5, "TL")});
    QVERIFY(gige->child(0) == a && gige->child(1) == b && m_model->deviceItems().size() == 3);

    // A new device in front: inserted there; the one at its place stays.
    // Appended at the end. The USB root, empty now, hides its check box.
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B"}));
    QCOMPARE(gige->child(2), b);
    QVERIFY(!m_model->rootForm(1)->isCheckBoxVisible() && usb->childCount() == 0);
    m_model->merge({row(0, "0"), row(0, "A"), row(0, "B"), row(0, "C")});
    QCOMPARE(keysUnder(gige), QStringList({"0", "A", "B", "C"}));
    QCOMPARE(gige->child(2), b);
    // Device items, however they came, span their first column over the row.
    for (QTreeWidgetItem* item : m_model->deviceItems())
        QVERIFY2(item->isFirstColumnSpanned(), qPrintable(CDeviceListModel::getDeviceKey(item)));

    // Every root is ticked again after a pass. A device that leaves takes
    // the remembered current and context items with it, saying so.
    m_model->setCurrentItem(gige->child(0));
    m_model->setContextItem(gige->child(3));
    QSignalSpy currentGone(m_model, &CDeviceListModel::currentItemRemoved);
    QSignalSpy contextGone(m_model, &CDeviceListModel::contextItemRemoved);
    m_model->rootForm(0)->setChecked(false);
    m_model->merge({row(0, "0"), row(0, "A")});
    QVERIFY(m_model->rootForm(0)->isChecked());
    QCOMPARE(keysUnder(gige), QStringList({"0", "A"}));
    QVERIFY(contextGone.count() == 1 && !m_model->contextItem());
    QVERIFY(currentGone.isEmpty() && m_model->currentItem() == gige->child(0));
    m_model->merge({});
    QVERIFY(currentGone.count() == 1 && !m_model->currentItem() && !m_model->rootForm(0)->isCheckBoxVisible());
}

void TestDeviceListRules::namesAndIcons()
{
    // A new row reads the camera's bytes as Latin-1, a row that is only
    // updated reads them as UTF-8 (kept as it has always been).
    const QByteArray utf8 = QString::fromUtf8("Kamera é").toUtf8();
    m_model->merge({row(0, "K", utf8)});
    QTreeWidgetItem* item = m_model->getItemByKey("K");
    QCOMPARE(item->text(0), QString::fromLatin1(utf8));
    m_model->merge({row(0, "K", utf8)});
    QCOMPARE(m_model->getItemByKey("K"), item);
    QCOMPARE(item->text(0), QString::fromUtf8("Kamera é"));
    QCOMPARE(item->toolTip(0), item->text(0));

    // (Its status icon follows the camera in the panel test.)
    QVERIFY(CDeviceListModel::itemIconIndex(item) == -1 && CDeviceListModel::itemIconIndex(nullptr) == -1);
}

void TestDeviceListRules::informationSections()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    CDeviceInfoSections info(&tree);
    const auto interface = CDeviceInfoSections::interfaceSection;
    const auto device = CDeviceInfoSections::deviceSection;
    SDeviceInfoRows rows;
    rows.interfaceRows << InfoRow("Description", "eth0");
    rows.deviceRows << InfoRow("Serial Number", "SN1") << InfoRow("Access Status", "Open");
    info.form(interface)->setChecked(false);
    info.setRows(rows);
    QVERIFY(info.rows(interface) == rows.interfaceRows && info.rows(device) == rows.deviceRows);
    // Each section opens as its check box says; a double click on a
    // section's row flips it, on any other row nothing.
    QVERIFY(!info.item(interface)->isExpanded() && info.item(device)->isExpanded());
    QVERIFY(info.toggle(info.item(device)) && !info.toggle(info.item(device)->child(0)));
    QVERIFY(!info.form(device)->isChecked() && !info.item(device)->isExpanded());
    // The access status is rewritten in place as it changes.
    info.setDeviceValue("Access Status", "Control");
    QCOMPARE(info.rows(device).at(1), InfoRow("Access Status", "Control"));
}

QTEST_MAIN(TestDeviceListRules)
#include "test_devicelist_rules.moc"
