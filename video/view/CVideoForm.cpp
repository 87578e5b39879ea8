#include "CVideoForm.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QVBoxLayout>

#include "CBusyIndicator.h"
#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "CVideoControlBar.h"
#include "CVideoStatusBar.h"
#include "CVideoTitleBar.h"
#include "Gliv/CDisplayRenderer.h"

namespace {
const int kStatisticsIntervalMs = 500;
const int kBorder = 2;
// How near a ROI border (screen pixels) the mouse grabs it.
const double kGrabPixels = 6.0;
}

CVideoForm::CVideoForm(int formId, QWidget* parent, bool attachToBus) : QWidget(parent), m_formId(formId)
{
    setObjectName(QStringLiteral("videoForm%1").arg(formId));
    setAcceptDrops(true);
    setFocusPolicy(Qt::ClickFocus);
    // Sixteen views share the centre of a small screen: a view takes the cell
    // it is given and its bars clip, rather than widening the window.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setMinimumSize(96, 72);
    registerMessageMetaTypes();

    m_titleBar = new CVideoTitleBar(formId, this);
    m_display = new Gliv::CQtDisplayWndEx(this);
    m_display->setObjectName(QStringLiteral("videoDisplay%1").arg(formId));
    m_controlBar = new CVideoControlBar(this);
    m_statusBar = new CVideoStatusBar(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kBorder, kBorder, kBorder, kBorder);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(m_display, 1);
    layout->addWidget(m_controlBar);
    layout->addWidget(m_statusBar);

    // Waiting animation, centred over the display.
    m_waiting = new QWidget(m_display);
    m_waiting->setObjectName(QStringLiteral("videoWaiting"));
    m_busy = new CBusyIndicator(m_waiting);
    m_busy->setObjectName(QStringLiteral("videoBusy"));
    m_waitingText = new QLabel(m_waiting);
    m_waitingText->setObjectName(QStringLiteral("lblVideoWaiting"));
    m_waitingText->setAlignment(Qt::AlignCenter);
    auto* wl = new QVBoxLayout(m_waiting);
    wl->setContentsMargins(0, 0, 0, 0);
    wl->addWidget(m_busy, 0, Qt::AlignHCenter);
    wl->addWidget(m_waitingText);
    m_waiting->hide();
    m_display->installEventFilter(this);

    m_display->setDrawCallback(&CVideoForm::drawOverlays, this);
    m_controlBar->setDeviceBound(false);
    connect(m_controlBar, &CVideoControlBar::playClicked, this, &CVideoForm::startAcquisition);
    connect(m_controlBar, &CVideoControlBar::stopClicked, this, &CVideoForm::stopAcquisition);
    connect(m_controlBar, &CVideoControlBar::zoomInClicked, m_display, &Gliv::CQtDisplayWndEx::zoomIn);
    connect(m_controlBar, &CVideoControlBar::zoomOutClicked, m_display, &Gliv::CQtDisplayWndEx::zoomOut);
    connect(m_controlBar, &CVideoControlBar::zoomFitClicked, m_display, &Gliv::CQtDisplayWndEx::zoomFit);
    connect(m_controlBar, &CVideoControlBar::zoom100Clicked, m_display, &Gliv::CQtDisplayWndEx::zoom100);
    connect(m_titleBar, &CVideoTitleBar::maximizeClicked, this, [this]() { emit signalMaxMize(m_formId); });
    connect(m_titleBar, &CVideoTitleBar::clicked, this, [this]() { emit signalClicked(m_formId); });
    connect(m_display, &Gliv::CQtDisplayWndEx::mousePressed, this, &CVideoForm::onDisplayPressed);
    connect(m_display, &Gliv::CQtDisplayWndEx::mouseMoved, this, &CVideoForm::onDisplayMoved);
    connect(m_display, &Gliv::CQtDisplayWndEx::mouseReleased, this, &CVideoForm::onDisplayReleased);
    connect(m_display, &Gliv::CQtDisplayWndEx::mouseDoubleClicked, this,
            [this]() { if (!m_drawROI) emit signalMaxMize(m_formId); });
    connect(m_display, &Gliv::CQtDisplayWndEx::cursorMoved, this, &CVideoForm::onCursorMoved);

    m_statTimer.setInterval(kStatisticsIntervalMs);
    connect(&m_statTimer, &QTimer::timeout, this, &CVideoForm::refreshStatistics);

    connect(this, &CVideoForm::update_receive, this, &CVideoForm::OnUpdateReceive, Qt::QueuedConnection);
    if (attachToBus) {
        m_busOwner = CDeviceManager::getInstance();
        if (m_busOwner)
            m_busOwner->attach(this);
    }
    retranslate();
    updateTitle();
}

CVideoForm::~CVideoForm()
{
    if (m_busOwner)
        m_busOwner->detach(this);
    if (m_frameConnection)
        disconnect(m_frameConnection);
}

void CVideoForm::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CVideoForm::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device || !isDeviceBind(msg->device))
        return;
    switch (msg->type) {
    case MSG_DEVICE_CONNECTED:
        updateTitle();
        if (m_autoPlay)
            startAcquisition();
        break;
    case MSG_STREAM_OPENED:
        m_controlBar->setStreaming(true);
        m_statusBar->setNotice(QString());
        break;
    case MSG_STREAM_CLOSED:
    case MSG_DEVICE_DISCONNECTING:
    case MSG_DEVICE_DISCONNECTED:
    case MSG_DEVICE_OFFLINE:
    case MSG_DEVICE_CONNECT_FAILED:
        m_controlBar->setStreaming(false);
        break;
    default:
        break;
    }
}

void CVideoForm::setDevice(CTavDevicePtr device)
{
    if (m_device.get() == device.get())
        return;
    if (m_frameConnection)
        disconnect(m_frameConnection);
    m_frameConnection = QMetaObject::Connection();
    m_device = device;
    m_display->clearDispWnd();
    m_display->zoomFit();
    m_statusBar->clearStatistics();
    m_statusBar->clearCursorInfo();
    m_statusBar->setNotice(QString());
    if (m_device) {
        // Called on the stream thread: the frame is rendered there, and the
        // pipeline outlives the view while a frame is in flight.
        std::shared_ptr<Gliv::CDisplayPipeline> pipeline = m_display->pipeline();
        m_frameConnection = connect(
            m_device.get(), &CTavDevice::newFrame, this,
            [pipeline](CQtHybridFramePtr frame, bool display, bool, bool) {
                if (display)
                    pipeline->submit(frame);
            },
            Qt::DirectConnection);
        m_device->setShowChunkData(m_showChunk);
        m_statTimer.start();
    } else {
        m_statTimer.stop();
        showWaitingGif(MSG_DISCOVERY_FINISHED);
    }
    m_controlBar->setDeviceBound(bool(m_device));
    m_controlBar->setStreaming(m_device && m_device->isGrabing());
    updateTitle();
}

bool CVideoForm::isFree() const
{
    return !m_device;
}

bool CVideoForm::isDeviceBind(const CTavDevicePtr& device) const
{
    return device && m_device.get() == device.get();
}

void CVideoForm::setMaxMode(bool max)
{
    m_maxMode = max;
    m_titleBar->setMaxMode(max);
}

void CVideoForm::setVideoLayout(EN_VIDEO_LAYOUT layout)
{
    m_layout = layout;
}

void CVideoForm::showWaitingGif(EN_MESSAGE_TYPE type)
{
    m_waitingType = type;
    const bool wait = type == MSG_DEVICE_CONNECTING || type == MSG_DEVICE_DISCONNECTING;
    retranslate();
    if (wait) {
        placeWaiting();
        m_waiting->show();
        m_waiting->raise();
    } else {
        m_waiting->hide();
    }
}

bool CVideoForm::isWaiting() const
{
    return !m_waiting->isHidden();
}

void CVideoForm::setHighlighted(bool highlighted)
{
    if (m_highlighted == highlighted)
        return;
    m_highlighted = highlighted;
    setProperty("highlighted", highlighted);
    update();
}

void CVideoForm::setShowCrosshair(bool show)
{
    m_showCrosshair = show;
    m_display->update();
}

void CVideoForm::setCrosshairColor(const QColor& color)
{
    m_crosshairColor = color;
    m_display->update();
}

void CVideoForm::setShowChunkData(bool show)
{
    m_showChunk = show;
    if (m_device)
        m_device->setShowChunkData(show);
    m_display->update();
}

void CVideoForm::setDrawROIEnable(bool enable)
{
    m_drawROI = enable;
    // The left button draws ROIs instead of panning.
    m_display->setDragEnabled(!enable);
    m_display->setCursor(enable ? Qt::CrossCursor : Qt::ArrowCursor);
    m_display->update();
}

void CVideoForm::setDisplayROIEnable(bool enable)
{
    m_displayROI = enable;
    m_display->update();
}

void CVideoForm::setROIColor(const QColor& color)
{
    m_roiEditor.setColor(color);
}

void CVideoForm::setBayerDemosaic(int demosaic)
{
    m_display->setBayerDemosaic(Gliv::EBayerDemosaic(qBound(0, demosaic, 2)));
}

void CVideoForm::setROI(const QList<stuROI>& rois)
{
    m_roiEditor.setRois(rois);
    m_display->update();
}

void CVideoForm::deleteROI()
{
    if (!m_roiEditor.deleteSelected())
        m_roiEditor.clear();
    m_display->update();
    emit signalROIChanged(m_formId);
}

void CVideoForm::startAcquisition()
{
    if (!m_device || !m_device->isConnected() || m_device->isGrabing())
        return;
    m_controlBar->setBusy(true);
    // The device reports the result with messages 7 (opened) or 8.
    if (!m_device->openStream()) {
        m_controlBar->setBusy(false);
        m_statusBar->setNotice(tr("Starting the acquisition failed."));
    }
}

void CVideoForm::stopAcquisition()
{
    if (!m_device)
        return;
    m_controlBar->setBusy(true);
    if (!m_device->closeStream())
        m_controlBar->setBusy(false);
}

void CVideoForm::refreshStatistics()
{
    if (!m_device)
        return;
    SVideoStatistics s;
    m_device->getStreamStatistic(s.receiveFps, s.displayFps, s.frames, s.bandwidth, s.error, s.errorCount);
    m_statusBar->setStatistics(s);
}

void CVideoForm::onDisplayPressed(QPointF image, Qt::MouseButton button, Qt::KeyboardModifiers)
{
    emit signalClicked(m_formId);
    setFocus(Qt::MouseFocusReason);
    if (!m_drawROI || button != Qt::LeftButton)
        return;
    m_roiEditor.setImageSize(m_display->imageSize());
    m_roiEditor.press(image, kGrabPixels / std::max(1e-3, m_display->currentScale()));
    m_display->update();
}

void CVideoForm::onDisplayMoved(QPointF image, Qt::MouseButtons)
{
    if (!m_roiEditor.isEditing())
        return;
    m_roiEditor.move(image);
    m_display->update();
}

void CVideoForm::onDisplayReleased(QPointF image, Qt::MouseButton button)
{
    if (button != Qt::LeftButton || !m_roiEditor.isEditing())
        return;
    const bool changed = m_roiEditor.release(image);
    m_display->update();
    if (!changed)
        return;
    const int sel = m_roiEditor.selected();
    if (m_device && m_viewSignals && sel >= 0) {
        const stuROI& r = m_roiEditor.rois().at(sel);
        emit m_viewSignals->ROIChanged(m_device->getDeviceKey(), int(r.Left), int(r.Top), int(r.Width),
                                       int(r.Height));
    }
    emit signalROIChanged(m_formId);
}

void CVideoForm::onCursorMoved(QPoint pixel, bool inside)
{
    const CQtHybridFramePtr frame = m_display->currentFrame();
    if (!inside || !frame) {
        m_statusBar->clearCursorInfo();
        return;
    }
    QString raw;
    QRgb rgb = 0;
    bool rgbValid = false;
    Gliv::CDisplayRenderer::probePixel(*frame, pixel.x(), pixel.y(), raw, rgb, rgbValid);
    m_statusBar->setCursorInfo(pixel, raw, rgb, rgbValid);
    if (m_device && m_viewSignals)
        emit m_viewSignals->cursorPoint(m_device->getDeviceKey(), pixel);
}

void CVideoForm::drawOverlays(void* painter, void*, void* context, const CQtHybridFramePtr& frame)
{
    static_cast<CVideoForm*>(context)->paintOverlays(*static_cast<QPainter*>(painter), frame);
}

void CVideoForm::paintOverlays(QPainter& painter, const CQtHybridFramePtr& frame)
{
    const QSize image = m_display->imageSize();
    if (m_showCrosshair && !image.isEmpty()) {
        const double cx = image.width() / 2.0;
        const double cy = image.height() / 2.0;
        m_display->drawLineOverlay(0, cy, image.width(), cy, m_crosshairColor);
        m_display->drawLineOverlay(cx, 0, cx, image.height(), m_crosshairColor);
    }
    if (m_displayROI || m_drawROI) {
        const QList<stuROI>& rois = m_roiEditor.rois();
        for (int i = 0; i < rois.size(); ++i) {
            const stuROI& r = rois[i];
            m_display->drawFrameRectOverlay(double(r.Left), double(r.Top), double(r.Width), double(r.Height),
                                            QColor(r.RedROI, r.GreenROI, r.BlueROI),
                                            i == m_roiEditor.selected() ? 2 : 1);
        }
        const QRectF pending = m_roiEditor.pendingRect();
        if (!pending.isEmpty())
            m_display->drawFrameRectOverlay(pending.x(), pending.y(), pending.width(), pending.height(),
                                            m_roiEditor.color(), 1);
    }
    if (m_showChunk && frame && frame->getChunkData() && *frame->getChunkData()) {
        const QString text = QString::fromUtf8(frame->getChunkData()).trimmed();
        QRectF box = painter.boundingRect(QRectF(8, 8, m_display->width() - 16, m_display->height() - 16),
                                          Qt::AlignLeft | Qt::AlignTop, text);
        painter.fillRect(box.adjusted(-4, -2, 4, 2), QColor(0, 0, 0, 160));
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignLeft | Qt::AlignTop, text);
    }
}

void CVideoForm::paintEvent(QPaintEvent*)
{
    // Only the frame around the view shows the highlight; the bars keep
    // their own colours.
    QPainter painter(this);
    const QColor border = m_highlighted ? QColor(0x2f, 0x9b, 0xff) : QColor(0x30, 0x33, 0x38);
    painter.fillRect(rect(), border);
    painter.fillRect(rect().adjusted(kBorder, kBorder, -kBorder, -kBorder), QColor(0x1b, 0x1d, 0x21));
}

void CVideoForm::updateTitle()
{
    if (!m_device) {
        m_titleBar->setTitle(tr("No camera"));
        return;
    }
    Vorlen::Infra::CString name;
    if (m_device->generateDeviceName(name) && !name.empty())
        m_titleBar->setTitle(QString::fromUtf8(name.c_str()));
    else
        m_titleBar->setTitle(m_device->getDeviceKey().isEmpty() ? tr("Camera") : m_device->getDeviceKey());
}

void CVideoForm::placeWaiting()
{
    m_waiting->adjustSize();
    const QSize s = m_waiting->sizeHint().expandedTo(QSize(160, 60));
    m_waiting->setGeometry((m_display->width() - s.width()) / 2, (m_display->height() - s.height()) / 2, s.width(),
                           s.height());
}

void CVideoForm::retranslate()
{
    m_waitingText->setText(m_waitingType == MSG_DEVICE_DISCONNECTING ? tr("Disconnecting...")
                                                                    : tr("Connecting..."));
    if (!m_device)
        m_titleBar->setTitle(tr("No camera"));
}

void CVideoForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        updateTitle();
    }
    QWidget::changeEvent(event);
}

void CVideoForm::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasFormat(QLatin1String(CVideoTitleBar::kDragMimeType)))
        event->acceptProposedAction();
}

void CVideoForm::dropEvent(QDropEvent* event)
{
    bool ok = false;
    const int from = event->mimeData()->data(QLatin1String(CVideoTitleBar::kDragMimeType)).toInt(&ok);
    if (!ok)
        return;
    event->acceptProposedAction();
    if (from != m_formId)
        emit signalSwap(from, m_formId);
}

void CVideoForm::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && m_drawROI && m_roiEditor.selected() >= 0) {
        deleteROI();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool CVideoForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_display && event->type() == QEvent::Resize && !m_waiting->isHidden())
        placeWaiting();
    return QWidget::eventFilter(watched, event);
}
