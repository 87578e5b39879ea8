// The device list panel against two simulated cameras in this process: the
// tree and its in-place merge, the inline buttons and the menu as a camera
// connects, streams and closes, every way of connecting, the connection
// limit, collapsing, what the panel does to a camera besides connecting
// (copied information, user ID, persistent IP, GenICam XML), both languages,
// and a camera that goes away.
// The camera rig's GLib headers come before Qt's.
#include "FakeCameraRig.h"
#include "CSingletonOwner.h"
#include <memory>
#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>

#include "CCameraTaskThread.h"
#include "CConfiguration.h"
#include "CDeviceInfoRows.h"
#include "CDiscoveryButtonsForm.h"
#include "CDiscoveryDevicesForm.h"
#include "CDiscoveryRootForm.h"
#include "CSetDevUserIDDlg.h"
#include "CSetIpThread.h"
#include "CWaitDlg.h"
#include "DeviceListTestSupport.h"
#include "QueuedSignalSpy.h"

namespace {
const char* const kAddress[2] = {"127.0.0.3", "127.0.0.4"};
const char* const kSerial[2] = {"LUMDL001", "LUMDL002"};
} // namespace

class TestDeviceList : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void treeBuiltAndRefreshKeepsItems();
    void buttonsFollowTheCamera();
    void menuAndDoubleClickConnect();
    void connectionLimit();
    void collapseAndExpand();
    void copyDeviceInfo();
    void userIdShownAfterRefresh();
    void persistentIpWrittenToCamera();
    void saveGenICamXml();
    void languageSwitch();
    void vanishedCameraLeavesTree();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    CTavDevicePtr deviceOf(int slot) const { return findDeviceBySerial(kSerial[slot]); }
    QTreeWidgetItem* itemOf(int slot) const
    {
        CTavDevicePtr device = deviceOf(slot);
        return device ? m_form->getItemByDevice(device) : nullptr;
    }
    bool waitIcon(int slot, int icon) const
    {
        return QTest::qWaitFor([&]() { return itemOf(slot) && m_form->itemIconIndex(itemOf(slot)) == icon; }, 15000);
    }
    // The inline Connect button of the camera's row, pressed as a user would.
    bool connectByButton(int slot)
    {
        QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
        m_form->setHoverItem(itemOf(slot));
        m_form->buttonsOf(itemOf(slot))->getConnectBtn()->click();
        return opened.wait(15000) && deviceOf(slot)->isConnected();
    }
    bool closeDevice(int slot)
    {
        QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
        deviceOf(slot)->closeDevice(false);
        return closed.wait(15000);
    }

    FakeCameraRig m_rig;
    int m_cam[2] = {-1, -1};
    QWidget* m_host = nullptr;
    CDiscoveryDevicesForm* m_form = nullptr;
};

void TestDeviceList::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    enableLogWhenAsked();
    for (const char* a : kAddress)
        if (!FakeCameraRig::hasAddress(a))
            QFAIL(qPrintable(QString("%1 is not on the loopback interface: run inside scripts/netns.sh "
                                     "(or scripts/loopback.sh as root)").arg(a)));
    for (int i = 0; i < 2; ++i)
        QVERIFY2((m_cam[i] = m_rig.start(kAddress[i], kSerial[i], std::string(), 320, 240, "Mono8")) >= 0,
                 m_rig.lastError().c_str());
    CConfiguration::getInstance()->iHeartbeatIval = 500;
    CConfiguration::getInstance()->iAnswerTimeout = 300;
    m_host = new QWidget;
    m_form = new CDiscoveryDevicesForm(m_host);
    m_form->resize(340, 720);
    m_host->resize(340, 720);
    m_host->show();
    // The automatic refresh is driven by hand where a test wants it, never by the clock.
    m_form->autoRefreshTimer()->stop();
    auto listed = [this]() { return itemOf(0) && itemOf(1); };
    QVERIFY2(QTest::qWaitFor(listed, 20000) || (rediscoverWhenIdle() && QTest::qWaitFor(listed, 20000)),
             "the simulated cameras are not listed");
}

// The panel goes first; its camera tasks end before the manager does.
void TestDeviceList::cleanupTestCase()
{
    delete m_host;
    m_form = nullptr;
    QTRY_COMPARE_WITH_TIMEOUT(CCameraTaskThread::liveCount(), 0, 10000);
    m_owner.reset();
}

void TestDeviceList::treeBuiltAndRefreshKeepsItems()
{
    QTreeWidgetItem* gige = m_form->getRootItem(0);
    QTreeWidgetItem* first = itemOf(0);
    QTreeWidgetItem* second = itemOf(1);
    QCOMPARE(first->parent(), gige);
    QCOMPARE(first->text(0), QString("SimCam (LUMDL001)"));
    QCOMPARE(CDiscoveryDevicesForm::getDeviceKey(first), deviceOf(0)->getDeviceKey());
    // Key order of the device manager.
    QCOMPARE(gige->indexOfChild(first) < gige->indexOfChild(second),
             deviceOf(0)->getDeviceKey() < deviceOf(1)->getDeviceKey());
    QVERIFY(m_form->rootForm(0)->isCheckBoxVisible() && !m_form->rootForm(1)->isCheckBoxVisible());   // no USB camera
    QCOMPARE(m_form->itemIconIndex(first), int(iconNormal));

    // Select the first, hover the second: buttons on both rows.
    QSignalSpy selected(m_form, &CDiscoveryDevicesForm::select_device);
    m_form->on_deviceList_itemClicked(first, 0);
    QVERIFY(selected.count() == 1 && m_form->currentItem() == first);
    m_form->setHoverItem(first);
    m_form->setHoverItem(second);
    CDiscoveryButtonsForm* firstButtons = m_form->buttonsOf(first);
    CDiscoveryButtonsForm* secondButtons = m_form->buttonsOf(second);
    QVERIFY(firstButtons && secondButtons);

    // A refresh with the same cameras keeps items, selection and buttons.
    QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
    QTest::mouseClick(m_form->refreshButton(), Qt::LeftButton);
    QVERIFY(!m_form->refreshButton()->isEnabled() && finished.wait(20000));
    QTRY_VERIFY(m_form->refreshButton()->isEnabled());
    QVERIFY(itemOf(0) == first && itemOf(1) == second && gige->childCount() == 2);
    QVERIFY(m_form->currentItem() == first && m_form->hoverItem() == second);
    QVERIFY(m_form->buttonsOf(first) == firstButtons && m_form->buttonsOf(second) == secondButtons);

    // Back on the selected row: the other row's buttons go, its own stay.
    m_form->setHoverItem(first);
    QVERIFY(m_form->buttonsOf(first) == firstButtons && !m_form->buttonsOf(second));

    // The automatic refresh: every 10 s, while enabled.
    QCOMPARE(m_form->autoRefreshTimer()->interval(), 10000);
    CConfiguration::getInstance()->autoRefreshEnable = false;
    m_form->onAutoRefreshTimeout();
    QVERIFY(m_form->refreshButton()->isEnabled());
    CConfiguration::getInstance()->autoRefreshEnable = true;
    finished.clear();
    m_form->onAutoRefreshTimeout();
    QVERIFY(!m_form->refreshButton()->isEnabled() && finished.wait(20000));
    QTRY_VERIFY(m_form->refreshButton()->isEnabled());
    QCOMPARE(itemOf(0), first);
}

void TestDeviceList::buttonsFollowTheCamera()
{
    QTreeWidgetItem* item = itemOf(0);
    CTavDevicePtr device = deviceOf(0);
    m_form->setHoverItem(item);
    CDiscoveryButtonsForm* buttons = m_form->buttonsOf(item);
    QVERIFY(buttons->getConnectBtn()->isVisible() && buttons->getForceIPBtn()->isEnabled());
    QVERIFY(buttons->getDisconnectBtn()->isHidden());
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    buttons->getConnectBtn()->click();
    // The row's buttons wait, under the wait dialog, while the camera opens.
    QVERIFY(!buttons->getConnectBtn()->isEnabled() && m_form->waitDialog()->isVisible());
    QVERIFY(opened.wait(15000) && device->isConnected());
    QTRY_VERIFY(!m_form->waitDialog()->isVisible());
    QVERIFY(waitIcon(0, iconConnected));
    buttons = m_form->buttonsOf(item);
    QVERIFY(buttons->getConnectBtn()->isHidden() && buttons->getForceIPBtn()->isHidden());
    QVERIFY(buttons->getDisconnectBtn()->isVisible() && buttons->getDisconnectBtn()->isEnabled());

    // Streaming from the menu: the icon follows, and the menu offers to stop.
    QVERIFY(m_form->prepareDeviceMenu(item));
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, iconAcquisition));
    QTRY_VERIFY_WITH_TIMEOUT(device->isGrabing(), 10000);
    QVERIFY(m_form->prepareDeviceMenu(item));
    QVERIFY(m_form->actionPlay()->text() == "Stop Acquisition" && !m_form->actionSaveConfig()->isEnabled());
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, iconConnected));

    // Closed from the inline button.
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getDisconnectBtn()->click();
    QVERIFY(closed.wait(15000) && !device->isConnected() && waitIcon(0, iconNormal));
    buttons = m_form->buttonsOf(item);
    QVERIFY(buttons->getConnectBtn()->isVisible() && buttons->getConnectBtn()->isEnabled());
    QVERIFY(buttons->getDisconnectBtn()->isHidden());
}

void TestDeviceList::menuAndDoubleClickConnect()
{
    QTreeWidgetItem* item = itemOf(1);
    CTavDevicePtr device = deviceOf(1);
    QTreeWidget* list = m_form->deviceList();
    list->scrollToItem(item);
    const QPoint at = list->visualItemRect(item).center();

    // Connect, then disconnect, from the context menu opened where the row is.
    for (const bool connect : {true, false}) {
        QSignalSpy done(m_form, connect ? &CDiscoveryDevicesForm::openDeviceSuccess
                                        : &CDiscoveryDevicesForm::closeDeviceSuccess);
        m_form->ShowContextMenu(at);
        QCOMPARE(m_form->contextItem(), item);
        QTRY_VERIFY(m_form->deviceMenu()->isVisible());
        QCOMPARE(m_form->actionConnect()->text(), QString(connect ? "Connect" : "Disconnect"));
        m_form->deviceMenu()->close();
        m_form->actionConnect()->trigger();
        QVERIFY(done.wait(15000));
        QCOMPARE(device->isConnected(), connect);
    }

    // A double click connects; on a connected row it does nothing more.
    // (An item view takes a double click only after the press that precedes it.)
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(opened.wait(15000) && device->isConnected());
    QCOMPARE(m_form->currentItem(), item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(device->isConnected() && closeDevice(1));

    // "Open Config" and "Save Config" are the main window's: the panel asks.
    QSignalSpy openConfig(m_form, &CDiscoveryDevicesForm::signalOpenConfig);
    QSignalSpy saveConfig(m_form, &CDiscoveryDevicesForm::signalSaveConfig);
    m_form->on_deviceList_itemClicked(item, 0);
    m_form->actionOpenConfig()->trigger();
    m_form->actionSaveConfig()->trigger();
    QVERIFY(openConfig.count() == 1 && saveConfig.count() == 1);
    QCOMPARE(openConfig.first().first().value<CTavDevicePtr>(), device);
    // (The GigE root's menu is used in the dialogs test.)
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
    QVERIFY(!device->isConnecting() && !device->isConnected() && !m_form->waitDialog()->isVisible());

    // Fifteen open: the sixteenth goes through.
    opened = 15;
    QVERIFY(connectByButton(0));
    m_form->setOpenedDeviceCounter([]() { return CDeviceManager::getInstance()->getOpenedDeviceCount(); });
    QVERIFY(closeDevice(0));
    QCOMPARE(answerer.texts.size(), 1);
}

void TestDeviceList::collapseAndExpand()
{
    const int width = m_form->width();
    QSignalSpy collapsed(m_form, &CDiscoveryDevicesForm::formCollpased);
    QSignalSpy expanded(m_form, &CDiscoveryDevicesForm::formExpanded);
    m_form->onBtnCollpaseClicked();
    QVERIFY(collapsed.count() == 1 && m_form->width() == 14 && !m_form->deviceList()->isVisible());
    QTest::mouseClick(m_form->expandButton(), Qt::LeftButton);
    QVERIFY(expanded.count() == 1 && expanded.first().first().toInt() == width);   // the width it had
    QVERIFY(m_form->minimumWidth() == 250 && m_form->deviceList()->isVisible());
}

void TestDeviceList::copyDeviceInfo()
{
    m_form->on_deviceList_itemClicked(itemOf(0), 0);
    QApplication::clipboard()->clear();
    m_form->onActionCopyinfo();
    // The rows shown, in the copied layout (itself tested on its own).
    SDeviceInfoRows rows{m_form->infoRows(false), m_form->infoRows(true)};
    QCOMPARE(QApplication::clipboard()->text(), CDeviceInfoRows::toCopyText(rows));
    // IP address, mask, gateway, vendor, model, manufacturer, version,
    // serial number, protocol version, valid, IP configuration, access.
    QVERIFY(rows.interfaceRows.size() == 4 && rows.deviceRows.size() == 12);
    QStringList values;
    for (const InfoRow& r : rows.deviceRows)
        values << r.second;
    QCOMPARE(values.mid(3, 2) + values.mid(7, 3), QStringList({"Lumidor", "SimCam", "LUMDL001", "2.0", "True"}));
    QCOMPARE(values.first(), QString(kAddress[0]));
}

void TestDeviceList::userIdShownAfterRefresh()
{
    QTreeWidgetItem* item = itemOf(1);
    CTavDevicePtr device = deviceOf(1);
    QVERIFY(connectByButton(1));
    m_form->on_deviceList_itemClicked(item, 0);

    // Written through the dialog, whose limit is the feature's 16 bytes less one.
    int maxLength = -1;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    onDialog<CSetDevUserIDDlg>([&](CSetDevUserIDDlg* dialog) {
        maxLength = dialog->lineEdit()->maxLength();
        dialog->lineEdit()->setText("Line A");
        dialog->okButton()->click();
    });
    m_form->onActionSetDevUserIDTriggered();
    QVERIFY(done.wait(15000));
    QCOMPARE(maxLength, 15);
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
    QVERIFY(device->setParaStringValue("DeviceUserID", QString()) && closeDevice(1));
}

void TestDeviceList::persistentIpWrittenToCamera()
{
    CSetIpThread worker;
    QueuedSignalSpy ended(&worker, &CSetIpThread::signalSetIpEnd);
    worker.startSetIp(deviceOf(1)->getDeviceKey(), "192.168.7.20", "255.255.255.0", "192.168.7.1");
    QVERIFY(ended.wait(15000));
    QCOMPARE(ended.first().first().toBool(), true);
    // Read back through a connection of our own, after the worker's has gone.
    QVERIFY(connectByButton(1));
    long ip = 0, mask = 0, gateway = 0;
    bool enabled = false;
    QVERIFY(deviceOf(1)->getParaIntValue("GevPersistentIPAddress", ip) &&
            deviceOf(1)->getParaIntValue("GevPersistentSubnetMask", mask) &&
            deviceOf(1)->getParaIntValue("GevPersistentDefaultGateway", gateway) &&
            deviceOf(1)->getParaBoolValue("GevCurrentIPConfigurationPersistentIP", enabled));
    QVERIFY(quint32(ip) == 0xC0A80714u && quint32(mask) == 0xFFFFFF00u && quint32(gateway) == 0xC0A80701u);
    QVERIFY(enabled && closeDevice(1));
}

void TestDeviceList::saveGenICamXml()
{
    QVERIFY(connectByButton(0));
    m_form->on_deviceList_itemClicked(itemOf(0), 0);
    QTemporaryDir dir;
    QString suggested;
    m_form->setXmlFileChooser([&](QWidget*, const QString& name) {
        suggested = name;
        return dir.filePath("camera.xml");
    });
    BoxAnswerer answerer;
    QSignalSpy done(m_form, &CDiscoveryDevicesForm::cameraTaskFinished);
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(suggested, deviceOf(0)->getDeviceSaveName() + ".xml");
    QVERIFY(answerer.texts.isEmpty());
    QFile file(dir.filePath("camera.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("RegisterDescription"));

    // A place that cannot be written.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString("/proc/no/such/dir/camera.xml"); });
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QCOMPARE(answerer.texts.size(), 1);
    QVERIFY2(answerer.texts[0].startsWith("Download xml file failed.\n") &&
                 answerer.texts[0].contains("/proc/no/such/dir/camera.xml"),
             qPrintable(answerer.texts[0]));
    // A cancelled file dialog starts nothing: the next save, which runs after
    // anything started before it, is the only one to finish.
    m_form->setXmlFileChooser([](QWidget*, const QString&) { return QString(); });
    m_form->onActionSaveGenICamXml();
    m_form->setXmlFileChooser([&](QWidget*, const QString&) { return dir.filePath("again.xml"); });
    done.clear();
    m_form->onActionSaveGenICamXml();
    QVERIFY(done.wait(15000));
    QVERIFY(done.count() == 1 && answerer.texts.size() == 1 && QFile::exists(dir.filePath("again.xml")));
    QVERIFY(closeDevice(0));
}

// One camera streaming, the other hovered: the texts follow a language
// switch at once.
void TestDeviceList::languageSwitch()
{
    QTreeWidgetItem* streaming = itemOf(0);
    QVERIFY(connectByButton(0) && m_form->prepareDeviceMenu(streaming));
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, iconAcquisition));
    m_form->on_deviceList_itemClicked(streaming, 0);
    m_form->setHoverItem(itemOf(1));

    QTranslator panel, widgets;
    QVERIFY2(panel.load(":/i18n/discovery_zh_CN.qm"), "the compiled translation is not in the resources");
    widgets.load(":/i18n/widgets_zh_CN.qm");
    QCoreApplication::installTranslator(&panel);
    QCoreApplication::installTranslator(&widgets);
    // The language change reaches the windows as a posted event.
    QTRY_COMPARE(m_form->refreshButton()->text(), QString::fromUtf8("刷新"));
    // The menu's texts keep following the camera's state.
    QVERIFY(m_form->prepareDeviceMenu(streaming));
    QCOMPARE(m_form->actionPlay()->text(), QString::fromUtf8("停止采集"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString::fromUtf8("序列号"));
    QCOMPARE(m_form->buttonsOf(itemOf(1))->getConnectBtn()->toolTip(), QString::fromUtf8("连接"));

    QCoreApplication::removeTranslator(&panel);
    QCoreApplication::removeTranslator(&widgets);
    QTRY_COMPARE(m_form->refreshButton()->text(), QString("refresh"));
    QCOMPARE(m_form->infoRows(true).at(7).first, QString("Serial Number"));
    m_form->actionPlay()->trigger();
    QVERIFY(waitIcon(0, iconConnected) && closeDevice(0));
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
    QVERIFY(QTest::qWaitFor(
        [&]() {
            if (!m_form->getItemByKey(key))
                return true;
            if (m_form->refreshButton()->isEnabled())
                m_form->on_reflesh_clicked();
            return false;
        },
        30000));
    QVERIFY(!m_form->hoverItem() && !m_form->currentItem() && !m_form->contextItem());
    QVERIFY(!m_form->deviceMenu()->isVisible() && m_form->infoRows(true).isEmpty());
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
