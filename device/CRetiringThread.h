#pragma once
// A worker thread its owner can let go without waiting for it: retire()
// asks the work to stop and returns at once; the thread deletes itself once
// run() has returned (the camera call under way has ended). The owner's
// receiving connections go with the owner, so nothing reaches it after.
#include <QThread>

class CRetiringThread : public QThread
{
    Q_OBJECT
public:
    explicit CRetiringThread(QObject* parent = nullptr);

    // Stops the work (requestStop()) and hands the thread over to itself.
    // The caller must not use the pointer afterwards.
    void retire();

protected:
    // Tells run() to end at its next chance; pending work is dropped.
    virtual void requestStop() = 0;
};
