// Device parameter files between two simulated cameras: a round trip from
// one camera to the other, the load report of what did not load, an old
// file and a damaged one, files that are no regular files, the user's
// cancel, a full disk, a camera lost while loading and a load cut by closing.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "PanelCameras.h"
#include <QAbstractButton>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

#include "CAravisCamera.h"
#include "CDeviceParamFile.h"
#include "CParamFileController.h"
#include "CParamFileSaveThread.h"
#include "CWaitDlg.h"
#include "SmallTmpfs.h"
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
    void paramFileRoundTripBetweenCameras();
    void paramFileReportsWhatDidNotLoad();
    void paramFileDamagedIsAskedAbout();
    void paramFileRefusesWhatIsNoRegularFile();
    void paramFileCancel();
    void paramFileSaveOnFullDisk();
    void paramFileStopsWhenCameraIsLost();
    void paramFileLoadCutByClosing();

private:
    // The standard environment, with a clock that does not wait.
    static SParamFileEnv readyEnv();
    // A parameter file of 50 writes of ReverseX; its path, empty when it could not be written.
    QString longFile(const QString& name)
    {
        CDeviceParamFile file;
        for (int i = 0; i < 50; ++i)
            file.entries.append({"ReverseX", {}, QString::number(i % 2), 0});
        const QString path = m_dir.filePath(name);
        return writeAll(path, file.toText()) ? path : QString();
    }
    // A controller that reports to m_shown and writes its report into the test's folder.
    void setUp(CParamFileController& ctl)
    {
        ctl.setEnvironment(readyEnv());
        ctl.setReportPath(m_dir.filePath("report.log"));
        ctl.setMessageHandler(collect());
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

void TestParamFiles::paramFileRoundTripBetweenCameras()
{
    const CTavDevicePtr a = m_cams.dev[0], b = m_cams.dev[1];
    QTRY_VERIFY_WITH_TIMEOUT(b->isConnected(), 5000);
    // Values on camera A, including per-selector ones.
    QVERIFY(writeFeature(a, "ExposureTime", "23456") && writeFeature(a, "OffsetX", "0"));
    QVERIFY(writeFeature(a, "Width", "200") && writeFeature(a, "OffsetX", "40"));
    QVERIFY(writeFeature(a, "ReverseY", "1") && writeFeature(a, "TriggerSelector", "FrameStart"));
    QVERIFY(writeFeature(a, "TriggerMode", "On") && writeFeature(a, "TriggerActivation", "FallingEdge"));
    QVERIFY((writeFeature(a, "TriggerSelector", "ExposureEnd") || true) && writeFeature(b, "Width", "320"));
    QVERIFY(writeFeature(b, "OffsetX", "0"));
    const QString selectorOnA = featureValue(a, "TriggerSelector");

    CParamFileController ctl(nullptr);
    setUp(ctl);
    const QString path = m_dir.filePath("a.txt");
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    QVERIFY(ctl.saveFile(a->getDeviceKey(), path) && saved.wait(30000));
    QCOMPARE(saved.last().at(0).toBool(), true);
    QCOMPARE(featureValue(a, "TriggerSelector"), selectorOnA);   // selectors get their value back
    const CDeviceParamFile file = CDeviceParamFile::parse(readAll(path));
    QVERIFY(file.hasEndMarker);
    QStringList keys;
    for (const SParamEntry& e : file.entries)
        keys.append(e.key());
    QVERIFY(keys.contains("TriggerMode[TriggerSelector=FrameStart]") && !keys.contains("GevCCP"));
    QVERIFY(!keys.contains("DeviceUserID") && !keys.contains("TestReadOnlyValue"));

    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
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
        QVERIFY(writeFeature(d, "TriggerSelector", "FrameStart") && writeFeature(d, "TriggerMode", "Off"));
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
    // Another model's file, written before files had an end marker: a
    // feature this camera lacks, a value it refuses, a selector it does not
    // have, a line that is not a feature, and one feature that matches.
    const QString path = m_dir.filePath("other.txt");
    QVERIFY(writeAll(path, CDeviceParamFile::magic(1) +
                               "\n# Model=OtherCam\nLaserBrightness=5\nPixelFormat=NoSuchFormat\n"
                               "Gain[GainSelector=Nope]=1\nGamma[LUTSelector=Red]=1\nthis is not a feature\n"
                               "ReverseX=1\n"));
    QVERIFY(writeFeature(b, "ReverseX", "0"));
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultPartial));
    QCOMPARE(loaded.last().at(1).toInt(), 1);
    QCOMPARE(featureValue(b, "ReverseX"), QString("1"));
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Warning));
    QCOMPARE(m_shown.last().path, report);
    const QString text = QString::fromUtf8(readAll(report));
    for (const char* expected : {"LaserBrightness", "PixelFormat", "Gain[GainSelector=Nope]",
                                 "Gamma[LUTSelector=Red]", "line 7", "OtherCam", "Loaded 1 of 5", "no end marker"})
        QVERIFY2(text.contains(expected), qPrintable(expected + QString(" missing from:\n") + text));
    QVERIFY(writeFeature(b, "ReverseX", "0"));

    // Damaged file: nothing matches, nothing is loaded, and the report says so.
    m_shown.clear();
    QVERIFY(writeAll(path, QByteArray("\x7f" "ELF\x01\x02\x00garbage\nmore = junk = here\n", 31)));
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QCOMPARE(loaded.last().at(1).toInt(), 0);
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Critical));
    QVERIFY(QString::fromUtf8(readAll(report)).contains("header"));

    // A camera that is not known at all.
    QVERIFY(ctl.loadFile("no-such-key", path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QVERIFY(QString::fromUtf8(readAll(report)).contains("no-such-key"));
}

void TestParamFiles::paramFileDamagedIsAskedAbout()
{
    const CTavDevicePtr b = m_cams.dev[1];
    CParamFileController ctl(nullptr);
    setUp(ctl);
    QStringList asked;
    bool answer = false;
    ctl.setQuestionHandler([&](const QString& q) {
        asked.append(q);
        return answer;
    });
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    // Cut inside the last value: ExposureTime=10000 became 10.
    CDeviceParamFile file;
    file.entries.append({"ReverseX", {}, "1", 0});
    file.entries.append({"ExposureTime", {}, "10000", 0});
    const QByteArray text = file.toText();
    const QString path = m_dir.filePath("cut.txt");
    QVERIFY(writeAll(path, text.left(text.indexOf("=10000") + 3)) && writeFeature(b, "ReverseX", "0"));
    QVERIFY(writeFeature(b, "ExposureTime", "5000"));
    const QString exposure = featureValue(b, "ExposureTime");

    // Declined: nothing applied, nothing more said.
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultCancelled));
    QCOMPARE(asked.size(), 1);
    QVERIFY2(asked[0].contains(path) && asked[0].contains("damaged"), qPrintable(asked[0]));
    QVERIFY(m_shown.isEmpty());
    QCOMPARE(featureValue(b, "ReverseX"), QString("0"));
    QVERIFY(!ctl.isBusy());

    // Loaded anyway: its whole lines only, and no success claimed.
    answer = true;
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultPartial));
    QCOMPARE(featureValue(b, "ReverseX"), QString("1"));
    QCOMPARE(featureValue(b, "ExposureTime"), exposure);
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Warning));
    const QString report = m_dir.filePath("report.log");
    QVERIFY(QString::fromUtf8(readAll(report)).contains("cut short"));

    // A file written before files had an end marker loads as before, with a note.
    QVERIFY(writeAll(path, CDeviceParamFile::magic(1) + "\nReverseX=0\n"));
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultLoaded));
    QCOMPARE(asked.size(), 2);
    QCOMPARE(featureValue(b, "ReverseX"), QString("0"));
    QVERIFY(QString::fromUtf8(readAll(report)).contains("no end marker"));
}

void TestParamFiles::paramFileRefusesWhatIsNoRegularFile()
{
    const CTavDevicePtr a = m_cams.dev[0];
    CParamFileController ctl(nullptr);
    setUp(ctl);
    const QString fifo = m_dir.filePath("pipe.txt"), zero = m_dir.filePath("endless.txt");
    QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", zero));
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    for (const QString& path : {fifo, zero})
    {
        QVERIFY(ctl.loadFile(a->getDeviceKey(), path) && loaded.wait(30000));
        QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
        QVERIFY2(m_shown.last().text.contains(path) && m_shown.last().text.contains("regular file"),
                 qPrintable(m_shown.last().text));
        QVERIFY(!ctl.isBusy());
    }
    QVERIFY(ctl.saveFile(a->getDeviceKey(), fifo) && saved.wait(30000));
    QCOMPARE(saved.last().at(0).toBool(), false);
    QVERIFY2(m_shown.last().text.contains(fifo), qPrintable(m_shown.last().text));
    QVERIFY(QFileInfo(fifo).exists() && !QFileInfo(fifo).isFile());
}

void TestParamFiles::paramFileCancel()
{
    // The worker waits for the camera, held here; the user closes the wait
    // dialog. The result reads cancelled at once and the next file can go.
    const CTavDevicePtr dev = m_cams.dev[0];
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(dev->getDevice());
    QVERIFY(camera);
    CParamFileController ctl(nullptr);
    setUp(ctl);
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    const QString path = longFile("cancel.txt");   // ends on ReverseX=1
    const QString kept = m_dir.filePath("kept.txt");
    QVERIFY(writeAll(kept, "kept\n") && writeFeature(dev, "ReverseX", "0"));
    const auto cancelWait = [&ctl]() {
        QVERIFY(ctl.waitDialog() && ctl.waitDialog()->isVisible());
        auto* close = ctl.waitDialog()->findChild<QAbstractButton*>("btnDialogClose");
        QVERIFY(close && close->isVisibleTo(ctl.waitDialog()));
        close->click();
    };
    QPointer<CParamFileThread> load, save;
    {
        std::unique_lock<std::recursive_mutex> hold(camera->gcMutex());
        QVERIFY(ctl.loadFile(dev->getDeviceKey(), path));
        load = ctl.findChild<CParamFileLoadThread*>();
        QVERIFY(load);
        cancelWait();
        QCOMPARE(loaded.size(), 1);
        QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultCancelled));
        QCOMPARE(m_shown.last().text, QString("Load Config cancelled."));
        QVERIFY(!ctl.isBusy() && !ctl.waitDialog()->isVisible());

        QVERIFY(ctl.saveFile(dev->getDeviceKey(), kept));
        save = ctl.findChild<CParamFileSaveThread*>();
        QVERIFY(save);
        cancelWait();
        QCOMPARE(saved.size(), 1);
        QCOMPARE(saved.last().at(0).toBool(), false);
        QVERIFY2(m_shown.last().text.contains("cancelled") && m_shown.last().text.contains(kept),
                 qPrintable(m_shown.last().text));
        QVERIFY(!ctl.isBusy());
    }
    // Released: both stop at their next step and go, without a word.
    QTRY_VERIFY_WITH_TIMEOUT(load.isNull() && save.isNull(), 30000);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_shown.size(), 2);
    QCOMPARE(featureValue(dev, "ReverseX"), QString("0"));
    QCOMPARE(readAll(kept), QByteArray("kept\n"));
    QCOMPARE(QDir(m_dir.path()).entryList({"kept.txt*"}, QDir::Files | QDir::Hidden), QStringList("kept.txt"));

    QVERIFY(ctl.loadFile(dev->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultLoaded));
    QCOMPARE(featureValue(dev, "ReverseX"), QString("1"));
    QVERIFY(writeFeature(dev, "ReverseX", "0"));
}

void TestParamFiles::paramFileSaveOnFullDisk()
{
    const CTavDevicePtr dev = m_cams.dev[0];
    SmallTmpfs disk;
    const QString root = m_dir.filePath("disk");
    QVERIFY2(disk.mount(root, 64), qPrintable(disk.error()));
    CParamFileController ctl(nullptr);
    setUp(ctl);
    const QString report = root + "/report.log", path = root + "/camera.txt", fresh = root + "/new.txt";
    ctl.setReportPath(report);
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.saveFile(dev->getDeviceKey(), path) && saved.wait(30000));
    QCOMPARE(saved.last().at(0).toBool(), true);
    QVERIFY(writeAll(report, "earlier report\n"));
    const QByteArray before = readAll(path);
    QVERIFY2(disk.fill(), qPrintable(disk.error()));

    // Overwrite and new name: the user hears of the file and the reason.
    const QString noSpace = QString::fromLocal8Bit(strerror(ENOSPC));
    for (const QString& p : {path, fresh})
    {
        QVERIFY(ctl.saveFile(dev->getDeviceKey(), p) && saved.wait(30000));
        QCOMPARE(saved.last().at(0).toBool(), false);
        QVERIFY2(m_shown.last().text.contains(p) && m_shown.last().text.contains(noSpace),
                 qPrintable(m_shown.last().text));
    }
    QCOMPARE(readAll(path), before);

    // A load goes through, but its report cannot be written, and says so.
    QVERIFY(ctl.loadFile(dev->getDeviceKey(), path) && loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultLoaded));
    QVERIFY2(m_shown.last().text.contains(report) && m_shown.last().text.contains(noSpace),
             qPrintable(m_shown.last().text));
    QVERIFY(m_shown.last().path.isEmpty());
    QCOMPARE(readAll(report), QByteArray("earlier report\n"));
    QCOMPARE(QDir(root).entryList(QDir::Files | QDir::Hidden, QDir::Name),
             QStringList({"camera.txt", "filler", "report.log"}));
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
    QVERIFY(started && discoveryPolls > 3);
    // Disconnected before the first write: asked to connect, nobody did.
    QCOMPARE(needConnect.count(), 1);
    QCOMPARE(finished.last().at(0).toInt(), int(CParamFileLoadThread::resultFailed));
    QCOMPARE(finished.last().at(1).toInt(), 0);
    QVERIFY(QString::fromUtf8(readAll(report)).contains("could not be connected") && b->openDevice(true));
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
        QVERIFY(worker && !worker->parent());
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
