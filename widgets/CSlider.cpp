#include "CSlider.h"

#include "CWheelGuard.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

CSlider::CSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
    setObjectName(QStringLiteral("CSlider"));
    CWheelGuard::install(this);
}

int CSlider::valueAt(const QPoint& pos) const
{
    QStyleOptionSlider opt;
    initStyleOption(&opt);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &opt, QStyle::SC_SliderGroove, this);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &opt, QStyle::SC_SliderHandle, this);
    if (orientation() == Qt::Horizontal) {
        const int span = groove.width() - handle.width();
        const int x = pos.x() - groove.x() - handle.width() / 2;
        return QStyle::sliderValueFromPosition(minimum(), maximum(), x, qMax(span, 1), opt.upsideDown);
    }
    const int span = groove.height() - handle.height();
    const int y = pos.y() - groove.y() - handle.height() / 2;
    return QStyle::sliderValueFromPosition(minimum(), maximum(), y, qMax(span, 1), opt.upsideDown);
}

void CSlider::wheelEvent(QWheelEvent* event)
{
    if (CWheelGuard::accepts(this, event))
        QSlider::wheelEvent(event);
}

void CSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        QStyleOptionSlider opt;
        initStyleOption(&opt);
        const QStyle::SubControl hit =
            style()->hitTestComplexControl(QStyle::CC_Slider, &opt, event->pos(), this);
        if (hit != QStyle::SC_SliderHandle) {
            // Jump, then let the base class start dragging the handle from there.
            setValue(valueAt(event->pos()));
            triggerAction(QAbstractSlider::SliderMove);
        }
    }
    QSlider::mousePressEvent(event);
}
