#include "CBusyIndicator.h"

#include <QPainter>
#include <QPen>

namespace {
constexpr int kStepDegrees = 30;
constexpr int kStepMs = 80;
}

CBusyIndicator::CBusyIndicator(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("CBusyIndicator"));
    setFixedSize(sizeHint());
    m_timer.setInterval(kStepMs);
    connect(&m_timer, &QTimer::timeout, this, &CBusyIndicator::advance);
}

void CBusyIndicator::advance()
{
    m_angle = (m_angle + kStepDegrees) % 360;
    update();
}

void CBusyIndicator::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const int side = qMin(width(), height()) - 6;
    const QRectF r((width() - side) / 2.0, (height() - side) / 2.0, side, side);
    QPen track(palette().color(QPalette::Mid), 3.0);
    p.setPen(track);
    p.drawEllipse(r);
    QPen arc(palette().color(QPalette::Highlight), 3.0);
    arc.setCapStyle(Qt::RoundCap);
    p.setPen(arc);
    // Qt measures arcs in 1/16 degree, counter-clockwise; spin clockwise.
    p.drawArc(r, -m_angle * 16, 100 * 16);
}

void CBusyIndicator::showEvent(QShowEvent* event)
{
    m_timer.start();
    QWidget::showEvent(event);
}

void CBusyIndicator::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}
