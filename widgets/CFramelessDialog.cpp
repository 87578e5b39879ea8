#include "CFramelessDialog.h"

#include "CDialogTitleBar.h"

CFramelessDialog::CFramelessDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_StyledBackground, true);
    m_titleBar = new CDialogTitleBar(this);
}

void CFramelessDialog::setTitle(const QString& title)
{
    // The bar passes the title on to the window.
    m_titleBar->setTitle(title);
}

QString CFramelessDialog::title() const
{
    return m_titleBar->title();
}
