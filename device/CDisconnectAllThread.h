#pragma once
// Closes every open device, each on its own worker so they close side by
// side, then waits (at most 5000 ms) until the device manager counts none
// open, connecting or closing.
#include <QThread>
#include <functional>

class CDisconnectAllThread : public QThread
{
    Q_OBJECT
public:
    // Created on first use; null once shutdownInstance() has run.
    static CDisconnectAllThread* getInstance();
    // The singleton if it exists; never creates it.
    static CDisconnectAllThread* existingInstance();
    // Waits for a run under way (at most waitMs) and deletes the singleton;
    // later getInstance() calls return null. A run that does not end in
    // time is left to finish on its own.
    static void shutdownInstance(int waitMs);

    // Poll step and limit of the wait for the devices to close.
    static const int kPollMs = 500;
    static const int kTimeoutMs = 5000;

    // Clock of the wait (ms of a monotonic clock) and the pause between two
    // polls; tests put a simulated clock in their place (null: the real
    // one). Set before start().
    void setClock(std::function<qint64()> now, std::function<void(int)> pause);

    ~CDisconnectAllThread() override;

signals:
    void closeAllBegin();
    void closeAllFinished();

protected:
    void run() override;

private:
    explicit CDisconnectAllThread(QObject* parent = nullptr);

    std::function<qint64()> m_now;
    std::function<void(int)> m_pause;
};
