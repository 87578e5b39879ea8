#pragma once
// Base of the application's frameless dialogs: no window-manager frame, the
// house title bar (CDialogTitleBar) at the top, and the title shown in the
// bar and as the window's title. A subclass builds its body and lays it out
// under the bar with layOutFramelessDialog or frameFramelessDialog
// (FramelessDialogLayout.h).
#include <QDialog>

class CDialogTitleBar;

class CFramelessDialog : public QDialog
{
    Q_OBJECT
public:
    void setTitle(const QString& title);
    QString title() const;
    CDialogTitleBar* titleBar() const { return m_titleBar; }

protected:
    explicit CFramelessDialog(QWidget* parent);

private:
    CDialogTitleBar* m_titleBar;
};
