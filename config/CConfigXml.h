#pragma once
// The XML form of the configuration file: the document written from a
// CConfiguration's fields, and the reading of such a document (or an older
// one without the application element) back into them.
class CConfiguration;
class QIODevice;
class QXmlStreamReader;
class QXmlStreamWriter;

class CConfigXml
{
public:
    // The whole document: declaration, root element, application element,
    // the keys in table order and the drawing-ROI section.
    static void writeDocument(const CConfiguration& cfg, QIODevice& out);
    // The key elements and the drawing-ROI section, into an open writer.
    static void writeContent(const CConfiguration& cfg, QXmlStreamWriter& writer);

    // Whether the document holds an element named after the application.
    static bool hasAppElement(QIODevice& in);
    // Reads the document into the fields; when hasAppElement is set, reading
    // starts at the application element. The ROI section is taken only with
    // withRoi. Fields read before a damaged part keep their new values;
    // false when the document is damaged.
    static bool read(CConfiguration& cfg, QIODevice& in, bool hasAppElement, bool withRoi);

private:
    static void writeRoiSection(const CConfiguration& cfg, QXmlStreamWriter& writer);
    static void readRoiSection(CConfiguration& cfg, QXmlStreamReader& reader);
};
