#pragma once
// Replaces a file whole or not at all. The bytes go to a temporary file
// beside the target; every write is checked, the data is flushed to the disk
// (fsync) and only then renamed over the target. Any failure on the way
// (a full disk, a missing folder, no permission) removes the temporary file:
// an earlier file stays byte for byte as it was, and where there was none,
// nothing is left that looks like a whole file. errorString() holds the
// system's text for the failure ("No space left on device").
//
//   CAtomicFileWriter out(path);
//   if (!out.open() || !out.write(bytes) || !out.commit())
//       log(out.errorString());          // nothing else to clean up
//
// Or in one call: CAtomicFileWriter::writeFile(path, bytes, &error).
// An existing target keeps its permissions; a symbolic link is written
// through (its target is replaced). Blocking file I/O: not for the GUI thread
// with large files. One writer is used by one thread at a time.
#include <QByteArray>
#include <QString>

class CAtomicFileWriter
{
public:
    explicit CAtomicFileWriter(const QString& path);
    // Cancels what was not committed.
    ~CAtomicFileWriter();
    CAtomicFileWriter(const CAtomicFileWriter&) = delete;
    CAtomicFileWriter& operator=(const CAtomicFileWriter&) = delete;

    // Creates the temporary file in the target's folder.
    bool open();
    // Writes all the bytes or fails; after a failure every call fails.
    bool write(const char* data, qint64 size);
    bool write(const QByteArray& bytes) { return write(bytes.constData(), bytes.size()); }
    // Flushes, closes and renames over the target. False, the target
    // untouched and the temporary file gone, when any step failed.
    bool commit();
    // Drops the temporary file; the target stays as it was.
    void cancel();

    QString path() const { return m_path; }
    QString errorString() const { return m_error; }

    static bool writeFile(const QString& path, const QByteArray& bytes, QString* error = nullptr);

private:
    bool fail(int err);
    void closeAndRemove();

    QString m_path;
    QByteArray m_target;   // the file replaced, symbolic links resolved
    QByteArray m_temp;
    int m_fd = -1;
    bool m_failed = false;
    QString m_error;
};
