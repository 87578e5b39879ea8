#include "CDiscoveryDevicesForm.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFileDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CCameraTask.h"
#include "CConfiguration.h"
#include "CDeviceInfoRows.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CDiscoveryButtonsForm.h"
#include "CDiscoveryRootForm.h"
#include "CSetDevUserIDDlg.h"
#include "CSetIPDlg.h"
#include "CTavDevice.h"
#include "CUnicastDlg.h"
#include "CWaitDlg.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "MenuPosition.h"
#include "MessageBox.h"
#include "Utils.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {
const char* const kIconFiles[CDiscoveryDevicesForm::iconCount] = {
    ":/Pic/Icon_DevList_DeviceStatus_Error.png", ":/Pic/Icon_DevList_DeviceStatus_Connected.png",
    ":/Pic/Icon_DevList_DeviceStatus_Normal.png", ":/Pic/Icon_DevList_DeviceStatus_Acquisition.png",
    ":/Pic/Icon_DevList_DeviceStatus_Warn.png"};
const int kIconIndexRole = Qt::UserRole + 1;
const int kButtonsColumnWidth = 76;

QString fromSdk(const Vorlen::Infra::CString& s)
{
    return QString::fromLocal8Bit(s.c_str());
}

void prepareTree(QTreeWidget* tree, int indentation)
{
    tree->setRootIsDecorated(false);
    tree->setIndentation(indentation);
    tree->setHeaderHidden(true);
    tree->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    tree->horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}
} // namespace

CDiscoveryDevicesForm::CDiscoveryDevicesForm(QWidget* parent) : QWidget(parent)
{
    registerMessageMetaTypes();
    for (int i = 0; i < iconCount; ++i)
        m_icons[i] = QIcon(QLatin1String(kIconFiles[i]));
    buildUi();
    buildMenus();
    m_pWaitDlg = new CWaitDlg(this);

    m_openedDeviceCounter = []() { return CDeviceManager::getInstance()->getOpenedDeviceCount(); };
    m_xmlFileChooser = [](QWidget* parent, const QString& suggested) {
        return QFileDialog::getSaveFileName(parent, tr("Save GenICam XML"), suggested, tr("XML (*.xml *.zip)"));
    };

    createRootItem(cameraTypeGigE);
    createRootItem(cameraTypeUsb);
    retranslateUi();

    connect(this, &CDiscoveryDevicesForm::update_receive, this, &CDiscoveryDevicesForm::OnUpdateReceive,
            Qt::QueuedConnection);
    connect(this, &CDiscoveryDevicesForm::discoveryDevicesFinished, this,
            &CDiscoveryDevicesForm::on_discoveryDevicesFinished);
    connect(this, &CDiscoveryDevicesForm::openDeviceSuccess, this, &CDiscoveryDevicesForm::on_OpenDeviceSuccess);
    connect(this, &CDiscoveryDevicesForm::closeDeviceSuccess, this, &CDiscoveryDevicesForm::on_CloseDeviceSuccess);

    m_pAutoRefreshTimer = new QTimer(this);
    m_pAutoRefreshTimer->setInterval(kAutoRefreshIntervalMs);
    connect(m_pAutoRefreshTimer, &QTimer::timeout, this, &CDiscoveryDevicesForm::onAutoRefreshTimeout);
    m_pAutoRefreshTimer->start();
    m_pDiscoveryRetryTimer = new QTimer(this);
    m_pDiscoveryRetryTimer->setSingleShot(true);
    m_pDiscoveryRetryTimer->setInterval(100);
    connect(m_pDiscoveryRetryTimer, &QTimer::timeout, this, &CDiscoveryDevicesForm::startPendingDiscovery);

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

void CDiscoveryDevicesForm::buildUi()
{
    setObjectName(QStringLiteral("CDiscoveryDevicesForm"));
    setMinimumWidth(250);
    m_contents = new QWidget(this);

    m_frameDevList = new QFrame(m_contents);
    m_frameDevList->setObjectName(QStringLiteral("frame_DevList"));
    m_lblDevList = new QLabel(m_frameDevList);
    m_lblDevList->setObjectName(QStringLiteral("label_DevList"));
    m_btnRefresh = new QPushButton(m_frameDevList);
    m_btnRefresh->setObjectName(QStringLiteral("reflesh"));
    m_btnRefresh->setIcon(QIcon(QStringLiteral(":/Pic/Icon_DevList_Refresh.png")));
    m_btnCollpaseDevice = new QToolButton(m_frameDevList);
    m_btnCollpaseDevice->setObjectName(QStringLiteral("btnCollpaseDevice"));
    m_btnCollpaseDevice->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Panel_Collapse_Left.png")));
    m_btnCollpaseDevice->setAutoRaise(true);
    m_deviceList = new QTreeWidget(m_frameDevList);
    m_deviceList->setObjectName(QStringLiteral("deviceList"));
    m_deviceList->setColumnCount(2);
    prepareTree(m_deviceList, 23);
    m_deviceList->setMouseTracking(true);
    m_deviceList->setContextMenuPolicy(Qt::CustomContextMenu);
    m_deviceList->header()->setStretchLastSection(false);
    m_deviceList->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_deviceList->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_deviceList->header()->resizeSection(1, kButtonsColumnWidth);
    m_deviceList->setIconSize(m_icons[iconNormal].availableSizes().value(0, QSize(16, 16)));

    auto* listHeader = new QHBoxLayout;
    listHeader->addWidget(m_lblDevList, 1);
    listHeader->addWidget(m_btnRefresh);
    listHeader->addWidget(m_btnCollpaseDevice);
    auto* listLayout = new QVBoxLayout(m_frameDevList);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->addLayout(listHeader);
    listLayout->addWidget(m_deviceList, 1);

    m_frameDevInfo = new QFrame(m_contents);
    m_frameDevInfo->setObjectName(QStringLiteral("frame_DevInfo"));
    m_lblDevInfo = new QLabel(m_frameDevInfo);
    m_lblDevInfo->setObjectName(QStringLiteral("label_DevInfo"));
    m_deviceInfo = new QTreeWidget(m_frameDevInfo);
    m_deviceInfo->setObjectName(QStringLiteral("deviceInfo"));
    m_deviceInfo->setColumnCount(2);
    prepareTree(m_deviceInfo, 25);
    auto* infoLayout = new QVBoxLayout(m_frameDevInfo);
    infoLayout->setContentsMargins(0, 0, 0, 0);
    infoLayout->addWidget(m_lblDevInfo);
    infoLayout->addWidget(m_deviceInfo, 1);

    m_pInfoInterfaceRoot = new QTreeWidgetItem(m_deviceInfo);
    m_pInfoInterfaceRoot->setFirstColumnSpanned(true);
    m_pInfoInterfaceForm = new CDiscoveryRootForm(m_deviceInfo);
    m_pInfoInterfaceForm->setChecked(true);
    m_deviceInfo->setItemWidget(m_pInfoInterfaceRoot, 0, m_pInfoInterfaceForm);
    m_pInfoDeviceRoot = new QTreeWidgetItem(m_deviceInfo);
    m_pInfoDeviceRoot->setFirstColumnSpanned(true);
    m_pInfoDeviceForm = new CDiscoveryRootForm(m_deviceInfo);
    m_pInfoDeviceForm->setChecked(true);
    m_deviceInfo->setItemWidget(m_pInfoDeviceRoot, 0, m_pInfoDeviceForm);

    auto* contentsLayout = new QVBoxLayout(m_contents);
    contentsLayout->setContentsMargins(0, 0, 0, 0);
    contentsLayout->addWidget(m_frameDevList, 3);
    contentsLayout->addWidget(m_frameDevInfo, 2);

    m_btnExpandDevice = new QToolButton(this);
    m_btnExpandDevice->setObjectName(QStringLiteral("btnExpandDevice"));
    m_btnExpandDevice->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Panel_Expand_Left.png")));
    m_btnExpandDevice->setFixedWidth(kCollapsedWidth);
    m_btnExpandDevice->setAutoRaise(true);
    m_btnExpandDevice->hide();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_contents, 1);
    layout->addWidget(m_btnExpandDevice, 0, Qt::AlignTop);

    connect(m_btnRefresh, &QPushButton::clicked, this, &CDiscoveryDevicesForm::on_reflesh_clicked);
    connect(m_btnCollpaseDevice, &QToolButton::clicked, this, &CDiscoveryDevicesForm::onBtnCollpaseClicked);
    connect(m_btnExpandDevice, &QToolButton::clicked, this, &CDiscoveryDevicesForm::on_btnExpandDevice_clicked);
    connect(m_deviceList, &QTreeWidget::itemClicked, this, &CDiscoveryDevicesForm::on_deviceList_itemClicked);
    connect(m_deviceList, &QTreeWidget::itemDoubleClicked, this,
            &CDiscoveryDevicesForm::on_deviceList_itemDoubleClicked);
    connect(m_deviceList, &QTreeWidget::itemEntered, this, &CDiscoveryDevicesForm::on_deviceList_itemEntered);
    connect(m_deviceList, &QWidget::customContextMenuRequested, this, &CDiscoveryDevicesForm::ShowContextMenu);
    connect(m_deviceInfo, &QTreeWidget::itemDoubleClicked, this,
            &CDiscoveryDevicesForm::on_deviceInfo_itemDoubleClicked);
    connect(m_pInfoInterfaceForm, &CDiscoveryRootForm::signalCheckBoxClicked, this,
            &CDiscoveryDevicesForm::onDeviceInfoInterfaceClicked);
    connect(m_pInfoDeviceForm, &CDiscoveryRootForm::signalCheckBoxClicked, this,
            &CDiscoveryDevicesForm::onDeviceInfoDeviceClicked);
}

void CDiscoveryDevicesForm::buildMenus()
{
    m_pDeviceMenu = new QMenu(this);
    m_actConnect = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionConnectTriggered);
    m_actOpenConfig = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionOpenConfigTriggered);
    m_actSaveConfig = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionSaveConfigTriggered);
    m_pDeviceMenu->addSeparator();
    m_actPlay = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionPlayTriggered);
    m_pDeviceMenu->addSeparator();
    m_actForceIp = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::on_ActionForceIpTriggered);
    m_actSetDevUserID =
        m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionSetDevUserIDTriggered);
    m_pDeviceMenu->addSeparator();
    m_actSaveXml = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionSaveGenICamXml);
    m_actCopyInfo = m_pDeviceMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionCopyinfo);

    m_pRootMenu = new QMenu(this);
    m_actUnicast = m_pRootMenu->addAction(QString(), this, &CDiscoveryDevicesForm::onActionUnicastTriggered);
}

void CDiscoveryDevicesForm::retranslateUi()
{
    m_lblDevList->setText(tr("Device List"));
    m_btnRefresh->setText(tr("refresh"));
    m_lblDevInfo->setText(tr("Device Info"));
    m_btnCollpaseDevice->setToolTip(tr("Collapse"));
    m_btnExpandDevice->setToolTip(tr("Expand"));
    if (m_roots[cameraTypeGigE].form)
        m_roots[cameraTypeGigE].form->setText(tr("GigE"));
    if (m_roots[cameraTypeUsb].form)
        m_roots[cameraTypeUsb].form->setText(tr("USB"));
    m_pInfoInterfaceForm->setText(tr("Interface Info"));
    m_pInfoDeviceForm->setText(tr("Device Info"));
    retranslateMenu();
    // Labels of the information rows and the inline buttons' tool tips.
    refleshDeviceInfo(m_pCurrentItem);
    for (const SRootRecord& root : m_roots)
        for (int i = 0; root.item && i < root.item->childCount(); ++i)
            refleshItemButtons(root.item->child(i));
}

void CDiscoveryDevicesForm::retranslateMenu()
{
    const bool disconnectText = m_actConnect->property("disconnect").toBool();
    m_actConnect->setText(disconnectText ? tr("Disconnect") : tr("Connect"));
    m_actOpenConfig->setText(tr("Open Config"));
    m_actSaveConfig->setText(tr("Save Config"));
    const bool stopText = m_actPlay->property("stop").toBool();
    m_actPlay->setText(stopText ? tr("Stop Acquisition") : tr("Start Acquisition"));
    m_actForceIp->setText(tr("Force IP"));
    m_actSetDevUserID->setText(tr("Set DeviceUserID"));
    m_actSaveXml->setText(tr("Save GenICam XML"));
    m_actCopyInfo->setText(tr("Copy Device Info"));
    m_actUnicast->setText(tr("Add Remote Camera"));
}

void CDiscoveryDevicesForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void CDiscoveryDevicesForm::setOpenedDeviceCounter(std::function<int()> counter)
{
    m_openedDeviceCounter = std::move(counter);
}

void CDiscoveryDevicesForm::setXmlFileChooser(std::function<QString(QWidget*, const QString&)> chooser)
{
    m_xmlFileChooser = std::move(chooser);
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
        disableBtns(getItemByDevice(msg->device));
        break;
    case MSG_DEVICE_CONNECTED:
        closeWait();
        emit openDeviceSuccess(msg->device);
        break;
    case MSG_DEVICE_CONNECT_FAILED: {
        closeWait();
        QTreeWidgetItem* item = getItemByDevice(msg->device);
        loadItemIcon(item);
        refleshItemButtons(item);
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
    refleshItemButtons(item);
    if (item == m_pCurrentItem)
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
    if (item != m_pCurrentItem || cameraTypeOf(item) != cameraTypeGigE)
        return;
    const QString label = CDeviceInfoRows::accessStatusLabel();
    for (int i = 0; i < m_pInfoDeviceRoot->childCount(); ++i) {
        QTreeWidgetItem* row = m_pInfoDeviceRoot->child(i);
        if (row->text(0) == label)
            row->setText(1, CDeviceInfoRows::accessPermissionText(int(device->getAccessPermission())));
    }
}

// ------------------------------------------------------------------ roots and items

QTreeWidgetItem* CDiscoveryDevicesForm::createRootItem(unsigned int type)
{
    if (type > 3 && type != 5) {
        LOG_ERROR("param nInterfaceType %d is invalid!", int(type));
        return nullptr;
    }
    if (type == 2 || type == 3 || type == 5)
        return nullptr;
    SRootRecord& root = m_roots[type];
    if (root.created) {
        LOG_WARN("this type has been created!");
        return root.item;
    }
    root.item = new QTreeWidgetItem(m_deviceList, treeItemType(int(type), true));
    root.item->setFirstColumnSpanned(true);
    root.form = new CDiscoveryRootForm(m_deviceList);
    root.form->setText(type == cameraTypeGigE ? tr("GigE") : tr("USB"));
    root.form->setChecked(true);
    root.form->setCheckBoxVisible(false);
    m_deviceList->setItemWidget(root.item, 0, root.form);
    connect(root.form, &CDiscoveryRootForm::signalCheckBoxClicked, this, &CDiscoveryDevicesForm::onRootItemClicked);
    root.created = true;
    return root.item;
}

QTreeWidgetItem* CDiscoveryDevicesForm::getRootItem(unsigned int type) const
{
    if (type > 255) {
        LOG_ERROR("param nInterfaceType %d is invalid!", int(type));
        return nullptr;
    }
    return type < unsigned(cameraTypeCount) ? m_roots[type].item : nullptr;
}

bool CDiscoveryDevicesForm::isCreatedRootItem(unsigned int type) const
{
    if (type > 255) {
        LOG_ERROR("param nDeviceType %d is invalid!", int(type));
        return false;
    }
    return type < unsigned(cameraTypeCount) && m_roots[type].created;
}

CDiscoveryRootForm* CDiscoveryDevicesForm::rootForm(unsigned int type) const
{
    return type < unsigned(cameraTypeCount) ? m_roots[type].form : nullptr;
}

bool CDiscoveryDevicesForm::isRootItem(QTreeWidgetItem* item) const
{
    if (!item)
        return false;
    for (const SRootRecord& root : m_roots)
        if (root.item == item)
            return true;
    return false;
}

bool CDiscoveryDevicesForm::isGigERootItem(QTreeWidgetItem* item) const
{
    return item && item == m_roots[cameraTypeGigE].item;
}

QString CDiscoveryDevicesForm::getDeviceKey(QTreeWidgetItem* item)
{
    return item ? item->data(0, Qt::UserRole).toString() : QString();
}

QTreeWidgetItem* CDiscoveryDevicesForm::getItemByKey(const QString& key) const
{
    if (key.isEmpty())
        return nullptr;
    for (const SRootRecord& root : m_roots) {
        if (!root.item)
            continue;
        for (int i = 0; i < root.item->childCount(); ++i)
            if (getDeviceKey(root.item->child(i)) == key)
                return root.item->child(i);
    }
    return nullptr;
}

QTreeWidgetItem* CDiscoveryDevicesForm::getItemByDevice(const CTavDevicePtr& device) const
{
    return device ? getItemByKey(device->getDeviceKey()) : nullptr;
}

CTavDevicePtr CDiscoveryDevicesForm::deviceOf(QTreeWidgetItem* item, const char* handler) const
{
    if (!item) {
        LOG_ERROR("pItem is null.");
        return CTavDevicePtr();
    }
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    if (!device)
        LOG_ERROR("%s getDeviceByKey failed.", handler);
    return device;
}

int CDiscoveryDevicesForm::cameraTypeOf(QTreeWidgetItem* item) const
{
    return item ? item->type() - treeItemDeviceFirst : -1;
}

void CDiscoveryDevicesForm::setHoverItem(QTreeWidgetItem* item)
{
    on_deviceList_itemEntered(item, 0);
}

void CDiscoveryDevicesForm::setCurrentDeviceItem(QTreeWidgetItem* item)
{
    m_pCurrentItem = item;
    m_deviceList->setCurrentItem(item);
}

// ------------------------------------------------------------------ merge

void CDiscoveryDevicesForm::on_reflesh_clicked()
{
    m_btnRefresh->setEnabled(false);
    requestDiscovery(QString());
}

void CDiscoveryDevicesForm::requestDiscovery(const QString& ip)
{
    // A unicast probe waiting for its turn is not replaced by a plain refresh
    // (that pass would not probe it).
    if (!m_bDiscoveryPending || !ip.isEmpty())
        m_strPendingIp = ip;
    m_bDiscoveryPending = true;
    startPendingDiscovery();
}

void CDiscoveryDevicesForm::startPendingDiscovery()
{
    if (!m_bDiscoveryPending)
        return;
    // The worker forgets a request that comes while a pass runs: hand it over
    // once the worker is idle, without waiting here.
    if (CDiscoveryDevicesThread::getInstance()->isDisconvrying()) {
        m_pDiscoveryRetryTimer->start();
        return;
    }
    m_bDiscoveryPending = false;
    CDeviceManager::getInstance()->refreshDeviceMap(m_strPendingIp, 0);
    m_strPendingIp.clear();
}

void CDiscoveryDevicesForm::onAutoRefreshTimeout()
{
    // Not while a pass is still under way: the worker takes one request at a time.
    if (!CConfiguration::getInstance()->autoRefreshEnable || !m_btnRefresh->isEnabled())
        return;
    on_reflesh_clicked();
}

void CDiscoveryDevicesForm::on_discoveryDevicesFinished()
{
    QMap<QString, CTavDevicePtr> devices = CDeviceManager::getInstance()->getAllDevices();
    updateDeviceList(devices);
}

void CDiscoveryDevicesForm::updateDeviceList(QMap<QString, CTavDevicePtr>& devices)
{
    int counters[cameraTypeCount] = {0, 0, 0, 0, 0, 0};
    for (auto it = devices.begin(); it != devices.end(); ++it) {
        const CTavDevicePtr& device = it.value();
        ICameraPtr camera = device ? device->getDevice() : ICameraPtr();
        if (!camera)
            continue;
        const int type = int(camera->getType());
        if (type < 0 || type >= cameraTypeCount)
            continue;
        const int itemType = treeItemType(type, false);
        Vorlen::Infra::CString name;
        if (!device->generateDeviceNameByUserID(name))
            LOG_ERROR("generateDeviceNameByUserID failed");
        insertCamera(type, counters[type], QString::fromUtf8(name.c_str()), fromSdk(camera->getKey()), itemType);
        if (itemType == treeItemGigEDevice)
            device->refreshAccessPermission();
    }
    for (int type = 0; type < cameraTypeCount; ++type) {
        SRootRecord& root = m_roots[type];
        if (!root.created)
            continue;
        while (root.item->childCount() > counters[type]) {
            QTreeWidgetItem* child = root.item->child(counters[type]);
            forgetItem(child);
            delete root.item->takeChild(counters[type]);
        }
        root.form->setCheckBoxVisible(root.item->childCount() > 0);
    }
    refleshAllItemIcon();
    m_deviceList->expandAll();
    for (SRootRecord& root : m_roots)
        if (root.created)
            root.form->setChecked(true);
    refleshDeviceInfo(m_pCurrentItem);
    m_btnRefresh->setEnabled(true);
}

void CDiscoveryDevicesForm::insertCamera(int cameraType, int& counter, const QString& name, const QString& key,
                                         int itemType)
{
    QTreeWidgetItem* root = (cameraType >= 0 && cameraType < cameraTypeCount) ? m_roots[cameraType].item : nullptr;
    if (!root)
        return;
    // New items take the name as Latin-1 text, updated ones as UTF-8.
    const QString latin1 = QString::fromLatin1(name.toUtf8());
    if (counter >= root->childCount()) {
        auto* item = new QTreeWidgetItem(root, itemType);
        item->setText(0, latin1);
        item->setToolTip(0, latin1);
        item->setData(0, Qt::UserRole, key);
    } else if (getDeviceKey(root->child(counter)) == key) {
        QTreeWidgetItem* item = root->child(counter);
        if (item->text(0) != name)
            item->setText(0, name);
        if (item->toolTip(0) != name)
            item->setToolTip(0, name);
    } else {
        auto* item = new QTreeWidgetItem(itemType);
        item->setText(0, latin1);
        item->setToolTip(0, latin1);
        item->setData(0, Qt::UserRole, key);
        root->insertChild(counter, item);
    }
    ++counter;
}

void CDiscoveryDevicesForm::forgetItem(QTreeWidgetItem* item)
{
    if (m_pHoverItem == item)
        m_pHoverItem = nullptr;
    if (m_pCurrentItem == item) {
        m_pCurrentItem = nullptr;
        clearDeviceInfo();
    }
    if (m_pContextItem == item) {
        m_pContextItem = nullptr;
        if (m_pDeviceMenu->isVisible())
            m_pDeviceMenu->close();
    }
}

// ------------------------------------------------------------------ icons

bool CDiscoveryDevicesForm::isValidIp(QTreeWidgetItem* item)
{
    if (!item) {
        LOG_ERROR("pItem is null.");
        return false;
    }
    if (isInterfaceItemType(item->type()))
        return false;
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    if (!device || !device->getDevice()) {
        LOG_ERROR("isValidIp getDeviceByKey failed.");
        return false;
    }
    CInternalGigECameraInfo info(device->getDevice());
    const QString config = fromSdk(info.getIpconfig());
    return !config.isEmpty() && config != QLatin1String("Invalid On This Interface");
}

bool CDiscoveryDevicesForm::isUSB3Interface(QTreeWidgetItem* item)
{
    const QString speed = getUSBSpeed(item);
    // A USB3 Vision camera can run on a SuperSpeed (or SuperSpeedPlus) port,
    // or slowly on a high-speed one; not on anything slower.
    return speed.contains(QLatin1String("Super")) || speed.contains(QLatin1String("High"));
}

QString CDiscoveryDevicesForm::getUSBSpeed(QTreeWidgetItem* item)
{
    CTavDevicePtr device = deviceOf(item, "getUSBSpeed");
    if (!device || !device->getDevice())
        return QString();
    return fromSdk(CInternalUsbCameraInfo(device->getDevice()).getSpeedType());
}

int CDiscoveryDevicesForm::itemIconIndex(QTreeWidgetItem* item) const
{
    return item ? item->data(0, kIconIndexRole).toInt() - 1 : -1;
}

void CDiscoveryDevicesForm::refleshAllItemIcon()
{
    for (const SRootRecord& root : m_roots) {
        if (!root.item)
            continue;
        for (int i = 0; i < root.item->childCount(); ++i)
            loadItemIcon(root.item->child(i));
    }
}

void CDiscoveryDevicesForm::loadItemIcon(QTreeWidgetItem* item)
{
    if (!item || !isDeviceItemType(item->type()))
        return;
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    const bool connected = device && device->isConnected();
    const bool grabbing = connected && device->isGrabing();
    const int connectedIcon = grabbing ? iconAcquisition : (connected ? iconConnected : iconNormal);
    int icon = connectedIcon;
    if (item->type() == treeItemGigEDevice) {
        if (!isValidIp(item))
            icon = iconWarn;
        else if (!connected && device->getAccessPermission() == accessPermissionControl)
            icon = iconError;
    } else if (item->type() == treeItemUsbDevice) {
        if (!isUSB3Interface(item))
            icon = iconError;
        else if (!getUSBSpeed(item).startsWith(QLatin1String("Super")))
            icon = iconWarn;
    }
    item->setIcon(0, m_icons[icon]);
    item->setData(0, kIconIndexRole, icon + 1);
}

void CDiscoveryDevicesForm::loadAcuisitionICon(const CTavDevicePtr& device, bool grabbing)
{
    QTreeWidgetItem* item = getItemByDevice(device);
    if (!item)
        return;
    if (device->isConnected()) {
        const int icon = grabbing ? iconAcquisition : iconConnected;
        item->setIcon(0, m_icons[icon]);
        item->setData(0, kIconIndexRole, icon + 1);
    } else {
        loadItemIcon(item);
    }
}

// ------------------------------------------------------------------ information tree

void CDiscoveryDevicesForm::clearDeviceInfo()
{
    qDeleteAll(m_pInfoInterfaceRoot->takeChildren());
    qDeleteAll(m_pInfoDeviceRoot->takeChildren());
}

void CDiscoveryDevicesForm::setInfoRows(QTreeWidgetItem* section, const QList<QPair<QString, QString>>& rows)
{
    qDeleteAll(section->takeChildren());
    for (const auto& row : rows) {
        auto* item = new QTreeWidgetItem(section);
        item->setText(0, row.first);
        item->setText(1, row.second);
        item->setToolTip(1, row.second);
    }
}

void CDiscoveryDevicesForm::refleshDeviceInfo(QTreeWidgetItem* item)
{
    if (!item || !isDeviceItemType(item->type())) {
        clearDeviceInfo();
        return;
    }
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    if (!device) {
        LOG_ERROR("refleshDeviceInfo getDeviceByKey failed.");
        clearDeviceInfo();
        return;
    }
    SDeviceInfoRows rows;
    if (!CDeviceInfoRows::build(device, rows)) {
        LOG_ERROR("refleshDeviceInfo getCamera by Key failed.");
        clearDeviceInfo();
        return;
    }
    setInfoRows(m_pInfoInterfaceRoot, rows.interfaceRows);
    setInfoRows(m_pInfoDeviceRoot, rows.deviceRows);
    m_pInfoInterfaceRoot->setExpanded(m_pInfoInterfaceForm->isChecked());
    m_pInfoDeviceRoot->setExpanded(m_pInfoDeviceForm->isChecked());
    m_deviceInfo->resizeColumnToContents(0);
}

QList<QPair<QString, QString>> CDiscoveryDevicesForm::infoRows(bool deviceSection) const
{
    QList<QPair<QString, QString>> rows;
    QTreeWidgetItem* section = deviceSection ? m_pInfoDeviceRoot : m_pInfoInterfaceRoot;
    for (int i = 0; i < section->childCount(); ++i)
        rows << qMakePair(section->child(i)->text(0), section->child(i)->text(1));
    return rows;
}

void CDiscoveryDevicesForm::setDeviceInfoHide(bool hide)
{
    m_frameDevInfo->setHidden(hide);
}

void CDiscoveryDevicesForm::onDeviceInfoInterfaceClicked(bool checked)
{
    m_pInfoInterfaceRoot->setExpanded(checked);
}

void CDiscoveryDevicesForm::onDeviceInfoDeviceClicked(bool checked)
{
    m_pInfoDeviceRoot->setExpanded(checked);
}

void CDiscoveryDevicesForm::onRootItemClicked(bool checked)
{
    auto* form = qobject_cast<CDiscoveryRootForm*>(sender());
    for (SRootRecord& root : m_roots)
        if (root.form && root.form == form)
            root.item->setExpanded(checked);
}

void CDiscoveryDevicesForm::on_deviceInfo_itemDoubleClicked(QTreeWidgetItem* item, int)
{
    // Expands or collapses a section from its header row.
    if (item == m_pInfoInterfaceRoot || item == m_pInfoDeviceRoot) {
        CDiscoveryRootForm* form = item == m_pInfoInterfaceRoot ? m_pInfoInterfaceForm : m_pInfoDeviceForm;
        form->setChecked(!form->isChecked());
        item->setExpanded(form->isChecked());
    }
}

// ------------------------------------------------------------------ inline buttons

CDiscoveryButtonsForm* CDiscoveryDevicesForm::buttonsOf(QTreeWidgetItem* item) const
{
    return item ? qobject_cast<CDiscoveryButtonsForm*>(m_deviceList->itemWidget(item, 1)) : nullptr;
}

void CDiscoveryDevicesForm::refleshConnectStatInfo(CDiscoveryButtonsForm* form)
{
    form->getConnectBtn()->hide();
    form->getDisconnectBtn()->show();
    form->getDisconnectBtn()->setToolTip(tr("Disconnect"));
    form->getDisconnectBtn()->setEnabled(true);
    form->getForceIPBtn()->setToolTip(tr("Force IP"));
    form->getForceIPBtn()->setEnabled(false);
    form->getForceIPBtn()->hide();
}

void CDiscoveryDevicesForm::refleshDisconnectStatInfo(CDiscoveryButtonsForm* form, bool gige)
{
    form->getDisconnectBtn()->hide();
    form->getConnectBtn()->show();
    form->getConnectBtn()->setToolTip(tr("Connect"));
    form->getConnectBtn()->setEnabled(true);
    form->getForceIPBtn()->setToolTip(tr("Force IP"));
    form->getForceIPBtn()->setEnabled(gige);
    form->getForceIPBtn()->setVisible(gige);
}

void CDiscoveryDevicesForm::refleshIpValidStatInfo(CDiscoveryButtonsForm* form)
{
    form->getDisconnectBtn()->hide();
    form->getConnectBtn()->show();
    form->getConnectBtn()->setToolTip(tr("Connect"));
    form->getConnectBtn()->setEnabled(true);
    form->getForceIPBtn()->show();
    form->getForceIPBtn()->setToolTip(tr("Force IP"));
    form->getForceIPBtn()->setEnabled(true);
}

void CDiscoveryDevicesForm::refleshUsbDisconnectStatInfo(CDiscoveryButtonsForm* form)
{
    form->getDisconnectBtn()->hide();
    form->getForceIPBtn()->hide();
    form->getForceIPBtn()->setEnabled(false);
    form->getConnectBtn()->show();
    form->getConnectBtn()->setToolTip(tr("Connect"));
    form->getConnectBtn()->setEnabled(true);
}

void CDiscoveryDevicesForm::refleshItemButtons(QTreeWidgetItem* item)
{
    CDiscoveryButtonsForm* form = buttonsOf(item);
    if (!form)
        return;
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(item));
    if (!device) {
        form->disableAll();
        return;
    }
    if (device->isDisconnecting()) {
        refleshConnectStatInfo(form);
        form->disableAll();
    } else if (device->isConnected()) {
        // Connected, possibly still applying its settings: it can be closed.
        refleshConnectStatInfo(form);
    } else if (device->isConnecting()) {
        refleshDisconnectStatInfo(form, item->type() == treeItemGigEDevice);
        form->disableAll();
    } else if (item->type() == treeItemGigEDevice && !isValidIp(item)) {
        refleshIpValidStatInfo(form);
    } else if (item->type() == treeItemUsbDevice) {
        refleshUsbDisconnectStatInfo(form);
    } else {
        refleshDisconnectStatInfo(form, item->type() == treeItemGigEDevice);
    }
}

void CDiscoveryDevicesForm::removeButtonInItem(QTreeWidgetItem* item)
{
    if (item && m_deviceList->itemWidget(item, 1))
        m_deviceList->removeItemWidget(item, 1);
}

void CDiscoveryDevicesForm::removeAllItemWidgetExceptCurrentItem(QTreeWidgetItem* keep)
{
    for (const SRootRecord& root : m_roots) {
        if (!root.item)
            continue;
        for (int i = 0; i < root.item->childCount(); ++i)
            if (root.item->child(i) != m_pCurrentItem && root.item->child(i) != keep)
                removeButtonInItem(root.item->child(i));
    }
}

void CDiscoveryDevicesForm::disableBtns(QTreeWidgetItem* item)
{
    if (CDiscoveryButtonsForm* form = buttonsOf(item))
        form->disableAll();
}

void CDiscoveryDevicesForm::on_deviceList_itemEntered(QTreeWidgetItem* item, int)
{
    if (!item || !isDeviceItemType(item->type()))
        return;
    m_pHoverItem = item;
    removeAllItemWidgetExceptCurrentItem(item);
    if (buttonsOf(item)) {
        refleshItemButtons(item);
        return;
    }
    auto* form = new CDiscoveryButtonsForm(m_deviceList);
    m_deviceList->setItemWidget(item, 1, form);
    connect(form->getConnectBtn(), &QToolButton::clicked, this, &CDiscoveryDevicesForm::on_connectDevice);
    connect(form->getDisconnectBtn(), &QToolButton::clicked, this, &CDiscoveryDevicesForm::on_disconnectDevice);
    connect(form->getForceIPBtn(), &QToolButton::clicked, this, &CDiscoveryDevicesForm::on_modifyIp);
    refleshItemButtons(item);
}

void CDiscoveryDevicesForm::leaveEvent(QEvent* event)
{
    // The current row keeps its buttons; the one under the mouse loses them.
    if (m_pHoverItem && m_pHoverItem != m_pCurrentItem)
        removeButtonInItem(m_pHoverItem);
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
    m_pCurrentItem = item;
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
    if (m_pHoverItem && isDeviceItemType(m_pHoverItem->type()))
        target = m_pHoverItem;
    else if (m_pCurrentItem && isDeviceItemType(m_pCurrentItem->type()))
        target = m_pCurrentItem;
    connectItem(target);
}

void CDiscoveryDevicesForm::connectItem(QTreeWidgetItem* target)
{
    if (!target || !isDeviceItemType(target->type()))
        return;
    const QString key = getDeviceKey(target);
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key);
    if (device)
        emit select_device(device);
    setCurrentDeviceItem(target);
    refleshDeviceInfo(target);

    if (target->type() == treeItemGigEDevice && !isValidIp(target)) {
        messageBox(key + tr(" IP address is invalid!"), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    if (target->type() == treeItemUsbDevice) {
        if (!isUSB3Interface(target)) {
            messageBox(tr("Connection failed. Device is incompatible with the current USB port!\nPlease plug in the "
                          "device into suitable PC USB port!\n"),
                       this, QMessageBox::Ok, QMessageBox::Critical);
            return;
        }
        if (!getUSBSpeed(target).startsWith(QLatin1String("Super")) &&
            messageBox(tr("Current physical link is not USB3.0. Connection maybe fail!\nAre you sure you want to "
                          "continue?"),
                       this, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question) != QMessageBox::Ok)
            return;
    }
    // The questions above are modal: a refresh may have removed the row, or
    // the camera, meanwhile.
    target = getItemByKey(key);
    device = CDeviceManager::getInstance()->getDeviceByKey(key);
    if (!device || !target) {
        messageBox(tr("Connection failed. Device does not exist!\n"), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    if (device->isConnected() || device->isConnecting())
        return;
    if (m_openedDeviceCounter() >= kMaxConnections) {
        messageBox(tr("The maximum number of connections has been reached."), this, QMessageBox::Ok,
                   QMessageBox::Critical);
        return;
    }
    disableBtns(target);
    const bool started = device->openDevice(false);
    refleshDeviceInfo(target);
    if (started)
        showWait(tr("Connecting, please wait..."));
}

void CDiscoveryDevicesForm::on_disconnectDevice()
{
    if (!m_pHoverItem) {
        LOG_ERROR("currentItem is NULL!");
        return;
    }
    disconnectItem(m_pHoverItem);
}

void CDiscoveryDevicesForm::disconnectItem(QTreeWidgetItem* target)
{
    const QString key = getDeviceKey(target);
    LOG_DEBUG("start off device [%s].", key.toLocal8Bit().constData());
    if (isInterfaceItemType(target->type()))
        return;
    disableBtns(target);
    CTavDevicePtr device = deviceOf(target, "on_disconnectDevice");
    if (!device)
        return;
    emit select_device(device);
    device->closeDevice(false);
}

void CDiscoveryDevicesForm::showWait(const QString& text)
{
    m_pWaitDlg->setTitle(tr("Connect"));
    m_pWaitDlg->setText(text);
    m_pWaitDlg->open();
}

void CDiscoveryDevicesForm::closeWait()
{
    if (m_pWaitDlg->isVisible())
        m_pWaitDlg->accept();
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

    const int type = cameraTypeOf(item);
    const bool gige = type == cameraTypeGigE;
    m_actForceIp->setVisible(gige);
    m_actCopyInfo->setEnabled(true);
    if (device->isConnected()) {
        m_actConnect->setProperty("disconnect", true);
        m_actConnect->setEnabled(true);
        m_actPlay->setEnabled(device->isAcqModeEnable() || type == 5);
        const bool grabbing = device->isGrabing();
        m_actPlay->setProperty("stop", grabbing);
        m_actOpenConfig->setEnabled(!grabbing);
        m_actSaveConfig->setEnabled(!grabbing);
        m_actForceIp->setEnabled(false);
        m_actSetDevUserID->setEnabled(true);
        m_actSaveXml->setEnabled(true);
    } else {
        m_actConnect->setProperty("disconnect", false);
        m_actConnect->setEnabled(true);
        if (gige) {
            const bool controlled = device->getAccessPermission() == accessPermissionControl;
            m_actForceIp->setEnabled(!controlled);
            m_actOpenConfig->setEnabled(!controlled);
        } else if (item->type() == treeItemUsbDevice && !isUSB3Interface(item)) {
            m_actOpenConfig->setEnabled(false);
        } else {
            m_actOpenConfig->setEnabled(true);
        }
        m_actPlay->setProperty("stop", false);
        m_actPlay->setEnabled(false);
        m_actSaveConfig->setEnabled(false);
        m_actSetDevUserID->setEnabled(false);
        m_actSaveXml->setEnabled(false);
    }
    retranslateMenu();
    return true;
}

void CDiscoveryDevicesForm::ShowContextMenu(const QPoint& pos)
{
    QTreeWidgetItem* item = m_deviceList->itemAt(pos);
    const QPoint global = m_deviceList->viewport()->mapToGlobal(pos);
    if (isGigERootItem(item)) {
        m_pContextItem = item;
        m_pRootMenu->popup(getMenuPos(global, m_pRootMenu->sizeHint()));
        return;
    }
    if (!prepareDeviceMenu(item))
        return;
    m_pContextItem = item;
    m_pDeviceMenu->popup(getMenuPos(global, m_pDeviceMenu->sizeHint()));
}

void CDiscoveryDevicesForm::onActionConnectTriggered()
{
    QTreeWidgetItem* item = m_pContextItem ? m_pContextItem : m_pCurrentItem;
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
    if (CTavDevicePtr device = deviceOf(m_pCurrentItem, "onActionOpenConfigTriggered"))
        emit signalOpenConfig(device);
}

void CDiscoveryDevicesForm::onActionSaveConfigTriggered()
{
    if (CTavDevicePtr device = deviceOf(m_pCurrentItem, "onActionSaveConfigTriggered"))
        emit signalSaveConfig(device);
}

void CDiscoveryDevicesForm::onActionPlayTriggered()
{
    CTavDevicePtr device = deviceOf(m_pCurrentItem, "onActionPlayTriggered");
    if (!device || !device->isConnected())
        return;
    if (device->isGrabing())
        device->closeStream();
    else
        device->openStream();
}

void CDiscoveryDevicesForm::on_modifyIp()
{
    QTreeWidgetItem* item = m_pHoverItem ? m_pHoverItem : m_pCurrentItem;
    modifyIP(item);
}

void CDiscoveryDevicesForm::on_ActionForceIpTriggered()
{
    modifyIP(m_pContextItem ? m_pContextItem : m_pCurrentItem);
}

void CDiscoveryDevicesForm::modifyIP(QTreeWidgetItem* item)
{
    CTavDevicePtr device = deviceOf(item, "on_modifyIp");
    if (!device || !device->getDevice()) {
        LOG_ERROR("on_modifyIp getDeviceByKey failed.");
        messageBox(tr("Device not found."), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    emit select_device(device);
    setCurrentDeviceItem(item);
    ICameraPtr camera = device->getDevice();
    TSharedPtrGigEInterfaceInfo info = CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(camera);
    if (!info) {
        LOG_ERROR("get GigEInterfaceInfo failed.");
        messageBox(tr("network card has modified!"), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    QWidget* over = QApplication::activeWindow() ? QApplication::activeWindow() : this;
    CSetIPDlg dialog(true, over);
    if (!dialog.setInfo(info, camera->getKey()))
        return;
    if (dialog.exec() == QDialog::Accepted)
        requestDiscovery(QString());
}

void CDiscoveryDevicesForm::onActionSetDevUserIDTriggered()
{
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(getDeviceKey(m_pCurrentItem));
    if (!device) {
        LOG_ERROR("onActionPlayTriggered getDeviceByKey failed.");
        return;
    }
    // The read and the write are camera round trips: both run off this thread.
    auto value = std::make_shared<QString>();
    auto maxLength = std::make_shared<int>(64);
    CCameraTask::run(
        this, [device, value, maxLength]() { return device->getParaStringValue("DeviceUserID", *value, *maxLength); },
        [this, device, value, maxLength](bool ok, const QString&) {
            if (!ok) {
                emit cameraTaskFinished();
                return;
            }
            CSetDevUserIDDlg dialog(this);
            dialog.setCurrentDeviceUserID(*value, *maxLength);
            if (dialog.exec() != QDialog::Accepted) {
                emit cameraTaskFinished();
                return;
            }
            const QString text = dialog.getEditValue();
            CCameraTask::run(
                this, [device, text]() { return device->setParaStringValue("DeviceUserID", text); },
                [this](bool written, const QString& error) {
                    if (!written)
                        messageBox(error, this, QMessageBox::Ok, QMessageBox::Critical);
                    emit cameraTaskFinished();
                });
        });
}

void CDiscoveryDevicesForm::onActionSaveGenICamXml()
{
    CTavDevicePtr device = deviceOf(m_pCurrentItem, "onActionSaveGenICamXml");
    if (!device || !device->getDevice())
        return;
    const QString suggested = device->getDeviceSaveName() + QStringLiteral(".xml");
    const QString path = m_xmlFileChooser(this, suggested);
    if (path.isEmpty())
        return;
    ICameraPtr camera = device->getDevice();
    CCameraTask::run(
        this,
        [camera, path]() {
            auto* c = dynamic_cast<CInternalCamera*>(camera.get());
            return c && c->downLoadGenICamXML(path.toLocal8Bit().constData());
        },
        [this](bool ok, const QString& error) {
            if (!ok) {
                LOG_ERROR("downLoadGenICamXML failed. [%s]", error.toLocal8Bit().constData());
                messageBox(tr("Download xml file failed."), this, QMessageBox::Ok, QMessageBox::Critical);
            }
            emit cameraTaskFinished();
        });
}

void CDiscoveryDevicesForm::onActionCopyinfo()
{
    CTavDevicePtr device = deviceOf(m_pCurrentItem, "onActionCopyinfo");
    SDeviceInfoRows rows;
    if (!device || !CDeviceInfoRows::build(device, rows))
        return;
    QApplication::clipboard()->setText(CDeviceInfoRows::toCopyText(rows));
}

void CDiscoveryDevicesForm::onActionUnicastTriggered()
{
    CConfiguration* config = CConfiguration::getInstance();
    CUnicastDlg dialog(this);
    dialog.setCurrentIp(config->RemoteIpAddr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    config->RemoteIpAddr = dialog.getEditValue();
    config->saveConfigToUserXml();
    const QString ip = QString::fromStdString(IPIntToStr(IPStrToInt(dialog.getEditValue().toStdString())));
    m_btnRefresh->setEnabled(false);
    requestDiscovery(ip);
}

// ------------------------------------------------------------------ collapse

void CDiscoveryDevicesForm::onBtnCollpaseClicked()
{
    m_nExpandedWidth = width();
    m_contents->hide();
    m_btnExpandDevice->show();
    setMinimumWidth(kCollapsedWidth);
    setFixedWidth(kCollapsedWidth);
    emit formCollpased();
}

void CDiscoveryDevicesForm::on_btnExpandDevice_clicked()
{
    m_btnExpandDevice->hide();
    m_contents->show();
    setMinimumWidth(250);
    setMaximumWidth(15000);
    emit formExpanded(m_nExpandedWidth);
}
