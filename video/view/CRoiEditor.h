#pragma once
// The ROI rectangles of one view and their editing with the mouse, all in
// image pixels: drag on empty image to draw a new one, drag inside one to
// move it, drag its border to resize it; the last touched one is selected.
#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include "CConfiguration.h"

class CRoiEditor
{
public:
    // Width and height above zero; other entries are never kept.
    static bool isValid(const stuROI& roi);
    static QRectF toRect(const stuROI& roi);

    void setRois(const QList<stuROI>& rois);
    const QList<stuROI>& rois() const { return m_rois; }
    void setColor(const QColor& color) { m_color = color; }
    QColor color() const { return m_color; }
    // Image size the rectangles are kept inside; empty: no bound.
    void setImageSize(const QSize& size) { m_imageSize = size; }

    int selected() const { return m_selected; }
    bool isEditing() const { return m_mode != modeNone; }
    // The rectangle being drawn (not yet in the list), empty otherwise.
    QRectF pendingRect() const;

    // tolerance: how near the border (image pixels) a press grabs it.
    void press(const QPointF& p, double tolerance);
    void move(const QPointF& p);
    // True when the list changed.
    bool release(const QPointF& p);
    bool deleteSelected();
    void clear();

private:
    enum EMode { modeNone, modeCreate, modeMove, modeResize };
    enum EEdge { edgeLeft = 1, edgeRight = 2, edgeTop = 4, edgeBottom = 8 };
    QPointF bounded(const QPointF& p) const;
    void storeRect(int index, QRectF r);

    QList<stuROI> m_rois;
    QColor m_color = Qt::red;
    QSize m_imageSize;
    int m_selected = -1;
    EMode m_mode = modeNone;
    int m_edges = 0;
    QPointF m_anchor;
    QRectF m_startRect;
    QRectF m_pending;
    bool m_changed = false;
};
