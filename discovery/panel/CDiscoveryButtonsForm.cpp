#include "CDiscoveryButtonsForm.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>

namespace {
QToolButton* makeButton(QWidget* parent, const char* name, const char* icon)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(QIcon(QLatin1String(icon)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}
} // namespace

CDiscoveryButtonsForm::CDiscoveryButtonsForm(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("CDiscoveryButtonsForm"));
    m_btnForceIP = makeButton(this, "btnForceIP", ":/Pic/Icon_DevList_Settings.png");
    m_btnConnect = makeButton(this, "btnConnect", ":/Pic/Icon_DevList_Connect.png");
    m_btnDisconnect = makeButton(this, "btnDisconnect", ":/Pic/Icon_DevList_Disconnect.png");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 2, 0);
    layout->setSpacing(2);
    layout->addStretch(1);
    layout->addWidget(m_btnForceIP);
    layout->addWidget(m_btnConnect);
    layout->addWidget(m_btnDisconnect);
}

void CDiscoveryButtonsForm::disableAll()
{
    m_btnForceIP->setEnabled(false);
    m_btnConnect->setEnabled(false);
    m_btnDisconnect->setEnabled(false);
}
