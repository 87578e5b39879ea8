#pragma once
// QSpinBox in the house style for integer camera values: the wheel acts only
// when focused, and valueChanged() is emitted when the operator has finished
// typing (Enter or leaving the field), not on every keystroke, so a half-typed
// number is never written to a camera.
#include <QSpinBox>

class CSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit CSpinBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
