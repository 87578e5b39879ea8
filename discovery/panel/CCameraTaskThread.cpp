#include "CCameraTaskThread.h"

#include <atomic>
#include <memory>

#include "Utils.h"

namespace {
std::atomic<int> g_live{0};
} // namespace

CCameraTaskThread::CCameraTaskThread(const char* name, QObject* parent) : CJobQueueThread(name, parent)
{
    ++g_live;
}

CCameraTaskThread::~CCameraTaskThread()
{
    // A task under way emits on this object: it must end before this part
    // of the object goes. The wait is bounded for a retired worker, which is
    // deleted only once it has finished; an owner that deletes it directly
    // (tests) waits for the task under way.
    stop(true);
    wait();
    --g_live;
}

bool CCameraTaskThread::run(QObject* context, Work work, Done done)
{
    const quint64 id = ++m_nLastId;
    // One connection per task, gone with the context or after its answer.
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(
        this, &CCameraTaskThread::taskFinished, context,
        [id, done, connection](quint64 finished, bool ok, const QString& errorText) {
            if (finished != id)
                return;
            QObject::disconnect(*connection);
            if (done)
                done(ok, errorText);
        },
        Qt::QueuedConnection);
    const bool queued = post([this, id, work]() {
        const bool ok = work && work();
        // The error text is per thread: read it here.
        emit taskFinished(id, ok, ok ? QString() : GetErrorDesc());
    });
    if (!queued)
        QObject::disconnect(*connection);
    return queued;
}

int CCameraTaskThread::liveCount()
{
    return g_live;
}
