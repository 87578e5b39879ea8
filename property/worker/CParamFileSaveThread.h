#pragma once
// Writes every readable and writeable feature of a connected camera to a
// parameter file. A feature chosen by selectors is read under every
// combination of its selectors' values; the selectors get their values back
// afterwards. The file is written whole or not at all.
#include "CParamFileThread.h"

class CParamFileSaveThread : public CParamFileThread
{
    Q_OBJECT
public:
    CParamFileSaveThread(CTavDevicePtr device, const QString& path, QObject* parent = nullptr);

signals:
    // ok false: message says why; count is the number of lines written.
    void saveFinished(bool ok, QString message, int count);

protected:
    void work() override;

private:
    CTavDevicePtr m_device;
};
