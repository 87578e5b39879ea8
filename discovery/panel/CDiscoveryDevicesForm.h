#pragma once
// The device list panel: the discovered cameras under one root per interface
// kind ("GigE", "USB") with a status icon each, inline Connect / Disconnect /
// Force IP buttons on the row under the mouse, the device context menu, and
// below it the information tree of the selected camera. The panel only merges
// discovery results and sends requests; every camera round trip runs on the
// device's workers, the discovery worker or a CCameraTask.
#include <QIcon>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

#include "CObserver.h"
#include "CTavMessage.h"
#include "DiscoveryItemTypes.h"

class QAction;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QTimer;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class CDeviceManager;
class CDiscoveryButtonsForm;
class CDiscoveryRootForm;
class CWaitDlg;

class CDiscoveryDevicesForm : public QWidget, public CObserver
{
    Q_OBJECT
public:
    // Status icons, in the order they are loaded.
    enum EStatusIcon
    {
        iconError = 0,
        iconConnected,
        iconNormal,
        iconAcquisition,
        iconWarn,
        iconCount
    };
    static const int kMaxConnections = 16;
    static const int kCollapsedWidth = 14;
    static const int kAutoRefreshIntervalMs = 10000;

    explicit CDiscoveryDevicesForm(QWidget* parent = nullptr);
    ~CDiscoveryDevicesForm() override;

    // Bus observer: runs in the publisher's thread and only emits.
    void Update(CTavMessagePtr msg) override;

    void updateDeviceList(QMap<QString, CTavDevicePtr>& devices);
    void setDeviceInfoHide(bool hide);

    // ---- roots and items
    QTreeWidgetItem* createRootItem(unsigned int type);
    QTreeWidgetItem* getRootItem(unsigned int type) const;
    bool isCreatedRootItem(unsigned int type) const;
    bool isRootItem(QTreeWidgetItem* item) const;
    bool isGigERootItem(QTreeWidgetItem* item) const;
    CDiscoveryRootForm* rootForm(unsigned int type) const;
    static QString getDeviceKey(QTreeWidgetItem* item);
    QTreeWidgetItem* getItemByDevice(const CTavDevicePtr& device) const;
    QTreeWidgetItem* getItemByKey(const QString& key) const;

    // ---- state of a row
    bool isValidIp(QTreeWidgetItem* item);
    bool isUSB3Interface(QTreeWidgetItem* item);
    QString getUSBSpeed(QTreeWidgetItem* item);
    // Which status icon the item shows (-1 for none).
    int itemIconIndex(QTreeWidgetItem* item) const;
    CDiscoveryButtonsForm* buttonsOf(QTreeWidgetItem* item) const;

    // ---- remembered items (tests and the menu)
    QTreeWidgetItem* hoverItem() const { return m_pHoverItem; }
    QTreeWidgetItem* currentItem() const { return m_pCurrentItem; }
    QTreeWidgetItem* contextItem() const { return m_pContextItem; }
    // Makes the item the one under the mouse, as entering its row does.
    void setHoverItem(QTreeWidgetItem* item);
    void setCurrentDeviceItem(QTreeWidgetItem* item);

    // ---- widgets
    QTreeWidget* deviceList() const { return m_deviceList; }
    QTreeWidget* deviceInfo() const { return m_deviceInfo; }
    QPushButton* refreshButton() const { return m_btnRefresh; }
    QToolButton* expandButton() const { return m_btnExpandDevice; }
    QToolButton* collapseButton() const { return m_btnCollpaseDevice; }
    QMenu* deviceMenu() const { return m_pDeviceMenu; }
    QMenu* rootMenu() const { return m_pRootMenu; }
    CWaitDlg* waitDialog() const { return m_pWaitDlg; }
    QTimer* autoRefreshTimer() const { return m_pAutoRefreshTimer; }
    // The device menu's actions by their slots' names.
    QAction* actionConnect() const { return m_actConnect; }
    QAction* actionOpenConfig() const { return m_actOpenConfig; }
    QAction* actionSaveConfig() const { return m_actSaveConfig; }
    QAction* actionPlay() const { return m_actPlay; }
    QAction* actionForceIp() const { return m_actForceIp; }
    QAction* actionSetDevUserID() const { return m_actSetDevUserID; }
    QAction* actionSaveXml() const { return m_actSaveXml; }
    QAction* actionCopyInfo() const { return m_actCopyInfo; }
    QAction* actionUnicast() const { return m_actUnicast; }

    // Sets the entries of the device menu for the item (what ShowContextMenu
    // does before showing it); false when the item is not a device.
    bool prepareDeviceMenu(QTreeWidgetItem* item);
    // The information rows shown for the current item (label, value).
    QList<QPair<QString, QString>> infoRows(bool deviceSection) const;

    // The number of open devices the connection limit counts; the device
    // manager's by default.
    void setOpenedDeviceCounter(std::function<int()> counter);
    // The file name "Save GenICam XML" writes to; a file dialog by default.
    void setXmlFileChooser(std::function<QString(QWidget*, const QString&)> chooser);

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
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void enterEvent(QEvent* event) override;

private:
    struct SRootRecord
    {
        bool created = false;
        QTreeWidgetItem* item = nullptr;
        CDiscoveryRootForm* form = nullptr;
    };

    void buildUi();
    void buildMenus();
    void insertCamera(int cameraType, int& counter, const QString& name, const QString& key, int itemType);
    void forgetItem(QTreeWidgetItem* item);
    void refleshAllItemIcon();
    void loadItemIcon(QTreeWidgetItem* item);
    void loadAcuisitionICon(const CTavDevicePtr& device, bool grabbing);
    void refleshDeviceInfo(QTreeWidgetItem* item);
    void clearDeviceInfo();
    void setInfoRows(QTreeWidgetItem* section, const QList<QPair<QString, QString>>& rows);
    void refleshItemButtons(QTreeWidgetItem* item);
    void refleshConnectStatInfo(CDiscoveryButtonsForm* form);
    void refleshDisconnectStatInfo(CDiscoveryButtonsForm* form, bool gige);
    void refleshIpValidStatInfo(CDiscoveryButtonsForm* form);
    void refleshUsbDisconnectStatInfo(CDiscoveryButtonsForm* form);
    // Also spares keep (the row under the mouse, whose buttons stay).
    void removeAllItemWidgetExceptCurrentItem(QTreeWidgetItem* keep = nullptr);
    void removeButtonInItem(QTreeWidgetItem* item);
    void disableBtns(QTreeWidgetItem* item);
    void connectItem(QTreeWidgetItem* target);
    void disconnectItem(QTreeWidgetItem* target);
    void modifyIP(QTreeWidgetItem* item);
    CTavDevicePtr deviceOf(QTreeWidgetItem* item, const char* handler) const;
    int cameraTypeOf(QTreeWidgetItem* item) const;
    void showWait(const QString& text);
    void closeWait();
    // Asks the discovery worker for a pass (ip: "" or one address to probe)
    // as soon as it is idle.
    void requestDiscovery(const QString& ip);
    void startPendingDiscovery();

    QFrame* m_frameDevList;
    QLabel* m_lblDevList;
    QPushButton* m_btnRefresh;
    QTreeWidget* m_deviceList;
    QFrame* m_frameDevInfo;
    QLabel* m_lblDevInfo;
    QTreeWidget* m_deviceInfo;
    QToolButton* m_btnExpandDevice;
    QToolButton* m_btnCollpaseDevice;
    QWidget* m_contents;

    SRootRecord m_roots[cameraTypeCount];
    QTreeWidgetItem* m_pHoverItem = nullptr;
    QTreeWidgetItem* m_pCurrentItem = nullptr;
    QTreeWidgetItem* m_pContextItem = nullptr;
    QTreeWidgetItem* m_pInfoInterfaceRoot = nullptr;
    QTreeWidgetItem* m_pInfoDeviceRoot = nullptr;
    CDiscoveryRootForm* m_pInfoInterfaceForm = nullptr;
    CDiscoveryRootForm* m_pInfoDeviceForm = nullptr;
    QIcon m_icons[iconCount];

    QMenu* m_pDeviceMenu;
    QMenu* m_pRootMenu;
    QAction* m_actConnect;
    QAction* m_actOpenConfig;
    QAction* m_actSaveConfig;
    QAction* m_actPlay;
    QAction* m_actForceIp;
    QAction* m_actSetDevUserID;
    QAction* m_actSaveXml;
    QAction* m_actCopyInfo;
    QAction* m_actUnicast;

    CWaitDlg* m_pWaitDlg;
    QTimer* m_pAutoRefreshTimer;
    QPointer<CDeviceManager> m_pManager;
    QTimer* m_pDiscoveryRetryTimer = nullptr;
    bool m_bDiscoveryPending = false;
    QString m_strPendingIp;
    int m_nExpandedWidth = 250;
    std::function<int()> m_openedDeviceCounter;
    std::function<QString(QWidget*, const QString&)> m_xmlFileChooser;
};
