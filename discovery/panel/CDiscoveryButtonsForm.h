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

    QToolButton* getConnectBtn() const { return m_btnConnect; }
    QToolButton* getDisconnectBtn() const { return m_btnDisconnect; }
    QToolButton* getForceIPBtn() const { return m_btnForceIP; }
    void applyState(const SInlineButtonsState& state);
    // All three disabled while a connection or disconnection is under way.
    void disableAll();

private:
    void retranslateUi();

    QToolButton* m_btnForceIP;
    QToolButton* m_btnConnect;
    QToolButton* m_btnDisconnect;
};
