#include "CVideoTitleBar.h"

#include <QApplication>
#include <QDrag>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolButton>

const char* const CVideoTitleBar::kDragMimeType = "application/x-lumidor-video-form";

CVideoTitleBar::CVideoTitleBar(int formId, QWidget* parent) : QWidget(parent), m_formId(formId)
{
    setObjectName(QStringLiteral("videoTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("lblVideoTitle"));
    m_title->setTextInteractionFlags(Qt::NoTextInteraction);
    m_btnMax = new QToolButton(this);
    m_btnMax->setObjectName(QStringLiteral("btnVideoMaximize"));
    m_btnMax->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Video_Maximize.png")));
    m_btnMax->setAutoRaise(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 1, 2, 1);
    layout->setSpacing(4);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_btnMax);
    connect(m_btnMax, &QToolButton::clicked, this, &CVideoTitleBar::maximizeClicked);
    retranslate();
}

void CVideoTitleBar::setTitle(const QString& title)
{
    m_title->setText(title);
    m_title->setToolTip(title);
}

QString CVideoTitleBar::title() const
{
    return m_title->text();
}

void CVideoTitleBar::setMaxMode(bool max)
{
    m_maxMode = max;
    retranslate();
}

void CVideoTitleBar::retranslate()
{
    m_btnMax->setToolTip(m_maxMode ? tr("Restore") : tr("Maximize"));
}

void CVideoTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = true;
        m_pressPos = event->pos();
        emit clicked();
    }
    QWidget::mousePressEvent(event);
}

void CVideoTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed || !(event->buttons() & Qt::LeftButton)
        || (event->pos() - m_pressPos).manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed = false;
    auto* mime = new QMimeData;
    mime->setData(kDragMimeType, QByteArray::number(m_formId));
    QDrag drag(this);
    drag.setMimeData(mime);
    if (QWidget* view = parentWidget())
        drag.setPixmap(view->grab().scaledToWidth(160, Qt::SmoothTransformation));
    drag.exec(Qt::MoveAction);
}

void CVideoTitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit maximizeClicked();
    QWidget::mouseDoubleClickEvent(event);
}

void CVideoTitleBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
