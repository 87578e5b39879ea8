#pragma once
// Reading and writing only what is a regular file. A FIFO, a directory, a
// device or a socket (or a link to one) is refused by its type, found with
// lstat/stat before anything is opened, so nothing can block on a pipe or
// stream an endless device. The file is then opened non-blocking and checked
// again on the open descriptor, in case the path changed in between. Reads
// stop at a size limit and never hold more than the limit plus one chunk.
// Every message names the file. Blocking disk I/O: workers only.
#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <functional>

class CRegularFile
{
    Q_DECLARE_TR_FUNCTIONS(CRegularFile)

public:
    // Bytes read at a time.
    static const int kChunk = 64 * 1024;

    // Empty when path is a regular file, or a link to one; also when nothing
    // is there and mayBeMissing is set (a file about to be created).
    // Otherwise why not.
    static QString check(const QString& path, bool mayBeMissing);

    // Reads the whole file when it is a regular file of at most limit bytes.
    // keepGoing is asked between chunks; false ends the read with an empty
    // error (the caller knows why it stopped).
    static bool read(const QString& path, qint64 limit, QByteArray& bytes, QString& error,
                     const std::function<bool()>& keepGoing = nullptr);

    // The file's name as messages show it.
    static QString shown(const QString& path);
};
