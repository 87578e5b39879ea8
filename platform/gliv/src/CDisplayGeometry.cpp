#include "Gliv/CDisplayGeometry.h"

#include <algorithm>
#include <cmath>

namespace Gliv {

double CDisplayGeometry::fitScale(const QSize& view, const QSize& image)
{
    if (image.isEmpty() || view.isEmpty())
        return 1.0;
    return std::min(double(view.width()) / image.width(), double(view.height()) / image.height());
}

double CDisplayGeometry::scale(const SViewState& state, const QSize& image)
{
    if (state.fit)
        return fitScale(state.viewSize, image);
    return std::min(kMaxZoom, std::max(kMinZoom, state.zoom));
}

QPointF CDisplayGeometry::centre(const SViewState& state, const QSize& image)
{
    if (state.fit || state.center.x() < 0 || state.center.y() < 0)
        return QPointF(image.width() / 2.0, image.height() / 2.0);
    return QPointF(std::min<double>(state.center.x(), image.width()),
                   std::min<double>(state.center.y(), image.height()));
}

bool CDisplayGeometry::compute(const SViewState& state, const QSize& image, QRect& source, QRectF& dest)
{
    if (image.isEmpty() || state.viewSize.isEmpty())
        return false;
    const double s = scale(state, image);
    const QPointF c = centre(state, image);
    const double halfW = state.viewSize.width() / (2.0 * s);
    const double halfH = state.viewSize.height() / (2.0 * s);
    int x0 = std::max(0, int(std::floor(c.x() - halfW))) & ~1;
    int y0 = std::max(0, int(std::floor(c.y() - halfH))) & ~1;
    const int x1 = std::min(image.width(), int(std::ceil(c.x() + halfW)));
    const int y1 = std::min(image.height(), int(std::ceil(c.y() + halfH)));
    if (x1 - x0 < 1 || y1 - y0 < 1)
        return false;
    source = QRect(x0, y0, x1 - x0, y1 - y0);
    const double left = (x0 - c.x()) * s + state.viewSize.width() / 2.0;
    const double top = (y0 - c.y()) * s + state.viewSize.height() / 2.0;
    // Whole view pixels, so that the picture is painted without scaling.
    dest = QRectF(std::round(left), std::round(top), std::max(1.0, std::round(source.width() * s)),
                  std::max(1.0, std::round(source.height() * s)));
    return true;
}

} // namespace Gliv
