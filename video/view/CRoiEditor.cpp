#include "CRoiEditor.h"

#include <cmath>

namespace {
// A new ROI smaller than this (image pixels) is a click, not a rectangle.
const double kMinSize = 2.0;
}

bool CRoiEditor::isValid(const stuROI& roi)
{
    return roi.Width > 0 && roi.Height > 0 && roi.Left >= 0 && roi.Top >= 0;
}

QRectF CRoiEditor::toRect(const stuROI& roi)
{
    return QRectF(double(roi.Left), double(roi.Top), double(roi.Width), double(roi.Height));
}

void CRoiEditor::setRois(const QList<stuROI>& rois)
{
    m_rois.clear();
    for (const stuROI& r : rois)
        if (isValid(r))
            m_rois.append(r);
    m_selected = -1;
    m_mode = modeNone;
}

QRectF CRoiEditor::pendingRect() const
{
    return m_mode == modeCreate ? m_pending : QRectF();
}

QPointF CRoiEditor::bounded(const QPointF& p) const
{
    if (m_imageSize.isEmpty())
        return QPointF(std::max(0.0, p.x()), std::max(0.0, p.y()));
    return QPointF(std::min<double>(std::max(0.0, p.x()), m_imageSize.width()),
                   std::min<double>(std::max(0.0, p.y()), m_imageSize.height()));
}

void CRoiEditor::press(const QPointF& raw, double tolerance)
{
    const QPointF p = bounded(raw);
    m_changed = false;
    // Borders first (topmost ROI wins), then insides, then a new rectangle.
    for (int i = m_rois.size() - 1; i >= 0; --i) {
        const QRectF r = toRect(m_rois[i]);
        if (!r.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(p))
            continue;
        int edges = 0;
        if (std::abs(p.x() - r.left()) <= tolerance)
            edges |= edgeLeft;
        else if (std::abs(p.x() - r.right()) <= tolerance)
            edges |= edgeRight;
        if (std::abs(p.y() - r.top()) <= tolerance)
            edges |= edgeTop;
        else if (std::abs(p.y() - r.bottom()) <= tolerance)
            edges |= edgeBottom;
        m_selected = i;
        m_anchor = p;
        m_startRect = r;
        m_edges = edges;
        m_mode = edges ? modeResize : modeMove;
        return;
    }
    m_selected = -1;
    m_mode = modeCreate;
    m_anchor = p;
    m_pending = QRectF(p, p);
}

void CRoiEditor::storeRect(int index, QRectF r)
{
    r = r.normalized();
    stuROI& roi = m_rois[index];
    const qint64 left = qint64(std::lround(r.left()));
    const qint64 top = qint64(std::lround(r.top()));
    const qint64 width = std::max<qint64>(1, qint64(std::lround(r.width())));
    const qint64 height = std::max<qint64>(1, qint64(std::lround(r.height())));
    if (left != roi.Left || top != roi.Top || width != roi.Width || height != roi.Height) {
        roi.Left = left;
        roi.Top = top;
        roi.Width = width;
        roi.Height = height;
        m_changed = true;
    }
}

void CRoiEditor::move(const QPointF& raw)
{
    const QPointF p = bounded(raw);
    switch (m_mode) {
    case modeNone:
        return;
    case modeCreate:
        m_pending = QRectF(m_anchor, p).normalized();
        return;
    case modeMove: {
        QRectF r = m_startRect.translated(p - m_anchor);
        // The whole rectangle stays on the image.
        if (!m_imageSize.isEmpty()) {
            r.moveLeft(std::min(std::max(0.0, r.left()), m_imageSize.width() - r.width()));
            r.moveTop(std::min(std::max(0.0, r.top()), m_imageSize.height() - r.height()));
        } else {
            r.moveLeft(std::max(0.0, r.left()));
            r.moveTop(std::max(0.0, r.top()));
        }
        storeRect(m_selected, r);
        return;
    }
    case modeResize: {
        QRectF r = m_startRect;
        if (m_edges & edgeLeft)
            r.setLeft(p.x());
        if (m_edges & edgeRight)
            r.setRight(p.x());
        if (m_edges & edgeTop)
            r.setTop(p.y());
        if (m_edges & edgeBottom)
            r.setBottom(p.y());
        storeRect(m_selected, r);
        return;
    }
    }
}

bool CRoiEditor::release(const QPointF& p)
{
    move(p);
    const EMode mode = m_mode;
    m_mode = modeNone;
    if (mode == modeCreate) {
        const QRectF r = m_pending;
        m_pending = QRectF();
        if (r.width() < kMinSize || r.height() < kMinSize)
            return false;
        stuROI roi;
        roi.RedROI = m_color.red();
        roi.GreenROI = m_color.green();
        roi.BlueROI = m_color.blue();
        m_rois.append(roi);
        m_selected = m_rois.size() - 1;
        m_changed = false;
        storeRect(m_selected, r);
        return true;
    }
    const bool changed = m_changed;
    m_changed = false;
    return changed;
}

bool CRoiEditor::deleteSelected()
{
    if (m_selected < 0 || m_selected >= m_rois.size())
        return false;
    m_rois.removeAt(m_selected);
    m_selected = -1;
    m_mode = modeNone;
    return true;
}

void CRoiEditor::clear()
{
    m_rois.clear();
    m_selected = -1;
    m_mode = modeNone;
}
