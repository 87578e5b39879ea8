// Feature-name translation tables: the simulated camera's standard features
// and their entries are covered, the texts read well, and the Chinese
// translation reaches every text through an installed translator.
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include "ParamTransTables.h"

namespace {

bool hasChinese(const QString& s)
{
    for (const QChar c : s)
        if (c.unicode() >= 0x4E00 && c.unicode() <= 0x9FFF)
            return true;
    return false;
}

// A node of the camera description that the feature tree shows.
struct SDescNode
{
    QString nameSpace;
    QString visibility = QStringLiteral("Beginner");
    QStringList children;   // pFeature of a category
    QStringList entries;    // EnumEntry names of an enumeration
};

// Reads every named top-level node of a GenICam description; empty with the
// reason in error when it cannot.
QHash<QString, SDescNode> readDescription(const QString& path, QString& error)
{
    QHash<QString, SDescNode> nodes;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        error = "cannot open the simulated camera's description " + path;
        return nodes;
    }
    QXmlStreamReader xml(&f);
    int depth = 0;
    QString current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement())
            --depth;
        if (!xml.isStartElement())
            continue;
        ++depth;
        const QStringRef tag = xml.name();
        if (depth == 2) {
            current = xml.attributes().value("Name").toString();
            if (!current.isEmpty())
                nodes[current].nameSpace = xml.attributes().value("NameSpace").toString();
        } else if (depth == 3 && !current.isEmpty()) {
            SDescNode& n = nodes[current];
            if (tag == QLatin1String("EnumEntry"))
                n.entries << xml.attributes().value("Name").toString();
            else if (tag == QLatin1String("pFeature"))
                n.children << xml.readElementText().trimmed();
            else if (tag == QLatin1String("Visibility"))
                n.visibility = xml.readElementText().trimmed();
            if (tag == QLatin1String("pFeature") || tag == QLatin1String("Visibility"))
                --depth;   // readElementText consumed the end element
        }
    }
    if (xml.hasError() || !nodes.contains("Root"))
        error = path + ": " + (xml.hasError() ? xml.errorString() : QStringLiteral("no Root category"));
    return error.isEmpty() ? nodes : QHash<QString, SDescNode>();
}

// Every text the tables hold, for the checks that look at all of them.
template <class F>
void forEachText(F visit)
{
    for (const auto* table : {&g_mapNameToTrans, &g_mapNameToDispTrans, &g_mapNameToDespTrans})
        for (auto it = table->cbegin(); it != table->cend(); ++it)
            visit(QString(), it.key(), it.value());
    for (auto t = g_mapNameToValueTransMap.cbegin(); t != g_mapNameToValueTransMap.cend(); ++t)
        for (auto it = t.value().cbegin(); it != t.value().cend(); ++it)
            visit(t.key(), it.key(), it.value());
}

} // namespace

class TestPropertyTables : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { clearParamTransTables(); }
    void simulatedCameraFeaturesAreCovered();
    void chineseTranslatorTranslatesEveryText();
};

void TestPropertyTables::simulatedCameraFeaturesAreCovered()
{
    QString error;
    const QHash<QString, SDescNode> nodes = readDescription(QStringLiteral(SIMCAM_XML), error);
    if (nodes.isEmpty())
        QFAIL(qPrintable(error));
    fillParamTransTables();
    const QMap<QString, QString> any = g_mapNameToValueTransMap.value("Any");

    // Every visible standard feature reachable from Root, and its entries.
    QStringList missing;
    int rows = 0;
    QStringList pending = nodes.value("Root").children;
    while (!pending.isEmpty()) {
        const QString name = pending.takeFirst();
        const SDescNode n = nodes.value(name);
        if (n.visibility == QLatin1String("Invisible"))
            continue;
        pending << n.children;
        if (n.nameSpace != QLatin1String("Standard"))
            continue;
        ++rows;
        if (!g_mapNameToTrans.contains(name) || !g_mapNameToDispTrans.contains(name) ||
            !g_mapNameToDespTrans.contains(name))
            missing << name;
        for (const QString& entry : n.entries)
            if (!g_mapNameToValueTransMap.value(name).contains(entry) && !any.contains(entry))
                missing << name + "/" + entry;
    }
    QVERIFY2(rows > 50, "the simulated camera shows too few standard features; is the walk broken?");
    QVERIFY2(missing.isEmpty(), qPrintable("not in the tables: " + missing.join(", ")));

    // Without a translator a name translates to itself. Texts an operator
    // reads: no stray blanks, descriptions are sentences.
    QCOMPARE(g_mapNameToTrans.value("DeviceType"), QString("DeviceType"));
    for (auto it = g_mapNameToDispTrans.cbegin(); it != g_mapNameToDispTrans.cend(); ++it)
        QVERIFY2(!it.value().isEmpty() && it.value() == it.value().simplified(), qPrintable(it.key()));
    for (auto it = g_mapNameToDespTrans.cbegin(); it != g_mapNameToDespTrans.cend(); ++it) {
        const QString d = it.value();
        QVERIFY2(d == d.simplified() && d.endsWith('.') && d.at(0).isUpper(), qPrintable(it.key() + ": " + d));
    }
}

void TestPropertyTables::chineseTranslatorTranslatesEveryText()
{
    const QString qm = QStringLiteral(PROPERTY_TABLES_QM);
    if (!QFile::exists(qm))
        QFAIL(qPrintable(qm + " was not built: lrelease (package qttools5-dev-tools) is missing"));
    QTranslator translator;
    if (!translator.load(qm))
        QFAIL(qPrintable("cannot load " + qm));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    fillParamTransTables();
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(g_mapNameToTrans.value("ExposureTime"), QString::fromUtf8("曝光时间"));
    QCOMPARE(g_mapNameToDispTrans.value("DeviceType"), QString::fromUtf8("设备类型"));
    QCOMPARE(g_mapNameToValueTransMap.value("Any").value("{Command}"), QString::fromUtf8("{命令}"));
    QCOMPARE(g_mapNameToValueTransMap.value("TriggerMode").value("On"), QString::fromUtf8("开启"));

    // Pixel formats keep their symbols; every other text has become Chinese.
    // The form maps a chosen text back to its symbol, so within one table no
    // two symbols may share a translation.
    const QStringList pixelFormats = g_mapNameToValueTransMap.value("PixelFormat").keys();
    QCOMPARE(g_mapNameToValueTransMap.value("PixelFormat").value("BayerGR12Packed"), QString("BayerGR12Packed"));
    QStringList english, shared;
    QHash<QString, QSet<QString>> textsOfTable;
    forEachText([&](const QString& table, const QString& key, const QString& text) {
        if (!hasChinese(text) && !(!table.isEmpty() && pixelFormats.contains(key)))
            english << table + "/" + key + ": " + text;
        if (!table.isEmpty() && !textsOfTable[table].contains(text))
            textsOfTable[table].insert(text);
        else if (!table.isEmpty())
            shared << table + ": " + text;
    });
    QVERIFY2(english.isEmpty(), qPrintable("left in English: " + english.mid(0, 20).join("; ")));
    QVERIFY2(shared.isEmpty(), qPrintable("two symbols translated alike: " + shared.join("; ")));

    // Once the translator is gone, refilling brings the English texts back.
    fillParamTransTables();
    QCOMPARE(g_mapNameToDispTrans.value("DeviceType"), QString("Device Type"));
    QCOMPARE(g_mapNameToValueTransMap.value("Any").value("On"), QString("On"));
}

QTEST_GUILESS_MAIN(TestPropertyTables)
#include "test_property_tables.moc"
