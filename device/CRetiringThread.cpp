#include "CRetiringThread.h"

CRetiringThread::CRetiringThread(QObject* parent) : QThread(parent) {}

void CRetiringThread::retire()
{
    setParent(nullptr);
    requestStop();
    // finished() is emitted after isRunning() turns false (both under the
    // thread's own lock), so either the connection sees it or the check
    // below does. The destructor's wait() then covers only the last
    // instructions of the thread. A second deleteLater() is harmless.
    connect(this, &QThread::finished, this, &QObject::deleteLater, Qt::DirectConnection);
    if (!isRunning())
        deleteLater();
}
