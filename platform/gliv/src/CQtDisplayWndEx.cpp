#include "Gliv/CQtDisplayWndEx.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QThreadPool>
#include <QWheelEvent>
#include <cmath>

namespace Gliv {

namespace {
const double kZoomStep = 1.25;
}

CQtDisplayWndEx::CQtDisplayWndEx(QWidget* parent)
    : QWidget(parent), m_pipeline(std::make_shared<CDisplayPipeline>())
{
    setObjectName(QStringLiteral("displayWnd"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(32, 24);
    m_readyTimer.start();
    m_pipeline->setNotifier([this]() {
        // Any thread; the widget is alive while the notifier is set.
        QMetaObject::invokeMethod(this, "onFrameReady", Qt::QueuedConnection);
    });
}

CQtDisplayWndEx::~CQtDisplayWndEx()
{
    // After this no thread posts to the widget any more.
    m_pipeline->setNotifier(nullptr);
}

void CQtDisplayWndEx::displayImage(const CQtHybridFramePtr& frame)
{
    m_pipeline->submit(frame);
}

void CQtDisplayWndEx::onFrameReady()
{
    const qint64 start = m_readyTimer.nsecsElapsed();
    SDisplayedImage item;
    if (!m_pipeline->take(item))
        return;
    m_current = std::move(item);
    m_readyNs = m_readyTimer.nsecsElapsed() - start;
    update();
}

void CQtDisplayWndEx::clearDispWnd()
{
    m_pipeline->clear();
    m_current = SDisplayedImage();
    update();
}

QSize CQtDisplayWndEx::knownImageSize() const
{
    if (!m_current.imageSize.isEmpty())
        return m_current.imageSize;
    const CQtHybridFramePtr last = m_pipeline->lastFrame();
    return last ? QSize(int(last->getWidth()), int(last->getHeight())) : QSize();
}

double CQtDisplayWndEx::currentScale() const
{
    return CDisplayGeometry::scale(m_state, knownImageSize());
}

void CQtDisplayWndEx::applyState()
{
    m_state.viewSize = size();
    m_pipeline->setViewState(m_state);
    // A stopped stream sends no new frame: render the last one again, off
    // the GUI thread.
    if (m_pipeline->lastFrame() && m_pipeline->claimRerender()) {
        std::shared_ptr<CDisplayPipeline> pipeline = m_pipeline;
        QThreadPool::globalInstance()->start([pipeline]() { pipeline->rerender(); });
    }
    emit zoomChanged(currentScale());
}

void CQtDisplayWndEx::setZoom(double scale, const QPointF& keepImagePoint, const QPointF& atView)
{
    const QSize image = knownImageSize();
    if (image.isEmpty())
        return;
    scale = std::min(CDisplayGeometry::kMaxZoom, std::max(CDisplayGeometry::kMinZoom, scale));
    // The image point under atView stays under it.
    const QPointF viewCentre(width() / 2.0, height() / 2.0);
    m_state.fit = false;
    m_state.zoom = scale;
    m_state.center = keepImagePoint - (atView - viewCentre) / scale;
    m_state.center.setX(std::min<double>(std::max(0.0, m_state.center.x()), image.width()));
    m_state.center.setY(std::min<double>(std::max(0.0, m_state.center.y()), image.height()));
    applyState();
}

void CQtDisplayWndEx::zoomIn()
{
    const QPointF c = CDisplayGeometry::centre(m_state, knownImageSize());
    setZoom(currentScale() * kZoomStep, c, QPointF(width() / 2.0, height() / 2.0));
}

void CQtDisplayWndEx::zoomOut()
{
    const QPointF c = CDisplayGeometry::centre(m_state, knownImageSize());
    setZoom(currentScale() / kZoomStep, c, QPointF(width() / 2.0, height() / 2.0));
}

void CQtDisplayWndEx::zoomFit()
{
    m_state.fit = true;
    m_state.center = QPointF(-1, -1);
    applyState();
}

void CQtDisplayWndEx::zoom100()
{
    const QPointF c = CDisplayGeometry::centre(m_state, knownImageSize());
    setZoom(1.0, c, QPointF(width() / 2.0, height() / 2.0));
}

void CQtDisplayWndEx::center()
{
    m_state.center = QPointF(-1, -1);
    applyState();
}

void CQtDisplayWndEx::setDrawCallback(FnDrawCallback callback, void* context)
{
    m_callback = callback;
    m_callbackContext = context;
    update();
}

void CQtDisplayWndEx::setBayerDemosaic(EBayerDemosaic demosaic)
{
    m_pipeline->setDemosaic(demosaic);
}

QPointF CQtDisplayWndEx::toImage(const QPointF& view) const
{
    if (!m_current.isNull())
        return m_current.toImage(view);
    const QSize image = knownImageSize();
    return CDisplayGeometry::centre(m_state, image) +
           (view - QPointF(width() / 2.0, height() / 2.0)) / CDisplayGeometry::scale(m_state, image);
}

QPointF CQtDisplayWndEx::toView(const QPointF& image) const
{
    if (!m_current.isNull())
        return m_current.toView(image);
    const QSize size = knownImageSize();
    return (image - CDisplayGeometry::centre(m_state, size)) * CDisplayGeometry::scale(m_state, size) +
           QPointF(width() / 2.0, height() / 2.0);
}

void CQtDisplayWndEx::addOverlay(const SOverlay& overlay)
{
    if (m_activePainter) {
        drawOverlay(*m_activePainter, overlay);
        return;
    }
    m_overlays.append(overlay);
    update();
}

void CQtDisplayWndEx::drawLineOverlay(double x1, double y1, double x2, double y2, const QColor& color, int width)
{
    addOverlay({ SOverlay::kindLine, QRectF(QPointF(x1, y1), QPointF(x2, y2)), QString(), color, width });
}

void CQtDisplayWndEx::drawFrameRectOverlay(double x, double y, double w, double h, const QColor& color, int width)
{
    addOverlay({ SOverlay::kindRect, QRectF(x, y, w, h), QString(), color, width });
}

void CQtDisplayWndEx::drawTextOverlay(double x, double y, const QString& text, const QColor& color)
{
    addOverlay({ SOverlay::kindText, QRectF(x, y, 0, 0), text, color, 1 });
}

void CQtDisplayWndEx::clearOverlays()
{
    m_overlays.clear();
    update();
}

void CQtDisplayWndEx::drawOverlay(QPainter& painter, const SOverlay& overlay)
{
    painter.setPen(QPen(overlay.color, overlay.width));
    painter.setBrush(Qt::NoBrush);
    switch (overlay.kind) {
    case SOverlay::kindLine:
        painter.drawLine(toView(overlay.geometry.topLeft()), toView(overlay.geometry.bottomRight()));
        break;
    case SOverlay::kindRect:
        painter.drawRect(QRectF(toView(overlay.geometry.topLeft()), toView(overlay.geometry.bottomRight())));
        break;
    case SOverlay::kindText: {
        // Text keeps its screen size; it is anchored at the image point, and
        // each line goes below the previous one.
        const QPointF at = toView(overlay.geometry.topLeft());
        const QRectF box(at.x(), at.y(), std::max(1.0, width() - at.x()), std::max(1.0, height() - at.y()));
        painter.drawText(box, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, overlay.label);
        break;
    }
    }
}

void CQtDisplayWndEx::paintEvent(QPaintEvent*)
{
    QElapsedTimer timer;
    timer.start();
    QPainter painter(this);
    const QRect all = rect();
    if (m_current.isNull()) {
        painter.fillRect(all, Qt::black);
    } else {
        // Black around the picture only, then the picture at its own size.
        const QRect dest = m_current.dest.toRect();
        QRegion around(all);
        around -= dest;
        for (const QRect& r : around)
            painter.fillRect(r, Qt::black);
        painter.drawImage(dest.topLeft(), m_current.image);
    }
    if (!m_current.isNull() && (m_callback || !m_overlays.isEmpty())) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (const SOverlay& o : m_overlays)
            drawOverlay(painter, o);
        if (m_callback) {
            m_activePainter = &painter;
            m_callback(&painter, this, m_callbackContext, m_current.frame);
            m_activePainter = nullptr;
        }
    }
    if (m_readyNs >= 0) {
        ++m_painted;
        if (m_paintObserver)
            m_paintObserver(m_readyNs + timer.nsecsElapsed());
        m_readyNs = -1;
    }
}

void CQtDisplayWndEx::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    applyState();
}

void CQtDisplayWndEx::mousePressEvent(QMouseEvent* event)
{
    const QPointF p = toImage(event->localPos());
    if (event->button() == Qt::LeftButton && m_dragEnabled && !m_state.fit) {
        m_dragging = true;
        m_dragLast = event->localPos();
    }
    emit mousePressed(p, event->button(), event->modifiers());
    QWidget::mousePressEvent(event);
}

void CQtDisplayWndEx::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF p = toImage(event->localPos());
    if (m_dragging && m_dragEnabled) {
        const QSize image = knownImageSize();
        const double s = currentScale();
        QPointF c = CDisplayGeometry::centre(m_state, image) - (event->localPos() - m_dragLast) / s;
        c.setX(std::min<double>(std::max(0.0, c.x()), image.width()));
        c.setY(std::min<double>(std::max(0.0, c.y()), image.height()));
        m_state.center = c;
        m_dragLast = event->localPos();
        applyState();
    }
    const QSize image = knownImageSize();
    const QPoint pixel(int(std::floor(p.x())), int(std::floor(p.y())));
    emit cursorMoved(pixel, QRect(QPoint(0, 0), image).contains(pixel));
    emit mouseMoved(p, event->buttons());
    QWidget::mouseMoveEvent(event);
}

void CQtDisplayWndEx::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
    emit mouseReleased(toImage(event->localPos()), event->button());
    QWidget::mouseReleaseEvent(event);
}

void CQtDisplayWndEx::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit mouseDoubleClicked(toImage(event->localPos()));
    QWidget::mouseDoubleClickEvent(event);
}

void CQtDisplayWndEx::wheelEvent(QWheelEvent* event)
{
    if (knownImageSize().isEmpty())
        return;
    const QPointF at = event->position();
    const double factor = event->angleDelta().y() > 0 ? kZoomStep : 1.0 / kZoomStep;
    setZoom(currentScale() * factor, toImage(at), at);
    event->accept();
}

void CQtDisplayWndEx::leaveEvent(QEvent* event)
{
    emit cursorMoved(QPoint(-1, -1), false);
    QWidget::leaveEvent(event);
}

void CQtDisplayWndEx::contextMenuEvent(QContextMenuEvent* event)
{
    if (!m_rightMenu) {
        event->ignore();
        return;
    }
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("displayWndMenu"));
    menu.addAction(tr("Zoom in"), this, &CQtDisplayWndEx::zoomIn);
    menu.addAction(tr("Zoom out"), this, &CQtDisplayWndEx::zoomOut);
    menu.addAction(tr("Fit to window"), this, &CQtDisplayWndEx::zoomFit);
    menu.addAction(tr("Actual size (100 %)"), this, &CQtDisplayWndEx::zoom100);
    menu.addAction(tr("Centre image"), this, &CQtDisplayWndEx::center);
    menu.exec(event->globalPos());
}

void CQtDisplayWndEx::changeEvent(QEvent* event)
{
    // The menu is built when shown, so it is always in the current language.
    QWidget::changeEvent(event);
}

} // namespace Gliv
