#include "CDialogTitleBar.h"

#include <QLayout>
#include <QMouseEvent>
#include <QToolButton>

#include "CLanguageWatcher.h"

CDialogTitleBar::CDialogTitleBar(QWidget* parent)
    : CTitleBar(QStringLiteral("dialogTitle"), QStringLiteral("btnDialogClose"), parent)
{
    setObjectName(QStringLiteral("CDialogTitleBar"));
    setFixedHeight(32);
    layout()->setContentsMargins(12, 0, 4, 0);
    layout()->setSpacing(6);

    QToolButton* close = closeButton();
    close->setText(QStringLiteral("\u2715"));
    close->setFocusPolicy(Qt::NoFocus);
    close->setFixedSize(28, 24);
    connect(close, &QToolButton::clicked, this, [this]() {
        emit closeRequested();
        if (QWidget* w = window(); w && w != this)
            w->close();
    });
    CLanguageWatcher::install(this, [this]() { retranslate(); });
    retranslate();
}

void CDialogTitleBar::setTitle(const QString& title)
{
    CTitleBar::setTitle(title);
    if (QWidget* w = window(); w && w != this)
        w->setWindowTitle(title);
}

void CDialogTitleBar::setCloseButtonVisible(bool visible)
{
    closeButton()->setVisible(visible);
}

void CDialogTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && window() != this) {
        m_dragging = true;
        m_dragOffset = event->globalPos() - window()->frameGeometry().topLeft();
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void CDialogTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging && (event->buttons() & Qt::LeftButton)) {
        window()->move(event->globalPos() - m_dragOffset);
        event->accept();
        return;
    }
    QWidget::mouseMoveEvent(event);
}

void CDialogTitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    QWidget::mouseReleaseEvent(event);
}

void CDialogTitleBar::retranslate()
{
    closeButton()->setToolTip(tr("Close"));
}
