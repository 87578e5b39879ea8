// A camera lost in the middle of feature reads, alone and beside another
// camera: the loss is reported within two heartbeat intervals (counted on
// the watchdogs' clock), whatever holds the camera and whatever another
// camera's subscribers do; calls into the lost camera fail at once with the
// loss; the other camera carries on.
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "CEventRecorder.h"
#include "CLossTest.h"
#include "CReadSequence.h"
#include "EventHub.h"

using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;
using namespace LossTest;

namespace {

size_t offlineCount(CEventRecorder<SConnectArg>& events)
{
    return events.count(isOffline);
}

} // namespace

class TestSdkLoss : public CLossTest
{
    Q_OBJECT

private slots:
    void featureReadsCutByLoss_data();
    void featureReadsCutByLoss();
    void reportNeedsNoLockNorOtherCamera();
};

void TestSdkLoss::featureReadsCutByLoss_data()
{
    QTest::addColumn<int>("cameras");
    QTest::newRow("alone") << 1;
    QTest::newRow("beside another") << 2;
}

void TestSdkLoss::featureReadsCutByLoss()
{
    QFETCH(int, cameras);
    QVERIFY2(connectWatched(*m_clock, m_cam1, 1), qPrintable(lastErrorText()));
    CEventRecorder<SConnectArg> lostA, lostB;
    CEventRecorder<SParamUpdataArg> updatesB;
    CInternalEventManager eventsA(m_cam1), eventsB(m_cam2);
    QVERIFY(eventsA.subscribeConnectArgs(lostA.proc()));
    std::atomic<bool> reported{false};
    std::unique_ptr<CReadSequence> readsB;
    std::atomic<bool> stopWrites{false};
    std::thread writesB;
    if (cameras == 2) {
        QVERIFY2(connectWatched(*m_clock, m_cam2, 2), qPrintable(lastErrorText()));
        QVERIFY(eventsB.subscribeConnectArgs(lostB.proc()));
        QVERIFY(eventsB.subscribeParamUpdate(updatesB.proc()));
        readsB.reset(new CReadSequence(m_cam2, reported));
        writesB = std::thread([&] {
            for (int i = 0; !stopWrites; ++i)
                CBoolNode(m_cam2, "ReverseX").setValue(i % 2 == 0);
        });
    }

    // A long read sequence under way when the camera vanishes.
    CReadSequence readsA(m_cam1, reported);
    QTRY_VERIFY_WITH_TIMEOUT(readsA.succeeded() >= 20, 10000);
    m_rig.stop(m_fake1);
    const int quarters = quartersUntil(*m_clock, [&] { return offlineCount(lostA) > 0; }, cameras);
    QVERIFY2(quarters > 0 && quarters <= 2 * kQuartersPerHeartbeat, qPrintable(QString::number(quarters)));

    reported = true;

    // Every read begun once the loss was known failed with the loss (not
    // after a timeout of its own, which would say ERR_TIMEOUT).
    QTRY_VERIFY_WITH_TIMEOUT(readsA.afterReport().size() >= 50, 20000);
    readsA.stop();
    const std::vector<int> afterReport = readsA.afterReport();
    QVERIFY(std::all_of(afterReport.begin(), afterReport.end(), [](int e) { return e == ERR_DEVICE_LOST; }));
    QVERIFY(!m_cam1->isConnected());

    if (cameras == 2) {
        // The other camera carries on: its reads, its writes and their events.
        const size_t updatesBefore = updatesB.count();
        QTRY_VERIFY_WITH_TIMEOUT(readsB->afterReport().size() > 10, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(updatesB.count() > updatesBefore + 10, 10000);
        stopWrites = true;
        writesB.join();
        readsB->stop();
        const std::vector<int> readB = readsB->afterReport();
        QVERIFY(std::all_of(readB.begin(), readB.end(), [](int e) { return e == ERR_OK; }));
        QVERIFY(m_cam2->isConnected());
        QCOMPARE(lostB.count(), size_t(0));
    }
    QVERIFY(EventHub::flush(5000));
    QCOMPARE(offlineCount(lostA), size_t(1));
}

void TestSdkLoss::reportNeedsNoLockNorOtherCamera()
{
    QVERIFY2(connectWatched(*m_clock, m_cam1, 1), qPrintable(lastErrorText()));
    QVERIFY2(connectWatched(*m_clock, m_cam2, 2), qPrintable(lastErrorText()));
    CEventRecorder<SConnectArg> lostA;
    CInternalEventManager eventsA(m_cam1), eventsB(m_cam2);
    QVERIFY(eventsA.subscribeConnectArgs(lostA.proc()));

    // Camera B's subscriber is stuck in its event.
    std::mutex gateMutex;
    std::condition_variable gate;
    bool stuck = false, open = false;
    QVERIFY(eventsB.subscribeParamUpdate([&](const SParamUpdataArg&) {
        std::unique_lock<std::mutex> lock(gateMutex);
        stuck = true;
        gate.notify_all();
        gate.wait(lock, [&] { return open; });
    }));
    QVERIFY(CBoolNode(m_cam2, "ReverseX").setValue(true));
    {
        std::unique_lock<std::mutex> lock(gateMutex);
        QVERIFY(gate.wait_for(lock, std::chrono::seconds(10), [&] { return stuck; }));
    }

    // A call holds camera A in a round trip that never ends, and another
    // waits for it.
    std::unique_lock<std::recursive_mutex> held(toAravisCamera(m_cam1)->gcMutex());
    std::atomic<int> waiterError{-1};
    std::thread waiter([&] {
        long value = 0;
        CIntNode(m_cam1, "Width").getValue(value);
        waiterError = getLastError();
    });

    m_rig.stop(m_fake1);
    const int quarters = quartersUntil(*m_clock, [&] { return offlineCount(lostA) > 0; }, 2);
    QVERIFY2(quarters > 0 && quarters <= 2 * kQuartersPerHeartbeat, qPrintable(QString::number(quarters)));
    // The waiter gave up with the loss while the camera is still held.
    QTRY_COMPARE_WITH_TIMEOUT(waiterError.load(), int(ERR_DEVICE_LOST), 10000);
    QVERIFY(held.owns_lock());
    long value = 0;
    QVERIFY(!CIntNode(m_cam1, "Height").getValue(value));
    QCOMPARE(getLastError(), int(ERR_DEVICE_LOST));

    held.unlock();
    waiter.join();
    {
        std::lock_guard<std::mutex> lock(gateMutex);
        open = true;
    }
    gate.notify_all();
    QVERIFY(eventsB.unsubscribeParamUpdate());
    QVERIFY(m_cam2->isConnected());
}

QTEST_GUILESS_MAIN(TestSdkLoss)
#include "tst_sdk_loss.moc"
