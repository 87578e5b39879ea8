#include "CWaitDlg.h"

#include "CBusyIndicator.h"
#include "CDialogTitleBar.h"
#include "FramelessDialogLayout.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>

CWaitDlg::CWaitDlg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("CWaitDlg"));
    setModal(true);
    setAttribute(Qt::WA_StyledBackground, true);
    setMinimumWidth(320);

    m_titleBar = new CDialogTitleBar(this);
    m_titleBar->setCloseButtonVisible(false);

    m_busy = new CBusyIndicator(this);
    m_textLabel = new QLabel(this);
    m_textLabel->setObjectName(QStringLiteral("waitText"));
    m_textLabel->setWordWrap(true);
    m_textLabel->setMinimumWidth(220);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(18, 14, 18, 18);
    body->setSpacing(14);
    body->addWidget(m_busy, 0, Qt::AlignVCenter);
    body->addWidget(m_textLabel, 1);

    frameFramelessDialog(this, m_titleBar, body);
}

void CWaitDlg::setTitle(const QString& title)
{
    m_titleBar->setTitle(title);
    setWindowTitle(title);
}

void CWaitDlg::setText(const QString& text)
{
    m_textLabel->setText(text);
}

QString CWaitDlg::title() const
{
    return m_titleBar->title();
}

QString CWaitDlg::text() const
{
    return m_textLabel->text();
}

void CWaitDlg::setCancellable(bool cancellable)
{
    m_cancellable = cancellable;
    m_titleBar->setCloseButtonVisible(cancellable);
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
