#pragma once
// Polls the commands a features form started until the camera reports each
// of them done.
#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>
#include <atomic>

class CPropertyFeaturesForm;
class QtProperty;

class CCommandParamDoneStatusThread : public QThread
{
    Q_OBJECT
public:
    explicit CCommandParamDoneStatusThread(CPropertyFeaturesForm* form);

    // Adds the command unless it is already being watched.
    void addProperty(const QString& name);
    void setRunningFlag(bool running) { m_bRunning = running; }
    int pendingCount();

signals:
    void setDone(QtProperty* property);

protected:
    void run() override;

private:
    CPropertyFeaturesForm* m_pForm;   // not owned
    QList<QString> m_listProperty;
    QMutex m_mutex;
    std::atomic<bool> m_bRunning{true};
};
