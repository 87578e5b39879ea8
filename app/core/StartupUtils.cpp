#include "StartupUtils.h"

#include <QDir>

QString executableDirFromArgv0(const QString& argv0)
{
    int sep = argv0.lastIndexOf(QLatin1Char('\\'));
    if (sep < 0)
        sep = argv0.lastIndexOf(QLatin1Char('/'));
    if (sep < 0)
        return QString();
    return argv0.left(sep + 1);
}

bool changeToExecutableDir(const char* argv0)
{
    if (!argv0)
        return false;
    const QString dir = executableDirFromArgv0(QString::fromLocal8Bit(argv0));
    if (dir.isEmpty())
        return false;
    return QDir::setCurrent(dir);
}

QString joinCommandLine(int argc, char** argv)
{
    QString line;
    if (argc <= 1 || !argv)
        return line;
    line = QString::fromLocal8Bit(argv[1]);
    for (int i = 2; i < argc; ++i)
        line += QLatin1Char(' ') + QString::fromLocal8Bit(argv[i]);
    return line;
}
