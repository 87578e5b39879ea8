#include "CSubject.h"

#include <QMutexLocker>

void CSubject::Attach(CObserver* observer)
{
    if (!observer)
        return;
    QMutexLocker lock(&m_mutex);
    if (!m_observers.contains(observer))
        m_observers.append(observer);
}

void CSubject::Detach(CObserver* observer)
{
    QMutexLocker lock(&m_mutex);
    m_observers.removeOne(observer);
}

void CSubject::Notify(CTavMessagePtr msg)
{
    QMutexLocker lock(&m_mutex);
    for (CObserver* observer : qAsConst(m_observers)) {
        CTavMessagePtr copy(msg);
        observer->Update(copy);
    }
}
