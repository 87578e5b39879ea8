#include "CTextWidthGuard.h"

#include <QEvent>
#include <QPushButton>
#include <QTimer>

CTextWidthGuard::CTextWidthGuard(QPushButton* button) : QObject(button), m_button(button)
{
    button->installEventFilter(this);
}

void CTextWidthGuard::install(QPushButton* button)
{
    new CTextWidthGuard(button);
    fit(button);
}

void CTextWidthGuard::fit(QPushButton* button)
{
    // Without an explicit minimum the size hint is the text's need (the
    // style sheet's min-width included).
    button->setMinimumWidth(0);
    button->setMinimumWidth(button->sizeHint().width());
}

bool CTextWidthGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_button)
    {
        switch (event->type())
        {
        case QEvent::Polish:
        case QEvent::StyleChange:
        case QEvent::FontChange:
        case QEvent::LanguageChange:
            // The style sheet sets its own minimum while it handles the
            // change, after this filter: fit once the change is through.
            fitLater();
            break;
        default:
            break;
        }
    }
    return false;
}

void CTextWidthGuard::fitLater()
{
    if (m_pending)
        return;
    m_pending = true;
    QTimer::singleShot(0, this, [this]() {
        m_pending = false;
        fit(m_button);
    });
}
