#pragma once
// The device list panel: the discovered cameras under one root per interface
// kind ("GigE", "USB") with a status icon each, inline Connect / Disconnect /
// Force IP buttons on the row under the mouse, the device context menu, and
// below it the information tree of the selected camera. It is the view over
// the rows (CDeviceListModel), the information sections
// (CDeviceInfoSections) and the rules (DeviceListRules.h); what it does to
// cameras goes through CDeviceListController, off the GUI thread.
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include "CDeviceListController.h"
#include "CDeviceListMenus.h"
#include "CDeviceListModel.h"
#include "CDeviceRowButtons.h"
#include "CDiscoveryDevicesFormUi.h"
#include "CObserver.h"
#include "CTavMessage.h"
#include "DeviceListRules.h"
#include "DiscoveryItemTypes.h"

class QAction;
class QMenu;
class QTimer;
class QTreeWidgetItem;
class CDeviceInfoSections;
class CDeviceManager;
class CDiscoveryButtonsForm;
class CDiscoveryRootForm;
class CWaitDlg;

class CDiscoveryDevicesForm : public QWidget, public CObserver
{
    Q_OBJECT
public:
    static const int kCollapsedWidth = CDiscoveryDevicesFormUi::kCollapsedWidth;
    static const int kAutoRefreshIntervalMs = 10000;

    explicit CDiscoveryDevicesForm(QWidget* parent = nullptr);
    ~CDiscoveryDevicesForm() override;

    // Bus observer: runs in the publisher's thread and only emits.
    void Update(CTavMessagePtr msg) override;

    void updateDeviceList(QMap<QString, CTavDevicePtr>& devices);
    void setDeviceInfoHide(bool hide);

    // ---- roots and items
    QTreeWidgetItem* createRootItem(unsigned int type);
    QTreeWidgetItem* getRootItem(unsigned int type) const { return m_model->getRootItem(type); }
    bool isCreatedRootItem(unsigned int type) const { return m_model->isCreatedRootItem(type); }
    bool isRootItem(QTreeWidgetItem* item) const { return m_model->isRootItem(item); }
    bool isGigERootItem(QTreeWidgetItem* item) const { return m_model->isGigERootItem(item); }
    CDiscoveryRootForm* rootForm(unsigned int type) const { return m_model->rootForm(type); }
    static QString getDeviceKey(QTreeWidgetItem* item) { return CDeviceListModel::getDeviceKey(item); }
    QTreeWidgetItem* getItemByDevice(const CTavDevicePtr& device) const;
    QTreeWidgetItem* getItemByKey(const QString& key) const { return m_model->getItemByKey(key); }

    // ---- state of a row
    bool isValidIp(QTreeWidgetItem* item);
    bool isUSB3Interface(QTreeWidgetItem* item);
    QString getUSBSpeed(QTreeWidgetItem* item);
    // Which status icon the item shows (EStatusIcon, -1 for none).
    static int itemIconIndex(QTreeWidgetItem* item) { return CDeviceListModel::itemIconIndex(item); }
    CDiscoveryButtonsForm* buttonsOf(QTreeWidgetItem* item) const { return m_buttons->buttonsOf(item); }

    // ---- remembered items (tests and the menu)
    QTreeWidgetItem* hoverItem() const { return m_model->hoverItem(); }
    QTreeWidgetItem* currentItem() const { return m_model->currentItem(); }
    QTreeWidgetItem* contextItem() const { return m_model->contextItem(); }
    // Makes the item the one under the mouse, as entering its row does.
    void setHoverItem(QTreeWidgetItem* item);
    void setCurrentDeviceItem(QTreeWidgetItem* item) { m_model->setCurrentItem(item); }

    // ---- parts
    CDeviceListModel* model() const { return m_model; }
    CDeviceListController* controller() const { return m_controller; }
    QTreeWidget* deviceList() const { return m_ui.deviceList; }
    QTreeWidget* deviceInfo() const { return m_ui.deviceInfo; }
    QPushButton* refreshButton() const { return m_ui.btnRefresh; }
    QToolButton* expandButton() const { return m_ui.btnExpandDevice; }
    QToolButton* collapseButton() const { return m_ui.btnCollpaseDevice; }
    CDeviceListMenus* menus() const { return m_menus; }
    QMenu* deviceMenu() const { return m_menus->deviceMenu(); }
    QMenu* rootMenu() const { return m_menus->rootMenu(); }
    CWaitDlg* waitDialog() const { return m_controller->waitDialog(); }
    QTimer* autoRefreshTimer() const { return m_pAutoRefreshTimer; }
    // The device menu's actions by their slots' names.
    QAction* actionConnect() const { return m_menus->connectAction(); }
    QAction* actionOpenConfig() const { return m_menus->openConfigAction(); }
    QAction* actionSaveConfig() const { return m_menus->saveConfigAction(); }
    QAction* actionPlay() const { return m_menus->playAction(); }
    QAction* actionForceIp() const { return m_menus->forceIpAction(); }
    QAction* actionSetDevUserID() const { return m_menus->setDevUserIdAction(); }
    QAction* actionSaveXml() const { return m_menus->saveXmlAction(); }
    QAction* actionCopyInfo() const { return m_menus->copyInfoAction(); }
    QAction* actionUnicast() const { return m_menus->unicastAction(); }

    // Sets the entries of the device menu for the item (what ShowContextMenu
    // does before showing it); false when the item is not a device.
    bool prepareDeviceMenu(QTreeWidgetItem* item);
    // The information rows shown for the current item (label, value).
    QList<QPair<QString, QString>> infoRows(bool deviceSection) const;

    // See CDeviceListController.
    void setOpenedDeviceCounter(std::function<int()> counter) { m_controller->setOpenedDeviceCounter(counter); }
    void setXmlFileChooser(std::function<QString(QWidget*, const QString&)> chooser)
    {
        m_controller->setXmlFileChooser(chooser);
    }

signals:
    void formExpanded(int width);
    void formCollpased();
    void discoveryDevicesFinished();
    void openDeviceSuccess(CTavDevicePtr device);
    void closeDeviceSuccess(CTavDevicePtr device);
    void update_receive(CTavMessagePtr msg);
    void select_device(CTavDevicePtr device);
    // "Open Config" / "Save Config" for the device: the main window does them.
    void signalOpenConfig(CTavDevicePtr device);
    void signalSaveConfig(CTavDevicePtr device);
    // A camera round trip of the panel finished (user ID read or written, XML
    // saved); tests wait on it.
    void cameraTaskFinished();

public slots:
    void on_reflesh_clicked();
    void on_discoveryDevicesFinished();
    void on_connectDevice();
    void on_disconnectDevice();
    void on_modifyIp();
    void on_deviceList_itemClicked(QTreeWidgetItem* item, int column);
    void on_deviceList_itemDoubleClicked(QTreeWidgetItem* item, int column);
    void on_deviceList_itemEntered(QTreeWidgetItem* item, int column);
    void on_deviceInfo_itemDoubleClicked(QTreeWidgetItem* item, int column);
    void ShowContextMenu(const QPoint& pos);
    void onActionConnectTriggered();
    void onActionOpenConfigTriggered();
    void onActionSaveConfigTriggered();
    void onActionPlayTriggered();
    void on_ActionForceIpTriggered();
    void onActionSetDevUserIDTriggered();
    void onActionSaveGenICamXml();
    void onActionCopyinfo();
    void onActionUnicastTriggered();
    void on_OpenDeviceSuccess(CTavDevicePtr device);
    void on_CloseDeviceSuccess(CTavDevicePtr device);
    void onRefreshAccessStatus(CTavDevicePtr device);
    void OnUpdateReceive(CTavMessagePtr msg);
    void onBtnCollpaseClicked();
    void on_btnExpandDevice_clicked();
    void onRootItemClicked(bool checked);
    void onDeviceInfoInterfaceClicked(bool checked);
    void onDeviceInfoDeviceClicked(bool checked);
    void onAutoRefreshTimeout();
    void retranslateUi();
    void retranslateMenu();

protected:
    void leaveEvent(QEvent* event) override;
    void enterEvent(QEvent* event) override;

private:
    void connectWidgets();
    void refleshAllItemIcon();
    void loadItemIcon(QTreeWidgetItem* item);
    void loadAcuisitionICon(const CTavDevicePtr& device, bool grabbing);
    void refleshDeviceInfo(QTreeWidgetItem* item);
    void connectItem(QTreeWidgetItem* target);
    void disconnectItem(QTreeWidgetItem* target);
    void modifyIP(QTreeWidgetItem* item);
    CTavDevicePtr deviceOf(QTreeWidgetItem* item, const char* handler) const;
    SDeviceState stateOf(QTreeWidgetItem* item) const;

    CDiscoveryDevicesFormUi m_ui;
    CDeviceListModel* m_model = nullptr;
    std::unique_ptr<CDeviceInfoSections> m_info;
    CDeviceListController* m_controller = nullptr;
    CDeviceRowButtons* m_buttons = nullptr;

    CDeviceListMenus* m_menus = nullptr;

    QTimer* m_pAutoRefreshTimer;
    QPointer<CDeviceManager> m_pManager;
    int m_nExpandedWidth = 250;
};
