#pragma once
// Changes the IPv4 configuration of a GigE Vision camera: shows the host
// interface and the camera's addresses, checks the new address, mask and
// gateway, forces them as the camera's temporary address and, when asked,
// writes them as its persistent address on CSetIpThread. Every camera round
// trip runs off the GUI thread; a wait dialog shows while it does.
#include <QEvent>

#include "CFramelessDialog.h"
#include "Vorlen/GenICam/CInterfaceInfo.h"
#include "Vorlen/Infra/CString.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class CSetIpThread;
class CWaitDlg;

class CSetIPDlg : public CFramelessDialog
{
    Q_OBJECT
public:
    // The custom event postMsg() posts to the dialog itself.
    static const int kPostMsgEventType = 1100;
    class CPostMsgEvent : public QEvent
    {
    public:
        CPostMsgEvent(unsigned int msg, unsigned long long w, unsigned long long l)
            : QEvent(QEvent::Type(kPostMsgEventType)), message(msg), wParam(w), lParam(l)
        {
        }
        unsigned int message;
        unsigned long long wParam;
        unsigned long long lParam;
    };

    explicit CSetIPDlg(bool modal = true, QWidget* parent = nullptr);
    ~CSetIPDlg() override;

    // Fills both sections; "Device not found." when the key no longer resolves.
    bool setInfo(const Vorlen::GenICam::TSharedPtrGigEInterfaceInfo& info, const Vorlen::Infra::CString& key);

    // True only for 255.0.0.0, 255.255.0.0, 255.255.255.0 and 255.255.255.255.
    static bool isNetMaskMatched(const QString& mask);
    static bool isInSameSubnet(const QString& a, const QString& b, const QString& mask);
    // Every dotted part of 256..999 becomes 255; true when something changed.
    static bool invalidIPto255(QString& text);
    // Message of a checkIp code (empty for 0).
    static QString checkIpMessage(int code);

    void postMsg(unsigned int msg, unsigned long long wParam, unsigned long long lParam);
    void saveConfig();
    void restoreConfig();

    // For tests and for the tree: the widgets by their form names.
    QLineEdit* txtInterfaceMac() const { return m_txtInterfaceMac; }
    QLineEdit* txtInterfaceIP() const { return m_txtInterfaceIP; }
    QLineEdit* txtInterfaceSubnetMask() const { return m_txtInterfaceSubnetMask; }
    QLineEdit* txtInterfaceGateway() const { return m_txtInterfaceGateway; }
    QLineEdit* txtDevMac() const { return m_txtDevMac; }
    QLineEdit* txtDevIP() const { return m_txtDevIP; }
    QLineEdit* txtDevSubnetMask() const { return m_txtDevSubnetMask; }
    QLineEdit* txtDevGateway() const { return m_txtDevGateway; }
    QCheckBox* cbSetPersistentIP() const { return m_cbSetPersistentIP; }
    QPushButton* btnOk() const { return m_btnOk; }
    QString hintText() const;
    // The device address is outside the interface's subnet (warning icon shown).
    bool isSubnetWarningShown() const { return m_bSubnetWarning; }
    CWaitDlg* waitDialog() const { return m_pWaitDlg; }
    // A force or persistent write is under way.
    bool isBusy() const { return m_bBusy; }

public slots:
    // Refused while a camera write is under way, so its outcome is shown.
    void reject() override;
    void on_btnOk_clicked();
    void on_btnCancel_clicked();
    void on_txtDevIP_textEdited(const QString& text);
    void on_txtDevSubnetMask_textEdited(const QString& text);
    void on_txtDevGateway_textEdited(const QString& text);
    void on_txtDevIP_cursorPositionChanged(int oldPos, int newPos);
    void on_txtDevSubnetMask_cursorPositionChanged(int oldPos, int newPos);
    void on_txtDevGateway_cursorPositionChanged(int oldPos, int newPos);
    void onSetIpEnd(bool ok);
    void onRestoreCfg();

protected:
    bool event(QEvent* event) override;

private:
    void retranslateUi();
    void buildUi();
    void onDeviceFieldEdited(QLineEdit* edit);
    void onCursorMoved(QLineEdit* edit, int newPos);
    void updateSubnetWarning();
    void forceDone(bool ok, const QString& ip, const QString& mask, const QString& gateway, bool persistent);
    void showWait(const QString& text);
    void closeWait();

    Vorlen::Infra::CString m_strKey;
    Vorlen::GenICam::TSharedPtrGigEInterfaceInfo m_ptrInterfaceInfo;
    CSetIpThread* m_pSetIpThread;
    CWaitDlg* m_pWaitDlg;
    bool m_bBusy = false;
    bool m_bSubnetWarning = false;

    QLabel* m_lblInterfaceSection;
    QLabel* m_lblDeviceSection;
    QLabel* m_lblDeviceStatus;
    QLabel* m_lblHint;
    QLabel* m_lblInterfaceMac;
    QLabel* m_lblInterfaceIP;
    QLabel* m_lblInterfaceMask;
    QLabel* m_lblInterfaceGateway;
    QLabel* m_lblDevMac;
    QLabel* m_lblDevIP;
    QLabel* m_lblDevMask;
    QLabel* m_lblDevGateway;
    QLineEdit* m_txtInterfaceMac;
    QLineEdit* m_txtInterfaceIP;
    QLineEdit* m_txtInterfaceSubnetMask;
    QLineEdit* m_txtInterfaceGateway;
    QLineEdit* m_txtDevMac;
    QLineEdit* m_txtDevIP;
    QLineEdit* m_txtDevSubnetMask;
    QLineEdit* m_txtDevGateway;
    QCheckBox* m_cbSetPersistentIP;
    QPushButton* m_btnOk;
    QPushButton* m_btnCancel;
};
