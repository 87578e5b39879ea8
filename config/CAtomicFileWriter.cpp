#include "CAtomicFileWriter.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Distinguishes the temporary files of writers of one process.
std::atomic<unsigned> g_tempCounter{0};

int closeChecked(int fd)
{
    // Linux releases the descriptor even when close() reports an error, so
    // it is never retried.
    return ::close(fd) == 0 ? 0 : errno;
}

// Makes a rename durable; some file systems cannot sync a folder, which
// does not undo the rename, so the result is not a failure of the write.
void syncFolderOf(const QByteArray& file)
{
    const int slash = file.lastIndexOf('/');
    const QByteArray folder = slash > 0 ? file.left(slash) : QByteArray(slash == 0 ? "/" : ".");
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

} // namespace

CAtomicFileWriter::CAtomicFileWriter(const QString& path)
    : m_path(path)
{
}

CAtomicFileWriter::~CAtomicFileWriter()
{
    closeAndRemove();
}

bool CAtomicFileWriter::open()
{
    if (m_failed || m_fd >= 0)
        return false;
    if (m_path.isEmpty())
        return fail(ENOENT);
    const QFileInfo info(m_path);
    m_target = QFile::encodeName(info.isSymLink() ? info.symLinkTarget() : m_path);

    // Created with the usual permissions (0666 less the umask), or the
    // target's own when it exists.
    for (int attempt = 0; attempt < 100; ++attempt) {
        m_temp = m_target + ".tmp" + QByteArray::number(::getpid()) + '.' + QByteArray::number(g_tempCounter++);
        m_fd = ::open(m_temp.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_fd >= 0)
            break;
        const int err = errno;
        m_temp.clear();
        if (err != EEXIST)
            return fail(err);
    }
    if (m_fd < 0)
        return fail(EEXIST);
    struct stat st;
    if (::stat(m_target.constData(), &st) == 0 && ::fchmod(m_fd, st.st_mode & 07777) != 0)
        return fail(errno);
    return true;
}

bool CAtomicFileWriter::write(const char* data, qint64 size)
{
    if (m_failed)
        return false;
    if (m_fd < 0)
        return fail(EBADF);
    while (size > 0) {
        const ssize_t n = ::write(m_fd, data, size_t(size));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return fail(errno);
        }
        data += n;
        size -= n;
    }
    return true;
}

bool CAtomicFileWriter::commit()
{
    if (m_failed)
        return false;
    if (m_fd < 0)
        return fail(EBADF);
    // A full disk may only show when the data is flushed or closed.
    if (::fsync(m_fd) != 0)
        return fail(errno);
    const int err = closeChecked(m_fd);
    m_fd = -1;
    if (err != 0)
        return fail(err);
    if (::rename(m_temp.constData(), m_target.constData()) != 0)
        return fail(errno);
    m_temp.clear();
    syncFolderOf(m_target);
    return true;
}

void CAtomicFileWriter::cancel()
{
    closeAndRemove();
}

bool CAtomicFileWriter::fail(int err)
{
    m_failed = true;
    m_error = qt_error_string(err);
    closeAndRemove();
    return false;
}

void CAtomicFileWriter::closeAndRemove()
{
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
    if (!m_temp.isEmpty()) {
        ::unlink(m_temp.constData());
        m_temp.clear();
    }
}

bool CAtomicFileWriter::writeFile(const QString& path, const QByteArray& bytes, QString* error)
{
    CAtomicFileWriter out(path);
    const bool ok = out.open() && out.write(bytes) && out.commit();
    if (error)
        *error = out.errorString();
    return ok;
}
