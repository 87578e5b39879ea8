#pragma once
// Spin box for integer camera values (see CValueSpinBox).
#include <QSpinBox>

#include "CValueSpinBox.h"

class CSpinBox : public CValueSpinBox<QSpinBox>
{
    Q_OBJECT
public:
    explicit CSpinBox(QWidget* parent = nullptr)
        : CValueSpinBox(QStringLiteral("CSpinBox"), parent)
    {
    }
};
