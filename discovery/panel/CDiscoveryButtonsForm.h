#pragma once
// The inline buttons of the device row under the mouse: Force IP, Connect and
// Disconnect, with their tool tips. Which ones show, and whether they are
// enabled, the device tree sets from the row's state (DeviceListRules.h).
#include <QFrame>

class QToolButton;
struct SInlineButtonsState;

class CDiscoveryButtonsForm : public QFrame
{
    Q_OBJECT
public:
    explicit CDiscoveryButtonsForm(QWidget* parent = nullptr);

    QToolButton* getConnectBtn() const { return m_buttons[buttonConnect]; }
    QToolButton* getDisconnectBtn() const { return m_buttons[buttonDisconnect]; }
    QToolButton* getForceIPBtn() const { return m_buttons[buttonForceIp]; }
    void applyState(const SInlineButtonsState& state);
    // All three disabled while a connection or disconnection is under way.
    void disableAll();

private:
    // The buttons, left to right.
    enum EButton
    {
        buttonForceIp,
        buttonConnect,
        buttonDisconnect,
        kButtonCount
    };

    void retranslateUi();

    QToolButton* m_buttons[kButtonCount] = {};
};
