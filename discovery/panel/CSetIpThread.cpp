#include "CSetIpThread.h"

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Vorlen/GenICam.h"
#include "Tavlog4cpp/TavLogMacros.h"

CSetIpThread::CSetIpThread(QObject* parent) : QThread(parent) {}

CSetIpThread::~CSetIpThread()
{
    stop();
}

void CSetIpThread::startSetIp(QString key, QString ip, QString mask, QString gateway)
{
    QMutexLocker lock(&m_mutex);
    m_strKey = key;
    m_strIp = ip;
    m_strMask = mask;
    m_strGateway = gateway;
    m_bPending = true;
    m_wake.wakeAll();
}

void CSetIpThread::stop()
{
    {
        QMutexLocker lock(&m_mutex);
        m_bStop = true;
        m_wake.wakeAll();   // the join below then takes no longer than a write under way
    }
    if (isRunning())
        wait();
}

bool CSetIpThread::writePersistentIp(const QString& key, const QString& ip, const QString& mask,
                                     const QString& gateway)
{
    // A worker may outlive the device manager (the end of the program).
    CDeviceManager* manager = CDeviceManager::getInstance();
    CTavDevicePtr device = manager ? manager->getDeviceByKey(key) : CTavDevicePtr();
    if (!device) {
        LOG_ERROR("getDeviceByKey failed. [%s]", key.toLocal8Bit().constData());
        return false;
    }
    // The features are written over a control session: a camera that is not
    // open (the usual case after Force IP) gets a short one of its own.
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> camera = device->getInternalDevice();
    bool ownSession = false;
    if (!device->isConnected()) {
        if (!camera || !camera->connect(Vorlen::GenICam::accessPermissionControl)) {
            LOG_ERROR("connect for the persistent IP failed. [%s]", key.toLocal8Bit().constData());
            return false;
        }
        ownSession = true;
    }
    const bool ok = device->setPersistentIp(ip, mask, gateway);
    if (ownSession)
        camera->disConnect();
    return ok;
}

void CSetIpThread::run()
{
    LOG_DEBUG("SetIpThread run begin");
    while (!m_bStop) {
        m_mutex.lock();
        if (!m_bPending) {
            // Idle: look again after 100 ms, or at once when woken.
            if (!m_bStop)
                m_wake.wait(&m_mutex, 100);
            m_mutex.unlock();
            continue;
        }
        const QString key = m_strKey, ip = m_strIp, mask = m_strMask, gateway = m_strGateway;
        // Taken now rather than after the answer, so a retry the answer prompts is kept.
        m_bPending = false;
        m_mutex.unlock();

        emit signalSetIpEnd(writePersistentIp(key, ip, mask, gateway));
    }
    LOG_DEBUG("SetIpThread run end");
}
