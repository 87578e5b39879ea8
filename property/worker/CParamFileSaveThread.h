#pragma once
// Writes every readable and writeable feature of a connected camera to a
// parameter file. A feature chosen by selectors is read under every
// combination of its selectors' values; the selectors get their values back
// afterwards. The file is written whole or not at all, and only over a
// regular file (checked before the camera is read, and again at writing).
#include "CParamFileThread.h"

class CParamFileSaveThread : public CParamFileThread
{
    Q_OBJECT
public:
    CParamFileSaveThread(CTavDevicePtr device, const QString& path, QObject* parent = nullptr);

signals:
    // ok false: message says why (naming the file when the file is at
    // fault); count is the number of values written.
    void saveFinished(bool ok, QString message, int count);

protected:
    bool work() override;

private:
    // Reports unless cancelled; returns true (the work is done).
    bool finish(bool ok, const QString& message, int count);
    // Why the work stopped before the file was written.
    QString stopped() const;

    CTavDevicePtr m_device;
};
