#pragma once
// Writes a camera's persistent IP configuration on a thread of its own. The
// dialog hands one request over with startSetIp; the result comes back with
// signalSetIpEnd.
#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>
#include <atomic>

class CSetIpThread : public QThread
{
    Q_OBJECT
public:
    explicit CSetIpThread(QObject* parent = nullptr);
    ~CSetIpThread() override;

    void startSetIp(QString key, QString ip, QString mask, QString gateway);
    // Ends the loop and waits for the thread.
    void stop();

signals:
    void signalSetIpEnd(bool ok);

protected:
    void run() override;

private:
    // Connects for the write when the camera is not open, and closes again.
    static bool writePersistentIp(const QString& key, const QString& ip, const QString& mask, const QString& gateway);

    QMutex m_mutex;
    QWaitCondition m_wake;
    QString m_strKey;
    QString m_strIp;
    QString m_strMask;
    QString m_strGateway;
    std::atomic<bool> m_bStop{false};
    bool m_bPending = false;
};
