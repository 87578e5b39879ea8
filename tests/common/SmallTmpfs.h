#pragma once
// A small tmpfs mounted for one test, to make a disk run full on purpose.
//
// Mounting needs the mount namespace of its own that CTest gives every test
// (scripts/netns.sh sets LUMIDOR_NETNS=1 there) and root inside it; without
// them mount() is refused and error() says why, for the test to fail with.
// fill() takes every free byte with a filler file, release() gives it back.
//
//   SmallTmpfs disk;
//   QVERIFY2(disk.mount(dir, 64), qPrintable(disk.error()));
//   QVERIFY2(disk.fill(), qPrintable(disk.error()));
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

class SmallTmpfs
{
public:
    SmallTmpfs() = default;
    ~SmallTmpfs() { unmount(); }
    SmallTmpfs(const SmallTmpfs&) = delete;
    SmallTmpfs& operator=(const SmallTmpfs&) = delete;

    // Mounts a tmpfs of sizeKiB at dir (made when missing).
    bool mount(const QString& dir, int sizeKiB)
    {
        if (qgetenv("LUMIDOR_NETNS") != "1")
            return failWith(QStringLiteral("not in a namespace of its own: run the test through ctest "
                                           "(scripts/netns.sh), which gives it a private mount namespace"));
        if (!QDir().mkpath(dir))
            return failWith(QStringLiteral("cannot make ") + dir);
        const QByteArray options = "size=" + QByteArray::number(sizeKiB) + "k,mode=0755";
        if (::mount("tmpfs", QFile::encodeName(dir).constData(), "tmpfs", 0, options.constData()) != 0)
            return failWith(QStringLiteral("mount -t tmpfs -o %1 tmpfs %2: %3 (the test needs root in its namespace)")
                                .arg(QString::fromLatin1(options), dir, QString::fromLocal8Bit(std::strerror(errno))));
        m_dir = dir;
        return true;
    }

    // Writes a filler file until the disk refuses another byte.
    bool fill()
    {
        const QByteArray name = QFile::encodeName(fillerPath());
        const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
        if (fd < 0)
            return failWith(QStringLiteral("cannot create the filler: ") + QString::fromLocal8Bit(std::strerror(errno)));
        const QByteArray chunk(512, 'f');
        int err = 0;
        for (;;) {
            if (::write(fd, chunk.constData(), size_t(chunk.size())) < 0) {
                err = errno;
                break;
            }
        }
        // Single bytes into what the last chunk left.
        while (::write(fd, "f", 1) == 1) {
        }
        ::close(fd);
        if (err != ENOSPC)
            return failWith(QStringLiteral("filling stopped on: ") + QString::fromLocal8Bit(std::strerror(err)));
        return true;
    }

    void release() { QFile::remove(fillerPath()); }

    QString error() const { return m_error; }

private:
    QString fillerPath() const { return m_dir + QStringLiteral("/filler"); }

    bool failWith(const QString& why)
    {
        m_error = why;
        return false;
    }

    void unmount()
    {
        if (!m_dir.isEmpty())
            ::umount2(QFile::encodeName(m_dir).constData(), MNT_DETACH);
        m_dir.clear();
    }

    QString m_dir;
    QString m_error;
};
