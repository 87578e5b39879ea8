#pragma once
// Loads a parameter file into a camera. First reads and checks the file: a
// file that cannot be read ends the work; a damaged one (cut short) is
// announced with damaged() and nothing of it is applied until the owner
// calls loadAnyway() (or cancels). Then waits for the first discovery pass
// (a file may be opened right after start), finds the device by key and,
// when it is not connected, asks for the connection and waits for it.
// Then writes the file's features in the camera's order: plain features in
// description order, then each selector group under its selector values,
// then the selectors' own values again; features that failed are tried
// once more after the rest while that makes progress. Every feature that
// could not be loaded is listed with its reason in the load report, which
// is written whole or not at all. A camera lost on the way stops the work;
// the features not written are reported as not loaded.
#include <QStringList>
#include <functional>

#include "CDeviceParamFile.h"
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
        resultStopped = 3,   // stopped, or the camera was lost on the way
        resultCancelled = 4  // cancelled by the user (the owner's result; the worker reports none)
    };

    // reportPath empty: getLoadConfigReportPath().
    CParamFileLoadThread(const QString& deviceKey, const QString& path, const SParamFileEnv& env,
                         const QString& reportPath = QString(), QObject* parent = nullptr);

    QString deviceKey() const { return m_key; }
    QString reportPath() const { return m_reportPath; }
    // Polls of the connected flag, 100 ms apart, before giving up on a connection.
    static const int kConnectPolls = 150;

    // After damaged(): applies the complete lines the file still holds.
    // False when the worker was stopped meanwhile (no result follows).
    bool loadAnyway();

signals:
    // The device is known but not connected: the receiver opens it.
    void needConnect(QString key);
    // The file is damaged (why names the file); it holds values complete lines.
    void damaged(QString why, int values);
    // reportError: empty when the report was written, else why it was not
    // (the file and the system's reason).
    void loadFinished(int result, int loaded, int total, QString message, QString reportError);

protected:
    bool work() override;

private:
    struct SFailure
    {
        QString what;
        QString why;
    };
    // What a load ends with, for the signal and the report.
    struct SOutcome
    {
        int result = resultFailed;
        int loaded = 0;
        int total = 0;
        QString message;
        QList<SFailure> failures;
        QStringList skipped, problems, notes;
    };
    // Applies the file to the camera; always ends the work.
    bool apply();
    // Commits (a cancelled load ends here), writes the report and reports.
    void finish(const SOutcome& outcome);
    // Empty when written, else why not.
    QString writeReport(const SOutcome& outcome);

    CDeviceParamFile m_file;   // read on the worker, used there only
    QString m_key;
    SParamFileEnv m_env;
    QString m_reportPath;
};
