#pragma once
// A job-queue worker that works through a list of feature names. Names are
// added from any thread (a name already listed is not listed twice) or the
// list is replaced as a whole; one pass at a time runs on the worker, posted
// when names arrive while none runs. The list's lock is held only to change
// the list, never across a camera call, so adding a name never waits on the
// camera.
#include <QList>
#include <QMutex>
#include <QString>

#include "CJobQueueThread.h"

class CFeatureListThread : public CJobQueueThread
{
    Q_OBJECT
public:
    // Names listed and not yet done with.
    int pendingNames() const;

protected:
    CFeatureListThread(const char* name, QObject* parent);

    // replace: the names take the place of the whole list (names still
    // listed are dropped); otherwise they are appended.
    void addNames(const QList<QString>& names, bool replace);
    // The first name, taken off the list; empty once the list is empty,
    // which ends the pass.
    QString takeName();
    // The listed names, left on the list; empty once the list is empty,
    // which ends the pass.
    QList<QString> listedNames();
    void removeName(const QString& name);

    // One pass over the list, on the worker. It returns once takeName() or
    // listedNames() came back empty, or when the worker is stopping.
    virtual void pass() = 0;

private:
    mutable QMutex m_mutex;
    QList<QString> m_names;       // guarded by m_mutex
    bool m_bPassPosted = false;   // guarded by m_mutex: a pass is queued or running
};
