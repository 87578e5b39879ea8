#pragma once
#include <QList>
#include <QMutex>
#include "CObserver.h"

// Ordered, duplicate-free list of observers; Notify calls them in attach order.
class CSubject
{
public:
    void Attach(CObserver* observer);
    void Detach(CObserver* observer);
    void Notify(CTavMessagePtr msg);

private:
    QList<CObserver*> m_observers;
    QMutex m_mutex;   // not recursive: Update must not attach or detach
};
