// The IP, unicast and user-ID dialogs: every field's checks and messages, the
// forced address sent to a GVCP listener of the test's own (the simulated
// camera does not implement FORCEIP), the persistent write that follows, a
// camera that goes away while the dialog is open, and the remote-camera
// dialog opened from the GigE root.
#include "FakeCameraRig.h"
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCodec>
#include <QTreeWidget>
#include <QtTest>
#include <memory>
#include <random>

#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDiscoveryDevicesForm.h"
#include "CSetDevUserIDDlg.h"
#include "CSetIPDlg.h"
#include "CUnicastDlg.h"
#include "CWaitDlg.h"
#include "DeviceListTestSupport.h"
#include "GvcpResponder.h"
#include "StyleSheet.h"
#include "Vorlen/GenICam.h"

namespace {
const char* const kResponderIp = "127.0.0.5";
const uint64_t kResponderMac = 0x0A1B2C3D4E5Full;

Gvcp::SDeviceInfo responderIdentity()
{
    Gvcp::SDeviceInfo info;
    info.versionMajor = 2;
    info.versionMinor = 0;
    info.mac = kResponderMac;
    info.ipConfigOptions = 0x7;
    info.ipConfigCurrent = 0x5;
    info.ip = 0x7F000005;
    info.mask = 0xFF000000;
    info.gateway = 0;
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
    void userIdDialogChecks();
    void ipDialogHelpers();
    void ipDialogEditing();
    void ipDialogRefusesBadInput();
    void typedGarbageNeverReachesTheCamera();
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
    QCOMPARE(dialog.titleText(), QString("Add Remote Camera"));
    QCOMPARE(dialog.labelText(), QString("Device IP"));
    QCOMPARE(dialog.cancelButton()->text(), QString("Cancel"));
    QCOMPARE(dialog.okButton()->property("highlight").toInt(), 1);
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.getEditValue(), QString("255.255.255.255"));

    struct SCase
    {
        const char* text;
        const char* message;
    };
    const QString tooLong = QString::fromUtf8("１２３.４５.６.７");   // 11 characters, 31 bytes
    const SCase refused[] = {{"255.255.255.255", "invalid ip"}, {"224.0.0.1", "invalid ip"},
                             {"127.0.0.1", "invalid ip"},       {"1.2.3", "invalid ip"},
                             {"1.2.3.256", "invalid ip"},       {"", "invalid ip"},
                             {"a.b.c.d", "invalid ip"}};
    for (const SCase& c : refused) {
        dialog.lineEdit()->setText(QString::fromLatin1(c.text));
        dialog.okButton()->click();
        QCOMPARE(answerer.last(), QString::fromLatin1(c.message));
        QVERIFY2(dialog.isVisible() && dialog.result() != QDialog::Accepted, c.text);
    }
    dialog.lineEdit()->setText(tooLong);
    dialog.okButton()->click();
    QCOMPARE(answerer.last(), QString("The length of IP can not be longer than 15."));
    QVERIFY(dialog.isVisible());

    const int boxes = answerer.texts.size();
    dialog.lineEdit()->setText("10.0.0.5");
    dialog.okButton()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(answerer.texts.size(), boxes);

    CUnicastDlg other;
    other.show();
    other.cancelButton()->click();
    QCOMPARE(other.result(), int(QDialog::Rejected));
}

void TestDeviceListDialogs::userIdDialogChecks()
{
    BoxAnswerer answerer;
    CSetDevUserIDDlg dialog;
    dialog.setCurrentDeviceUserID("camera", 16);
    dialog.show();
    QCOMPARE(dialog.titleText(), QString("Set Device UserID"));
    QCOMPARE(dialog.labelText(), QString("Device UserID"));
    QCOMPARE(dialog.lineEdit()->maxLength(), 15);
    QCOMPARE(dialog.getEditValue(), QString("camera"));
    // Fifteen characters fit the edit but take thirty bytes.
    dialog.lineEdit()->setText(QString(15, QChar(0x00E9)));
    QCOMPARE(dialog.lineEdit()->text().size(), 15);
    dialog.okButton()->click();
    QCOMPARE(answerer.last(), QString("The length of DeviceUserID can not be longer than 15."));
    QVERIFY(dialog.isVisible());
    dialog.lineEdit()->setText(QString(15, QChar('x')));
    dialog.okButton()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(answerer.texts.size(), 1);
}

void TestDeviceListDialogs::ipDialogHelpers()
{
    for (const char* mask : {"255.0.0.0", "255.255.0.0", "255.255.255.0", "255.255.255.255"})
        QVERIFY(CSetIPDlg::isNetMaskMatched(mask));
    for (const char* mask : {"255.255.254.0", "0.0.0.0", "", "255.255.255.0 "})
        QVERIFY(!CSetIPDlg::isNetMaskMatched(mask));
    QVERIFY(CSetIPDlg::isInSameSubnet("192.168.1.5", "192.168.1.200", "255.255.255.0"));
    QVERIFY(!CSetIPDlg::isInSameSubnet("192.168.2.5", "192.168.1.200", "255.255.255.0"));
    QVERIFY(CSetIPDlg::isInSameSubnet("192.168.2.5", "192.168.1.200", "255.255.0.0"));
    QVERIFY(!CSetIPDlg::isInSameSubnet("192.168.1", "192.168.1.200", "255.255.255.0"));
    QVERIFY(!CSetIPDlg::isInSameSubnet("192.168.1.5", "192.168.1.200", ""));

    QString text = "300.1.256.999";
    QVERIFY(CSetIPDlg::invalidIPto255(text));
    QCOMPARE(text, QString("255.1.255.255"));
    text = "255.250.25.2550";
    QVERIFY(!CSetIPDlg::invalidIPto255(text));   // 2550 has four digits: left as it is
    QCOMPARE(text, QString("255.250.25.2550"));

    QCOMPARE(CSetIPDlg::checkIpMessage(1), QString("IP or Subnet Mask is empty."));
    QCOMPARE(CSetIPDlg::checkIpMessage(9), QString("Device IP address should differ from Interface IP address."));
    QVERIFY(CSetIPDlg::checkIpMessage(0).isEmpty());

    CSetIPDlg dialog(true, nullptr);
    dialog.postMsg(7, 1, 2);
    QCOMPARE(dialog.postedMessageCount(), 0);   // posted, not sent
    QTRY_COMPARE(dialog.postedMessageCount(), 1);
}

void TestDeviceListDialogs::ipDialogEditing()
{
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    QVERIFY(device);
    auto info = Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(device->getDevice());
    QVERIFY(info);
    CSetIPDlg dialog(true, nullptr);
    QVERIFY(dialog.setInfo(info, device->getDevice()->getKey()));
    dialog.show();
    QCOMPARE(dialog.txtDevIP()->text(), QString("127.0.0.5"));
    QCOMPARE(dialog.txtDevSubnetMask()->text(), QString("255.0.0.0"));
    QCOMPARE(dialog.txtDevMac()->text(), QString("0a:1b:2c:3d:4e:5f"));
    QCOMPARE(dialog.txtInterfaceIP()->text(), QString::fromLocal8Bit(info->getIpAddress().c_str()));
    QVERIFY(dialog.txtInterfaceIP()->isReadOnly() && dialog.txtDevMac()->isReadOnly());
    QVERIFY(!dialog.txtDevIP()->isReadOnly());
    QVERIFY(!dialog.isSubnetWarningShown());

    // Typing a number above 255 turns it into 255 and says why.
    dialog.txtDevIP()->clear();
    QTest::keyClicks(dialog.txtDevIP(), "10.300");
    QCOMPARE(dialog.txtDevIP()->text(), QString("10.255"));
    QCOMPARE(dialog.hintText(), QString("Not a valid number. Please enter a number between 0 and 255!"));
    QTest::keyClicks(dialog.txtDevIP(), ".0.9");
    QCOMPARE(dialog.txtDevIP()->text(), QString("10.255.0.9"));
    QVERIFY(dialog.hintText().isEmpty());
    QVERIFY(dialog.isSubnetWarningShown());   // not in the interface's 127.0.0.0/8
    dialog.txtDevSubnetMask()->clear();
    QTest::keyClicks(dialog.txtDevSubnetMask(), "255.255.256.0");
    QCOMPARE(dialog.txtDevSubnetMask()->text(), QString("255.255.255.0"));

    // Saved for a person to look at (LUMIDOR_SCREENSHOT_DIR, else the working folder).
    const QString dir = qEnvironmentVariableIsEmpty("LUMIDOR_SCREENSHOT_DIR")
                            ? QDir::currentPath()
                            : QString::fromLocal8Bit(qgetenv("LUMIDOR_SCREENSHOT_DIR"));
    const QString sheet = QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR")) + "/res/Skins/Default/Vintrel/style.qss";
    QVERIFY2(setStyleSheet<QApplication>(*qApp, sheet), qPrintable(sheet));
    QCoreApplication::sendPostedEvents();   // the layouts of the new look, before drawing
    QVERIFY(dialog.grab().save(dir + "/setip_dialog.png"));
    CUnicastDlg unicast;
    unicast.show();
    QCoreApplication::sendPostedEvents();
    QVERIFY(unicast.grab().save(dir + "/unicast_dialog.png"));
    qApp->setStyleSheet(QString());

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
}

// Generated texts, many close to addresses: whatever is typed, a FORCEIP
// packet leaves only with the full dotted quads that were typed.
void TestDeviceListDialogs::typedGarbageNeverReachesTheCamera()
{
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    // Taken once: after the first forced address the camera is elsewhere.
    auto info = Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(device->getDevice());
    BoxAnswerer answerer(QMessageBox::Ok);
    std::mt19937 rng(4242u);
    const char pieces[][6] = {"10", "0", "255", "1", "300", "01", "9", "", "x", " ", "-1", "1e2", "192", "168"};
    auto text = [&]() {
        QString t;
        const int parts = 1 + int(rng() % 5);
        for (int p = 0; p < parts; ++p) {
            if (p)
                t += (rng() % 10) ? "." : "..";
            t += pieces[rng() % (sizeof(pieces) / sizeof(pieces[0]))];
        }
        return t;
    };
    auto quadValue = [](const QString& t, quint32& v) {
        const QStringList parts = t.split('.');
        if (parts.size() != 4)
            return false;
        v = 0;
        for (const QString& p : parts) {
            bool ok = false;
            const uint n = p.toUInt(&ok);
            if (!ok || p.isEmpty() || p.size() > 3 || n > 255 || p.contains(' '))
                return false;
            v = (v << 8) | n;
        }
        return true;
    };
    int sent = 0;
    for (int n = 0; n < 200; ++n) {
        const size_t before = m_responder->forced().size();
        CSetIPDlg dialog(true, nullptr);
        QVERIFY(dialog.setInfo(info, device->getDevice()->getKey()));
        dialog.cbSetPersistentIP()->setChecked(false);
        dialog.show();
        // The mask is often right, so that the address itself is what is tested.
        const QString ip = (n % 4 == 0) ? QString("10.0.%1.9").arg(n % 256) : text();
        const QString mask = (n % 3) ? QString("255.0.0.0") : text();
        const QString gateway = (n % 2 || n % 4 == 0) ? QString() : text();
        fill(&dialog, ip, mask, gateway);
        dialog.btnOk()->click();
        QTRY_VERIFY_WITH_TIMEOUT(!dialog.isBusy(), 15000);
        const auto forced = m_responder->forced();
        if (forced.size() == before)
            continue;
        ++sent;
        quint32 ipValue = 0, maskValue = 0, gwValue = 0;
        const QString context = QString("sent for '%1' '%2' '%3'").arg(ip, mask, gateway);
        QVERIFY2(quadValue(ip, ipValue) && quadValue(mask, maskValue), qPrintable(context));
        QVERIFY2(gateway.isEmpty() || quadValue(gateway, gwValue), qPrintable(context));
        QCOMPARE(forced.back().ip, ipValue);
        QCOMPARE(forced.back().mask, maskValue);
        QCOMPARE(forced.back().gateway, gwValue);
    }
    QVERIFY2(sent > 0, "no generated case was valid: the generator tests nothing");
    // The library now takes the camera for one at the forced address; the
    // next discovery shows it where it really is.
    QVERIFY(rediscoverWhenIdle());
    QTRY_VERIFY_WITH_TIMEOUT(Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(
                                 findDeviceBySerial("RESP1")->getDevice()),
                             15000);
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
    QCOMPARE(forced.back().mac, kResponderMac);
    QCOMPARE(forced.back().ip, 0x0A000009u);
    QCOMPARE(forced.back().mask, 0xFF000000u);
    QCOMPARE(forced.back().gateway, 0x0A000001u);
    // An accepted dialog makes the tree rediscover.
    QVERIFY(finished.wait(20000));
    QVERIFY(!CConfiguration::getInstance()->setPersistentIP);   // OK stored the check box
    CConfiguration::getInstance()->setPersistentIP = true;
}

void TestDeviceListDialogs::forceIpFailuresKeepTheDialogOpen()
{
    QTRY_VERIFY_WITH_TIMEOUT(responderItem() != nullptr, 15000);
    BoxAnswerer answerer(QMessageBox::Ok);

    // No acknowledge to FORCEIP.
    m_responder->setAnswerForceIp(false);
    {
        std::unique_ptr<CSetIPDlg> owned = openIpDialog(false);
        QVERIFY(owned);
        CSetIPDlg& dialog = *owned;
        fill(&dialog, "10.0.0.9", "255.0.0.0", "");
        dialog.btnOk()->click();
        QVERIFY(dialog.isBusy());
        dialog.reject();   // refused while the camera is being written
        QVERIFY(dialog.isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog.isBusy(), 15000);
        QCOMPARE(answerer.last(), QString("Set device IP failed."));
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.result() != QDialog::Accepted);
    }
    m_responder->setAnswerForceIp(true);

    // The forced address is taken, the persistent write is not (the listener
    // grants no control session).
    {
        std::unique_ptr<CSetIPDlg> owned = openIpDialog(true);
        QVERIFY(owned);
        CSetIPDlg& dialog = *owned;
        fill(&dialog, "10.0.0.10", "255.0.0.0", "");
        dialog.btnOk()->click();
        QVERIFY(dialog.waitDialog()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog.isBusy(), 20000);
        QCOMPARE(answerer.last(), QString("Set persistent IP failed."));
        QVERIFY(!dialog.waitDialog()->isVisible());
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_responder->forced().back().ip, 0x0A00000Au);
    }
}

void TestDeviceListDialogs::remoteCameraFromTheGigERoot()
{
    // (accepted addresses are probed for real in test_devicelist_unicast)
    BoxAnswerer answerer;
    CConfiguration::getInstance()->RemoteIpAddr = "10.0.0.5";
    QString preset;
    bool stayedOpen = false;
    onDialog<CUnicastDlg>([&](CUnicastDlg* dialog) {
        preset = dialog->getEditValue();
        dialog->lineEdit()->setText(kResponderIp);   // a loopback address is never a camera's
        dialog->okButton()->click();
        stayedOpen = dialog->isVisible();
        dialog->cancelButton()->click();
    });
    m_form->onActionUnicastTriggered();
    QCOMPARE(preset, QString("10.0.0.5"));
    QVERIFY(stayedOpen);
    QCOMPARE(answerer.texts, QStringList({"invalid ip"}));
    QCOMPARE(CConfiguration::getInstance()->RemoteIpAddr, QString("10.0.0.5"));
    QVERIFY(m_form->refreshButton()->isEnabled());
}

void TestDeviceListDialogs::cameraGoneWhileDialogOpen()
{
    QTRY_VERIFY_WITH_TIMEOUT(responderItem() != nullptr, 15000);
    CTavDevicePtr device = findDeviceBySerial("RESP1");
    const Vorlen::Infra::CString key = device->getDevice()->getKey();
    auto info = Vorlen::GenICam::CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(device->getDevice());
    device.reset();
    BoxAnswerer answerer(QMessageBox::Ok);
    CSetIPDlg dialog(true, nullptr);
    QVERIFY(dialog.setInfo(info, key));
    dialog.cbSetPersistentIP()->setChecked(false);
    dialog.show();

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
    fill(&dialog, "10.0.0.9", "255.0.0.0", "");
    dialog.btnOk()->click();
    QCOMPARE(answerer.last(), QString("Device not found."));
    QVERIFY(dialog.isVisible() && !dialog.isBusy());
    QCOMPARE(int(m_responder->forced().size()), before);

    // A dialog opened for a key that no longer resolves says so at once.
    CSetIPDlg late(true, nullptr);
    QVERIFY(!late.setInfo(info, key));
    QCOMPARE(answerer.last(), QString("Device not found."));
}

QTEST_MAIN(TestDeviceListDialogs)
#include "test_devicelist_dialogs.moc"
