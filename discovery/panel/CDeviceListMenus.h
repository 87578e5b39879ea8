#pragma once
// The device tree's context menus: the device menu, from "Connect" /
// "Disconnect" to "Copy Device Info", and the GigE root's one-entry menu
// "Add Remote Camera". The tree sets their entries from the device's state
// (deviceMenuState) before the menu opens and connects the actions.
#include <QObject>

class QAction;
class QMenu;
class QWidget;
struct SDeviceMenuState;

class CDeviceListMenus : public QObject
{
    Q_OBJECT
public:
    explicit CDeviceListMenus(QWidget* parent);

    void apply(const SDeviceMenuState& state);
    // Texts; the first entry and the acquisition entry follow their state.
    void retranslate();

    QMenu* deviceMenu() const { return m_pDeviceMenu; }
    QMenu* rootMenu() const { return m_pRootMenu; }
    QAction* connectAction() const { return m_actConnect; }
    QAction* openConfigAction() const { return m_actOpenConfig; }
    QAction* saveConfigAction() const { return m_actSaveConfig; }
    QAction* playAction() const { return m_actPlay; }
    QAction* forceIpAction() const { return m_actForceIp; }
    QAction* setDevUserIdAction() const { return m_actSetDevUserID; }
    QAction* saveXmlAction() const { return m_actSaveXml; }
    QAction* copyInfoAction() const { return m_actCopyInfo; }
    QAction* unicastAction() const { return m_actUnicast; }

private:
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
    bool m_bDisconnectText = false;
    bool m_bStopText = false;
};
