// A camera lost while its stream starts or while it closes (stream stop and
// disconnect), alone and beside a streaming camera: the loss is reported
// within two heartbeat intervals (counted on the watchdogs' clock) while the
// call is still stuck in the camera; a start fails, a close ends, later
// calls fail at once with the loss; the other camera's frames and stream
// events keep coming.
#include <QtTest>

#include <atomic>
#include <thread>

#include "CEventRecorder.h"
#include "CFrameReader.h"
#include "CLossTest.h"
#include "EventHub.h"

using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;
using namespace LossTest;

class TestSdkStreamLoss : public CLossTest
{
    Q_OBJECT

private slots:
    void streamCallCutByLoss_data();
    void streamCallCutByLoss();
};

void TestSdkStreamLoss::streamCallCutByLoss_data()
{
    QTest::addColumn<bool>("closing");   // the close is cut, not the start
    QTest::addColumn<int>("cameras");
    QTest::addColumn<bool>("held");      // a call holds the camera all along
    QTest::newRow("start, alone") << false << 1 << false;
    QTest::newRow("start, beside a streaming camera") << false << 2 << false;
    QTest::newRow("start held, beside a streaming camera") << false << 2 << true;
    QTest::newRow("close held, alone") << true << 1 << true;
    QTest::newRow("close held, beside a streaming camera") << true << 2 << true;
}

void TestSdkStreamLoss::streamCallCutByLoss()
{
    QFETCH(bool, closing);
    QFETCH(int, cameras);
    QFETCH(bool, held);
    QVERIFY2(connectWatched(*m_clock, m_cam1, 1), qPrintable(lastErrorText()));
    CEventRecorder<SConnectArg> lostA;
    CInternalEventManager eventsA(m_cam1), eventsB(m_cam2);
    QVERIFY(eventsA.subscribeConnectArgs(lostA.proc()));
    CEventRecorder<SStreamArg> streamB;
    CInternalStreamSource sourceA(m_cam1), sourceB(m_cam2);
    std::unique_ptr<CFrameReader> readerB;
    if (cameras == 2) {
        QVERIFY2(connectWatched(*m_clock, m_cam2, 2), qPrintable(lastErrorText()));
        QVERIFY(eventsB.subscribeStreamArg(streamB.proc()));
        QVERIFY(sourceB.startGrabbing());
        readerB.reset(new CFrameReader(sourceB));
        QTRY_VERIFY_WITH_TIMEOUT(readerB->frames() > 0, 10000);
    }

    // The camera vanishes as its stream starts or as it closes: the call
    // waits on the camera (in its round trips, or behind a call that holds
    // it).
    if (closing)
        QVERIFY(sourceA.startGrabbing());
    std::unique_lock<std::recursive_mutex> holder(toAravisCamera(m_cam1)->gcMutex(), std::defer_lock);
    if (held)
        holder.lock();
    m_rig.stop(m_fake1);
    std::atomic<bool> done{false}, succeeded{false};
    std::atomic<int> callError{-1};
    std::thread call([&] {
        if (closing) {
            sourceA.stopGrabbing();
            succeeded = internal(m_cam1)->disConnect();
        } else {
            succeeded = sourceA.startGrabbing();
        }
        callError = getLastError();
        done = true;
    });
    const int quarters = quartersUntil(*m_clock, [&] { return lostA.count(isOffline) > 0; }, cameras);
    QVERIFY2(quarters > 0 && quarters <= 2 * kQuartersPerHeartbeat, qPrintable(QString::number(quarters)));
    if (held) {
        // Given up (a start) or finished (a close) while the camera is
        // still held.
        QTRY_VERIFY_WITH_TIMEOUT(done.load(), 10000);
        if (!closing)
            QCOMPARE(callError.load(), int(ERR_DEVICE_LOST));
        holder.unlock();
    }
    call.join();
    QCOMPARE(succeeded.load(), closing);
    QVERIFY(!sourceA.isGrabbing());
    QVERIFY(!m_cam1->isConnected());
    // A new start fails at once: with the loss, or, once closed, because
    // the camera is no longer connected.
    QVERIFY(!sourceA.startGrabbing());
    QCOMPARE(getLastError(), int(closing ? ERR_NOT_CONNECTED : ERR_DEVICE_LOST));

    if (cameras == 2) {
        // The other camera's frames and stream events keep coming.
        const int frames = readerB->frames();
        auto normalEvents = [&] {
            return streamB.count([](const SStreamArg& a) { return a.eStreamEventStatus == streamEventNormal; });
        };
        const size_t normal = normalEvents();
        QTRY_VERIFY_WITH_TIMEOUT(readerB->frames() > frames + 5, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(normalEvents() > normal, 10000);
        readerB->stop();
        QVERIFY(sourceB.stopGrabbing());
        QVERIFY(m_cam2->isConnected());
        QVERIFY(eventsB.unsubscribeStreamArg());
    }
    QVERIFY(EventHub::flush(5000));
    QCOMPARE(lostA.count(), size_t(1));
}

QTEST_GUILESS_MAIN(TestSdkStreamLoss)
#include "tst_sdk_stream_loss.moc"
