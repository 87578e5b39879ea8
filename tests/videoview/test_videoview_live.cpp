// End to end: four simulated cameras connect through the device manager and
// stream into a video manager; every view shows moving pictures, then the
// views are freed when the cameras close.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include <QtTest>
#include <QToolButton>
#include <memory>

#include "SingletonTestSupport.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CMultiVideoForm.h"
#include "CTavDevice.h"
#include "CVideoControlBar.h"
#include "CVideoForm.h"
#include "CVideoManagerForm.h"
#include "CVideoStatusBar.h"
#include "DeviceTestSupport.h"

class TestVideoviewLive : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void fourCamerasStreamIntoTheirViews();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    static const int kCameras = 4;
    FakeCameraRig m_rig;
    std::unique_ptr<CVideoManagerForm> m_manager;
    CTavDevicePtr m_devices[kCameras];
};

static QString serialOf(int i)
{
    return QString("LUMVV0%1").arg(i + 1);
}

void TestVideoviewLive::initTestCase()
{
    m_owner = makeSingletons();
    enableLogWhenAsked();
    registerMessageMetaTypes();
    for (int i = 0; i < kCameras; ++i) {
        const std::string address = "127.0.0." + std::to_string(i + 2);
        if (!FakeCameraRig::hasAddress(address))
            QFAIL(qPrintable(QString("loopback address %1 is missing: run scripts/loopback.sh 5 (as root, inside "
                                     "unshare -n)")
                                 .arg(QString::fromStdString(address))));
        QVERIFY2(m_rig.start(address, serialOf(i).toStdString(), std::string(), 320, 240, "BayerRG8") >= 0,
                 qPrintable("simulated camera did not start on " + QString::fromStdString(address)));
    }
    m_manager.reset(new CVideoManagerForm);
    m_manager->resize(900, 700);
    m_manager->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_manager.get()));
    QStringList serials;
    for (int i = 0; i < kCameras; ++i)
        serials << serialOf(i);
    QVERIFY2(waitForSerials(serials), "the simulated cameras were not discovered");
    for (int i = 0; i < kCameras; ++i)
        m_devices[i] = findDeviceBySerial(serialOf(i));
}

void TestVideoviewLive::cleanupTestCase()
{
    for (CTavDevicePtr& d : m_devices)
        if (d && d->isConnected())
            d->closeDevice(true);
    m_manager.reset();
    for (CTavDevicePtr& d : m_devices)
        d.reset();
    m_owner.reset();
}

void TestVideoviewLive::fourCamerasStreamIntoTheirViews()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    for (int i = 0; i < kCameras; ++i)
        QVERIFY(m_devices[i]->openDevice(false));
    // Bound on "connecting", grown to four views, streaming once connected.
    QTRY_VERIFY_WITH_TIMEOUT(multi->getFormIdByDevice(m_devices[kCameras - 1]) >= 0, 10000);
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_4);
    for (int i = 0; i < kCameras; ++i) {
        CVideoForm* view = multi->getForm(multi->getFormIdByDevice(m_devices[i]));
        QVERIFY(view);
        QTRY_VERIFY_WITH_TIMEOUT(view->displayWnd()->paintedFrameCount() >= 2, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(view->controlBar()->isStreaming(), 5000);
        QVERIFY(!view->isWaiting());
    }
    // Every view shows moving pictures.
    for (int i = 0; i < kCameras; ++i) {
        CVideoForm* view = multi->getForm(multi->getFormIdByDevice(m_devices[i]));
        Gliv::CQtDisplayWndEx* wnd = view->displayWnd();
        const QImage first = wnd->grab().toImage();
        const quint64 painted = wnd->paintedFrameCount();
        QTRY_VERIFY_WITH_TIMEOUT(wnd->paintedFrameCount() >= painted + 2, 10000);
        const QImage second = wnd->grab().toImage();
        QVERIFY2(first != second, qPrintable(QString("view %1 shows a still picture").arg(view->getFormID())));
        QCOMPARE(wnd->imageSize(), QSize(320, 240));
        QTRY_VERIFY_WITH_TIMEOUT(view->statusBar()->statisticsText().contains("Frames"), 5000);
    }
    // Stop and start again from the view's play button.
    CVideoForm* first = multi->getForm(multi->getFormIdByDevice(m_devices[0]));
    first->controlBar()->playButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(!first->controlBar()->isStreaming(), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(first->controlBar()->playButton()->isEnabled(), 10000);
    first->controlBar()->playButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(first->controlBar()->isStreaming(), 10000);
    const quint64 painted = first->displayWnd()->paintedFrameCount();
    QTRY_VERIFY_WITH_TIMEOUT(first->displayWnd()->paintedFrameCount() > painted, 10000);

    // Closing frees every view; the layout stays.
    for (int i = 0; i < kCameras; ++i)
        QVERIFY(m_devices[i]->closeDevice(false));
    for (int i = 0; i < kCameras; ++i)
        QTRY_VERIFY_WITH_TIMEOUT(multi->getFormIdByDevice(m_devices[i]) < 0, 15000);
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_4);
}

QTEST_MAIN(TestVideoviewLive)
#include "test_videoview_live.moc"
