// The job-queue worker: order, idle waits, stopping with and without the
// queued jobs, retiring while a job runs, pauses that end on stop, and the
// process-wide quiet state the end of the program waits for.
#include <QPointer>
#include <QSemaphore>
#include <QtTest>
#include <atomic>
#include <memory>

#include "CJobQueueThread.h"

namespace {
// A job that blocks until the test lets it go.
struct SGate
{
    QSemaphore entered, release;
    CJobQueueThread::Job job()
    {
        return [this]() {
            entered.release();
            release.acquire();
        };
    }
};

// Holds the worker inside a job at the gate, with one counting job queued
// behind it.
bool holdWithOneQueued(CJobQueueThread& worker, SGate& gate, std::atomic<int>& ran)
{
    worker.post(gate.job());
    return gate.entered.tryAcquire(1, 10000) && worker.post([&ran]() { ++ran; });
}

// Exposes the pause to a job.
class CPausingQueue : public CJobQueueThread
{
public:
    CPausingQueue() : CJobQueueThread("CPausingQueue") {}
    bool pause(int ms) { return pauseUnlessStopping(ms); }
};
} // namespace

class TestJobQueue : public QObject
{
    Q_OBJECT
private slots:
    void jobsRunInOrderOnTheWorker();
    void stopRunsOrDropsTheQueue();
    void retiredWorkerEndsOnItsOwn();
    void pauseEndsWhenStopped();
};

void TestJobQueue::jobsRunInOrderOnTheWorker()
{
    CJobQueueThread worker("TestWorker");
    QVERIFY(!worker.isBusy() && worker.waitIdle(0));

    SGate gate;
    QList<int> order;   // written by the worker only while the test waits
    std::atomic<bool> onWorker{true};
    QVERIFY(worker.post(gate.job()));
    for (int i = 0; i < 20; ++i)
        worker.post([&order, &onWorker, &worker, i]() {
            order.append(i);
            onWorker = onWorker && QThread::currentThread() == &worker;
        });
    QVERIFY(gate.entered.tryAcquire(1, 10000) && worker.isBusy());
    QCOMPARE(worker.pendingCount(), 20);
    QVERIFY(!worker.waitIdle(0) && !CJobQueueThread::waitUntilQuiet(0));

    gate.release.release();
    QVERIFY(worker.waitIdle(10000) && CJobQueueThread::waitUntilQuiet(10000));
    QCOMPARE(order.size(), 20);
    for (int i = 0; i < order.size(); ++i)
        QCOMPARE(order[i], i);
    QVERIFY(onWorker && !worker.isBusy());

    // Dropped before they start: what they hold is released.
    QVERIFY(worker.post(gate.job()) && gate.entered.tryAcquire(1, 10000));
    auto held = std::make_shared<int>(1);
    worker.post([held]() {});
    QCOMPARE(held.use_count(), 2L);
    worker.clearPending();
    QCOMPARE(held.use_count(), 1L);
    gate.release.release();
    QVERIFY(worker.waitIdle(10000));
}

void TestJobQueue::stopRunsOrDropsTheQueue()
{
    // Without dropping: the queued jobs still run, then the thread ends.
    {
        CJobQueueThread worker("TestWorker");
        SGate gate;
        std::atomic<int> ran{0};
        QVERIFY(holdWithOneQueued(worker, gate, ran));
        worker.post([&ran]() { ++ran; });
        worker.stop();
        QVERIFY(worker.isStopping() && !worker.post([&ran]() { ran += 100; }));
        gate.release.release();
        QVERIFY(worker.wait(10000));
        QCOMPARE(ran.load(), 2);
    }
    // Dropping: only the job under way finishes; a bounded stop reports
    // whether the thread ended in time.
    {
        CJobQueueThread worker("TestWorker");
        SGate gate;
        std::atomic<int> ran{0};
        QVERIFY(holdWithOneQueued(worker, gate, ran) && !worker.stopAndWait(0, true));
        QCOMPARE(worker.pendingCount(), 0);
        gate.release.release();
        QVERIFY(worker.stopAndWait(10000, true));
        QCOMPARE(ran.load(), 0);
    }
}

void TestJobQueue::retiredWorkerEndsOnItsOwn()
{
    // Retired inside a job: returns at once and the thread deletes itself
    // once the job returns; the queued job is dropped, or with retire(false)
    // runs first.
    for (const bool dropPending : {true, false})
    {
        auto* worker = new CJobQueueThread("TestWorker");
        QPointer<CJobQueueThread> alive(worker);
        SGate gate;
        std::atomic<int> ran{0};
        QVERIFY(holdWithOneQueued(*worker, gate, ran));
        worker->retire(dropPending);
        QVERIFY(alive && !CJobQueueThread::waitUntilQuiet(0));
        gate.release.release();
        QVERIFY(CJobQueueThread::waitUntilQuiet(10000));
        QTRY_VERIFY_WITH_TIMEOUT(alive.isNull(), 10000);
        QCOMPARE(ran.load(), dropPending ? 0 : 1);
    }
    // A worker that never ran goes at once.
    QPointer<CJobQueueThread> alive(new CJobQueueThread("TestWorker"));
    alive->retire();
    QTRY_VERIFY(alive.isNull());
    QVERIFY(CJobQueueThread::waitUntilQuiet(0));
}

void TestJobQueue::pauseEndsWhenStopped()
{
    CPausingQueue worker;
    QSemaphore pausing;
    std::atomic<int> result{-1};
    worker.post([&]() {
        pausing.release();
        result = worker.pause(600000) ? 1 : 0;
    });
    QVERIFY(pausing.tryAcquire(1, 10000));
    // A job posted meanwhile does not end the pause.
    worker.post([]() {});
    worker.stop();
    QVERIFY(worker.waitIdle(10000));
    QCOMPARE(result.load(), 0);

    // A short pause runs to its end.
    CPausingQueue other;
    other.post([&]() { result = other.pause(1) ? 1 : 0; });
    QVERIFY(other.waitIdle(10000));
    QCOMPARE(result.load(), 1);
}

QTEST_GUILESS_MAIN(TestJobQueue)
#include "test_job_queue.moc"
