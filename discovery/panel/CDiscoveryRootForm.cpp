#include "CDiscoveryRootForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVariant>

#include "Named.h"

CDiscoveryRootForm::CDiscoveryRootForm(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("CDiscoveryRootForm"));
    m_checkBox = named(new QCheckBox(this), "checkBox_RootItem");
    // Roots line up whether their check box shows or not.
    QSizePolicy policy = m_checkBox->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_checkBox->setSizePolicy(policy);
    m_label = named(new QLabel(this), "label_RootItem");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(4);
    layout->addWidget(m_checkBox);
    layout->addWidget(m_label, 1);
    setProperty("hover", false);
    connect(m_checkBox, &QCheckBox::clicked, this, &CDiscoveryRootForm::signalCheckBoxClicked);
}

void CDiscoveryRootForm::setText(const QString& text)
{
    m_label->setText(text);
}

QString CDiscoveryRootForm::text() const
{
    return m_label->text();
}

void CDiscoveryRootForm::setChecked(bool checked)
{
    m_checkBox->setChecked(checked);
}

bool CDiscoveryRootForm::isChecked() const
{
    return m_checkBox->isChecked();
}

void CDiscoveryRootForm::setCheckBoxVisible(bool visible)
{
    m_checkBox->setVisible(visible);
}

bool CDiscoveryRootForm::isCheckBoxVisible() const
{
    return !m_checkBox->isHidden();
}

void CDiscoveryRootForm::enterEvent(QEvent* event)
{
    setHover(true);
    QFrame::enterEvent(event);
}

void CDiscoveryRootForm::leaveEvent(QEvent* event)
{
    setHover(false);
    QFrame::leaveEvent(event);
}

void CDiscoveryRootForm::setHover(bool hover)
{
    setProperty("hover", hover);
    // Re-evaluate the style sheet's [hover="true"] selectors.
    style()->unpolish(this);
    style()->polish(this);
}
