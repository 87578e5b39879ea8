// The device list panel against two simulated cameras in this process: the
// tree and its in-place merge, the inline buttons, the menu, connecting and
// disconnecting every way, the connection limit, collapsing, and a camera
// that goes away.
#include "DeviceListRig.h"
#include <QAction>
#include <QMenu>
#include <QTreeWidget>

class TestDeviceList : public DeviceListRigTest
{
    Q_OBJECT
private slots:
    void treeBuiltAndRefreshKeepsItems();
    void inlineButtonsConnectStreamDisconnect();
    void menuAndDoubleClickConnect();
    void connectionLimit();
    void collapseAndExpand();
    void vanishedCameraLeavesTree();
};

void TestDeviceList::treeBuiltAndRefreshKeepsItems()
{
    QTreeWidgetItem* gige = m_form->getRootItem(0);
    QTreeWidgetItem* first = m_rig.itemOf(0);
    QTreeWidgetItem* second = m_rig.itemOf(1);
    QCOMPARE(first->parent(), gige);
    QCOMPARE(first->type(), 1007);
    QCOMPARE(first->text(0), QString("SimCam (LUMDL001)"));
    QCOMPARE(first->toolTip(0), first->text(0));
    // Device rows span their first column over the row, as the roots do.
    QVERIFY(first->isFirstColumnSpanned() && second->isFirstColumnSpanned() && gige->isFirstColumnSpanned());
    QCOMPARE(m_form->rootForm(0)->text(), QString("GigE"));
    QCOMPARE(m_form->rootForm(1)->text(), QString("USB"));
    QCOMPARE(CDiscoveryDevicesForm::getDeviceKey(first), m_rig.deviceOf(0)->getDeviceKey());
    // Key order of the device manager.
    QCOMPARE(gige->indexOfChild(first) < gige->indexOfChild(second),
             m_rig.deviceOf(0)->getDeviceKey() < m_rig.deviceOf(1)->getDeviceKey());
    QVERIFY(m_form->rootForm(0)->isCheckBoxVisible());
    QVERIFY(!m_form->rootForm(1)->isCheckBoxVisible());   // no USB camera
    QVERIFY(m_form->rootForm(0)->isChecked());
    QCOMPARE(m_form->itemIconIndex(first), int(iconNormal));

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
    QCOMPARE(m_rig.itemOf(0), first);
    QCOMPARE(m_rig.itemOf(1), second);
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
    QCOMPARE(m_rig.itemOf(0), first);
}

void TestDeviceList::inlineButtonsConnectStreamDisconnect()
{
    QTreeWidgetItem* item = m_rig.itemOf(0);
    CTavDevicePtr device = m_rig.deviceOf(0);
    m_form->setHoverItem(item);
    CDiscoveryButtonsForm* buttons = m_form->buttonsOf(item);
    QVERIFY(buttons);
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    buttons->getConnectBtn()->click();
    QVERIFY(m_form->waitDialog()->isVisible());
    QVERIFY(opened.wait(15000));
    QVERIFY(device->isConnected());
    QTRY_VERIFY(!m_form->waitDialog()->isVisible());
    QVERIFY(m_rig.waitIcon(0, iconConnected));
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
    QVERIFY(m_rig.waitIcon(0, iconAcquisition));
    QTRY_VERIFY_WITH_TIMEOUT(device->isGrabing(), 10000);
    QVERIFY(m_form->prepareDeviceMenu(item));
    QCOMPARE(m_form->actionPlay()->text(), QString("Stop Acquisition"));
    QVERIFY(!m_form->actionOpenConfig()->isEnabled() && !m_form->actionSaveConfig()->isEnabled());
    QVERIFY(m_form->actionSetDevUserID()->isEnabled());
    m_form->actionPlay()->trigger();
    QVERIFY(m_rig.waitIcon(0, iconConnected));

    // Disconnect from the inline button.
    QSignalSpy closed(m_form, &CDiscoveryDevicesForm::closeDeviceSuccess);
    m_form->setHoverItem(item);
    m_form->buttonsOf(item)->getDisconnectBtn()->click();
    QVERIFY(closed.wait(15000));
    QVERIFY(!device->isConnected());
    QVERIFY(m_rig.waitIcon(0, iconNormal));
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
    QTreeWidgetItem* item = m_rig.itemOf(1);
    CTavDevicePtr device = m_rig.deviceOf(1);
    QTreeWidget* list = m_form->deviceList();
    m_form->deviceList()->scrollToItem(item);
    const QPoint at = list->visualItemRect(item).center();

    // Connect from the context menu, opened where the row is.
    QSignalSpy opened(m_form, &CDiscoveryDevicesForm::openDeviceSuccess);
    m_form->ShowContextMenu(at);
    QCOMPARE(m_form->contextItem(), item);
    QTRY_VERIFY(m_form->deviceMenu()->isVisible());
    QCOMPARE(m_form->actionConnect()->text(), QString("Connect"));
    m_form->deviceMenu()->close();
    m_form->actionConnect()->trigger();
    QVERIFY(opened.wait(15000));
    QVERIFY(device->isConnected());
    QVERIFY(m_rig.waitIcon(1, iconConnected));

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
    QTreeWidgetItem* item = m_rig.itemOf(0);
    CTavDevicePtr device = m_rig.deviceOf(0);
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
    QTreeWidgetItem* item = m_rig.itemOf(1);
    const QString key = m_rig.deviceOf(1)->getDeviceKey();
    m_form->on_deviceList_itemClicked(item, 0);
    m_form->setHoverItem(item);
    m_form->ShowContextMenu(m_form->deviceList()->visualItemRect(item).center());
    QCOMPARE(m_form->contextItem(), item);
    m_rig.stopCamera(1);

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
    QVERIFY(m_rig.itemOf(0));
}

QTEST_MAIN(TestDeviceList)
#include "test_devicelist.moc"
