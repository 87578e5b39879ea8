#pragma once
// The display widget of a video view. displayImage() may be called from any
// thread (the stream thread calls it directly): the frame is rendered there
// at the size the widget shows and handed over through a one-slot mailbox, so
// the GUI thread only paints a ready picture. Zoom, pan, overlays in image
// coordinates, and the mouse reported in image coordinates.
#include <QColor>
#include <QElapsedTimer>
#include <QList>
#include <QPointF>
#include <QWidget>
#include <functional>
#include <memory>

#include "Gliv/CDisplayPipeline.h"
#include "Gliv/CQtHybridFrame.h"

class QMenu;
class QPainter;

namespace Gliv {

// Draw callback: painter (QPainter*), the display widget (CQtDisplayWndEx*),
// the context given to setDrawCallback, and the frame being painted. It is
// called on the GUI thread during every paint; the overlay functions draw
// at once when called from it.
typedef void (*FnDrawCallback)(void* painter, void* displayWnd, void* context, const CQtHybridFramePtr& frame);

class CQtDisplayWndEx : public QWidget
{
    Q_OBJECT
public:
    explicit CQtDisplayWndEx(QWidget* parent = nullptr);
    ~CQtDisplayWndEx() override;

    // Thread-safe: renders the frame for this view and queues one repaint.
    void displayImage(const CQtHybridFramePtr& frame);
    // The thread-safe core, for callers that keep it beyond the widget's life.
    std::shared_ptr<CDisplayPipeline> pipeline() const { return m_pipeline; }

    void clearDispWnd();
    void zoomIn();
    void zoomOut();
    void zoomFit();
    void zoom100();
    // The image centre goes to the view centre.
    void center();
    void setDragEnabled(bool enabled) { m_dragEnabled = enabled; }
    bool isDragEnabled() const { return m_dragEnabled; }
    void setRightMouseMenu(bool enabled) { m_rightMenu = enabled; }
    void setDrawCallback(FnDrawCallback callback, void* context);
    void setBayerDemosaic(EBayerDemosaic demosaic);

    // Overlays in image pixels. From the draw callback they are drawn on the
    // current paint; otherwise they are kept and drawn on every paint until
    // clearOverlays().
    void drawLineOverlay(double x1, double y1, double x2, double y2, const QColor& color, int width = 1);
    void drawFrameRectOverlay(double x, double y, double w, double h, const QColor& color, int width = 1);
    void drawTextOverlay(double x, double y, const QString& text, const QColor& color);
    void clearOverlays();

    // What is on screen now.
    bool isFitMode() const { return m_state.fit; }
    double currentScale() const;
    QSize imageSize() const { return m_current.imageSize; }
    CQtHybridFramePtr currentFrame() const { return m_current.frame; }
    QImage currentImage() const { return m_current.image; }
    quint64 paintedFrameCount() const { return m_painted; }
    // View point to image point and back, through the picture on screen.
    QPointF toImage(const QPointF& view) const;
    QPointF toView(const QPointF& image) const;

    // Measurement hook: nanoseconds of GUI work per new picture (taking it and
    // painting it). Set on the GUI thread.
    void setPaintTimeObserver(std::function<void(qint64)> observer) { m_paintObserver = std::move(observer); }

signals:
    // Mouse in image coordinates.
    void mousePressed(QPointF image, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void mouseMoved(QPointF image, Qt::MouseButtons buttons);
    void mouseReleased(QPointF image, Qt::MouseButton button);
    void mouseDoubleClicked(QPointF image);
    // Image pixel under the cursor; inside false when it left the image.
    void cursorMoved(QPoint pixel, bool inside);
    void zoomChanged(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void onFrameReady();

private:
    struct SOverlay
    {
        enum EKind { kindLine, kindRect, kindText } kind;
        QRectF geometry;
        QString label;
        QColor color;
        int width;
    };
    void drawOverlay(QPainter& painter, const SOverlay& overlay);
    void addOverlay(const SOverlay& overlay);
    void applyState();
    void setZoom(double scale, const QPointF& keepImagePoint, const QPointF& atView);
    QSize knownImageSize() const;

    std::shared_ptr<CDisplayPipeline> m_pipeline;
    SViewState m_state;
    SDisplayedImage m_current;
    quint64 m_painted = 0;
    bool m_dragEnabled = true;
    bool m_rightMenu = true;
    bool m_dragging = false;
    QPointF m_dragLast;
    FnDrawCallback m_callback = nullptr;
    void* m_callbackContext = nullptr;
    QPainter* m_activePainter = nullptr;
    QList<SOverlay> m_overlays;
    std::function<void(qint64)> m_paintObserver;
    QElapsedTimer m_readyTimer;
    qint64 m_readyNs = -1;
};

} // namespace Gliv
