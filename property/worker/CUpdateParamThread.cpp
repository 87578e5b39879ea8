#include "CUpdateParamThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

namespace {
const int kInfoTypeId = qRegisterMetaType<CFeatureNodeInfo>("CFeatureNodeInfo");
}

CUpdateParamThread::CUpdateParamThread(const CFeatureFormCamera::Ptr& camera, QObject* parent)
    : CRetiringThread(parent), m_camera(camera)
{
    Q_UNUSED(kInfoTypeId);
}

CUpdateParamThread::~CUpdateParamThread()
{
    requestStop();
    wait();
}

void CUpdateParamThread::SetPropertyList(const QList<QString>& names)
{
    QMutexLocker lock(&m_mutex);
    m_listProperty = names;
    m_wake.wakeAll();
}

void CUpdateParamThread::appendPropertyList(const QList<QString>& names)
{
    QMutexLocker lock(&m_mutex);
    for (const QString& name : names)
        if (!m_listProperty.contains(name))
            m_listProperty.append(name);
    m_wake.wakeAll();
}

QString CUpdateParamThread::getProperty()
{
    QMutexLocker lock(&m_mutex);
    return m_listProperty.isEmpty() ? QString() : m_listProperty.takeFirst();
}

int CUpdateParamThread::pendingCount()
{
    QMutexLocker lock(&m_mutex);
    return m_listProperty.size();
}

void CUpdateParamThread::requestStop()
{
    QMutexLocker lock(&m_mutex);
    m_bStopped = true;
    m_listProperty.clear();
    m_wake.wakeAll();
}

void CUpdateParamThread::run()
{
    LOG_DEBUG("CUpdateParamThread run begin");
    for (;;)
    {
        QString name;
        {
            QMutexLocker lock(&m_mutex);
            while (!m_bStopped && m_listProperty.isEmpty())
                m_wake.wait(&m_mutex);
            if (m_bStopped)
                break;
            name = m_listProperty.takeFirst();
        }
        const CFeatureNodeInfo info = m_camera->readNode(name);
        if (info.valid)
            emit nodeRead(info);
    }
    LOG_DEBUG("CUpdateParamThread run end");
}
