#include "CSpinBox.h"

#include "CWheelGuard.h"

CSpinBox::CSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
    setObjectName(QStringLiteral("CSpinBox"));
    setKeyboardTracking(false);
    setAccelerated(true);
    CWheelGuard::install(this);
}

void CSpinBox::wheelEvent(QWheelEvent* event)
{
    if (CWheelGuard::accepts(this, event))
        QSpinBox::wheelEvent(event);
}
