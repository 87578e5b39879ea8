#include "CVideoFullScreenWnd.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>

CVideoFullScreenWnd::CVideoFullScreenWnd(QWidget* parent) : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("videoFullScreenWnd"));
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void CVideoFullScreenWnd::enter(QWidget* content, QLayout* homeLayout, int index)
{
    if (!content || isActive())
        return;
    m_content = content;
    m_home = homeLayout;
    m_index = index;
    m_layout->addWidget(content);
    content->show();
    showFullScreen();
    activateWindow();
    setFocus();
}

void CVideoFullScreenWnd::exitFullScreen()
{
    if (!isActive())
        return;
    QWidget* content = m_content;
    m_content.clear();
    m_layout->removeWidget(content);
    if (auto* box = qobject_cast<QBoxLayout*>(m_home.data()))
        box->insertWidget(m_index, content, 1);
    else if (m_home)
        m_home->addWidget(content);
    content->show();
    hide();
    emit exited();
}

void CVideoFullScreenWnd::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        exitFullScreen();
        return;
    }
    QWidget::keyPressEvent(event);
}

void CVideoFullScreenWnd::closeEvent(QCloseEvent* event)
{
    exitFullScreen();
    event->ignore();
}
