#pragma once
// Where an image lands in a view: the scale (fit or a zoom factor), the
// visible image region and its place in the view. Shared by the renderer's
// caller on the stream thread and by the widget for its mouse mapping.
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

namespace Gliv {

struct SViewState
{
    QSize viewSize;              // view pixels
    bool fit = true;             // whole image, centred, aspect kept
    double zoom = 1.0;           // view pixels per image pixel when not fit
    QPointF center{ -1.0, -1.0 };   // image point at the view's centre; negative: image centre
};

class CDisplayGeometry
{
public:
    static constexpr double kMinZoom = 1.0 / 32.0;
    static constexpr double kMaxZoom = 32.0;

    static double fitScale(const QSize& view, const QSize& image);
    static double scale(const SViewState& state, const QSize& image);
    // Image point at the view's centre.
    static QPointF centre(const SViewState& state, const QSize& image);
    // Visible image region (starting on even pixels, clamped to the image)
    // and its place in the view. False when nothing is visible.
    static bool compute(const SViewState& state, const QSize& image, QRect& source, QRectF& dest);
};

} // namespace Gliv
