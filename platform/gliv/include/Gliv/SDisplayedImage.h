#pragma once
// One picture ready to paint: the rendered pixels, where they go in the view,
// which image region they show, and the frame they came from (its raw pixels
// answer the value under the cursor; its chunk text is shown as is).
#include <QImage>
#include <QRect>
#include <QRectF>
#include <QSize>

#include "Gliv/CQtHybridFrame.h"

namespace Gliv {

struct SDisplayedImage
{
    QImage image;              // Format_RGB32, dest's size
    QRect source;              // image region shown, image pixels
    QRectF dest;               // its place in the view, view pixels
    QSize imageSize;           // full image size
    CQtHybridFramePtr frame;   // never changed once emitted
    quint64 serial = 0;        // increases with every rendered picture

    bool isNull() const { return image.isNull(); }
    // View point to image point, through the region this picture shows.
    QPointF toImage(const QPointF& view) const;
    QPointF toView(const QPointF& image) const;
    double scale() const { return source.width() > 0 ? dest.width() / source.width() : 1.0; }
};

} // namespace Gliv
