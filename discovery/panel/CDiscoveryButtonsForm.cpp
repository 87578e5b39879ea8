#include "CDiscoveryButtonsForm.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <utility>

#include "CLanguageWatcher.h"
#include "DeviceListRules.h"
#include "Named.h"

namespace {
// The buttons, left to right (CDiscoveryButtonsForm::EButton order).
struct SButton
{
    const char* name;
    const char* icon;
    const char* toolTip;
};
const SButton kButtons[] = {
    {"btnForceIP", ":/Pic/Icon_DevList_Settings.png", QT_TRANSLATE_NOOP("CDiscoveryButtonsForm", "Force IP")},
    {"btnConnect", ":/Pic/Icon_DevList_Connect.png", QT_TRANSLATE_NOOP("CDiscoveryButtonsForm", "Connect")},
    {"btnDisconnect", ":/Pic/Icon_DevList_Disconnect.png", QT_TRANSLATE_NOOP("CDiscoveryButtonsForm", "Disconnect")},
};
} // namespace

CDiscoveryButtonsForm::CDiscoveryButtonsForm(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("CDiscoveryButtonsForm"));
    // The form covers its whole row (device rows span their first column):
    // mouse moves over it reach the tree, which tracks the row under the mouse.
    setMouseTracking(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 2, 0);
    layout->setSpacing(2);
    layout->addStretch(1);
    for (int i = 0; i < kButtonCount; ++i) {
        auto* button = named(new QToolButton(this), kButtons[i].name);
        button->setIcon(QIcon(QLatin1String(kButtons[i].icon)));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        layout->addWidget(button);
        m_buttons[i] = button;
    }
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();
}

void CDiscoveryButtonsForm::applyState(const SInlineButtonsState& state)
{
    const std::pair<EButton, const SButtonState*> buttons[] = {
        {buttonConnect, &state.connect}, {buttonDisconnect, &state.disconnect}, {buttonForceIp, &state.forceIp}};
    for (const auto& button : buttons) {
        m_buttons[button.first]->setVisible(button.second->visible);
        m_buttons[button.first]->setEnabled(button.second->enabled);
    }
}

void CDiscoveryButtonsForm::disableAll()
{
    for (QToolButton* button : m_buttons)
        button->setEnabled(false);
}

void CDiscoveryButtonsForm::retranslateUi()
{
    for (int i = 0; i < kButtonCount; ++i)
        m_buttons[i]->setToolTip(tr(kButtons[i].toolTip));
}
