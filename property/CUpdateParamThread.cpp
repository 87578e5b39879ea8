#include "CUpdateParamThread.h"

#include "CPropertyFeaturesForm.h"
#include "Tavlog4cpp/TavLogMacros.h"

CUpdateParamThread::CUpdateParamThread(CPropertyFeaturesForm* form) : m_pForm(form) {}

void CUpdateParamThread::SetPropertyList(const QList<QString>& names)
{
    QMutexLocker lock(&m_mutex);
    m_listProperty = names;
}

void CUpdateParamThread::appendPropertyList(const QList<QString>& names)
{
    QMutexLocker lock(&m_mutex);
    for (const QString& name : names)
        if (!m_listProperty.contains(name))
            m_listProperty.append(name);
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

void CUpdateParamThread::run()
{
    LOG_DEBUG("CUpdateParamThread run begin");
    while (m_bRunning)
    {
        const QString name = getProperty();
        if (!name.isEmpty())
        {
            m_pForm->UpdateParameter(name);
            continue;
        }
        msleep(5);
    }
    LOG_DEBUG("CUpdateParamThread run end");
}
