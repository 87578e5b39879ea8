#pragma once
// Spin box in the house style for camera values (SpinBox is QSpinBox or
// QDoubleSpinBox): the wheel acts only when focused (CWheelGuard), and
// valueChanged() is emitted when the operator has finished typing (Enter or
// leaving the field), not on every keystroke, so a half-typed number is never
// written to a camera.
#include <QWheelEvent>

#include "CWheelGuard.h"

template <class SpinBox>
class CValueSpinBox : public SpinBox
{
public:
    CValueSpinBox(const QString& objectName, QWidget* parent)
        : SpinBox(parent)
    {
        this->setObjectName(objectName);
        this->setKeyboardTracking(false);
        this->setAccelerated(true);
        CWheelGuard::install(this);
    }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (CWheelGuard::accepts(this, event))
            SpinBox::wheelEvent(event);
    }
};
