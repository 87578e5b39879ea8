#pragma once
// About box: program name and version, and the version of the camera layer.
#include "CFramelessDialog.h"

class QLabel;
class QPushButton;

class CAboutDlg : public CFramelessDialog
{
    Q_OBJECT
public:
    explicit CAboutDlg(QWidget* parent = nullptr);

    static QString programVersion();
    static QString cameraLayerVersion();
    QString text() const;

private:
    void retranslate();

    QLabel* m_iconLabel;
    QLabel* m_textLabel;
    QPushButton* m_okButton;
};
