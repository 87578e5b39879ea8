#include "CDiscoveryButtonsForm.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <utility>

#include "CLanguageWatcher.h"
#include "DeviceListRules.h"
#include "Named.h"

namespace {
QToolButton* makeButton(QWidget* parent, const char* name, const char* icon)
{
    auto* button = named(new QToolButton(parent), name);
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
    // The form covers its whole row (device rows span their first column):
    // mouse moves over it reach the tree, which tracks the row under the mouse.
    setMouseTracking(true);
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
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();
}

void CDiscoveryButtonsForm::applyState(const SInlineButtonsState& state)
{
    const std::pair<QToolButton*, const SButtonState*> buttons[] = {
        {m_btnConnect, &state.connect}, {m_btnDisconnect, &state.disconnect}, {m_btnForceIP, &state.forceIp}};
    for (const auto& button : buttons) {
        button.first->setVisible(button.second->visible);
        button.first->setEnabled(button.second->enabled);
    }
}

void CDiscoveryButtonsForm::disableAll()
{
    m_btnForceIP->setEnabled(false);
    m_btnConnect->setEnabled(false);
    m_btnDisconnect->setEnabled(false);
}

void CDiscoveryButtonsForm::retranslateUi()
{
    m_btnConnect->setToolTip(tr("Connect"));
    m_btnDisconnect->setToolTip(tr("Disconnect"));
    m_btnForceIP->setToolTip(tr("Force IP"));
}
