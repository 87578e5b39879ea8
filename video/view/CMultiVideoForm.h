#pragma once
// The grid of sixteen video views. Only the first views of the current
// layout are shown; binding a camera grows the layout when no shown view is
// free, and the layout never shrinks by itself. A view can be maximised
// (and restored to the exact earlier layout) and two views swap places when
// one is dragged onto the other. Display options are pushed to every view.
#include <QColor>
#include <QList>
#include <QVector>
#include <QWidget>

#include "CConfiguration.h"
#include "CTavMessage.h"
#include "VideoLayout.h"

class CVideoForm;
class CViewSignalHub;
class QGridLayout;

class CMultiVideoForm : public QWidget
{
    Q_OBJECT
public:
    static const int kFormCount = 16;

    // attachToBus: whether the views observe the bus themselves.
    explicit CMultiVideoForm(QWidget* parent = nullptr, bool attachToBus = true);

    void setGridLayout(EN_VIDEO_LAYOUT layout);
    EN_VIDEO_LAYOUT getCurrentLayout() const { return m_layout; }
    // The drawing signals of every view, keyed by device key.
    CViewSignalHub* viewSignals() const { return m_viewSignals; }
    QGridLayout* getGridLayout() const { return m_grid; }
    CVideoForm* getForm(int id) const;
    // Id of the view bound to the device, or -1.
    int getFormIdByDevice(const CTavDevicePtr& device) const;
    int getFreeVideoFormID() const;
    // Id of the view the device was bound to, -1 when no view was left.
    int bindDevice(CTavDevicePtr device);
    void unBindDevice(CTavDevicePtr device);
    void showWaitingGif(CTavDevicePtr device, EN_MESSAGE_TYPE type);
    void setCurDevice(CTavDevicePtr device);
    int getHighlightedForm() const { return m_highlighted; }
    bool isMaxMode() const { return m_maxMode; }
    // Grid cell (row, column) of a view, (-1, -1) when it is not in the grid.
    QPoint gridPosition(int id) const;

    void maxMizeForm(int id);
    void exitMaxMode();

    void setShowCrosshair(bool show);
    void setCrosshairColor(const QColor& color);
    void setShowChunkData(bool show);
    void setDrawROIEnable(bool enable);
    void setDisplayROIEnable(bool enable);
    void setROIColor(const QColor& color);
    void setBayerDemosaic(int demosaic);
    // ROIs of the highlighted view.
    void deleteROI();
    void setROI(QList<stuROI> rois);
    void getROIByDevcie(QList<stuROI>& rois, CTavDevicePtr device);
    // Every view's ROIs into the configuration, which is then saved.
    bool saveROIConfig();
    void restoreROIFromConfig();

public slots:
    void OnFormHighLighted(int id);
    void OnMaxMizeForm(int id);
    void MaximizeRestoreVideo();
    void OnSwapForm(int from, int to);

signals:
    void layout_changed();
    void select_device(CTavDevicePtr device);
    void signalWndMoved();
    // A view's ROIs changed and were saved; false when saving failed.
    void roiSaved(bool ok);

private:
    void rebuildGrid(const QVector<int>& ids, int columns);
    void highlight(int id);

    QGridLayout* m_grid;
    CViewSignalHub* m_viewSignals;
    QVector<CVideoForm*> m_forms;
    // Form id at each grid position, row by row; swaps permute it.
    QVector<int> m_order;
    EN_VIDEO_LAYOUT m_layout = VIDEO_LAYOUT_1;
    EN_VIDEO_LAYOUT m_savedLayout = VIDEO_LAYOUT_1;
    bool m_maxMode = false;
    int m_highlighted = 0;
};
