#include "CDiscoveryDevicesForm.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFrame>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <utility>

#include "CConfiguration.h"
#include "CDeviceInfoRows.h"
#include "CDeviceInfoSections.h"
#include "CDeviceManager.h"
#include "CDiscoveryRootForm.h"
#include "CLanguageWatcher.h"
#include "CTavDevice.h"
#include "DeviceStateReader.h"
#include "MenuPosition.h"
#include "MessageBox.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDiscoveryDevicesForm::CDiscoveryDevicesForm(QWidget* parent) : QWidget(parent)
{
    registerMessageMetaTypes();
    m_ui.setupUi(this);
    m_info.reset(new CDeviceInfoSections(m_ui.deviceInfo));
    m_menus = new CDeviceListMenus(this);
    m_model = new CDeviceListModel(m_ui.deviceList, this);
    m_ui.deviceList->setIconSize(m_model->iconSize());
    m_buttons = new CDeviceRowButtons(m_ui.deviceList, m_model, this);
    m_controller = new CDeviceListController(m_model, this);
    connectWidgets();

    createRootItem(cameraTypeGigE);
    createRootItem(cameraTypeUsb);
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();

    connect(this, &CDiscoveryDevicesForm::update_receive, this, &CDiscoveryDevicesForm::OnUpdateReceive,
            Qt::QueuedConnection);
    connect(this, &CDiscoveryDevicesForm::discoveryDevicesFinished, this,
            &CDiscoveryDevicesForm::on_discoveryDevicesFinished);
    connect(this, &CDiscoveryDevicesForm::openDeviceSuccess, this, &CDiscoveryDevicesForm::on_OpenDeviceSuccess);
    connect(this, &CDiscoveryDevicesForm::closeDeviceSuccess, this, &CDiscoveryDevicesForm::on_CloseDeviceSuccess);
    connect(m_model, &CDeviceListModel::currentItemRemoved, this, [this]() { m_info->clear(); });
    connect(m_model, &CDeviceListModel::contextItemRemoved, this, [this]() {
        if (deviceMenu()->isVisible())
            deviceMenu()->close();
    });
    connect(m_controller, &CDeviceListController::deviceSelected, this, &CDiscoveryDevicesForm::select_device);
    connect(m_controller, &CDeviceListController::remoteDiscoveryRequested, this,
            [this]() { m_ui.btnRefresh->setEnabled(false); });
    connect(m_controller, &CDeviceListController::cameraTaskFinished, this,
            &CDiscoveryDevicesForm::cameraTaskFinished);

    m_pAutoRefreshTimer = new QTimer(this);
    m_pAutoRefreshTimer->setInterval(kAutoRefreshIntervalMs);
    connect(m_pAutoRefreshTimer, &QTimer::timeout, this, &CDiscoveryDevicesForm::onAutoRefreshTimeout);
    m_pAutoRefreshTimer->start();

    CDeviceManager* manager = CDeviceManager::getInstance();
    m_pManager = manager;
    manager->attach(this);
    // Discovery may have finished before the panel existed.
    QMap<QString, CTavDevicePtr> devices = manager->getAllDevices();
    updateDeviceList(devices);
}

CDiscoveryDevicesForm::~CDiscoveryDevicesForm()
{
    // The manager may have been shut down first; do not make a new one.
    if (m_pManager)
        m_pManager->detach(this);
}

void CDiscoveryDevicesForm::connectWidgets()
{
    QTreeWidget* list = m_ui.deviceList;
    connect(m_ui.btnRefresh, &QPushButton::clicked, this, &CDiscoveryDevicesForm::on_reflesh_clicked);
    connect(m_ui.btnCollpaseDevice, &QToolButton::clicked, this, &CDiscoveryDevicesForm::onBtnCollpaseClicked);
    connect(m_ui.btnExpandDevice, &QToolButton::clicked, this, &CDiscoveryDevicesForm::on_btnExpandDevice_clicked);
    connect(list, &QTreeWidget::itemClicked, this, &CDiscoveryDevicesForm::on_deviceList_itemClicked);
    connect(list, &QTreeWidget::itemDoubleClicked, this, &CDiscoveryDevicesForm::on_deviceList_itemDoubleClicked);
    connect(list, &QTreeWidget::itemEntered, this, &CDiscoveryDevicesForm::on_deviceList_itemEntered);
    connect(list, &QWidget::customContextMenuRequested, this, &CDiscoveryDevicesForm::ShowContextMenu);
    connect(m_ui.deviceInfo, &QTreeWidget::itemDoubleClicked, this,
            &CDiscoveryDevicesForm::on_deviceInfo_itemDoubleClicked);
    connect(m_info->form(CDeviceInfoSections::interfaceSection), &CDiscoveryRootForm::signalCheckBoxClicked, this,
            &CDiscoveryDevicesForm::onDeviceInfoInterfaceClicked);
    connect(m_info->form(CDeviceInfoSections::deviceSection), &CDiscoveryRootForm::signalCheckBoxClicked, this,
            &CDiscoveryDevicesForm::onDeviceInfoDeviceClicked);
    connect(m_buttons, &CDeviceRowButtons::connectClicked, this, &CDiscoveryDevicesForm::on_connectDevice);
    connect(m_buttons, &CDeviceRowButtons::disconnectClicked, this, &CDiscoveryDevicesForm::on_disconnectDevice);
    connect(m_buttons, &CDeviceRowButtons::forceIpClicked, this, &CDiscoveryDevicesForm::on_modifyIp);

    const std::pair<QAction*, void (CDiscoveryDevicesForm::*)()> actions[] = {
        {actionConnect(), &CDiscoveryDevicesForm::onActionConnectTriggered},
        {actionOpenConfig(), &CDiscoveryDevicesForm::onActionOpenConfigTriggered},
        {actionSaveConfig(), &CDiscoveryDevicesForm::onActionSaveConfigTriggered},
        {actionPlay(), &CDiscoveryDevicesForm::onActionPlayTriggered},
        {actionForceIp(), &CDiscoveryDevicesForm::on_ActionForceIpTriggered},
        {actionSetDevUserID(), &CDiscoveryDevicesForm::onActionSetDevUserIDTriggered},
        {actionSaveXml(), &CDiscoveryDevicesForm::onActionSaveGenICamXml},
        {actionCopyInfo(), &CDiscoveryDevicesForm::onActionCopyinfo},
        {actionUnicast(), &CDiscoveryDevicesForm::onActionUnicastTriggered}};
    for (const auto& action : actions)
        connect(action.first, &QAction::triggered, this, action.second);
}

void CDiscoveryDevicesForm::retranslateUi()
{
    m_ui.retranslateUi();
    if (CDiscoveryRootForm* gige = rootForm(cameraTypeGigE))
        gige->setText(tr("GigE"));
    if (CDiscoveryRootForm* usb = rootForm(cameraTypeUsb))
        usb->setText(tr("USB"));
    m_info->setTitles(tr("Interface Info"), tr("Device Info"));
    retranslateMenu();
    // The labels of the information rows.
    refleshDeviceInfo(currentItem());
}

void CDiscoveryDevicesForm::retranslateMenu()
{
    m_menus->retranslate();
}

// ------------------------------------------------------------------ bus

void CDiscoveryDevicesForm::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CDiscoveryDevicesForm::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg)
        return;
    switch (msg->type) {
    case MSG_DISCOVERY_FINISHED:
        emit discoveryDevicesFinished();
        break;
    case MSG_DEVICE_CONNECTING:
    case MSG_DEVICE_DISCONNECTING:
        m_buttons->disableBtns(getItemByDevice(msg->device));
        break;
    case MSG_DEVICE_CONNECTED:
        m_controller->connectionSettled();
        emit openDeviceSuccess(msg->device);
        break;
    case MSG_DEVICE_CONNECT_FAILED: {
        m_controller->connectionSettled();
        QTreeWidgetItem* item = getItemByDevice(msg->device);
        loadItemIcon(item);
        m_buttons->refleshItemButtons(item);
        messageBox((msg->device ? msg->device->getDeviceKey() : QString()) + tr(" Connection failed!"), this,
                   QMessageBox::Ok, QMessageBox::Critical);
        break;
    }
    case MSG_DEVICE_DISCONNECTED:
        emit closeDeviceSuccess(msg->device);
        break;
    case MSG_STREAM_OPENED:
        loadAcuisitionICon(msg->device, true);
        break;
    case MSG_STREAM_CLOSED:
        loadAcuisitionICon(msg->device, false);
        break;
    case MSG_ACCESS_STATUS_CHANGED:
        onRefreshAccessStatus(msg->device);
        break;
    default:
        break;
    }
}

void CDiscoveryDevicesForm::on_OpenDeviceSuccess(CTavDevicePtr device)
{
    QTreeWidgetItem* item = getItemByDevice(device);
    if (!item)
        return;
    loadItemIcon(item);
    m_buttons->refleshItemButtons(item);
    if (item == currentItem())
        refleshDeviceInfo(item);
}

void CDiscoveryDevicesForm::on_CloseDeviceSuccess(CTavDevicePtr device)
{
    on_OpenDeviceSuccess(device);
    // The permission read while we held the camera is stale now; message 9
    // brings the fresh one.
    QTreeWidgetItem* item = getItemByDevice(device);
    if (item && item->type() == treeItemGigEDevice)
        device->refreshAccessPermission();
}

void CDiscoveryDevicesForm::onRefreshAccessStatus(CTavDevicePtr device)
{
    QTreeWidgetItem* item = getItemByDevice(device);
    if (!item)
        return;
    loadItemIcon(item);
    if (item == currentItem() && deviceCameraType(item->type()) == cameraTypeGigE)
        m_info->setDeviceValue(CDeviceInfoRows::accessStatusLabel(),
                               CDeviceInfoRows::accessPermissionText(int(device->getAccessPermission())));
}

// ------------------------------------------------------------------ roots and items

QTreeWidgetItem* CDiscoveryDevicesForm::createRootItem(unsigned int type)
{
    const bool existed = type < unsigned(cameraTypeCount) && isCreatedRootItem(type);
    QTreeWidgetItem* item = m_model->createRootItem(type);
    if (!item || existed)
        return item;
    rootForm(type)->setText(type == cameraTypeGigE ? tr("GigE") : tr("USB"));
    connect(rootForm(type), &CDiscoveryRootForm::signalCheckBoxClicked, this,
            &CDiscoveryDevicesForm::onRootItemClicked);
    return item;
}

QTreeWidgetItem* CDiscoveryDevicesForm::getItemByDevice(const CTavDevicePtr& device) const
{
    return device ? m_model->getItemByKey(device->getDeviceKey()) : nullptr;
}

CTavDevicePtr CDiscoveryDevicesForm::deviceOf(QTreeWidgetItem* item, const char* handler) const
{
    if (!item) {
        LOG_ERROR("pItem is null.");
        return CTavDevicePtr();
    }
    return lookUpDevice(getDeviceKey(item), handler);
}

SDeviceState CDiscoveryDevicesForm::stateOf(QTreeWidgetItem* item) const
{
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    return readDeviceState(device, deviceCameraType(item->type()));
}

void CDiscoveryDevicesForm::setHoverItem(QTreeWidgetItem* item)
{
    on_deviceList_itemEntered(item, 0);
}

// ------------------------------------------------------------------ merge

void CDiscoveryDevicesForm::on_reflesh_clicked()
{
    m_ui.btnRefresh->setEnabled(false);
    m_controller->refresh();
}

void CDiscoveryDevicesForm::onAutoRefreshTimeout()
{
    // Not while a pass is still under way: the worker takes one request at a time.
    if (!CConfiguration::getInstance()->autoRefreshEnable || !m_ui.btnRefresh->isEnabled())
        return;
    on_reflesh_clicked();
}

void CDiscoveryDevicesForm::on_discoveryDevicesFinished()
{
    QMap<QString, CTavDevicePtr> devices = CDeviceManager::getInstance()->getAllDevices();
    updateDeviceList(devices);
    m_controller->passFinished();
}

void CDiscoveryDevicesForm::updateDeviceList(QMap<QString, CTavDevicePtr>& devices)
{
    const QList<SDeviceRow> rows = readDeviceRows(devices);
    // The access-status worker reads the permissions; message 9 brings them.
    for (const SDeviceRow& row : rows)
        if (row.cameraType == cameraTypeGigE)
            if (CTavDevicePtr device = devices.value(row.key))
                device->refreshAccessPermission();
    m_model->merge(rows);
    refleshAllItemIcon();
    m_ui.deviceList->expandAll();
    refleshDeviceInfo(currentItem());
    m_ui.btnRefresh->setEnabled(true);
}

// ------------------------------------------------------------------ state of a row

bool CDiscoveryDevicesForm::isValidIp(QTreeWidgetItem* item)
{
    return !(item && isInterfaceItemType(item->type())) && hasValidIp(deviceOf(item, "isValidIp"));
}

bool CDiscoveryDevicesForm::isUSB3Interface(QTreeWidgetItem* item)
{
    return isUsb3PortSpeed(getUSBSpeed(item));
}

QString CDiscoveryDevicesForm::getUSBSpeed(QTreeWidgetItem* item)
{
    return usbSpeedOf(deviceOf(item, "getUSBSpeed"));
}

void CDiscoveryDevicesForm::refleshAllItemIcon()
{
    for (QTreeWidgetItem* item : m_model->deviceItems())
        loadItemIcon(item);
}

void CDiscoveryDevicesForm::loadItemIcon(QTreeWidgetItem* item)
{
    if (item && isDeviceItemType(item->type()))
        m_model->setItemIcon(item, statusIcon(stateOf(item)));
}

void CDiscoveryDevicesForm::loadAcuisitionICon(const CTavDevicePtr& device, bool grabbing)
{
    if (QTreeWidgetItem* item = getItemByDevice(device))
        m_model->setItemIcon(item, acquisitionIcon(stateOf(item), grabbing));
}

// ------------------------------------------------------------------ information tree

void CDiscoveryDevicesForm::refleshDeviceInfo(QTreeWidgetItem* item)
{
    if (item && isDeviceItemType(item->type()))
        m_info->showDevice(CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item)));
    else
        m_info->clear();
}

QList<QPair<QString, QString>> CDiscoveryDevicesForm::infoRows(bool deviceSection) const
{
    return m_info->rows(deviceSection ? CDeviceInfoSections::deviceSection : CDeviceInfoSections::interfaceSection);
}

void CDiscoveryDevicesForm::setDeviceInfoHide(bool hide)
{
    m_ui.frameDevInfo->setHidden(hide);
}

void CDiscoveryDevicesForm::onDeviceInfoInterfaceClicked(bool checked)
{
    m_info->setExpanded(CDeviceInfoSections::interfaceSection, checked);
}

void CDiscoveryDevicesForm::onDeviceInfoDeviceClicked(bool checked)
{
    m_info->setExpanded(CDeviceInfoSections::deviceSection, checked);
}

void CDiscoveryDevicesForm::onRootItemClicked(bool checked)
{
    for (int type = 0; type < cameraTypeCount; ++type)
        if (rootForm(type) && rootForm(type) == sender())
            getRootItem(type)->setExpanded(checked);
}

void CDiscoveryDevicesForm::on_deviceInfo_itemDoubleClicked(QTreeWidgetItem* item, int)
{
    // Expands or collapses a section from its header row.
    m_info->toggle(item);
}

// ------------------------------------------------------------------ inline buttons

void CDiscoveryDevicesForm::on_deviceList_itemEntered(QTreeWidgetItem* item, int)
{
    if (!item || !isDeviceItemType(item->type()))
        return;
    m_model->setHoverItem(item);
    m_buttons->enterRow(item);
}

void CDiscoveryDevicesForm::leaveEvent(QEvent* event)
{
    // The current row keeps its buttons; the one under the mouse loses them.
    if (hoverItem() && hoverItem() != currentItem())
        m_buttons->removeButtonInItem(hoverItem());
    QWidget::leaveEvent(event);
}

void CDiscoveryDevicesForm::enterEvent(QEvent* event)
{
    setCursor(Qt::ArrowCursor);
    QWidget::enterEvent(event);
}

// ------------------------------------------------------------------ connect and disconnect

void CDiscoveryDevicesForm::on_deviceList_itemClicked(QTreeWidgetItem* item, int)
{
    if (!item || !isDeviceItemType(item->type()))
        return;
    m_model->setCurrentItem(item);
    if (CTavDevicePtr device = deviceOf(item, "on_deviceList_itemClicked"))
        emit select_device(device);
    refleshDeviceInfo(item);
}

void CDiscoveryDevicesForm::on_deviceList_itemDoubleClicked(QTreeWidgetItem* item, int)
{
    if (!item || !isDeviceItemType(item->type()))
        return;
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    if (device && device->isConnected())
        return;
    connectItem(item);
}

void CDiscoveryDevicesForm::on_connectDevice()
{
    QTreeWidgetItem* target = nullptr;
    if (hoverItem() && isDeviceItemType(hoverItem()->type()))
        target = hoverItem();
    else if (currentItem() && isDeviceItemType(currentItem()->type()))
        target = currentItem();
    connectItem(target);
}

void CDiscoveryDevicesForm::connectItem(QTreeWidgetItem* target)
{
    if (!target || !isDeviceItemType(target->type()))
        return;
    const QString key = getDeviceKey(target);
    if (CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key))
        emit select_device(device);
    setCurrentDeviceItem(target);
    refleshDeviceInfo(target);
    if (!m_controller->connectDevice(key, deviceCameraType(target->type())))
        return;
    // Looked up again: the controller may have asked a modal question.
    target = getItemByKey(key);
    m_buttons->disableBtns(target);
    refleshDeviceInfo(target);
}

void CDiscoveryDevicesForm::on_disconnectDevice()
{
    if (!hoverItem()) {
        LOG_ERROR("currentItem is NULL!");
        return;
    }
    disconnectItem(hoverItem());
}

void CDiscoveryDevicesForm::disconnectItem(QTreeWidgetItem* target)
{
    const QString key = getDeviceKey(target);
    LOG_DEBUG("start off device [%s].", key.toLocal8Bit().constData());
    if (isInterfaceItemType(target->type()))
        return;
    m_buttons->disableBtns(target);
    CTavDevicePtr device = deviceOf(target, "on_disconnectDevice");
    if (!device)
        return;
    emit select_device(device);
    // The close runs on the device's worker; message 5 ends it.
    device->closeDevice(false);
}

// ------------------------------------------------------------------ context menu

bool CDiscoveryDevicesForm::prepareDeviceMenu(QTreeWidgetItem* item)
{
    if (!item || !isDeviceItemType(item->type()))
        return false;
    CTavDevicePtr device = deviceOf(item, "ShowContextMenu");
    if (!device)
        return false;
    emit select_device(device);
    setCurrentDeviceItem(item);
    refleshDeviceInfo(item);

    m_menus->apply(deviceMenuState(readDeviceState(device, deviceCameraType(item->type()))));
    return true;
}

void CDiscoveryDevicesForm::ShowContextMenu(const QPoint& pos)
{
    QTreeWidgetItem* item = m_ui.deviceList->itemAt(pos);
    const QPoint global = m_ui.deviceList->viewport()->mapToGlobal(pos);
    if (isGigERootItem(item)) {
        m_model->setContextItem(item);
        rootMenu()->popup(getMenuPos(global, rootMenu()->sizeHint()));
        return;
    }
    if (!prepareDeviceMenu(item))
        return;
    m_model->setContextItem(item);
    deviceMenu()->popup(getMenuPos(global, deviceMenu()->sizeHint()));
}

void CDiscoveryDevicesForm::onActionConnectTriggered()
{
    QTreeWidgetItem* item = contextItem() ? contextItem() : currentItem();
    CTavDevicePtr device = deviceOf(item, "onActionConnectTriggered");
    if (!device)
        return;
    if (device->isConnected())
        disconnectItem(item);
    else
        connectItem(item);
}

void CDiscoveryDevicesForm::onActionOpenConfigTriggered()
{
    if (CTavDevicePtr device = deviceOf(currentItem(), "onActionOpenConfigTriggered"))
        emit signalOpenConfig(device);
}

void CDiscoveryDevicesForm::onActionSaveConfigTriggered()
{
    if (CTavDevicePtr device = deviceOf(currentItem(), "onActionSaveConfigTriggered"))
        emit signalSaveConfig(device);
}

void CDiscoveryDevicesForm::onActionPlayTriggered()
{
    m_controller->toggleAcquisition(deviceOf(currentItem(), "onActionPlayTriggered"));
}

void CDiscoveryDevicesForm::on_modifyIp()
{
    modifyIP(hoverItem() ? hoverItem() : currentItem());
}

void CDiscoveryDevicesForm::on_ActionForceIpTriggered()
{
    modifyIP(contextItem() ? contextItem() : currentItem());
}

void CDiscoveryDevicesForm::modifyIP(QTreeWidgetItem* item)
{
    CTavDevicePtr device = deviceOf(item, "on_modifyIp");
    if (device && device->getDevice()) {
        emit select_device(device);
        setCurrentDeviceItem(item);
    }
    m_controller->modifyIp(device);
}

void CDiscoveryDevicesForm::onActionSetDevUserIDTriggered()
{
    // The handler's name in the log is the acquisition entry's, as it has always been.
    if (CTavDevicePtr device = lookUpDevice(getDeviceKey(currentItem()), "onActionPlayTriggered"))
        m_controller->setDeviceUserId(device);
}

void CDiscoveryDevicesForm::onActionSaveGenICamXml()
{
    m_controller->saveGenICamXml(deviceOf(currentItem(), "onActionSaveGenICamXml"));
}

void CDiscoveryDevicesForm::onActionCopyinfo()
{
    CTavDevicePtr device = deviceOf(currentItem(), "onActionCopyinfo");
    SDeviceInfoRows rows;
    if (!device || !CDeviceInfoRows::build(device, rows))
        return;
    QApplication::clipboard()->setText(CDeviceInfoRows::toCopyText(rows));
}

void CDiscoveryDevicesForm::onActionUnicastTriggered()
{
    m_controller->addRemoteCamera();
}

// ------------------------------------------------------------------ collapse

void CDiscoveryDevicesForm::onBtnCollpaseClicked()
{
    m_nExpandedWidth = width();
    m_ui.setCollapsed(this, true);
    emit formCollpased();
}

void CDiscoveryDevicesForm::on_btnExpandDevice_clicked()
{
    m_ui.setCollapsed(this, false);
    emit formExpanded(m_nExpandedWidth);
}
