#include "CPropertyGPIOForm.h"

#include <QEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

CPropertyGPIOForm::CPropertyGPIOForm(QWidget* parent) : QWidget(parent)
{
    setObjectName("CPropertyGPIOForm");
    setStyleSheet("QLabel { min-width: 120px; max-width: 120px; }"
                  "QSlider { min-width: 100px; }"
                  "QSpinBox, QDoubleSpinBox { min-width: 80px; max-width: 80px; }"
                  "QComboBox { min-width: 60px; }");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    auto* content = new QWidget(scroll);
    auto* contentLayout = new QVBoxLayout(content);
    m_btnCommon = new QPushButton(content);
    m_btnCommon->setObjectName("btnCommonAttributes");
    contentLayout->addWidget(m_btnCommon);
    contentLayout->addStretch(1);
    scroll->setWidget(content);
    layout->addWidget(scroll);
    retranslateUi();
}

void CPropertyGPIOForm::retranslateUi()
{
    m_btnCommon->setText(tr("Common Attributes"));
}

void CPropertyGPIOForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
