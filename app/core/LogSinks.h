#pragma once
// Plain-text log sinks beside the log4cpp category, and the paths of the log
// files. Every sink may be called from any thread.
#include <QString>

// "hh:mm:ss.zzz " + the formatted text + CR LF, appended to
// <application dir>/log.txt.
void writeLog(const char* format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 1, 2)))
#endif
    ;

// Sink for print output of the camera library: appends the line as it is to
// getLogFilePath(); lines naming "Vorlen::" are dropped; the file is emptied
// once it reaches 10 MiB.
bool logPrintProc(const char* line);
// Same for the upgrade log at getUpdateLogFilePath(), without filter or limit.
bool updateLogPrintProc(const char* line);

QString getLogFilePath();
QString getUpdateLogFilePath();
QString getLoadConfigReportPath();

// The rule behind the three paths: pathInDir when the directory exists or can
// be made, otherwise fallback (a name relative to the current directory).
QString logPathOrFallback(const QString& dir, const QString& pathInDir, const QString& fallback);

// Size from which logPrintProc empties its file before writing.
constexpr qint64 kLogPrintTruncateAbove = 0x9FFFFF;
