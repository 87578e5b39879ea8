#pragma once
// The central area of the main window: the grid of video views, the layout
// buttons, full screen and the display-option menu. It observes the bus and
// binds a camera to a free view when the camera starts connecting, and
// frees the view when the camera goes away. Options are kept in the
// configuration and pushed to every view.
#include <QColor>
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "CConfiguration.h"
#include "CObserver.h"
#include "CTavMessage.h"

class CDeviceManager;
class CMultiVideoForm;
class CViewSignalHub;
class CVideoFullScreenWnd;
class QAbstractButton;
class QAction;
class QActionGroup;
class QButtonGroup;
class QHBoxLayout;
class QMenu;
class QToolButton;
class QVBoxLayout;

class CVideoManagerForm : public QWidget, public CObserver
{
    Q_OBJECT
public:
    // attachToBus false: the manager and its views stay off the device
    // manager's subject (messages are then handed to OnUpdateReceive).
    explicit CVideoManagerForm(QWidget* parent = nullptr, bool attachToBus = true);
    ~CVideoManagerForm() override;

    void Update(CTavMessagePtr msg) override;

    CMultiVideoForm* multiVideoForm() const { return m_multi; }
    // The views' drawing signals, for the panels that draw on them.
    CViewSignalHub* viewSignals() const;
    QMenu* displayMenu() const { return m_menu; }
    QButtonGroup* layoutButtons() const { return m_layoutGroup; }
    bool isFullScreenMode() const;

    // Replaceable for tests: how a colour is chosen and how a failure is told.
    void setColorPicker(std::function<QColor(const QColor&)> picker) { m_colorPicker = std::move(picker); }
    void setMessageHandler(std::function<void(const QString&)> handler) { m_message = std::move(handler); }

    // The menu's actions, by their option.
    QAction* actionDemosaic(int value) const;
    QAction* actionDisplayRate(const QString& value) const;
    QAction* actionChunkData() const { return m_actChunk; }
    QAction* actionCrosshair() const { return m_actCrosshair; }
    QAction* actionCrosshairColor() const { return m_actCrosshairColor; }
    QAction* actionDrawROI() const { return m_actDrawROI; }
    QAction* actionROIColor() const { return m_actROIColor; }
    QAction* actionDisplayROI() const { return m_actDisplayROI; }
    QAction* actionDeleteROI() const { return m_actDeleteROI; }

public slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    void onLayoutBtnClicked(QAbstractButton* button);
    void OnLayoutChanged();
    void fullScreen();
    void MaximizeRestoreVideo();
    void setCurDevice(CTavDevicePtr device);
    void onActionBayerDemosaicing(QAction* action);
    void onActionDisplay(QAction* action);
    void onActionDisplayChunkData();
    void onActionDisplayCrosshair();
    void onActionCrosshairColorConfig();
    void onActionDrawROI();
    void onActionDrawROIColorConfig();
    void onActionDisplayROI(bool checked);
    void onActionDeleteROI();
    void onSignalGetROI(QList<stuROI>& rois, CTavDevicePtr device);
    void onSignalSetROI(QList<stuROI> rois);
    void onRestoreCfg();

signals:
    void full_screen(bool on);
    void select_device(CTavDevicePtr device);
    void update_receive(CTavMessagePtr msg);
    void signalWndMoved();

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildMenu();
    void retranslate();
    // Saves the configuration; a failure is told to the user.
    bool saveConfig();
    // Pushes every option of the configuration to the menu and the views.
    void applyConfig();
    // Display rate as the stream thread's limit counts it.
    static int displayRateValue(const QString& value);

    // The device manager whose subject this observes; a manager already
    // gone at destruction is not created again just to detach.
    QPointer<CDeviceManager> m_busOwner;
    CMultiVideoForm* m_multi;
    CVideoFullScreenWnd* m_fullScreen;
    QVBoxLayout* m_mainLayout;
    QWidget* m_toolBar;
    QButtonGroup* m_layoutGroup;
    QToolButton* m_btnFullScreen;
    QToolButton* m_btnOptions;
    QMenu* m_menu;
    QMenu* m_menuDemosaic;
    QMenu* m_menuDisplay;
    QActionGroup* m_groupDemosaic;
    QActionGroup* m_groupDisplay;
    QAction* m_actChunk;
    QAction* m_actCrosshair;
    QAction* m_actCrosshairColor;
    QAction* m_actDrawROI;
    QAction* m_actROIColor;
    QAction* m_actDisplayROI;
    QAction* m_actDeleteROI;
    std::function<QColor(const QColor&)> m_colorPicker;
    std::function<void(const QString&)> m_message;
};
