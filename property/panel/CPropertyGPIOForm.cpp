#include "CPropertyGPIOForm.h"

#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "CLanguageWatcher.h"
#include "Named.h"

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
    m_btnCommon = named(new QPushButton(content), "btnCommonAttributes");
    contentLayout->addWidget(m_btnCommon);
    contentLayout->addStretch(1);
    scroll->setWidget(content);
    layout->addWidget(scroll);
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();
}

void CPropertyGPIOForm::retranslateUi()
{
    m_btnCommon->setText(tr("Common Attributes"));
}
