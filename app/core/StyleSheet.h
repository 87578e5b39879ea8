#pragma once
// Style-sheet loader: applies a .qss file to anything with setStyleSheet().
#include <QByteArray>
#include <QFile>
#include <QString>
#include "Tavlog4cpp/TavLogMacros.h"

// Reads the whole file and hands the text up to the first NUL (Latin-1) to
// target.setStyleSheet(); on a missing file logs and leaves the target as is.
template <class T>
bool setStyleSheet(T& target, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "StyleManager", "open file error. path: [%s]", path.toLocal8Bit().constData());
        return false;
    }
    QByteArray bytes = file.readAll();
    const int nul = bytes.indexOf('\0');
    if (nul >= 0)
        bytes.truncate(nul);
    target.setStyleSheet(QString::fromLatin1(bytes));
    return true;
}

// Collects a sheet's text instead of applying it, for combining sheets.
struct CStyleSheetText
{
    QString text;
    void setStyleSheet(const QString& sheet) { text = sheet; }
};
