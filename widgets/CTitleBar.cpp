#include "CTitleBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

CTitleBar::CTitleBar(const QString& labelName, const QString& buttonName, QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground, true);
    m_titleLabel = new QLabel(this);
    m_titleLabel->setObjectName(labelName);
    m_button = new QToolButton(this);
    m_button->setObjectName(buttonName);
    m_button->setAutoRaise(true);
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_titleLabel, 1);
    row->addWidget(m_button);
}

void CTitleBar::setTitle(const QString& title)
{
    m_titleLabel->setText(title);
}

QString CTitleBar::title() const
{
    return m_titleLabel->text();
}
