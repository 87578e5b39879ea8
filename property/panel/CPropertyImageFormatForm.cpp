#include "CPropertyImageFormatForm.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "CTavDevice.h"
#include "CViewSignalHub.h"
#include "Named.h"

namespace {
qint64 snapDown(qint64 value, qint64 minimum, qint64 increment)
{
    if (increment <= 1)
        return value;
    return minimum + ((value - minimum) / increment) * increment;
}
}

CPropertyImageFormatForm::CPropertyImageFormatForm(CTavDevicePtr device, QWidget* parent, CViewSignalHub* viewSignals)
    : CFeatureControlPage(
          device, "CPropertyImageFormatForm",
          {{rowSection, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Region of Interest"), nullptr},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Width"), "Width"},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Height"), "Height"},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Offset X"), "OffsetX"},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Offset Y"), "OffsetY"},
           {rowSection, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Binning and Format"), nullptr},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Binning Horizontal"), "BinningHorizontal"},
           {rowNumber, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Binning Vertical"), "BinningVertical"},
           {rowEnum, QT_TRANSLATE_NOOP("CPropertyImageFormatForm", "Pixel Format"), "PixelFormat"}},
          parent),
      m_viewSignals(viewSignals)
{
    auto* buttons = new QHBoxLayout();
    m_btnDraw = named(new QPushButton(this), "btnDrawROI");
    m_btnDraw->setCheckable(true);
    m_btnFull = named(new QPushButton(this), "btnFullFrame");
    buttons->addWidget(m_btnDraw);
    buttons->addWidget(m_btnFull);
    buttons->addStretch(1);
    bottomLayout()->addSpacing(8);
    bottomLayout()->addLayout(buttons);
    connect(m_btnDraw, &QPushButton::toggled, this, &CPropertyImageFormatForm::onDrawToggled);
    connect(m_btnFull, &QPushButton::clicked, this, &CPropertyImageFormatForm::onFullFrame);
    if (m_device && m_viewSignals)
        connect(
            m_viewSignals, &CViewSignalHub::ROIChanged, this,
            [this, key = m_device->getDeviceKey()](const QString& from, int x, int y, int width, int height) {
                if (from == key)
                    onROIChanged(x, y, width, height);
            },
            Qt::QueuedConnection);
    retranslateExtra();
}

CPropertyImageFormatForm::~CPropertyImageFormatForm()
{
    cancelROI();
}

void CPropertyImageFormatForm::retranslateExtra()
{
    m_btnDraw->setText(tr("Draw ROI"));
    m_btnDraw->setToolTip(tr("Draw the region of interest on the video with the mouse"));
    m_btnFull->setText(tr("Full Frame"));
    m_btnFull->setToolTip(tr("Use the whole sensor"));
}

bool CPropertyImageFormatForm::mayWrite(const QString&, QString& refusal)
{
    if (m_device && m_device->isGrabing())
    {
        refusal = tr("Stop acquisition before changing the image format.");
        return false;
    }
    return true;
}

void CPropertyImageFormatForm::onDrawToggled(bool on)
{
    if (!m_device)
        return;
    if (on)
    {
        QString refusal;
        if (!mayWrite(QString(), refusal))
        {
            const QSignalBlocker b(m_btnDraw);
            m_btnDraw->setChecked(false);
            showMessage(refusal);
            return;
        }
        m_bDrawing = true;
        const SFeatureState w = state(QStringLiteral("Width")), h = state(QStringLiteral("Height"));
        if (m_viewSignals)
        {
            emit m_viewSignals->signalInitROI(m_device->getDeviceKey(), 0, 0, int(w.intValue), int(h.intValue));
            emit m_viewSignals->signalDrawROI(m_device->getDeviceKey(), true);
        }
    }
    else if (m_bDrawing)
    {
        m_bDrawing = false;
        if (m_viewSignals)
            emit m_viewSignals->signalDrawROI(m_device->getDeviceKey(), false);
    }
}

void CPropertyImageFormatForm::endDrawing(bool cancelled)
{
    m_bDrawing = false;
    {
        const QSignalBlocker b(m_btnDraw);
        m_btnDraw->setChecked(false);
    }
    if (!m_device || !m_viewSignals)
        return;
    if (cancelled)
        emit m_viewSignals->signalCancelDrawROI(m_device->getDeviceKey());
    emit m_viewSignals->signalDrawROI(m_device->getDeviceKey(), false);
}

void CPropertyImageFormatForm::cancelROI()
{
    if (m_bDrawing)
        endDrawing(true);
}

void CPropertyImageFormatForm::onROIChanged(int x, int y, int width, int height)
{
    if (!m_bDrawing)
        return;
    endDrawing(false);
    if (width <= 0 || height <= 0)
        return;
    QString refusal;
    if (!mayWrite(QString(), refusal))
    {
        showMessage(refusal);
        return;
    }
    // The view draws on the picture it shows, which starts at the current offsets.
    const SFeatureState ox = state(QStringLiteral("OffsetX")), oy = state(QStringLiteral("OffsetY"));
    applyRegion(ox.intValue + x, oy.intValue + y, width, height);
}

void CPropertyImageFormatForm::onFullFrame()
{
    QString refusal;
    if (!mayWrite(QString(), refusal))
    {
        showMessage(refusal);
        return;
    }
    const SFeatureState w = state(QStringLiteral("Width")), h = state(QStringLiteral("Height"));
    const SFeatureState ox = state(QStringLiteral("OffsetX")), oy = state(QStringLiteral("OffsetY"));
    // Largest size once the offsets are 0.
    applyRegion(0, 0, w.intMax + ox.intValue, h.intMax + oy.intValue);
}

void CPropertyImageFormatForm::applyRegion(qint64 x, qint64 y, qint64 width, qint64 height)
{
    const SFeatureState w = state(QStringLiteral("Width")), h = state(QStringLiteral("Height"));
    const SFeatureState ox = state(QStringLiteral("OffsetX")), oy = state(QStringLiteral("OffsetY"));
    if (!w.writeable || !h.writeable)
    {
        showMessage(tr("The camera does not let the image size change now."));
        return;
    }
    // Limits once the offsets are 0: the sensor size the camera allows.
    const qint64 maxW = w.intMax + (ox.valid ? ox.intValue : 0);
    const qint64 maxH = h.intMax + (oy.valid ? oy.intValue : 0);
    x = qBound<qint64>(0, x, maxW - w.intMin);
    y = qBound<qint64>(0, y, maxH - h.intMin);
    if (ox.valid)
        x = snapDown(x, 0, ox.intInc);
    else
        x = 0;
    if (oy.valid)
        y = snapDown(y, 0, oy.intInc);
    else
        y = 0;
    width = qBound<qint64>(w.intMin, snapDown(qMin(width, maxW - x), w.intMin, w.intInc), maxW - x);
    height = qBound<qint64>(h.intMin, snapDown(qMin(height, maxH - y), h.intMin, h.intInc), maxH - y);
    if (ox.valid && ox.writeable)
        worker()->requestWrite(QStringLiteral("OffsetX"), qint64(0), false);
    if (oy.valid && oy.writeable)
        worker()->requestWrite(QStringLiteral("OffsetY"), qint64(0), false);
    worker()->requestWrite(QStringLiteral("Width"), width, false);
    worker()->requestWrite(QStringLiteral("Height"), height, false);
    if (ox.valid && ox.writeable)
        worker()->requestWrite(QStringLiteral("OffsetX"), x, false);
    if (oy.valid && oy.writeable)
        worker()->requestWrite(QStringLiteral("OffsetY"), y, false);
}

void CPropertyImageFormatForm::onDeviceMessage(const CTavMessagePtr& msg)
{
    // Grabbing, disconnecting or losing the camera ends a drawing.
    if (msg->type == MSG_STREAM_OPENED || msg->type == MSG_DEVICE_DISCONNECTING ||
        msg->type == MSG_DEVICE_OFFLINE || msg->type == MSG_DEVICE_DISCONNECTED)
        cancelROI();
}
