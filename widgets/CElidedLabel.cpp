#include "CElidedLabel.h"

#include <QPainter>
#include <QStyle>

CElidedLabel::CElidedLabel(QWidget* parent) : QLabel(parent)
{
    setWordWrap(false);
    setTextFormat(Qt::PlainText);
}

QString CElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void CElidedLabel::paintEvent(QPaintEvent* event)
{
    // The frame and background as QLabel draws them, then the text.
    QFrame::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          palette(), isEnabled(), shownText(), foregroundRole());
}
