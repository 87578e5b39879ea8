#pragma once
// One video view: title bar with the device name, the display, the control
// bar (acquisition and zoom) and the status bar (rates, errors, the pixel
// under the cursor). Frames of the bound device reach the display directly
// on the stream thread; everything else runs on the GUI thread. The view
// observes the bus to follow its device's stream opening and closing.
#include <QColor>
#include <QList>
#include <QTimer>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "CObserver.h"
#include "CRoiEditor.h"
#include "CTavMessage.h"
#include "CViewSignalHub.h"
#include "Gliv/CQtDisplayWndEx.h"
#include "VideoLayout.h"

class CBusyIndicator;
class CVideoControlBar;
class CVideoStatusBar;
class CVideoTitleBar;
class CDeviceManager;
class QLabel;

class CVideoForm : public QWidget, public CObserver
{
    Q_OBJECT
public:
    // attachToBus false keeps the view off the device manager's subject
    // (for views living without the manager).
    explicit CVideoForm(int formId, QWidget* parent = nullptr, bool attachToBus = true);
    ~CVideoForm() override;

    void Update(CTavMessagePtr msg) override;

    // Binds the device; an empty pointer frees the view.
    void setDevice(CTavDevicePtr device);
    CTavDevicePtr getDevice() const { return m_device; }
    bool isFree() const;
    bool isDeviceBind(const CTavDevicePtr& device) const;
    int getFormID() const { return m_formId; }
    void setMaxMode(bool max);
    bool isMaxMode() const { return m_maxMode; }
    void setVideoLayout(EN_VIDEO_LAYOUT layout);
    EN_VIDEO_LAYOUT getVideoLayout() const { return m_layout; }
    // Starts the waiting animation for messages 1 (connecting) and 4
    // (disconnecting), stops it for every other type.
    void showWaitingGif(EN_MESSAGE_TYPE type);
    bool isWaiting() const;
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_highlighted; }
    // Start the stream as soon as the device has connected (default on).
    void setAutoPlay(bool autoPlay) { m_autoPlay = autoPlay; }
    // Where the view reports the ROI drawn and the pixel under the cursor
    // (none: not reported).
    void setViewSignals(CViewSignalHub* hub) { m_viewSignals = hub; }

    // Display options.
    void setShowCrosshair(bool show);
    void setCrosshairColor(const QColor& color);
    void setShowChunkData(bool show);
    void setDrawROIEnable(bool enable);
    void setDisplayROIEnable(bool enable);
    void setROIColor(const QColor& color);
    void setBayerDemosaic(int demosaic);
    bool isShowCrosshair() const { return m_showCrosshair; }
    QColor crosshairColor() const { return m_crosshairColor; }
    bool isShowChunkData() const { return m_showChunk; }
    bool isDrawROIEnable() const { return m_drawROI; }
    bool isDisplayROIEnable() const { return m_displayROI; }

    // ROIs of this view, image pixels; invalid entries are dropped.
    void setROI(const QList<stuROI>& rois);
    QList<stuROI> getROI() const { return m_roiEditor.rois(); }
    // Deletes the selected ROI, or all of them when none is selected.
    void deleteROI();
    const CRoiEditor& roiEditor() const { return m_roiEditor; }

    Gliv::CQtDisplayWndEx* displayWnd() const { return m_display; }
    CVideoTitleBar* titleBar() const { return m_titleBar; }
    CVideoControlBar* controlBar() const { return m_controlBar; }
    CVideoStatusBar* statusBar() const { return m_statusBar; }

public slots:
    void startAcquisition();
    void stopAcquisition();
    // Reads the device's stream statistics into the status bar.
    void refreshStatistics();

signals:
    void update_receive(CTavMessagePtr msg);
    void signalClicked(int formId);
    void signalMaxMize(int formId);
    // A view was dropped onto this one.
    void signalSwap(int fromFormId, int toFormId);
    void signalROIChanged(int formId);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    void onDisplayPressed(QPointF image, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void onDisplayMoved(QPointF image, Qt::MouseButtons buttons);
    void onDisplayReleased(QPointF image, Qt::MouseButton button);
    void onCursorMoved(QPoint pixel, bool inside);

private:
    static void drawOverlays(void* painter, void* displayWnd, void* context, const CQtHybridFramePtr& frame);
    void paintOverlays(QPainter& painter, const CQtHybridFramePtr& frame);
    void updateTitle();
    void placeWaiting();
    void retranslate();

    const int m_formId;
    // The device manager whose subject this observes; a manager already
    // gone at destruction is not created again just to detach.
    QPointer<CDeviceManager> m_busOwner;
    CTavDevicePtr m_device;
    QPointer<CViewSignalHub> m_viewSignals;
    QMetaObject::Connection m_frameConnection;
    EN_VIDEO_LAYOUT m_layout = VIDEO_LAYOUT_1;
    bool m_maxMode = false;
    bool m_highlighted = false;
    bool m_autoPlay = true;
    EN_MESSAGE_TYPE m_waitingType = MSG_DISCOVERY_FINISHED;

    bool m_showCrosshair = false;
    QColor m_crosshairColor = Qt::red;
    bool m_showChunk = false;
    bool m_drawROI = false;
    bool m_displayROI = false;
    CRoiEditor m_roiEditor;

    CVideoTitleBar* m_titleBar;
    Gliv::CQtDisplayWndEx* m_display;
    CVideoControlBar* m_controlBar;
    CVideoStatusBar* m_statusBar;
    QWidget* m_waiting;
    CBusyIndicator* m_busy;
    QLabel* m_waitingText;
    QTimer m_statTimer;
};
