// Application configuration file: exact default file, round trip of every
// key, damaged files, language.ini and the change signals.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>
#include <memory>

#include "TestFiles.h"

#include "CConfigKeyTable.h"
#include "CConfiguration.h"
#include "CSingletonOwner.h"
#include "Tavlog4cpp/CTavLog.h"

#include <log4cpp/Category.hh>
#include <log4cpp/StringQueueAppender.hh>
#include <sys/stat.h>

namespace {

// Every key set to something other than its default.
void setNonDefaults(CConfiguration& c)
{
    c.deviceCtrlVisibility = 1;
    c.iAnswerTimeout = 2500;
    c.iHeartbeatIval = 4000;
    c.iInterPacketTimeout = 1234;
    c.iSingleResendMaxPackNum = 512;
    c.iMaximumLostPacketNum = 777;
    c.logGenIcamEnabled = false;
    c.logEventsEnabled = true;
    c.logBufferAllEnabled = true;
    c.logBufferErrorEnabled = false;
    c.logFileName = QStringLiteral("/tmp/events <&> log.txt");
    c.streamingBufferCount = 16;
    c.snapRecordBufferCount = 30;
    c.streamingUrbNumberCount = 32;
    c.streamingUrbSizeCount = 128;
    c.strDisplayValue = QStringLiteral("15 FPS");
    c.imageOneOutOf = QStringLiteral("3");
    c.imageMaxRate = QStringLiteral("250");
    c.imageAverageThroughPut = QStringLiteral("7");
    c.imageSaveThrottleOption = 2;
    c.imageSavePath = QStringLiteral("/data/pics");
    c.imageSaveFormat = 2;
    c.displayChunkDataEnable = true;
    c.autoRefreshEnable = false;
    c.imageSavePreFix = QStringLiteral("Shot");
    c.imageSaveFileNameFormat = 1;
    c.imageQualityLevel = 1;
    c.imageQuality = 80;
    c.imageSaveOnePopDlg = true;
    c.setPersistentIP = false;
    c.isShowCrosshair = true;
    c.RedCrosshair = 10;
    c.BlueCrosshair = 20;
    c.GreenCrosshair = 30;
    c.BayerDemosaicing = 2;
    c.AcquisitionFPS = false;
    c.BandwidthMbps = false;
    c.ReceivedImages = false;
    c.LostBlocks = false;
    c.ErrorImages = false;
    c.RecordLocation = QStringLiteral("/data/videos");
    c.RecordPopDlg = true;
    c.VideoQualityLevel = 2;
    c.VideoQuality = 75;
    c.VideoNameFormat = 1;
    c.VideoPrefix = QStringLiteral("Rec");
    c.PlaybackSpeed = 3;
    c.CustomFps = QStringLiteral("12");
    c.RemoteIpAddr = QStringLiteral("192.168.7.20");
}

} // namespace

class TestConfig : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    std::unique_ptr<CSingletonOwner> m_owner;
    QString m_work;   // scratch files of the test cases
    CConfiguration* cfg() { return CConfiguration::getInstance(); }
    QByteArray expectedDefault()
    {
        QByteArray bytes = readAll(QStringLiteral(CONFIG_TEST_DATA_DIR "/expected_default.tavcfg"));
        bytes.replace("@HOME@", m_home.path().toUtf8() + "/");
        return bytes;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        qputenv("LUMIDOR_HOME", m_home.path().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("Lumidor"));
        m_work = m_home.path() + QStringLiteral("/work/");
        QVERIFY(QDir().mkpath(m_work));
    }

    void cleanupTestCase() { m_owner.reset(); }

    // First start: the directory is made and the default file written from
    // the built-in defaults, byte for byte; no user file yet.
    void firstStartWritesDefaultFile()
    {
        const QString cfgDir = m_home.path() + QStringLiteral("/Lumidor/cfg/app/");
        QVERIFY(!QDir(cfgDir).exists());
        m_owner.reset(new CSingletonOwner);   // makes the configuration
        CConfiguration* c = cfg();
        QCOMPARE(c->defaultConfigPath(), cfgDir + QStringLiteral("LumidorDefault.tavcfg"));
        QCOMPARE(c->userConfigPath(), cfgDir + QStringLiteral("Lumidor.tavcfg"));
        QCOMPARE(c->languageIniPath(), cfgDir + QStringLiteral("language.ini"));
        QCOMPARE(c->appHomeDir(), m_home.path() + QStringLiteral("/Lumidor/"));
        QVERIFY(!QFile::exists(c->userConfigPath()));
        QCOMPARE(readAll(c->defaultConfigPath()), expectedDefault());
        QCOMPARE(c->mapVideoFormROI.size(), CConfiguration::kVideoFormCount);

        QVERIFY(c->saveConfigToUserXml());
        QCOMPARE(readAll(c->userConfigPath()), expectedDefault());
        QVERIFY(c->hasLumidorElement(c->userConfigPath()));
    }

    // init() gives every key its default (the default file, written from
    // it, is compared byte for byte above), and loading the default file over
    // changed settings brings every key back.
    void defaultFileAgreesWithDefaults()
    {
        CConfiguration* c = cfg();
        const QString home = c->appHomeDir();
        c->init();
        for (const CConfigKeyTable::Key& key : CConfigKeyTable::keys())
            QCOMPARE(key.write(*c), key.defaultValue(home));

        setNonDefaults(*c);
        for (const CConfigKeyTable::Key& key : CConfigKeyTable::keys()) {
            if (qstrcmp(key.name, "AVI") != 0)   // always written as "AVI"
                QVERIFY2(key.write(*c) != key.defaultValue(home), key.name);
        }
        QVERIFY(c->restoreConfig(c->defaultConfigPath(), true));
        for (const CConfigKeyTable::Key& key : CConfigKeyTable::keys())
            QCOMPARE(key.write(*c), key.defaultValue(home));
        QCOMPARE(c->videoFormat, QStringLiteral("AVI"));
        c->init();
    }

    void roundTripOfEveryKey()
    {
        CConfiguration* c = cfg();
        c->init();
        setNonDefaults(*c);
        c->drawRoiEnable = true;
        c->displayRoiEnable = true;
        c->roiRed = 1;
        c->roiBlue = 2;
        c->roiGreen = 3;
        stuROI a;
        a.Left = 10;
        a.Top = 20;
        a.Width = 300;
        a.Height = 8000000000LL;
        a.RedROI = 4;
        a.GreenROI = 5;
        a.BlueROI = 6;
        stuROI b;
        b.Left = -1;
        c->mapVideoFormROI[0] = {a, b};
        c->mapVideoFormROI[15] = {b};
        const QString path = m_work + QStringLiteral("all.tavcfg");
        QVERIFY(c->saveConfig(path));

        // The image format is written as its text.
        QVERIFY(readAll(path).contains("<imageSaveFormat>TIFF</imageSaveFormat>"));
        QVERIFY(readAll(path).contains("<deviceCtrlVisibility>Expert</deviceCtrlVisibility>"));
        QCOMPARE(readAll(path).count("<VideoForm "), 16);

        // Every key was changed from its default, so reading the file back and
        // writing it again gives the same bytes only if every key was read.
        c->init();
        QVERIFY(c->restoreConfig(path, true));
        const QString again = m_work + QStringLiteral("again.tavcfg");
        QVERIFY(c->saveConfig(again));
        QCOMPARE(readAll(again), readAll(path));
        QCOMPARE(c->logFileName, QStringLiteral("/tmp/events <&> log.txt"));
        QCOMPARE(c->mapVideoFormROI.size(), 16);
        QCOMPARE(c->mapVideoFormROI[0].size(), 2);
        const stuROI& ra = c->mapVideoFormROI[0][0];
        QCOMPARE(ra.Height, qint64(8000000000LL));
        QCOMPARE(ra.GreenROI, 5);
        QCOMPARE(ra.BlueROI, 6);

        // Opening a file without its ROIs keeps the ROIs in memory.
        c->init();
        c->mapVideoFormROI[3] = {b};
        QVERIFY(c->restoreConfig(path, false));
        QCOMPARE(c->RemoteIpAddr, QStringLiteral("192.168.7.20"));
        QCOMPARE(c->drawRoiEnable, false);
        QCOMPARE(c->mapVideoFormROI[0].size(), 0);
        QCOMPARE(c->mapVideoFormROI[3].size(), 1);
        c->init();
    }

    void damagedAndOddFiles()
    {
        CConfiguration* c = cfg();
        c->init();
        setNonDefaults(*c);
        const QString full = m_work + QStringLiteral("full.tavcfg");
        QVERIFY(c->saveConfig(full));
        const QByteArray bytes = readAll(full);

        // Cut in the middle of an element: keys before the cut are taken,
        // the rest keep their values; nothing crashes.
        const int cut = bytes.indexOf("<imageSavePath>") + 8;
        const QString truncated = m_work + QStringLiteral("truncated.tavcfg");
        QVERIFY(writeAll(truncated, bytes.left(cut)));
        c->init();
        QVERIFY(!c->restoreConfig(truncated, true));
        QCOMPARE(int(c->iAnswerTimeout), 2500);
        QCOMPARE(c->imageSaveThrottleOption, 2);
        QCOMPARE(c->imageSavePath, c->appHomeDir() + QStringLiteral("pictures"));
        QCOMPARE(c->RemoteIpAddr, QStringLiteral("0.0.0.0"));

        // Garbage and a missing file change nothing.
        const QString garbage = m_work + QStringLiteral("garbage.tavcfg");
        QVERIFY(writeAll(garbage, QByteArray("\x01\x02<<<not xml at all>>>\xff", 22)));
        c->init();
        QVERIFY(!c->restoreConfig(garbage, true));
        QVERIFY(!c->restoreConfig(m_work + QStringLiteral("missing.tavcfg"), true));
        QCOMPARE(int(c->iAnswerTimeout), 1000);
        QVERIFY(!c->hasLumidorElement(garbage));

        // An older file: keys straight under the root element, no Lumidor.
        const QString old = m_work + QStringLiteral("old.tavcfg");
        QVERIFY(writeAll(old, "<?xml version=\"1.0\"?>\n<puregevpersistencefile version=\"1.0\">\n"
                              "<iAnswerTimeout>300</iAnswerTimeout><device><x>1</x></device>"
                              "<imageSaveFormat>PNG</imageSaveFormat><unknownKey>5</unknownKey>"
                              "<deviceCtrlVisibility>Wizard</deviceCtrlVisibility>"
                              "<streamingBufferCount>many</streamingBufferCount>"
                              "<RemoteIpAddr>10.0.0.9</RemoteIpAddr></puregevpersistencefile>\n"));
        QVERIFY(!c->hasLumidorElement(old));
        c->init();
        QVERIFY(c->restoreConfig(old, true));
        QCOMPARE(int(c->iAnswerTimeout), 300);
        QCOMPARE(c->imageSaveFormat, 3);
        QCOMPARE(c->deviceCtrlVisibility, 2);
        QCOMPARE(c->streamingBufferCount, 0u);
        QCOMPARE(c->RemoteIpAddr, QStringLiteral("10.0.0.9"));

        // A VideoFormat element (never written by us) resets the format to BMP;
        // an out-of-range VideoForm index is ignored.
        const QString vf = m_work + QStringLiteral("videoformat.tavcfg");
        QVERIFY(writeAll(vf, "<puregevpersistencefile><Lumidor><imageSaveFormat>JPEG</imageSaveFormat>"
                             "<VideoFormat>MP4</VideoFormat><DrawROI><VideoForm index=\"99\"><ROI><Left>5</Left>"
                             "</ROI></VideoForm><VideoForm index=\"2\"><ROI><Left>7</Left></ROI></VideoForm>"
                             "</DrawROI></Lumidor></puregevpersistencefile>"));
        c->init();
        QVERIFY(c->restoreConfig(vf, true));
        QCOMPARE(c->imageSaveFormat, 0);
        QCOMPARE(c->mapVideoFormROI.size(), 16);
        QCOMPARE(c->mapVideoFormROI[2].size(), 1);
        QCOMPARE(c->mapVideoFormROI[2][0].Left, qint64(7));

        // A file that cannot be written reports false.
        QVERIFY(!c->saveConfig(garbage + QStringLiteral("/sub/x.tavcfg")));
        QCOMPARE(c->lastSaveError(), QString::fromLocal8Bit(strerror(ENOTDIR)));
        c->init();
    }

    void languageIni()
    {
        CConfiguration* c = cfg();
        QFile::remove(c->languageIniPath());
        QCOMPARE(c->readLanguageSetting(), 0);
        QCOMPARE(c->readFeatureLanguageSetting(), 1);
        c->writeLanguageSetting(1);
        QCOMPARE(c->readLanguageSetting(), 1);
        QCOMPARE(c->readFeatureLanguageSetting(), 1);
        c->writeFeatureLanguageSetting(0);
        QCOMPARE(c->readFeatureLanguageSetting(), 0);
        {
            QSettings ini(c->languageIniPath(), QSettings::IniFormat);
            QCOMPARE(ini.value(QStringLiteral("language/lang")).toInt(), 1);
            ini.setValue(QStringLiteral("language/featurelang"), QStringLiteral("abc"));
        }
        QCOMPARE(c->readFeatureLanguageSetting(), 0);
    }

    // Each link setting's setter: the value it already has changes nothing,
    // a new one is stored and announced once, with the value.
    void settersSignalOnlyOnChange()
    {
        CConfiguration* c = cfg();
        c->init();
        using C = CConfiguration;
        const struct
        {
            std::function<void(int)> set;
            std::function<int()> get;
            std::shared_ptr<QSignalSpy> spy;
            int unchanged, changed;
        } setters[] = {
            {[c](int v) { c->setAnswerTimeout(v); }, [c] { return int(c->iAnswerTimeout); },
             std::make_shared<QSignalSpy>(c, &C::signalAnswerTimeoutChanged), 1000, 200},
            {[c](int v) { c->setHeartbeatInterval(v); }, [c] { return int(c->iHeartbeatIval); },
             std::make_shared<QSignalSpy>(c, &C::signalHeartbeatIntervalChanged), 1500, 600},
            {[c](int v) { c->setInterPacketTimeout(v); }, [c] { return int(c->iInterPacketTimeout); },
             std::make_shared<QSignalSpy>(c, &C::signalInterPacketTimeoutChanged), 0, 5},
            {[c](int v) { c->setSingleResendMaxPackNum(v); }, [c] { return int(c->iSingleResendMaxPackNum); },
             std::make_shared<QSignalSpy>(c, &C::signalSingleResendMaxPackNumChanged), 65536, 7},
            {[c](int v) { c->setMaximumLostPacketNum(v); }, [c] { return int(c->iMaximumLostPacketNum); },
             std::make_shared<QSignalSpy>(c, &C::signalMaximumLostPacketNumChanged), 65536, 8},
            {[c](int v) { c->setVisibility(v); }, [c] { return c->deviceCtrlVisibility; },
             std::make_shared<QSignalSpy>(c, &C::signalVisibilityChanged), 0, 2},
        };
        for (const auto& s : setters) {
            s.set(s.unchanged);
            QCOMPARE(s.spy->count(), 0);
            s.set(s.changed);
            s.set(s.changed);
            QCOMPARE(s.get(), s.changed);
            QCOMPARE(s.spy->count(), 1);
            QCOMPARE(s.spy->at(0).at(0).toInt(), s.changed);
        }
        c->init();
    }

    // Something other than a regular file where a configuration file should
    // be (a FIFO would block the reader for ever): not read, the reason
    // logged, nothing changed; the language settings fall back to defaults.
    void nonRegularFilesAreIgnored()
    {
        CConfiguration* c = cfg();
        c->init();
        const QString fifo = m_work + QStringLiteral("fifo.tavcfg");
        QVERIFY(::mkfifo(QFile::encodeName(fifo).constData(), 0600) == 0);
        log4cpp::StringQueueAppender* log = new log4cpp::StringQueueAppender("capture");
        Tavlog4cpp::CTavLog::Logger_vintrel()->addAppender(log);

        c->iHeartbeatIval = 4321;
        QVERIFY(!c->restoreConfig(fifo, true) && !c->hasLumidorElement(fifo));
        QVERIFY(!c->restoreConfig(m_work, true));   // a directory
        QCOMPARE(c->iHeartbeatIval, uint16_t(4321));

        QString lines;
        while (!log->getQueue().empty()) {
            lines += QString::fromStdString(log->getQueue().front());
            log->getQueue().pop();
        }
        Tavlog4cpp::CTavLog::Logger_vintrel()->removeAppender(log);
        QVERIFY2(lines.contains(QStringLiteral("not a regular file, ignored. path: [") + fifo + "]"), qPrintable(lines));
        QVERIFY2(lines.contains(QStringLiteral("not a regular file, ignored. path: [") + m_work), qPrintable(lines));

        // language.ini as a FIFO.
        QFile::remove(c->languageIniPath());
        QVERIFY(::mkfifo(QFile::encodeName(c->languageIniPath()).constData(), 0600) == 0);
        QCOMPARE(c->readLanguageSetting(), 0);
        QCOMPARE(c->readFeatureLanguageSetting(), 1);
        QFile::remove(c->languageIniPath());
        QFile::remove(fifo);
        c->init();
    }
};

QTEST_GUILESS_MAIN(TestConfig)
#include "test_config.moc"
