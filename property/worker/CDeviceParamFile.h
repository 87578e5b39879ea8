#pragma once
// Our device parameter file: plain text, one feature a line.
//
//   # Lumidor device parameter file 1
//   # Vendor=Lumidor
//   # Model=SimCam
//   # Serial=SIM001
//   # Saved=2024-05-01T10:00:00
//   ExposureTime=10000
//   TriggerMode[TriggerSelector=FrameStart]=On
//
// A feature that selectors choose between gets one line per combination of
// selector values, the selectors named in brackets. Values are the text
// forms of CParamFileNodeMap (enumerations by symbol); backslash, carriage
// return and line feed in a value are written \\, \r and \n. Lines starting
// with '#' are comments; "# Key=Value" comments of the header carry the
// camera that wrote the file. A tab may stand for '=' (files of other tools).
#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

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
public:
    static const char* magic() { return "# Lumidor device parameter file 1"; }

    QString vendor, model, serial, saved;
    QList<SParamEntry> entries;
    // Set by parse(): the first line was our own header.
    bool hasHeader = false;
    // Set by parse(): "line N: why" for every line that was not understood.
    QStringList problems;

    QByteArray toText() const;
    static CDeviceParamFile parse(const QByteArray& text);

    // Writes the whole file or nothing (the old file stays when writing fails).
    bool save(const QString& path, QString& error) const;
    static bool load(const QString& path, CDeviceParamFile& file, QString& error);

    static QString escape(const QString& value);
    static QString unescape(const QString& text);
};
