#pragma once
// Polls the commands a features page started until the camera reports each
// of them done, and says so by queued signals. It knows nothing of the
// page: a page that closes retires it.
#include <QList>
#include <QMutex>
#include <QString>

#include "CFeatureFormCamera.h"
#include "CRetiringThread.h"

class CCommandParamDoneStatusThread : public CRetiringThread
{
    Q_OBJECT
public:
    explicit CCommandParamDoneStatusThread(const CFeatureFormCamera::Ptr& camera, QObject* parent = nullptr);
    ~CCommandParamDoneStatusThread() override;

    // Adds the command unless it is already being watched.
    void addProperty(const QString& name);
    int pendingCount();

signals:
    // The command finished; info is its row's state now.
    void setDone(QString name, CFeatureNodeInfo info);
    // The command can no longer finish (camera gone, page closing).
    void abandoned(QString name);

protected:
    void run() override;
    void requestStop() override;

private:
    CFeatureFormCamera::Ptr m_camera;
    QList<QString> m_listProperty;   // guarded by m_mutex
    QMutex m_mutex;
    std::atomic<bool> m_bRunning{true};
};
