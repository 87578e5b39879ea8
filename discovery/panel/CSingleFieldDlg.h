#pragma once
// Frame shared by the small one-field dialogs: the application's title bar
// (close button only), a label with one line edit, and OK / Cancel. OK runs
// the subclass' check (validate) and accepts only when it passes.
#include "CFramelessDialog.h"

class QLabel;
class QLineEdit;
class QPushButton;

class CSingleFieldDlg : public CFramelessDialog
{
    Q_OBJECT
public:
    explicit CSingleFieldDlg(QWidget* parent = nullptr);

    QString getEditValue() const;
    QLineEdit* lineEdit() const { return m_lineEdit; }
    QPushButton* okButton() const { return m_btnOk; }
    QPushButton* cancelButton() const { return m_btnCancel; }
    QString titleText() const { return title(); }
    QString labelText() const;

public slots:
    void on_btnOk_clicked();
    void on_btnCancel_clicked();

protected:
    // The highlighted OK button.
    void initFrame();
    void setTexts(const QString& title, const QString& label);
    // Shows its own message and returns false to keep the dialog open.
    virtual bool validate() = 0;
    // Called on every language change, too.
    virtual void retranslateUi() = 0;
    // When the text is longer in the local 8-bit encoding than the edit
    // allows, shows the message with %1 the edit's maximum length; true then.
    bool refuseTooLong(const QString& message);

private:
    QLabel* m_label;
    QLineEdit* m_lineEdit;
    QPushButton* m_btnOk;
    QPushButton* m_btnCancel;
};
