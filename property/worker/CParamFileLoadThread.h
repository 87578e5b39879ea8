#pragma once
// Loads a parameter file into a camera. First waits for the first discovery
// pass (a file may be opened right after start), finds the device by key
// and, when it is not connected, asks for the connection and waits for it.
// Then writes the file's features in the camera's order: plain features in
// description order, then each selector group under its selector values,
// then the selectors' own values again; features that failed are tried
// once more after the rest while that makes progress. Every feature that
// could not be loaded is listed with its reason in the load report. A
// camera lost on the way stops the work; the features not written are
// reported as not loaded.
#include <QStringList>
#include <functional>

#include "CParamFileThread.h"

// How the loader reaches discovery, the device map and the clock; tests
// put their own in.
struct SParamFileEnv
{
    std::function<bool()> isFirstDiscoveryFinished;
    std::function<void()> startDiscovery;
    std::function<void(int ms)> sleep;
    std::function<CTavDevicePtr(const QString& key)> findDevice;

    // The discovery worker, the device manager and QThread::msleep.
    static SParamFileEnv standard();
};

class CParamFileLoadThread : public CParamFileThread
{
    Q_OBJECT
public:
    enum EResult
    {
        resultLoaded = 0,    // every feature of the file was loaded
        resultPartial = 1,   // some features failed (listed in the report)
        resultFailed = 2,    // nothing could be done (no camera, unreadable file)
        resultStopped = 3    // stopped, or the camera was lost on the way
    };

    // reportPath empty: getLoadConfigReportPath().
    CParamFileLoadThread(const QString& deviceKey, const QString& path, const SParamFileEnv& env,
                         const QString& reportPath = QString(), QObject* parent = nullptr);

    QString deviceKey() const { return m_key; }
    QString reportPath() const { return m_reportPath; }
    // Polls of the connected flag, 100 ms apart, before giving up on a connection.
    static const int kConnectPolls = 150;

signals:
    // The device is known but not connected: the receiver opens it.
    void needConnect(QString key);
    void loadFinished(int result, int loaded, int total, QString message);

protected:
    void work() override;

private:
    struct SFailure
    {
        QString what;
        QString why;
    };
    void writeReport(int result, int loaded, int total, const QString& message, const QList<SFailure>& failures,
                     const QStringList& skipped, const QStringList& problems, const QStringList& notes);

    QString m_key;
    SParamFileEnv m_env;
    QString m_reportPath;
};
