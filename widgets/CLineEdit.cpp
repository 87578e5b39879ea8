#include "CLineEdit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

CLineEdit::CLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("CLineEdit"));
}

void CLineEdit::focusInEvent(QFocusEvent* event)
{
    m_textAtFocus = text();
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason)
        selectAll();
}

void CLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && text() != m_textAtFocus && !isReadOnly()) {
        setText(m_textAtFocus);
        emit editReverted();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}
