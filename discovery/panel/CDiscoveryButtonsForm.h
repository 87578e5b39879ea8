#pragma once
// The inline buttons of the device row under the mouse: Force IP, Connect and
// Disconnect. Which ones show, and their state, is set by the device tree.
#include <QFrame>

class QToolButton;

class CDiscoveryButtonsForm : public QFrame
{
    Q_OBJECT
public:
    explicit CDiscoveryButtonsForm(QWidget* parent = nullptr);

    QToolButton* getConnectBtn() const { return m_btnConnect; }
    QToolButton* getDisconnectBtn() const { return m_btnDisconnect; }
    QToolButton* getForceIPBtn() const { return m_btnForceIP; }
    // All three disabled while a connection or disconnection is under way.
    void disableAll();

private:
    QToolButton* m_btnForceIP;
    QToolButton* m_btnConnect;
    QToolButton* m_btnDisconnect;
};
