#pragma once
// The worker for the device list's camera round trips (forcing an address,
// a feature read or write, an XML download), so that the GUI thread never
// waits on a camera. Tasks run one at a time in the order given; each one's
// result, with the camera library's error text of this thread, comes back
// to a callback on the caller's context object, and is dropped when the
// context has gone by then. Owners retire() it when they close.
#include <QString>
#include <functional>

#include "CJobQueueThread.h"

class CCameraTaskThread : public CJobQueueThread
{
    Q_OBJECT
public:
    using Work = std::function<bool()>;
    using Done = std::function<void(bool ok, const QString& errorText)>;

    // name: the begin and end log lines' name.
    explicit CCameraTaskThread(const char* name, QObject* parent = nullptr);
    // Deleted by its owner rather than retired: waits for the task under
    // way (tests; a retired worker is deleted once it has ended).
    ~CCameraTaskThread() override;

    // Queues work; done runs on the context's thread once it has run.
    // False once the worker is stopping.
    bool run(QObject* context, Work work, Done done);

    // Workers of this kind alive in the process; tests wait for 0 before
    // they tear the device manager down.
    static int liveCount();

signals:
    void taskFinished(quint64 id, bool ok, const QString& errorText);

private:
    quint64 m_nLastId = 0;
};
