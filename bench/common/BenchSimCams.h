#pragma once
// Helpers of the benchmarks that run lumidor-simcam processes on loopback
// addresses and find their devices through the device manager.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <vector>

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/CTavLog.h"

namespace BenchSimCams {

// Before the application object: unless LUMIDOR_HOME names a home, the
// benchmark keeps its configuration in home (a scratch folder) and never
// touches the user's; the logging configuration is loaded.
inline void setUpProcess(const QTemporaryDir& home)
{
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", home.path().toLocal8Bit());
    Tavlog4cpp::CTavLog::LoadDefault();
}

// A simulated camera process and how it was started.
struct SCameraSetup
{
    QString address;
    QString serial;
    int width = 1920;
    int height = 1080;
    QString pixelFormat = QStringLiteral("BayerRG8");
    double fps = 60.0;
    int packetSize = 8192;
};

// True when the loopback interface carries the IPv4 address.
inline bool hasAddress(const QString& ip)
{
    QProcess p;
    p.start("ip", {"-4", "addr", "show", "dev", "lo"});
    p.waitForFinished(3000);
    return QString::fromLocal8Bit(p.readAllStandardOutput()).contains("inet " + ip + "/");
}

// Runs the event loop (blocking, not polling) for ms milliseconds.
inline void pump(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// lumidor-simcam beside the running program.
inline QString simcamPath()
{
    return QCoreApplication::applicationDirPath() + "/lumidor-simcam";
}

// Starts one process per camera setup and waits until each has announced itself.
// On failure prints why, and the processes started so far stay in out.
inline bool startCameras(const std::vector<SCameraSetup>& setups, std::vector<std::unique_ptr<QProcess>>& out,
                         const char* who)
{
    const QString simcam = simcamPath();
    if (!QFile::exists(simcam))
    {
        std::fprintf(stderr, "%s: %s not found\n", who, qPrintable(simcam));
        return false;
    }
    for (const SCameraSetup& s : setups)
    {
        if (s.address != "127.0.0.1" && !hasAddress(s.address))
        {
            std::fprintf(stderr, "%s: %s is not on the loopback interface (run scripts/loopback.sh)\n", who,
                         qPrintable(s.address));
            return false;
        }
        out.emplace_back(new QProcess);
        QProcess* p = out.back().get();
        p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p->start(simcam, {"--address", s.address, "--serial", s.serial, "--width", QString::number(s.width),
                          "--height", QString::number(s.height), "--pixel-format", s.pixelFormat, "--fps",
                          QString::number(s.fps), "--packet-size", QString::number(s.packetSize)});
        if (!p->waitForReadyRead(5000))
        {
            std::fprintf(stderr, "%s: lumidor-simcam on %s did not start\n", who, qPrintable(s.address));
            return false;
        }
    }
    return true;
}

// Ends every process still running (SIGTERM, then SIGKILL).
inline void stopCameras(std::vector<std::unique_ptr<QProcess>>& processes)
{
    for (auto& p : processes)
    {
        if (p->state() == QProcess::NotRunning)
            continue;
        p->terminate();
        if (!p->waitForFinished(5000))
        {
            p->kill();
            p->waitForFinished(2000);
        }
    }
    processes.clear();
}

// The devices of the serial numbers, in order, asking for discovery passes
// until all are known or timeoutMs has passed. False when one is missing.
inline bool findDevices(const QStringList& serials, std::vector<CTavDevicePtr>& devices, int timeoutMs, const char* who)
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    devices.assign(size_t(serials.size()), CTavDevicePtr());
    QElapsedTimer wait;
    wait.start();
    while (wait.elapsed() < timeoutMs)
    {
        int found = 0;
        const QMap<QString, CTavDevicePtr> all = manager->getAllDevices();
        for (int i = 0; i < serials.size(); ++i)
        {
            for (const CTavDevicePtr& d : all)
                if (d->getDevice() && QString::fromLocal8Bit(d->getDevice()->getSerialNumber().c_str()) == serials[i])
                    devices[size_t(i)] = d;
            found += devices[size_t(i)] ? 1 : 0;
        }
        if (found == serials.size())
            return true;
        manager->refreshDeviceMap(QString(), 0);
        pump(1500);
    }
    for (int i = 0; i < serials.size(); ++i)
        if (!devices[size_t(i)])
            std::fprintf(stderr, "%s: camera %s not found\n", who, qPrintable(serials[i]));
    return false;
}

} // namespace BenchSimCams
