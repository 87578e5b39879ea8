#include "CCameraTask.h"

#include <QThread>
#include <atomic>
#include <memory>

#include "Utils.h"

namespace {
std::atomic<int> g_running{0};

struct SResult
{
    bool ok = false;
    QString error;
};
} // namespace

void CCameraTask::run(QObject* context, Work work, Done done)
{
    auto result = std::make_shared<SResult>();
    ++g_running;
    QThread* thread = QThread::create([result, work]() {
        result->ok = work ? work() : false;
        if (!result->ok)
            result->error = GetErrorDesc();   // the error is per thread: read it here
    });
    // finished() is delivered on the context's thread; the connection dies
    // with the context.
    QObject::connect(thread, &QThread::finished, context, [result, done]() {
        if (done)
            done(result->ok, result->error);
    });
    QObject::connect(thread, &QThread::finished, thread, [thread]() {
        --g_running;
        thread->deleteLater();
    });
    thread->start();
}

int CCameraTask::running()
{
    return g_running;
}
