#pragma once
// "Save Features": the camera's stored user sets. Chooses the set
// (UserSetSelector), loads it into the camera (UserSetLoad), stores the
// current settings into it (UserSetSave) and picks the set loaded at power-up
// (UserSetDefault). The camera is read and written on the dialog's worker;
// the controls follow parameter updates of the device from the bus.
#include <QMap>

#include "CFeatureControlWorker.h"
#include "CFramelessDialog.h"
#include "CObserver.h"
#include "CTavMessage.h"
#include "MessageBox.h"

class QComboBox;
class QLabel;
class QPushButton;

class CSaveFeaturesDlg : public CFramelessDialog, public CObserver
{
    Q_OBJECT
public:
    CSaveFeaturesDlg(CTavDevicePtr device, QWidget* parent = nullptr);
    ~CSaveFeaturesDlg() override;

    void initUI();
    // Asks the worker for the feature's state; the control follows when it arrives.
    void initParam(QString name);
    void Update(CTavMessagePtr msg) override;

    // "Default", "UserSet1", "UserSet2" to their display texts; others unchanged.
    static QString transParam(const QString& entry);
    static QString retransParam(const QString& text);

    void setMessageHandler(const FailureHandler& handler) { m_messageHandler = handler; }
    CFeatureControlWorker* worker() const { return m_worker; }
    QComboBox* selectorCombo() const { return m_cbUserSetSelector; }
    QComboBox* defaultCombo() const { return m_cbUserSetDefault; }
    QPushButton* loadButton() const { return m_btnUserSetLoad; }
    QPushButton* saveButton() const { return m_btnUserSetSave; }

signals:
    void update_receive(CTavMessagePtr msg);
    // A feature's state has been shown.
    void paramShown(QString name);
    // A write or command came back (ok false: the message was shown).
    void actionFinished(QString name, bool ok);

public slots:
    void on_cbUserSetSelector_currentIndexChanged(int index);
    void on_cbUserSetDefault_currentIndexChanged(int index);
    void on_btnUserSetLoad_clicked();
    void on_btnUserSetSave_clicked();

private slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    void onStateRead(SFeatureState state);
    void onWriteDone(QString name, bool ok, QString error, SFeatureState state);
    void onExecuteDone(QString name, bool ok, QString error);

private:
    void retranslateUi();
    void showCombo(QComboBox* combo, const SFeatureState& state);
    void showButton(QPushButton* button, const SFeatureState& state);
    bool shownAtLevel(const SFeatureState& state) const;
    void readAll();

    CTavDevicePtr m_device;
    CFeatureControlWorker* m_worker = nullptr;
    QMap<QString, QLabel*> m_labels;   // by feature name
    QComboBox* m_cbUserSetSelector = nullptr;
    QComboBox* m_cbUserSetDefault = nullptr;
    QPushButton* m_btnUserSetLoad = nullptr;
    QPushButton* m_btnUserSetSave = nullptr;
    QPushButton* m_btnClose = nullptr;
    SFeatureState m_selectorState, m_defaultState;
    QString m_requestedSelector, m_requestedDefault;
    FailureHandler m_messageHandler;
};
