// The property panel around the feature tree, against two simulated cameras:
// pages following the bus, the user-set dialog, the quick-settings and
// image-format pages, and device parameter files between the two cameras.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include "LumidorResources.h"
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QPointer>
#include <QtTest>
#include <memory>

#include "CAravisCamera.h"
#include "CSingletonOwner.h"
#include "CDeviceManager.h"
#include "CFeatureControlWorker.h"
#include "QueuedSignalSpy.h"
#include "CDeviceParamFile.h"
#include "CParamFileController.h"
#include "CParamFileNodeMap.h"
#include "CPropertyFeaturesForm.h"
#include "CPropertyForm.h"
#include "CPropertyImageFormatForm.h"
#include "CViewSignalHub.h"
#include "CPropertySettingsForm.h"
#include "CSaveFeaturesDlg.h"
#include "CDoubleSpinBox.h"
#include "CPropertyGPIOForm.h"
#include "CSpinBox.h"
#include "CTavDevice.h"
#include "TestFiles.h"

static const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

struct Shown
{
    QString text;
    int icon = 0;
    QString path;
};

class TestPropertyPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void paramFileText();
    void panelPagesFollowTheBus();
    void userSets();
    void quickSettingsFollowTheCamera();
    void imageFormatRefusedWhileGrabbing();
    void paramFileRoundTripBetweenCameras();
    void paramFileReportsWhatDidNotLoad();
    void paramFileStopsWhenCameraIsLost();
    void workerRetiresWithoutWaiting();
    void paramFileLoadCutByClosing();
    void screenshots();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    CTavDevicePtr findDevice(const QString& serial);
    QString value(const CTavDevicePtr& device, const QString& name);
    bool write(const CTavDevicePtr& device, const QString& name, const QString& text);
    SParamFileEnv readyEnv();

    FakeCameraRig m_rig;
    int m_cam[2] = {-1, -1};
    CTavDevicePtr m_dev[2];
    QTemporaryDir m_dir;
    QList<Shown> m_shown;
};

CTavDevicePtr TestPropertyPanel::findDevice(const QString& serial)
{
    const QMap<QString, CTavDevicePtr> devices = CDeviceManager::getInstance()->getAllDevices();
    for (const CTavDevicePtr& d : devices)
        if (d->getDevice() && QString::fromLocal8Bit(d->getDevice()->getSerialNumber().c_str()) == serial)
            return d;
    return CTavDevicePtr();
}

QString TestPropertyPanel::value(const CTavDevicePtr& device, const QString& name)
{
    QString text;
    CParamFileNodeMap(device->getDevice()).readValue(name, text);
    return text;
}

bool TestPropertyPanel::write(const CTavDevicePtr& device, const QString& name, const QString& text)
{
    QString error;
    return CParamFileNodeMap(device->getDevice()).writeValue(name, text, error);
}

SParamFileEnv TestPropertyPanel::readyEnv()
{
    SParamFileEnv env = SParamFileEnv::standard();
    env.sleep = [](int) { QThread::msleep(1); };
    return env;
}

void TestPropertyPanel::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    QVERIFY(m_dir.isValid());
    initLumidorResources();
    const char* addresses[2] = {"127.0.0.2", "127.0.0.3"};
    const char* serials[2] = {"LUMPANEL1", "LUMPANEL2"};
    for (int i = 0; i < 2; ++i)
    {
        if (!FakeCameraRig::hasAddress(addresses[i]))
            QFAIL(qPrintable(QString("%1 is not configured: run inside a network namespace after scripts/loopback.sh 3")
                                 .arg(addresses[i])));
        m_cam[i] = m_rig.start(addresses[i], serials[i], std::string(), 320, 240, "Mono8");
        if (m_cam[i] < 0)
            QFAIL(qPrintable(QString("simulated camera did not start: %1").arg(m_rig.lastError().c_str())));
    }
    CDeviceManager* manager = CDeviceManager::getInstance();
    QVERIFY2(QTest::qWaitFor([&]() { return findDevice(serials[0]) && findDevice(serials[1]); }, 20000) ||
                 (manager->refreshDeviceMap(QString(), 0),
                  QTest::qWaitFor([&]() { return findDevice(serials[0]) && findDevice(serials[1]); }, 20000)),
             "the simulated cameras were not discovered");
    for (int i = 0; i < 2; ++i)
    {
        m_dev[i] = findDevice(serials[i]);
        QVERIFY(m_dev[i]->openDevice(true));
    }
}

void TestPropertyPanel::cleanupTestCase()
{
    for (CTavDevicePtr& d : m_dev)
    {
        if (d && d->isConnected())
            d->closeDevice(true);
        d.reset();
    }
    m_owner.reset();
}

void TestPropertyPanel::init()
{
    m_shown.clear();
}

void TestPropertyPanel::paramFileText()
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

void TestPropertyPanel::panelPagesFollowTheBus()
{
    CPropertyForm panel;
    CViewSignalHub hub;
    panel.setViewSignals(&hub);
    panel.resize(420, 700);
    panel.show();
    // No device: the empty page, no waiting animation.
    panel.refreshShow();
    QCOMPARE(panel.stack()->currentWidget(), panel.emptyPage());
    QVERIFY(!panel.isWaitingShown());

    // A device that connects gets its four pages; the waiting animation runs
    // while its tree loads.
    const CTavDevicePtr dev = m_dev[1];
    dev->closeDevice(true);
    QTRY_COMPARE_WITH_TIMEOUT(panel.deviceCount(), 0, 5000);
    QVERIFY(dev->openDevice(true));
    QTRY_COMPARE_WITH_TIMEOUT(panel.deviceCount(), 1, 5000);
    QCOMPARE(panel.stack()->count(), 5);
    panel.setCurDevice(dev);
    CPropertyFeaturesForm* features = panel.featuresPage(dev);
    QVERIFY(features);
    QCOMPARE(panel.stack()->currentWidget(), static_cast<QWidget*>(features));
    if (features->isLoadingGenParams())
        QVERIFY(panel.isWaitingShown());
    QTRY_VERIFY_WITH_TIMEOUT(!features->isLoadingGenParams(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(!panel.isWaitingShown(), 2000);

    // Tabs: one checked at a time, each showing its page of the device.
    panel.findChild<QToolButton*>("btnImageFormat")->click();
    QCOMPARE(panel.currentTab(), int(CPropertyForm::tabImageFormat));
    QCOMPARE(panel.stack()->currentWidget(), static_cast<QWidget*>(panel.imageFormatPage(dev)));
    QVERIFY(!panel.findChild<QToolButton*>("btnfeatures")->isChecked());
    // Leaving the image-format tab ends a drawing in progress.
    QSignalSpy cancelled(&hub, &CViewSignalHub::signalCancelDrawROI);
    panel.imageFormatPage(dev)->drawButton()->click();
    QVERIFY(panel.imageFormatPage(dev)->isDrawingROI());
    panel.findChild<QToolButton*>("btnSettings")->click();
    QVERIFY(!panel.imageFormatPage(dev)->isDrawingROI());
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(panel.stack()->currentWidget(), static_cast<QWidget*>(panel.settingsPage(dev)));
    panel.findChild<QToolButton*>("btnGPIO")->click();
    QCOMPARE(panel.stack()->currentWidget(), static_cast<QWidget*>(panel.gpioPage(dev)));
    panel.findChild<QToolButton*>("btnfeatures")->click();

    // The save button of the features page opens the user-set dialog.
    emit features->signalSaveFeatures(dev);
    QVERIFY(panel.saveFeaturesDialog());
    panel.saveFeaturesDialog()->close();

    // The device goes away: its pages leave the stack.
    dev->closeDevice(true);
    QTRY_COMPARE_WITH_TIMEOUT(panel.deviceCount(), 0, 5000);
    QCOMPARE(panel.stack()->count(), 1);
    QCOMPARE(panel.stack()->currentWidget(), panel.emptyPage());
    QVERIFY(!panel.isWaitingShown());
    QVERIFY(dev->openDevice(true));
}

void TestPropertyPanel::userSets()
{
    const CTavDevicePtr dev = m_dev[0];
    QVERIFY(write(dev, "UserSetSelector", "UserSet1"));
    QVERIFY(write(dev, "UserSetDefault", "Default"));
    CSaveFeaturesDlg dlg(dev);
    dlg.setMessageHandler([this](const QString& t) { m_shown.append({t, 0, QString()}); });
    // The worker reads the four features one after the other and each control
    // follows its own result: wait until every one has been shown.
    QSignalSpy shown(&dlg, &CSaveFeaturesDlg::paramShown);
    const auto allShown = [&]() {
        QSet<QString> names;
        for (const QList<QVariant>& args : shown)
            names.insert(args.at(0).toString());
        return names.size() == 4;
    };
    QVERIFY(QTest::qWaitFor(allShown, 15000));
    QCOMPARE(dlg.selectorCombo()->count(), 3);
    QVERIFY(dlg.saveButton()->isEnabled());
    QCOMPARE(dlg.selectorCombo()->currentData().toString(), QString("UserSet1"));
    QCOMPARE(dlg.selectorCombo()->itemText(0), CSaveFeaturesDlg::transParam("Default"));
    QVERIFY(dlg.selectorCombo()->isEnabled());
    QVERIFY(dlg.loadButton()->isEnabled());
    QCOMPARE(dlg.defaultCombo()->currentData().toString(), QString("Default"));
    QCOMPARE(CSaveFeaturesDlg::retransParam(CSaveFeaturesDlg::transParam("UserSet2")), QString("UserSet2"));
    QCOMPARE(CSaveFeaturesDlg::transParam("UserSet3"), QString("UserSet3"));   // unknown sets pass unchanged

    // Choosing "Default" writes the selector; the camera then refuses to
    // save into it and the save button follows.
    QSignalSpy done(&dlg, &CSaveFeaturesDlg::actionFinished);
    // Waits for the named feature's result and returns its ok flag.
    const auto finished = [&](const QString& name) {
        int at = -1;
        (void)QTest::qWaitFor([&]() {
            for (int i = 0; i < done.size() && at < 0; ++i)
                if (done.at(i).at(0).toString() == name)
                    at = i;
            return at >= 0;
        }, 5000);
        const bool ok = at >= 0 && done.at(at).at(1).toBool();
        done.clear();
        return at >= 0 ? (ok ? 1 : 0) : -1;
    };
    dlg.selectorCombo()->setCurrentIndex(0);
    dlg.on_cbUserSetSelector_currentIndexChanged(0);
    QCOMPARE(finished("UserSetSelector"), 1);
    QCOMPARE(value(dev, "UserSetSelector"), QString("Default"));
    QTRY_VERIFY_WITH_TIMEOUT(!dlg.saveButton()->isEnabled(), 5000);
    QVERIFY(dlg.loadButton()->isEnabled());

    // Default set and the commands run on the worker without a message.
    dlg.defaultCombo()->setCurrentIndex(2);
    dlg.on_cbUserSetDefault_currentIndexChanged(2);
    QCOMPARE(finished("UserSetDefault"), 1);
    QCOMPARE(value(dev, "UserSetDefault"), QString("UserSet2"));
    dlg.on_btnUserSetLoad_clicked();
    QCOMPARE(finished("UserSetLoad"), 1);
    QVERIFY(m_shown.isEmpty());

    // A value the camera refuses is reported with the required text and
    // the combo returns to the camera's value.
    dlg.selectorCombo()->addItem("NoSuchSet", "NoSuchSet");
    dlg.selectorCombo()->setCurrentIndex(3);
    dlg.on_cbUserSetSelector_currentIndexChanged(3);
    QCOMPARE(finished("UserSetSelector"), 0);
    QCOMPARE(m_shown.size(), 1);
    QCOMPARE(m_shown[0].text, QString("set UserSetSelector property value NoSuchSet fail, please check value."));
    QTRY_COMPARE_WITH_TIMEOUT(dlg.selectorCombo()->currentData().toString(), QString("Default"), 5000);
    QVERIFY(write(dev, "UserSetDefault", "Default"));
}

void TestPropertyPanel::quickSettingsFollowTheCamera()
{
    const CTavDevicePtr dev = m_dev[0];
    CPropertySettingsForm page(dev);
    page.setMessageHandler([this](const QString& t) { m_shown.append({t, 0, QString()}); });
    page.resize(400, 700);
    page.show();
    QTRY_VERIFY_WITH_TIMEOUT(page.state("ReverseY").valid && page.state("ExposureTime").valid, 5000);
    // Features the camera lacks are hidden; the others shown.
    QTRY_VERIFY_WITH_TIMEOUT(page.rowWidget("BalanceWhiteAuto")->isHidden(), 2000);
    QVERIFY(page.rowWidget("AcquisitionFrameRateEnable")->isHidden());
    QVERIFY(!page.rowWidget("ExposureTime")->isHidden());
    QVERIFY(!page.rowWidget("TriggerSoftware")->isHidden());
    QCOMPARE(page.comboBox("PixelFormat")->currentData().toString(), value(dev, "PixelFormat"));

    // A write from the page reaches the camera; a refused one is shown and
    // the control returns to the camera's value.
    QSignalSpy written(&page, &CFeatureControlPage::writeFinished);
    page.writeValue("ReverseX", true);
    QVERIFY(written.wait(5000));
    QCOMPARE(value(dev, "ReverseX"), QString("1"));
    QVERIFY(write(dev, "ReverseX", "0"));
    const QString gainBefore = value(dev, "Gain");
    written.clear();
    page.writeValue("Gain", 1.0e6);
    QVERIFY(written.wait(5000));
    QCOMPARE(written.last().at(1).toBool(), false);
    QCOMPARE(m_shown.size(), 1);
    QVERIFY(!m_shown[0].text.isEmpty());
    QCOMPARE(value(dev, "Gain"), gainBefore);
    QCOMPARE(page.floatSpinBox("Gain")->value(), gainBefore.toDouble());

    // Range and availability follow the camera: a narrower Width gives
    // OffsetX room, read again on refresh (what the bus's update triggers).
    CPropertyImageFormatForm format(dev);
    QTRY_VERIFY_WITH_TIMEOUT(format.state("OffsetX").valid, 5000);
    QVERIFY(write(dev, "OffsetX", "0"));
    QVERIFY(write(dev, "Width", "320"));
    format.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(format.intSpinBox("Width")->value(), 320, 5000);
    const int offsetMax = format.intSpinBox("OffsetX")->maximum();
    QVERIFY(write(dev, "Width", "160"));
    format.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(format.intSpinBox("OffsetX")->maximum(), offsetMax + 160, 5000);
    QCOMPARE(format.intSpinBox("Width")->singleStep(), int(format.state("Width").intInc));
    // A value off the increment grid is moved onto it before writing.
    QSignalSpy fwritten(&format, &CFeatureControlPage::writeFinished);
    format.writeValue("Width", qint64(201));
    QVERIFY(fwritten.wait(5000));
    QCOMPARE(value(dev, "Width").toLongLong() % format.state("Width").intInc, 0);
    QVERIFY(write(dev, "Width", "320"));

    // Availability: the gated test feature's row is disabled while its gate is closed.
    QVERIFY(write(dev, "TriggerMode", "On"));
    page.refresh();
    QTRY_VERIFY_WITH_TIMEOUT(page.rowWidget("TriggerSource")->isEnabled(), 5000);
    QVERIFY(write(dev, "TriggerMode", "Off"));
}

void TestPropertyPanel::imageFormatRefusedWhileGrabbing()
{
    const CTavDevicePtr dev = m_dev[0];
    CViewSignalHub hub;
    CPropertyImageFormatForm page(dev, nullptr, &hub);
    page.setMessageHandler([this](const QString& t) { m_shown.append({t, 0, QString()}); });
    QTRY_VERIFY_WITH_TIMEOUT(page.state("Width").valid, 5000);
    const QString before = value(dev, "Width");
    QVERIFY(dev->openStream());
    QTRY_VERIFY_WITH_TIMEOUT(dev->isGrabing(), 5000);
    page.writeValue("Width", qint64(64));
    page.onROIChanged(0, 0, 64, 64);   // not drawing: ignored
    page.drawButton()->click();        // drawing refused while grabbing
    QVERIFY(!page.isDrawingROI());
    QCOMPARE(m_shown.size(), 2);
    QCOMPARE(m_shown[0].text, QString("Stop acquisition before changing the image format."));
    QCOMPARE(page.worker()->pendingCount(), 0);
    QVERIFY(dev->closeStream());
    QCOMPARE(value(dev, "Width"), before);

    // Not grabbing: a drawn region is applied on the grid, offsets added.
    QTRY_VERIFY_WITH_TIMEOUT(!dev->isGrabing(), 5000);
    QTest::qWait(50);   // the stream messages of the bus reach the page first
    m_shown.clear();
    QSignalSpy initRoi(&hub, &CViewSignalHub::signalInitROI);
    page.drawButton()->click();
    QVERIFY(page.isDrawingROI());
    QCOMPARE(initRoi.count(), 1);
    emit hub.ROIChanged(dev->getDeviceKey(), 11, 7, 101, 51);
    // Offsets and sizes move down onto their grids (increment 2).
    QTRY_COMPARE_WITH_TIMEOUT(value(dev, "OffsetY"), QString("6"), 5000);
    QCOMPARE(value(dev, "OffsetX"), QString("10"));
    QCOMPARE(value(dev, "Width"), QString("100"));
    QCOMPARE(value(dev, "Height"), QString("50"));
    QVERIFY(m_shown.isEmpty());
    // Full frame: offsets 0 and the whole sensor.
    page.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(page.state("OffsetY").intValue, qint64(6), 5000);
    page.fullFrameButton()->click();
    QTRY_COMPARE_WITH_TIMEOUT(value(dev, "Width"), value(dev, "WidthMax"), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(value(dev, "OffsetX"), QString("0"), 5000);
    QVERIFY(write(dev, "Width", "320"));
    QVERIFY(write(dev, "Height", "240"));
}

void TestPropertyPanel::paramFileRoundTripBetweenCameras()
{
    const CTavDevicePtr a = m_dev[0], b = m_dev[1];
    QTRY_VERIFY_WITH_TIMEOUT(b->isConnected(), 5000);
    // Values on camera A, including per-selector ones.
    QVERIFY(write(a, "ExposureTime", "23456"));
    QVERIFY(write(a, "OffsetX", "0"));
    QVERIFY(write(a, "Width", "200"));
    QVERIFY(write(a, "OffsetX", "40"));
    QVERIFY(write(a, "ReverseY", "1"));
    QVERIFY(write(a, "TriggerSelector", "FrameStart"));
    QVERIFY(write(a, "TriggerMode", "On"));
    QVERIFY(write(a, "TriggerActivation", "FallingEdge"));
    QVERIFY(write(a, "TriggerSelector", "ExposureEnd") || true);
    QVERIFY(write(b, "Width", "320"));
    QVERIFY(write(b, "OffsetX", "0"));
    const QString selectorOnA = value(a, "TriggerSelector");

    CParamFileController ctl(nullptr);
    ctl.setEnvironment(readyEnv());
    ctl.setReportPath(m_dir.filePath("report.log"));
    ctl.setMessageHandler([this](const QString& t, QMessageBox::Icon i, const QString& p) { m_shown.append({t, int(i), p}); });
    const QString path = m_dir.filePath("a.txt");
    QSignalSpy saved(&ctl, &CParamFileController::saveDone);
    QVERIFY(ctl.saveFile(a->getDeviceKey(), path));
    QVERIFY(saved.wait(30000));
    QCOMPARE(saved.last().at(0).toBool(), true);
    QCOMPARE(value(a, "TriggerSelector"), selectorOnA);   // selectors get their value back
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
        QCOMPARE(value(b, f), value(a, f));
    QCOMPARE(value(b, "TriggerSelector"), selectorOnA);
    QVERIFY(write(b, "TriggerSelector", "FrameStart"));
    QCOMPARE(value(b, "TriggerMode"), QString("On"));
    QCOMPARE(value(b, "TriggerActivation"), QString("FallingEdge"));
    QCOMPARE(b->getCurFile(), path);
    for (const CTavDevicePtr& d : {a, b})
    {
        QVERIFY(write(d, "TriggerSelector", "FrameStart"));
        QVERIFY(write(d, "TriggerMode", "Off"));
    }
}

void TestPropertyPanel::paramFileReportsWhatDidNotLoad()
{
    const CTavDevicePtr b = m_dev[1];
    CParamFileController ctl(nullptr);
    ctl.setEnvironment(readyEnv());
    const QString report = m_dir.filePath("bad-report.log");
    ctl.setReportPath(report);
    ctl.setMessageHandler([this](const QString& t, QMessageBox::Icon i, const QString& p) { m_shown.append({t, int(i), p}); });
    // Another model's file: a feature this camera lacks, a value it refuses,
    // a selector it does not have, a line that is not a feature, and one
    // feature that matches.
    const QString path = m_dir.filePath("other.txt");
    QVERIFY(writeAll(path, QByteArray(CDeviceParamFile::magic()) +
                               "\n# Model=OtherCam\nLaserBrightness=5\nPixelFormat=NoSuchFormat\n"
                               "Gain[GainSelector=Nope]=1\nGamma[LUTSelector=Red]=1\nthis is not a feature\n"
                               "ReverseX=1\n"));
    QVERIFY(write(b, "ReverseX", "0"));
    QSignalSpy loaded(&ctl, &CParamFileController::loadDone);
    QVERIFY(ctl.loadFile(b->getDeviceKey(), path));
    QVERIFY(loaded.wait(30000));
    QCOMPARE(loaded.last().at(0).toInt(), int(CParamFileLoadThread::resultPartial));
    QCOMPARE(loaded.last().at(1).toInt(), 1);
    QCOMPARE(value(b, "ReverseX"), QString("1"));
    QCOMPARE(m_shown.last().icon, int(QMessageBox::Warning));
    QCOMPARE(m_shown.last().path, report);
    const QString text = QString::fromUtf8(readAll(report));
    for (const char* expected : {"LaserBrightness", "PixelFormat", "Gain[GainSelector=Nope]",
                                 "Gamma[LUTSelector=Red]", "line 7", "OtherCam", "Loaded 1 of 5"})
        QVERIFY2(text.contains(expected), qPrintable(expected + QString(" missing from:\n") + text));
    QVERIFY(write(b, "ReverseX", "0"));

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

void TestPropertyPanel::paramFileStopsWhenCameraIsLost()
{
    const CTavDevicePtr b = m_dev[1];
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
    const QString path = m_dir.filePath("long.txt");
    QByteArray text = QByteArray(CDeviceParamFile::magic()) + "\n";
    for (int i = 0; i < 50; ++i)
        text += "ReverseX=" + QByteArray::number(i % 2) + "\n";
    QVERIFY(writeAll(path, text));
    const QString report = m_dir.filePath("lost-report.log");
    CParamFileLoadThread load(b->getDeviceKey(), path, env, report);
    QSignalSpy finished(&load, &CParamFileLoadThread::loadFinished);
    QSignalSpy needConnect(&load, &CParamFileLoadThread::needConnect);
    load.start();
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

void TestPropertyPanel::workerRetiresWithoutWaiting()
{
    // A worker in the middle of a camera round trip: the camera's lock is
    // held here, so its read cannot finish.
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(m_dev[0]->getDevice());
    QVERIFY(camera);
    QObject owner;
    auto* worker = new CFeatureControlWorker(m_dev[0]->getDevice(), &owner);
    QPointer<CFeatureControlWorker> alive(worker);
    QueuedSignalSpy read(worker, &CFeatureControlWorker::stateRead);
    worker->start();
    {
        std::unique_lock<std::recursive_mutex> cameraLock(camera->gcMutex());
        worker->requestRead({QStringLiteral("Width"), QStringLiteral("Height")});
        QTRY_COMPARE(worker->pendingCount(), 1);   // Width taken, Height waiting

        // Retiring returns while the read still waits for the camera (a
        // wait here would never end: this thread holds the camera).
        worker->retire();
        QVERIFY(alive);
        QVERIFY(!worker->parent());
        QCOMPARE(worker->pendingCount(), 0);
    }
    // The read under way ends, nothing after it runs, the worker goes.
    QTRY_VERIFY(alive.isNull());
    QVERIFY(read.count() <= 1);

    // A worker that never ran, and one whose loop has ended, go at once.
    QPointer<CFeatureControlWorker> idle(new CFeatureControlWorker(m_dev[0]->getDevice(), &owner));
    idle->retire();
    QTRY_VERIFY(idle.isNull());
    QPointer<CFeatureControlWorker> ended(new CFeatureControlWorker(m_dev[0]->getDevice(), &owner));
    ended->start();
    ended->stop();
    QVERIFY(ended->wait(10000));
    ended->retire();
    QTRY_VERIFY(ended.isNull());
}

void TestPropertyPanel::paramFileLoadCutByClosing()
{
    // A load whose worker waits on the camera (held here) when its
    // controller closes: closing returns at once, the worker stops and goes,
    // and nothing is reported as loaded.
    const CTavDevicePtr dev = m_dev[0];
    QVERIFY(dev->isConnected());
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(dev->getDevice());
    QVERIFY(camera);
    const QString path = m_dir.filePath("cut.txt");
    QByteArray text = QByteArray(CDeviceParamFile::magic()) + "\n";
    for (int i = 0; i < 50; ++i)
        text += "ReverseX=" + QByteArray::number(i % 2) + "\n";
    QVERIFY(writeAll(path, text));
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
    QTest::qWait(50);   // anything still queued would arrive now
    QVERIFY2(shown->isEmpty(), qPrintable(shown->value(0)));
    QCOMPARE(dev->getCurFile(), fileBefore);
    // The report, when written, tells of a stopped load.
    if (QFile::exists(report))
        QVERIFY(QString::fromUtf8(readAll(report)).contains("stopped", Qt::CaseInsensitive));
}

void TestPropertyPanel::screenshots()
{
    const CTavDevicePtr dev = m_dev[0];
    CPropertyForm panel;
    panel.resize(440, 720);
    panel.show();
    dev->closeDevice(true);
    QVERIFY(dev->openDevice(true));
    QTRY_COMPARE_WITH_TIMEOUT(panel.deviceCount(), 1, 5000);
    panel.setCurDevice(dev);
    CPropertyFeaturesForm* features = panel.featuresPage(dev);
    QTRY_VERIFY_WITH_TIMEOUT(!features->isLoadingGenParams(), 20000);
    QApplication::processEvents();
    const QString dir = qEnvironmentVariable("LUMIDOR_SCREENSHOT_DIR", m_dir.path());
    QVERIFY(panel.grab().save(dir + "/panel_en.png"));
    panel.findChild<QToolButton*>("btnSettings")->click();
    QTest::qWait(300);
    QVERIFY(panel.grab().save(dir + "/panel_settings_en.png"));
    panel.findChild<QToolButton*>("btnfeatures")->click();

    // Chinese: every translation of the program, then the same panel.
    QList<QTranslator*> translators;
    for (const QString& name : QDir(":/i18n").entryList())
    {
        auto* t = new QTranslator(&panel);
        if (t->load(":/i18n/" + name))
        {
            QCoreApplication::installTranslator(t);
            translators.append(t);
        }
    }
    QVERIFY2(!translators.isEmpty(), "no embedded translations");
    QApplication::processEvents();
    QCOMPARE(panel.findChild<QToolButton*>("btnSettings")->text(), QCoreApplication::translate("CPropertyForm", "Settings"));
    QVERIFY(panel.findChild<QToolButton*>("btnSettings")->text() != QString("Settings"));
    QVERIFY(panel.grab().save(dir + "/panel_zh.png"));
    panel.findChild<QToolButton*>("btnSettings")->click();
    QTest::qWait(300);
    QVERIFY(panel.grab().save(dir + "/panel_settings_zh.png"));
    for (QTranslator* t : translators)
        QCoreApplication::removeTranslator(t);
}

QTEST_MAIN(TestPropertyPanel)
#include "test_property_panel.moc"
