#pragma once
// About box: program name and version, and the version of the camera layer.
#include <QDialog>

class CDialogTitleBar;
class QLabel;
class QPushButton;

class CAboutDlg : public QDialog
{
    Q_OBJECT
public:
    explicit CAboutDlg(QWidget* parent = nullptr);

    static QString programVersion();
    static QString cameraLayerVersion();
    QString text() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    CDialogTitleBar* m_titleBar;
    QLabel* m_iconLabel;
    QLabel* m_textLabel;
    QPushButton* m_okButton;
};
