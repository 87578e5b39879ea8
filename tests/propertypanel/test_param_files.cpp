// Device parameter files between two simulated cameras: the file's text,
// a round trip from one camera to the other, the load report of what did
// not load, a camera lost while loading and a load cut by closing.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "PanelCameras.h"
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "CAravisCamera.h"
#include "CDeviceParamFile.h"
#include "CParamFileController.h"
#include "TestFiles.h"

struct Shown
{
    QString text;
    int icon = 0;
    QString path;
};

class TestParamFiles : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { m_shown.clear(); }
    void paramFileText();
    void paramFileRoundTripBetweenCameras();
    void paramFileReportsWhatDidNotLoad();
    void paramFileStopsWhenCameraIsLost();
    void paramFileLoadCutByClosing();

private:
    // The standard environment, with a clock that does not wait.
    static SParamFileEnv readyEnv();
    // A parameter file of 50 writes of ReverseX; its path, empty when it could not be written.
    QString longFile(const QString& name)
    {
        QByteArray text = QByteArray(CDeviceParamFile::magic()) + "\n";
        for (int i = 0; i < 50; ++i)
            text += "ReverseX=" + QByteArray::number(i % 2) + "\n";
        const QString path = m_dir.filePath(name);
        return writeAll(path, text) ? path : QString();
    }
    CParamFileController::MessageHandler collect()
    {
        return [this](const QString& t, QMessageBox::Icon i, const QString& p) { m_shown.append({t, int(i), p}); };
    }

    PanelCameras m_cams;
    QTemporaryDir m_dir;
    QList<Shown> m_shown;
};

void TestParamFiles::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const QString missing = m_cams.start();
    if (!missing.isEmpty())
        QFAIL(qPrintable(missing));
}

SParamFileEnv TestParamFiles::readyEnv()
{
    SParamFileEnv env = SParamFileEnv::standard();
    env.sleep = [](int) {};
    return env;
}

void TestParamFiles::paramFileText()
{
    CDeviceParamFile file;
    file.vendor = "Lumidor";
    file.model = "SimCam";
    file.entries.append({"ExposureTime", {}, "10000", 0});
    file.entries.append({"TriggerMode", {{"TriggerSelector", "FrameStart"}}, "On", 0});
    file.entries.append({"DeviceUserID", {}, "a\\b\nc=d", 0});
    const CDeviceParamFile back = CDeviceParamFile::parse(file.toText());
    QVERIFY(back.hasHeader);
    QVERIFY(back.problems.isEmpty());
    QCOMPARE(back.model, QString("SimCam"));
    QCOMPARE(back.entries.size(), 3);
    QCOMPARE(back.entries[1].key(), QString("TriggerMode[TriggerSelector=FrameStart]"));
    QCOMPARE(back.entries[2].value, QString("a\\b\nc=d"));   // escapes survive, '=' in a value too

    // A damaged or foreign file: no header, lines that name nothing are listed.
    const CDeviceParamFile bad = CDeviceParamFile::parse("garbage line\nWidth\t64\n9bad=1\nX[Sel]=2\n\x01\x02\n");
    QVERIFY(!bad.hasHeader);
    QCOMPARE(bad.entries.size(), 1);   // tab-separated lines of other tools are read
    QCOMPARE(bad.entries[0].name, QString("Width"));
    QCOMPARE(bad.problems.size(), 4);
    QVERIFY(bad.problems[0].startsWith("line 1"));
}

void TestParamFiles::paramFileRoundTripBetweenCameras()
{
    const CTavDevicePtr a = m_cams.dev[0], b = m_cams.dev[1];
    QTRY_VERIFY_WITH_TIMEOUT(b->isConnected(), 5000);
    // Values on camera A, including per-selector ones.
    QVERIFY(writeFeature(a, "ExposureTime", "23456"));
    QVERIFY(writeFeature(a, "OffsetX", "0"));
    QVERIFY(writeFeature(a, "Width", "200"));
    QVERIFY(writeFeature(a, "OffsetX", "40"));
    QVERIFY(writeFeature(a, "ReverseY", "1"));
    QVERIFY(writeFeature(a, "TriggerSelector", "FrameStart"));
    QVERIFY(writeFeature(a, "TriggerMode", "On"));
    QVERIFY(writeFeature(a, "TriggerActivation", "FallingEdge"));
    QVERIFY(writeFeature(a, "TriggerSelector", "ExposureEnd") || true);
    QVERIFY(writeFeature(b, "Width", "320"));
    QVERIFY(writeFeature(b, "OffsetX", "0"));
    const QString selectorOnA = featureValue(a, "TriggerSelector");

    CParamFileController ctl(nullptr);
    ctl.setEnvironment(readyEnv());
    ctl.setReportPath(m_dir.filePath("report.log"));
    ctl.setMessageHandler(collect());
    const QString path = m_dir.filePath("a.txt");
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    QVERIFY(ctl.saveFile(a->getDeviceKey(), path));
    QVERIFY(saved.wait(30000));
    QCOMPARE(saved.last().at(0).toBool(), true);
    QCOMPARE(featureValue(a, "TriggerSelector"), selectorOnA);   // selectors get their value back
    const CDeviceParamFile file = CDeviceParamFile::parse(readAll(path));
    QVERIFY(file.hasHeader);
    QStringList keys;
    for (const SParamEntry& e : file.entries)
        keys.append(e.key());
    QVERIFY(keys.contains("TriggerMode[TriggerSelector=FrameStart]"));
    QVERIFY(!keys.contains("GevCCP"));
    QVERIFY(!keys.contains("DeviceUserID"));
    QVERIFY(!keys.contains("TestReadOnlyValue"));

    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path));
    QVERIFY(loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultLoaded));
    QCOMPARE(m_shown.last().path, m_dir.filePath("report.log"));
    for (const char* f : {"ExposureTime", "Width", "OffsetX", "ReverseY", "PixelFormat", "Gain"})
        QCOMPARE(featureValue(b, f), featureValue(a, f));
    QCOMPARE(featureValue(b, "TriggerSelector"), selectorOnA);
    QVERIFY(writeFeature(b, "TriggerSelector", "FrameStart"));
    QCOMPARE(featureValue(b, "TriggerMode"), QString("On"));
    QCOMPARE(featureValue(b, "TriggerActivation"), QString("FallingEdge"));
    QCOMPARE(b->getCurFile(), path);
    for (const CTavDevicePtr& d : {a, b})
    {
        QVERIFY(writeFeature(d, "TriggerSelector", "FrameStart"));
        QVERIFY(writeFeature(d, "TriggerMode", "Off"));
    }
}

void TestParamFiles::paramFileReportsWhatDidNotLoad()
{
    const CTavDevicePtr b = m_cams.dev[1];
    CParamFileController ctl(nullptr);
    ctl.setEnvironment(readyEnv());
    const QString report = m_dir.filePath("bad-report.log");
    ctl.setReportPath(report);
    ctl.setMessageHandler(collect());
    // Another model's file: a feature this camera lacks, a value it refuses,
    // a selector it does not have, a line that is not a feature, and one
    // feature that matches.
    const QString path = m_dir.filePath("other.txt");
    QVERIFY(writeAll(path, QByteArray(CDeviceParamFile::magic()) +
                               "\n# Model=OtherCam\nLaserBrightness=5\nPixelFormat=NoSuchFormat\n"
                               "Gain[GainSelector=Nope]=1\nGamma[LUTSelector=Red]=1\nthis is not a feature\n"
                               "ReverseX=1\n"));
    QVERIFY(writeFeature(b, "ReverseX", "0"));
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path));
    QVERIFY(loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultPartial));
    QCOMPARE(loaded.last().at(1).toInt(), 1);
    QCOMPARE(featureValue(b, "ReverseX"), QString("1"));
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Warning));
    QCOMPARE(m_shown.last().path, report);
    const QString text = QString::fromUtf8(readAll(report));
    for (const char* expected : {"LaserBrightness", "PixelFormat", "Gain[GainSelector=Nope]",
                                 "Gamma[LUTSelector=Red]", "line 7", "OtherCam", "Loaded 1 of 5"})
        QVERIFY2(text.contains(expected), qPrintable(expected + QString(" missing from:\n") + text));
    QVERIFY(writeFeature(b, "ReverseX", "0"));

    // Damaged file: nothing matches, nothing is loaded, and the report says so.
    m_shown.clear();
    QVERIFY(writeAll(path, QByteArray("\x7f" "ELF\x01\x02\x00garbage\nmore = junk = here\n", 31)));
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path));
    QVERIFY(loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QCOMPARE(loaded.last().at(1).toInt(), 0);
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Critical));
    QVERIFY(QString::fromUtf8(readAll(report)).contains("header"));

    // A camera that is not known at all.
    QVERIFY(ctl.loadFile("no-such-key", path));
    QVERIFY(loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QVERIFY(QString::fromUtf8(readAll(report)).contains("no-such-key"));
}

void TestParamFiles::paramFileStopsWhenCameraIsLost()
{
    const CTavDevicePtr b = m_cams.dev[1];
    QVERIFY(b->isConnected());
    // The loader waits for the first discovery pass before it looks for the device.
    int discoveryPolls = 0;
    bool started = false;
    SParamFileEnv env = readyEnv();
    env.isFirstDiscoveryFinished = [&]() { return ++discoveryPolls > 3; };
    env.startDiscovery = [&]() { started = true; };
    // The camera vanishes as soon as the loader has found it.
    env.findDevice = [&](const QString& key) {
        CTavDevicePtr d = CDeviceManager::getInstance()->getDeviceByKey(key);
        QMetaObject::invokeMethod(b.get(), [b]() { b->closeDevice(true); }, Qt::BlockingQueuedConnection);
        return d;
    };
    const QString path = longFile("long.txt");
    QVERIFY(!path.isEmpty());
    const QString report = m_dir.filePath("lost-report.log");
    CParamFileLoadThread load(b->getDeviceKey(), path, env, report);
    QSignalSpy finished(&load, &CParamFileLoadThread::loadFinished);
    QSignalSpy needConnect(&load, &CParamFileLoadThread::needConnect);
    load.begin();
    QVERIFY(finished.wait(30000));
    load.wait();
    QVERIFY(started);
    QVERIFY(discoveryPolls > 3);
    // Disconnected before the first write: asked to connect, nobody did.
    QCOMPARE(needConnect.count(), 1);
    QCOMPARE(finished.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QCOMPARE(finished.last().at(1).toInt(), 0);
    QVERIFY(QString::fromUtf8(readAll(report)).contains("could not be connected"));
    QVERIFY(b->openDevice(true));
}

void TestParamFiles::paramFileLoadCutByClosing()
{
    // A load whose worker waits on the camera (held here) when its
    // controller closes: closing returns at once, the worker stops and goes,
    // and nothing is reported as loaded.
    const CTavDevicePtr dev = m_cams.dev[0];
    QVERIFY(dev->isConnected());
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(dev->getDevice());
    QVERIFY(camera);
    const QString path = longFile("cut.txt");
    QVERIFY(!path.isEmpty());
    const QString report = m_dir.filePath("cut-report.log");
    QFile::remove(report);
    const QString fileBefore = dev->getCurFile();
    auto shown = std::make_shared<QStringList>();

    auto* ctl = new CParamFileController(nullptr);
    ctl->setEnvironment(readyEnv());
    ctl->setReportPath(report);
    ctl->setMessageHandler([shown](const QString& t, QMessageBox::Icon, const QString&) { shown->append(t); });
    QPointer<CParamFileLoadThread> worker;
    {
        std::unique_lock<std::recursive_mutex> cameraLock(camera->gcMutex());
        QVERIFY(ctl->loadFile(dev->getDeviceKey(), path));
        worker = ctl->findChild<CParamFileLoadThread*>();
        QVERIFY(worker);
        delete ctl;   // a wait here would never end: this thread holds the camera
        QVERIFY(worker);
        QVERIFY(!worker->parent());
    }
    QTRY_VERIFY_WITH_TIMEOUT(worker.isNull(), 30000);
    // The worker is gone: whatever it had posted is delivered now, or never.
    QCoreApplication::sendPostedEvents();
    QVERIFY2(shown->isEmpty(), qPrintable(shown->value(0)));
    QCOMPARE(dev->getCurFile(), fileBefore);
    // The report, when written, tells of a stopped load.
    if (QFile::exists(report))
        QVERIFY(QString::fromUtf8(readAll(report)).contains("stopped", Qt::CaseInsensitive));
}

QTEST_MAIN(TestParamFiles)
#include "test_param_files.moc"
