#pragma once
// A frameless modal wait dialog: a title, a text and a busy animation.
// Show it with open() or show() so the caller's thread keeps running, and
// close it with accept()/done() when the work it stands for has finished.
// The user cannot dismiss it with Escape or the window manager; a caller that
// offers cancelling shows the close button with setCancellable(true) and
// listens to rejected().
#include "CFramelessDialog.h"

class QLabel;
class CBusyIndicator;

class CWaitDlg : public CFramelessDialog
{
    Q_OBJECT
public:
    explicit CWaitDlg(QWidget* parent = nullptr);

    // The title is set with setTitle() (CFramelessDialog).
    void setText(const QString& text);
    QString text() const;

    void setCancellable(bool cancellable);
    bool isCancellable() const { return m_cancellable; }

    CBusyIndicator* busyIndicator() const { return m_busy; }

public slots:
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    CBusyIndicator* m_busy;
    QLabel* m_textLabel;
    bool m_cancellable = false;
};
