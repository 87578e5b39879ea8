// The video manager and its grid on devices without a camera: binding from
// bus messages, growth of the layout, maximise and restore, swapping,
// display options kept in the configuration, ROIs round trip, the ROI
// editor and the single view's status bar.
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>
#include <cstring>
#include <QAction>
#include <QButtonGroup>
#include <QToolButton>
#include <QGridLayout>
#include <QDir>
#include <vector>

#include "CConfiguration.h"
#include "CMultiVideoForm.h"
#include "CRoiEditor.h"
#include "SingletonTestSupport.h"
#include "CTavDevice.h"
#include "CVideoControlBar.h"
#include "CVideoForm.h"
#include "CVideoManagerForm.h"
#include "CVideoStatusBar.h"
#include "CVideoTitleBar.h"
#include "Gliv/PixelFormats.h"
#include "TestFiles.h"
#include "VideoLayout.h"

namespace {

CTavMessagePtr message(EN_MESSAGE_TYPE type, const CTavDevicePtr& device)
{
    CTavMessagePtr msg(new CTavMessage);
    msg->type = type;
    msg->device = device;
    return msg;
}

CConfiguration* cfg()
{
    return CConfiguration::getInstance();
}

QString userFileText()
{
    return QString::fromUtf8(readAll(cfg()->userConfigPath()));
}

stuROI roi(qint64 l, qint64 t, qint64 w, qint64 h)
{
    stuROI r;
    r.Left = l;
    r.Top = t;
    r.Width = w;
    r.Height = h;
    return r;
}

} // namespace

class TestVideoviewForms : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void layoutGrowsOnBindAndNeverShrinks();
    void failedConnectionFreesViewOthersChangeNothing();
    void maximiseRestoresExactLayout();
    void swapByDragKeepsPositions();
    void displayOptionsStoredInConfiguration();
    void saveFailureIsTold();
    void fullScreenAndBackWithEscape();
    void roiConfigRoundTripIgnoresBadEntries();
    void roiEditorDrawsMovesResizesDeletes();
    void viewShowsPixelUnderCursorAndFollowsStream();

private:
    // First in, last out: the views and devices go before it.
    std::unique_ptr<CSingletonOwner> m_owner = makeSingletons();
    std::unique_ptr<CVideoManagerForm> m_manager;
    QStringList m_messages;
    std::vector<CTavDevicePtr> m_devices;
};

void TestVideoviewForms::initTestCase()
{
    registerMessageMetaTypes();
    for (int i = 0; i < 17; ++i)
        m_devices.push_back(CTavDevice::create());
}

void TestVideoviewForms::init()
{
    m_manager.reset();
    cfg()->init();
    for (int i = 0; i < CConfiguration::kVideoFormCount; ++i)
        cfg()->mapVideoFormROI[i].clear();
    QFile::remove(cfg()->userConfigPath());
    m_manager.reset(new CVideoManagerForm(nullptr, false));
    m_manager->resize(800, 600);
    m_messages.clear();
    m_manager->setMessageHandler([this](const QString& text) { m_messages.append(text); });
}

void TestVideoviewForms::layoutGrowsOnBindAndNeverShrinks()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    QSignalSpy selected(m_manager.get(), &CVideoManagerForm::select_device);
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_1);
    const int expected[17] = { 1, 2, 4, 4, 9, 9, 9, 9, 9, 16, 16, 16, 16, 16, 16, 16, 16 };
    for (int i = 0; i < 17; ++i) {
        m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTING, m_devices[i]));
        QCOMPARE(int(multi->getCurrentLayout()), expected[i]);
        QCOMPARE(multi->getGridLayout()->count(), expected[i]);
        if (i < 16) {
            QCOMPARE(multi->getFormIdByDevice(m_devices[i]), i);
            QVERIFY(multi->getForm(i)->isWaiting());
            QCOMPARE(multi->getHighlightedForm(), i);
        }
    }
    // The seventeenth camera has no view; the other views are untouched.
    QCOMPARE(multi->getFormIdByDevice(m_devices[16]), -1);
    QCOMPARE(multi->getFreeVideoFormID(), -1);
    QCOMPARE(selected.count(), 16);
    QCOMPARE(m_manager->layoutButtons()->checkedId(), 16);
    QCOMPARE(nextVideoLayout(VIDEO_LAYOUT_16), VIDEO_LAYOUT_NONE);

    // Connected: the animation stops. Disconnected: the view is freed, the
    // layout stays.
    m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTED, m_devices[3]));
    QVERIFY(!multi->getForm(3)->isWaiting());
    m_manager->OnUpdateReceive(message(MSG_DEVICE_DISCONNECTING, m_devices[3]));
    QVERIFY(multi->getForm(3)->isWaiting());
    for (int i = 0; i < 16; ++i)
        m_manager->OnUpdateReceive(message(i % 2 ? MSG_DEVICE_DISCONNECTED : MSG_DEVICE_OFFLINE, m_devices[i]));
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_16);
    for (int i = 0; i < 16; ++i) {
        QVERIFY(multi->getForm(i)->isFree() && !multi->getForm(i)->isWaiting());
    }
    // A free view is reused first, without growing.
    m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTING, m_devices[16]));
    QCOMPARE(multi->getFormIdByDevice(m_devices[16]), 0);
    // Binding the same device again does not take a second view.
    QCOMPARE(multi->bindDevice(m_devices[16]), 0);
    QCOMPARE(multi->getFreeVideoFormID(), 1);
}

void TestVideoviewForms::failedConnectionFreesViewOthersChangeNothing()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTING, m_devices[0]));
    m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTING, m_devices[1]));
    // Type 0 carries no device; the others have nothing to do with views.
    m_manager->OnUpdateReceive(message(MSG_DISCOVERY_FINISHED, CTavDevicePtr()));
    m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECT_FAILED, CTavDevicePtr()));
    for (EN_MESSAGE_TYPE t : { MSG_STREAM_OPENED, MSG_STREAM_CLOSED, MSG_ACCESS_STATUS_CHANGED, MSG_PARAM_UPDATE,
                               MSG_MSG_CHANNEL, MSG_STREAM_EVENT })
        m_manager->OnUpdateReceive(message(t, m_devices[5]));
    m_manager->OnUpdateReceive(CTavMessagePtr());
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_2);
    QCOMPARE(multi->getFormIdByDevice(m_devices[0]), 0);
    QCOMPARE(multi->getFormIdByDevice(m_devices[1]), 1);
    QCOMPARE(multi->getFormIdByDevice(m_devices[5]), -1);
    QVERIFY(multi->getForm(0)->isWaiting());

    // Through the observer interface the message is handled queued. A
    // failed connection frees the view and keeps the layout.
    m_manager->Update(message(MSG_DEVICE_CONNECT_FAILED, m_devices[1]));
    QVERIFY(!multi->getForm(1)->isFree());
    QTRY_VERIFY(multi->getForm(1)->isFree() && !multi->getForm(1)->isWaiting());
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_2);
    QCOMPARE(multi->getFormIdByDevice(m_devices[1]), -1);
    QCOMPARE(multi->getFreeVideoFormID(), 1);
    QVERIFY(multi->getForm(0)->isDeviceBind(m_devices[0]) && !multi->getForm(0)->isDeviceBind(CTavDevicePtr()));
}

void TestVideoviewForms::maximiseRestoresExactLayout()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    m_manager->show();
    for (int i = 0; i < 5; ++i)
        m_manager->OnUpdateReceive(message(MSG_DEVICE_CONNECTING, m_devices[i]));
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_9);
    multi->OnSwapForm(1, 7);
    QList<QPoint> before;
    for (int i = 0; i < 9; ++i)
        before.append(multi->gridPosition(i));

    multi->OnMaxMizeForm(4);
    QVERIFY(multi->isMaxMode() && multi->getForm(4)->isMaxMode());
    QCOMPARE(multi->getGridLayout()->count(), 1);
    QCOMPARE(multi->gridPosition(4), QPoint(0, 0));
    QVERIFY(multi->getForm(4)->isVisible() && !multi->getForm(0)->isVisible());
    QCOMPARE(multi->getHighlightedForm(), 4);

    multi->OnMaxMizeForm(4);
    QVERIFY(!multi->isMaxMode() && !multi->getForm(4)->isMaxMode());
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_9);
    QCOMPARE(multi->getGridLayout()->count(), 9);
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(multi->gridPosition(i), before[i]);
        QVERIFY(multi->getForm(i)->isVisible());
    }
    QVERIFY(multi->isVisible());

    // The manager's button maximises the highlighted view; a layout button
    // also ends the maximised state.
    m_manager->MaximizeRestoreVideo();
    QVERIFY(multi->isMaxMode());
    m_manager->layoutButtons()->button(16)->click();
    QVERIFY(!multi->isMaxMode());
    QCOMPARE(multi->getCurrentLayout(), VIDEO_LAYOUT_16);
    QCOMPARE(multi->getGridLayout()->count(), 16);
}

void TestVideoviewForms::swapByDragKeepsPositions()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    multi->setGridLayout(VIDEO_LAYOUT_4);
    QSignalSpy moved(multi, &CMultiVideoForm::signalWndMoved);
    const QPoint p0 = multi->gridPosition(0), p3 = multi->gridPosition(3);
    QCOMPARE(p0, QPoint(0, 0));
    QCOMPARE(p3, QPoint(1, 1));

    // Dropping view 0's title bar onto view 3.
    QMimeData mime;
    mime.setData(CVideoTitleBar::kDragMimeType, QByteArray::number(0));
    QDropEvent drop(QPointF(10, 10), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    // Delivered to the view itself, as the drag manager does at a drop.
    static_cast<QObject*>(multi->getForm(3))->event(&drop);
    QCOMPARE(multi->gridPosition(0), p3);
    QCOMPARE(multi->gridPosition(3), p0);
    QCOMPARE(multi->getHighlightedForm(), 0);
    QCOMPARE(moved.count(), 1);

    // Onto itself, or a view off the grid: nothing.
    QDropEvent self(QPointF(10, 10), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject*>(multi->getForm(0))->event(&self);
    multi->OnSwapForm(2, 2);
    multi->OnSwapForm(2, 12);
    multi->OnSwapForm(2, 40);
    QCOMPARE(multi->gridPosition(0), p3);
    QCOMPARE(multi->gridPosition(2), QPoint(1, 0));
    QCOMPARE(multi->gridPosition(12), QPoint(-1, -1));
    QCOMPARE(moved.count(), 1);

    // A larger layout keeps the swapped places.
    multi->setGridLayout(VIDEO_LAYOUT_9);
    QCOMPARE(multi->gridPosition(0), QPoint(1, 0));
    QCOMPARE(multi->gridPosition(3), QPoint(0, 0));
}

void TestVideoviewForms::displayOptionsStoredInConfiguration()
{
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    CVideoForm* view = multi->getForm(0);
    m_manager->setColorPicker([](const QColor&) { return QColor(10, 20, 30); });
    QSignalSpy announced(cfg(), &CConfiguration::signalDisplayConfigChanged);

    m_manager->actionDemosaic(2)->trigger();
    QCOMPARE(cfg()->BayerDemosaicing, 2);
    QCOMPARE(view->displayWnd()->pipeline()->demosaic(), Gliv::bayerVariableNumberOfGradients);
    QVERIFY(userFileText().contains("<BayerDemosaicing>2</BayerDemosaicing>"));

    m_manager->actionDisplayRate("Disabled")->trigger();
    QCOMPARE(cfg()->strDisplayValue, QString("Disabled"));
    QVERIFY(userFileText().contains("<strDisplayValue>Disabled</strDisplayValue>"));
    m_manager->actionDisplayRate("60 FPS")->trigger();
    QCOMPARE(cfg()->strDisplayValue, QString("60 FPS"));
    QCOMPARE(cfg()->displayValue, 60);

    m_manager->actionChunkData()->trigger();
    QVERIFY(cfg()->displayChunkDataEnable && view->isShowChunkData());
    QVERIFY(userFileText().contains("<displayChunkDataEnable>1</displayChunkDataEnable>"));
    // The stream threads are told about the options they copy.
    QCOMPARE(announced.count(), 4);

    m_manager->actionCrosshair()->trigger();
    QVERIFY(cfg()->isShowCrosshair && multi->getForm(15)->isShowCrosshair());
    m_manager->actionCrosshairColor()->trigger();
    QCOMPARE(QColor(cfg()->RedCrosshair, cfg()->GreenCrosshair, cfg()->BlueCrosshair), QColor(10, 20, 30));
    QCOMPARE(view->crosshairColor(), QColor(10, 20, 30));
    QVERIFY(userFileText().contains("<GreenCrosshair>20</GreenCrosshair>"));

    m_manager->actionDrawROI()->trigger();
    QVERIFY(cfg()->drawRoiEnable && view->isDrawROIEnable() && !view->displayWnd()->isDragEnabled());
    m_manager->actionROIColor()->trigger();
    QCOMPARE(QColor(cfg()->roiRed, cfg()->roiGreen, cfg()->roiBlue), QColor(10, 20, 30));
    m_manager->actionDisplayROI()->trigger();
    QVERIFY(cfg()->displayRoiEnable && view->isDisplayROIEnable());
    QVERIFY(userFileText().contains("<Enable>1</Enable>"));
    QVERIFY(userFileText().contains("<DisplayROIEnable>1</DisplayROIEnable>"));

    // Cancelled colour dialog: nothing changes.
    m_manager->setColorPicker([](const QColor&) { return QColor(); });
    m_manager->actionCrosshairColor()->trigger();
    QCOMPARE(cfg()->GreenCrosshair, 20);

    // Turning them off again.
    m_manager->actionCrosshair()->trigger();
    m_manager->actionDrawROI()->trigger();
    QVERIFY(!cfg()->isShowCrosshair && !view->isDrawROIEnable() && view->displayWnd()->isDragEnabled());
    QVERIFY(m_messages.isEmpty());

    // A restored configuration reaches menu and views.
    cfg()->isShowCrosshair = true;
    cfg()->BayerDemosaicing = 1;
    cfg()->notifyRestoreCfg();
    QVERIFY(m_manager->actionCrosshair()->isChecked() && m_manager->actionDemosaic(1)->isChecked());
    QVERIFY(view->isShowCrosshair());
}

void TestVideoviewForms::saveFailureIsTold()
{
    // A directory where the file should be: every save fails.
    const QString path = cfg()->userConfigPath();
    QFile::remove(path);
    QVERIFY(QDir().mkpath(path));
    m_manager->actionCrosshair()->trigger();
    QDir(path).removeRecursively();
    // The file and the system's reason follow on a line of their own.
    QCOMPARE(m_messages, QStringList{ QString("Save Config failed.\n%1: %2").arg(path, strerror(EISDIR)) });
    QVERIFY(cfg()->isShowCrosshair);   // the option still applies
}

void TestVideoviewForms::fullScreenAndBackWithEscape()
{
    m_manager->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_manager.get()));
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    QSignalSpy fullScreen(m_manager.get(), &CVideoManagerForm::full_screen);
    m_manager->findChild<QToolButton*>("btnFullScreen")->click();
    QVERIFY(m_manager->isFullScreenMode());
    QWidget* window = multi->window();
    QVERIFY(window != m_manager.get() && window->isVisible());
    QCOMPARE(fullScreen.count(), 1);
    QCOMPARE(fullScreen.at(0).at(0).toBool(), true);
    // Esc reaching the view inside goes up to the full-screen window.
    QTest::keyClick(multi->getForm(0), Qt::Key_Escape);
    QVERIFY(!m_manager->isFullScreenMode());
    QCOMPARE(multi->window(), m_manager.get());
    QVERIFY(!window->isVisible() && multi->isVisible());
    QCOMPARE(fullScreen.count(), 2);
    QCOMPARE(fullScreen.at(1).at(0).toBool(), false);
}

void TestVideoviewForms::roiConfigRoundTripIgnoresBadEntries()
{
    // A file with ROIs for views 2 and 5, one with a negative size, and
    // entries for view indexes that do not exist.
    const QString path = QDir::temp().filePath("videoview_roi.tavcfg");
    const QByteArray xml = "<?xml version=\"1.0\"?>\n<puregevpersistencefile version=\"1.0\"><Lumidor>"
                           "<DrawROI><Enable>0</Enable><DisplayROIEnable>1</DisplayROIEnable>"
                           "<RedROI>0</RedROI><BlueROI>255</BlueROI><GreenROI>0</GreenROI>"
                           "<VideoForm index=\"2\"><ROI><Left>10</Left><Top>20</Top><Width>30</Width><Height>40</Height>"
                           "<RedROI>1</RedROI><BlueROI>2</BlueROI><GreenROI>3</GreenROI></ROI>"
                           "<ROI><Left>5</Left><Top>5</Top><Width>-30</Width><Height>40</Height></ROI></VideoForm>"
                           "<VideoForm index=\"5\"><ROI><Left>0</Left><Top>0</Top><Width>8</Width><Height>0</Height></ROI></VideoForm>"
                           "<VideoForm index=\"16\"><ROI><Left>1</Left><Top>1</Top><Width>8</Width><Height>8</Height></ROI></VideoForm>"
                           "<VideoForm index=\"99\"><ROI><Left>1</Left><Top>1</Top><Width>8</Width><Height>8</Height></ROI></VideoForm>"
                           "<VideoForm index=\"-1\"><ROI><Left>1</Left><Top>1</Top><Width>8</Width><Height>8</Height></ROI></VideoForm>"
                           "</DrawROI></Lumidor></puregevpersistencefile>\n";
    QVERIFY(writeAll(path, xml) && cfg()->restoreConfig(path, true));
    cfg()->notifyRestoreCfg();
    CMultiVideoForm* multi = m_manager->multiVideoForm();
    QCOMPARE(multi->getForm(2)->getROI().size(), 1);
    const stuROI r = multi->getForm(2)->getROI().first();
    QCOMPARE(r.Left, 10);
    QCOMPARE(r.Height, 40);
    QCOMPARE(r.GreenROI, 3);
    for (int i = 0; i < 16; ++i)
        if (i != 2)
            QVERIFY2(multi->getForm(i)->getROI().isEmpty(), qPrintable(QString::number(i)));
    QVERIFY(multi->getForm(2)->isDisplayROIEnable());

    // Per device, through the view it is bound to.
    multi->setGridLayout(VIDEO_LAYOUT_4);
    multi->getForm(2)->setDevice(m_devices[0]);
    QList<stuROI> byDevice;
    m_manager->onSignalGetROI(byDevice, m_devices[0]);
    QCOMPARE(byDevice.size(), 1);
    m_manager->onSignalGetROI(byDevice, m_devices[1]);
    QVERIFY(byDevice.isEmpty());

    // Saved and read back: the same ROIs, sixteen view entries.
    multi->getForm(7)->setROI({ roi(1, 2, 3, 4), roi(0, 0, -1, 5) });
    QVERIFY(multi->saveROIConfig());
    QCOMPARE(userFileText().count("<VideoForm"), 16);
    for (int i = 0; i < 16; ++i)
        cfg()->mapVideoFormROI[i].clear();
    QVERIFY(cfg()->restoreConfig(cfg()->userConfigPath(), true));
    multi->restoreROIFromConfig();
    QCOMPARE(multi->getForm(2)->getROI().size(), 1);
    QCOMPARE(multi->getForm(7)->getROI().size(), 1);
    QCOMPARE(multi->getForm(7)->getROI().first().Width, 3);

    // Deleting the highlighted view's ROIs saves at once.
    multi->OnFormHighLighted(7);
    m_manager->onActionDeleteROI();
    QVERIFY(multi->getForm(7)->getROI().isEmpty() && cfg()->mapVideoFormROI[7].isEmpty());
    m_manager->onSignalSetROI({ roi(4, 4, 4, 4) });
    QCOMPARE(cfg()->mapVideoFormROI[7].size(), 1);
    QFile::remove(path);
}

void TestVideoviewForms::roiEditorDrawsMovesResizesDeletes()
{
    CRoiEditor editor;
    editor.setImageSize(QSize(100, 80));
    editor.setColor(QColor(0, 255, 0));
    // Draw: press on empty image, drag, release.
    editor.press(QPointF(10, 10), 2);
    editor.move(QPointF(30, 25));
    QCOMPARE(editor.pendingRect(), QRectF(10, 10, 20, 15));
    QVERIFY(editor.release(QPointF(40, 30)));
    QCOMPARE(editor.rois().size(), 1);
    QCOMPARE(CRoiEditor::toRect(editor.rois()[0]), QRectF(10, 10, 30, 20));
    QCOMPARE(editor.rois()[0].GreenROI, 255);
    QCOMPARE(editor.selected(), 0);
    // A click is not a rectangle.
    editor.press(QPointF(70, 70), 2);
    QVERIFY(!editor.release(QPointF(70.5, 70.5)));
    QCOMPARE(editor.rois().size(), 1);
    // Move from inside, kept on the image.
    editor.press(QPointF(20, 20), 2);
    QVERIFY(editor.release(QPointF(200, 20)));
    QCOMPARE(CRoiEditor::toRect(editor.rois()[0]), QRectF(70, 10, 30, 20));
    // Resize by the bottom-right corner, and past the left edge (normalised).
    editor.press(QPointF(100, 30), 2);
    QVERIFY(editor.release(QPointF(90, 50)));
    QCOMPARE(CRoiEditor::toRect(editor.rois()[0]), QRectF(70, 10, 20, 40));
    editor.press(QPointF(70, 20), 2);
    QVERIFY(editor.release(QPointF(95, 20)));
    QCOMPARE(CRoiEditor::toRect(editor.rois()[0]), QRectF(90, 10, 5, 40));
    // Delete the selected one.
    QVERIFY(editor.deleteSelected() && editor.rois().isEmpty() && !editor.deleteSelected());
    // Entries with sizes not above zero are dropped.
    editor.setRois({ roi(0, 0, 0, 5), roi(-3, 0, 5, 5), roi(1, 1, 5, 5) });
    QCOMPARE(editor.rois().size(), 1);
}

void TestVideoviewForms::viewShowsPixelUnderCursorAndFollowsStream()
{
    CVideoForm view(3, nullptr, false);
    CViewSignalHub hub;
    view.setViewSignals(&hub);
    QSignalSpy cursor(&hub, &CViewSignalHub::cursorPoint);
    QSignalSpy drawn(&hub, &CViewSignalHub::ROIChanged);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view) && view.isFree());
    QVERIFY(!view.controlBar()->playButton()->isEnabled());
    view.setDevice(m_devices[0]);
    QVERIFY(!view.isFree() && view.isDeviceBind(m_devices[0]));
    QCOMPARE(view.getFormID(), 3);
    QVERIFY(view.controlBar()->playButton()->isEnabled());
    // A device without a camera cannot start: nothing happens.
    view.startAcquisition();
    QVERIFY(view.controlBar()->playButton()->isEnabled());

    // A frame arrives as the stream thread would deliver it.
    std::vector<uint8_t> raw(64 * 32);
    for (size_t i = 0; i < raw.size(); ++i)
        raw[i] = uint8_t(i % 64 + 100);
    Gliv::SFrameInfo info;
    info.width = 64;
    info.height = 32;
    info.pixelFormat = Gliv::PixelFormat::Mono8;
    info.imageSize = raw.size();
    info.rawData = raw.data();
    CQtHybridFramePtr frame(new Gliv::CQtHybridFrame(info));
    emit m_devices[0]->newFrame(frame, true, false, false);
    emit m_devices[0]->newFrame(frame, false, true, false);   // not for display
    QTRY_COMPARE(view.displayWnd()->paintedFrameCount(), quint64(1));
    QCOMPARE(view.displayWnd()->pipeline()->offeredCount(), quint64(1));

    // The pixel under the cursor: image position, raw value and colour.
    Gliv::CQtDisplayWndEx* wnd = view.displayWnd();
    const QPoint at = wnd->toView(QPointF(10.5, 5.5)).toPoint();
    QTest::mouseMove(wnd, at);
    QTRY_VERIFY(view.statusBar()->cursorText().contains("X 10"));
    QVERIFY(view.statusBar()->cursorText().contains("Y 5"));
    QVERIFY2(view.statusBar()->cursorText().contains("Raw 110"), qPrintable(view.statusBar()->cursorText()));
    QVERIFY(view.statusBar()->cursorText().contains("RGB (110, 110, 110)"));
    // ... and the same pixel on the hub, under the device's key.
    QVERIFY(!cursor.isEmpty());
    QCOMPARE(cursor.last().at(0).toString(), m_devices[0]->getDeviceKey());
    QCOMPARE(cursor.last().at(1).toPoint(), QPoint(10, 5));

    // A click selects the view; the ROI tool draws in image pixels.
    QSignalSpy clicked(&view, &CVideoForm::signalClicked);
    view.setDrawROIEnable(true);
    QTest::mousePress(wnd, Qt::LeftButton, Qt::NoModifier, wnd->toView(QPointF(4, 4)).toPoint());
    QTest::mouseMove(wnd, wnd->toView(QPointF(20, 12)).toPoint());
    QSignalSpy roiChanged(&view, &CVideoForm::signalROIChanged);
    QTest::mouseRelease(wnd, Qt::LeftButton, Qt::NoModifier, wnd->toView(QPointF(20, 12)).toPoint());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(roiChanged.count(), 1);
    QCOMPARE(view.getROI().size(), 1);
    QVERIFY(std::abs(view.getROI()[0].Left - 4) <= 1 && std::abs(view.getROI()[0].Width - 16) <= 1);
    QCOMPARE(drawn.count(), 1);
    QCOMPARE(drawn.first().at(0).toString(), m_devices[0]->getDeviceKey());
    QCOMPARE(drawn.first().at(1).toInt(), int(view.getROI()[0].Left));
    QCOMPARE(drawn.first().at(3).toInt(), int(view.getROI()[0].Width));
    QTest::keyClick(&view, Qt::Key_Delete);
    QVERIFY(view.getROI().isEmpty());

    // Stream messages of its own device drive the play button.
    view.Update(message(MSG_STREAM_OPENED, m_devices[0]));
    QTRY_VERIFY(view.controlBar()->isStreaming());
    view.Update(message(MSG_STREAM_CLOSED, m_devices[1]));   // another device
    QCoreApplication::sendPostedEvents();
    QVERIFY(view.controlBar()->isStreaming());
    view.Update(message(MSG_STREAM_CLOSED, m_devices[0]));
    QTRY_VERIFY(!view.controlBar()->isStreaming());

    // Freed: frames of the old device no longer reach it.
    view.setDevice(CTavDevicePtr());
    emit m_devices[0]->newFrame(frame, true, false, false);
    QCOMPARE(view.displayWnd()->pipeline()->offeredCount(), quint64(1));
    QVERIFY(!view.displayWnd()->currentFrame());
}

QTEST_MAIN(TestVideoviewForms)
#include "test_videoview_forms.moc"
