#pragma once
// Helpers of the device tests: a bus observer that records what it receives,
// a queued frame counter, waiting for a device to come to rest, and the live
// thread count of the process; the singletons and device lookup come from
// SingletonTestSupport.h.
#include <QDir>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QtTest>

#include "CObserver.h"
#include "SingletonTestSupport.h"
#include "Tavlog4cpp/CTavLog.h"

struct BusRecord
{
    EN_MESSAGE_TYPE type;
    QString key;
    CTavMessagePtr msg;
};

// Observes the bus the way the panels do: Update() only emits, the slot runs
// queued on the GUI thread.
class BusRecorder : public QObject, public CObserver
{
    Q_OBJECT
public:
    BusRecorder()
    {
        connect(this, &BusRecorder::update_receive, this, &BusRecorder::onUpdateReceive, Qt::QueuedConnection);
    }
    void Update(CTavMessagePtr msg) override { emit update_receive(msg); }

    QList<BusRecord> records;
    void clear() { records.clear(); }

    int count(EN_MESSAGE_TYPE type, const QString& key = QString()) const
    {
        int n = 0;
        for (const BusRecord& r : records)
            n += (r.type == type && (key.isEmpty() || r.key == key)) ? 1 : 0;
        return n;
    }
    // Device status types (1 to 9) received for the key, in order; feature,
    // channel and stream events left out.
    QList<int> statusTypes(const QString& key) const
    {
        QList<int> out;
        for (const BusRecord& r : records)
            if (r.key == key && r.type >= MSG_DEVICE_CONNECTING && r.type <= MSG_ACCESS_STATUS_CHANGED)
                out.append(int(r.type));
        return out;
    }
    QString dump() const
    {
        QStringList parts;
        for (const BusRecord& r : records)
            parts.append(QString("%1:%2").arg(int(r.type)).arg(r.key));
        return parts.join(' ');
    }
    bool waitFor(EN_MESSAGE_TYPE type, const QString& key, int timeoutMs = 10000)
    {
        return QTest::qWaitFor([&]() { return count(type, key) > 0; }, timeoutMs);
    }

signals:
    void update_receive(CTavMessagePtr msg);

private slots:
    void onUpdateReceive(CTavMessagePtr msg)
    {
        QString key;
        if (msg->device)
            msg->device->getDeviceKey(key);
        records.append({msg->type, key, msg});
    }
};

// Counts newFrame deliveries on the GUI thread, as a video view would.
class FrameCounter : public QObject
{
    Q_OBJECT
public:
    explicit FrameCounter(CTavDevice* device)
    {
        connect(device, &CTavDevice::newFrame, this, &FrameCounter::onNewFrame, Qt::QueuedConnection);
    }
    int frames = 0;
    int displayed = 0;
    int valid = 0;

public slots:
    void onNewFrame(CQtHybridFramePtr frame, bool display, bool, bool)
    {
        ++frames;
        displayed += display ? 1 : 0;
        valid += (frame && frame->isHybridFrameValid()) ? 1 : 0;
    }
};

// Delivers what workers and the bus have queued for this thread so far: a
// device signal reaches the manager, the manager's message the observers.
inline void deliverQueued()
{
    for (int hop = 0; hop < 3; ++hop)
        QCoreApplication::sendPostedEvents();
}

// Waits until the device's worker has run every request made so far and
// delivers what it reported: afterwards no message of those requests is
// still under way.
inline bool settle(const CTavDevicePtr& device, int timeoutMs = 20000)
{
    if (!device->waitForWorker(timeoutMs))
        return false;
    deliverQueued();
    return true;
}

// LUMIDOR_TEST_LOG=1 shows the application log on standard error.
inline void enableLogWhenAsked()
{
    if (!qEnvironmentVariableIsEmpty("LUMIDOR_TEST_LOG"))
        Tavlog4cpp::CTavLog::LoadDefault();
}

inline int liveThreadCount()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

// Waits until the device manager lists a camera of every serial, asking for
// one more discovery pass when the first ones miss some.
inline bool waitForSerials(const QStringList& serials, int timeoutMs = 15000)
{
    auto allFound = [&serials]() {
        for (const QString& serial : serials)
            if (!findDeviceBySerial(serial))
                return false;
        return true;
    };
    return QTest::qWaitFor(allFound, timeoutMs) ||
           (rediscover(QString(), timeoutMs) && QTest::qWaitFor(allFound, timeoutMs));
}
