#pragma once
// Spin box for decimal camera values (see CValueSpinBox).
#include <QDoubleSpinBox>

#include "CValueSpinBox.h"

class CDoubleSpinBox : public CValueSpinBox<QDoubleSpinBox>
{
    Q_OBJECT
public:
    explicit CDoubleSpinBox(QWidget* parent = nullptr)
        : CValueSpinBox(QStringLiteral("CDoubleSpinBox"), parent)
    {
    }
};
