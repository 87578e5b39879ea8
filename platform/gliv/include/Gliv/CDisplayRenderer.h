#pragma once
// Turns one camera frame into the picture a view shows: only the visible
// region of the image, at the size it takes on screen, as 32-bit RGB ready to
// paint. Runs on the thread that delivers the frame (the stream thread), so
// the GUI thread never converts or scales pixels.
//
// Bayer 8-bit frames shown at half size or less get a half-resolution
// demosaic (each 2x2 cell one pixel) combined with the area average down to
// the shown size, which costs a fraction of a full demosaic; larger zooms demosaic the visible
// region at full resolution. Mono 8-bit is area-averaged directly. Every other
// format goes through the frame's own full conversion first.
#include <QImage>
#include <QRect>
#include <QRgb>
#include <QSize>
#include <QString>
#include <cstdint>
#include <vector>

#include "Gliv/CQtHybridFrame.h"

namespace cv {
class Mat;
}

namespace Gliv {

struct SRenderRequest
{
    QRect source;       // image region, image pixels (clamped to the image)
    QSize target;       // output size in screen pixels
    EBayerDemosaic demosaic = bayerBilinear;
};

class CDisplayRenderer
{
public:
    // Renders the request into out (QImage::Format_RGB32 of the target size).
    // out's pixels are reused when out is not shared and already has that
    // size, so steady state allocates nothing. False when the frame's format
    // cannot be shown or the request is empty.
    bool render(const CQtHybridFrame& frame, const SRenderRequest& request, QImage& out);

    // The value under image pixel (x, y) read from the raw data: raw as text
    // ("37", "1023", "12,200,31") and the displayed colour. False outside the
    // image or for a format without a direct reading; rgbValid tells whether
    // rgb holds a colour (packed formats give the raw text only).
    static bool probePixel(const CQtHybridFrame& frame, int x, int y, QString& raw, QRgb& rgb, bool& rgbValid);

    // Bytes per line of the raw image of an 8-bit-per-sample format.
    static int rawStride(const CQtHybridFrame& frame, int bytesPerPixel);

    // The half-resolution demosaic of a Bayer 8-bit region whose origin is
    // even: one BGRA pixel per 2x2 cell, green averaged. Public for tests.
    static void demosaicHalf(const uint8_t* raw, int stride, uint32_t pixelFormat, int cellsX, int cellsY,
                             uint8_t* bgra, int outStride);

private:
    // Scales region (the part src of the image) to target and writes it to
    // out as BGRA through the colour conversion toBgra.
    bool scaleToOutput(const cv::Mat& region, const QRect& src, const QSize& target, int toBgra, QImage& out);

    std::vector<uint8_t> m_scratchA;   // grown only; reused frame after frame
    std::vector<uint8_t> m_scratchB;
    std::vector<uint16_t> m_lines;
};

} // namespace Gliv
