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

// Shrinks src into dst: an area average by a whole factor (OpenCV's fast
// path, the few lines and columns beyond a whole block left out), then a
// bilinear step for the rest, which is less than a factor of two.
void shrink(const cv::Mat& src, cv::Mat& dst, std::vector<uint8_t>& scratch)
{
    const int k = std::min(src.cols / dst.cols, src.rows / dst.rows);
    if (k < 2) {
        cv::resize(src, dst, dst.size(), 0, 0, cv::INTER_LINEAR);
        return;
    }
    const cv::Mat whole = src(cv::Rect(0, 0, src.cols / k * k, src.rows / k * k));
    if (whole.cols / k == dst.cols && whole.rows / k == dst.rows) {
        cv::resize(whole, dst, dst.size(), 0, 0, cv::INTER_AREA);
        return;
    }
    ensure(scratch, size_t(whole.cols / k) * (whole.rows / k) * src.elemSize());
    cv::Mat binned(whole.rows / k, whole.cols / k, src.type(), scratch.data());
    cv::resize(whole, binned, binned.size(), 0, 0, cv::INTER_AREA);
    cv::resize(binned, dst, dst.size(), 0, 0, cv::INTER_LINEAR);
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

// One BGRA pixel per k x k block of 2x2 Bayer cells, the average of the
// block's red, green and blue samples. The lines of a block are first added
// column by column (a loop the compiler vectorises), then each block's
// columns are added by colour; every raw byte is read once.
template <int RED, int BLUE>
void binBayer(const uint8_t* raw, int stride, int k, int outW, int outH, uint8_t* out, int outStride,
              std::vector<uint16_t>& lines)
{
    constexpr int G1 = (RED == 0 || RED == 3) ? 1 : 0;
    constexpr int G2 = 3 - G1;
    if (k == 1) {
        // The plain half-resolution demosaic: one pixel per cell.
        for (int oy = 0; oy < outH; ++oy) {
            const uint8_t* r0 = raw + size_t(2 * oy) * stride;
            const uint8_t* r1 = r0 + stride;
            uint8_t* o = out + size_t(oy) * outStride;
            for (int ox = 0; ox < outW; ++ox, r0 += 2, r1 += 2, o += 4) {
                const uint8_t s[4] = { r0[0], r0[1], r1[0], r1[1] };
                o[0] = s[BLUE];
                o[1] = uint8_t((s[G1] + s[G2] + 1) >> 1);
                o[2] = s[RED];
                o[3] = 0xff;
            }
        }
        return;
    }
    const int span = outW * k * 2;
    lines.resize(size_t(span) * 2);
    uint16_t* top = lines.data();
    uint16_t* bottom = top + span;
    // Averages by multiplying with a 16-bit fixed-point reciprocal: exact
    // for single cells, within one step of the exact average for blocks.
    const uint32_t n = uint32_t(k) * uint32_t(k);
    const uint32_t inv = ((1u << 16) + n / 2) / n;
    const uint32_t invG = ((1u << 16) + n) / (2 * n);
    for (int oy = 0; oy < outH; ++oy) {
        std::fill(top, top + 2 * span, uint16_t(0));
        for (int cy = oy * k; cy < oy * k + k; ++cy) {
            const uint8_t* r0 = raw + size_t(2 * cy) * stride;
            const uint8_t* r1 = r0 + stride;
            for (int x = 0; x < span; ++x) {
                top[x] = uint16_t(top[x] + r0[x]);
                bottom[x] = uint16_t(bottom[x] + r1[x]);
            }
        }
        uint8_t* o = out + size_t(oy) * outStride;
        for (int ox = 0; ox < outW; ++ox, o += 4) {
            uint32_t s[4] = { 0, 0, 0, 0 };
            const int base = 2 * ox * k;
            for (int j = 0; j < 2 * k; j += 2) {
                s[0] += top[base + j];
                s[1] += top[base + j + 1];
                s[2] += bottom[base + j];
                s[3] += bottom[base + j + 1];
            }
            o[0] = uint8_t(std::min(255u, (s[BLUE] * inv + 0x8000) >> 16));
            o[1] = uint8_t(std::min(255u, ((s[G1] + s[G2]) * invG + 0x8000) >> 16));
            o[2] = uint8_t(std::min(255u, (s[RED] * inv + 0x8000) >> 16));
            o[3] = 0xff;
        }
    }
}

void binBayerAny(uint32_t pf, const uint8_t* raw, int stride, int k, int outW, int outH, uint8_t* out,
                 int outStride, std::vector<uint16_t>& lines)
{
    switch (pf) {
    case PixelFormat::BayerGR8: binBayer<1, 2>(raw, stride, k, outW, outH, out, outStride, lines); break;
    case PixelFormat::BayerGB8: binBayer<2, 1>(raw, stride, k, outW, outH, out, outStride, lines); break;
    case PixelFormat::BayerBG8: binBayer<3, 0>(raw, stride, k, outW, outH, out, outStride, lines); break;
    default: binBayer<0, 3>(raw, stride, k, outW, outH, out, outStride, lines); break;
    }
}

} // namespace

int CDisplayRenderer::rawStride(const CQtHybridFrame& frame, int bytesPerPixel)
{
    return int(frame.getWidth()) * bytesPerPixel + int(frame.getPaddingX());
}

void CDisplayRenderer::demosaicHalf(const uint8_t* raw, int stride, uint32_t pixelFormat, int cellsX, int cellsY,
                                    uint8_t* bgra, int outStride)
{
    std::vector<uint16_t> unused;   // single cells need no line sums
    binBayerAny(pixelFormat, raw, stride, 1, cellsX, cellsY, bgra, outStride, unused);
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
                // Shown at half size or less: whole blocks of cells binned
                // to at most twice the shown size (a half-resolution
                // demosaic and an area average in one pass), then a bilinear
                // step for the rest: less than a factor of two, where it
                // loses little against an area average and costs far less.
                const int k = std::max(1, std::min(cellsX / target.width(), cellsY / target.height()));
                const int binW = cellsX / k;
                const int binH = cellsY / k;
                if (binW == target.width() && binH == target.height()) {
                    binBayerAny(pf, origin, stride, k, binW, binH, out.bits(), out.bytesPerLine(), m_lines);
                    return true;
                }
                ensure(m_scratchA, size_t(binW) * binH * 4);
                binBayerAny(pf, origin, stride, k, binW, binH, m_scratchA.data(), binW * 4, m_lines);
                cv::Mat binned(binH, binW, CV_8UC4, m_scratchA.data());
                cv::resize(binned, dst, dst.size(), 0, 0, cv::INTER_LINEAR);
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
            return scaleToOutput(region, src, target, cv::COLOR_GRAY2BGRA, out);
        }

        // Any other format: the frame's own conversion to BGR, then scale.
        const unsigned char* bgrData = frame.getConvertedData();
        const int cw = int(frame.getConvertedWidth());
        const int ch = int(frame.getConvertedHeight());
        if (bgrData == nullptr || cw <= 0 || ch <= 0)
            return false;
        src = src.intersected(QRect(0, 0, cw, ch));
        if (src.isEmpty())
            return false;
        cv::Mat region(src.height(), src.width(), CV_8UC3,
                       const_cast<unsigned char*>(bgrData) + (size_t(src.top()) * cw + src.left()) * 3,
                       size_t(cw) * 3);
        return scaleToOutput(region, src, target, cv::COLOR_BGR2BGRA, out);
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

bool CDisplayRenderer::scaleToOutput(const cv::Mat& region, const QRect& src, const QSize& target, int toBgra,
                                     QImage& out)
{
    if (!prepareOutput(out, target))
        return false;
    cv::Mat dst = wrapOutput(out);
    ensure(m_scratchA, size_t(target.width()) * target.height() * region.elemSize());
    cv::Mat scaled(target.height(), target.width(), region.type(), m_scratchA.data());
    if (target.width() <= src.width() && target.height() <= src.height())
        shrink(region, scaled, m_scratchB);
    else
        cv::resize(region, scaled, scaled.size(), 0, 0, upInterpolation(src, target));
    cv::cvtColor(scaled, dst, toBgra);
    return true;
}

} // namespace Gliv
