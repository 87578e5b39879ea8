#include "Gliv/CDisplayRenderer.h"
#include "Gliv/PixelFormats.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace Gliv {

namespace {

// Position of the red and blue samples in the 2x2 cell of a Bayer pattern:
// index 0 top-left, 1 top-right, 2 bottom-left, 3 bottom-right.
struct SBayerCell
{
    int red;
    int blue;
};

bool bayer8Cell(uint32_t pf, SBayerCell& cell)
{
    switch (pf) {
    case PixelFormat::BayerRG8: cell = { 0, 3 }; return true;
    case PixelFormat::BayerGR8: cell = { 1, 2 }; return true;
    case PixelFormat::BayerGB8: cell = { 2, 1 }; return true;
    case PixelFormat::BayerBG8: cell = { 3, 0 }; return true;
    default: return false;
    }
}

// OpenCV names a Bayer pattern by the second row's first two samples.
int fullDemosaicCode(uint32_t pf, EBayerDemosaic d)
{
    int idx = std::min(std::max(int(d), 0), 2);
    static const int rg[3] = { cv::COLOR_BayerBG2BGR, cv::COLOR_BayerBG2BGR_EA, cv::COLOR_BayerBG2BGR_VNG };
    static const int gr[3] = { cv::COLOR_BayerGB2BGR, cv::COLOR_BayerGB2BGR_EA, cv::COLOR_BayerGB2BGR_VNG };
    static const int gb[3] = { cv::COLOR_BayerGR2BGR, cv::COLOR_BayerGR2BGR_EA, cv::COLOR_BayerGR2BGR_VNG };
    static const int bg[3] = { cv::COLOR_BayerRG2BGR, cv::COLOR_BayerRG2BGR_EA, cv::COLOR_BayerRG2BGR_VNG };
    switch (pf) {
    case PixelFormat::BayerRG8: return rg[idx];
    case PixelFormat::BayerGR8: return gr[idx];
    case PixelFormat::BayerGB8: return gb[idx];
    default: return bg[idx];
    }
}

bool isWide16(uint32_t pf, int& bits)
{
    namespace P = PixelFormat;
    switch (pf) {
    case P::Mono10: case P::BayerGR10: case P::BayerRG10: case P::BayerGB10: case P::BayerBG10:
        bits = 10; return true;
    case P::Mono12: case P::BayerGR12: case P::BayerRG12: case P::BayerGB12: case P::BayerBG12:
        bits = 12; return true;
    case P::Mono14: bits = 14; return true;
    case P::Mono16: case P::BayerGR16: case P::BayerRG16: case P::BayerGB16: case P::BayerBG16:
        bits = 16; return true;
    default: return false;
    }
}

// Enlarged pixels stay crisp from twice the size on, so single pixels can be told apart.
int upInterpolation(const QRect& src, const QSize& target)
{
    return target.width() >= 2 * src.width() ? cv::INTER_NEAREST : cv::INTER_LINEAR;
}

void ensure(std::vector<uint8_t>& buf, size_t bytes)
{
    if (buf.size() < bytes)
        buf.resize(bytes);
}

// out as an RGB32 image of the size, keeping its pixels when they are ours alone.
bool prepareOutput(QImage& out, const QSize& size)
{
    if (out.isNull() || out.size() != size || out.format() != QImage::Format_RGB32 || !out.isDetached())
        out = QImage(size, QImage::Format_RGB32);
    return !out.isNull();
}

cv::Mat wrapOutput(QImage& out)
{
    return cv::Mat(out.height(), out.width(), CV_8UC4, out.bits(), size_t(out.bytesPerLine()));
}

} // namespace

int CDisplayRenderer::rawStride(const CQtHybridFrame& frame, int bytesPerPixel)
{
    return int(frame.getWidth()) * bytesPerPixel + int(frame.getPaddingX());
}

void CDisplayRenderer::demosaicHalf(const uint8_t* raw, int stride, uint32_t pixelFormat, int cellsX, int cellsY,
                                    uint8_t* bgra, int outStride)
{
    SBayerCell cell { 0, 3 };
    bayer8Cell(pixelFormat, cell);
    // The two greens sit on the diagonal that red and blue leave free.
    const int g1 = (cell.red == 0 || cell.red == 3) ? 1 : 0;
    const int g2 = 3 - g1;
    for (int y = 0; y < cellsY; ++y) {
        const uint8_t* r0 = raw + size_t(2 * y) * stride;
        const uint8_t* r1 = r0 + stride;
        uint8_t* o = bgra + size_t(y) * outStride;
        for (int x = 0; x < cellsX; ++x) {
            const uint8_t s[4] = { r0[2 * x], r0[2 * x + 1], r1[2 * x], r1[2 * x + 1] };
            o[0] = s[cell.blue];
            o[1] = uint8_t((s[g1] + s[g2] + 1) >> 1);
            o[2] = s[cell.red];
            o[3] = 0xff;
            o += 4;
        }
    }
}

bool CDisplayRenderer::render(const CQtHybridFrame& frame, const SRenderRequest& request, QImage& out)
{
    const QRect imageRect(0, 0, int(frame.getWidth()), int(frame.getHeight()));
    QRect src = request.source.intersected(imageRect);
    const QSize target = request.target;
    if (src.isEmpty() || target.isEmpty() || frame.getRawData() == nullptr)
        return false;

    const uint32_t pf = frame.getPixelFormat();
    const bool jpeg = frame.getPayloadType() == payloadTypeJpeg;
    SBayerCell cell;
    try {
        if (!jpeg && bayer8Cell(pf, cell)) {
            // Keep the pattern's phase: the region starts on an even pixel.
            src.setLeft(src.left() & ~1);
            src.setTop(src.top() & ~1);
            if (src.width() < 2 || src.height() < 2)
                return false;
            const int stride = rawStride(frame, 1);
            if (int64_t(stride) * imageRect.height() > int64_t(frame.getRawDataSize()))
                return false;
            const uint8_t* origin = frame.getRawData() + size_t(src.top()) * stride + src.left();
            if (!prepareOutput(out, target))
                return false;
            cv::Mat dst = wrapOutput(out);
            const int cellsX = src.width() / 2;
            const int cellsY = src.height() / 2;
            if (target.width() <= cellsX && target.height() <= cellsY) {
                // Shown at half size or less: half-resolution demosaic, then area average.
                if (target.width() == cellsX && target.height() == cellsY) {
                    demosaicHalf(origin, stride, pf, cellsX, cellsY, out.bits(), out.bytesPerLine());
                    return true;
                }
                ensure(m_scratchA, size_t(cellsX) * cellsY * 4);
                demosaicHalf(origin, stride, pf, cellsX, cellsY, m_scratchA.data(), cellsX * 4);
                cv::Mat half(cellsY, cellsX, CV_8UC4, m_scratchA.data());
                cv::resize(half, dst, dst.size(), 0, 0, cv::INTER_AREA);
                return true;
            }
            // Zoomed in: full demosaic of the visible region only.
            const int w = cellsX * 2;
            const int h = cellsY * 2;
            cv::Mat region(h, w, CV_8UC1, const_cast<uint8_t*>(origin), size_t(stride));
            ensure(m_scratchA, size_t(w) * h * 3);
            cv::Mat bgr(h, w, CV_8UC3, m_scratchA.data());
            cv::cvtColor(region, bgr, fullDemosaicCode(pf, request.demosaic));
            ensure(m_scratchB, size_t(target.width()) * target.height() * 3);
            cv::Mat scaled(target.height(), target.width(), CV_8UC3, m_scratchB.data());
            cv::resize(bgr, scaled, scaled.size(), 0, 0,
                       target.width() < w ? cv::INTER_AREA : upInterpolation(QRect(0, 0, w, h), target));
            cv::cvtColor(scaled, dst, cv::COLOR_BGR2BGRA);
            return true;
        }

        if (!jpeg && pf == PixelFormat::Mono8) {
            const int stride = rawStride(frame, 1);
            if (int64_t(stride) * imageRect.height() > int64_t(frame.getRawDataSize()))
                return false;
            cv::Mat region(src.height(), src.width(), CV_8UC1,
                           const_cast<uint8_t*>(frame.getRawData()) + size_t(src.top()) * stride + src.left(),
                           size_t(stride));
            if (!prepareOutput(out, target))
                return false;
            cv::Mat dst = wrapOutput(out);
            ensure(m_scratchA, size_t(target.width()) * target.height());
            cv::Mat gray(target.height(), target.width(), CV_8UC1, m_scratchA.data());
            const bool shrink = target.width() <= src.width() && target.height() <= src.height();
            cv::resize(region, gray, gray.size(), 0, 0, shrink ? cv::INTER_AREA : upInterpolation(src, target));
            cv::cvtColor(gray, dst, cv::COLOR_GRAY2BGRA);
            return true;
        }

        // Any other format: the frame's own conversion to BGR, then scale.
        const unsigned char* bgrData = frame.getConvertedData();
        const int cw = int(frame.getConvertedWidth());
        const int ch = int(frame.getConvertedHeight());
        if (bgrData == nullptr || cw <= 0 || ch <= 0)
            return false;
        src = src.intersected(QRect(0, 0, cw, ch));
        if (src.isEmpty() || !prepareOutput(out, target))
            return false;
        cv::Mat region(src.height(), src.width(), CV_8UC3,
                       const_cast<unsigned char*>(bgrData) + (size_t(src.top()) * cw + src.left()) * 3,
                       size_t(cw) * 3);
        cv::Mat dst = wrapOutput(out);
        ensure(m_scratchA, size_t(target.width()) * target.height() * 3);
        cv::Mat scaled(target.height(), target.width(), CV_8UC3, m_scratchA.data());
        const bool shrink = target.width() <= src.width() && target.height() <= src.height();
        cv::resize(region, scaled, scaled.size(), 0, 0, shrink ? cv::INTER_AREA : upInterpolation(src, target));
        cv::cvtColor(scaled, dst, cv::COLOR_BGR2BGRA);
        return true;
    } catch (...) {
        // OpenCV reports bad input by exception: nothing to show for this frame.
        return false;
    }
}

bool CDisplayRenderer::probePixel(const CQtHybridFrame& frame, int x, int y, QString& raw, QRgb& rgb,
                                  bool& rgbValid)
{
    rgbValid = false;
    const int w = int(frame.getWidth());
    const int h = int(frame.getHeight());
    const uint8_t* data = frame.getRawData();
    if (x < 0 || y < 0 || x >= w || y >= h || data == nullptr
        || frame.getPayloadType() == payloadTypeJpeg)
        return false;
    const uint32_t pf = frame.getPixelFormat();
    const uint64_t size = frame.getRawDataSize();
    auto inside = [size](size_t offset, size_t bytes) { return offset + bytes <= size; };

    SBayerCell cell;
    if (pf == PixelFormat::Mono8 || bayer8Cell(pf, cell)) {
        const int stride = rawStride(frame, 1);
        const size_t off = size_t(y) * stride + x;
        if (!inside(off, 1))
            return false;
        raw = QString::number(data[off]);
        if (pf == PixelFormat::Mono8) {
            rgb = qRgb(data[off], data[off], data[off]);
        } else {
            // The colour of the 2x2 cell the pixel belongs to, as the half-size view shows it.
            const int cx = std::min(x & ~1, w - 2);
            const int cy = std::min(y & ~1, h - 2);
            if (cx < 0 || cy < 0 || !inside(size_t(cy + 1) * stride + cx + 2, 0))
                return true;
            uint8_t bgra[4];
            demosaicHalf(data + size_t(cy) * stride + cx, stride, pf, 1, 1, bgra, 4);
            rgb = qRgb(bgra[2], bgra[1], bgra[0]);
        }
        rgbValid = true;
        return true;
    }
    int bits = 0;
    if (isWide16(pf, bits)) {
        const int stride = rawStride(frame, 2);
        const size_t off = size_t(y) * stride + size_t(x) * 2;
        if (!inside(off, 2))
            return false;
        const int v = data[off] | (data[off + 1] << 8);
        raw = QString::number(v);
        const int v8 = std::min(255, v >> (bits - 8));
        rgb = qRgb(v8, v8, v8);
        // A Bayer sample alone is not a colour; only mono values map to grey.
        rgbValid = pf == PixelFormat::Mono10 || pf == PixelFormat::Mono12 || pf == PixelFormat::Mono14
                   || pf == PixelFormat::Mono16;
        return true;
    }
    if (pf == PixelFormat::RGB8 || pf == PixelFormat::BGR8) {
        const int stride = rawStride(frame, 3);
        const size_t off = size_t(y) * stride + size_t(x) * 3;
        if (!inside(off, 3))
            return false;
        const uint8_t* p = data + off;
        raw = QStringLiteral("%1,%2,%3").arg(p[0]).arg(p[1]).arg(p[2]);
        rgb = pf == PixelFormat::RGB8 ? qRgb(p[0], p[1], p[2]) : qRgb(p[2], p[1], p[0]);
        rgbValid = true;
        return true;
    }
    return false;
}

} // namespace Gliv
