#include "IMsgSink.h"

#include <QCoreApplication>
#include <QObject>

CustomEvent::CustomEvent(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                         unsigned long long p4)
    : QEvent(kType)
    , id(id)
    , param1(p1)
    , param2(p2)
    , param3(p3)
    , param4(p4)
{
}

void IMsgSink::postMsg(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                       unsigned long long p4)
{
    QObject* target = sinkObject();
    if (!target)
        return;
    // Qt takes ownership of the posted event.
    QCoreApplication::postEvent(target, new CustomEvent(id, p1, p2, p3, p4), Qt::NormalEventPriority);
}

bool IMsgSink::sendMsg(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                       unsigned long long p4)
{
    QCoreApplication* app = QCoreApplication::instance();
    QObject* target = sinkObject();
    if (!app || !target)
        return false;
    CustomEvent event(id, p1, p2, p3, p4);
    return app->notify(target, &event);
}
