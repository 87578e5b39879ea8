#pragma once
// Refreshes features of a features page by name, in order, off the GUI
// thread; each record read goes out by a queued signal. It knows nothing of
// the page: a page that closes retires it.
#include <QList>
#include <QMutex>
#include <QString>
#include <QWaitCondition>

#include "CFeatureFormCamera.h"
#include "CRetiringThread.h"

class CUpdateParamThread : public CRetiringThread
{
    Q_OBJECT
public:
    explicit CUpdateParamThread(const CFeatureFormCamera::Ptr& camera, QObject* parent = nullptr);
    ~CUpdateParamThread() override;

    // The list replaces the pending names as a whole.
    void SetPropertyList(const QList<QString>& names);
    // Adds names not already pending, after the pending ones (any thread).
    void appendPropertyList(const QList<QString>& names);
    // Next pending name, or an empty string.
    QString getProperty();
    int pendingCount();

signals:
    void nodeRead(CFeatureNodeInfo info);

protected:
    void run() override;
    void requestStop() override;

private:
    CFeatureFormCamera::Ptr m_camera;
    QList<QString> m_listProperty;   // guarded by m_mutex
    bool m_bStopped = false;         // guarded by m_mutex
    QMutex m_mutex;
    QWaitCondition m_wake;
};
