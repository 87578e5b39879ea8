// Shared free functions: value conversions (with the kept MAC quirk), string
// splitting, visibility, start-up helpers, the style-sheet
// loader, the log sinks and their paths, and the common message box.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include "TestFiles.h"

#include <unistd.h>

#include "CCommonMessageBox.h"
#include "StartupUtils.h"
#include "MessageBox.h"
#include "Utils.h"
#include "Vorlen/Infra/Error.h"

using Node = Vorlen::GenICam::CInternalParameterNode;

namespace {

// Answers the next modal message box with the given button (or Escape).
void answerNextBox(QMessageBox::StandardButton button)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, button] {
        auto* box = qobject_cast<CCommonMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->stop();
        timer->deleteLater();
        if (button == QMessageBox::NoButton)
            box->reject();
        else
            box->button(button)->click();
    });
    timer->start(20);
}

} // namespace

class TestCoreUtils : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:
    void cleanupTestCase()
    {
        // Leave no empty log folders behind.
        QDir().rmdir(QStringLiteral("/var/log/TavSDK/") + qAppName());
        QDir().rmdir(QStringLiteral("/var/log/TavSDK"));
    }

    void integerTextConversions()
    {
        QCOMPARE(convertIntToQString(0xC0A8010AL, 5), QStringLiteral("192.168.1.10"));
        QCOMPARE(convertIntToQString(0x1A2B3C4D5EL, 6), QStringLiteral("00:1a:2b:3c:4d:5e"));
        QCOMPARE(convertIntToQString(0, 6), QStringLiteral("00:00:00:00:00:00"));
        // Longer than 12 digits: length/2 - 1 separators, every third place.
        QCOMPARE(convertIntToQString(0x1234567890ABCL, 6), QStringLiteral("12:34:56:78:90:abc"));
        QCOMPARE(convertIntToQString(0x1122334455667788L, 6), QStringLiteral("11:22:33:44:55:66:77:88"));
        for (int rep : {0, 1, 2, 3, 4, 7, -1})
            QVERIFY(convertIntToQString(1234, rep).isEmpty());

        bool ok = true;
        QCOMPARE(convertQStringToInt(QStringLiteral("001a2b3c4d5e"), 6, ok), 0x1A2B3C4D5EL);
        QVERIFY(ok);
        // The removal positions drift off the separators: a fully separated
        // MAC address does not parse (kept as the program has it).
        ok = true;
        convertQStringToInt(QStringLiteral("00:1a:2b:3c:4d:5e"), 6, ok);
        QVERIFY(!ok);

        // IPv4: ok only ever set to false.
        ok = false;
        QCOMPARE(convertQStringToInt(QStringLiteral("192.168.1.10"), 5, ok), 0xC0A8010AL);
        QVERIFY(!ok);
        ok = true;
        QCOMPARE(convertQStringToInt(QStringLiteral("192.168.1.10"), 5, ok), 0xC0A8010AL);
        QVERIFY(ok);
        for (const char* bad : {"192.168.1", "256.1.1.1", "a.b.c.d", "", "1.2.3.4.5"}) {
            ok = true;
            QCOMPARE(convertQStringToInt(QString::fromLatin1(bad), 5, ok), 0L);
            QVERIFY2(!ok, bad);
        }
        ok = true;
        QCOMPARE(convertQStringToInt(QStringLiteral("12"), 3, ok), 0L);
        QVERIFY(ok);
        QCOMPARE(convertQStringToInt(convertIntToQString(0x0A000001L, 5), 5, ok), 0x0A000001L);
    }

    void splitKeepsEmptyParts()
    {
        std::vector<std::string> parts{"old"};
        splitStr("a..b", ".", parts);
        QCOMPARE(parts, (std::vector<std::string>{"a", "", "b"}));
        splitStr("plain", ".", parts);
        QCOMPARE(parts, (std::vector<std::string>{"plain"}));
    }

    void visibilityRule()
    {
        QVERIFY(!isVisibilityShown(Node::visibilityGuru, Node::visibilityExpert));
        QVERIFY(isVisibilityShown(Node::visibilityExpert, Node::visibilityGuru));
        QVERIFY(isVisibilityShown(Node::visibilityBeginner, Node::visibilityBeginner));
        for (unsigned level = 0; level < 5; ++level) {
            QVERIFY(!isVisibilityShown(Node::visibilityInvisible, level));
            QVERIFY(!isVisibilityShown(Node::visibilityUndefined, level));
        }
        QVERIFY(!isVisibilityShown(Node::visibilityBeginner, 3) && !isGenParamVisible(nullptr, 2));
    }

    void errorTextComesFromTheCameraLibrary()
    {
        Vorlen::Infra::setLastError(Vorlen::Infra::ERR_TIMEOUT);
        const QString text = GetErrorDesc();
        QVERIFY(!text.isEmpty());
        QCOMPARE(text, QString::fromLocal8Bit(Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError())));
        Vorlen::Infra::clearLastError();
    }

    void startupHelpers()
    {
        QCOMPARE(executableDirFromArgv0(QStringLiteral("./bin/app")), QStringLiteral("./bin/"));
        QCOMPARE(executableDirFromArgv0(QStringLiteral("app")), QString());
        QCOMPARE(executableDirFromArgv0(QStringLiteral("C:\\tools\\app.exe")), QStringLiteral("C:\\tools\\"));
        // A back-slash wins over later forward slashes.
        QCOMPARE(executableDirFromArgv0(QStringLiteral("a\\b/c/app")), QStringLiteral("a\\"));

        char prog[] = "prog", a[] = "a", b[] = "b", c[] = "c";
        char* full[] = {prog, a, b, c};
        QCOMPARE(joinCommandLine(4, full), QStringLiteral("a b c"));
        QCOMPARE(joinCommandLine(1, full), QString());

        const QString before = QDir::currentPath();
        QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("bin")) && QDir::setCurrent(m_dir.path()));
        QVERIFY(!changeToExecutableDir("app"));
        QCOMPARE(QDir::currentPath(), QDir(m_dir.path()).canonicalPath());
        QVERIFY(changeToExecutableDir("./bin/app"));
        QCOMPARE(QDir::currentPath(), QDir(m_dir.filePath(QStringLiteral("bin"))).canonicalPath());
        QVERIFY(QDir::setCurrent(before));
    }

    void styleSheetLoader()
    {
        QWidget widget;
        widget.setStyleSheet(QStringLiteral("QWidget { color: blue; }"));
        QVERIFY(!setStyleSheet<QWidget>(widget, m_dir.filePath(QStringLiteral("missing.qss"))));
        QCOMPARE(widget.styleSheet(), QStringLiteral("QWidget { color: blue; }"));

        const QString path = m_dir.filePath(QStringLiteral("sheet.qss"));
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        static const char raw[] = "QLabel { color: red; } /* caf\xe9 */\0ignored after NUL";
        f.write(raw, sizeof(raw) - 1);
        f.close();
        QVERIFY(setStyleSheet<QWidget>(widget, path));
        QCOMPARE(widget.styleSheet(), QString::fromUtf8("QLabel { color: red; } /* caf\xc3\xa9 */"));
    }

    void logFilePaths()
    {
        const QString made = m_dir.filePath(QStringLiteral("logs/deep"));
        QCOMPARE(logPathOrFallback(made, made + "/x.log", QStringLiteral("x.log")), made + "/x.log");
        QVERIFY(QDir(made).exists());
        // A directory that cannot be made (its parent is a file) falls back.
        const QString plain = m_dir.filePath(QStringLiteral("plainfile"));
        QFile f(plain);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QCOMPARE(logPathOrFallback(plain + "/sub", plain + "/sub/x.log", QStringLiteral("x.log")),
                 QStringLiteral("x.log"));

        const QString app = qAppName();
        const QString pidName = app + QString::asprintf("_%d", int(getpid())) + ".log";
        const QString logPath = getLogFilePath();
        QVERIFY(logPath == "/var/log/TavSDK/" + app + "/" + pidName || logPath == pidName);
        const QString report = getLoadConfigReportPath();
        QVERIFY(report == "/var/log/TavSDK/" + app + "/" + app + "_loadConfigReport.log"
                || report == app + "_loadConfigReport.log");
        QCOMPARE(getUpdateLogFilePath(), QDir::homePath() + "/" + app + "/" + app + "_upgrade.log");
    }

    void printSinks()
    {
        QVERIFY(!logPrintProc(nullptr) && !updateLogPrintProc(nullptr));

        const QString path = getLogFilePath();
        QFile::remove(path);
        QVERIFY(!logPrintProc("from Vorlen::GenICam::CSystem\n") && !QFile::exists(path));

        // Lines from several threads stay whole.
        QList<QThread*> workers;
        for (int t = 0; t < 4; ++t) {
            workers << QThread::create([t] {
                for (int i = 0; i < 200; ++i)
                    logPrintProc(QString::asprintf("t%d-%d\n", t, i).toLatin1().constData());
            });
            workers.last()->start();
        }
        for (QThread* w : workers) {
            QVERIFY(w->wait(30000));
            delete w;
        }
        const QStringList lines = QString::fromLatin1(readAll(path)).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 800);
        QCOMPARE(lines.filter(QRegularExpression(QStringLiteral("^t\\d-\\d+$"))).size(), 800);

        // Just below 10 MiB the line is appended; once the file has reached
        // 10 MiB it is emptied before the next line.
        {
            QFile fill(path);
            QVERIFY(fill.open(QIODevice::WriteOnly | QIODevice::Append));
            fill.resize(0);
            QVERIFY(fill.resize(kLogPrintTruncateAbove));
        }
        QVERIFY(logPrintProc("first"));
        QCOMPARE(QFileInfo(path).size(), kLogPrintTruncateAbove + 5);
        QVERIFY(logPrintProc("second"));
        QCOMPARE(readAll(path), QByteArray("second"));
        QFile::remove(path);

        const QString upgrade = getUpdateLogFilePath();
        QFile::remove(upgrade);
        QVERIFY(updateLogPrintProc("Vorlen:: is not filtered here|") && updateLogPrintProc("next"));
        QCOMPARE(readAll(upgrade), QByteArray("Vorlen:: is not filtered here|next"));
    }

    void writeLogAppendsTimedLines()
    {
        const QString path = QCoreApplication::applicationDirPath() + "/log.txt";
        QFile::remove(path);
        writeLog("value %d %s", 42, "abc");
        const std::string big(5000, 'z');
        writeLog("%s", big.c_str());
        const QByteArray text = readAll(path);
        const QList<QByteArray> lines = text.split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(2).isEmpty());
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3} value 42 abc\\r$"))
                     .match(QString::fromLatin1(lines.at(0)))
                     .hasMatch(),
                 lines.at(0).constData());
        QVERIFY(lines.at(1).endsWith(QByteArray::fromStdString(big) + "\r"));
        QFile::remove(path);
    }

    void commonMessageBox()
    {
        QWidget parent;
        answerNextBox(QMessageBox::Cancel);
        const int result = messageBox(QStringLiteral("Proceed?"), &parent, QMessageBox::Ok | QMessageBox::Cancel,
                                      QMessageBox::Question, m_dir.filePath(QStringLiteral("report.log")));
        QCOMPARE(result, int(QMessageBox::Cancel));

        answerNextBox(QMessageBox::Ok);
        QCOMPARE(messageBox(QStringLiteral("Done."), &parent, QMessageBox::Ok, QMessageBox::Information),
                 int(QMessageBox::Ok));

        // Escape answers Cancel when offered, else the only button.
        answerNextBox(QMessageBox::NoButton);
        QCOMPARE(messageBox(QStringLiteral("Sure?"), &parent, QMessageBox::Ok | QMessageBox::Cancel,
                            QMessageBox::Question),
                 int(QMessageBox::Cancel));
        answerNextBox(QMessageBox::NoButton);
        QCOMPARE(messageBox(QStringLiteral("Failed."), &parent, QMessageBox::Ok, QMessageBox::Critical),
                 int(QMessageBox::Ok));
    }
};

QTEST_MAIN(TestCoreUtils)
#include "test_core_utils.moc"
