// Feature-name translation tables: the simulated camera's standard features
// and their entries are covered, the texts read well, and the Chinese
// translation reaches every text through an installed translator.
#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTranslator>
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
    QFile file(QStringLiteral(SIMCAM_XML));
    QDomDocument description;
    if (!file.open(QIODevice::ReadOnly) || !description.setContent(&file))
        QFAIL(qPrintable("cannot read the simulated camera's description " + file.fileName()));
    QHash<QString, QDomElement> nodes;   // the named top-level nodes
    for (QDomElement e = description.documentElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        nodes.insert(e.attribute("Name"), e);
    fillParamTransTables();
    const QMap<QString, QString> any = g_mapNameToValueTransMap.value("Any");

    // Every visible standard feature reachable from Root, and its entries.
    QStringList missing, pending = {"Root"};
    int rows = 0;
    while (!pending.isEmpty()) {
        const QString name = pending.takeFirst();
        const QDomElement node = nodes.value(name);
        if (node.firstChildElement("Visibility").text().trimmed() == "Invisible")
            continue;
        for (QDomElement c = node.firstChildElement("pFeature"); !c.isNull(); c = c.nextSiblingElement("pFeature"))
            pending << c.text().trimmed();
        if (node.attribute("NameSpace") != "Standard" || name == "Root")
            continue;
        ++rows;
        if (!g_mapNameToTrans.contains(name) || !g_mapNameToDispTrans.contains(name) ||
            !g_mapNameToDespTrans.contains(name))
            missing << name;
        for (QDomElement e = node.firstChildElement("EnumEntry"); !e.isNull(); e = e.nextSiblingElement("EnumEntry"))
            if (!g_mapNameToValueTransMap.value(name).contains(e.attribute("Name")) && !any.contains(e.attribute("Name")))
                missing << name + "/" + e.attribute("Name");
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
