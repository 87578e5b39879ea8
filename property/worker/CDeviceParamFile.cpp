#include "CDeviceParamFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include "CAtomicFileWriter.h"
#include "CRegularFile.h"

QString SParamEntry::key() const
{
    if (selectors.isEmpty())
        return name;
    QStringList parts;
    for (const auto& s : selectors)
        parts.append(s.first + QLatin1Char('=') + s.second);
    return name + QLatin1Char('[') + parts.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString CDeviceParamFile::escape(const QString& value)
{
    QString out;
    out.reserve(value.size());
    for (const QChar c : value)
    {
        if (c == QLatin1Char('\\'))
            out += QLatin1String("\\\\");
        else if (c == QLatin1Char('\n'))
            out += QLatin1String("\\n");
        else if (c == QLatin1Char('\r'))
            out += QLatin1String("\\r");
        else
            out += c;
    }
    return out;
}

QString CDeviceParamFile::unescape(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size(); ++i)
    {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\\') && i + 1 < text.size())
        {
            const QChar n = text.at(++i);
            out += n == QLatin1Char('n') ? QChar('\n') : n == QLatin1Char('r') ? QChar('\r') : n;
        }
        else
        {
            out += c;
        }
    }
    return out;
}

QByteArray CDeviceParamFile::magic(int version)
{
    return magicPrefix() + QByteArray::number(version);
}

QByteArray CDeviceParamFile::toText() const
{
    QString text = QString::fromLatin1(magic()) + QLatin1Char('\n');
    const QPair<const char*, QString> header[] = {
        {"Vendor", vendor}, {"Model", model}, {"Serial", serial}, {"Saved", saved}};
    for (const auto& h : header)
        if (!h.second.isEmpty())
            text += QStringLiteral("# %1=%2\n").arg(QLatin1String(h.first), escape(h.second));
    for (const SParamEntry& e : entries)
        text += e.key() + QLatin1Char('=') + escape(e.value) + QLatin1Char('\n');
    // Values are escaped, so every line feed ends a line.
    text += QStringLiteral("# End: %1 lines\n").arg(text.count(QLatin1Char('\n')));
    return text.toUtf8();
}

CDeviceParamFile CDeviceParamFile::parse(const QByteArray& bytes)
{
    static const QRegularExpression nameRx(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    static const QRegularExpression headerRx(QStringLiteral("^#\\s*(Vendor|Model|Serial|Saved)=(.*)$"));
    static const QRegularExpression magicRx(QStringLiteral("^# Lumidor device parameter file ([0-9]+)$"));
    static const QRegularExpression endRx(QStringLiteral("^# End: ([0-9]+) lines$"));
    CDeviceParamFile file;
    if (bytes.trimmed().isEmpty())
    {
        file.damage = tr("the file is empty");
        return file;
    }
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    // What follows the last line feed: nothing, or a line that was not ended.
    const bool lastUnended = !lines.last().isEmpty();
    if (!lastUnended)
        lines.removeLast();
    bool firstContent = true;
    bool markerSeen = false;
    bool lastEntryUnended = false;
    for (int i = 0; i < lines.size(); ++i)
    {
        QString line = lines.at(i);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        const int lineNo = i + 1;
        const bool unended = lastUnended && i == lines.size() - 1;
        if (line.trimmed().isEmpty())
            continue;
        if (markerSeen)
        {
            if (file.damage.isEmpty())
                file.damage = tr("it goes on after its end marker (line %1)").arg(lineNo);
            continue;
        }
        if (firstContent)
        {
            firstContent = false;
            const QRegularExpressionMatch m = magicRx.match(line.trimmed());
            if (m.hasMatch())
            {
                file.version = qMax(1, m.captured(1).toInt());
                continue;
            }
            // Our header cut short: nothing after it made it into the file.
            if (unended && QString::fromLatin1(magicPrefix()).startsWith(line.trimmed()))
            {
                file.damage = tr("it ends inside its first line");
                continue;
            }
        }
        if (line.startsWith(QLatin1Char('#')))
        {
            const QRegularExpressionMatch end = endRx.match(line.trimmed());
            if (end.hasMatch())
            {
                markerSeen = true;
                // Every line before the marker counts, blank ones too.
                const int counted = end.captured(1).toInt();
                file.hasEndMarker = counted == i;
                if (!file.hasEndMarker && file.damage.isEmpty())
                    file.damage = tr("its end marker counts %1 lines, but %2 come before it").arg(counted).arg(i);
                continue;
            }
            const QRegularExpressionMatch m = headerRx.match(line);
            if (m.hasMatch())
            {
                const QString value = unescape(m.captured(2));
                const QString key = m.captured(1);
                if (key == QLatin1String("Vendor"))
                    file.vendor = value;
                else if (key == QLatin1String("Model"))
                    file.model = value;
                else if (key == QLatin1String("Serial"))
                    file.serial = value;
                else
                    file.saved = value;
            }
            continue;
        }
        // The key ends at the first '=' (or tab) outside brackets.
        int split = -1;
        int depth = 0;
        for (int k = 0; k < line.size() && split < 0; ++k)
        {
            const QChar c = line.at(k);
            if (c == QLatin1Char('['))
                ++depth;
            else if (c == QLatin1Char(']'))
                --depth;
            else if (depth == 0 && (c == QLatin1Char('=') || c == QLatin1Char('\t')))
                split = k;
        }
        if (split <= 0)
        {
            file.problems.append(tr("line %1: no \"name=value\" pair").arg(lineNo));
            continue;
        }
        SParamEntry entry;
        entry.line = lineNo;
        entry.value = unescape(line.mid(split + 1));
        QString key = line.left(split).trimmed();
        bool ok = true;
        const int open = key.indexOf(QLatin1Char('['));
        if (open >= 0)
        {
            if (!key.endsWith(QLatin1Char(']')))
                ok = false;
            const QString inner = key.mid(open + 1, key.size() - open - 2);
            key = key.left(open);
            for (const QString& part : inner.split(QLatin1Char(','), Qt::SkipEmptyParts))
            {
                const int eq = part.indexOf(QLatin1Char('='));
                const QString selName = part.left(eq).trimmed();
                if (eq <= 0 || !nameRx.match(selName).hasMatch())
                {
                    ok = false;
                    break;
                }
                entry.selectors.append({selName, part.mid(eq + 1).trimmed()});
            }
        }
        entry.name = key;
        if (!ok || !nameRx.match(key).hasMatch())
        {
            file.problems.append(tr("line %1: \"%2\" is not a feature name").arg(lineNo).arg(line.left(split).trimmed()));
            continue;
        }
        file.entries.append(entry);
        lastEntryUnended = unended;
    }
    if (file.damage.isEmpty() && file.version >= 2 && !markerSeen)
        file.damage = tr("it ends before its end marker, so it was cut short");
    // In a damaged file a line without its line feed may have lost the end
    // of its value (10000 cut to 10): it is never loaded.
    if (!file.damage.isEmpty() && lastEntryUnended)
    {
        file.problems.append(tr("line %1: cut short, not loaded").arg(file.entries.last().line));
        file.entries.removeLast();
    }
    return file;
}

bool CDeviceParamFile::save(const QString& path, QString& error) const
{
    error = CRegularFile::check(path, true);
    if (!error.isEmpty())
        return false;
    CAtomicFileWriter out(path);
    if (out.open() && out.write(toText()) && out.commit())
        return true;
    error = tr("%1 could not be written: %2").arg(CRegularFile::shown(path), out.errorString());
    return false;
}

bool CDeviceParamFile::load(const QString& path, CDeviceParamFile& file, QString& error,
                            const std::function<bool()>& keepGoing)
{
    QByteArray bytes;
    if (!CRegularFile::read(path, kMaxFileSize, bytes, error, keepGoing))
        return false;
    file = parse(bytes);
    return true;
}
