// The device list panel against two simulated cameras in this process: the
// tree and its in-place merge, the inline buttons, the menu, connecting and
// disconnecting every way, the connection limit, the copied information, the
// user ID, a camera that goes away, and the persistent IP worker.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include "QueuedSignalSpy.h"
#include <QClipboard>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTranslator>
#include <QMenu>
#include <QProcess>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

#include "CCameraTask.h"
#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDiscoveryButtonsForm.h"
#include "CDiscoveryDevicesForm.h"
#include "CDiscoveryDevicesThread.h"
#include "CDiscoveryRootForm.h"
#include "CSetDevUserIDDlg.h"
#include "CSetIPDlg.h"
#include "CSetIpThread.h"
#include "CWaitDlg.h"
#include "DeviceListTestSupport.h"
#include "DiscoveryItemTypes.h"
#include "StyleSheet.h"
#include "Tavlog4cpp/CTavLog.h"

static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

class TestDeviceList : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void itemTypeHelpers();
    void treeBuiltAndRefreshKeepsItems();
    void inlineButtonsConnectStreamDisconnect();
    void menuAndDoubleClickConnect();
    void connectionLimit();
    void copyDeviceInfo();
    void userIdShownAfterRefresh();
    void languageSwitchAndLook();
    void persistentIpWrittenToCamera();
    void saveGenICamXml();
    void collapseAndExpand();
    void vanishedCameraLeavesTree();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    QTreeWidgetItem* itemOf(int slot) const;
    CTavDevicePtr deviceOf(int slot) const { return deviceBySerial(m_serial[slot]); }
    bool waitListed(int slot);
    bool waitIcon(int slot, int icon);

    FakeCameraRig m_rig;
    QWidget* m_host = nullptr;
    CDiscoveryDevicesForm* m_form = nullptr;
    int m_cam[2] = {-1, -1};
    const char* m_address[2] = {"127.0.0.3", "127.0.0.4"};
    const char* m_serial[2] = {"LUMDL001", "LUMDL002"};
};

QTreeWidgetItem* TestDeviceList::itemOf(int slot) const
{
    CTavDevicePtr device = deviceOf(slot);
    return device ? m_form->getItemByDevice(device) : nullptr;
}

bool TestDeviceList::waitListed(int slot)
{
    return QTest::qWaitFor([&]() { return itemOf(slot) != nullptr; }, 20000);
}

bool TestDeviceList::waitIcon(int slot, int icon)
{
    return QTest::qWaitFor([&]() { return itemOf(slot) && m_form->itemIconIndex(itemOf(slot)) == icon; }, 15000);
}

void TestDeviceList::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    // LUMIDOR_TEST_LOG=1 shows the application log on standard error.
    if (!qEnvironmentVariableIsEmpty("LUMIDOR_TEST_LOG"))
        Tavlog4cpp::CTavLog::LoadDefault();
    for (const char* address : m_address)
        if (!FakeCameraRig::hasAddress(address))
            QFAIL(qPrintable(QString("%1 is not on the loopback interface: run inside scripts/netns.sh "
                                     "(or scripts/loopback.sh as root)")
                                 .arg(address)));
    for (int i = 0; i < 2; ++i) {
        m_cam[i] = m_rig.start(m_address[i], m_serial[i], std::string(), 320, 240, "Mono8");
        QVERIFY2(m_cam[i] >= 0, m_address[i]);
    }
    CConfiguration::getInstance()->iHeartbeatIval = 500;
    CConfiguration::getInstance()->iAnswerTimeout = 300;
    m_host = new QWidget;
    m_host->resize(320, 700);
    m_form = new CDiscoveryDevicesForm(m_host);
    m_form->resize(320, 700);
    m_host->show();
    // The automatic refresh is driven by hand where a test wants it, never by the clock.
    m_form->autoRefreshTimer()->stop();
    QVERIFY(waitListed(0) || (rediscover() && waitListed(0)));
    QVERIFY(waitListed(1) || (rediscover() && waitListed(1)));
}

void TestDeviceList::cleanupTestCase()
{
    delete m_host;
    m_form = nullptr;
    QTRY_COMPARE_WITH_TIMEOUT(CCameraTask::running(), 0, 10000);
    m_owner.reset();
}

void TestDeviceList::itemTypeHelpers()
{
    QCOMPARE(treeItemType(1, false), 1008);
    QCOMPARE(treeItemType(6, false), 1000);   // no such row
    QVERIFY(isInterfaceItemType(1006) && !isInterfaceItemType(1007));
    QVERIFY(isDeviceItemType(1012) && !isDeviceItemType(1013));
    QCOMPARE(interfaceType(Vorlen::GenICam::typeUndefined), 0);
    setLastCreatedId(0xFFFFFFFEu);
    QCOMPARE(createId(), 0xFFFFFFFFu);
    QCOMPARE(createId(), 1u);   // wraps to 1, never 0

    // Roots: only GigE and USB exist; other types are refused or ignored.
    QVERIFY(m_form->isCreatedRootItem(0) && m_form->isCreatedRootItem(1));
    QVERIFY(!m_form->isCreatedRootItem(2) && !m_form->isCreatedRootItem(5) && !m_form->isCreatedRootItem(300));
    QVERIFY(!m_form->createRootItem(2) && !m_form->createRootItem(4) && !m_form->createRootItem(5));
    QCOMPARE(m_form->createRootItem(0), m_form->getRootItem(0));   // a second creation changes nothing
    QCOMPARE(m_form->deviceList()->topLevelItemCount(), 2);
    QVERIFY(m_form->isGigERootItem(m_form->getRootItem(0)));
    QVERIFY(m_form->isRootItem(m_form->getRootItem(1)) && !m_form->isGigERootItem(m_form->getRootItem(1)));
    QCOMPARE(m_form->getRootItem(0)->type(), 1001);
    QCOMPARE(m_form->rootForm(0)->text(), QString("GigE"));
    QCOMPARE(m_form->rootForm(1)->text(), QString("USB"));
}

void TestDeviceList::treeBuiltAndRefreshKeepsItems()
{
    QTreeWidgetItem* gige = m_form->getRootItem(0);
    QTreeWidgetItem* first = itemOf(0);
    QTreeWidgetItem* second = itemOf(1);
    QCOMPARE(first->parent(), gige);
    QCOMPARE(first->type(), 1007);
    QCOMPARE(first->text(0), QString("SimCam (LUMDL001)"));
    QCOMPARE(first->toolTip(0), first->text(0));
    QCOMPARE(CDiscoveryDevicesForm::getDeviceKey(first), deviceOf(0)->getDeviceKey());
    // Key order of the device manager.
    QCOMPARE(gige->indexOfChild(first) < gige->indexOfChild(second),
             deviceOf(0)->getDeviceKey() < deviceOf(1)->getDeviceKey());
    QVERIFY(m_form->rootForm(0)->isCheckBoxVisible());
    QVERIFY(!m_form->rootForm(1)->isCheckBoxVisible());   // no USB camera
    QVERIFY(m_form->rootForm(0)->isChecked());
    QCOMPARE(m_form->itemIconIndex(first), int(CDiscoveryDevicesForm::iconNormal));

    // Select the first, hover the second: buttons on both rows.
    QSignalSpy selected(m_form, &CDiscoveryDevicesForm::select_device);
    m_form->on_deviceList_itemClicked(first, 0);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(m_form->currentItem(), first);
    m_form->setHoverItem(first);
    m_form->setHoverItem(second);
    CDiscoveryButtonsForm* firstButtons = m_form->buttonsOf(first);
    CDiscoveryButtonsForm* secondButtons = m_form->buttonsOf(second);
    QVERIFY(firstButtons && secondButtons);
    QVERIFY(!secondButtons->getConnectBtn()->isHidden());
    QVERIFY(secondButtons->getDisconnectBtn()->isHidden());
    QVERIFY(secondButtons->getForceIPBtn()->isEnabled());
    QCOMPARE(secondButtons->getConnectBtn()->toolTip(), QString("Connect"));
    QCOMPARE(secondButtons->getForceIPBtn()->toolTip(), QString("Force IP"));
    QVERIFY(!m_form->infoRows(true).isEmpty());

    // A refresh with the same cameras keeps items, selection and buttons.
    QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
    QTest::mouseClick(m_form->refreshButton(), Qt::LeftButton);
    QVERIFY(!m_form->refreshButton()->isEnabled());
    QVERIFY(finished.wait(20000));
    QTRY_VERIFY(m_form->refreshButton()->isEnabled());
    QCOMPARE(itemOf(0), first);
    QCOMPARE(itemOf(1), second);
    QCOMPARE(m_form->currentItem(), first);
    QCOMPARE(m_form->hoverItem(), second);
    QCOMPARE(m_form->buttonsOf(first), firstButtons);
    QCOMPARE(m_form->buttonsOf(second), secondButtons);
    QCOMPARE(gige->childCount(), 2);

    // Back on the selected row: the other row's buttons go, its own stay.
    m_form->setHoverItem(first);
    QCOMPARE(m_form->buttonsOf(first), firstButtons);
    QVERIFY(!m_form->buttonsOf(second));

    // The automatic refresh: every 10 s while enabled, never while a pass runs.
    QCOMPARE(m_form->autoRefreshTimer()->interval(), 10000);
    QVERIFY(!m_form->autoRefreshTimer()->isSingleShot());
    CConfiguration::getInstance()->autoRefreshEnable = false;
    m_form->onAutoRefreshTimeout();
    QVERIFY(m_form->refreshButton()->isEnabled());
    CConfiguration::getInstance()->autoRefreshEnable = true;
    finished.clear();
    m_form->onAutoRefreshTimeout();
    QVERIFY(!m_form->refreshButton()->isEnabled());
    QVERIFY(finished.wait(20000));
    QTRY_VERIFY(m_form->refreshButton()->isEnabled());
    QCOMPARE(itemOf(0), first);
}

void TestDeviceList::inlineButtonsConnectStreamDisconnect()
{
    QTreeWidgetItem* item = itemOf(0);
    CTavDevicePtr device = deviceOf(0);
    m_form->setHoverItem(item);
    CDiscoveryButtonsForm* buttons = m_form->buttonsOf(item);
    QVERIFY(buttons);
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    buttons->getConnectBtn()->click();
    QVERIFY(m_form->waitDialog()->isVisible());
    QVERIFY(opened.wait(15000));
    QVERIFY(device->isConnected());
    QTRY_VERIFY(!m_form->waitDialog()->isVisible());
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconConnected));
    buttons = m_form->buttonsOf(item);
    QVERIFY(buttons->getConnectBtn()->isHidden());
    QVERIFY(!buttons->getDisconnectBtn()->isHidden() && buttons->getDisconnectBtn()->isEnabled());
    QCOMPARE(buttons->getDisconnectBtn()->toolTip(), QString("Disconnect"));
    QVERIFY(buttons->getForceIPBtn()->isHidden() && !buttons->getForceIPBtn()->isEnabled());

    // Menu of a connected camera.
    QVERIFY(m_form->prepareDeviceMenu(item));
    QCOMPARE(m_form->actionConnect()->text(), QString("Disconnect"));
    QVERIFY(m_form->actionConnect()->isEnabled());
    QCOMPARE(m_form->actionPlay()->text(), QString("Start Acquisition"));
    QVERIFY(m_form->actionPlay()->isEnabled());
    QVERIFY(m_form->actionOpenConfig()->isEnabled() && m_form->actionSaveConfig()->isEnabled());
    QVERIFY(m_form->actionForceIp()->isVisible() && !m_form->actionForceIp()->isEnabled());
    QVERIFY(m_form->actionSetDevUserID()->isEnabled() && m_form->actionSaveXml()->isEnabled());
    QVERIFY(m_form->actionCopyInfo()->isEnabled());

    // Streaming: icon and menu follow.
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconAcquisition));
    QTRY_VERIFY_WITH_TIMEOUT(device->isGrabing(), 10000);
    QVERIFY(m_form->prepareDeviceMenu(item));
    QCOMPARE(m_form->actionPlay()->text(), QString("Stop Acquisition"));
    QVERIFY(!m_form->actionOpenConfig()->isEnabled() && !m_form->actionSaveConfig()->isEnabled());
    QVERIFY(m_form->actionSetDevUserID()->isEnabled());
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconConnected));

    // Disconnect from the inline button.
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getDisconnectBtn()->click();
    QVERIFY(closed.wait(15000));
    QVERIFY(!device->isConnected());
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconNormal));
    buttons = m_form->buttonsOf(item);
    QVERIFY(!buttons->getConnectBtn()->isHidden() && buttons->getConnectBtn()->isEnabled());
    QVERIFY(buttons->getDisconnectBtn()->isHidden());

    // Menu of a disconnected camera.
    QVERIFY(m_form->prepareDeviceMenu(item));
    QCOMPARE(m_form->actionConnect()->text(), QString("Connect"));
    QCOMPARE(m_form->actionPlay()->text(), QString("Start Acquisition"));
    QVERIFY(!m_form->actionPlay()->isEnabled());
    QVERIFY(m_form->actionOpenConfig()->isEnabled() && !m_form->actionSaveConfig()->isEnabled());
    QVERIFY(m_form->actionForceIp()->isEnabled());
    QVERIFY(!m_form->actionSetDevUserID()->isEnabled() && !m_form->actionSaveXml()->isEnabled());
    QVERIFY(m_form->actionCopyInfo()->isEnabled());
}

void TestDeviceList::menuAndDoubleClickConnect()
{
    QTreeWidgetItem* item = itemOf(1);
    CTavDevicePtr device = deviceOf(1);
    QTreeWidget* list = m_form->deviceList();
    m_form->deviceList()->scrollToItem(item);
    const QPoint at = list->visualItemRect(item).center();

    // Connect from the context menu, opened where the row is.
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->ShowContextMenu(at);
    QCOMPARE(m_form->contextItem(), item);
    QTRY_VERIFY(m_form->deviceMenu()->isVisible());
    QStringList texts;
    for (QAction* action : m_form->deviceMenu()->actions())
        texts << (action->isSeparator() ? QString("-") : action->text());
    QCOMPARE(texts, QStringList({"Connect", "Open Config", "Save Config", "-", "Start Acquisition", "-", "Force IP",
                                 "Set DeviceUserID", "-", "Save GenICam XML", "Copy Device Info"}));
    m_form->deviceMenu()->close();
    m_form->actionConnect()->trigger();
    QVERIFY(opened.wait(15000));
    QVERIFY(device->isConnected());
    QVERIFY(waitIcon(1, CDiscoveryDevicesForm::iconConnected));

    // Disconnect from the menu.
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    m_form->ShowContextMenu(at);
    QCOMPARE(m_form->actionConnect()->text(), QString("Disconnect"));
    m_form->deviceMenu()->close();
    m_form->actionConnect()->trigger();
    QVERIFY(closed.wait(15000));
    QVERIFY(!device->isConnected());

    // A double click connects; on a connected row it does nothing more.
    opened.clear();
    // (an item view takes a double click only after the press that precedes it)
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(opened.wait(15000));
    QVERIFY(device->isConnected());
    QCOMPARE(m_form->currentItem(), item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(device->isConnected());
    closed.clear();
    device->closeDevice(false);
    QVERIFY(closed.wait(15000));

    // "Open Config" and "Save Config" are the main window's: the panel asks.
    QSignalSpy openConfig(m_form, &CDiscoveryDevicesForm::signalOpenConfig);
    QSignalSpy saveConfig(m_form, &CDiscoveryDevicesForm::signalSaveConfig);
    m_form->on_deviceList_itemClicked(item, 0);
    m_form->actionOpenConfig()->trigger();
    m_form->actionSaveConfig()->trigger();
    QCOMPARE(openConfig.count(), 1);
    QCOMPARE(saveConfig.count(), 1);
    QCOMPARE(openConfig.first().first().value<CTavDevicePtr>(), device);

    // The GigE root opens the one-entry remote-camera menu.
    m_form->ShowContextMenu(list->visualItemRect(m_form->getRootItem(0)).center());
    QTRY_VERIFY(m_form->rootMenu()->isVisible());
    QCOMPARE(m_form->rootMenu()->actions().size(), 1);
    QCOMPARE(m_form->rootMenu()->actions().first()->text(), QString("Add Remote Camera"));
    m_form->rootMenu()->close();
}

void TestDeviceList::connectionLimit()
{
    QTreeWidgetItem* item = itemOf(0);
    CTavDevicePtr device = deviceOf(0);
    BoxAnswerer answerer;
    int opened = 16;
    m_form->setOpenedDeviceCounter([&opened]() { return opened; });
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getConnectBtn()->click();
    QCOMPARE(answerer.texts, QStringList({"The maximum number of connections has been reached."}));
    QVERIFY(!device->isConnecting() && !device->isConnected());
    QVERIFY(!m_form->waitDialog()->isVisible());

    // Fifteen open: the sixteenth goes through.
    opened = 15;
    QSignalSpy openedSpy(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->buttonsOf(item)->getConnectBtn()->click();
    QVERIFY(openedSpy.wait(15000));
    m_form->setOpenedDeviceCounter([]() { return CDeviceManager::getInstance()->getOpenedDeviceCount(); });
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    device->closeDevice(false);
    QVERIFY(closed.wait(15000));
    QCOMPARE(answerer.texts.size(), 1);
}

void TestDeviceList::copyDeviceInfo()
{
    QTreeWidgetItem* item = itemOf(0);
    m_form->on_deviceList_itemClicked(item, 0);
    QApplication::clipboard()->clear();
    m_form->onActionCopyinfo();
    const QString text = QApplication::clipboard()->text();
    const QStringList lines = text.split('\n');
    // Header, 4 interface rows, blank, header, 12 device rows, and the final newline.
    QCOMPARE(lines.size(), 1 + 4 + 1 + 1 + 12 + 1);
    QCOMPARE(lines.at(0), QString("Interface Info"));
    QCOMPARE(lines.at(5), QString());
    QCOMPARE(lines.at(6), QString("Device Info"));
    QCOMPARE(lines.last(), QString());
    QCOMPARE(lines.at(1).left(26), QString("Description               "));
    QCOMPARE(lines.at(2).left(26), QString("IP Address                "));
    QCOMPARE(lines.at(7), QString("IP Address                127.0.0.3"));
    QCOMPARE(lines.at(10), QString("Vendor                    Lumidor"));
    QCOMPARE(lines.at(11), QString("Model                     SimCam"));
    QCOMPARE(lines.at(14), QString("Serial Number             LUMDL001"));
    QCOMPARE(lines.at(15), QString("Protocol Version          2.0"));
    QCOMPARE(lines.at(16), QString("Valid                     True"));
    QVERIFY(lines.at(18).startsWith("Access Status             "));
    QStringList labels;
    for (int i = 7; i < 19; ++i)
        labels << lines.at(i).left(25).trimmed();
    QCOMPARE(labels, QStringList({"IP Address", "Subnet Mask", "Gateway", "Vendor", "Model", "Manufacture", "Version",
                                  "Serial Number", "Protocol Version", "Valid", "IP Configuration",
                                  "Access Status"}));
    // The same rows as the information tree.
    const auto rows = m_form->infoRows(true);
    QCOMPARE(rows.size(), 12);
    QCOMPARE(rows.at(7).second, QString("LUMDL001"));
}

void TestDeviceList::userIdShownAfterRefresh()
{
    QTreeWidgetItem* item = itemOf(1);
    CTavDevicePtr device = deviceOf(1);
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getConnectBtn()->click();
    QVERIFY(opened.wait(15000));
    m_form->on_deviceList_itemClicked(item, 0);

    int maxLength = -1;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    BoxAnswerer answerer;
    // A name longer in bytes than the edit allows is refused, the dialog stays.
    onDialog<CSetDevUserIDDlg>([&](CSetDevUserIDDlg* dialog) {
        maxLength = dialog->lineEdit()->maxLength();
        dialog->lineEdit()->setText(QString(maxLength, QChar(0x00E9)));   // two bytes each in UTF-8
        dialog->okButton()->click();
        QTest::qWait(50);
        QVERIFY(dialog->isVisible());
        dialog->lineEdit()->setText("Line A");
        dialog->okButton()->click();
    });
    m_form->onActionSetDevUserIDTriggered();
    QVERIFY(done.wait(15000));
    QCOMPARE(maxLength, 15);   // the feature's 16 bytes, less one
    if (QTextCodec::codecForLocale()->mibEnum() == 106)
        QCOMPARE(answerer.texts, QStringList({"The length of DeviceUserID can not be longer than 15."}));

    QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
    m_form->on_reflesh_clicked();
    QVERIFY(finished.wait(20000));
    QTRY_COMPARE(itemOf(1)->text(0), QString("Line A (LUMDL002)"));
    QCOMPARE(itemOf(1), item);

    // Cancel writes nothing.
    done.clear();
    onDialog<CSetDevUserIDDlg>([&](CSetDevUserIDDlg* dialog) {
        QCOMPARE(dialog->getEditValue(), QString("Line A"));
        dialog->lineEdit()->setText("Other");
        dialog->cancelButton()->click();
    });
    m_form->onActionSetDevUserIDTriggered();
    QVERIFY(done.wait(15000));
    QString value;
    int length = 0;
    QVERIFY(device->getParaStringValue("DeviceUserID", value, length));
    QCOMPARE(value, QString("Line A"));

    // A name outside ASCII: a new row reads the camera's bytes as Latin-1, a
    // row that is only updated reads them as UTF-8 (kept as it has always been).
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QVERIFY(device->setParaStringValue("DeviceUserID", QString::fromUtf8("Kamera é")));
    QMap<QString, CTavDevicePtr> none;
    m_form->updateDeviceList(none);
    QVERIFY(!m_form->getItemByKey(device->getDeviceKey()));
    QMap<QString, CTavDevicePtr> all = CDeviceManager::getInstance()->getAllDevices();
    m_form->updateDeviceList(all);
    QCOMPARE(itemOf(1)->text(0), QString::fromLatin1("Kamera \xC3\xA9 (LUMDL002)"));
    m_form->updateDeviceList(all);
    QCOMPARE(itemOf(1)->text(0), QString::fromUtf8("Kamera é (LUMDL002)"));
    QVERIFY(device->setParaStringValue("DeviceUserID", QString()));

    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    device->closeDevice(false);
    QVERIFY(closed.wait(15000));
}

void TestDeviceList::persistentIpWrittenToCamera()
{
    const QString tool = QStandardPaths::findExecutable("arv-tool-0.8");
    if (tool.isEmpty())
        QFAIL("arv-tool-0.8 is missing (package aravis-tools): it reads the written values back");
    CTavDevicePtr device = deviceOf(1);
    CSetIpThread worker;
    QueuedSignalSpy ended(&worker, &CSetIpThread::signalSetIpEnd);
    worker.start();
    worker.startSetIp(device->getDeviceKey(), "192.168.7.20", "255.255.255.0", "192.168.7.1");
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 15000);
    QCOMPARE(ended.first().first().toBool(), true);
    // A key that no longer resolves reports failure.
    worker.startSetIp("no such camera", "192.168.7.21", "255.255.255.0", "0.0.0.0");
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 15000);   // may come before a wait() could start
    QCOMPARE(ended.last().first().toBool(), false);
    worker.stop();

    auto read = [&](const QString& feature) {
        QProcess p;
        p.start(tool, {"-a", m_address[1], "control", feature});
        if (!p.waitForFinished(20000))
            return QString("(arv-tool did not finish)");
        return QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
    };
    const QString ip = read("GevPersistentIPAddress");
    const QString mask = read("GevPersistentSubnetMask");
    const QString gateway = read("GevPersistentDefaultGateway");
    const QString enabled = read("GevCurrentIPConfigurationPersistentIP");
    QVERIFY2(ip.contains(QString::number(0xC0A80714u)) || ip.contains("192.168.7.20"), qPrintable(ip));
    QVERIFY2(mask.contains(QString::number(0xFFFFFF00u)) || mask.contains("255.255.255.0"), qPrintable(mask));
    QVERIFY2(gateway.contains(QString::number(0xC0A80701u)) || gateway.contains("192.168.7.1"), qPrintable(gateway));
    QVERIFY2(enabled.contains("true", Qt::CaseInsensitive) || enabled.endsWith("1"), qPrintable(enabled));
}

void TestDeviceList::saveGenICamXml()
{
    QTreeWidgetItem* item = itemOf(0);
    CTavDevicePtr device = deviceOf(0);
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getConnectBtn()->click();
    QVERIFY(opened.wait(15000));
    m_form->on_deviceList_itemClicked(item, 0);

    QTemporaryDir dir;
    const QString path = dir.filePath("camera.xml");
    QString suggested;
    m_form->setXmlFileChooser([&](QWidget*, const QString& name) {
        suggested = name;
        return path;
    });
    BoxAnswerer answerer;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(suggested, device->getDeviceSaveName() + ".xml");
    QVERIFY(answerer.texts.isEmpty());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("RegisterDescription"));

    // A place that cannot be written.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString("/proc/no/such/dir/camera.xml"); });
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(answerer.texts, QStringList({"Download xml file failed."}));
    // A cancelled file dialog does nothing.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString(); });
    m_form->onActionSaveGenICamXml();
    QCOMPARE(CCameraTask::running(), 0);

    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    device->closeDevice(false);
    QVERIFY(closed.wait(15000));
}

// Two cameras, one streaming, in English and in Chinese: the texts follow a
// language switch at once, and both looks are saved for a person to check
// (LUMIDOR_SCREENSHOT_DIR, else the test's working folder).
void TestDeviceList::languageSwitchAndLook()
{
    QTreeWidgetItem* streaming = itemOf(0);
    CTavDevicePtr device = deviceOf(0);
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->setHoverItem(streaming);
    m_form->buttonsOf(streaming)->getConnectBtn()->click();
    QVERIFY(opened.wait(15000));
    QVERIFY(m_form->prepareDeviceMenu(streaming));
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconAcquisition));
    m_form->on_deviceList_itemClicked(streaming, 0);
    m_form->setHoverItem(itemOf(1));
    for (int i = 0; i < CDiscoveryDevicesForm::iconCount; ++i)
        QVERIFY2(m_form->itemIconIndex(streaming) >= 0, "status icons are missing from the resources");

    const QString dir = qEnvironmentVariableIsEmpty("LUMIDOR_SCREENSHOT_DIR")
                            ? QDir::currentPath()
                            : QString::fromLocal8Bit(qgetenv("LUMIDOR_SCREENSHOT_DIR"));
    // In the application's own style.
    const QString sheet = QString::fromLocal8Bit(qgetenv("LUMIDOR_SOURCE_DIR")) + "/res/Skins/Default/Vintrel/style.qss";
    QVERIFY2(setStyleSheet<QApplication>(*qApp, sheet), qPrintable(sheet));
    m_host->resize(340, 720);
    m_form->resize(340, 720);
    QTest::qWait(50);
    QVERIFY(m_form->grab().save(dir + "/devicelist_en.png"));

    QTranslator panel, widgets;
    QVERIFY2(panel.load(":/i18n/discovery_zh_CN.qm"), "the compiled translation is not in the resources");
    widgets.load(":/i18n/widgets_zh_CN.qm");
    QCoreApplication::installTranslator(&panel);
    QCoreApplication::installTranslator(&widgets);
    QTest::qWait(20);
    QCOMPARE(m_form->refreshButton()->text(), QString::fromUtf8("刷新"));
    QCOMPARE(m_form->rootForm(0)->text(), QString("GigE"));
    QVERIFY(m_form->prepareDeviceMenu(streaming));
    QCOMPARE(m_form->actionConnect()->text(), QString::fromUtf8("断开连接"));
    QCOMPARE(m_form->actionPlay()->text(), QString::fromUtf8("停止采集"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString::fromUtf8("序列号"));
    QCOMPARE(m_form->buttonsOf(itemOf(1))->getConnectBtn()->toolTip(), QString::fromUtf8("连接"));
    QVERIFY(m_form->grab().save(dir + "/devicelist_zh.png"));

    QCoreApplication::removeTranslator(&panel);
    QCoreApplication::removeTranslator(&widgets);
    QTest::qWait(20);
    QCOMPARE(m_form->refreshButton()->text(), QString("refresh"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString("Serial Number"));

    qApp->setStyleSheet(QString());
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, CDiscoveryDevicesForm::iconConnected));
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    device->closeDevice(false);
    QVERIFY(closed.wait(15000));
}

void TestDeviceList::collapseAndExpand()
{
    const int width = m_form->width();
    QSignalSpy collapsed(m_form, &CDiscoveryDevicesForm::formCollpased);
    QSignalSpy expanded(m_form, &CDiscoveryDevicesForm::formExpanded);
    m_form->onBtnCollpaseClicked();
    QCOMPARE(collapsed.count(), 1);
    QCOMPARE(m_form->width(), 14);
    QVERIFY(m_form->expandButton()->isVisible());
    QVERIFY(!m_form->deviceList()->isVisible());
    QTest::mouseClick(m_form->expandButton(), Qt::LeftButton);
    QCOMPARE(expanded.count(), 1);
    QCOMPARE(expanded.first().first().toInt(), width);
    QCOMPARE(m_form->minimumWidth(), 250);
    QCOMPARE(m_form->maximumWidth(), 15000);
    QVERIFY(!m_form->expandButton()->isVisible());
    QVERIFY(m_form->deviceList()->isVisible());
}

void TestDeviceList::vanishedCameraLeavesTree()
{
    QTreeWidgetItem* item = itemOf(1);
    const QString key = deviceOf(1)->getDeviceKey();
    m_form->on_deviceList_itemClicked(item, 0);
    m_form->setHoverItem(item);
    m_form->ShowContextMenu(m_form->deviceList()->visualItemRect(item).center());
    QCOMPARE(m_form->contextItem(), item);
    m_rig.stop(m_cam[1]);

    // The menu was open when the camera left: its entries now find nothing.
    QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
    QVERIFY(QTest::qWaitFor(
        [&]() {
            if (!m_form->getItemByKey(key))
                return true;
            if (m_form->refreshButton()->isEnabled())
                m_form->on_reflesh_clicked();
            return false;
        },
        30000));
    QVERIFY(!m_form->hoverItem());
    QVERIFY(!m_form->currentItem());
    QVERIFY(!m_form->contextItem());
    QVERIFY(!m_form->deviceMenu()->isVisible());
    QVERIFY(m_form->infoRows(true).isEmpty());
    QCOMPARE(m_form->getRootItem(0)->childCount(), 1);
    // Actions on nothing do nothing.
    m_form->onActionCopyinfo();
    m_form->onActionConnectTriggered();
    m_form->on_connectDevice();
    m_form->on_disconnectDevice();
    QVERIFY(itemOf(0));
}

QTEST_MAIN(TestDeviceList)
#include "test_devicelist.moc"
