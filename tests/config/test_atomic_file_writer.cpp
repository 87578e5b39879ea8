// The writer that replaces a file whole or not at all: on a full disk, a
// missing folder or a cancelled write the earlier file stays byte for byte
// and no partial file is left; the failure carries the system's text.
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include "SmallTmpfs.h"
#include "TestFiles.h"

#include "CAtomicFileWriter.h"

#include <sys/stat.h>

namespace {

QStringList filesIn(const QString& dir)
{
    return QDir(dir).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

struct stat statOf(const QString& path)
{
    struct stat st {};
    ::lstat(QFile::encodeName(path).constData(), &st);
    return st;
}

QString systemText(int err)
{
    return QString::fromLocal8Bit(strerror(err));
}

} // namespace

class TestAtomicFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void replacesTheFileWhole()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(QStringLiteral("settings.xml"));

        QString error;
        QVERIFY(CAtomicFileWriter::writeFile(path, "first", &error) && error.isEmpty());
        QCOMPARE(readAll(path), QByteArray("first"));

        // The replacement is a new file with the old one's permissions.
        QVERIFY(::chmod(QFile::encodeName(path).constData(), 0640) == 0);
        const ino_t before = statOf(path).st_ino;
        {
            CAtomicFileWriter out(path);
            QVERIFY(out.open() && out.write("sec", 3));
            QCOMPARE(readAll(path), QByteArray("first"));   // nothing shows before commit
            QVERIFY(out.write(QByteArray("ond")) && out.commit());
        }
        QCOMPARE(readAll(path), QByteArray("second"));
        QVERIFY(statOf(path).st_ino != before);
        QCOMPARE(statOf(path).st_mode & 07777, mode_t(0640));

        // Not committed (cancelled, or the writer goes away): nothing changes.
        {
            CAtomicFileWriter out(path);
            QVERIFY(out.open() && out.write("third"));
            out.cancel();
            QVERIFY(!out.commit());
        }
        {
            CAtomicFileWriter out(path);
            QVERIFY(out.open() && out.write("fourth"));
        }
        QCOMPARE(readAll(path), QByteArray("second"));

        // A symbolic link is written through: it stays a link.
        const QString link = dir.filePath(QStringLiteral("link.xml"));
        QVERIFY(QFile::link(path, link) && CAtomicFileWriter::writeFile(link, "through the link"));
        QVERIFY(S_ISLNK(statOf(link).st_mode));
        QCOMPARE(readAll(path), QByteArray("through the link"));

        // A folder that does not exist: the system's reason, no file.
        const QString lost = dir.filePath(QStringLiteral("missing/settings.xml"));
        QVERIFY(!CAtomicFileWriter::writeFile(lost, "x", &error));
        QCOMPARE(error, systemText(ENOENT));
        QVERIFY(!CAtomicFileWriter::writeFile(QString(), "x", &error));
        // The rename cannot replace a folder: written, but not committed.
        const QString folder = dir.filePath(QStringLiteral("folder.xml"));
        QVERIFY(QDir().mkpath(folder + QStringLiteral("/inside")));
        QVERIFY(!CAtomicFileWriter::writeFile(folder, "x", &error));
        QCOMPARE(error, systemText(EISDIR));
        QVERIFY(QFileInfo(folder + QStringLiteral("/inside")).isDir() && QDir(folder).removeRecursively());

        QCOMPARE(filesIn(dir.path()), QStringList() << QStringLiteral("link.xml") << QStringLiteral("settings.xml"));
    }

    void fullDiskLeavesTheEarlierFile()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString mountPoint = dir.filePath(QStringLiteral("disk"));
        SmallTmpfs disk;
        QVERIFY2(disk.mount(mountPoint, 64), qPrintable(disk.error()));

        const QString path = mountPoint + QStringLiteral("/settings.xml");
        const QByteArray earlier(3000, 'e');
        QVERIFY(CAtomicFileWriter::writeFile(path, earlier));
        QVERIFY2(disk.fill(), qPrintable(disk.error()));

        // Overwriting: the write fails, the earlier file is untouched.
        const QByteArray bigger(20000, 'n');
        CAtomicFileWriter out(path);
        QVERIFY(out.open());
        const bool written = out.write(bigger) && out.commit();
        QVERIFY(!written);
        QCOMPARE(out.errorString(), systemText(ENOSPC));
        QVERIFY(!out.write("more"));
        QCOMPARE(readAll(path), earlier);

        // A new file: nothing is left under its name or beside it.
        const QString fresh = mountPoint + QStringLiteral("/fresh.xml");
        QString error;
        QVERIFY(!CAtomicFileWriter::writeFile(fresh, bigger, &error));
        QCOMPARE(error, systemText(ENOSPC));
        QCOMPARE(filesIn(mountPoint), QStringList() << QStringLiteral("filler") << QStringLiteral("settings.xml"));

        // With room again the same write goes through.
        disk.release();
        QVERIFY(CAtomicFileWriter::writeFile(path, bigger, &error));
        QCOMPARE(readAll(path), bigger);
    }
};

QTEST_GUILESS_MAIN(TestAtomicFileWriter)
#include "test_atomic_file_writer.moc"
