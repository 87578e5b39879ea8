#include "CVideoControlBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

CVideoControlBar::CVideoControlBar(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("videoControlBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_btnPlay = makeButton("btnVideoPlay", "Icon_Video_Play");
    m_btnZoomIn = makeButton("btnVideoZoomIn", "Icon_Video_ZoomIn");
    m_btnZoomOut = makeButton("btnVideoZoomOut", "Icon_Video_ZoomOut");
    m_btnZoomFit = makeButton("btnVideoZoomFit", "Icon_Video_ZoomFit");
    m_btnZoom100 = makeButton("btnVideoZoom100", "Icon_Video_Zoom100");
    m_extra = new QHBoxLayout;
    m_extra->setObjectName(QStringLiteral("layoutVideoExtraButtons"));
    m_extra->setContentsMargins(0, 0, 0, 0);
    m_extra->setSpacing(2);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 1, 4, 1);
    layout->setSpacing(2);
    layout->addWidget(m_btnPlay);
    layout->addLayout(m_extra);
    layout->addStretch(1);
    layout->addWidget(m_btnZoomIn);
    layout->addWidget(m_btnZoomOut);
    layout->addWidget(m_btnZoomFit);
    layout->addWidget(m_btnZoom100);

    connect(m_btnPlay, &QToolButton::clicked, this, [this]() {
        if (m_streaming)
            emit stopClicked();
        else
            emit playClicked();
    });
    connect(m_btnZoomIn, &QToolButton::clicked, this, &CVideoControlBar::zoomInClicked);
    connect(m_btnZoomOut, &QToolButton::clicked, this, &CVideoControlBar::zoomOutClicked);
    connect(m_btnZoomFit, &QToolButton::clicked, this, &CVideoControlBar::zoomFitClicked);
    connect(m_btnZoom100, &QToolButton::clicked, this, &CVideoControlBar::zoom100Clicked);
    retranslate();
    updatePlay();
}

QToolButton* CVideoControlBar::makeButton(const char* name, const char* icon)
{
    auto* b = new QToolButton(this);
    b->setObjectName(QLatin1String(name));
    b->setIcon(QIcon(QStringLiteral(":/Pic/%1.png").arg(QLatin1String(icon))));
    b->setAutoRaise(true);
    b->setIconSize(QSize(16, 16));
    return b;
}

void CVideoControlBar::setStreaming(bool streaming)
{
    m_streaming = streaming;
    m_busy = false;
    updatePlay();
}

void CVideoControlBar::setBusy(bool busy)
{
    m_busy = busy;
    updatePlay();
}

void CVideoControlBar::setDeviceBound(bool bound)
{
    m_bound = bound;
    if (!bound) {
        m_streaming = false;
        m_busy = false;
    }
    updatePlay();
}

void CVideoControlBar::updatePlay()
{
    m_btnPlay->setIcon(QIcon(m_streaming ? QStringLiteral(":/Pic/Icon_Video_Stop.png")
                                         : QStringLiteral(":/Pic/Icon_Video_Play.png")));
    m_btnPlay->setToolTip(m_streaming ? tr("Stop acquisition") : tr("Start acquisition"));
    m_btnPlay->setEnabled(m_bound && !m_busy);
}

void CVideoControlBar::retranslate()
{
    updatePlay();
    m_btnZoomIn->setToolTip(tr("Zoom in"));
    m_btnZoomOut->setToolTip(tr("Zoom out"));
    m_btnZoomFit->setToolTip(tr("Fit to window"));
    m_btnZoom100->setToolTip(tr("Actual size (100 %)"));
}

void CVideoControlBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
