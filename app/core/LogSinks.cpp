#include "LogSinks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QTime>
#include <cstdarg>
#include <cstring>
#include <unistd.h>

void writeLog(const char* format, ...)
{
    if (!format)
        return;
    va_list args;
    va_start(args, format);
    const QString text = QString::vasprintf(format, args);
    va_end(args);
    const QString line = QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz ")) + text;

    static QMutex mutex;
    QMutexLocker lock(&mutex);
    // Without an application object there is no application directory.
    if (!QCoreApplication::instance())
        return;
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/log.txt"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    file.write((line + QStringLiteral("\r\n")).toLocal8Bit());
    file.close();
}

bool logPrintProc(const char* line)
{
    if (!line)
        return false;
    if (std::strstr(line, "Vorlen::"))
        return false;

    static QMutex mutex;
    QMutexLocker lock(&mutex);
    static QFile file;
    if (!file.isOpen()) {
        file.setFileName(getLogFilePath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
            return false;
    }
    // No rotation: a full log is simply started again.
    if (file.size() > kLogPrintTruncateAbove) {
        file.resize(0);
        file.seek(0);
    }
    file.seek(file.size());
    file.write(line);
    file.flush();
    return true;
}

bool updateLogPrintProc(const char* line)
{
    if (!line)
        return false;

    static QMutex mutex;
    QMutexLocker lock(&mutex);
    static QFile file;
    if (!file.isOpen()) {
        file.setFileName(getUpdateLogFilePath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
            return false;
    }
    file.seek(0);
    file.seek(file.size());
    file.write(line);
    file.flush();
    return true;
}

QString logPathOrFallback(const QString& dir, const QString& pathInDir, const QString& fallback)
{
    return QDir().mkpath(dir) ? pathInDir : fallback;
}

QString getLogFilePath()
{
    const QString app = qAppName();
    const QString name = app + QString::asprintf("_%d", int(getpid())) + QStringLiteral(".log");
    const QString dir = QStringLiteral("/var/log/TavSDK/") + app;
    return logPathOrFallback(dir, dir + QStringLiteral("/") + name, name);
}

QString getUpdateLogFilePath()
{
    const QString app = qAppName();
    const QString name = app + QStringLiteral("_upgrade") + QStringLiteral(".log");
    const QString dir = QDir::homePath() + QStringLiteral("/") + app + QStringLiteral("/");
    return logPathOrFallback(dir, dir + name, name);
}

QString getLoadConfigReportPath()
{
    const QString app = qAppName();
    const QString name = app + QStringLiteral("_loadConfigReport") + QStringLiteral(".log");
    const QString dir = QStringLiteral("/var/log/TavSDK/") + app + QStringLiteral("/");
    return logPathOrFallback(dir, dir + name, name);
}
