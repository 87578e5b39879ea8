// The window an operator sees: four simulated cameras connected from the
// device list's path show moving pictures in their views, each gets its
// feature pages, a view stops and starts again from its play button, a click
// on a view makes its camera current in every panel, and closing the window
// closes the cameras before it quits.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include "FakeCameraRig.h"
#include <QToolButton>
#include <QtTest>
#include <memory>

#include "SingletonTestSupport.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesForm.h"
#include "CMainWindowPanels.h"
#include "CMultiVideoForm.h"
#include "CPropertyFeaturesForm.h"
#include "CPropertyForm.h"
#include <QStackedWidget>
#include "CSaveFeaturesDlg.h"
#include "CTavDevice.h"
#include "CVideoControlBar.h"
#include "CVideoForm.h"
#include "CVideoManagerForm.h"
#include "CVideoStatusBar.h"
#include "DeviceTestSupport.h"
#include "MainWindow.h"

class TestLumidorWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void fourCamerasInTheWholeWindow();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    static const int kCameras = 4;
    FakeCameraRig m_rig;
    MainWindow* m_window = nullptr;
    CMainWindowPanels* m_panels = nullptr;
    CTavDevicePtr m_devices[kCameras];
};

static QString serialOf(int i)
{
    return QString("LUMWIN%1").arg(i + 1);
}

void TestLumidorWindow::initTestCase()
{
    m_owner = makeSingletons();
    enableLogWhenAsked();
    registerMessageMetaTypes();
    for (int i = 0; i < kCameras; ++i) {
        const std::string address = "127.0.0." + std::to_string(i + 2);
        if (!FakeCameraRig::hasAddress(address))
            QFAIL(qPrintable(QString("loopback address %1 is missing: run scripts/loopback.sh 5 inside unshare -n")
                                 .arg(QString::fromStdString(address))));
        QVERIFY2(m_rig.start(address, serialOf(i).toStdString(), std::string(), 320, 240, "BayerRG8") >= 0,
                 qPrintable("simulated camera did not start on " + QString::fromStdString(address) + ": " +
                            QString::fromStdString(m_rig.lastError())));
    }
    m_window = new MainWindow(QString());
    m_panels = new CMainWindowPanels(m_window);
    m_window->resize(1400, 860);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    QStringList serials;
    for (int i = 0; i < kCameras; ++i)
        serials << serialOf(i);
    QVERIFY2(waitForSerials(serials), "the simulated cameras were not discovered");
    for (int i = 0; i < kCameras; ++i)
        m_devices[i] = findDeviceBySerial(serialOf(i));
}

void TestLumidorWindow::cleanupTestCase()
{
    delete m_window;   // closes nothing by itself: the close test did that
    for (CTavDevicePtr& d : m_devices)
        d.reset();
    m_owner.reset();
}

void TestLumidorWindow::fourCamerasInTheWholeWindow()
{
    // The panels sit in the window's three areas.
    QCOMPARE(m_window->deviceListArea(), static_cast<QWidget*>(m_panels->deviceList()));
    QCOMPARE(m_window->videoArea(), static_cast<QWidget*>(m_panels->videoManager()));
    QCOMPARE(m_window->propertyArea(), static_cast<QWidget*>(m_panels->propertyPanel()));
    QVERIFY(m_panels->videoManager()->isVisible());
    QVERIFY2(m_panels->videoManager()->width() > 200, "the video area has no room");

    CMultiVideoForm* multi = m_panels->videoManager()->multiVideoForm();
    CPropertyForm* property = m_panels->propertyPanel();
    for (int i = 0; i < kCameras; ++i)
        QVERIFY(m_devices[i]->openDevice(false));
    for (int i = 0; i < kCameras; ++i) {
        QTRY_VERIFY_WITH_TIMEOUT(multi->getFormIdByDevice(m_devices[i]) >= 0, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(property->featuresPage(m_devices[i]) != nullptr, 10000);
    }
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_4);
    QCOMPARE(property->deviceCount(), kCameras);

    // Every view streams on its own and shows moving pictures.
    for (int i = 0; i < kCameras; ++i) {
        CVideoForm* view = multi->getForm(multi->getFormIdByDevice(m_devices[i]));
        QVERIFY(view);
        Gliv::CQtDisplayWndEx* wnd = view->displayWnd();
        QTRY_VERIFY_WITH_TIMEOUT(view->controlBar()->isStreaming(), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(wnd->paintedFrameCount() >= 2, 20000);
        const QImage first = wnd->grab().toImage();
        const quint64 painted = wnd->paintedFrameCount();
        QTRY_VERIFY_WITH_TIMEOUT(wnd->paintedFrameCount() >= painted + 2, 10000);
        QVERIFY2(first != wnd->grab().toImage(), qPrintable(QString("view of camera %1 is still").arg(i)));
        QCOMPARE(wnd->imageSize(), QSize(320, 240));
        QTRY_VERIFY_WITH_TIMEOUT(view->statusBar()->statisticsText().contains("Frames"), 5000);
    }

    // Stop and start again from a view's play button.
    CVideoForm* first = multi->getForm(multi->getFormIdByDevice(m_devices[0]));
    first->controlBar()->playButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(!first->controlBar()->isStreaming(), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(first->controlBar()->playButton()->isEnabled(), 10000);
    first->controlBar()->playButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(first->controlBar()->isStreaming(), 10000);
    const quint64 painted = first->displayWnd()->paintedFrameCount();
    QTRY_VERIFY_WITH_TIMEOUT(first->displayWnd()->paintedFrameCount() > painted, 10000);

    // A click on a view makes its camera current in the property panel.
    CVideoForm* third = multi->getForm(multi->getFormIdByDevice(m_devices[2]));
    QTest::mouseClick(third->displayWnd(), Qt::LeftButton, Qt::NoModifier, third->displayWnd()->rect().center());
    QTRY_COMPARE(property->curDevice(), m_devices[2]);
    QCOMPARE(property->stack()->currentWidget(), static_cast<QWidget*>(property->featuresPage(m_devices[2])));

    // Closing the window closes every camera first, then the window goes.
    m_window->close();
    QVERIFY(m_window->isClosingDevices());
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isVisible(), 15000);
    for (int i = 0; i < kCameras; ++i) {
        QTRY_VERIFY_WITH_TIMEOUT(!m_devices[i]->isConnected(), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(multi->getFormIdByDevice(m_devices[i]) < 0, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(property->featuresPage(m_devices[i]) == nullptr, 10000);
    }
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_4);   // the views are freed, the layout stays
}

QTEST_MAIN(TestLumidorWindow)
#include "test_lumidor_window.moc"
