// Semantics of the discovery worker against a recording stand-in for the
// camera library: request coalescing, the unicast list, the result rule.
#include <QSemaphore>
#include <QStringList>
#include <QtTest>
#include <memory>
#include <utility>

#include "CDiscoveryDevicesThread.h"
#include "QueuedSignalSpy.h"

using namespace Vorlen::GenICam;

namespace {

class StubCamera : public ICamera
{
public:
    explicit StubCamera(const char* key) : m_key(key) {}
    CString getKey() const override { return m_key; }
    CString getName() const override { return "Stub"; }
    CString getSerialNumber() const override { return m_key; }
    CString getVendorName() const override { return "Lumidor"; }
    EInterfaceType getType() const override { return typeGigEVision; }
    bool isConnected() const override { return false; }

private:
    CString m_key;
};

// Records every call as text: "bc0" / "bc1" (discovery with interface
// kind), "uc:<ip>:<mode>" (unicast probe), "all" (registry read). An
// answering address yields a camera; a failing one fails the call; any other
// is silent, a call that "succeeds" with nothing found.
class RecordingSystem : public IDiscoverySystem
{
public:
    bool discovery(CameraPtrVector& cameras, EInterfaceType type) override
    {
        if (blockBroadcast) {
            entered.release();
            proceed.acquire();
        }
        record(QString("bc%1").arg(int(type)));
        cameras.push_back(Vorlen::Memory::makeShared<StubCamera>("transient"));
        return true;
    }
    bool discoveryEx(CameraPtrVector& cameras, EDiscoveryMode mode, CSystem::_DiscoveryModeInfo info) override
    {
        const QString ip = QString::fromLocal8Bit(info.ipAddress);
        record(QString("uc:%1:%2").arg(ip).arg(int(mode)));
        QMutexLocker locker(&mutex);
        if (answering.contains(ip))
            cameras.push_back(Vorlen::Memory::makeShared<StubCamera>(info.ipAddress));
        return !failing.contains(ip);
    }
    bool getCameraPtrAll(CameraPtrVector& cameras) override
    {
        record("all");
        QMutexLocker locker(&mutex);
        cameras = registry;
        return true;
    }
    QStringList takeCalls()
    {
        QMutexLocker locker(&mutex);
        return std::exchange(calls, QStringList());
    }
    void setAddresses(const QStringList& answers, const QStringList& fails = QStringList())
    {
        QMutexLocker locker(&mutex);
        answering = answers;
        failing = fails;
    }

    QMutex mutex;
    QStringList calls, answering, failing;
    CameraPtrVector registry;
    std::atomic<bool> blockBroadcast{false};
    QSemaphore entered, proceed;

private:
    void record(const QString& call)
    {
        QMutexLocker locker(&mutex);
        calls.append(call);
    }
};

struct Fixture
{
    Fixture()
        : system(std::make_shared<RecordingSystem>()),
          thread(new CDiscoveryDevicesThread(system)),
          spy(thread.get(), &CDiscoveryDevicesThread::discoveryDevicesFinished)
    {
    }
    ~Fixture() { thread->stop(); }

    // Requests a pass and waits for its end; returns the pass' result.
    bool pass(const QString& ip, int flags)
    {
        const int before = spy.count();
        thread->StartDiscovery(ip, flags);
        if (!thread->isRunning())
            thread->start();
        if (!QTest::qWaitFor([&]() { return spy.count() > before; }, 10000))
            return false;
        return spy.last().at(0).toBool();
    }

    std::shared_ptr<RecordingSystem> system;
    std::unique_ptr<CDiscoveryDevicesThread> thread;
    // The worker emits on its own thread.
    QueuedSignalSpy spy;
};
}

class TestDiscoveryThread : public QObject
{
    Q_OBJECT
private slots:
    void passesByModeAndCameraList();
    void requestsBeforeOrDuringAPassGiveOnePass();
    void unicastListKeptAndReprobed();
    void resultOfAPass();
};

void TestDiscoveryThread::passesByModeAndCameraList()
{
    Fixture f;
    f.system->registry.push_back(Vorlen::Memory::makeShared<StubCamera>("A"));
    f.system->registry.push_back(Vorlen::Memory::makeShared<StubCamera>("B"));
    QVERIFY(f.thread->getVecCamera().empty() && !f.thread->isFirstDiscoveryFinished());

    QVERIFY(f.pass(QString(), 11));   // the start-up pass
    QVERIFY(f.thread->isFirstDiscoveryFinished() && !f.thread->isDisconvrying());
    QCOMPARE(f.system->takeCalls(), QStringList({"bc0", "bc1", "all"}));
    CameraPtrVector cameras = f.thread->getVecCamera();
    QVERIFY(cameras.size() == 2 && QString(cameras[0]->getKey().c_str()) == "A");

    // Each pass replaces the list; the first-pass flag stays set.
    f.system->registry.clear();
    QVERIFY(f.pass(QString(), 0) && f.thread->getVecCamera().empty() && f.thread->isFirstDiscoveryFinished());

    // Network bit: broadcast (or unicast); second-interface bit; the
    // start-up bit alone does neither; 0 means both.
    f.system->setAddresses({"10.0.0.5"});
    const struct
    {
        const char* ip;
        int flags;
        QStringList calls;
    } cases[] = {{"", 0, {"bc0", "bc1", "all"}},
                 {"", 1, {"bc0", "all"}},
                 {"", 2, {"bc1", "all"}},
                 {"", 8, {"all"}},
                 {"10.0.0.5", 2, {"bc1", "all"}}};   // a unicast address without the network bit is not probed
    f.system->takeCalls();
    for (const auto& c : cases) {
        QVERIFY(f.pass(QString::fromLatin1(c.ip), c.flags));
        QCOMPARE(f.system->takeCalls(), c.calls);
    }
    QVERIFY(f.thread->unicastAddresses().isEmpty());
}

void TestDiscoveryThread::requestsBeforeOrDuringAPassGiveOnePass()
{
    for (const bool duringThePass : {false, true}) {
        Fixture f;
        f.system->setAddresses({"10.1.1.1"});
        if (duringThePass) {
            // A request that comes while a pass runs is absorbed by it.
            f.system->blockBroadcast = true;
            f.thread->StartDiscovery(QString(), 0);
            f.thread->start();
            QVERIFY(f.system->entered.tryAcquire(1, 10000));
            f.thread->StartDiscovery("10.1.1.1", 0);
            f.system->blockBroadcast = false;
            f.system->proceed.release(1);
        } else {
            // Both come before the worker looks: the second replaces the first.
            f.thread->StartDiscovery("10.1.1.1", 0);
            f.thread->StartDiscovery("255.255.255.255", 0);
            QVERIFY(f.thread->isDisconvrying());
            f.thread->start();
        }
        QVERIFY(f.spy.wait(10000));
        // Nothing is left to run: the flag is down when the pass is reported,
        // and the next pass asked for follows this one directly.
        QVERIFY(!f.thread->isDisconvrying() && f.pass(QString(), 2) && f.spy.count() == 2);
        QCOMPARE(f.system->takeCalls(), QStringList({"bc0", "bc1", "all", "bc1", "all"}));
        QVERIFY(f.thread->unicastAddresses().isEmpty());
    }
}

void TestDiscoveryThread::unicastListKeptAndReprobed()
{
    Fixture f;
    f.system->setAddresses({"10.0.0.7", "10.0.0.8"});

    // A unicast add probes only that address (no broadcast).
    QVERIFY(f.pass("10.0.0.7", 0));
    QCOMPARE(f.system->takeCalls(), QStringList({"uc:10.0.0.7:1", "bc1", "all"}));
    // The same address twice keeps one entry; another one is appended.
    QVERIFY(f.pass("10.0.0.7", 0) && f.pass("10.0.0.8", 0));
    QCOMPARE(f.thread->unicastAddresses(), QVector<QString>({"10.0.0.7", "10.0.0.8"}));
    f.system->takeCalls();

    // An ordinary refresh broadcasts and re-probes the list in order; a
    // broadcast-only pass does not probe.
    QVERIFY(f.pass(QString(), 0));
    QCOMPARE(f.system->takeCalls(), QStringList({"bc0", "uc:10.0.0.7:1", "uc:10.0.0.8:1", "bc1", "all"}));
    QVERIFY(f.pass("255.255.255.255", 0));
    QCOMPARE(f.system->takeCalls(), QStringList({"bc0", "bc1", "all"}));

    // 10.0.0.7 stops answering: dropped at the next refresh, never probed again.
    f.system->setAddresses({"10.0.0.8"});
    QVERIFY(f.pass(QString(), 0));
    QCOMPARE(f.thread->unicastAddresses(), QVector<QString>({"10.0.0.8"}));
    f.system->takeCalls();
    QVERIFY(f.pass(QString(), 0));
    QCOMPARE(f.system->takeCalls(), QStringList({"bc0", "uc:10.0.0.8:1", "bc1", "all"}));

    // A failing probe call drops the address as well.
    f.system->setAddresses({"10.0.0.8"}, {"10.0.0.8"});
    QVERIFY(f.pass(QString(), 0) && f.thread->unicastAddresses().isEmpty());
}

void TestDiscoveryThread::resultOfAPass()
{
    Fixture f;
    // A pass run in the caller's thread reports success, even for a silent address.
    f.thread->StartDiscovery("10.9.9.9", 0);
    f.thread->runOnce();
    QVERIFY(f.spy.count() == 1 && f.spy.at(0).at(0).toBool());
    QCOMPARE(f.system->takeCalls(), QStringList({"uc:10.9.9.9:1", "bc1", "all"}));
    QVERIFY(f.thread->isFirstDiscoveryFinished());

    f.system->setAddresses({"10.0.0.1", "10.0.0.2"});
    QVERIFY(f.pass("10.0.0.1", 0) && f.pass("10.0.0.2", 0));
    f.system->takeCalls();

    // A silent address: false, not kept; the others are kept but not probed.
    QVERIFY(!f.pass("10.0.0.3", 0));
    QCOMPARE(f.system->takeCalls(), QStringList({"uc:10.0.0.3:1", "bc1", "all"}));
    QCOMPARE(f.thread->unicastAddresses(), QVector<QString>({"10.0.0.1", "10.0.0.2"}));
    // A kept address that went silent, asked again: removed, false.
    f.system->setAddresses({"10.0.0.2"});
    QVERIFY(!f.pass("10.0.0.1", 0));
    QCOMPARE(f.thread->unicastAddresses(), QVector<QString>({"10.0.0.2"}));

    // Every other pass reports true, whatever it found.
    f.system->setAddresses({});
    QVERIFY(f.pass(QString(), 0) && f.pass("255.255.255.255", 0) && f.pass(QString(), 2));
}

QTEST_GUILESS_MAIN(TestDiscoveryThread)
#include "test_discovery_thread.moc"
