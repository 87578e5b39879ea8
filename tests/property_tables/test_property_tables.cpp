// Feature-name translation tables: sizes and fixed entries, coverage of the simulated
// camera's standard features, the Chinese translation through an installed translator,
// and clearing.
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

// Every feature name and enumeration symbol the tables know.
QSet<QString> allIdentifiers()
{
    QSet<QString> ids;
    for (const QString& k : g_mapNameToTrans.keys())
        ids.insert(k);
    for (const QString& k : g_mapNameToDispTrans.keys())
        ids.insert(k);
    for (const QString& k : g_mapNameToDespTrans.keys())
        ids.insert(k);
    for (auto it = g_mapNameToValueTransMap.cbegin(); it != g_mapNameToValueTransMap.cend(); ++it) {
        if (it.key() != QLatin1String("Any"))
            ids.insert(it.key());
        for (const QString& s : it.value().keys())
            ids.insert(s);
    }
    return ids;
}

// A node of the camera description that the feature tree shows.
struct SDescNode
{
    QString kind;  // element name: Category, Integer, Enumeration, ...
    QString nameSpace;
    QString visibility = QStringLiteral("Beginner");
    QStringList children;  // pFeature of a category
    QStringList entries;   // EnumEntry names of an enumeration
};

// Reads every named top-level node of a GenICam description.
bool readDescription(const QString& path, QHash<QString, SDescNode>& nodes, QString& error)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot open the simulated camera's description %1").arg(path);
        return false;
    }
    QXmlStreamReader xml(&f);
    int depth = 0;
    QString current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            ++depth;
            const QString tag = xml.name().toString();
            if (depth == 2) {
                current = xml.attributes().value(QLatin1String("Name")).toString();
                if (!current.isEmpty()) {
                    SDescNode n;
                    n.kind = tag;
                    n.nameSpace = xml.attributes().value(QLatin1String("NameSpace")).toString();
                    nodes.insert(current, n);
                }
            } else if (depth == 3 && !current.isEmpty()) {
                SDescNode& n = nodes[current];
                if (tag == QLatin1String("EnumEntry")) {
                    n.entries << xml.attributes().value(QLatin1String("Name")).toString();
                } else if (tag == QLatin1String("pFeature")) {
                    n.children << xml.readElementText().trimmed();
                    --depth;
                } else if (tag == QLatin1String("Visibility")) {
                    n.visibility = xml.readElementText().trimmed();
                    --depth;
                }
            }
        } else if (xml.isEndElement()) {
            --depth;
        }
    }
    if (xml.hasError()) {
        error = QStringLiteral("%1: %2").arg(path, xml.errorString());
        return false;
    }
    if (!nodes.contains(QStringLiteral("Root"))) {
        error = QStringLiteral("%1 has no Root category").arg(path);
        return false;
    }
    return true;
}

// Names of the standard-namespace features reachable from Root that become rows.
QStringList standardRows(const QHash<QString, SDescNode>& nodes)
{
    QStringList rows;
    QStringList pending = nodes.value(QStringLiteral("Root")).children;
    while (!pending.isEmpty()) {
        const QString name = pending.takeFirst();
        const SDescNode n = nodes.value(name);
        if (n.visibility == QLatin1String("Invisible"))
            continue;
        if (n.nameSpace == QLatin1String("Standard"))
            rows << name;
        pending << n.children;
    }
    return rows;
}

// English source texts of the translation file, or an error.
bool readTsSources(const QString& path, QSet<QString>& sources, QStringList& contexts, QString& error)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot open %1").arg(path);
        return false;
    }
    QXmlStreamReader xml(&f);
    bool inContext = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("context")) {
            inContext = true;
        } else if (xml.name() == QLatin1String("name") && inContext) {
            contexts << xml.readElementText();
            inContext = false;
        } else if (xml.name() == QLatin1String("source")) {
            sources.insert(xml.readElementText());
        }
    }
    if (xml.hasError()) {
        error = QStringLiteral("%1: %2").arg(path, xml.errorString());
        return false;
    }
    return true;
}

} // namespace

class TestPropertyTables : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void englishTablesHoldTheStandardNames();
    void simulatedCameraFeaturesAreCovered();
    void chineseTranslatorTranslatesEveryText();
    void clearEmptiesAndRefillRestores();
};

void TestPropertyTables::cleanup()
{
    clearParamTransTables();
}

void TestPropertyTables::englishTablesHoldTheStandardNames()
{
    fillParamTransTables();

    QVERIFY2(g_mapNameToTrans.size() >= 550, qPrintable(QString::number(g_mapNameToTrans.size())));
    QVERIFY2(g_mapNameToDispTrans.size() >= 530, qPrintable(QString::number(g_mapNameToDispTrans.size())));
    QVERIFY2(g_mapNameToDespTrans.size() >= 500, qPrintable(QString::number(g_mapNameToDespTrans.size())));
    QVERIFY2(g_mapNameToValueTransMap.size() >= 110, qPrintable(QString::number(g_mapNameToValueTransMap.size())));
    QVERIFY2(allIdentifiers().size() >= 1200, qPrintable(QString::number(allIdentifiers().size())));

    QCOMPARE(g_mapNameToDispTrans.value("DeviceControl"), QString("Device Control"));
    QCOMPARE(g_mapNameToDispTrans.value("DeviceType"), QString("Device Type"));
    QCOMPARE(g_mapNameToDispTrans.value("DeviceScanType"), QString("Device Scan Type"));
    QCOMPARE(g_mapNameToDespTrans.value("DeviceControl"), QString("Category for device information and control."));
    QCOMPARE(g_mapNameToDespTrans.value("DeviceType"), QString("GigE Vision device type."));
    QCOMPARE(g_mapNameToDespTrans.value("DeviceScanType"), QString("Scan type of the sensor of the device."));
    // Without a translator a name translates to itself.
    QCOMPARE(g_mapNameToTrans.value("DeviceType"), QString("DeviceType"));

    const QMap<QString, QString> any = g_mapNameToValueTransMap.value("Any");
    for (const char* v : {"{Command}", "{Executing}", "{Register}", "{Not Available}", "On", "Off", "True",
                          "False", "Continuous", "Once"})
        QVERIFY2(any.value(v) == QLatin1String(v), v);

    const char* names[] = {
        "DeviceControl", "DeviceType", "DeviceScanType", "DeviceVendorName", "DeviceModelName",
        "DeviceFamilyName", "DeviceManufacturerInfo", "DeviceVersion", "DeviceFirmwareVersion",
        "DeviceSerialNumber", "DeviceUserID", "DeviceLinkThroughputLimitMode", "DeviceLinkThroughputLimit",
        "DeviceMaxThroughput", "DeviceCharacterSet", "DeviceReset", "DeviceTemperatureSelector",
        "DeviceTemperature", "DeviceTLType", "DeviceTLVersionMajor", "Width", "ROISelector",
        "TriggerFrameCount", "EventSelector", "BlackLevel", "GevCurrentIPConfigurationPersistentIP", "GevCCP",
        "UserSetDefaultSelector", "CounterResetSource", "SequencerPathSelector", "FileOperationExecute",
        "GevTimestampTickFrequencyHigh", "AdvancedDenoisingEnable", "LaserBrightness", "IrisTypeDetect",
        "LightMode", "BeepTimes", "StaticLAG", "StreamChannel7PacketResendDestination",
        "StreamChannel15ExtendedChunkData", "StreamChannel28MultiZone", "ExposureTime", "Gain", "TriggerMode",
        "PixelFormat", "StrobeDelay"};
    for (const char* n : names) {
        QVERIFY2(g_mapNameToTrans.contains(n), n);
        QVERIFY2(g_mapNameToDispTrans.contains(n), n);
        QVERIFY2(g_mapNameToDespTrans.contains(n), n);
    }

    const QList<QPair<const char*, const char*>> symbols = {
        {"AcquisitionMode", "SingleFrame"}, {"DeviceSerialPortBaudRate", "Baud230400"},
        {"PixelFormat", "BayerGR12Packed"}, {"PixelSize", "Bpp20"}, {"PreAmpGain", "NegativeSixdB"},
        {"LineFormat", "DifferentialInput"}, {"DeviceTapGeometry", "Geometry_1X2_1Y"},
        {"UserLedSelector", "UserLed0"}, {"DeviceType", "Peripheral"}};
    for (const auto& s : symbols)
        QVERIFY2(g_mapNameToValueTransMap.value(s.first).contains(s.second),
                 qPrintable(QStringLiteral("%1 / %2").arg(s.first, s.second)));
    for (const char* table : {"TriggerSelector", "TriggerSource", "TriggerActivation", "ExposureMode", "ExposureAuto",
                              "GainSelector", "GainAuto", "BalanceWhiteAuto", "BalanceRatioSelector", "LineSelector",
                              "LineMode", "LineSource", "UserOutputSelector", "CounterSelector",
                              "CounterEventSource", "TimerSelector", "TimerTriggerSource", "EventNotification",
                              "UserSetSelector", "UserSetDefault", "DeviceScanType", "DeviceTLType",
                              "DeviceCharacterSet", "DeviceTemperatureSelector", "GevIPConfiguration",
                              "ChunkSelector", "SequencerMode", "FileSelector", "FileOperationSelector",
                              "FileOpenMode", "TestPattern", "BinningSelector", "BinningMode", "DecimationMode"})
        QVERIFY2(!g_mapNameToValueTransMap.value(table).isEmpty(), table);

    // Texts an operator reads: no stray blanks, descriptions are sentences.
    for (auto it = g_mapNameToDispTrans.cbegin(); it != g_mapNameToDispTrans.cend(); ++it)
        QVERIFY2(!it.value().isEmpty() && it.value() == it.value().simplified(), qPrintable(it.key()));
    for (auto it = g_mapNameToDespTrans.cbegin(); it != g_mapNameToDespTrans.cend(); ++it) {
        const QString d = it.value();
        QVERIFY2(d == d.simplified() && d.endsWith('.') && d.at(0).isUpper(), qPrintable(it.key() + ": " + d));
    }
}

void TestPropertyTables::simulatedCameraFeaturesAreCovered()
{
    QHash<QString, SDescNode> nodes;
    QString error;
    if (!readDescription(QStringLiteral(SIMCAM_XML), nodes, error))
        QFAIL(qPrintable(error));
    const QStringList rows = standardRows(nodes);
    QVERIFY2(rows.size() > 50, "the simulated camera shows too few standard features; is the walk broken?");

    fillParamTransTables();
    const QMap<QString, QString> any = g_mapNameToValueTransMap.value("Any");
    QStringList missing;
    for (const QString& name : rows) {
        if (!g_mapNameToTrans.contains(name) || !g_mapNameToDispTrans.contains(name)
            || !g_mapNameToDespTrans.contains(name))
            missing << name;
        const QMap<QString, QString> values = g_mapNameToValueTransMap.value(name);
        for (const QString& entry : nodes.value(name).entries)
            if (!values.contains(entry) && !any.contains(entry))
                missing << name + "/" + entry;
    }
    QVERIFY2(missing.isEmpty(), qPrintable("not in the tables: " + missing.join(", ")));
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
    QCOMPARE(g_mapNameToTrans.value("Gain"), QString::fromUtf8("增益"));
    QCOMPARE(g_mapNameToTrans.value("TriggerMode"), QString::fromUtf8("触发模式"));
    QCOMPARE(g_mapNameToTrans.value("PixelFormat"), QString::fromUtf8("像素格式"));
    QCOMPARE(g_mapNameToDispTrans.value("DeviceType"), QString::fromUtf8("设备类型"));
    QCOMPARE(g_mapNameToValueTransMap.value("Any").value("{Command}"), QString::fromUtf8("{命令}"));
    QCOMPARE(g_mapNameToValueTransMap.value("TriggerMode").value("On"), QString::fromUtf8("开启"));
    QCOMPARE(g_mapNameToValueTransMap.value("PixelFormat").value("BayerGR12Packed"), QString("BayerGR12Packed"));

    // Pixel formats keep their symbols; every other text must have become Chinese.
    const QStringList pixelFormats = g_mapNameToValueTransMap.value("PixelFormat").keys();
    QStringList english;
    const QList<const QMap<QString, QString>*> plain = {&g_mapNameToTrans, &g_mapNameToDispTrans,
                                                        &g_mapNameToDespTrans};
    for (const auto* table : plain)
        for (auto it = table->cbegin(); it != table->cend(); ++it)
            if (!hasChinese(it.value()))
                english << it.key() + ": " + it.value();
    for (auto t = g_mapNameToValueTransMap.cbegin(); t != g_mapNameToValueTransMap.cend(); ++t)
        for (auto it = t.value().cbegin(); it != t.value().cend(); ++it)
            if (!hasChinese(it.value()) && !pixelFormats.contains(it.key()))
                english << t.key() + "/" + it.key() + ": " + it.value();
    QVERIFY2(english.isEmpty(), qPrintable("left in English: " + english.mid(0, 20).join("; ")));

    // The form maps a chosen text back to its symbol, so within one table no two symbols
    // may share a translation.
    for (auto t = g_mapNameToValueTransMap.cbegin(); t != g_mapNameToValueTransMap.cend(); ++t) {
        QSet<QString> texts;
        for (const QString& v : t.value()) {
            QVERIFY2(!texts.contains(v), qPrintable(t.key() + " translates two symbols as " + v));
            texts.insert(v);
        }
    }

    // Once the translator is gone, refilling brings the English texts back.
    fillParamTransTables();
    QCOMPARE(g_mapNameToDispTrans.value("DeviceType"), QString("Device Type"));
    QCOMPARE(g_mapNameToValueTransMap.value("Any").value("On"), QString("On"));

    // The translation file holds only texts the tables use, all in one context.
    QSet<QString> used;
    for (const auto* table : plain)
        for (auto it = table->cbegin(); it != table->cend(); ++it)
            used << it.key() << it.value();
    for (const auto& t : g_mapNameToValueTransMap)
        for (const QString& s : t.keys())
            used << s;
    QSet<QString> sources;
    QStringList contexts;
    QString error;
    if (!readTsSources(QStringLiteral(PROPERTY_TABLES_TS), sources, contexts, error))
        QFAIL(qPrintable(error));
    QCOMPARE(contexts, QStringList{QStringLiteral("CPropertyForm")});
    QStringList stale;
    for (const QString& s : sources)
        if (!used.contains(s))
            stale << s;
    QVERIFY2(stale.isEmpty(), qPrintable("translations of texts the tables never use: " + stale.join("; ")));
}

void TestPropertyTables::clearEmptiesAndRefillRestores()
{
    fillParamTransTables();
    const int names = g_mapNameToTrans.size();
    const int values = g_mapNameToValueTransMap.size();
    QVERIFY(names > 0 && values > 0);

    clearParamTransTables();
    QVERIFY(g_mapNameToTrans.isEmpty());
    QVERIFY(g_mapNameToDispTrans.isEmpty());
    QVERIFY(g_mapNameToDespTrans.isEmpty());
    QVERIFY(g_mapNameToValueTransMap.isEmpty());

    // A stale entry left by someone else does not survive a refill.
    g_mapNameToTrans.insert(QStringLiteral("NotAFeature"), QStringLiteral("x"));
    fillParamTransTables();
    fillParamTransTables();
    QVERIFY(!g_mapNameToTrans.contains(QStringLiteral("NotAFeature")));
    QCOMPARE(g_mapNameToTrans.size(), names);
    QCOMPARE(g_mapNameToValueTransMap.size(), values);
}

QTEST_GUILESS_MAIN(TestPropertyTables)
#include "test_property_tables.moc"
