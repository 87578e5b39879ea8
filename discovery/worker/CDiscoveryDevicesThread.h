#pragma once
// The one background thread that asks the camera library which cameras are
// reachable. It runs a pass when asked, keeps the list of camera handles of
// the last pass, and re-probes the addresses added by unicast on every
// ordinary refresh for as long as they answer.
#include <QMutex>
#include <QString>
#include <QThread>
#include <QVector>
#include <QWaitCondition>
#include <atomic>
#include <memory>

#include "Vorlen/GenICam/CSystem.h"
#include "Vorlen/Infra/TVector.h"
#include "Vorlen/Memory/TSharedPtr.h"

using CameraPtrVector = Vorlen::Infra::TVector<Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>>;

// The camera-library calls a discovery pass makes. The default forwards to
// Vorlen::GenICam::CSystem; tests put a recording stand-in in its place.
class IDiscoverySystem
{
public:
    virtual ~IDiscoverySystem() = default;
    virtual bool discovery(CameraPtrVector& cameras, Vorlen::GenICam::EInterfaceType type) = 0;
    virtual bool discoveryEx(CameraPtrVector& cameras, Vorlen::GenICam::EDiscoveryMode mode,
                             Vorlen::GenICam::CSystem::_DiscoveryModeInfo info) = 0;
    virtual bool getCameraPtrAll(CameraPtrVector& cameras) = 0;
};

class CSdkDiscoverySystem : public IDiscoverySystem
{
public:
    bool discovery(CameraPtrVector& cameras, Vorlen::GenICam::EInterfaceType type) override;
    bool discoveryEx(CameraPtrVector& cameras, Vorlen::GenICam::EDiscoveryMode mode,
                     Vorlen::GenICam::CSystem::_DiscoveryModeInfo info) override;
    bool getCameraPtrAll(CameraPtrVector& cameras) override;
};

class CDiscoveryDevicesThread : public QThread
{
    Q_OBJECT
public:
    // Mode flags of StartDiscovery (0 means bits 0 and 1 together).
    enum EDiscoveryFlag
    {
        flagNetwork = 1,           // broadcast discovery and/or unicast probing
        flagSecondInterface = 2,   // discovery on interface kind 1
        flagStartup = 8            // first pass at start-up; no effect here
    };

    // Made on first use (thread-safe) while the application's singleton
    // owner (CSingletonOwner) keeps it; null before the owner starts and
    // after it has ended. The owner stops and deletes it.
    static CDiscoveryDevicesThread* getInstance();
    // The system the next singleton is built with (null: the camera library).
    // Lets tests run the device manager on stand-in cameras.
    static void setDefaultSystem(std::shared_ptr<IDiscoverySystem> system);

    // The application uses getInstance(); a separate instance with its own
    // system (null: the camera library) serves tests.
    explicit CDiscoveryDevicesThread(std::shared_ptr<IDiscoverySystem> system = nullptr, QObject* parent = nullptr);
    ~CDiscoveryDevicesThread() override;

    // Stores the request for the worker; a later request before the worker
    // takes it replaces it. ip: "" refresh, "255.255.255.255" broadcast only,
    // or one dotted quad to probe by unicast.
    void StartDiscovery(QString ip, int flags);
    bool isDisconvrying() const { return m_bDiscovering; }
    bool isFirstDiscoveryFinished() const { return m_bFirstDiscoveryFinished; }
    CameraPtrVector getVecCamera();
    void clear();
    // clear(), then ends the thread and waits for it.
    void stop();
    // Asks the thread to end without waiting: an idle one ends at once, a
    // pass under way finishes first.
    void requestStop();
    // One pass in the caller's thread; always reports success.
    void runOnce();

    // Addresses kept for unicast re-probing (copy; for diagnostics and tests).
    QVector<QString> unicastAddresses();

signals:
    void discoveryDevicesFinished(bool ok);

protected:
    void run() override;

private:
    bool discoveryDevices();
    bool probeUnicast(const QString& ip);

    QMutex m_cameraMutex;
    CameraPtrVector m_vecCamera;
    std::atomic<bool> m_bStop{false};
    std::atomic<bool> m_bDiscovering{false};
    std::atomic<bool> m_bFirstDiscoveryFinished{false};
    QVector<QString> m_vecUnicastIp;   // worker thread only (copy under m_unicastMutex for readers)
    QMutex m_unicastMutex;
    QString m_strIp;
    int m_nFlags = 0;
    QMutex m_requestMutex;
    QMutex m_idleMutex;           // with m_idleWake: the idle sleep, ended early by a stop
    QWaitCondition m_idleWake;

    std::shared_ptr<IDiscoverySystem> m_system;
};
