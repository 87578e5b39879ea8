// The IP and unicast dialogs: every field's checks and messages, the
// forced address sent to a GVCP listener of the test's own (the simulated
// camera does not implement FORCEIP), the persistent write that follows, a
// camera that goes away while the dialog is open, and the remote-camera
// dialog opened from the GigE root.
#include "FakeCameraRig.h"
#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTextCodec>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDiscoveryDevicesForm.h"
#include "CSetIPDlg.h"
#include "CUnicastDlg.h"
#include "CWaitDlg.h"
#include "DeviceListTestSupport.h"
#include "GvcpResponder.h"
#include "QueuedSignalSpy.h"
#include "Vorlen/GenICam.h"

namespace {
const char* const kResponderIp = "127.0.0.5";
const uint64_t kResponderMac = 0x0A1B2C3D4E5Full;

Gvcp::SDeviceInfo responderIdentity()
{
    Gvcp::SDeviceInfo info;
    info.versionMajor = 2;
    info.mac = kResponderMac;
    info.ipConfigOptions = 0x7;
    info.ipConfigCurrent = 0x5;
    info.ip = 0x7F000005;
    info.mask = 0xFF000000;
    info.manufacturer = "Acme";
    info.model = "Responder";
    info.serial = "RESP1";
    return info;
}

void fill(CSetIPDlg* d, const QString& ip, const QString& mask, const QString& gateway)
{
    d->txtDevIP()->setText(ip);
    d->txtDevSubnetMask()->setText(mask);
    d->txtDevGateway()->setText(gateway);
}
} // namespace

class TestDeviceListDialogs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void unicastDialogChecks();
    void ipDialogEditing();
    void ipDialogRefusesBadInput();
    void forceIpThroughTheTree();
    void forceIpFailuresKeepTheDialogOpen();
    void remoteCameraFromTheGigERoot();
    void cameraGoneWhileDialogOpen();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    QTreeWidgetItem* responderItem() const;
    // The IP dialog for the responder, shown, persistent write as given;
    // null when it could not be filled.
    std::unique_ptr<CSetIPDlg> openIpDialog(bool persistent) const;

    QWidget* m_host = nullptr;
    CDiscoveryDevicesForm* m_form = nullptr;
    GvcpResponder* m_responder = nullptr;
};

QTreeWidgetItem* TestDeviceListDialogs::responderItem() const
{
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    return device ? m_form->getItemByDevice(device) : nullptr;
}

std::unique_ptr<CSetIPDlg> TestDeviceListDialogs::openIpDialog(bool persistent) const
{
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    if (!device)
        return nullptr;
    auto info = Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(device->getDevice());
    std::unique_ptr<CSetIPDlg> dialog(new CSetIPDlg(true, nullptr));
    if (!dialog->setInfo(info, device->getDevice()->getKey()))
        return nullptr;
    dialog->cbSetPersistentIP()->setChecked(persistent);
    dialog->show();
    return dialog;
}

void TestDeviceListDialogs::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    enableLogWhenAsked();
    // Lengths are counted in the local 8-bit encoding: make it UTF-8 whatever
    // the test's locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (!FakeCameraRig::hasAddress(kResponderIp))
        QFAIL("127.0.0.5 is not on the loopback interface: run inside scripts/netns.sh (or scripts/loopback.sh as root)");
    m_responder = new GvcpResponder(kResponderIp, responderIdentity());
    QVERIFY2(m_responder->isListening(), "cannot listen on 127.0.0.5:3956");
    m_host = new QWidget;
    m_form = new CDiscoveryDevicesForm(m_host);
    m_form->resize(320, 600);
    m_host->show();
    // The automatic refresh is driven by hand where a test wants it, never by the clock.
    m_form->autoRefreshTimer()->stop();
    QVERIFY(rediscoverWhenIdle(kResponderIp));
    QTRY_VERIFY_WITH_TIMEOUT(responderItem() != nullptr, 15000);
}

void TestDeviceListDialogs::cleanupTestCase()
{
    delete m_host;
    delete m_responder;
    m_owner.reset();
}

void TestDeviceListDialogs::unicastDialogChecks()
{
    BoxAnswerer answerer;
    CUnicastDlg dialog;
    dialog.show();
    QCOMPARE(dialog.getEditValue(), QString("255.255.255.255"));
    // No broadcast, multicast or loopback address, nothing but a full dotted quad.
    for (const char* text : {"255.255.255.255", "224.0.0.1", "127.0.0.1", "1.2.3", "1.2.3.256", "", "a.b.c.d"}) {
        dialog.lineEdit()->setText(QString::fromLatin1(text));
        dialog.okButton()->click();
        QCOMPARE(answerer.last(), QString("invalid ip"));
        QVERIFY2(dialog.isVisible() && dialog.result() != QDialog::Accepted, text);
    }
    // Counted in bytes: 11 characters, 31 bytes (the user-ID dialog shares the rule).
    dialog.lineEdit()->setText(QString::fromUtf8("１２３.４５.６.７"));
    dialog.okButton()->click();
    QCOMPARE(answerer.last(), QString("The length of IP can not be longer than 15."));
    QVERIFY(dialog.isVisible());   // (an accepted address: remoteCameraFromTheGigERoot)
}

void TestDeviceListDialogs::ipDialogEditing()
{
    std::unique_ptr<CSetIPDlg> owned = openIpDialog(true);
    QVERIFY(owned);
    CSetIPDlg& dialog = *owned;
    QVERIFY(dialog.txtDevIP()->text() == "127.0.0.5" && dialog.txtDevSubnetMask()->text() == "255.0.0.0");
    QCOMPARE(dialog.txtDevMac()->text(), QString("0a:1b:2c:3d:4e:5f"));
    QVERIFY(dialog.txtInterfaceIP()->text().startsWith("127.") && !dialog.isSubnetWarningShown());

    // Typing a number above 255 turns it into 255 and says why.
    dialog.txtDevIP()->clear();
    QTest::keyClicks(dialog.txtDevIP(), "10.300");
    QCOMPARE(dialog.txtDevIP()->text(), QString("10.255"));
    QCOMPARE(dialog.hintText(), QString("Not a valid number. Please enter a number between 0 and 255!"));
    QTest::keyClicks(dialog.txtDevIP(), ".0.9");
    QCOMPARE(dialog.txtDevIP()->text(), QString("10.255.0.9"));
    QVERIFY(dialog.hintText().isEmpty() && dialog.isSubnetWarningShown());   // not in 127.0.0.0/8
    dialog.txtDevSubnetMask()->clear();
    QTest::keyClicks(dialog.txtDevSubnetMask(), "255.255.256.0");
    QCOMPARE(dialog.txtDevSubnetMask()->text(), QString("255.255.255.0"));

    // Only numbers of three digits are capped; a part of four is left as it is.
    QString text = "255.250.25.2550";
    QVERIFY(!CSetIPDlg::invalidIPto255(text) && text == "255.250.25.2550");
    // Only the four whole-octet masks match.
    QStringList matched;
    for (const char* mask : {"255.0.0.0", "255.255.0.0", "255.255.255.0", "255.255.255.255", "255.255.255.128",
                             "0.0.0.0", "255.255.0.255", ""})
        if (CSetIPDlg::isNetMaskMatched(mask))
            matched << mask;
    QCOMPARE(matched, QStringList({"255.0.0.0", "255.255.0.0", "255.255.255.0", "255.255.255.255"}));

    // The cursor never rests past the last allowed character.
    dialog.txtDevGateway()->setText("192.168.100.200");
    dialog.txtDevGateway()->setCursorPosition(15);
    QCOMPARE(dialog.txtDevGateway()->cursorPosition(), 14);

    // The check box follows the configuration, and OK stores it.
    CConfiguration::getInstance()->setPersistentIP = false;
    CConfiguration::getInstance()->notifyRestoreCfg();
    QVERIFY(!dialog.cbSetPersistentIP()->isChecked());
    CConfiguration::getInstance()->setPersistentIP = true;
    CConfiguration::getInstance()->notifyRestoreCfg();
    QVERIFY(dialog.cbSetPersistentIP()->isChecked());
}

void TestDeviceListDialogs::ipDialogRefusesBadInput()
{
    std::unique_ptr<CSetIPDlg> owned = openIpDialog(false);
    QVERIFY(owned);
    CSetIPDlg& dialog = *owned;
    BoxAnswerer answerer(QMessageBox::Cancel);
    struct SCase
    {
        const char *ip, *mask, *gateway, *message;
    };
    const SCase cases[] = {
        {"", "255.0.0.0", "", "IP or Subnet Mask is empty."},
        {"10.0.0.9", "", "", "IP or Subnet Mask is empty."},
        {"10.1", "255.0.0.0", "", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        {"10.0.0.9", "255.0.0.0", "10.0.1", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        {"10.0.0.9x", "255.0.0.0", "", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        {"10.0.0.9", "255.0.0", "", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        {"10.0.0.9", "255.0.0.0x", "", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        {"10.0.300.9", "255.0.0.0", "", "IP or Subnet Mask or Gateway is out of range of 0-255."},
        // Then the rules of checkIp (each tested on its own), each with its message.
        {"224.0.0.1", "255.0.0.0", "", "IP or Gateway in the 224.*.*.* to 255.*.*.* range or 0.*.*.* cannot be "
                                       "assigned to a device."},
        {"127.0.0.9", "255.0.0.0", "", "IP addresses 127.*.*.* cannot be assigned to a device."},
        {"10.0.0.0", "255.0.0.0", "0.0.0.0", "IP host number can not be all 0."},
        {"10.255.255.255", "255.0.0.0", "", "IP host number can not be all 1."},
        {"10.0.0.9", "255.0.0.0", "10.0.0.0", "Gateway host number can not be all 0."},
        {"10.0.0.9", "255.0.0.0", "10.255.255.255", "Gateway host number can not be all 1."},
        {"10.0.0.9", "255.0.0.0", "", "The network segment of the device is different from NIC's. Are you sure you "
                                      "want to continue?"},
    };
    for (const SCase& c : cases) {
        fill(&dialog, c.ip, c.mask, c.gateway);
        dialog.btnOk()->click();
        QCOMPARE(answerer.last(), QString::fromLatin1(c.message));
        QVERIFY2(dialog.isVisible() && !dialog.isBusy(), c.ip);
    }
    QCOMPARE(answerer.texts.size(), int(sizeof(cases) / sizeof(cases[0])));
    // Nothing reached the camera.
    QVERIFY(m_responder->forced().empty());
    // (The interface here is on 127.0.0.0/8, so this check cannot be reached.)
    QCOMPARE(CSetIPDlg::checkIpMessage(9), QString("Device IP address should differ from Interface IP address."));
}

void TestDeviceListDialogs::forceIpThroughTheTree()
{
    QTreeWidgetItem* item = responderItem();
    QVERIFY(item);
    BoxAnswerer answerer(QMessageBox::Ok);   // also "continue?" for another subnet
    bool sawWait = false;
    onDialog<CSetIPDlg>([&](CSetIPDlg* dialog) {
        dialog->cbSetPersistentIP()->setChecked(false);
        fill(dialog, "10.0.0.9", "255.0.0.0", "10.0.0.1");
        dialog->btnOk()->click();
        sawWait = dialog->waitDialog()->isVisible() && dialog->isBusy();
    });
    QSignalSpy finished(CDeviceManager::getInstance(), &CDeviceManager::discoveryDevicesFinished);
    const size_t before = m_responder->forced().size();
    m_form->setCurrentDeviceItem(item);
    m_form->on_ActionForceIpTriggered();   // returns once the dialog has closed
    QVERIFY(sawWait);
    QCOMPARE(answerer.texts, QStringList({"The network segment of the device is different from NIC's. Are you sure "
                                          "you want to continue?"}));
    const auto forced = m_responder->forced();
    QCOMPARE(forced.size(), before + 1);
    QVERIFY(forced.back().mac == kResponderMac && forced.back().ip == 0x0A000009u);
    QVERIFY(forced.back().mask == 0xFF000000u && forced.back().gateway == 0x0A000001u);
    // An accepted dialog makes the tree rediscover.
    QVERIFY(finished.wait(20000));
    QVERIFY(!CConfiguration::getInstance()->setPersistentIP);   // OK stored the check box
    CConfiguration::getInstance()->setPersistentIP = true;
}

void TestDeviceListDialogs::forceIpFailuresKeepTheDialogOpen()
{
    QTRY_VERIFY_WITH_TIMEOUT(responderItem() != nullptr, 15000);
    BoxAnswerer answerer(QMessageBox::Ok);
    // No acknowledge to FORCEIP; then the forced address taken, but not the
    // persistent write (the listener grants no control session).
    for (const bool persistent : {false, true}) {
        m_responder->setAnswerForceIp(persistent);
        std::unique_ptr<CSetIPDlg> dialog = openIpDialog(persistent);
        QVERIFY(dialog);
        fill(dialog.get(), persistent ? "10.0.0.10" : "10.0.0.9", "255.0.0.0", "");
        dialog->btnOk()->click();
        QVERIFY(dialog->isBusy() && dialog->waitDialog()->isVisible());
        dialog->reject();   // refused while the camera is being written
        QVERIFY(dialog->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog->isBusy(), 20000);
        QCOMPARE(answerer.last(), QString(persistent ? "Set persistent IP failed." : "Set device IP failed."));
        QVERIFY(dialog->isVisible() && dialog->result() != QDialog::Accepted && !dialog->waitDialog()->isVisible());
    }
    QCOMPARE(m_responder->forced().back().ip, 0x0A00000Au);
}

void TestDeviceListDialogs::remoteCameraFromTheGigERoot()
{
    // The dialog starts from the address used last, refuses a loopback
    // address (never a camera's), and an accepted one is stored and probed
    // (the library's unicast discovery and the worker's list of remote
    // cameras are tested on their own).
    BoxAnswerer answerer;
    CConfiguration::getInstance()->RemoteIpAddr = "10.0.0.5";
    QueuedSignalSpy passes(CDiscoveryDevicesThread::getInstance(), &CDiscoveryDevicesThread::discoveryDevicesFinished);
    QString preset;
    bool stayedOpen = false;
    onDialog<CUnicastDlg>([&](CUnicastDlg* dialog) {
        preset = dialog->getEditValue();
        dialog->lineEdit()->setText(kResponderIp);
        dialog->okButton()->click();
        stayedOpen = dialog->isVisible();
        dialog->lineEdit()->setText("10.0.0.7");
        dialog->okButton()->click();
    });
    m_form->ShowContextMenu(m_form->deviceList()->visualItemRect(m_form->getRootItem(0)).center());
    QVERIFY(m_form->rootMenu()->isVisible());
    m_form->rootMenu()->close();
    m_form->actionUnicast()->trigger();
    QVERIFY(preset == "10.0.0.5" && stayedOpen);
    QCOMPARE(answerer.texts, QStringList({"invalid ip"}));
    QCOMPARE(CConfiguration::getInstance()->RemoteIpAddr, QString("10.0.0.7"));
    // Nothing answers there: only a unicast probe reports a failed pass.
    QVERIFY(QTest::qWaitFor([&]() { return !passes.isEmpty() && !passes.last().first().toBool(); }, 20000));
    QVERIFY(!CDiscoveryDevicesThread::getInstance()->unicastAddresses().contains("10.0.0.7"));
}

void TestDeviceListDialogs::cameraGoneWhileDialogOpen()
{
    QTRY_VERIFY_WITH_TIMEOUT(responderItem() != nullptr, 15000);
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    const Vorlen::Infra::CString key = device->getDevice()->getKey();
    auto info = Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(device->getDevice());
    device.reset();
    BoxAnswerer answerer(QMessageBox::Ok);
    std::unique_ptr<CSetIPDlg> dialog = openIpDialog(false);
    QVERIFY(dialog);

    // The camera stops answering and leaves the device map.
    m_responder->stop();
    QVERIFY(QTest::qWaitFor([&]() {
        if (!findDeviceBySerial("RESP1"))
            return true;
        rediscoverWhenIdle();
        return false;
    }, 30000));
    QVERIFY(!responderItem());

    const int before = int(m_responder->forced().size());
    fill(dialog.get(), "10.0.0.9", "255.0.0.0", "");
    dialog->btnOk()->click();
    QCOMPARE(answerer.last(), QString("Device not found."));
    QVERIFY(dialog->isVisible() && !dialog->isBusy());
    QCOMPARE(int(m_responder->forced().size()), before);

    // A dialog opened for a key that no longer resolves says so at once.
    CSetIPDlg late(true, nullptr);
    QVERIFY(!late.setInfo(info, key));
    QCOMPARE(answerer.last(), QString("Device not found."));
}

QTEST_MAIN(TestDeviceListDialogs)
#include "test_devicelist_dialogs.moc"
