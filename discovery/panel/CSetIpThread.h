#pragma once
// Writes a camera's persistent IP configuration on a worker thread. The IP
// dialog hands a request over with startSetIp; the result comes back with
// signalSetIpEnd. Being a camera-task worker, it also runs the dialog's
// forced address, so both writes keep their order. The dialog retires it
// when it closes.
#include <QString>

#include "CCameraTaskThread.h"

class CSetIpThread : public CCameraTaskThread
{
    Q_OBJECT
public:
    explicit CSetIpThread(QObject* parent = nullptr);

    void startSetIp(QString key, QString ip, QString mask, QString gateway);

signals:
    void signalSetIpEnd(bool ok);

private:
    // Connects for the write when the camera is not open, and closes again.
    static bool writePersistentIp(const QString& key, const QString& ip, const QString& mask, const QString& gateway);
};
