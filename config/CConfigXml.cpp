#include "CConfigXml.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "CConfigKeyTable.h"
#include "CConfiguration.h"
#include "ConfigKeys.h"

namespace {

// Reads the current element's text as a number into target (a text that is
// not a number gives 0); false, target unchanged, where the document breaks.
template <typename T>
bool readNumber(QXmlStreamReader& reader, T& target)
{
    const QString text = reader.readElementText();
    if (reader.hasError())
        return false;
    target = T(text.toLongLong());
    return true;
}

void writeNumber(QXmlStreamWriter& writer, const char* name, qint64 value)
{
    writer.writeTextElement(QLatin1String(name), QString::number(value));
}

// Moves the reader past the start of the application element.
void skipToAppElement(QXmlStreamReader& reader)
{
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(CFG_APP_ELEMENT))
            return;
    }
}

} // namespace

void CConfigXml::writeDocument(const CConfiguration& cfg, QIODevice& out)
{
    QXmlStreamWriter writer(&out);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral(CFG_ROOT_ELEMENT));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    writer.writeStartElement(QStringLiteral(CFG_APP_ELEMENT));
    writeContent(cfg, writer);
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
}

void CConfigXml::writeContent(const CConfiguration& cfg, QXmlStreamWriter& writer)
{
    for (const CConfigKeyTable::Key& key : CConfigKeyTable::keys())
        writer.writeTextElement(QLatin1String(key.name), key.write(cfg));
    writeRoiSection(cfg, writer);
}

void CConfigXml::writeRoiSection(const CConfiguration& cfg, QXmlStreamWriter& writer)
{
    writer.writeStartElement(QStringLiteral(CFG_DRAW_ROI));
    writer.writeTextElement(QStringLiteral(CFG_ROI_ENABLE), CConfigKeyTable::boolText(cfg.drawRoiEnable));
    writer.writeTextElement(QStringLiteral(CFG_ROI_DISPLAY_ENABLE), CConfigKeyTable::boolText(cfg.displayRoiEnable));
    writeNumber(writer, CFG_RED_ROI, cfg.roiRed);
    writeNumber(writer, CFG_BLUE_ROI, cfg.roiBlue);
    writeNumber(writer, CFG_GREEN_ROI, cfg.roiGreen);
    for (auto it = cfg.mapVideoFormROI.constBegin(); it != cfg.mapVideoFormROI.constEnd(); ++it) {
        writer.writeStartElement(QStringLiteral(CFG_VIDEO_FORM));
        writer.writeAttribute(QStringLiteral(CFG_VIDEO_FORM_INDEX), QString::number(it.key()));
        for (const stuROI& roi : it.value()) {
            writer.writeStartElement(QStringLiteral(CFG_ROI));
            writeNumber(writer, CFG_ROI_LEFT, roi.Left);
            writeNumber(writer, CFG_ROI_TOP, roi.Top);
            writeNumber(writer, CFG_ROI_WIDTH, roi.Width);
            writeNumber(writer, CFG_ROI_HEIGHT, roi.Height);
            writeNumber(writer, CFG_RED_ROI, roi.RedROI);
            writeNumber(writer, CFG_BLUE_ROI, roi.BlueROI);
            writeNumber(writer, CFG_GREEN_ROI, roi.GreenROI);
            writer.writeEndElement();
        }
        writer.writeEndElement();
    }
    writer.writeEndElement();
}

bool CConfigXml::hasAppElement(QIODevice& in)
{
    QXmlStreamReader reader(&in);
    skipToAppElement(reader);
    return !reader.atEnd();
}

bool CConfigXml::read(CConfiguration& cfg, QIODevice& in, bool hasAppElement, bool withRoi)
{
    QXmlStreamReader reader(&in);
    if (hasAppElement)
        skipToAppElement(reader);

    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringRef name = reader.name();
        if (name == QLatin1String(CFG_ROOT_ELEMENT) || name == QLatin1String(CFG_DEVICE_ELEMENT))
            continue;
        if (name == QLatin1String(CFG_DRAW_ROI)) {
            if (withRoi)
                readRoiSection(cfg, reader);
            else
                reader.skipCurrentElement();
            continue;
        }
        if (name == QLatin1String(CFG_VIDEO_FORMAT)) {
            // An element of older files; it always meant the BMP format.
            cfg.imageSaveFormat = 0;
            continue;
        }
        if (const CConfigKeyTable::Key* key = CConfigKeyTable::find(name)) {
            const QString text = reader.readElementText();
            if (reader.hasError())
                break;
            key->read(cfg, text);
        }
        // Other elements are not ours; their children are still looked at.
    }
    return !reader.hasError();
}

void CConfigXml::readRoiSection(CConfiguration& cfg, QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        const QStringRef name = reader.name();
        if (name == QLatin1String(CFG_ROI_ENABLE)) {
            readNumber(reader, cfg.drawRoiEnable);
        } else if (name == QLatin1String(CFG_ROI_DISPLAY_ENABLE)) {
            readNumber(reader, cfg.displayRoiEnable);
        } else if (name == QLatin1String(CFG_RED_ROI)) {
            readNumber(reader, cfg.roiRed);
        } else if (name == QLatin1String(CFG_BLUE_ROI)) {
            readNumber(reader, cfg.roiBlue);
        } else if (name == QLatin1String(CFG_GREEN_ROI)) {
            readNumber(reader, cfg.roiGreen);
        } else if (name == QLatin1String(CFG_VIDEO_FORM)) {
            bool indexOk = false;
            const int index = reader.attributes().value(QLatin1String(CFG_VIDEO_FORM_INDEX)).toInt(&indexOk);
            const bool known = indexOk && index >= 0 && index < CConfiguration::kVideoFormCount;
            while (reader.readNextStartElement()) {
                if (reader.name() != QLatin1String(CFG_ROI)) {
                    reader.skipCurrentElement();
                    continue;
                }
                stuROI roi;
                while (reader.readNextStartElement()) {
                    const QStringRef field = reader.name();
                    qint64 v = 0;
                    if (!readNumber(reader, v))
                        break;
                    if (field == QLatin1String(CFG_ROI_LEFT))
                        roi.Left = v;
                    else if (field == QLatin1String(CFG_ROI_TOP))
                        roi.Top = v;
                    else if (field == QLatin1String(CFG_ROI_WIDTH))
                        roi.Width = v;
                    else if (field == QLatin1String(CFG_ROI_HEIGHT))
                        roi.Height = v;
                    else if (field == QLatin1String(CFG_RED_ROI))
                        roi.RedROI = int(v);
                    else if (field == QLatin1String(CFG_BLUE_ROI))
                        roi.BlueROI = int(v);
                    else if (field == QLatin1String(CFG_GREEN_ROI))
                        roi.GreenROI = int(v);
                }
                // A region cut off by a damaged file is not taken.
                if (reader.hasError())
                    return;
                if (known)
                    cfg.mapVideoFormROI[index].append(roi);
            }
        } else {
            reader.skipCurrentElement();
        }
        if (reader.hasError())
            return;
    }
}
