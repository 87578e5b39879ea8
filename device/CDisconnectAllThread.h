#pragma once
// Closes every connected device, then waits (at most 5000 ms) until the
// device manager counts none open.
#include <QThread>

class CDisconnectAllThread : public QThread
{
    Q_OBJECT
public:
    static CDisconnectAllThread* getInstance();

    // Poll step and limit of the wait for the devices to close.
    static const int kPollMs = 500;
    static const int kTimeoutMs = 5000;

    ~CDisconnectAllThread() override;

signals:
    void closeAllBegin();
    void closeAllFinished();

protected:
    void run() override;

private:
    explicit CDisconnectAllThread(QObject* parent = nullptr);
};
