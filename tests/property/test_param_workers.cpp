// The features page's workers without a camera: the update queue, the
// command watch and the write queue, each given a reader the test controls,
// which can be held inside its "camera call" to see what the worker does
// meanwhile. (The one-shot loader is seen through the features page.)
#include <QPointer>
#include <QSemaphore>
#include <QtTest>

#include "CCommandParamDoneStatusThread.h"
#include "CUpdateParamThread.h"
#include "CWriteParamThread.h"
#include "QueuedSignalSpy.h"

// A camera call the test holds: the worker enters it and stays until released.
struct CameraCall
{
    QSemaphore entered, released;
    void pass()
    {
        entered.release();
        released.acquire();
    }
    bool waitEntered() { return entered.tryAcquire(1, 10000); }
};

static CFeatureNodeInfo record(const QString& name, bool valid = true)
{
    CFeatureNodeInfo info;
    info.valid = valid;
    info.name = name;
    return info;
}

static QStringList names(const QueuedSignalSpy& spy)
{
    QStringList out;
    for (const QList<QVariant>& args : spy)
        out.append(args.at(0).canConvert<CFeatureNodeInfo>() ? args.at(0).value<CFeatureNodeInfo>().name
                                                              : args.at(0).toString());
    return out;
}

class TestParamWorkers : public QObject
{
    Q_OBJECT
private slots:
    void updateQueueReplacesAndAppends();
    void commandWatchNeverWaitsOnTheCamera();
    void writesRunInOrderAndStopWithTheirOwner();
};

void TestParamWorkers::updateQueueReplacesAndAppends()
{
    CameraCall hold;
    CUpdateParamThread worker([&](const QString& name) {
        if (name == "hold")
            hold.pass();
        return record(name, name != "gone");
    });
    QueuedSignalSpy read(&worker, &CUpdateParamThread::nodeRead);
    QCOMPARE(worker.getProperty(), QString());

    worker.appendPropertyList({"hold"});
    QVERIFY(hold.waitEntered());
    // While the worker waits on the camera: appending skips names already
    // pending, a new list replaces the pending names, appending adds after.
    worker.appendPropertyList({"a", "b", "a"});
    QCOMPARE(worker.pendingNames(), 2);
    worker.SetPropertyList({"c", "d"});
    QCOMPARE(worker.pendingNames(), 2);
    worker.appendPropertyList({"d", "gone", "e"});
    QCOMPARE(worker.pendingNames(), 4);
    hold.released.release();

    // In order; a feature that cannot be read yields no record.
    QVERIFY(QTest::qWaitFor([&]() { return read.count() == 4; }, 10000));
    QCOMPARE(names(read), QStringList({"hold", "c", "d", "e"}));
    QCOMPARE(worker.pendingNames(), 0);

    // Names that come after the queue ran dry start a new pass.
    worker.SetPropertyList({"f"});
    QVERIFY(read.wait(10000));
    QCOMPARE(names(read).last(), QString("f"));
}

void TestParamWorkers::commandWatchNeverWaitsOnTheCamera()
{
    CameraCall hold;
    QAtomicInt runDone(0);
    CCommandParamDoneStatusThread worker([&](const QString& name, CFeatureNodeInfo& info) {
        if (name == "slow")
        {
            hold.pass();
            info = record(name);
            return CFeatureFormCamera::commandDone;
        }
        if (name == "run" && !runDone.loadAcquire())
            return CFeatureFormCamera::commandRunning;
        if (name == "lost")
            return CFeatureFormCamera::commandGone;
        info = record(name);
        return name == "plain" ? CFeatureFormCamera::commandNone : CFeatureFormCamera::commandDone;
    });
    QueuedSignalSpy done(&worker, &CCommandParamDoneStatusThread::setDone);
    QueuedSignalSpy abandoned(&worker, &CCommandParamDoneStatusThread::abandoned);

    // The worker asks the camera about "slow" and waits there; adding
    // commands and counting them meanwhile return at once.
    worker.addProperty("slow");
    QVERIFY(hold.waitEntered());
    worker.addProperty("run");
    worker.addProperty("run");   // already watched: one entry
    QCOMPARE(worker.pendingNames(), 2);
    hold.released.release();

    QVERIFY(done.wait(10000));
    QCOMPARE(names(done), QStringList({"slow"}));
    QCOMPARE(worker.pendingNames(), 1);   // "run" still runs
    worker.addProperty("lost");
    worker.addProperty("plain");
    QVERIFY(abandoned.wait(10000));
    QCOMPARE(names(abandoned), QStringList({"lost"}));
    QTRY_COMPARE_WITH_TIMEOUT(worker.pendingNames(), 1, 10000);   // "plain" is no command: dropped
    runDone.storeRelease(1);
    QVERIFY(done.wait(10000));
    QCOMPARE(names(done), QStringList({"slow", "run"}));
    QCOMPARE(worker.pendingNames(), 0);
}

void TestParamWorkers::writesRunInOrderAndStopWithTheirOwner()
{
    QStringList ran;   // written by the worker, read once it has finished
    CameraCall hold;
    auto* owner = new QObject;
    auto* worker = new CWriteParamThread();
    QPointer<CWriteParamThread> alive(worker);
    QStringList continued;
    QList<QThread*> continuedOn;
    QObject::connect(
        worker, &CWriteParamThread::jobDone, owner,
        [&](const CWriteContinuation& continuation) {
            continuation();
            continuedOn.append(QThread::currentThread());
        },
        Qt::QueuedConnection);
    for (const char* name : {"a", "b", "c"})
        worker->addJob([&, name]() -> CWriteContinuation {
            ran.append(name);
            if (QString(name) == "b")
                return CWriteContinuation();   // nothing to do on the page
            return [&, name]() { continued.append(name); };
        });
    QTRY_COMPARE_WITH_TIMEOUT(continued, QStringList({"a", "c"}), 10000);
    QCOMPARE(continuedOn, QList<QThread*>({QThread::currentThread(), QThread::currentThread()}));

    // The owner goes while a write waits on the camera and another is
    // queued: retiring returns at once, the queued write never runs, the
    // result of the one under way goes nowhere, and the worker goes.
    worker->addJob([&]() -> CWriteContinuation {
        hold.pass();
        return [&]() { continued.append("held"); };
    });
    worker->addJob([&]() -> CWriteContinuation {
        ran.append("dropped");
        return CWriteContinuation();
    });
    QVERIFY(hold.waitEntered());
    delete owner;
    worker->retire();
    hold.released.release();
    QTRY_VERIFY_WITH_TIMEOUT(alive.isNull(), 10000);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(ran, QStringList({"a", "b", "c"}));
    QCOMPARE(continued, QStringList({"a", "c"}));
}

QTEST_MAIN(TestParamWorkers)
#include "test_param_workers.moc"
