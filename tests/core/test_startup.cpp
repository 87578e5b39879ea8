// Starts the built program without a display and lets it close itself: it
// must log its banner, write the default configuration file and exit cleanly.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

#include "TestFiles.h"

namespace {

const QByteArray kHashes = "###########################################################################";
const QByteArray kStart = "#                                    Start                                #";

// Index of the banner + note sequence in the text, -1 when absent.
int bannerFollowedBy(const QByteArray& text, const QByteArray& note)
{
    const QByteArray first = "[main(";
    int pos = text.indexOf("] " + kHashes + "\n");
    if (pos < 0)
        return -1;
    const int start = text.indexOf("] " + kStart + "\n", pos);
    const int second = text.indexOf("] " + kHashes + "\n", start);
    const int noteAt = text.indexOf(") main] " + note + "\n", second);
    if (start < 0 || second < 0 || noteAt < 0 || !text.contains(first))
        return -1;
    return pos;
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT
    QString m_bin;

    struct Run
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;
    };

    Run runProgram(const QString& home, const QString& workDir, const QStringList& args = QStringList())
    {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("LUMIDOR_HOME"), home);
        env.insert(QStringLiteral("LUMIDOR_QUIT_AFTER_MS"), QStringLiteral("1500"));
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(workDir);
        process.start(m_bin + QStringLiteral("/Lumidor"), args);
        Run run;
        if (!process.waitForStarted(10000))
            return run;
        if (!process.waitForFinished(40000)) {
            process.kill();
            process.waitForFinished(5000);
            return run;
        }
        run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.out = process.readAllStandardOutput();
        run.err = process.readAllStandardError();
        return run;
    }

private slots:
    void initTestCase()
    {
        m_bin = qEnvironmentVariable("LUMIDOR_BIN_DIR");
        QVERIFY2(!m_bin.isEmpty(), "LUMIDOR_BIN_DIR not set");
        QVERIFY(QFile::exists(m_bin + QStringLiteral("/Lumidor")));
        QVERIFY(QFile::exists(m_bin + QStringLiteral("/SDKLOG_default.properties")));
    }

    // Started beside the executable: the properties file sends the log to
    // standard output and to Lumidor.log there.
    void startsWithLogConfigurationFile()
    {
        QTemporaryDir home;
        const QString logPath = m_bin + QStringLiteral("/Lumidor.log");
        const qint64 logBefore = QFileInfo(logPath).size();

        const Run run = runProgram(home.path(), m_bin, {QStringLiteral("a"), QStringLiteral("b")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(bannerFollowedBy(run.out, "use log configuration file") >= 0, run.out.constData());
        QVERIFY(!run.out.contains("open file error"));   // the style sheet was found

        const QByteArray logTail = readAll(logPath).mid(int(logBefore));
        QVERIFY2(bannerFollowedBy(logTail, "use log configuration file") >= 0, logTail.constData());

        const QString cfgDir = home.path() + QStringLiteral("/Lumidor/cfg/app/");
        const QByteArray defaults = readAll(cfgDir + QStringLiteral("LumidorDefault.tavcfg"));
        QVERIFY(defaults.startsWith("<?xml") && defaults.contains("<Lumidor>"));
        QVERIFY(defaults.contains("<logFileName>" + home.path().toUtf8() + "/Lumidor/EventMonitor.txt<"));
        QVERIFY(!QFile::exists(cfgDir + QStringLiteral("Lumidor.tavcfg")));
    }

    // Started elsewhere: no properties file, the built-in default logs to
    // standard error; the style sheet is still found beside the executable.
    void startsWithDefaultLogging()
    {
        QTemporaryDir home;
        QTemporaryDir work;
        const Run run = runProgram(home.path(), work.path());
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(bannerFollowedBy(run.err, "use default log configuration") >= 0, run.err.constData());
        QVERIFY(!run.err.contains("open file error"));
        QVERIFY(!QFile::exists(work.filePath(QStringLiteral("Lumidor.log"))));
        QVERIFY(QFile::exists(home.path() + QStringLiteral("/Lumidor/cfg/app/LumidorDefault.tavcfg")));
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "test_startup.moc"
