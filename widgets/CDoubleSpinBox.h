#pragma once
// QDoubleSpinBox in the house style for decimal camera values: the wheel acts only
// when focused, and valueChanged() is emitted when the operator has finished
// typing (Enter or leaving the field), not on every keystroke, so a half-typed
// number is never written to a camera.
#include <QDoubleSpinBox>

class CDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    explicit CDoubleSpinBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
