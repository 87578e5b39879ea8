// bench_ingest: streams N simulated cameras (lumidor-simcam processes,
// 1920x1080 BayerRG8 at 60 fps with large packets) through CTavDevice and its
// StreamRetrieveThread, converting the displayed frames, and prints per camera
// frames received, displayed and lost, the conversion time per frame (median,
// p99) and the process CPU per received frame; then the same cameras through
// the bare camera layer (a getFrame loop, no conversion) for comparison.
//
//   bench_ingest [--cameras 1,2,4] [--seconds 10] [--fps 60] [--packet-size 8192]
//                [--first-address 1]
//
// Camera i (from 0) listens on 127.0.0.(first + i); scripts/loopback.sh N
// adds 127.0.0.2..N.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMutex>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <memory>
#include <sys/resource.h>
#include <thread>
#include <vector>

#include "../common/BenchSimCams.h"
#include "../common/BenchStats.h"
#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/CTavLog.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {

struct SOptions
{
    QList<int> cameraCounts = {1, 2, 4};
    int seconds = 10;
    double fps = 60.0;
    int packetSize = 8192;
    int width = 1920;
    int height = 1080;
    int firstAddress = 1;
};

struct SCameraFigures
{
    unsigned long long received = 0;
    unsigned long long displayed = 0;
    unsigned long long lost = 0;
    double convMedianMs = 0.0;
    double convP99Ms = 0.0;
};

double processCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6 + usage.ru_stime.tv_sec +
           usage.ru_stime.tv_usec / 1e6;
}

int g_firstAddress = 1;

QString address(int i)
{
    return QString("127.0.0.%1").arg(g_firstAddress + i);
}

QString serial(int i)
{
    return QString("BENCH%1").arg(i + 1, 2, 10, QChar('0'));
}

using BenchSimCams::hasAddress;

using BenchStats::percentiles;

using BenchSimCams::pump;

// Receives the frames of one device on the GUI thread, as a video view does.
class FrameReceiver : public QObject
{
public:
    explicit FrameReceiver(CTavDevice* device)
    {
        connect(device, &CTavDevice::newFrame, this,
                [this](CQtHybridFramePtr frame, bool display, bool, bool) {
                    ++frames;
                    if (display && frame)
                        ++displayed;
                },
                Qt::QueuedConnection);
    }
    unsigned long long frames = 0;
    unsigned long long displayed = 0;
};

// --------------------------------------------------------------- full stack

bool runFull(const SOptions& o, int n, std::vector<SCameraFigures>& out, double& cpuPerFrameUs)
{
    QStringList serials;
    for (int i = 0; i < n; ++i)
        serials.append(serial(i));
    std::vector<CTavDevicePtr> devices;
    if (!BenchSimCams::findDevices(serials, devices, 20000, "bench_ingest"))
        return false;

    std::vector<std::unique_ptr<FrameReceiver>> receivers;
    std::vector<std::vector<qint64>> convTimes(n);
    std::vector<std::unique_ptr<QMutex>> convMutex(n);
    for (int i = 0; i < n; ++i)
    {
        convMutex[i].reset(new QMutex);
        QMutex* m = convMutex[i].get();
        std::vector<qint64>* v = &convTimes[i];
        devices[i]->GetStreamThread()->setConversionTimeObserver([m, v](qint64 ns) {
            QMutexLocker locker(m);
            v->push_back(ns);
        });
        receivers.emplace_back(new FrameReceiver(devices[i].get()));
        if (!devices[i]->openDevice(true) || !devices[i]->openStream())
        {
            std::fprintf(stderr, "bench_ingest: cannot open %s\n", qPrintable(serial(i)));
            return false;
        }
    }

    pump(1000);   // warm-up
    std::vector<unsigned long long> rx0(n), disp0(n), lost0(n);
    for (int i = 0; i < n; ++i)
    {
        QString a, b, c;
        devices[i]->getStreamStatistic(a, b, rx0[i], c);
        disp0[i] = receivers[i]->displayed;
        StreamStatisticsInfo info;
        devices[i]->getStatisticsInfo(info);
        lost0[i] = info.lostBlocks;
        QMutexLocker locker(convMutex[i].get());
        convTimes[i].clear();
    }
    const double cpu0 = processCpuSeconds();
    pump(o.seconds * 1000);
    const double cpu1 = processCpuSeconds();

    unsigned long long totalRx = 0;
    out.assign(n, SCameraFigures());
    for (int i = 0; i < n; ++i)
    {
        QString a, b, c;
        unsigned long long rx = 0;
        devices[i]->getStreamStatistic(a, b, rx, c);
        StreamStatisticsInfo info;
        devices[i]->getStatisticsInfo(info);
        out[i].received = rx - rx0[i];
        out[i].displayed = receivers[i]->displayed - disp0[i];
        out[i].lost = info.lostBlocks - lost0[i];
        {
            QMutexLocker locker(convMutex[i].get());
            percentiles(convTimes[i], out[i].convMedianMs, out[i].convP99Ms);
        }
        totalRx += out[i].received;
    }
    cpuPerFrameUs = totalRx ? (cpu1 - cpu0) * 1e6 / double(totalRx) : 0.0;

    for (int i = 0; i < n; ++i)
    {
        devices[i]->closeDevice(true);
        devices[i]->GetStreamThread()->setConversionTimeObserver(nullptr);
    }
    pump(200);
    return true;
}

// --------------------------------------------------------------- bare layer

bool runBare(const SOptions& o, int n, std::vector<SCameraFigures>& out, double& cpuPerFrameUs)
{
    std::vector<Vorlen::Memory::TSharedPtr<CInternalCamera>> cameras(n);
    for (int attempt = 0; attempt < 5; ++attempt)
    {
        Vorlen::Infra::TVector<Vorlen::Memory::TSharedPtr<ICamera>> found;
        CSystem::getInstance().discovery(found, typeGigEVision);
        CSystem::getInstance().getCameraPtrAll(found);
        int have = 0;
        for (int i = 0; i < n; ++i)
        {
            for (const auto& c : found)
                if (QString::fromLocal8Bit(c->getSerialNumber().c_str()) == serial(i))
                    cameras[i] = Vorlen::Memory::dynamicPointerCast<CInternalCamera>(c);
            have += cameras[i] ? 1 : 0;
        }
        if (have == n)
            break;
    }

    std::vector<Vorlen::Memory::TSharedPtr<CInternalStreamSource>> streams(n);
    for (int i = 0; i < n; ++i)
    {
        if (!cameras[i] || !cameras[i]->connect(accessPermissionControl))
        {
            std::fprintf(stderr, "bench_ingest: bare: cannot connect %s\n", qPrintable(serial(i)));
            return false;
        }
        streams[i] = Vorlen::Memory::makeShared<CInternalStreamSource>(cameras[i], 0);
        streams[i]->setBufferCount(CConfiguration::getInstance()->streamingBufferCount);
        streams[i]->startGrabbing();
    }

    std::atomic<bool> counting{false};
    std::atomic<bool> running{true};
    std::vector<std::atomic<unsigned long long>> frames(n);
    std::vector<std::thread> readers;
    for (int i = 0; i < n; ++i)
    {
        frames[i] = 0;
        readers.emplace_back([&, i]() {
            CFrame frame;
            while (running)
            {
                if (streams[i]->getFrame(frame, 100) && counting)
                    ++frames[i];
                frame.reset();
            }
        });
    }

    std::this_thread::sleep_for(std::chrono::seconds(1));
    std::vector<unsigned long long> lost0(n);
    for (int i = 0; i < n; ++i)
    {
        StreamStatisticsInfo info;
        streams[i]->getStatisticsInfo(info);
        lost0[i] = info.lostBlocks;
    }
    const double cpu0 = processCpuSeconds();
    counting = true;
    std::this_thread::sleep_for(std::chrono::seconds(o.seconds));
    counting = false;
    const double cpu1 = processCpuSeconds();
    running = false;
    for (std::thread& t : readers)
        t.join();

    out.assign(n, SCameraFigures());
    unsigned long long total = 0;
    for (int i = 0; i < n; ++i)
    {
        StreamStatisticsInfo info;
        streams[i]->getStatisticsInfo(info);
        out[i].received = frames[i];
        out[i].lost = info.lostBlocks - lost0[i];
        total += out[i].received;
        streams[i]->stopGrabbing();
        streams[i].reset();
        cameras[i]->disConnect();
    }
    cpuPerFrameUs = total ? (cpu1 - cpu0) * 1e6 / double(total) : 0.0;
    return true;
}

void printRows(const char* mode, int n, const std::vector<SCameraFigures>& rows, double cpuUs, int seconds)
{
    for (int i = 0; i < n; ++i)
    {
        const SCameraFigures& r = rows[i];
        std::printf("%-5s %-8s %9llu %6.1f %9llu %6llu %9.2f %9.2f %12.0f\n", mode, qPrintable(serial(i)), r.received,
                    r.received / double(seconds), r.displayed, r.lost, r.convMedianMs, r.convP99Ms, cpuUs);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    BenchSimCams::setUpProcess(home);
    QCoreApplication app(argc, argv);

    SOptions o;
    const QStringList args = app.arguments();
    for (int i = 1; i + 1 < args.size(); i += 2)
    {
        if (args[i] == "--cameras")
        {
            o.cameraCounts.clear();
            for (const QString& s : args[i + 1].split(','))
                o.cameraCounts.append(s.toInt());
        }
        else if (args[i] == "--seconds")
            o.seconds = args[i + 1].toInt();
        else if (args[i] == "--fps")
            o.fps = args[i + 1].toDouble();
        else if (args[i] == "--packet-size")
            o.packetSize = args[i + 1].toInt();
        else if (args[i] == "--first-address")
            o.firstAddress = args[i + 1].toInt();
    }
    g_firstAddress = qBound(1, o.firstAddress, 250);

    if (!QFile::exists(BenchSimCams::simcamPath()))
    {
        std::fprintf(stderr, "bench_ingest: %s not found\n", qPrintable(BenchSimCams::simcamPath()));
        return 1;
    }
    std::printf("bench_ingest: %dx%d BayerRG8 at %.0f fps, packet size %d, %d s per run\n", o.width, o.height, o.fps,
                o.packetSize, o.seconds);
    std::printf("%-5s %-8s %9s %6s %9s %6s %9s %9s %12s\n", "mode", "camera", "received", "fps", "displayed", "lost",
                "conv_med", "conv_p99", "cpu_us/frame");
    std::printf("%-5s %-8s %9s %6s %9s %6s %9s %9s %12s\n", "", "", "", "", "", "", "(ms)", "(ms)", "(process)");

    for (int n : o.cameraCounts)
    {
        bool addressesOk = true;
        for (int i = 0; i < n; ++i)
            addressesOk = addressesOk && (address(i) == "127.0.0.1" || hasAddress(address(i)));
        if (!addressesOk)
        {
            std::printf("-- %d cameras: loopback addresses missing (run scripts/loopback.sh)\n", n);
            continue;
        }

        std::vector<BenchSimCams::SCameraSetup> setups;
        for (int i = 0; i < n; ++i)
        {
            BenchSimCams::SCameraSetup s;
            s.address = address(i);
            s.serial = serial(i);
            s.width = o.width;
            s.height = o.height;
            s.fps = o.fps;
            s.packetSize = o.packetSize;
            setups.push_back(s);
        }
        std::vector<std::unique_ptr<QProcess>> cams;
        if (!BenchSimCams::startCameras(setups, cams, "bench_ingest"))
        {
            BenchSimCams::stopCameras(cams);
            return 1;
        }

        std::printf("-- %d camera(s)\n", n);
        std::vector<SCameraFigures> rows;
        double cpuUs = 0.0;
        auto singletons = std::make_unique<CSingletonOwner>();
        // Displayed frames only are converted: no saving, no recording.
        CConfiguration::getInstance()->strDisplayValue = "30 FPS";
        if (runFull(o, n, rows, cpuUs))
            printRows("full", n, rows, cpuUs, o.seconds);
        // The device layer lets the cameras go before the bare client
        // takes them; the bare client reads the configuration too.
        singletons.reset();
        singletons = std::make_unique<CSingletonOwner>();
        if (runBare(o, n, rows, cpuUs))
            printRows("bare", n, rows, cpuUs, o.seconds);
        std::fflush(stdout);

        BenchSimCams::stopCameras(cams);
        pump(500);
    }
    return 0;
}
