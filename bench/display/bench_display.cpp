// bench_display: cost of showing live video in the video manager.
//
// Synthetic mode (default): sixteen views in a 1600x1000 window; sixteen
// threads build 1920x1080 BayerRG8 frames from raw data at 30 frames per
// second each and hand them to their view's display exactly as the stream
// thread does. Prints the GUI-thread time per painted frame, the longest
// event-loop stall, the process' CPU seconds per second and the frames
// painted versus offered per view.
//
// Camera mode (--camera): one lumidor-simcam (1920x1080 BayerRG8, 60 fps,
// 8000-byte packets) connected through the device manager into one view of
// about 560x420. Prints CPU seconds per second of streaming, frames received
// and frames in error.
//
//   bench_display [--seconds 10] [--grab DIR]
//   bench_display --camera [--seconds 10] [--address 127.0.0.2]
//
// Run under Xvfb, inside a network namespace with loopback up for --camera.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <sys/resource.h>
#include <time.h>
#include <thread>
#include <vector>

#include "../common/BenchSimCams.h"
#include "../common/BenchStats.h"
#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CMultiVideoForm.h"
#include "CTavDevice.h"
#include "CVideoForm.h"
#include "CVideoManagerForm.h"
#include "Gliv/CDisplayRenderer.h"
#include "Gliv/CQtDisplayWndEx.h"
#include "Gliv/PixelFormats.h"

namespace {

double processCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6 + usage.ru_stime.tv_sec
           + usage.ru_stime.tv_usec / 1e6;
}

// CPU time of the calling thread; unlike wall time it does not count the
// time other processes hold the cores.
qint64 threadCpuNs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

using BenchStats::percentiles;

// Longest gap of the event loop beyond a 5 ms timer's period.
class StallMeter : public QObject
{
public:
    StallMeter()
    {
        m_timer.setInterval(5);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, this, [this]() {
            const qint64 now = m_clock.nsecsElapsed();
            if (m_last > 0)
                m_longest = std::max(m_longest, now - m_last - 5000000);
            m_last = now;
        });
        m_clock.start();
        m_timer.start();
    }
    void reset()
    {
        m_longest = 0;
        m_last = 0;
    }
    double longestMs() const { return m_longest / 1e6; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_last = 0;
    qint64 m_longest = 0;
};

struct SOptions
{
    bool camera = false;
    int seconds = 10;
    QString grabDir;
    QString address = QStringLiteral("127.0.0.2");
};

// A moving test picture: diagonal bands shifted per frame, in RGGB samples.
std::vector<uint8_t> makeBayer(int w, int h, int phase)
{
    std::vector<uint8_t> raw(size_t(w) * h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int site = (y & 1) * 2 + (x & 1);
            const int band = ((x + y + phase * 16) / 64) & 3;
            const int base = (x * 255) / w;
            int v = base;
            if (site == 0)
                v = band == 1 ? 230 : base / 2;
            else if (site == 3)
                v = band == 2 ? 220 : 255 - base;
            else
                v = band == 3 ? 200 : (y * 255) / h;
            raw[size_t(y) * w + x] = uint8_t(v);
        }
    return raw;
}

void grabLayouts(CVideoManagerForm& manager, const QString& dir)
{
    QDir().mkpath(dir);
    // Overlays on, so that the pictures show them too.
    stuROI roi;
    roi.Left = 600;
    roi.Top = 300;
    roi.Width = 500;
    roi.Height = 400;
    roi.RedROI = 255;
    roi.GreenROI = 255;
    roi.BlueROI = 0;
    manager.multiVideoForm()->getForm(0)->setROI({ roi });
    manager.multiVideoForm()->setDisplayROIEnable(true);
    manager.multiVideoForm()->setShowCrosshair(true);
    for (EN_VIDEO_LAYOUT layout : { VIDEO_LAYOUT_1, VIDEO_LAYOUT_4, VIDEO_LAYOUT_16 }) {
        manager.multiVideoForm()->setGridLayout(layout);
        BenchSimCams::pump(800);
        const QString path = QDir(dir).filePath(QString("video_layout_%1.png").arg(int(layout)));
        manager.grab().save(path);
        std::printf("saved %s\n", qPrintable(path));
    }
}

int runSynthetic(const SOptions& o)
{
    const int views = 16, w = 1920, h = 1080;
    const double fps = 30.0;
    CVideoManagerForm manager(nullptr, false);
    manager.resize(1600, 1000);
    manager.show();
    CMultiVideoForm* multi = manager.multiVideoForm();
    multi->setGridLayout(VIDEO_LAYOUT_16);
    // Views look bound, so their bars show as in use.
    std::vector<CTavDevicePtr> devices;
    for (int i = 0; i < views; ++i) {
        devices.push_back(CTavDevice::create());
        multi->getForm(i)->setDevice(devices.back());
    }
    BenchSimCams::pump(500);

    std::vector<qint64> paintNs;
    paintNs.reserve(100000);
    for (int i = 0; i < views; ++i)
        multi->getForm(i)->displayWnd()->setPaintTimeObserver([&paintNs](qint64 ns) { paintNs.push_back(ns); });

    std::printf("bench_display: %d views in %dx%d, display %dx%d each, %dx%d BayerRG8 at %.0f fps per view\n", views,
                manager.width(), manager.height(), multi->getForm(0)->displayWnd()->width(),
                multi->getForm(0)->displayWnd()->height(), w, h, fps);
    std::vector<std::vector<uint8_t>> pictures;
    for (int p = 0; p < 8; ++p)
        pictures.push_back(makeBayer(w, h, p));

    std::atomic<bool> run{ true };
    std::atomic<qint64> buildNs{ 0 }, displayNs{ 0 };
    std::vector<std::atomic<quint64>> offered(views);
    std::vector<std::thread> threads;
    for (int i = 0; i < views; ++i) {
        Gliv::CQtDisplayWndEx* wnd = multi->getForm(i)->displayWnd();
        threads.emplace_back([&, i, wnd]() {
            using clock = std::chrono::steady_clock;
            const auto period = std::chrono::nanoseconds(qint64(1e9 / fps));
            auto next = clock::now() + period * i / views;
            quint64 n = 0;
            while (run.load()) {
                std::this_thread::sleep_until(next);
                next += period;
                const std::vector<uint8_t>& raw = pictures[(n + i) % pictures.size()];
                Gliv::SFrameInfo info;
                info.blockId = ++n;
                info.width = w;
                info.height = h;
                info.widthReg = w;
                info.heightReg = h;
                info.pixelFormat = Gliv::PixelFormat::BayerRG8;
                info.imageSize = raw.size();
                info.rawData = raw.data();
                // The stream thread's path: one frame from the raw data, then the display.
                const qint64 t0 = threadCpuNs();
                CQtHybridFramePtr frame(new Gliv::CQtHybridFrame(info));
                const qint64 t1 = threadCpuNs();
                wnd->displayImage(frame);
                const qint64 t2 = threadCpuNs();
                buildNs += t1 - t0;
                displayNs += t2 - t1;
                ++offered[size_t(i)];
            }
        });
    }

    StallMeter stall;
    BenchSimCams::pump(2000);   // warm up
    paintNs.clear();
    stall.reset();
    std::vector<quint64> painted0(views), offered0(views);
    for (int i = 0; i < views; ++i) {
        painted0[size_t(i)] = multi->getForm(i)->displayWnd()->paintedFrameCount();
        offered0[size_t(i)] = offered[size_t(i)].load();
    }
    const double cpu0 = processCpuSeconds();
    buildNs = 0;
    displayNs = 0;
    QElapsedTimer wall;
    wall.start();
    BenchSimCams::pump(o.seconds * 1000);
    const double seconds = wall.nsecsElapsed() / 1e9;
    const double cpu = processCpuSeconds() - cpu0;
    quint64 offeredTotal = 0;
    for (int i = 0; i < views; ++i)
        offeredTotal += offered[size_t(i)].load() - offered0[size_t(i)];
    double minPainted = 1e9, sumPainted = 0, minOffered = 1e9;
    std::printf("%-5s %10s %10s %10s\n", "view", "offered/s", "painted/s", "painted%");
    for (int i = 0; i < views; ++i) {
        const double p = (multi->getForm(i)->displayWnd()->paintedFrameCount() - painted0[size_t(i)]) / seconds;
        const double f = (offered[size_t(i)].load() - offered0[size_t(i)]) / seconds;
        std::printf("%-5d %10.1f %10.1f %9.1f%%\n", i, f, p, f > 0 ? 100.0 * p / f : 0.0);
        minPainted = std::min(minPainted, p);
        minOffered = std::min(minOffered, f);
        sumPainted += p;
    }
    double median = 0, p99 = 0;
    percentiles(paintNs, median, p99);
    std::printf("GUI time per painted frame: median %.3f ms, p99 %.3f ms (%zu frames)\n", median, p99, paintNs.size());
    std::printf("longest event-loop stall: %.1f ms\n", stall.longestMs());
    std::printf("process CPU: %.2f s per s (%.2f cores)\n", cpu / seconds, cpu / seconds);
    if (offeredTotal)
        std::printf("stream-thread side per frame: build %.3f ms, render for display %.3f ms (thread CPU)\n",
                    buildNs.load() / 1e6 / offeredTotal, displayNs.load() / 1e6 / offeredTotal);
    std::printf("painted per view: min %.1f fps, mean %.1f fps; offered min %.1f fps\n", minPainted,
                sumPainted / views, minOffered);

    if (!o.grabDir.isEmpty())
        grabLayouts(manager, o.grabDir);
    run.store(false);
    for (std::thread& t : threads)
        t.join();
    for (int i = 0; i < views; ++i)
        multi->getForm(i)->setDevice(CTavDevicePtr());
    return 0;
}

// The renderer alone on this thread: CPU per frame for a 1920x1080 BayerRG8
// frame shown in a cell of the sixteen-view grid and in one large view.
int runRenderOnly()
{
    const int w = 1920, h = 1080;
    const std::vector<uint8_t> raw = makeBayer(w, h, 0);
    Gliv::SFrameInfo info;
    info.width = w;
    info.height = h;
    info.pixelFormat = Gliv::PixelFormat::BayerRG8;
    info.imageSize = raw.size();
    info.rawData = raw.data();
    const CQtHybridFramePtr frame(new Gliv::CQtHybridFrame(info));
    info.pixelFormat = Gliv::PixelFormat::Mono8;
    const CQtHybridFramePtr mono(new Gliv::CQtHybridFrame(info));
    for (const CQtHybridFramePtr& f : { frame, mono })
        for (QSize target : { QSize(334, 188), QSize(480, 270), QSize(560, 315), QSize(1280, 720) }) {
            Gliv::CDisplayRenderer renderer;
            QImage out;
            const int runs = 200;
            renderer.render(*f, { QRect(0, 0, w, h), target, Gliv::bayerBilinear }, out);
            const qint64 t0 = threadCpuNs();
            for (int i = 0; i < runs; ++i)
                renderer.render(*f, { QRect(0, 0, w, h), target, Gliv::bayerBilinear }, out);
            std::printf("render 1920x1080 %s to %dx%d: %.3f ms CPU per frame\n",
                        f == frame ? "BayerRG8" : "Mono8", target.width(), target.height(),
                        (threadCpuNs() - t0) / 1e6 / runs);
        }
    return 0;
}

int runCamera(const SOptions& o)
{
    using namespace BenchSimCams;
    std::vector<std::unique_ptr<QProcess>> cams;
    SCameraSetup camera;
    camera.address = o.address;
    camera.serial = QStringLiteral("BENCHDISP1");
    camera.fps = 60.0;
    camera.packetSize = 8000;
    if (!startCameras({ camera }, cams, "bench_display")) {
        stopCameras(cams);
        return 1;
    }
    std::vector<CTavDevicePtr> devices;
    std::unique_ptr<CVideoManagerForm> manager(new CVideoManagerForm);
    manager->multiVideoForm()->setGridLayout(VIDEO_LAYOUT_1);
    manager->show();
    if (!findDevices({ camera.serial }, devices, 20000, "bench_display")) {
        stopCameras(cams);
        return 1;
    }
    // About 560x420 for the picture itself.
    CVideoForm* view = manager->multiVideoForm()->getForm(0);
    manager->resize(600, 560);
    pump(200);
    const QSize extra = manager->size() - view->displayWnd()->size();
    manager->resize(QSize(560, 420) + extra);
    pump(200);
    CTavDevicePtr device = devices[0];
    device->openDevice(false);
    QElapsedTimer wait;
    wait.start();
    while (wait.elapsed() < 15000 && !(device->isConnected() && device->isGrabing()))
        pump(100);
    if (!device->isGrabing()) {
        std::fprintf(stderr, "bench_display: the camera did not start streaming\n");
        stopCameras(cams);
        return 1;
    }
    std::printf("bench_display --camera: 1920x1080 BayerRG8 at 60 fps, 8000-byte packets, view %dx%d\n",
                view->displayWnd()->width(), view->displayWnd()->height());
    pump(2000);   // warm up
    Vorlen::GenICam::StreamStatisticsInfo s0, s1;
    device->getStatisticsInfo(s0);
    const quint64 painted0 = view->displayWnd()->paintedFrameCount();
    const double cpu0 = processCpuSeconds();
    QElapsedTimer wall;
    wall.start();
    pump(o.seconds * 1000);
    const double seconds = wall.nsecsElapsed() / 1e9;
    const double cpu = processCpuSeconds() - cpu0;
    device->getStatisticsInfo(s1);
    const quint64 painted = view->displayWnd()->paintedFrameCount() - painted0;
    const quint64 received = s1.receivedImages - s0.receivedImages;
    std::printf("received %llu frames (%.1f fps), painted %llu (%.1f fps)\n", (unsigned long long)received,
                received / seconds, (unsigned long long)painted, painted / seconds);
    std::printf("frames in error %llu, lost blocks %llu, lost packets %llu\n",
                (unsigned long long)(s1.errorImages - s0.errorImages),
                (unsigned long long)(s1.lostBlocks - s0.lostBlocks),
                (unsigned long long)(s1.lostPacket - s0.lostPacket));
    std::printf("process CPU: %.3f s per s of streaming (%.2f ms per received frame)\n", cpu / seconds,
                received ? cpu * 1000.0 / received : 0.0);
    if (!o.grabDir.isEmpty()) {
        QDir().mkpath(o.grabDir);
        const QString path = QDir(o.grabDir).filePath("video_camera.png");
        manager->grab().save(path);
        std::printf("saved %s\n", qPrintable(path));
    }
    device->closeDevice(true);
    pump(500);
    manager.reset();
    devices.clear();
    device.reset();
    stopCameras(cams);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    CSingletonOwner singletons;
    registerMessageMetaTypes();
    // The application's look, so that grabbed pictures show what users see.
    QFile sheet(QCoreApplication::applicationDirPath() + "/Skins/Default/Vintrel/style.qss");
    if (!sheet.open(QIODevice::ReadOnly))
        sheet.setFileName(QStringLiteral(LUMIDOR_SOURCE_DIR "/res/Skins/Default/Vintrel/style.qss"));
    if (sheet.isOpen() || sheet.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    SOptions o;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == "--camera")
            o.camera = true;
        else if (args[i] == "--render-only")
            return runRenderOnly();
        else if (args[i] == "--seconds" && i + 1 < args.size())
            o.seconds = args[++i].toInt();
        else if (args[i] == "--grab" && i + 1 < args.size())
            o.grabDir = args[++i];
        else if (args[i] == "--address" && i + 1 < args.size())
            o.address = args[++i];
    }
    return o.camera ? runCamera(o) : runSynthetic(o);
}
