#include "CDeviceParamFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>

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

QByteArray CDeviceParamFile::toText() const
{
    QString text = QLatin1String(magic()) + QLatin1Char('\n');
    const QPair<const char*, QString> header[] = {
        {"Vendor", vendor}, {"Model", model}, {"Serial", serial}, {"Saved", saved}};
    for (const auto& h : header)
        if (!h.second.isEmpty())
            text += QStringLiteral("# %1=%2\n").arg(QLatin1String(h.first), escape(h.second));
    for (const SParamEntry& e : entries)
        text += e.key() + QLatin1Char('=') + escape(e.value) + QLatin1Char('\n');
    return text.toUtf8();
}

CDeviceParamFile CDeviceParamFile::parse(const QByteArray& bytes)
{
    static const QRegularExpression nameRx(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    static const QRegularExpression headerRx(QStringLiteral("^#\\s*(Vendor|Model|Serial|Saved)=(.*)$"));
    CDeviceParamFile file;
    const QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    bool firstContent = true;
    for (int i = 0; i < lines.size(); ++i)
    {
        QString line = lines.at(i);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        const int lineNo = i + 1;
        if (line.trimmed().isEmpty())
            continue;
        if (firstContent)
        {
            firstContent = false;
            if (line.trimmed() == QLatin1String(magic()))
            {
                file.hasHeader = true;
                continue;
            }
        }
        if (line.startsWith(QLatin1Char('#')))
        {
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
            file.problems.append(QCoreApplication::translate("CDeviceParamFile", "line %1: no \"name=value\" pair")
                                     .arg(lineNo));
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
            file.problems.append(QCoreApplication::translate("CDeviceParamFile", "line %1: \"%2\" is not a feature name")
                                     .arg(lineNo)
                                     .arg(line.left(split).trimmed()));
            continue;
        }
        file.entries.append(entry);
    }
    return file;
}

bool CDeviceParamFile::save(const QString& path, QString& error) const
{
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly))
    {
        error = out.errorString();
        return false;
    }
    const QByteArray text = toText();
    if (out.write(text) != text.size() || !out.commit())
    {
        error = out.errorString();
        return false;
    }
    return true;
}

bool CDeviceParamFile::load(const QString& path, CDeviceParamFile& file, QString& error)
{
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly))
    {
        error = in.errorString();
        return false;
    }
    file = parse(in.readAll());
    return true;
}
