#include "CRegularFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What a file that is not regular is, for the message.
QString kindOf(mode_t mode)
{
    if (S_ISFIFO(mode))
        return CRegularFile::tr("a FIFO (named pipe)");
    if (S_ISDIR(mode))
        return CRegularFile::tr("a directory");
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return CRegularFile::tr("a device");
    if (S_ISSOCK(mode))
        return CRegularFile::tr("a socket");
    return CRegularFile::tr("a special file");
}

QString notRegular(const QString& path, mode_t mode, bool viaLink)
{
    const QString text = viaLink ? CRegularFile::tr("%1 is a link to %2, not to a regular file.")
                                 : CRegularFile::tr("%1 is %2, not a regular file.");
    return text.arg(CRegularFile::shown(path), kindOf(mode));
}

QString systemError(const char* what, const QString& path, int err)
{
    return CRegularFile::tr(what).arg(CRegularFile::shown(path), qt_error_string(err));
}

QString tooLarge(const QString& path, qint64 size, qint64 limit)
{
    return CRegularFile::tr("%1 is too large (%2 bytes); files over %3 MB are refused.")
        .arg(CRegularFile::shown(path))
        .arg(size)
        .arg(limit / (1024 * 1024));
}

} // namespace

QString CRegularFile::shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

QString CRegularFile::check(const QString& path, bool mayBeMissing)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat st;
    if (name.isEmpty() || ::lstat(name.constData(), &st) != 0)
    {
        const int err = name.isEmpty() ? ENOENT : errno;
        if (err == ENOENT && mayBeMissing)
            return QString();
        return systemError(QT_TRANSLATE_NOOP("CRegularFile", "%1 cannot be used: %2"), path, err);
    }
    if (S_ISREG(st.st_mode))
        return QString();
    if (!S_ISLNK(st.st_mode))
        return notRegular(path, st.st_mode, false);
    // A link: what it leads to decides. A dangling link is a new file only
    // when the caller creates one (the writer then writes through it).
    if (::stat(name.constData(), &st) != 0)
    {
        const int err = errno;
        if (err == ENOENT && mayBeMissing)
            return QString();
        return systemError(QT_TRANSLATE_NOOP("CRegularFile", "%1 cannot be used: %2"), path, err);
    }
    return S_ISREG(st.st_mode) ? QString() : notRegular(path, st.st_mode, true);
}

bool CRegularFile::read(const QString& path, qint64 limit, QByteArray& bytes, QString& error,
                        const std::function<bool()>& keepGoing)
{
    bytes.clear();
    error = check(path, false);
    if (!error.isEmpty())
        return false;
    const QByteArray name = QFile::encodeName(path);
    // Non-blocking: should the path have become a FIFO since the check, the
    // open returns at once and the type check below refuses it.
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
    {
        error = systemError(QT_TRANSLATE_NOOP("CRegularFile", "%1 could not be opened: %2"), path, errno);
        return false;
    }
    const auto fail = [&](const QString& why) {
        ::close(fd);
        bytes.clear();
        bytes.squeeze();
        error = why;
        return false;
    };
    struct stat st;
    if (::fstat(fd, &st) != 0)
        return fail(systemError(QT_TRANSLATE_NOOP("CRegularFile", "%1 could not be read: %2"), path, errno));
    if (!S_ISREG(st.st_mode))
        return fail(notRegular(path, st.st_mode, false));
    if (st.st_size > limit)
        return fail(tooLarge(path, st.st_size, limit));

    // The file's bytes (room for what it said it holds; a file that grows
    // meanwhile gets more, up to the limit) and one chunk to read into.
    QByteArray chunk(kChunk, Qt::Uninitialized);
    bytes.reserve(int(st.st_size));
    for (;;)
    {
        if (keepGoing && !keepGoing())
            return fail(QString());
        const ssize_t n = ::read(fd, chunk.data(), size_t(chunk.size()));
        if (n < 0)
        {
            if (errno == EINTR)
                continue;
            return fail(systemError(QT_TRANSLATE_NOOP("CRegularFile", "%1 could not be read: %2"), path, errno));
        }
        if (n == 0)
            break;
        const qint64 size = bytes.size() + n;
        if (size > limit)
            return fail(tooLarge(path, size, limit));
        if (bytes.capacity() < size)
            bytes.reserve(int(qMin(limit, qMax<qint64>(size, qint64(bytes.capacity()) * 2))));
        bytes.append(chunk.constData(), int(n));
    }
    ::close(fd);
    return true;
}
