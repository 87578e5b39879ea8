#include "CLanguageWatcher.h"

#include <QEvent>
#include <QWidget>

CLanguageWatcher::CLanguageWatcher(QWidget* widget, std::function<void()> retranslate)
    : QObject(widget), m_retranslate(std::move(retranslate))
{
    widget->installEventFilter(this);
}

void CLanguageWatcher::install(QWidget* widget, std::function<void()> retranslate)
{
    new CLanguageWatcher(widget, std::move(retranslate));
}

bool CLanguageWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::LanguageChange)
        m_retranslate();
    return false;
}
