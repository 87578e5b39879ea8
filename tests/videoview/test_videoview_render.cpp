// Rendering of frames for display: the reduced-size Bayer and Mono output
// against references computed here, the view geometry, the pixel probe, the
// one-slot mailbox and the reuse of picture buffers.
#include <QtTest>
#include <set>
#include <thread>
#include <vector>

#include "Gliv/CDisplayGeometry.h"
#include "Gliv/CDisplayPipeline.h"
#include "Gliv/CDisplayRenderer.h"
#include "Gliv/CFrameMailbox.h"
#include "Gliv/CQtDisplayWndEx.h"
#include "Gliv/PixelFormats.h"

using namespace Gliv;

namespace {

// Deterministic pixel values that differ from pixel to pixel.
std::vector<uint8_t> pattern(int stride, int height, uint32_t seed = 12345)
{
    std::vector<uint8_t> v(size_t(stride) * height);
    for (uint8_t& b : v) {
        seed = seed * 1103515245u + 12345u;
        b = uint8_t(seed >> 16);
    }
    return v;
}

CQtHybridFramePtr makeFrame(uint32_t pf, int w, int h, const std::vector<uint8_t>& raw, uint32_t paddingX = 0)
{
    SFrameInfo info;
    info.width = uint32_t(w);
    info.height = uint32_t(h);
    info.widthReg = w;
    info.heightReg = h;
    info.pixelFormat = pf;
    info.paddingX = paddingX;
    info.imageSize = raw.size();
    info.rawData = raw.data();
    return CQtHybridFramePtr(new CQtHybridFrame(info));
}

// Half-size colour of the 2x2 cell at (cx, cy) of an RGGB image.
void cellRGB(const std::vector<uint8_t>& raw, int stride, int cx, int cy, int& r, int& g, int& b)
{
    const uint8_t* p = raw.data() + size_t(2 * cy) * stride + 2 * cx;
    r = p[0];
    g = (p[1] + p[stride] + 1) >> 1;
    b = p[stride + 1];
}

bool near(int a, int b, int tolerance = 1)
{
    return std::abs(a - b) <= tolerance;
}

QString rgbText(QRgb c)
{
    return QString("(%1,%2,%3)").arg(qRed(c)).arg(qGreen(c)).arg(qBlue(c));
}

} // namespace

class TestVideoviewRender : public QObject
{
    Q_OBJECT
private slots:
    void bayerAtReducedSizeMatchesReference();
    void bayerPatternsPutColoursInPlace();
    void monoAtReducedSizeAndZoomedIn();
    void otherFormatsUseTheFullConversion();
    void paddedLinesAreSkipped();
    void geometryOfFitAndZoom();
    void pixelProbeReadsRawValues();
    void mailboxKeepsOnlyTheNewestPicture();
    void pipelineReusesItsBuffersAndNotifiesOnce();
    void widgetPaintsFramesFromAnotherThread();
};

void TestVideoviewRender::bayerAtReducedSizeMatchesReference()
{
    const int w = 64, h = 32;
    const std::vector<uint8_t> raw = pattern(w, h);
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::BayerRG8, w, h, raw);
    CDisplayRenderer renderer;
    QImage out;

    // A quarter of the size: each output pixel averages 2x2 half-size cells.
    QVERIFY(renderer.render(*frame, { QRect(0, 0, w, h), QSize(16, 8), bayerBilinear }, out));
    QCOMPARE(out.size(), QSize(16, 8));
    QCOMPARE(out.format(), QImage::Format_RGB32);
    for (int oy = 0; oy < 8; ++oy)
        for (int ox = 0; ox < 16; ++ox) {
            int sr = 0, sg = 0, sb = 0;
            for (int dy = 0; dy < 2; ++dy)
                for (int dx = 0; dx < 2; ++dx) {
                    int r, g, b;
                    cellRGB(raw, w, 2 * ox + dx, 2 * oy + dy, r, g, b);
                    sr += r;
                    sg += g;
                    sb += b;
                }
            const QRgb px = out.pixel(ox, oy);
            QVERIFY2(near(qRed(px), (sr + 2) / 4) && near(qGreen(px), (sg + 2) / 4) && near(qBlue(px), (sb + 2) / 4),
                     qPrintable(QString("pixel %1,%2 is %3").arg(ox).arg(oy).arg(rgbText(px))));
        }

    // The frame's own full conversion is never needed for it.
    QVERIFY(!frame->isConverted());

    // Exactly half size: the half-size demosaic itself.
    QVERIFY(renderer.render(*frame, { QRect(0, 0, w, h), QSize(32, 16), bayerBilinear }, out));
    for (int cy = 0; cy < 16; ++cy)
        for (int cx = 0; cx < 32; ++cx) {
            int r, g, b;
            cellRGB(raw, w, cx, cy, r, g, b);
            QCOMPARE(out.pixel(cx, cy), qRgb(r, g, b));
        }

    // A region whose left edge is odd starts on the cell that holds it.
    QVERIFY(renderer.render(*frame, { QRect(17, 8, 32, 16), QSize(16, 8), bayerBilinear }, out));
    int r, g, b;
    cellRGB(raw, w, 8, 4, r, g, b);
    QCOMPARE(out.pixel(0, 0), qRgb(r, g, b));

    // Shown larger than half size: a full demosaic, still the right size.
    QVERIFY(renderer.render(*frame, { QRect(0, 0, w, h), QSize(128, 64), bayerEdgeAware }, out));
    QCOMPARE(out.size(), QSize(128, 64));

    // Nothing to show.
    QVERIFY(!renderer.render(*frame, { QRect(100, 100, 10, 10), QSize(16, 8), bayerBilinear }, out));
    QVERIFY(!renderer.render(*frame, { QRect(0, 0, w, h), QSize(0, 8), bayerBilinear }, out));
    const std::vector<uint8_t> shortRaw(100, 0);
    QVERIFY(!renderer.render(*makeFrame(PixelFormat::BayerRG8, w, h, shortRaw), { QRect(0, 0, w, h), QSize(16, 8) },
                             out));
}

void TestVideoviewRender::bayerPatternsPutColoursInPlace()
{
    // Red sites 200, green 100, blue 30, whatever corner red sits in.
    struct SCase
    {
        uint32_t pf;
        int red, blue;   // index in the 2x2 cell
    };
    const SCase cases[] = { { PixelFormat::BayerRG8, 0, 3 }, { PixelFormat::BayerGR8, 1, 2 },
                            { PixelFormat::BayerGB8, 2, 1 }, { PixelFormat::BayerBG8, 3, 0 } };
    for (const SCase& c : cases) {
        const int w = 16, h = 8;
        std::vector<uint8_t> raw(size_t(w) * h);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                const int site = (y % 2) * 2 + (x % 2);
                raw[size_t(y) * w + x] = site == c.red ? 200 : site == c.blue ? 30 : 100;
            }
        CDisplayRenderer renderer;
        QImage out;
        QVERIFY(renderer.render(*makeFrame(c.pf, w, h, raw), { QRect(0, 0, w, h), QSize(4, 2) }, out));
        QVERIFY2(out.pixel(1, 1) == qRgb(200, 100, 30), qPrintable(rgbText(out.pixel(1, 1))));
        QVERIFY(renderer.render(*makeFrame(c.pf, w, h, raw), { QRect(0, 0, w, h), QSize(16, 8) }, out));
        QVERIFY2(near(qRed(out.pixel(5, 3)), 200, 2) && near(qGreen(out.pixel(5, 3)), 100, 2)
                     && near(qBlue(out.pixel(5, 3)), 30, 2),
                 qPrintable(rgbText(out.pixel(5, 3))));
    }
}

void TestVideoviewRender::monoAtReducedSizeAndZoomedIn()
{
    const int w = 64, h = 32;
    const std::vector<uint8_t> raw = pattern(w, h, 777);
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::Mono8, w, h, raw);
    CDisplayRenderer renderer;
    QImage out;
    QVERIFY(renderer.render(*frame, { QRect(0, 0, w, h), QSize(16, 8) }, out));
    for (int oy = 0; oy < 8; ++oy)
        for (int ox = 0; ox < 16; ++ox) {
            int sum = 0;
            for (int dy = 0; dy < 4; ++dy)
                for (int dx = 0; dx < 4; ++dx)
                    sum += raw[size_t(4 * oy + dy) * w + 4 * ox + dx];
            const QRgb px = out.pixel(ox, oy);
            QVERIFY2(near(qRed(px), (sum + 8) / 16) && qRed(px) == qGreen(px) && qGreen(px) == qBlue(px),
                     qPrintable(QString("pixel %1,%2 is %3").arg(ox).arg(oy).arg(rgbText(px))));
        }
    QVERIFY(!frame->isConverted());
    // Four times zoomed into a region: every image pixel becomes a 4x4 block.
    QVERIFY(renderer.render(*frame, { QRect(10, 6, 8, 4), QSize(32, 16) }, out));
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 32; ++x)
            QCOMPARE(qRed(out.pixel(x, y)), int(raw[size_t(6 + y / 4) * w + 10 + x / 4]));
}

void TestVideoviewRender::otherFormatsUseTheFullConversion()
{
    // RGB8: the frame's own conversion, then the same scaling.
    std::vector<uint8_t> rgb;
    for (int i = 0; i < 16 * 8; ++i) {
        rgb.push_back(250);
        rgb.push_back(uint8_t(i));
        rgb.push_back(5);
    }
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::RGB8, 16, 8, rgb);
    CDisplayRenderer renderer;
    QImage out;
    QVERIFY(renderer.render(*frame, { QRect(0, 0, 16, 8), QSize(16, 8) }, out) && frame->isConverted());
    QCOMPARE(out.pixel(3, 1), qRgb(250, 19, 5));
    QVERIFY(renderer.render(*frame, { QRect(0, 0, 16, 8), QSize(4, 2) }, out));
    QCOMPARE(qRed(out.pixel(0, 0)), 250);
    QCOMPARE(qBlue(out.pixel(0, 0)), 5);
    // A format nobody converts shows nothing.
    const CQtHybridFramePtr unknown = makeFrame(0x12345678, 16, 8, rgb);
    QVERIFY(!renderer.render(*unknown, { QRect(0, 0, 16, 8), QSize(4, 2) }, out));
}

void TestVideoviewRender::paddedLinesAreSkipped()
{
    const int w = 16, h = 4, pad = 4;
    std::vector<uint8_t> raw(size_t(w + pad) * h, 255);   // padding is white
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            raw[size_t(y) * (w + pad) + x] = uint8_t(x * 10 + y);
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::Mono8, w, h, raw, pad);
    QCOMPARE(CDisplayRenderer::rawStride(*frame, 1), w + pad);
    CDisplayRenderer renderer;
    QImage out;
    QVERIFY(renderer.render(*frame, { QRect(0, 0, w, h), QSize(w, h) }, out));
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            QCOMPARE(qRed(out.pixel(x, y)), x * 10 + y);
}

void TestVideoviewRender::geometryOfFitAndZoom()
{
    QRect source;
    QRectF dest;
    SViewState fit;
    fit.viewSize = QSize(480, 300);
    QVERIFY(CDisplayGeometry::compute(fit, QSize(1920, 1080), source, dest));
    QCOMPARE(source, QRect(0, 0, 1920, 1080));
    QCOMPARE(dest, QRectF(0, 15, 480, 270));   // letterboxed, centred

    SViewState zoom;
    zoom.viewSize = QSize(480, 270);
    zoom.fit = false;
    zoom.zoom = 1.0;
    QVERIFY(CDisplayGeometry::compute(zoom, QSize(1920, 1080), source, dest));
    // The region starts on an even line: one line above the exact centre.
    QCOMPARE(source, QRect(720, 404, 480, 271));
    QCOMPARE(dest.topLeft(), QPointF(0, -1));
    QCOMPARE(dest.size(), QSizeF(480, 271));

    // Centred near a corner: the region stops at the image's edge.
    zoom.zoom = 2.0;
    zoom.center = QPointF(10, 10);
    QVERIFY(CDisplayGeometry::compute(zoom, QSize(1920, 1080), source, dest));
    QCOMPARE(source.topLeft(), QPoint(0, 0));
    QCOMPARE(dest.topLeft(), QPointF(220, 115));

    SViewState empty;
    QVERIFY(!CDisplayGeometry::compute(empty, QSize(1920, 1080), source, dest));
    QVERIFY(!CDisplayGeometry::compute(fit, QSize(), source, dest));

    // The picture maps view points back to the image pixels it shows.
    SDisplayedImage item;
    item.source = QRect(100, 50, 200, 100);
    item.dest = QRectF(10, 20, 400, 200);
    QCOMPARE(item.toImage(QPointF(10, 20)), QPointF(100, 50));
    QCOMPARE(item.toImage(QPointF(410, 220)), QPointF(300, 150));
    QCOMPARE(item.toView(QPointF(200, 100)), QPointF(210, 120));
}

void TestVideoviewRender::pixelProbeReadsRawValues()
{
    QString raw;
    QRgb rgb = 0;
    bool rgbValid = false;
    std::vector<uint8_t> mono = { 0, 10, 20, 30, 40, 50, 60, 70 };
    const CQtHybridFramePtr m = makeFrame(PixelFormat::Mono8, 4, 2, mono);
    QVERIFY(CDisplayRenderer::probePixel(*m, 2, 1, raw, rgb, rgbValid));
    QCOMPARE(raw, QString("60"));
    QVERIFY(rgbValid);
    QCOMPARE(rgb, qRgb(60, 60, 60));
    QVERIFY(!CDisplayRenderer::probePixel(*m, 4, 0, raw, rgb, rgbValid));
    QVERIFY(!CDisplayRenderer::probePixel(*m, -1, 0, raw, rgb, rgbValid));

    // Bayer: the sample itself and the colour of its cell.
    std::vector<uint8_t> bayer = { 200, 90, 7, 7, 110, 30, 7, 7 };
    const CQtHybridFramePtr b = makeFrame(PixelFormat::BayerRG8, 4, 2, bayer);
    QVERIFY(CDisplayRenderer::probePixel(*b, 1, 1, raw, rgb, rgbValid));
    QCOMPARE(raw, QString("30"));
    QCOMPARE(rgb, qRgb(200, 100, 30));

    // 16-bit words.
    std::vector<uint8_t> wide = { 0x00, 0x00, 0xff, 0x03 };
    const CQtHybridFramePtr m10 = makeFrame(PixelFormat::Mono10, 2, 1, wide);
    QVERIFY(CDisplayRenderer::probePixel(*m10, 1, 0, raw, rgb, rgbValid));
    QCOMPARE(raw, QString("1023"));
    QCOMPARE(rgb, qRgb(255, 255, 255));
}

void TestVideoviewRender::mailboxKeepsOnlyTheNewestPicture()
{
    CFrameMailbox box;
    SDisplayedImage out;
    QVERIFY(!box.take(out));
    SDisplayedImage a;
    a.serial = 1;
    SDisplayedImage b;
    b.serial = 2;
    SDisplayedImage c;
    c.serial = 3;
    QVERIFY(box.post(a));    // empty before: one update is requested
    QVERIFY(!box.post(b));   // replaces a, no second request
    QVERIFY(box.hasPending());
    QCOMPARE(box.replacedCount(), quint64(1));
    QVERIFY(box.take(out));
    QCOMPARE(out.serial, quint64(2));
    QVERIFY(!box.take(out) && box.post(c));
    box.clear();
    QVERIFY(!box.hasPending());
}

void TestVideoviewRender::pipelineReusesItsBuffersAndNotifiesOnce()
{
    CDisplayPipeline pipeline;
    SViewState state;
    state.viewSize = QSize(32, 16);
    pipeline.setViewState(state);
    int notified = 0;
    pipeline.setNotifier([&notified]() { ++notified; });
    const std::vector<uint8_t> raw = pattern(128, 64);
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::BayerRG8, 128, 64, raw);

    // A slow GUI: three frames arrive before one is taken.
    QVERIFY(pipeline.submit(frame) && pipeline.submit(frame) && pipeline.submit(frame));
    QCOMPARE(notified, 1);
    QCOMPARE(pipeline.mailbox().replacedCount(), quint64(2));
    SDisplayedImage painted;
    QVERIFY(pipeline.take(painted));
    QCOMPARE(painted.serial, quint64(3));
    QCOMPARE(painted.image.size(), QSize(32, 16));
    QVERIFY(painted.frame == frame);

    // Steady state: the pictures cycle through the same few buffers.
    std::set<const uchar*> buffers;
    for (int i = 0; i < 30; ++i) {
        QVERIFY(pipeline.submit(frame));
        if (i % 3 != 0) {   // now and then a frame is replaced before painting
            SDisplayedImage next;
            QVERIFY(pipeline.take(next));
            painted = next;   // the previous picture is released here
            buffers.insert(painted.image.constBits());
        }
    }
    QVERIFY2(buffers.size() <= 3, qPrintable(QString::number(buffers.size())));
    QCOMPARE(pipeline.offeredCount(), quint64(33));

    // No notifier: nothing is called any more.
    pipeline.setNotifier(nullptr);
    SDisplayedImage drain;
    pipeline.take(drain);
    QVERIFY(pipeline.submit(frame) && !pipeline.submit(CQtHybridFramePtr()));
    pipeline.clear();
    QVERIFY(!pipeline.lastFrame() && !pipeline.mailbox().hasPending());
}

void TestVideoviewRender::widgetPaintsFramesFromAnotherThread()
{
    CQtDisplayWndEx wnd;
    wnd.resize(200, 100);
    wnd.show();
    QVERIFY(QTest::qWaitForWindowExposed(&wnd));
    const std::vector<uint8_t> raw = pattern(400, 200);
    const CQtHybridFramePtr frame = makeFrame(PixelFormat::Mono8, 400, 200, raw);
    std::thread producer([&]() {
        for (int i = 0; i < 5; ++i)
            wnd.displayImage(frame);
    });
    producer.join();
    QTRY_VERIFY(wnd.paintedFrameCount() >= 1);
    QCOMPARE(wnd.currentImage().size(), QSize(200, 100));
    QCOMPARE(wnd.imageSize(), QSize(400, 200));
    QCOMPARE(wnd.toImage(QPointF(100, 50)), QPointF(200, 100));

    // Zooming renders the last frame again, off the GUI thread.
    const quint64 before = wnd.paintedFrameCount();
    wnd.zoom100();
    QTRY_VERIFY(wnd.paintedFrameCount() > before);
    QVERIFY(!wnd.isFitMode());
    QCOMPARE(wnd.currentScale(), 1.0);
    QCOMPARE(wnd.toImage(QPointF(100, 50)), QPointF(200, 100));
    wnd.zoomIn();
    QCOMPARE(wnd.currentScale(), 1.25);
    wnd.zoomFit();
    QTRY_COMPARE(wnd.toView(QPointF(100, 50)), QPointF(50, 25));

    // Overlays in image coordinates land on the right view pixels.
    wnd.drawFrameRectOverlay(100, 50, 200, 100, Qt::green);
    const QImage shot = wnd.grab().toImage();
    int green = 0;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            green += shot.pixel(50 + dx, 25 + dy) == qRgb(0, 255, 0) ? 1 : 0;
    QVERIFY2(green > 0, "no rectangle at the corner (100, 50) of the image");
    QVERIFY(shot.pixel(100, 50) != qRgb(0, 255, 0));
    wnd.clearDispWnd();
    QVERIFY(!wnd.currentFrame());
}

QTEST_MAIN(TestVideoviewRender)
#include "test_videoview_render.moc"
