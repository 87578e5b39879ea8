#pragma once
// A signal spy for signals emitted on a worker thread.
//
// QSignalSpy connects directly, so a worker's emission appends to the spy's
// list on the worker thread while the test thread reads it: a data race.
// This spy relays each emission from another thread to the thread that
// created it with a queued connection and records it there, so the list is
// only ever touched by the test thread. Such an emission is seen once the
// test thread runs its event loop (wait(), QTRY_*, QTest::qWaitFor); one made
// on the test thread itself is recorded at once, as QSignalSpy does. The
// arguments' types must be registered metatypes, as for any queued connection.
//
//   QueuedSignalSpy finished(worker, &CWorker::finished);
//   worker->start();
//   QVERIFY(finished.wait(10000));
//   QCOMPARE(finished.first().first().toBool(), true);
#include <QList>
#include <QObject>
#include <QTest>
#include <QVariant>

#include <type_traits>

class QueuedSignalSpy : public QObject, public QList<QList<QVariant>>
{
public:
    template <class Sender, class Owner, class... Args>
    QueuedSignalSpy(const Sender* sender, void (Owner::*signal)(Args...))
    {
        m_valid = bool(QObject::connect(
            sender, signal, this,
            [this](Args... args) { append(QList<QVariant>{QVariant::fromValue(std::decay_t<Args>(args))...}); },
            Qt::AutoConnection));   // queued unless emitted on this spy's thread
    }

    bool isValid() const { return m_valid; }

    // Runs the event loop until one more emission has been recorded;
    // false when none came within timeoutMs.
    bool wait(int timeoutMs = 5000)
    {
        const int before = count();
        return QTest::qWaitFor([&]() { return count() > before; }, timeoutMs);
    }

private:
    bool m_valid = false;
};
