#include "CVideoStatusBar.h"

#include <QColor>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "CElidedLabel.h"

CVideoStatusBar::CVideoStatusBar(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("videoStatusBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_lblStats = new CElidedLabel(this);
    m_lblStats->setObjectName(QStringLiteral("lblVideoStatistics"));
    m_lblError = new CElidedLabel(this);
    m_lblError->setObjectName(QStringLiteral("lblVideoError"));
    m_lblCursor = new CElidedLabel(this);
    m_lblCursor->setObjectName(QStringLiteral("lblVideoCursor"));
    m_lblCursor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel* l : { m_lblStats, m_lblError, m_lblCursor })
        l->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 0);
    layout->setSpacing(8);
    layout->addWidget(m_lblStats, 3);
    layout->addWidget(m_lblError, 1);
    layout->addWidget(m_lblCursor, 2);
    retranslate();
}

void CVideoStatusBar::setStatistics(const SVideoStatistics& statistics)
{
    m_stats = statistics;
    m_hasStats = true;
    retranslate();
}

void CVideoStatusBar::clearStatistics()
{
    m_stats = SVideoStatistics();
    m_hasStats = false;
    retranslate();
}

void CVideoStatusBar::setCursorInfo(const QPoint& pixel, const QString& raw, QRgb rgb, bool rgbValid)
{
    m_pixel = pixel;
    m_raw = raw;
    m_rgb = rgb;
    m_rgbValid = rgbValid;
    m_hasCursor = true;
    retranslate();
}

void CVideoStatusBar::clearCursorInfo()
{
    m_hasCursor = false;
    retranslate();
}

void CVideoStatusBar::setNotice(const QString& text)
{
    m_notice = text;
    retranslate();
}

QString CVideoStatusBar::statisticsText() const
{
    return m_lblStats->text();
}

QString CVideoStatusBar::cursorText() const
{
    return m_lblCursor->text();
}

void CVideoStatusBar::retranslate()
{
    if (m_hasStats) {
        m_lblStats->setText(tr("Rx %1 fps  Disp %2 fps  %3 Mbps  Frames %4")
                                .arg(m_stats.receiveFps, m_stats.displayFps, m_stats.bandwidth)
                                .arg(m_stats.frames));
        const bool hasError = !m_stats.error.isEmpty();
        m_lblError->setText(hasError ? tr("Error: %1 (%2)").arg(m_stats.error).arg(m_stats.errorCount) : QString());
    } else {
        m_lblStats->clear();
        m_lblError->clear();
    }
    if (!m_notice.isEmpty() && m_lblError->text().isEmpty())
        m_lblError->setText(m_notice);
    m_lblError->setToolTip(m_lblError->text());
    if (m_hasCursor) {
        QString text = tr("X %1  Y %2").arg(m_pixel.x()).arg(m_pixel.y());
        if (!m_raw.isEmpty())
            text += QStringLiteral("  ") + tr("Raw %1").arg(m_raw);
        if (m_rgbValid)
            text += QStringLiteral("  ")
                    + tr("RGB (%1, %2, %3)").arg(qRed(m_rgb)).arg(qGreen(m_rgb)).arg(qBlue(m_rgb));
        m_lblCursor->setText(text);
    } else {
        m_lblCursor->clear();
    }
    // Empty fields give their room to the others; a field too narrow for its
    // text ends it with "..." and keeps the whole text in the tool tip.
    m_lblError->setVisible(!m_lblError->text().isEmpty());
    m_lblCursor->setVisible(!m_lblCursor->text().isEmpty());
    m_lblStats->setToolTip(m_lblStats->text());
    m_lblCursor->setToolTip(m_lblCursor->text());
}

void CVideoStatusBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
