#pragma once
// The application's message box: icon, message, the standard buttons asked
// for and, optionally, a file (such as a load report) the user can open.
// exec() returns the QMessageBox::StandardButton that closed the box.
#include <QDialog>
#include <QMessageBox>

class QLabel;
class QDialogButtonBox;
class QPushButton;
class QAbstractButton;
class QWidget;

class CCommonMessageBox : public QDialog
{
    Q_OBJECT
public:
    explicit CCommonMessageBox(QWidget* parent = nullptr);

    void setMessage(const QString& text);
    void setButtons(QMessageBox::StandardButtons buttons);
    void setIcon(QMessageBox::Icon icon);
    void setFilePath(const QString& path);

    QString message() const;
    QMessageBox::StandardButtons buttons() const { return m_buttons; }
    QMessageBox::Icon icon() const { return m_icon; }
    QString filePath() const { return m_filePath; }
    // The button for a standard button, or null when it is not shown.
    QPushButton* button(QMessageBox::StandardButton which) const;

protected:
    bool event(QEvent* event) override;

public slots:
    // Escape / window close: Cancel, else No, else the only button there is.
    void reject() override;

private slots:
    void onButtonClicked(QAbstractButton* button);
    void onOpenFileClicked();

private:
    void retranslate();
    QString buttonText(QMessageBox::StandardButton which) const;

    QLabel* m_iconLabel;
    QLabel* m_messageLabel;
    QWidget* m_fileRow;
    QLabel* m_fileLabel;
    QPushButton* m_openFileButton;
    QDialogButtonBox* m_buttonBox;
    QMessageBox::StandardButtons m_buttons;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
    QString m_filePath;
};
