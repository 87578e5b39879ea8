#pragma once
// Our device parameter file: plain text, one feature a line.
//
//   # Lumidor device parameter file 2
//   # Vendor=Lumidor
//   # Model=SimCam
//   # Serial=SIM001
//   # Saved=2024-05-01T10:00:00
//   ExposureTime=10000
//   TriggerMode[TriggerSelector=FrameStart]=On
//   # End: 7 lines
//
// The last line is the end marker: it counts the lines before it. A file
// of version 2 that does not end with a marker whose count matches, or that
// goes on after it, is damaged (cut short, or joined to something else);
// only the line feed after the marker may be missing. So is an empty file,
// or one that ends inside our header line. Of a damaged file only complete
// lines count: a last line without its line feed may have lost the end of
// its value and is never taken. Files of version 1 were written before the
// marker existed and load without one; the count allows line ends of
// another system (CR LF) and hand-edited values.
//
// A feature that selectors choose between gets one line per combination of
// selector values, the selectors named in brackets. Values are the text
// forms of CParamFileNodeMap (enumerations by symbol); backslash, carriage
// return and line feed in a value are written \\, \r and \n. Lines starting
// with '#' are comments; "# Key=Value" comments of the header carry the
// camera that wrote the file. A tab may stand for '=' (files of other tools).
#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <functional>

struct SParamEntry
{
    QString name;
    QList<QPair<QString, QString>> selectors;   // selector name, value, in order
    QString value;
    int line = 0;                               // line of the file, 1-based (0: not read from a file)

    // "Name" or "Name[Sel=Val,...]", as written in the file.
    QString key() const;
};

class CDeviceParamFile
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceParamFile)

public:
    // The header line without its version number, and the version written.
    static const char* magicPrefix() { return "# Lumidor device parameter file "; }
    static const int kVersion = 2;
    static QByteArray magic(int version = kVersion);
    // Files larger than this are not read.
    static const qint64 kMaxFileSize = 16 * 1024 * 1024;

    QString vendor, model, serial, saved;
    QList<SParamEntry> entries;
    // Set by parse(): the version of our own header on the first line, 0
    // when the file has none (a file of another tool).
    int version = 0;
    bool hasHeader() const { return version > 0; }
    // Set by parse(): the file ends with a matching end marker.
    bool hasEndMarker = false;
    // Set by parse(): why the file is damaged, empty when it is whole. The
    // entries of a damaged file are the complete lines it still holds.
    QString damage;
    // Set by parse(): "line N: why" for every line that was not understood.
    QStringList problems;

    QByteArray toText() const;
    static CDeviceParamFile parse(const QByteArray& text);

    // Writes the whole file or nothing: a file already there stays byte for
    // byte as it was when writing fails. Only a regular file is replaced.
    // error names the file and the system's reason.
    bool save(const QString& path, QString& error) const;
    // Reads a regular file of at most kMaxFileSize bytes; keepGoing is asked
    // between chunks (false: returns false with an empty error).
    static bool load(const QString& path, CDeviceParamFile& file, QString& error,
                     const std::function<bool()>& keepGoing = nullptr);

    static QString escape(const QString& value);
    static QString unescape(const QString& text);
};
