// Parameter files without a camera: the end marker against a file cut at
// every byte, files that are no regular files or too large, and the user's
// cancel against the worker's commit.
#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

#include "CDeviceParamFile.h"
#include "CParamFileLoadThread.h"
#include "CRegularFile.h"
#include "TestFiles.h"

namespace {

CDeviceParamFile sampleFile()
{
    CDeviceParamFile file;
    file.vendor = "Lumidor";
    file.model = "SimCam";
    file.entries.append({"ExposureTime", {}, "10000", 0});
    file.entries.append({"TriggerMode", {{"TriggerSelector", "FrameStart"}}, "On", 0});
    file.entries.append({"DeviceUserID", {}, "a\\b\nc=d", 0});
    file.entries.append({"Width", {}, "640", 0});
    return file;
}

// A worker whose work commits (or finds itself cancelled) when the test says so.
class CHeldWorker : public CParamFileThread
{
public:
    CHeldWorker() : CParamFileThread("CHeldWorker", QString(), nullptr) {}
    QSemaphore entered, release;
    std::atomic<int> committed{-1};

protected:
    bool work() override
    {
        entered.release();
        release.acquire();
        committed = commit() ? 1 : 0;
        return true;
    }
};

} // namespace

class TestParamFileChecks : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void endMarkerCatchesEveryCut();
    void onlyRegularFiles();
    void cancelWinsUntilCommit();

private:
    QString path(const char* name) const { return m_dir.filePath(QString::fromLatin1(name)); }
    QTemporaryDir m_dir;
};

void TestParamFileChecks::endMarkerCatchesEveryCut()
{
    const CDeviceParamFile original = sampleFile();
    const QByteArray text = original.toText();
    QVERIFY2(text.endsWith("\n# End: 7 lines\n"), text.constData());
    const CDeviceParamFile whole = CDeviceParamFile::parse(text);
    QCOMPARE(whole.version, 2);
    QVERIFY(whole.hasEndMarker && whole.damage.isEmpty() && whole.problems.isEmpty());
    QCOMPARE(whole.entries.size(), 4);
    QCOMPARE(whole.entries[1].key(), QString("TriggerMode[TriggerSelector=FrameStart]"));
    QCOMPARE(whole.entries[2].value, QString("a\\b\nc=d"));   // escapes survive, '=' in a value too

    // The rule: only the line feed after the marker may go; any other cut is
    // damaged, and what a damaged file still offers is complete lines only.
    for (int cut = 0; cut < text.size(); ++cut)
    {
        const CDeviceParamFile part = CDeviceParamFile::parse(text.left(cut));
        const QString at = QString("cut at %1 of %2").arg(cut).arg(text.size());
        if (cut == text.size() - 1)
        {
            QVERIFY2(part.damage.isEmpty() && part.hasEndMarker, qPrintable(at + ": " + part.damage));
            QCOMPARE(part.entries.size(), 4);
            continue;
        }
        QVERIFY2(!part.damage.isEmpty(), qPrintable(at));
        QVERIFY2(part.entries.size() <= 4, qPrintable(at));
        for (int i = 0; i < part.entries.size(); ++i)
        {
            QCOMPARE(part.entries[i].key(), original.entries[i].key());
            QVERIFY2(part.entries[i].value == original.entries[i].value, qPrintable(at));
        }
    }

    // Line ends of another system keep the count; a changed count, or lines
    // after the marker, are damage.
    QVERIFY(CDeviceParamFile::parse(QByteArray(text).replace("\n", "\r\n")).damage.isEmpty());
    QVERIFY(!CDeviceParamFile::parse(QByteArray(text).replace("Width=640\n", "")).damage.isEmpty());
    QVERIFY(!CDeviceParamFile::parse(text + "Gain=3\n").damage.isEmpty());

    // A file of the first version has no marker and loads whole.
    const CDeviceParamFile old = CDeviceParamFile::parse(CDeviceParamFile::magic(1) + "\nWidth=64\nGain=2");
    QCOMPARE(old.version, 1);
    QVERIFY(!old.hasEndMarker && old.damage.isEmpty());
    QCOMPARE(old.entries.size(), 2);

    // A foreign file: no header, lines that name nothing are listed.
    const CDeviceParamFile bad = CDeviceParamFile::parse("garbage line\nWidth\t64\n9bad=1\nX[Sel]=2\n\x01\x02\n");
    QVERIFY(!bad.hasHeader() && bad.damage.isEmpty());
    QCOMPARE(bad.entries.size(), 1);   // tab-separated lines of other tools are read
    QCOMPARE(bad.problems.size(), 4);
    QVERIFY(bad.problems[0].startsWith("line 1"));
}

void TestParamFileChecks::onlyRegularFiles()
{
    const QString fifo = path("fifo.txt"), dir = path("folder.txt"), zero = path("zero.txt");
    QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    QVERIFY(QDir().mkpath(dir) && QFile::link("/dev/zero", zero));
    const QString big = path("big.txt");
    QVERIFY(writeAll(big, QByteArray()));
    QCOMPARE(::truncate(QFile::encodeName(big).constData(), CDeviceParamFile::kMaxFileSize + 1), 0);   // sparse
    const struct
    {
        QString path;
        const char* why;
    } refused[] = {{fifo, "FIFO"}, {dir, "directory"}, {zero, "link to a device"}, {big, "16 MB"},
                   {path("missing.txt"), "No such file"}};
    for (const auto& r : refused)
    {
        CDeviceParamFile file;
        QString error;
        QVERIFY2(!CDeviceParamFile::load(r.path, file, error), qPrintable(r.path));
        QVERIFY2(error.contains(r.path) && error.contains(r.why), qPrintable(error));
    }
    // The limit is exact.
    const QString small = path("small.txt");
    QVERIFY(writeAll(small, QByteArray(100, 'x')));
    QByteArray bytes;
    QString error;
    QVERIFY(!CRegularFile::read(small, 99, bytes, error) && bytes.isEmpty());
    QVERIFY(CRegularFile::read(small, 100, bytes, error));
    QCOMPARE(bytes.size(), 100);
    // Reading stops when asked.
    QVERIFY(!CRegularFile::read(small, 100, bytes, error, []() { return false; }) && error.isEmpty());

    // Saving: never over what is not a regular file; through a link to one.
    const CDeviceParamFile file = sampleFile();
    for (const QString& p : {fifo, dir, zero})
    {
        QVERIFY2(!file.save(p, error), qPrintable(p));
        QVERIFY2(error.contains(p), qPrintable(error));
    }
    struct stat st;
    QVERIFY(::stat(QFile::encodeName(fifo).constData(), &st) == 0 && S_ISFIFO(st.st_mode));
    const QString target = path("target.txt"), link = path("link.txt");
    QVERIFY(writeAll(target, "old") && QFile::link(target, link));
    QVERIFY2(file.save(link, error), qPrintable(error));
    QCOMPARE(readAll(target), file.toText());
    QVERIFY(QFileInfo(link).isSymLink());
}

void TestParamFileChecks::cancelWinsUntilCommit()
{
    // Cancelled first: the work finds out when it tries to commit.
    CHeldWorker early;
    early.begin();
    QVERIFY(early.entered.tryAcquire(1, 10000) && early.cancel() && early.isCancelled());
    early.release.release();
    QVERIFY(early.wait(10000));
    QCOMPARE(early.committed.load(), 0);

    // Committed first: too late to cancel.
    CHeldWorker late;
    late.begin();
    QVERIFY(late.entered.tryAcquire(1, 10000));
    late.release.release();
    QVERIFY(late.wait(10000));
    QCOMPARE(late.committed.load(), 1);
    QVERIFY(!late.cancel() && !late.isCancelled());
}

QTEST_GUILESS_MAIN(TestParamFileChecks)
#include "test_param_file_checks.moc"
