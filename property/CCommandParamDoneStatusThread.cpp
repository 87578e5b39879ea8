#include "CCommandParamDoneStatusThread.h"

#include "CPropertyFeaturesForm.h"
#include "Tavlog4cpp/TavLogMacros.h"

CCommandParamDoneStatusThread::CCommandParamDoneStatusThread(CPropertyFeaturesForm* form) : m_pForm(form) {}

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

void CCommandParamDoneStatusThread::run()
{
    LOG_DEBUG("CCommandParamDoneStatusThread run begin");
    while (m_bRunning)
    {
        {
            // Lock order: this list, then the form's mutex inside UpdateCmdDoneStatus.
            QMutexLocker lock(&m_mutex);
            for (int i = m_listProperty.size() - 1; i >= 0 && m_bRunning; --i)
                if (m_pForm->UpdateCmdDoneStatus(m_listProperty.at(i)))
                    m_listProperty.removeAt(i);
        }
        msleep(5);
    }
    LOG_DEBUG("CCommandParamDoneStatusThread run end");
}
