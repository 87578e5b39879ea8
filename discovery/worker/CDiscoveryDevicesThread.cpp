#include "CDiscoveryDevicesThread.h"

#include <QByteArray>
#include <cstring>
#include <mutex>

#include "CSingletonSlot.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;

namespace {
const char* const kLogSource = "DiscoveryDeviceThread";
const char* const kBroadcastAddress = "255.255.255.255";

std::mutex g_defaultSystemMutex;
std::shared_ptr<IDiscoverySystem> g_defaultSystem;
}

bool CSdkDiscoverySystem::discovery(CameraPtrVector& cameras, EInterfaceType type)
{
    return CSystem::getInstance().discovery(cameras, type);
}

bool CSdkDiscoverySystem::discoveryEx(CameraPtrVector& cameras, EDiscoveryMode mode, CSystem::_DiscoveryModeInfo info)
{
    return CSystem::getInstance().discoveryEx(cameras, mode, info);
}

bool CSdkDiscoverySystem::getCameraPtrAll(CameraPtrVector& cameras)
{
    return CSystem::getInstance().getCameraPtrAll(cameras);
}

CDiscoveryDevicesThread* CDiscoveryDevicesThread::getInstance()
{
    return CSingletonSlot<CDiscoveryDevicesThread>::instance([]() {
        std::lock_guard<std::mutex> locker(g_defaultSystemMutex);
        return new CDiscoveryDevicesThread(g_defaultSystem);
    });
}

void CDiscoveryDevicesThread::setDefaultSystem(std::shared_ptr<IDiscoverySystem> system)
{
    std::lock_guard<std::mutex> locker(g_defaultSystemMutex);
    g_defaultSystem = std::move(system);
}

CDiscoveryDevicesThread::CDiscoveryDevicesThread(std::shared_ptr<IDiscoverySystem> system, QObject* parent)
    : QThread(parent), m_system(system ? std::move(system) : std::make_shared<CSdkDiscoverySystem>())
{
}

CDiscoveryDevicesThread::~CDiscoveryDevicesThread()
{
    stop();
}

void CDiscoveryDevicesThread::StartDiscovery(QString ip, int flags)
{
    QMutexLocker locker(&m_requestMutex);
    m_strIp = ip;
    m_nFlags = flags;
    m_bDiscovering = true;
}

CameraPtrVector CDiscoveryDevicesThread::getVecCamera()
{
    QMutexLocker locker(&m_cameraMutex);
    return m_vecCamera;
}

void CDiscoveryDevicesThread::clear()
{
    QMutexLocker locker(&m_cameraMutex);
    m_vecCamera.clear();
}

void CDiscoveryDevicesThread::stop()
{
    clear();
    requestStop();
    wait();
}

void CDiscoveryDevicesThread::requestStop()
{
    QMutexLocker locker(&m_idleMutex);
    m_bStop = true;
    m_idleWake.wakeAll();
}

void CDiscoveryDevicesThread::runOnce()
{
    discoveryDevices();
    emit discoveryDevicesFinished(true);
}

QVector<QString> CDiscoveryDevicesThread::unicastAddresses()
{
    QMutexLocker locker(&m_unicastMutex);
    return m_vecUnicastIp;
}

void CDiscoveryDevicesThread::run()
{
    TAVLOG_SRC(TAVLOG_LEVEL_DEBUG, kLogSource, "DiscoveryDevicesThread run begin");
    while (!m_bStop)
    {
        if (m_bDiscovering)
        {
            const bool result = discoveryDevices();
            // Cleared after the pass: a request stored while the pass ran is
            // absorbed by it.
            m_bDiscovering = false;
            emit discoveryDevicesFinished(result);
        }
        else
        {
            // 100 ms between looks at the request; a stop ends the sleep.
            QMutexLocker locker(&m_idleMutex);
            if (!m_bStop)
                m_idleWake.wait(&m_idleMutex, 100);
        }
    }
    TAVLOG_SRC(TAVLOG_LEVEL_DEBUG, kLogSource, "DiscoveryDevicesThread run end");
}

bool CDiscoveryDevicesThread::probeUnicast(const QString& ip)
{
    CSystem::_DiscoveryModeInfo info;
    const QByteArray address = ip.toLocal8Bit();
    const size_t n = qMin(static_cast<size_t>(address.size()), sizeof(info.ipAddress) - 1);
    std::memcpy(info.ipAddress, address.constData(), n);
    info.ipAddress[n] = '\0';

    CameraPtrVector cameras;
    const bool ok = m_system->discoveryEx(cameras, discoveryUnicast, info);
    return ok && !cameras.empty();
}

bool CDiscoveryDevicesThread::discoveryDevices()
{
    QString ip;
    int flags = 0;
    {
        QMutexLocker locker(&m_requestMutex);
        ip = m_strIp;
        flags = m_nFlags;
    }

    bool result = true;
    const bool networkPass = (flags & flagNetwork) || flags == 0;
    const bool secondPass = (flags & flagSecondInterface) || flags == 0;

    if (networkPass)
    {
        if (ip.isEmpty() || ip == QLatin1String(kBroadcastAddress))
        {
            // Only the library's registry matters; the handles go at once.
            CameraPtrVector found;
            m_system->discovery(found, static_cast<EInterfaceType>(0));
        }

        if (ip.isEmpty())
        {
            QVector<QString> previous;
            {
                QMutexLocker locker(&m_unicastMutex);
                previous.swap(m_vecUnicastIp);
            }
            QVector<QString> kept;
            for (const QString& address : previous)
            {
                if (probeUnicast(address))
                    kept.append(address);
            }
            QMutexLocker locker(&m_unicastMutex);
            m_vecUnicastIp = kept;
        }
        else if (ip == QLatin1String(kBroadcastAddress))
        {
            result = true;
        }
        else
        {
            QVector<QString> others;
            {
                QMutexLocker locker(&m_unicastMutex);
                for (const QString& address : m_vecUnicastIp)
                {
                    if (address != ip)
                        others.append(address);
                }
                m_vecUnicastIp = others;
            }
            if (probeUnicast(ip))
            {
                QMutexLocker locker(&m_unicastMutex);
                m_vecUnicastIp.append(ip);
                result = true;
            }
            else
            {
                result = false;
            }
        }
    }

    if (secondPass)
    {
        CameraPtrVector found;
        m_system->discovery(found, static_cast<EInterfaceType>(1));
    }

    CameraPtrVector all;
    m_system->getCameraPtrAll(all);
    {
        QMutexLocker locker(&m_cameraMutex);
        m_vecCamera.swap(all);
        m_bFirstDiscoveryFinished = true;
    }
    // Old handles are released here, outside the lock.
    return result;
}
