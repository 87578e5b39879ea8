// The property panel around the feature tree, against two simulated
// cameras: pages following the bus, the user-set dialog, the quick-settings
// and image-format pages and their worker, the texts after a language switch.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "PanelCameras.h"
#include "LumidorResources.h"
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QToolButton>
#include <QtTest>
#include <memory>

#include "CAravisCamera.h"
#include "CDoubleSpinBox.h"
#include "CSingletonOwner.h"
#include "CFeatureControlWorker.h"
#include "CPropertyFeaturesForm.h"
#include "CPropertyForm.h"
#include "CPropertyGPIOForm.h"
#include "CPropertyImageFormatForm.h"
#include "CViewSignalHub.h"
#include "CPropertySettingsForm.h"
#include "CSaveFeaturesDlg.h"
#include "CSpinBox.h"
#include "QueuedSignalSpy.h"

class TestPropertyPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { m_shown.clear(); }
    void panelPagesFollowTheBus();
    void userSets();
    void quickSettingsFollowTheCamera();
    void imageFormatRefusedWhileGrabbing();
    void workerRetiresWithoutWaiting();
    void panelFollowsTheLanguage();

private:
    PanelCameras m_cams;
    QStringList m_shown;
};

void TestPropertyPanel::initTestCase()
{
    initLumidorResources();
    const QString missing = m_cams.start();
    if (!missing.isEmpty())
        QFAIL(qPrintable(missing));
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
    const CTavDevicePtr dev = m_cams.dev[1];
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

    // A camera closed while it connects (the window closing) gets no pages:
    // none are added, so none are removed; the next connection gets them.
    QSignalSpy removed(panel.stack(), &QStackedWidget::widgetRemoved);
    QVERIFY(dev->openDevice(false) && dev->closeDevice(false));
    QTRY_VERIFY_WITH_TIMEOUT(!dev->isActive(), 20000);
    QVERIFY(dev->openDevice(true));
    QTRY_COMPARE_WITH_TIMEOUT(panel.deviceCount(), 1, 5000);
    QCOMPARE(removed.count(), 0);
}

void TestPropertyPanel::userSets()
{
    const CTavDevicePtr dev = m_cams.dev[0];
    QVERIFY(writeFeature(dev, "UserSetSelector", "UserSet1") && writeFeature(dev, "UserSetDefault", "Default"));
    CSaveFeaturesDlg dlg(dev);
    dlg.setMessageHandler([this](const QString& t) { m_shown.append(t); });
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
    QVERIFY(dlg.selectorCombo()->isEnabled() && dlg.loadButton()->isEnabled());
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
    QCOMPARE(featureValue(dev, "UserSetSelector"), QString("Default"));
    QTRY_VERIFY_WITH_TIMEOUT(!dlg.saveButton()->isEnabled(), 5000);
    QVERIFY(dlg.loadButton()->isEnabled());

    // Default set and the commands run on the worker without a message.
    dlg.defaultCombo()->setCurrentIndex(2);
    dlg.on_cbUserSetDefault_currentIndexChanged(2);
    QCOMPARE(finished("UserSetDefault"), 1);
    QCOMPARE(featureValue(dev, "UserSetDefault"), QString("UserSet2"));
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
    QCOMPARE(m_shown[0], QString("set UserSetSelector property value NoSuchSet fail, please check value."));
    QTRY_COMPARE_WITH_TIMEOUT(dlg.selectorCombo()->currentData().toString(), QString("Default"), 5000);
    QVERIFY(writeFeature(dev, "UserSetDefault", "Default"));
}

void TestPropertyPanel::quickSettingsFollowTheCamera()
{
    const CTavDevicePtr dev = m_cams.dev[0];
    CPropertySettingsForm page(dev);
    page.setMessageHandler([this](const QString& t) { m_shown.append(t); });
    page.resize(400, 700);
    page.show();
    QTRY_VERIFY_WITH_TIMEOUT(page.state("ReverseY").valid && page.state("ExposureTime").valid, 5000);
    // Features the camera lacks are hidden; the others shown.
    QTRY_VERIFY_WITH_TIMEOUT(page.rowWidget("BalanceWhiteAuto")->isHidden(), 2000);
    QVERIFY(page.rowWidget("AcquisitionFrameRateEnable")->isHidden());
    QVERIFY(!page.rowWidget("ExposureTime")->isHidden() && !page.rowWidget("TriggerSoftware")->isHidden());
    QCOMPARE(page.comboBox("PixelFormat")->currentData().toString(), featureValue(dev, "PixelFormat"));

    // A write from the page reaches the camera; a refused one is shown and
    // the control returns to the camera's value.
    QSignalSpy written(&page, &CFeatureControlPage::writeFinished);
    page.writeValue("ReverseX", true);
    QVERIFY(written.wait(5000));
    QCOMPARE(featureValue(dev, "ReverseX"), QString("1"));
    QVERIFY(writeFeature(dev, "ReverseX", "0"));
    const QString gainBefore = featureValue(dev, "Gain");
    written.clear();
    page.writeValue("Gain", 1.0e6);
    QVERIFY(written.wait(5000));
    QCOMPARE(written.last().at(1).toBool(), false);
    QCOMPARE(m_shown.size(), 1);
    QVERIFY(!m_shown[0].isEmpty());
    QCOMPARE(featureValue(dev, "Gain"), gainBefore);
    QCOMPARE(page.floatSpinBox("Gain")->value(), gainBefore.toDouble());

    // Range and availability follow the camera: a narrower Width gives
    // OffsetX room, read again on refresh (what the bus's update triggers).
    CPropertyImageFormatForm format(dev);
    QTRY_VERIFY_WITH_TIMEOUT(format.state("OffsetX").valid, 5000);
    QVERIFY(writeFeature(dev, "OffsetX", "0") && writeFeature(dev, "Width", "320"));
    format.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(format.intSpinBox("Width")->value(), 320, 5000);
    const int offsetMax = format.intSpinBox("OffsetX")->maximum();
    QVERIFY(writeFeature(dev, "Width", "160"));
    format.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(format.intSpinBox("OffsetX")->maximum(), offsetMax + 160, 5000);
    QCOMPARE(format.intSpinBox("Width")->singleStep(), int(format.state("Width").intInc));
    // A value off the increment grid is moved onto it before writing.
    QSignalSpy fwritten(&format, &CFeatureControlPage::writeFinished);
    format.writeValue("Width", qint64(201));
    QVERIFY(fwritten.wait(5000));
    QCOMPARE(featureValue(dev, "Width").toLongLong() % format.state("Width").intInc, 0);
    QVERIFY(writeFeature(dev, "Width", "320"));

    // Availability: the gated test feature's row is disabled while its gate is closed.
    QVERIFY(writeFeature(dev, "TriggerMode", "On"));
    page.refresh();
    QTRY_VERIFY_WITH_TIMEOUT(page.rowWidget("TriggerSource")->isEnabled(), 5000);
    QVERIFY(writeFeature(dev, "TriggerMode", "Off"));
}

void TestPropertyPanel::imageFormatRefusedWhileGrabbing()
{
    const CTavDevicePtr dev = m_cams.dev[0];
    CViewSignalHub hub;
    CPropertyImageFormatForm page(dev, nullptr, &hub);
    page.setMessageHandler([this](const QString& t) { m_shown.append(t); });
    QTRY_VERIFY_WITH_TIMEOUT(page.state("Width").valid, 5000);
    const QString before = featureValue(dev, "Width");
    QSignalSpy bus(&page, &CFeatureControlPage::update_receive);
    const auto busSaid = [&](int type) {
        for (const QList<QVariant>& args : bus)
            if (args.at(0).value<CTavMessagePtr>()->type == type)
                return true;
        return false;
    };
    QVERIFY(dev->openStream());
    QTRY_VERIFY_WITH_TIMEOUT(dev->isGrabing(), 5000);
    page.writeValue("Width", qint64(64));
    page.onROIChanged(0, 0, 64, 64);   // not drawing: ignored
    page.drawButton()->click();        // drawing refused while grabbing
    QVERIFY(!page.isDrawingROI());
    QCOMPARE(m_shown.size(), 2);
    QCOMPARE(m_shown[0], QString("Stop acquisition before changing the image format."));
    QCOMPARE(page.worker()->pendingCount(), 0);
    QVERIFY(dev->closeStream());
    QCOMPARE(featureValue(dev, "Width"), before);

    // Not grabbing: a drawn region is applied on the grid, offsets added,
    // once the page has handled what the bus told it of the stream.
    QTRY_VERIFY_WITH_TIMEOUT(!dev->isGrabing() && busSaid(MSG_STREAM_CLOSED), 5000);
    QCoreApplication::sendPostedEvents(&page);
    m_shown.clear();
    QSignalSpy initRoi(&hub, &CViewSignalHub::signalInitROI);
    page.drawButton()->click();
    QVERIFY(page.isDrawingROI());
    QCOMPARE(initRoi.count(), 1);
    emit hub.ROIChanged(dev->getDeviceKey(), 11, 7, 101, 51);
    // Offsets and sizes move down onto their grids (increment 2).
    QTRY_COMPARE_WITH_TIMEOUT(featureValue(dev, "OffsetY"), QString("6"), 5000);
    QCOMPARE(featureValue(dev, "OffsetX"), QString("10"));
    QCOMPARE(featureValue(dev, "Width"), QString("100"));
    QCOMPARE(featureValue(dev, "Height"), QString("50"));
    QVERIFY(m_shown.isEmpty());
    // Full frame: offsets 0 and the whole sensor.
    page.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(page.state("OffsetY").intValue, qint64(6), 5000);
    page.fullFrameButton()->click();
    QTRY_COMPARE_WITH_TIMEOUT(featureValue(dev, "Width"), featureValue(dev, "WidthMax"), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(featureValue(dev, "OffsetX"), QString("0"), 5000);
    QVERIFY(writeFeature(dev, "Width", "320") && writeFeature(dev, "Height", "240"));
}

void TestPropertyPanel::workerRetiresWithoutWaiting()
{
    // A worker in the middle of a camera round trip: the camera's lock is
    // held here, so its read cannot finish.
    Vorlen::GenICam::CAravisCamera* camera = Vorlen::GenICam::toAravisCamera(m_cams.dev[0]->getDevice());
    QVERIFY(camera);
    QObject owner;
    auto* worker = new CFeatureControlWorker(m_cams.dev[0]->getDevice(), &owner);
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
        QVERIFY(alive && !worker->parent());
        QCOMPARE(worker->pendingCount(), 0);
    }
    // The read under way ends, nothing after it runs, the worker goes.
    QTRY_VERIFY(alive.isNull());
    QVERIFY(read.count() <= 1);

    // A worker that never ran, and one whose loop has ended, go at once.
    QPointer<CFeatureControlWorker> idle(new CFeatureControlWorker(m_cams.dev[0]->getDevice(), &owner));
    idle->retire();
    QTRY_VERIFY(idle.isNull());
    QPointer<CFeatureControlWorker> ended(new CFeatureControlWorker(m_cams.dev[0]->getDevice(), &owner));
    ended->start();
    ended->stop();
    QVERIFY(ended->wait(10000));
    ended->retire();
    QTRY_VERIFY(ended.isNull());
}

void TestPropertyPanel::panelFollowsTheLanguage()
{
    // Installing the program's translations re-labels an open panel at once.
    CPropertyForm panel;
    panel.show();
    QToolButton* settings = panel.findChild<QToolButton*>("btnSettings");
    QCOMPARE(settings->text(), QString("Settings"));
    QList<QTranslator*> translators;
    for (const QString& name : QDir(":/i18n").entryList())
    {
        translators << new QTranslator(&panel);
        QVERIFY2(translators.last()->load(":/i18n/" + name), qPrintable(name));
        QCoreApplication::installTranslator(translators.last());
    }
    QVERIFY2(!translators.isEmpty(), "no embedded translations");
    QApplication::processEvents();
    const QString translated = settings->text(), expected = QCoreApplication::translate("CPropertyForm", "Settings");
    for (QTranslator* t : translators)
        QCoreApplication::removeTranslator(t);
    QVERIFY2(translated != "Settings" && translated == expected, qPrintable(translated));
}

QTEST_MAIN(TestPropertyPanel)
#include "test_property_panel.moc"
