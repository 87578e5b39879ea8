// bench_gui_stall: how long the GUI thread's event loop stops while four
// simulated 1920x1080 cameras (lumidor-simcam processes on 127.0.0.1..4)
// connect, stream, get their settings changed as a settings dialog would,
// lose one camera (its process killed) and are all disconnected.
//
// A 5 ms timer on the GUI thread records how late each tick comes; per phase
// the longest stall and the 99th percentile are printed, with the time the
// lost camera took to be reported offline and the time the device manager
// took to shut down.
//
//   bench_gui_stall [--cameras 4] [--fps 30] [--stream-seconds 3] [--first-address 1]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "../common/BenchSimCams.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CObserver.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/CTavLog.h"

using namespace BenchSimCams;

namespace {

const qint64 kTickNs = 5000000;   // 5 ms

// Lateness of a 5 ms timer on the GUI thread, per named phase.
class StallMeter
{
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this]() { tick(); });
    }

    void start(const QString& phase)
    {
        m_phase = phase;
        m_order.append(phase);
        m_clock.start();
        m_last = m_clock.nsecsElapsed();
        m_timer.start();
    }

    // Later ticks count for the next phase.
    void phase(const QString& name)
    {
        tick();
        m_phase = name;
        if (!m_order.contains(name))
            m_order.append(name);
    }

    void stop()
    {
        tick();
        m_timer.stop();
    }

    void print() const
    {
        std::printf("%-16s %8s %10s %10s\n", "phase", "ticks", "max (ms)", "p99 (ms)");
        qint64 overall = 0;
        for (const QString& name : m_order)
        {
            std::vector<qint64> v = m_late.value(name);
            if (v.empty())
                continue;
            std::sort(v.begin(), v.end());
            const qint64 p99 = v[std::min(v.size() - 1, size_t(double(v.size()) * 0.99))];
            overall = std::max(overall, v.back());
            std::printf("%-16s %8zu %10.1f %10.1f\n", qPrintable(name), v.size(), v.back() / 1e6, p99 / 1e6);
        }
        std::printf("%-16s %8s %10.1f\n", "longest stall", "", overall / 1e6);
    }

private:
    void tick()
    {
        const qint64 now = m_clock.nsecsElapsed();
        const qint64 late = std::max<qint64>(0, now - m_last - kTickNs);
        m_late[m_phase].push_back(late);
        m_last = now;
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_last = 0;
    QString m_phase;
    QStringList m_order;
    QMap<QString, std::vector<qint64>> m_late;
};

// Watches the bus as a panel does: Update() only hands the message over to
// the GUI thread, where it is recorded with the time it arrived.
class BusWatch : public CObserver
{
public:
    BusWatch() { m_clock.start(); }
    void Update(CTavMessagePtr msg) override
    {
        QMetaObject::invokeMethod(
            qApp,
            [this, msg]() {
                QString key;
                if (msg->device)
                    msg->device->getDeviceKey(key);
                m_seen[key].append(qMakePair(int(msg->type), m_clock.elapsed()));
            },
            Qt::QueuedConnection);
    }
    bool has(const CTavDevicePtr& device, EN_MESSAGE_TYPE type) const { return when(device, type) >= 0; }
    // Arrival in ms of the bus clock, -1 when not seen.
    qint64 when(const CTavDevicePtr& device, EN_MESSAGE_TYPE type) const
    {
        for (const auto& entry : m_seen.value(device->getDeviceKey()))
            if (entry.first == type)
                return entry.second;
        return -1;
    }
    qint64 now() const { return m_clock.elapsed(); }
    void clear() { m_seen.clear(); }

private:
    QElapsedTimer m_clock;
    QMap<QString, QList<QPair<int, qint64>>> m_seen;
};

// Runs the event loop until pred holds or timeoutMs passed.
template <typename Pred>
bool waitUntil(Pred pred, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    while (!pred())
    {
        if (t.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    BenchSimCams::setUpProcess(home);
    QCoreApplication app(argc, argv);

    int cameras = 4;
    double fps = 30.0;
    int streamSeconds = 3;
    int firstAddress = 1;
    const QStringList args = app.arguments();
    for (int i = 1; i + 1 < args.size(); i += 2)
    {
        if (args[i] == "--cameras")
            cameras = qBound(1, args[i + 1].toInt(), 16);
        else if (args[i] == "--fps")
            fps = args[i + 1].toDouble();
        else if (args[i] == "--stream-seconds")
            streamSeconds = qMax(1, args[i + 1].toInt());
        else if (args[i] == "--first-address")
            firstAddress = qBound(1, args[i + 1].toInt(), 250);
    }

    std::vector<SCameraSetup> setups;
    QStringList serials;
    for (int i = 0; i < cameras; ++i)
    {
        SCameraSetup s;
        s.address = QString("127.0.0.%1").arg(firstAddress + i);
        s.serial = QString("STALL%1").arg(i + 1, 2, 10, QChar('0'));
        s.fps = fps;
        setups.push_back(s);
        serials.append(s.serial);
    }
    std::vector<std::unique_ptr<QProcess>> processes;
    if (!startCameras(setups, processes, "bench_gui_stall"))
    {
        stopCameras(processes);
        return 1;
    }

    CConfiguration* cfg = CConfiguration::getInstance();
    std::printf("bench_gui_stall: %d camera(s) %dx%d %s at %.0f fps, heartbeat %u ms\n", cameras, setups[0].width,
                setups[0].height, qPrintable(setups[0].pixelFormat), fps, unsigned(cfg->iHeartbeatIval));

    std::vector<CTavDevicePtr> devices;
    if (!findDevices(serials, devices, 20000, "bench_gui_stall"))
    {
        stopCameras(processes);
        return 1;
    }
    BusWatch bus;
    CDeviceManager::getInstance()->attach(&bus);
    std::vector<unsigned long long> frames(size_t(cameras), 0);
    std::vector<QMetaObject::Connection> frameLinks;
    for (int i = 0; i < cameras; ++i)
        frameLinks.push_back(QObject::connect(
            devices[size_t(i)].get(), &CTavDevice::newFrame, &app,
            [&frames, i](CQtHybridFramePtr, bool, bool, bool) { ++frames[size_t(i)]; }, Qt::QueuedConnection));

    auto all = [&](EN_MESSAGE_TYPE type, int except = -1) {
        for (int i = 0; i < cameras; ++i)
            if (i != except && !bus.has(devices[size_t(i)], type))
                return false;
        return true;
    };

    StallMeter meter;
    meter.start("idle");
    pump(500);

    // Connect.
    meter.phase("connect");
    for (const CTavDevicePtr& d : devices)
        d->openDevice(false);
    if (!waitUntil([&]() { return all(MSG_DEVICE_CONNECTED); }, 20000))
        std::printf("connect: not every camera connected\n");
    pump(300);

    // Stream.
    meter.phase("stream start");
    for (const CTavDevicePtr& d : devices)
        d->openStream();
    if (!waitUntil([&]() { return all(MSG_STREAM_OPENED); }, 20000))
        std::printf("stream: not every stream opened\n");
    meter.phase("streaming");
    pump(streamSeconds * 1000);

    // Settings changed while streaming, field and change signal, then saved.
    meter.phase("settings");
    for (int round = 0; round < 10; ++round)
    {
        const bool odd = round % 2;
        cfg->setHeartbeatInterval(odd ? 1500 : 2500);
        cfg->setAnswerTimeout(odd ? 1000 : 800);
        cfg->setInterPacketTimeout(odd ? 0 : 50);
        cfg->setSingleResendMaxPackNum(odd ? 65536 : 1000);
        cfg->setMaximumLostPacketNum(odd ? 65536 : 2000);
        cfg->strDisplayValue = odd ? "30 FPS" : "60 FPS";
        cfg->imageMaxRate = odd ? "100" : "200";
        cfg->notifySaveConfigChanged();
        cfg->saveConfigToUserXml();
        pump(200);
    }
    cfg->setHeartbeatInterval(1500);
    pump(500);

    // One camera vanishes.
    meter.phase("camera lost");
    const int lost = cameras - 1;
    const qint64 killedAt = bus.now();
    processes[size_t(lost)]->kill();
    processes[size_t(lost)]->waitForFinished(2000);
    qint64 offlineMs = -1;
    if (waitUntil([&]() { return bus.has(devices[size_t(lost)], MSG_DEVICE_OFFLINE); }, 30000))
        offlineMs = bus.when(devices[size_t(lost)], MSG_DEVICE_OFFLINE) - killedAt;
    pump(1000);

    // Disconnect all.
    meter.phase("disconnect all");
    CDisconnectAllThread* closer = CDisconnectAllThread::getInstance();
    bool closeAllDone = false;
    QObject::connect(closer, &CDisconnectAllThread::closeAllFinished, &app, [&]() { closeAllDone = true; },
                     Qt::QueuedConnection);
    const qint64 closeStart = bus.now();
    closer->start();
    waitUntil([&]() { return closeAllDone; }, 30000);
    const qint64 closeAllMs = bus.now() - closeStart;
    waitUntil([&]() { return all(MSG_DEVICE_DISCONNECTED, lost); }, 10000);
    pump(300);
    meter.stop();

    for (auto& link : frameLinks)
        QObject::disconnect(link);
    CDeviceManager::getInstance()->detach(&bus);
    devices.clear();
    QElapsedTimer shutdown;
    shutdown.start();
    CDeviceManager::destroyInstance();
    const qint64 shutdownMs = shutdown.elapsed();

    meter.print();
    std::printf("frames received on the GUI thread:");
    for (unsigned long long f : frames)
        std::printf(" %llu", f);
    std::printf("\n");
    if (offlineMs >= 0)
        std::printf("lost camera reported offline after %lld ms\n", offlineMs);
    else
        std::printf("lost camera NOT reported offline within 30 s\n");
    std::printf("disconnect all finished after %lld ms%s\n", closeAllMs, closeAllDone ? "" : " (no closeAllFinished)");
    std::printf("device manager shut down in %lld ms\n", shutdownMs);
    std::fflush(stdout);

    stopCameras(processes);
    return 0;
}
