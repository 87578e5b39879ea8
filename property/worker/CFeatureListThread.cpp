#include "CFeatureListThread.h"

CFeatureListThread::CFeatureListThread(const char* name, QObject* parent) : CJobQueueThread(name, parent) {}

int CFeatureListThread::pendingNames() const
{
    QMutexLocker lock(&m_mutex);
    return m_names.size();
}

void CFeatureListThread::addNames(const QList<QString>& names, bool replace)
{
    QMutexLocker lock(&m_mutex);
    if (replace)
        m_names.clear();
    for (const QString& name : names)
        if (!m_names.contains(name))
            m_names.append(name);
    if (m_names.isEmpty() || m_bPassPosted)
        return;
    // A stopped worker takes no job; the flag then stays down.
    m_bPassPosted = post([this]() { pass(); });
}

QString CFeatureListThread::takeName()
{
    QMutexLocker lock(&m_mutex);
    if (m_names.isEmpty())
    {
        m_bPassPosted = false;
        return QString();
    }
    return m_names.takeFirst();
}

QList<QString> CFeatureListThread::listedNames()
{
    QMutexLocker lock(&m_mutex);
    if (m_names.isEmpty())
        m_bPassPosted = false;
    return m_names;
}

void CFeatureListThread::removeName(const QString& name)
{
    QMutexLocker lock(&m_mutex);
    m_names.removeAll(name);
}
