#include "CSetIpThread.h"

#include "CDeviceManager.h"
#include "CTavDevice.h"
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
}

void CSetIpThread::stop()
{
    m_bStop = true;
    if (isRunning())
        wait();
}

void CSetIpThread::run()
{
    LOG_DEBUG("SetIpThread run begin");
    while (!m_bStop) {
        m_mutex.lock();
        if (!m_bPending) {
            m_mutex.unlock();
            msleep(100);
            continue;
        }
        const QString key = m_strKey, ip = m_strIp, mask = m_strMask, gateway = m_strGateway;
        // Taken now rather than after the answer, so a retry the answer prompts is kept.
        m_bPending = false;
        m_mutex.unlock();

        bool ok = false;
        CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key);
        if (device)
            ok = device->setPersistentIp(ip, mask, gateway);
        else
            LOG_ERROR("getDeviceByKey failed. [%s]", key.toLocal8Bit().constData());
        emit signalSetIpEnd(ok);
    }
    LOG_DEBUG("SetIpThread run end");
}
