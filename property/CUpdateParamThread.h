#pragma once
// Refreshes features of a features form by name, in order, off the GUI thread.
#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>
#include <atomic>

class CPropertyFeaturesForm;

class CUpdateParamThread : public QThread
{
    Q_OBJECT
public:
    explicit CUpdateParamThread(CPropertyFeaturesForm* form);

    // The list replaces the pending names as a whole.
    void SetPropertyList(const QList<QString>& names);
    // Adds names not already pending, after the pending ones.
    void appendPropertyList(const QList<QString>& names);
    // Next pending name, or an empty string.
    QString getProperty();
    void setRunningFlag(bool running) { m_bRunning = running; }
    int pendingCount();

protected:
    void run() override;

private:
    CPropertyFeaturesForm* m_pForm;   // not owned
    QList<QString> m_listProperty;
    QMutex m_mutex;
    std::atomic<bool> m_bRunning{true};
};
