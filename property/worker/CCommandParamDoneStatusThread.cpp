#include "CCommandParamDoneStatusThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

CCommandParamDoneStatusThread::CCommandParamDoneStatusThread(const CFeatureFormCamera::Ptr& camera,
                                                             QObject* parent)
    : CRetiringThread(parent), m_camera(camera)
{
    qRegisterMetaType<CFeatureNodeInfo>("CFeatureNodeInfo");
}

CCommandParamDoneStatusThread::~CCommandParamDoneStatusThread()
{
    requestStop();
    wait();
}

void CCommandParamDoneStatusThread::addProperty(const QString& name)
{
    QMutexLocker lock(&m_mutex);
    if (!m_listProperty.contains(name))
        m_listProperty.append(name);
}

int CCommandParamDoneStatusThread::pendingCount()
{
    QMutexLocker lock(&m_mutex);
    return m_listProperty.size();
}

void CCommandParamDoneStatusThread::requestStop()
{
    m_bRunning = false;
}

void CCommandParamDoneStatusThread::run()
{
    LOG_DEBUG("CCommandParamDoneStatusThread run begin");
    while (m_bRunning)
    {
        {
            // Lock order: this list, then the camera's lock inside commandState.
            QMutexLocker lock(&m_mutex);
            for (int i = m_listProperty.size() - 1; i >= 0 && m_bRunning; --i)
            {
                const QString name = m_listProperty.at(i);
                CFeatureNodeInfo info;
                switch (m_camera->commandState(name, info))
                {
                case CFeatureFormCamera::commandRunning:
                    continue;
                case CFeatureFormCamera::commandDone:
                    emit setDone(name, info);
                    break;
                case CFeatureFormCamera::commandGone:
                    LOG_WARN("command abandoned, the device is gone. name: [%s]", name.toLocal8Bit().constData());
                    emit abandoned(name);
                    break;
                case CFeatureFormCamera::commandNone:
                    break;
                }
                m_listProperty.removeAt(i);
            }
        }
        msleep(5);
    }
    LOG_DEBUG("CCommandParamDoneStatusThread run end");
}
