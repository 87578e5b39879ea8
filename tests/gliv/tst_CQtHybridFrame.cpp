// Conversion of camera pixel formats to 24-bit BGR by Gliv::CQtHybridFrame.
// Reference pixels are computed here from hand-built frames.
#include "Gliv/CQtHybridFrame.h"
#include "Gliv/PixelFormats.h"

#include <opencv2/core.hpp>
#include <opencv2/imgcodecs.hpp>

#include <QtTest>

#include <atomic>
#include <cmath>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

using namespace Gliv;
namespace PF = Gliv::PixelFormat;

namespace {

using Bytes = std::vector<uint8_t>;
using Ints = std::vector<int>;
using FramePtr = std::unique_ptr<CQtHybridFrame>;
struct Bgr { int b, g, r; };

FramePtr makeFrame(uint32_t pf, uint32_t w, uint32_t h, const Bytes& data, uint32_t paddingX = 0,
                   EBayerDemosaic demosaic = bayerBilinear, int payloadType = 1)
{
    SFrameInfo info;
    info.blockId = 42;
    info.width = w;
    info.height = h;
    info.paddingX = paddingX;
    info.pixelFormat = pf;
    info.payloadType = payloadType;
    info.imageSize = data.size();
    info.rawData = data.empty() ? nullptr : data.data();
    info.demosaic = demosaic;
    return FramePtr(new CQtHybridFrame(info));
}

Bgr pixelAt(const CQtHybridFrame& f, int x, int y)
{
    const unsigned char* p = f.getConvertedData() + (size_t(y) * f.getConvertedWidth() + x) * 3;
    return { p[0], p[1], p[2] };
}

bool near(const Bgr& a, const Bgr& b, int tol)
{
    return std::abs(a.b - b.b) <= tol && std::abs(a.g - b.g) <= tol && std::abs(a.r - b.r) <= tol;
}

QString str(const Bgr& p)
{
    return QString("B%1 G%2 R%3").arg(p.b).arg(p.g).arg(p.r);
}

// Appends `pad` filler bytes after each line of `lineBytes`.
Bytes withPadding(const Bytes& in, size_t lineBytes, size_t pad)
{
    Bytes out;
    for (size_t off = 0; off < in.size(); off += lineBytes) {
        out.insert(out.end(), in.begin() + off, in.begin() + off + lineBytes);
        out.insert(out.end(), pad, 0xEE);
    }
    return out;
}

Bytes packLe16(const Ints& v)
{
    Bytes out;
    for (int x : v)
        out.insert(out.end(), { uint8_t(x & 0xFF), uint8_t(x >> 8) });
    return out;
}

// GigE Vision packing: msb byte of p0, the low bits of p0 and p1 as two
// nibbles, msb byte of p1.
Bytes packGev(const Ints& v, int bits)
{
    const int low = bits - 8, mask = (1 << low) - 1;
    Bytes out;
    for (size_t i = 0; i < v.size(); i += 2) {
        const int next = i + 1 < v.size() ? v[i + 1] : -1;
        out.push_back(uint8_t(v[i] >> low));
        out.push_back(uint8_t((v[i] & mask) | (next >= 0 ? (next & mask) << 4 : 0)));
        if (next >= 0)
            out.push_back(uint8_t(next >> low));
    }
    return out;
}

// PFNC "p" packing: a bit stream, least significant bit first.
Bytes packLsb(const Ints& v, int bits)
{
    Bytes out((v.size() * bits + 7) / 8, 0);
    size_t bit = 0;
    for (int x : v)
        for (int b = 0; b < bits; ++b, ++bit)
            if (x & (1 << b))
                out[bit / 8] |= uint8_t(1 << (bit % 8));
    return out;
}

// A mosaic sampled from one colour for a GenICam pattern such as "RG" (R G / G B).
Ints mosaic(const char* pattern, int w, int h, int r, int g, int b)
{
    const char* cells = !strcmp(pattern, "RG") ? "RGGB" : !strcmp(pattern, "GR") ? "GRBG"
                      : !strcmp(pattern, "GB") ? "GBRG" : "BGGR";
    Ints v;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const char c = cells[(y % 2) * 2 + (x % 2)];
            v.push_back(c == 'R' ? r : c == 'G' ? g : b);
        }
    return v;
}

void expectInvalid(const CQtHybridFrame& f)
{
    QVERIFY(!f.isHybridFrameValid() && f.getConvertedData() == nullptr);
    QCOMPARE(f.getConvertedDataSize(), uint64_t(0));
    QCOMPARE(f.getConvertedPixelType(), convertedNone);
}

} // namespace

class TestHybridFrame : public QObject
{
    Q_OBJECT

private slots:
    void rawCopyAndMono8Padding();
    void rawBuffersReused();
    void monoWideScaledAndClamped();
    void monoPacked();
    void bayerAllPatternsAndPackings();
    void demosaicFixedAtConstruction();
    void lazyConversionOnceFromThreads();
    void colourFormats();
    void yuv422BothOrders();
    void jpegPayload();
    void invalidInputAndChunk();
};

// A stream in steady state allocates no frame-size memory: the raw buffer of
// a released frame is handed to the next frame of that size, never to one
// still held, and each frame keeps its own pixels.
void TestHybridFrame::rawBuffersReused()
{
    const uint32_t w = 96, h = 64;   // a size no other test uses
    Bytes first(w * h, 0x11), second(w * h, 0x22);
    const unsigned char* released = nullptr;
    {
        FramePtr a = makeFrame(PF::Mono8, w, h, first);
        released = a->getRawData();
    }
    FramePtr b = makeFrame(PF::Mono8, w, h, second);
    QCOMPARE(b->getRawData(), released);
    FramePtr c = makeFrame(PF::Mono8, w, h, first);
    QVERIFY(c->getRawData() != b->getRawData());
    QVERIFY(b->getRawData()[0] == 0x22 && c->getRawData()[w * h - 1] == 0x11);
}

void TestHybridFrame::rawCopyAndMono8Padding()
{
    const Bytes pixels = { 0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 255 };   // 4x3
    Bytes raw = withPadding(pixels, 4, 3);
    FramePtr f = makeFrame(PF::Mono8, 4, 3, raw, 3);
    QVERIFY(f->isHybridFrameValid());
    raw[0] = 99;   // the camera buffer is reused; the frame keeps its own copy
    QVERIFY(f->getRawDataSize() == raw.size() && f->getRawData()[0] == 0);
    QVERIFY(f->getConvertedWidth() == 4u && f->getConvertedHeight() == 3u);
    QCOMPARE(f->getConvertedDataSize(), uint64_t(4 * 3 * 3));
    QCOMPARE(f->getConvertedPixelType(), convertedBGR24);
    for (int i = 0; i < 12; ++i)
        QCOMPARE(str(pixelAt(*f, i % 4, i / 4)), str({ pixels[i], pixels[i], pixels[i] }));

    // The padding after the last line may be missing from the payload.
    raw.resize(raw.size() - 3);
    QVERIFY(makeFrame(PF::Mono8, 4, 3, raw, 3)->isHybridFrameValid());
}

void TestHybridFrame::monoWideScaledAndClamped()
{
    const std::pair<uint32_t, int> cases[] = { { PF::Mono10, 10 }, { PF::Mono12, 12 }, { PF::Mono14, 14 }, { PF::Mono16, 16 } };
    for (const auto& c : cases) {
        const int bits = c.second;
        // The last value has bits above the depth set (noise): it saturates.
        const Ints v = { 0, (1 << bits) - 1, 1 << (bits - 1), (0xAB << (bits - 8)) | 1, 0x1234 & ((1 << bits) - 1), 0x8400 };
        FramePtr f = makeFrame(c.first, 3, 2, withPadding(packLe16(v), 6, 2), 2);
        QVERIFY(f->isHybridFrameValid());
        for (int i = 0; i < 6; ++i)
            QCOMPARE(pixelAt(*f, i % 3, i / 3).g, std::min(255, v[size_t(i)] >> (bits - 8)));
    }
}

void TestHybridFrame::monoPacked()
{
    // Known bytes: Mono12Packed 0xAB1 0xCD2; Mono10Packed 0x2B7 0x1C9;
    // Mono12p 0x321 0x654; Mono10p 0x3FF 0x000 0x155 0x2AA.
    struct { uint32_t pf; Bytes raw; Ints expected; } known[] = {
        { PF::Mono12Packed, { 0xAB, 0x21, 0xCD }, { 0xAB, 0xCD } },
        { PF::Mono10Packed, { 0xAD, 0x13, 0x72 }, { 0x2B7 >> 2, 0x1C9 >> 2 } },
        { PF::Mono12p, { 0x21, 0x43, 0x65 }, { 0x32, 0x65 } },
        { PF::Mono10p, { 0xFF, 0x03, 0x50, 0x95, 0xAA }, { 0xFF, 0x00, 0x55, 0xAA } } };
    for (const auto& k : known) {
        FramePtr f = makeFrame(k.pf, uint32_t(k.expected.size()), 1, k.raw);
        QVERIFY(f->isHybridFrameValid());
        for (size_t x = 0; x < k.expected.size(); ++x)
            QCOMPARE(pixelAt(*f, int(x), 0).r, k.expected[x]);
    }

    // Widths whose lines end inside a byte: without padding the next line
    // continues in the same byte; with padding each line starts afresh.
    struct { uint32_t pf; int bits; bool gev; int width; int pad; } layouts[] = {
        { PF::Mono10Packed, 10, true, 6, 0 }, { PF::Mono12Packed, 12, true, 5, 0 },
        { PF::Mono12Packed, 12, true, 5, 2 }, { PF::Mono10p, 10, false, 6, 0 },
        { PF::Mono10p, 10, false, 7, 1 }, { PF::Mono12p, 12, false, 3, 0 }, { PF::Mono12p, 12, false, 3, 4 } };
    for (const auto& l : layouts) {
        const int h = 3;
        Ints v;
        for (int i = 0; i < l.width * h; ++i)
            v.push_back((i * 397 + 71) & ((1 << l.bits) - 1));
        Bytes raw;
        for (int y = 0; y < (l.pad ? h : 1); ++y) {
            const Ints part = l.pad ? Ints(v.begin() + y * l.width, v.begin() + (y + 1) * l.width) : v;
            const Bytes b = l.gev ? packGev(part, l.bits) : packLsb(part, l.bits);
            raw.insert(raw.end(), b.begin(), b.end());
            raw.insert(raw.end(), size_t(l.pad), 0xFF);
        }
        const QByteArray what = QString("%1 w%2 pad%3").arg(l.pf, 0, 16).arg(l.width).arg(l.pad).toLatin1();
        FramePtr f = makeFrame(l.pf, uint32_t(l.width), h, raw, uint32_t(l.pad));
        QVERIFY2(f->isHybridFrameValid(), what);
        for (int i = 0; i < l.width * h; ++i)
            QCOMPARE(pixelAt(*f, i % l.width, i / l.width).b, v[size_t(i)] >> (l.bits - 8));
        raw.resize(raw.size() - size_t(l.pad) - 1);   // one byte short of the last pixel
        expectInvalid(*makeFrame(l.pf, uint32_t(l.width), h, raw, uint32_t(l.pad)));
    }
}

void TestHybridFrame::bayerAllPatternsAndPackings()
{
    // A mosaic sampled from one colour demosaics to that colour away from the
    // border, whatever the bit depth, packing and method; a wrong pattern
    // mapping swaps or mixes the channels.
    const int w = 10, h = 8, R = 200, G = 100, B = 30;
    const struct { const char* pattern; uint32_t pf[8]; } patterns[] = {
        { "RG", { PF::BayerRG8, PF::BayerRG10, PF::BayerRG12, PF::BayerRG16, PF::BayerRG10Packed, PF::BayerRG12Packed, PF::BayerRG10p, PF::BayerRG12p } },
        { "GR", { PF::BayerGR8, PF::BayerGR10, PF::BayerGR12, PF::BayerGR16, PF::BayerGR10Packed, PF::BayerGR12Packed, PF::BayerGR10p, PF::BayerGR12p } },
        { "GB", { PF::BayerGB8, PF::BayerGB10, PF::BayerGB12, PF::BayerGB16, PF::BayerGB10Packed, PF::BayerGB12Packed, PF::BayerGB10p, PF::BayerGB12p } },
        { "BG", { PF::BayerBG8, PF::BayerBG10, PF::BayerBG12, PF::BayerBG16, PF::BayerBG10Packed, PF::BayerBG12Packed, PF::BayerBG10p, PF::BayerBG12p } } };
    for (const auto& p : patterns) {
        auto scaled = [&](int bits) { return mosaic(p.pattern, w, h, R << (bits - 8), G << (bits - 8), B << (bits - 8)); };
        const Ints m8 = mosaic(p.pattern, w, h, R, G, B);
        const Bytes raws[8] = { Bytes(m8.begin(), m8.end()), packLe16(scaled(10)), packLe16(scaled(12)), packLe16(scaled(16)),
                                packGev(scaled(10), 10), packGev(scaled(12), 12), packLsb(scaled(10), 10), packLsb(scaled(12), 12) };
        for (int k = 0; k < 8; ++k)
            for (EBayerDemosaic d : { bayerBilinear, bayerEdgeAware, bayerVariableNumberOfGradients }) {
                FramePtr f = makeFrame(p.pf[k], w, h, raws[k], 0, d);
                const QString what = QString("format %1 demosaic %2").arg(p.pf[k], 0, 16).arg(int(d));
                QVERIFY2(f->isHybridFrameValid(), qPrintable(what));
                for (int y = 2; y < h - 2; ++y)
                    for (int x = 2; x < w - 2; ++x)
                        if (!near(pixelAt(*f, x, y), { B, G, R }, 1))
                            QFAIL(qPrintable(what + QString(" (%1,%2): %3").arg(x).arg(y).arg(str(pixelAt(*f, x, y)))));
            }
    }
}

namespace {
QByteArray converted(const CQtHybridFrame& f)
{
    return QByteArray(reinterpret_cast<const char*>(f.getConvertedData()), int(f.getConvertedDataSize()));
}
} // namespace

void TestHybridFrame::demosaicFixedAtConstruction()
{
    // On a busy mosaic the three methods differ: each frame keeps the one it
    // was built with, and converts once.
    Bytes raw;
    for (uint32_t i = 0, seed = 12345; i < 16 * 12; ++i)
        raw.push_back(uint8_t((seed = seed * 1103515245u + 12345u) >> 16));
    FramePtr frames[3];
    QByteArray byMethod[3];
    for (int d = 0; d < 3; ++d) {
        frames[d] = makeFrame(PF::BayerGB8, 16, 12, raw, 0, EBayerDemosaic(d));
        QCOMPARE(frames[d]->getDemosaic(), EBayerDemosaic(d));
        QVERIFY(!frames[d]->isConverted());
        byMethod[d] = converted(*frames[d]);
        QVERIFY(frames[d]->isConverted());
    }
    QVERIFY(byMethod[0] != byMethod[1] && byMethod[0] != byMethod[2] && byMethod[1] != byMethod[2]);
    for (int d = 0; d < 3; ++d)
        QCOMPARE(converted(*frames[d]), byMethod[d]);   // asked again: the same image
    // The validity of a raw format needs no conversion.
    FramePtr padded = makeFrame(PF::Mono8, 4, 2, Bytes(2 * 6, 9), 2);
    QVERIFY(padded->isHybridFrameValid() && !padded->isConverted());
}

void TestHybridFrame::lazyConversionOnceFromThreads()
{
    // Eight threads ask a fresh frame for its image at the same moment: one
    // conversion, one buffer, the same pixels for all.
    const int w = 640, h = 480;
    Bytes raw(size_t(w) * h);
    for (size_t i = 0; i < raw.size(); ++i)
        raw[i] = uint8_t((i * 7) ^ (i >> 9));
    const QByteArray expected = converted(*makeFrame(PF::BayerRG8, w, h, raw, 0, bayerVariableNumberOfGradients));

    for (int round = 0; round < 5; ++round) {
        FramePtr f = makeFrame(PF::BayerRG8, w, h, raw, 0, bayerVariableNumberOfGradients);
        QVERIFY(!f->isConverted());
        const int n = 8;
        std::vector<const unsigned char*> seen(n, nullptr);
        std::atomic<int> ready{0};
        std::vector<std::thread> threads;
        for (int i = 0; i < n; ++i)
            threads.emplace_back([&, i] {
                ready.fetch_add(1);
                while (ready.load() < n) {
                }
                seen[i] = f->getConvertedData();
            });
        for (std::thread& t : threads)
            t.join();
        QVERIFY(f->isConverted() && seen[0] != nullptr);
        for (int i = 1; i < n; ++i)
            QCOMPARE(seen[i], seen[0]);
        QCOMPARE(converted(*f), expected);
    }
}

void TestHybridFrame::colourFormats()
{
    // 2x2 pixels given as (R, G, B), one byte of padding per line.
    const int rgb[4][3] = { { 255, 0, 0 }, { 0, 255, 0 }, { 0, 0, 255 }, { 10, 20, 30 } };
    const std::pair<uint32_t, const char*> cases[] = { { PF::RGB8, "RGB" }, { PF::BGR8, "BGR" }, { PF::RGBa8, "RGBA" }, { PF::BGRa8, "BGRA" } };
    for (const auto& c : cases) {
        Bytes raw;
        for (int i = 0; i < 4; ++i) {
            for (const char* ch = c.second; *ch; ++ch)
                raw.push_back(uint8_t(*ch == 'R' ? rgb[i][0] : *ch == 'G' ? rgb[i][1] : *ch == 'B' ? rgb[i][2] : 77));
            if (i % 2)
                raw.push_back(0xEE);
        }
        FramePtr f = makeFrame(c.first, 2, 2, raw, 1);
        QVERIFY2(f->isHybridFrameValid(), c.second);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(str(pixelAt(*f, i % 2, i / 2)), str({ rgb[i][2], rgb[i][1], rgb[i][0] }));
    }
}

void TestHybridFrame::yuv422BothOrders()
{
    // Full-range BT.601, chroma centred on 128, one U/V pair per two pixels:
    // {Y0, U, Y1, V} for a 4x2 image.
    const int pairs[4][4] = { { 128, 128, 235, 128 }, { 81, 90, 145, 240 }, { 255, 255, 0, 0 }, { 200, 60, 50, 200 } };
    auto clamp = [](double x) { return int(std::lround(std::min(255.0, std::max(0.0, x)))); };
    for (bool uyvy : { false, true })
        for (uint32_t pad : { 0u, 2u }) {
            Bytes raw;
            for (int i = 0; i < 4; ++i) {
                const int* p = pairs[i];
                if (uyvy)
                    raw.insert(raw.end(), { uint8_t(p[1]), uint8_t(p[0]), uint8_t(p[3]), uint8_t(p[2]) });
                else
                    raw.insert(raw.end(), { uint8_t(p[0]), uint8_t(p[1]), uint8_t(p[2]), uint8_t(p[3]) });
                if (i % 2)
                    raw.insert(raw.end(), pad, 0x80);
            }
            FramePtr f = makeFrame(uyvy ? PF::YUV422_8_UYVY : PF::YUV422_8, 4, 2, raw, pad);
            QVERIFY(f->isHybridFrameValid());
            for (int i = 0; i < 8; ++i) {
                const int* p = pairs[i / 2];
                const int y = p[(i % 2) * 2], u = p[1] - 128, v = p[3] - 128;
                const Bgr e = { clamp(y + 1.772 * u), clamp(y - 0.344136 * u - 0.714136 * v), clamp(y + 1.402 * v) };
                const Bgr g = pixelAt(*f, i % 4, i / 4);
                QVERIFY2(near(g, e, 2), qPrintable(QString("%1 pixel %2: %3, expected %4").arg(uyvy).arg(i).arg(str(g)).arg(str(e))));
            }
        }
    // 4:2:2 needs pixel pairs.
    expectInvalid(*makeFrame(PF::YUV422_8, 3, 1, Bytes(8, 128)));
}

void TestHybridFrame::jpegPayload()
{
    cv::Mat img(16, 32, CV_8UC3);
    img(cv::Rect(0, 0, 16, 16)).setTo(cv::Scalar(20, 140, 230));   // BGR
    img(cv::Rect(16, 0, 16, 16)).setTo(cv::Scalar(160, 150, 10));
    std::vector<uchar> jpeg;
    QVERIFY(cv::imencode(".jpg", img, jpeg, { cv::IMWRITE_JPEG_QUALITY, 100 }));

    // The frame's own size and format do not matter for a JPEG payload.
    FramePtr f = makeFrame(0, 0, 0, Bytes(jpeg.begin(), jpeg.end()), 0, bayerBilinear, payloadTypeJpeg);
    QVERIFY(f->isHybridFrameValid() && f->getConvertedWidth() == 32u && f->getConvertedHeight() == 16u);
    QCOMPARE(f->getConvertedDataSize(), uint64_t(32 * 16 * 3));
    QVERIFY2(near(pixelAt(*f, 4, 8), { 20, 140, 230 }, 6), qPrintable(str(pixelAt(*f, 4, 8))));
    QVERIFY2(near(pixelAt(*f, 27, 8), { 160, 150, 10 }, 6), qPrintable(str(pixelAt(*f, 27, 8))));
    QVERIFY(CQtHybridFrame::isSupportedPixelFormat(0x12345678, payloadTypeJpeg));

    // Not a JPEG: invalid. A cut-off one: no crash, and consistent if decoded.
    expectInvalid(*makeFrame(0, 32, 16, Bytes(10, 'x'), 0, bayerBilinear, payloadTypeJpeg));
    FramePtr cut = makeFrame(0, 32, 16, Bytes(jpeg.begin(), jpeg.begin() + jpeg.size() / 3), 0, bayerBilinear, payloadTypeJpeg);
    QVERIFY(!cut->isHybridFrameValid() ||
            cut->getConvertedDataSize() == uint64_t(cut->getConvertedWidth()) * cut->getConvertedHeight() * 3);
}

void TestHybridFrame::invalidInputAndChunk()
{
    const Bytes some(64, 7);
    for (uint32_t pf : { 0u, 0xFFFFFFFFu, 0x02180020u /* YUV444 */, 0x01080002u /* Mono8s */ }) {
        QVERIFY(!CQtHybridFrame::isSupportedPixelFormat(pf));
        expectInvalid(*makeFrame(pf, 4, 4, some));
    }
    // One byte short (once padded), no width, an absurd size for a tiny payload, no data at all.
    const struct { uint32_t pf, w, h; size_t bytes; uint32_t pad; } shortOnes[] = {
        { PF::Mono8, 4, 4, 15, 0 }, { PF::RGB8, 4, 4, 47, 0 }, { PF::Mono16, 4, 4, 31, 0 },
        { PF::BayerRG8, 4, 4, 16, 1 }, { PF::Mono8, 0, 4, 64, 0 }, { PF::Mono8, 100000, 100000, 64, 0 },
        { PF::Mono8, 0xFFFFFFFFu, 0xFFFFFFFFu, 64, 0 }, { PF::BayerRG8, 4, 4, 0, 0 } };
    for (const auto& b : shortOnes)
        expectInvalid(*makeFrame(b.pf, b.w, b.h, Bytes(b.bytes, 1), b.pad));
    // Bayer frames too small to demosaic must not bring the process down.
    for (EBayerDemosaic d : { bayerBilinear, bayerEdgeAware, bayerVariableNumberOfGradients })
        makeFrame(PF::BayerRG8, 1, 1, Bytes(1, 9), 0, d)->getConvertedData();
    FramePtr bad = makeFrame(PF::BayerRG8, 4, 4, Bytes(3, 1), 0, bayerVariableNumberOfGradients);
    expectInvalid(*bad);

    // Chunk text is copied.
    char text[] = "ExposureTime=1000\n";
    bad->setChunkData(text);
    text[0] = 'X';
    QCOMPARE(QByteArray(bad->getChunkData()), QByteArray("ExposureTime=1000\n"));
    bad->setChunkData(nullptr);
    QCOMPARE(QByteArray(bad->getChunkData()), QByteArray());
}

QTEST_GUILESS_MAIN(TestHybridFrame)
#include "tst_CQtHybridFrame.moc"
