#include "CDialogTitleBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>

CDialogTitleBar::CDialogTitleBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("CDialogTitleBar"));
    setAttribute(Qt::WA_StyledBackground, true);
    setFixedHeight(32);

    m_titleLabel = new QLabel(this);
    m_titleLabel->setObjectName(QStringLiteral("dialogTitle"));

    m_closeButton = new QToolButton(this);
    m_closeButton->setObjectName(QStringLiteral("btnDialogClose"));
    m_closeButton->setText(QStringLiteral("\u2715"));
    m_closeButton->setAutoRaise(true);
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    m_closeButton->setFixedSize(28, 24);
    connect(m_closeButton, &QToolButton::clicked, this, [this]() {
        emit closeRequested();
        if (QWidget* w = window(); w && w != this)
            w->close();
    });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 4, 0);
    layout->setSpacing(6);
    layout->addWidget(m_titleLabel, 1);
    layout->addWidget(m_closeButton);
    retranslate();
}

void CDialogTitleBar::setTitle(const QString& title)
{
    m_titleLabel->setText(title);
    if (QWidget* w = window(); w && w != this)
        w->setWindowTitle(title);
}

QString CDialogTitleBar::title() const
{
    return m_titleLabel->text();
}

void CDialogTitleBar::setCloseButtonVisible(bool visible)
{
    m_closeButton->setVisible(visible);
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

void CDialogTitleBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void CDialogTitleBar::retranslate()
{
    m_closeButton->setToolTip(tr("Close"));
}
