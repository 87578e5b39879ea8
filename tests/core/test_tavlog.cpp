// Logging facade: source names, configuration from a properties file (and its
// refusal of broken files), loading again, the built-in default, long and
// concurrent lines.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include "TestFiles.h"

#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <log4cpp/Appender.hh>
#include <log4cpp/Category.hh>
#include <unistd.h>

#include "Tavlog4cpp/TavLogMacros.h"

using Tavlog4cpp::CTavLog;

namespace {

QByteArray fileConfig(const QString& logFile, const QByteArray& extra = QByteArray())
{
    return "log4cpp.rootCategory=ERROR, none\n"
           "log4cpp.appender.none=FileAppender\n"
           "log4cpp.appender.none.fileName=/dev/null\n"
           "log4cpp.appender.none.layout=BasicLayout\n"
           "log4cpp.category.vintrel=DEBUG, f   # trailing comment\n"
           "log4cpp.additivity.vintrel=false\n"
           "log4cpp.appender.f=FileAppender\n"
           "log4cpp.appender.f.fileName="
           + logFile.toUtf8()
           + "\n"
             "log4cpp.appender.f.layout=PatternLayout\n"
             "log4cpp.appender.f.layout.ConversionPattern=%p|%m%n\n"
           + extra;
}

} // namespace

class TestTavlog : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:
    void sourceNames()
    {
        QCOMPARE(QByteArray(Tavlog4cpp::sourceName("/a/b/CDeviceManager.cpp")), QByteArray("CDeviceManager"));
        QCOMPARE(QByteArray(Tavlog4cpp::sourceName("C:\\src\\main.cpp")), QByteArray("main"));
        QCOMPARE(QByteArray(Tavlog4cpp::sourceName("Makefile")), QByteArray("Makefile"));
        QCOMPARE(QByteArray(Tavlog4cpp::sourceName("dir.d/file")), QByteArray("file"));
        // Interned: the same text gives the same pointer, valid for the process.
        QCOMPARE(Tavlog4cpp::sourceName("x/Same.h"), Tavlog4cpp::sourceName("y/Same.cpp"));
    }

    void logBeforeAnyConfiguration()
    {
        QCOMPARE(CTavLog::Logger_vintrel(), &log4cpp::Category::getInstance("vintrel"));
        CTavLog::Log(CTavLog::Logger_vintrel(), 300, "nobody listens %d", 1);
        CTavLog::Log(nullptr, 300, "no logger");
        LOG_DEBUG("unconfigured %s", "debug");
    }

    void configurationFromFile()
    {
        QVERIFY(!CTavLog::LoadConfig(nullptr));
        QVERIFY(!CTavLog::LoadConfig(qPrintable(m_dir.filePath("missing.properties"))));

        const QString logA = m_dir.filePath("a.log");
        const QString propsA = m_dir.filePath("a.properties");
        QVERIFY(writeAll(propsA, fileConfig(logA)) && CTavLog::LoadConfig(qPrintable(propsA)));

        LOG_ERROR("value %d text %s", 42, "abc");
        const int line = __LINE__ - 1;
        const std::string big(20000, 'x');
        LOG_WARN("%s|end", big.c_str());
        QByteArray text = readAll(logA);
        QVERIFY(text.contains(QString::asprintf("ERROR|[test_tavlog(%d) configurationFromFile] value 42 text abc\n", line)
                                  .toUtf8()));
        QVERIFY(text.contains("WARN|[test_tavlog(" ));
        QVERIFY(text.contains(QByteArray::fromStdString(big) + "|end\n"));

        // Broken files are refused and the working configuration stays.
        const QString logB = m_dir.filePath("b.log");
        const QList<QByteArray> broken = {
            fileConfig(logB, "log4cpp.category.zzz=INFO, undefinedAppender\n"),
            fileConfig(logB, "log4cpp.category.zzz=LOUD, f\n"),
            "log4cpp.category.vintrel=DEBUG, f\n",          // no root category
            QByteArray("\x00\x01\x02garbage", 10),
        };
        for (const QByteArray& content : broken) {
            const QString props = m_dir.filePath("broken.properties");
            QVERIFY(writeAll(props, content));
            QVERIFY2(!CTavLog::LoadConfig(qPrintable(props)), content.constData());
            LOG_DEBUG("still here");
            const int stillLine = __LINE__ - 1;
            QVERIFY(readAll(logA).endsWith("DEBUG|[test_tavlog(" + QByteArray::number(stillLine)
                                           + ") configurationFromFile] still here\n"));
        }
        QVERIFY(!QFile::exists(logB) || readAll(logB).isEmpty());
    }

    // Loading again replaces the appenders: every line is written once, by
    // the appenders of the last configuration, and a file that log4cpp
    // refuses half-way leaves the built-in standard-error sink in force.
    void reloadingReplacesAppenders()
    {
        const QString first = m_dir.filePath("reload1.log");
        const QString second = m_dir.filePath("reload2.log");
        const QString props = m_dir.filePath("reload.properties");
        QVERIFY(writeAll(props, fileConfig(first)));
        for (int i = 0; i < 3; ++i)
            QVERIFY(CTavLog::LoadConfig(qPrintable(props)));
        LOG_ERROR("once");
        QCOMPARE(readAll(first).count("once\n"), 1);
        QCOMPARE(log4cpp::Category::getInstance("vintrel").getAllAppenders().size(), size_t(1));
        QCOMPARE(*log4cpp::Category::getInstance("vintrel").getAllAppenders().begin(),
                 log4cpp::Appender::getAppender("f"));

        QVERIFY(writeAll(props, fileConfig(second)) && CTavLog::LoadConfig(qPrintable(props)));
        LOG_ERROR("moved");
        QVERIFY(!readAll(first).contains("moved"));
        QCOMPARE(readAll(second).count("moved\n"), 1);

        QVERIFY(writeAll(props, fileConfig(second).replace("appender.f=FileAppender", "appender.f=NoSuchAppender")));
        const QString errPath = m_dir.filePath("reload-stderr.txt");
        std::cerr.flush();
        const int saved = dup(STDERR_FILENO);
        const int fd = ::open(qPrintable(errPath), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        QVERIFY(saved >= 0 && fd >= 0);
        dup2(fd, STDERR_FILENO);
        ::close(fd);
        const bool loaded = CTavLog::LoadConfig(qPrintable(props));
        LOG_ERROR("after a refused file");
        std::cerr.flush();
        dup2(saved, STDERR_FILENO);
        ::close(saved);
        QVERIFY(!loaded && readAll(errPath).contains("after a refused file"));
        QVERIFY(!readAll(second).contains("after a refused file"));
    }

    void concurrentLines()
    {
        const QString log = m_dir.filePath("threads.log");
        const QString props = m_dir.filePath("threads.properties");
        QVERIFY(writeAll(props, fileConfig(log)) && CTavLog::LoadConfig(qPrintable(props)));

        const int threads = 4;
        const int perThread = 500;
        QList<QThread*> workers;
        for (int t = 0; t < threads; ++t) {
            workers << QThread::create([t] {
                for (int i = 0; i < perThread; ++i)
                    LOG_DEBUG("thread %d line %d %s", t, i, "payload-payload-payload-payload");
            });
            workers.last()->start();
        }
        for (QThread* w : workers) {
            QVERIFY(w->wait(30000));
            delete w;
        }
        const QList<QByteArray> lines = readAll(log).split('\n');
        static const QRegularExpression re(
            QStringLiteral("^DEBUG\\|\\[test_tavlog\\(\\d+\\) operator\\(\\)\\] thread \\d line \\d+ payload-payload-payload-payload$"));
        int matching = 0;
        for (const QByteArray& l : lines) {
            if (l.isEmpty())
                continue;
            QVERIFY2(re.match(QString::fromUtf8(l)).hasMatch(), l.constData());
            ++matching;
        }
        QCOMPARE(matching, threads * perThread);
    }

    void defaultGoesToStandardError()
    {
        const QString errPath = m_dir.filePath("stderr.txt");
        std::cerr.flush();
        const int saved = dup(STDERR_FILENO);
        const int fd = ::open(qPrintable(errPath), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        QVERIFY(saved >= 0 && fd >= 0);
        dup2(fd, STDERR_FILENO);
        ::close(fd);

        CTavLog::LoadDefault();
        LOG_DEBUG("to the default %s", "sink");
        std::cerr.flush();
        dup2(saved, STDERR_FILENO);
        ::close(saved);

        const QString text = QString::fromUtf8(readAll(errPath));
        static const QRegularExpression re(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d,\\d{3} \\[DEBUG\\] \\[test_tavlog\\(\\d+\\) "
                           "defaultGoesToStandardError\\] to the default sink\\n$"));
        QVERIFY2(re.match(text).hasMatch(), qPrintable(text));
    }
};

QTEST_GUILESS_MAIN(TestTavlog)
#include "test_tavlog.moc"
