#include "Gliv/SDisplayedImage.h"

namespace Gliv {

QPointF SDisplayedImage::toImage(const QPointF& view) const
{
    const double s = scale();
    return QPointF(source.left() + (view.x() - dest.left()) / s, source.top() + (view.y() - dest.top()) / s);
}

QPointF SDisplayedImage::toView(const QPointF& image) const
{
    const double s = scale();
    return QPointF(dest.left() + (image.x() - source.left()) * s, dest.top() + (image.y() - source.top()) * s);
}

} // namespace Gliv
