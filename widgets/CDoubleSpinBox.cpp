#include "CDoubleSpinBox.h"

#include "CWheelGuard.h"

CDoubleSpinBox::CDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setObjectName(QStringLiteral("CDoubleSpinBox"));
    setKeyboardTracking(false);
    setAccelerated(true);
    CWheelGuard::install(this);
}

void CDoubleSpinBox::wheelEvent(QWheelEvent* event)
{
    if (CWheelGuard::accepts(this, event))
        QDoubleSpinBox::wheelEvent(event);
}
