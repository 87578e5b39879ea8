#include "Gliv/CQtHybridFrame.h"

#include <cstring>

#include "Gliv/CRawBufferPool.h"
#include "Gliv/PixelFormats.h"
#include "PixelUnpack.h"

#include <opencv2/core.hpp>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <climits>
#include <cstring>
#include <new>

namespace Gliv {

namespace {

enum class EPacking
{
    plain8,      // one byte per sample
    wide16,      // 16-bit little-endian words holding `bits` bits
    gevPacked,   // GigE Vision: 2 pixels in 3 bytes
    lsbPacked    // PFNC "p": LSB-first bit stream
};

enum class ELayout
{
    mono,
    bayerRG,
    bayerGR,
    bayerGB,
    bayerBG,
    rgb,
    bgr,
    rgba,
    bgra,
    yuyv,
    uyvy
};

struct SFormat
{
    ELayout layout;
    EPacking packing;
    int bits;
};

bool lookupFormat(uint32_t pf, SFormat& f)
{
    namespace P = PixelFormat;
    switch (pf) {
    case P::Mono8: f = { ELayout::mono, EPacking::plain8, 8 }; return true;
    case P::Mono10: f = { ELayout::mono, EPacking::wide16, 10 }; return true;
    case P::Mono12: f = { ELayout::mono, EPacking::wide16, 12 }; return true;
    case P::Mono14: f = { ELayout::mono, EPacking::wide16, 14 }; return true;
    case P::Mono16: f = { ELayout::mono, EPacking::wide16, 16 }; return true;
    case P::Mono10Packed: f = { ELayout::mono, EPacking::gevPacked, 10 }; return true;
    case P::Mono12Packed: f = { ELayout::mono, EPacking::gevPacked, 12 }; return true;
    case P::Mono10p: f = { ELayout::mono, EPacking::lsbPacked, 10 }; return true;
    case P::Mono12p: f = { ELayout::mono, EPacking::lsbPacked, 12 }; return true;

    case P::BayerGR8: f = { ELayout::bayerGR, EPacking::plain8, 8 }; return true;
    case P::BayerRG8: f = { ELayout::bayerRG, EPacking::plain8, 8 }; return true;
    case P::BayerGB8: f = { ELayout::bayerGB, EPacking::plain8, 8 }; return true;
    case P::BayerBG8: f = { ELayout::bayerBG, EPacking::plain8, 8 }; return true;
    case P::BayerGR10: f = { ELayout::bayerGR, EPacking::wide16, 10 }; return true;
    case P::BayerRG10: f = { ELayout::bayerRG, EPacking::wide16, 10 }; return true;
    case P::BayerGB10: f = { ELayout::bayerGB, EPacking::wide16, 10 }; return true;
    case P::BayerBG10: f = { ELayout::bayerBG, EPacking::wide16, 10 }; return true;
    case P::BayerGR12: f = { ELayout::bayerGR, EPacking::wide16, 12 }; return true;
    case P::BayerRG12: f = { ELayout::bayerRG, EPacking::wide16, 12 }; return true;
    case P::BayerGB12: f = { ELayout::bayerGB, EPacking::wide16, 12 }; return true;
    case P::BayerBG12: f = { ELayout::bayerBG, EPacking::wide16, 12 }; return true;
    case P::BayerGR16: f = { ELayout::bayerGR, EPacking::wide16, 16 }; return true;
    case P::BayerRG16: f = { ELayout::bayerRG, EPacking::wide16, 16 }; return true;
    case P::BayerGB16: f = { ELayout::bayerGB, EPacking::wide16, 16 }; return true;
    case P::BayerBG16: f = { ELayout::bayerBG, EPacking::wide16, 16 }; return true;
    case P::BayerGR10Packed: f = { ELayout::bayerGR, EPacking::gevPacked, 10 }; return true;
    case P::BayerRG10Packed: f = { ELayout::bayerRG, EPacking::gevPacked, 10 }; return true;
    case P::BayerGB10Packed: f = { ELayout::bayerGB, EPacking::gevPacked, 10 }; return true;
    case P::BayerBG10Packed: f = { ELayout::bayerBG, EPacking::gevPacked, 10 }; return true;
    case P::BayerGR12Packed: f = { ELayout::bayerGR, EPacking::gevPacked, 12 }; return true;
    case P::BayerRG12Packed: f = { ELayout::bayerRG, EPacking::gevPacked, 12 }; return true;
    case P::BayerGB12Packed: f = { ELayout::bayerGB, EPacking::gevPacked, 12 }; return true;
    case P::BayerBG12Packed: f = { ELayout::bayerBG, EPacking::gevPacked, 12 }; return true;
    case P::BayerGR10p: f = { ELayout::bayerGR, EPacking::lsbPacked, 10 }; return true;
    case P::BayerRG10p: f = { ELayout::bayerRG, EPacking::lsbPacked, 10 }; return true;
    case P::BayerGB10p: f = { ELayout::bayerGB, EPacking::lsbPacked, 10 }; return true;
    case P::BayerBG10p: f = { ELayout::bayerBG, EPacking::lsbPacked, 10 }; return true;
    case P::BayerGR12p: f = { ELayout::bayerGR, EPacking::lsbPacked, 12 }; return true;
    case P::BayerRG12p: f = { ELayout::bayerRG, EPacking::lsbPacked, 12 }; return true;
    case P::BayerGB12p: f = { ELayout::bayerGB, EPacking::lsbPacked, 12 }; return true;
    case P::BayerBG12p: f = { ELayout::bayerBG, EPacking::lsbPacked, 12 }; return true;

    case P::RGB8: f = { ELayout::rgb, EPacking::plain8, 8 }; return true;
    case P::BGR8: f = { ELayout::bgr, EPacking::plain8, 8 }; return true;
    case P::RGBa8: f = { ELayout::rgba, EPacking::plain8, 8 }; return true;
    case P::BGRa8: f = { ELayout::bgra, EPacking::plain8, 8 }; return true;
    case P::YUV422_8: f = { ELayout::yuyv, EPacking::plain8, 8 }; return true;
    case P::YUV422_8_UYVY: f = { ELayout::uyvy, EPacking::plain8, 8 }; return true;
    default: return false;
    }
}

bool isBayer(ELayout l)
{
    return l == ELayout::bayerRG || l == ELayout::bayerGR || l == ELayout::bayerGB
        || l == ELayout::bayerBG;
}

int bytesPerPlainPixel(ELayout l)
{
    switch (l) {
    case ELayout::rgb:
    case ELayout::bgr: return 3;
    case ELayout::rgba:
    case ELayout::bgra: return 4;
    case ELayout::yuyv:
    case ELayout::uyvy: return 2;
    default: return 1;
    }
}

// Bytes that n pixels of a format take.
size_t bytesFor(const SFormat& f, size_t n)
{
    switch (f.packing) {
    case EPacking::plain8: return n * size_t(bytesPerPlainPixel(f.layout));
    case EPacking::wide16: return n * 2;
    case EPacking::gevPacked: return detail::gevPackedBytes(n);
    case EPacking::lsbPacked: return detail::lsbPackedBytes(n, f.bits);
    }
    return 0;
}

// OpenCV names a Bayer pattern after the 2x2 block that starts at the second
// row and second column, so GenICam's BayerRG (R G / G B from the top-left)
// is OpenCV's BG, and so on.
int demosaicCode(ELayout l, EBayerDemosaic d)
{
    static const int codes[4][3] = {
        { cv::COLOR_BayerBG2BGR, cv::COLOR_BayerBG2BGR_EA, cv::COLOR_BayerBG2BGR_VNG },   // RG
        { cv::COLOR_BayerGB2BGR, cv::COLOR_BayerGB2BGR_EA, cv::COLOR_BayerGB2BGR_VNG },   // GR
        { cv::COLOR_BayerGR2BGR, cv::COLOR_BayerGR2BGR_EA, cv::COLOR_BayerGR2BGR_VNG },   // GB
        { cv::COLOR_BayerRG2BGR, cv::COLOR_BayerRG2BGR_EA, cv::COLOR_BayerRG2BGR_VNG },   // BG
    };
    int row = 0;
    switch (l) {
    case ELayout::bayerRG: row = 0; break;
    case ELayout::bayerGR: row = 1; break;
    case ELayout::bayerGB: row = 2; break;
    default: row = 3; break;
    }
    int col = 0;
    if (d == bayerEdgeAware)
        col = 1;
    else if (d == bayerVariableNumberOfGradients)
        col = 2;
    return codes[row][col];
}

// Unpacks n pixels of a wide or packed format into 8-bit samples.
void unpackRun(const SFormat& f, const uint8_t* src, size_t n, uint8_t* dst)
{
    switch (f.packing) {
    case EPacking::wide16: detail::unpackWide16(src, n, f.bits - 8, dst); break;
    case EPacking::gevPacked: detail::unpackGevPacked(src, n, dst); break;
    case EPacking::lsbPacked:
        if (f.bits == 10)
            detail::unpack10p(src, n, dst);
        else
            detail::unpack12p(src, n, dst);
        break;
    case EPacking::plain8: std::memcpy(dst, src, n); break;
    }
}

// Where the pixels of a non-JPEG frame lie in its raw data.
struct SLayout
{
    SFormat format;
    size_t width = 0, height = 0;
    size_t lineBytes = 0;   // bytes of one line's pixels
    size_t stride = 0;      // line bytes plus padding
    bool continuous = true; // no padding: lines follow directly (packed: even within a byte)
};

// True when the format is known and the raw data holds the whole image.
bool checkLayout(const SFrameInfo& info, size_t rawSize, SLayout& l)
{
    if (rawSize == 0 || !lookupFormat(info.pixelFormat, l.format))
        return false;
    const size_t w = info.width, h = info.height;
    if (w == 0 || h == 0 || w > size_t(INT_MAX / 4) || h > size_t(INT_MAX))
        return false;
    const size_t outBytes = w * h * 3;
    if (outBytes / 3 / w != h || outBytes > size_t(INT_MAX))
        return false;
    if ((l.format.layout == ELayout::yuyv || l.format.layout == ELayout::uyvy) && (w & 1))
        return false;   // 4:2:2 shares chroma between pixel pairs

    // Without line padding the lines follow each other directly (for the
    // packed formats even within a byte); with padding each line starts
    // on its own byte after the padding of the previous one.
    const size_t pad = info.paddingX;
    l.width = w;
    l.height = h;
    l.lineBytes = bytesFor(l.format, w);
    l.continuous = pad == 0;
    l.stride = l.lineBytes + pad;
    const size_t needed = l.continuous ? bytesFor(l.format, w * h) : (h - 1) * l.stride + l.lineBytes;
    return rawSize >= needed;
}

} // namespace

CQtHybridFrame::CQtHybridFrame(const SFrameInfo& info)
    : m_info(info)
{
    m_info.rawData = nullptr;
    if (info.rawData && info.imageSize > 0 && info.imageSize <= uint64_t(INT_MAX)) {
        try {
            m_raw = CRawBufferPool::instance().acquire(size_t(info.imageSize));
            if (m_raw) {
                std::memcpy(m_raw->data(), info.rawData, size_t(info.imageSize));
                m_info.rawData = m_raw->data();
            } else {
                m_info.imageSize = 0;   // the pool is shut down
            }
        } catch (...) {
            m_raw.reset();
            m_info.imageSize = 0;
        }
    } else {
        m_info.imageSize = 0;
    }
    SLayout layout;
    m_layoutValid = m_info.payloadType != payloadTypeJpeg && checkLayout(m_info, getRawDataSize(), layout);
}

CQtHybridFrame::~CQtHybridFrame() = default;

bool CQtHybridFrame::isSupportedPixelFormat(uint32_t pixelFormat, int payloadType)
{
    if (payloadType == payloadTypeJpeg)
        return true;
    SFormat f;
    return lookupFormat(pixelFormat, f);
}

void CQtHybridFrame::ensureConverted() const
{
    if (m_convertDone.load(std::memory_order_acquire))
        return;
    std::call_once(m_convertOnce, [this] {
        convert();
        m_convertDone.store(true, std::memory_order_release);
    });
}

bool CQtHybridFrame::isConverted() const
{
    return m_convertDone.load(std::memory_order_acquire);
}

void CQtHybridFrame::convert() const
{
    m_valid = false;
    m_convertedWidth = 0;
    m_convertedHeight = 0;
    m_converted.clear();

    const uint8_t* raw = getRawData();
    const size_t rawSize = size_t(getRawDataSize());
    if (rawSize == 0)
        return;

    try {
        if (m_info.payloadType == payloadTypeJpeg) {
            cv::Mat decoded = cv::imdecode(cv::Mat(1, int(rawSize), CV_8UC1, const_cast<uint8_t*>(raw)),
                                           cv::IMREAD_COLOR);
            if (decoded.empty() || decoded.type() != CV_8UC3)
                return;
            const size_t lineBytes = size_t(decoded.cols) * 3;
            const size_t total = lineBytes * size_t(decoded.rows);
            if (total > size_t(INT_MAX))
                return;
            m_converted = QByteArray(int(total), Qt::Uninitialized);
            char* out = m_converted.data();
            for (int y = 0; y < decoded.rows; ++y)
                std::memcpy(out + size_t(y) * lineBytes, decoded.ptr(y), lineBytes);
            m_convertedWidth = uint32_t(decoded.cols);
            m_convertedHeight = uint32_t(decoded.rows);
            m_valid = true;
            return;
        }

        SLayout layout;
        if (!m_layoutValid || !checkLayout(m_info, rawSize, layout))
            return;
        const SFormat& f = layout.format;
        const size_t w = layout.width, h = layout.height;
        const size_t outBytes = w * h * 3;
        const bool continuous = layout.continuous;
        const size_t stride = layout.stride;

        m_converted = QByteArray(int(outBytes), Qt::Uninitialized);
        uint8_t* out = reinterpret_cast<uint8_t*>(m_converted.data());
        cv::Mat dst(int(h), int(w), CV_8UC3, out);

        if (f.layout == ELayout::yuyv || f.layout == ELayout::uyvy) {
            const bool uyvy = f.layout == ELayout::uyvy;
            for (size_t y = 0; y < h; ++y)
                detail::yuv422ToBgr(raw + y * stride, w, uyvy, out + y * w * 3);
        } else if (f.layout == ELayout::rgb || f.layout == ELayout::bgr
                   || f.layout == ELayout::rgba || f.layout == ELayout::bgra) {
            const int type = bytesPerPlainPixel(f.layout) == 3 ? CV_8UC3 : CV_8UC4;
            cv::Mat src(int(h), int(w), type, const_cast<uint8_t*>(raw), stride);
            switch (f.layout) {
            case ELayout::rgb: cv::cvtColor(src, dst, cv::COLOR_RGB2BGR); break;
            case ELayout::rgba: cv::cvtColor(src, dst, cv::COLOR_RGBA2BGR); break;
            case ELayout::bgra: cv::cvtColor(src, dst, cv::COLOR_BGRA2BGR); break;
            default: src.copyTo(dst); break;
            }
        } else {
            // Mono and Bayer: one 8-bit sample per pixel, then to BGR.
            cv::Mat plane;
            if (f.packing == EPacking::plain8) {
                plane = cv::Mat(int(h), int(w), CV_8UC1, const_cast<uint8_t*>(raw), stride);
            } else {
                plane.create(int(h), int(w), CV_8UC1);
                if (continuous) {
                    unpackRun(f, raw, w * h, plane.data);
                } else {
                    for (size_t y = 0; y < h; ++y)
                        unpackRun(f, raw + y * stride, w, plane.ptr(int(y)));
                }
            }
            if (isBayer(f.layout))
                cv::cvtColor(plane, dst, demosaicCode(f.layout, m_info.demosaic));
            else
                cv::cvtColor(plane, dst, cv::COLOR_GRAY2BGR);
        }

        // OpenCV writes into our buffer as long as size and type match; copy
        // should it ever have allocated its own.
        if (dst.data != out) {
            if (dst.rows != int(h) || dst.cols != int(w) || dst.type() != CV_8UC3) {
                m_converted.clear();
                return;
            }
            for (size_t y = 0; y < h; ++y)
                std::memcpy(out + y * w * 3, dst.ptr(int(y)), w * 3);
        }
        m_convertedWidth = uint32_t(w);
        m_convertedHeight = uint32_t(h);
        m_valid = true;
    } catch (...) {
        // OpenCV reports bad input by exception and allocation may fail: the
        // frame is then simply not valid.
        m_converted.clear();
        m_convertedWidth = 0;
        m_convertedHeight = 0;
        m_valid = false;
    }
}

bool CQtHybridFrame::isHybridFrameValid() const
{
    if (m_info.payloadType != payloadTypeJpeg)
        return m_layoutValid;
    ensureConverted();
    return m_valid;
}

const unsigned char* CQtHybridFrame::getConvertedData() const
{
    ensureConverted();
    return m_valid ? reinterpret_cast<const unsigned char*>(m_converted.constData()) : nullptr;
}

uint64_t CQtHybridFrame::getConvertedDataSize() const
{
    ensureConverted();
    return m_valid ? uint64_t(m_converted.size()) : 0;
}

uint32_t CQtHybridFrame::getConvertedWidth() const
{
    ensureConverted();
    return m_convertedWidth;
}

uint32_t CQtHybridFrame::getConvertedHeight() const
{
    ensureConverted();
    return m_convertedHeight;
}

EConvertedPixelType CQtHybridFrame::getConvertedPixelType() const
{
    ensureConverted();
    return m_valid ? convertedBGR24 : convertedNone;
}

const unsigned char* CQtHybridFrame::getRawData() const
{
    return m_raw ? m_raw->data() : nullptr;
}

uint64_t CQtHybridFrame::getRawDataSize() const
{
    return m_raw ? uint64_t(m_raw->size()) : 0;
}

uint64_t CQtHybridFrame::getBlockId() const { return m_info.blockId; }
uint32_t CQtHybridFrame::getPixelFormat() const { return m_info.pixelFormat; }
uint32_t CQtHybridFrame::getWidth() const { return m_info.width; }
uint32_t CQtHybridFrame::getHeight() const { return m_info.height; }
uint32_t CQtHybridFrame::getPaddingX() const { return m_info.paddingX; }
uint32_t CQtHybridFrame::getPaddingY() const { return m_info.paddingY; }
int CQtHybridFrame::getPayloadType() const { return m_info.payloadType; }
EBayerDemosaic CQtHybridFrame::getDemosaic() const { return m_info.demosaic; }
void CQtHybridFrame::setChunkData(const char* text)
{
    if (text)
        m_chunk = QByteArray(text);
    else
        m_chunk.clear();
}

const char* CQtHybridFrame::getChunkData() const
{
    return m_chunk.constData();
}

} // namespace Gliv
