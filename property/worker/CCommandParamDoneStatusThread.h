#pragma once
// Watches the commands a features page started until the camera reports
// each of them done, and says so by queued signals. While a command runs it
// asks again every kPollMs; with none running the worker sleeps until one
// is added. It knows nothing of the page: the reader it is given asks the
// camera, and a page that closes retires it.
#include <functional>

#include "CFeatureFormCamera.h"
#include "CFeatureListThread.h"

class CCommandParamDoneStatusThread : public CFeatureListThread
{
    Q_OBJECT
public:
    // How the command stands now (on the worker); info is filled when done.
    using StateReader = std::function<CFeatureFormCamera::ECommandState(const QString& name, CFeatureNodeInfo& info)>;
    static const int kPollMs = 5;

    explicit CCommandParamDoneStatusThread(const StateReader& read, QObject* parent = nullptr);

    // Adds the command unless it is already watched. Never waits on the camera.
    void addProperty(const QString& name);

signals:
    // The command finished; info is its row's state now.
    void setDone(QString name, CFeatureNodeInfo info);
    // The command can no longer finish (camera gone, page closing).
    void abandoned(QString name);

protected:
    void pass() override;

private:
    const StateReader m_read;
};
