#include "CWaitDlg.h"

#include "CBusyIndicator.h"
#include "CDialogTitleBar.h"
#include "FramelessDialogLayout.h"
#include "Named.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>

CWaitDlg::CWaitDlg(QWidget* parent)
    : CFramelessDialog(parent)
{
    setObjectName(QStringLiteral("CWaitDlg"));
    setModal(true);
    setMinimumWidth(320);
    titleBar()->setCloseButtonVisible(false);

    m_busy = new CBusyIndicator(this);
    m_textLabel = named(new QLabel(this), "waitText");
    m_textLabel->setWordWrap(true);
    m_textLabel->setMinimumWidth(220);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(18, 14, 18, 18);
    body->setSpacing(14);
    body->addWidget(m_busy, 0, Qt::AlignVCenter);
    body->addWidget(m_textLabel, 1);

    frameFramelessDialog(this, body);
}

void CWaitDlg::setText(const QString& text)
{
    m_textLabel->setText(text);
}

QString CWaitDlg::text() const
{
    return m_textLabel->text();
}

void CWaitDlg::setCancellable(bool cancellable)
{
    m_cancellable = cancellable;
    titleBar()->setCloseButtonVisible(cancellable);
}

void CWaitDlg::reject()
{
    // Escape must not hide a wait that is still running.
    if (m_cancellable)
        QDialog::reject();
}

void CWaitDlg::closeEvent(QCloseEvent* event)
{
    // Only the window manager's close is refused; close() from code still works.
    if (m_cancellable || !event->spontaneous()) {
        QDialog::closeEvent(event);
        return;
    }
    event->ignore();
}
