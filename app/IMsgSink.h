#pragma once
#include <QEvent>

// Raw event of the sink hook: an id and four 64-bit parameters.
class CustomEvent : public QEvent
{
public:
    static const QEvent::Type kType = static_cast<QEvent::Type>(QEvent::User + 100);   // 1100

    CustomEvent(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                unsigned long long p4);

    unsigned int id;
    unsigned long long param1;
    unsigned long long param2;
    unsigned long long param3;
    unsigned long long param4;
};

class QObject;

// Implemented by the device manager beside QObject; handed to every device.
class IMsgSink
{
public:
    virtual ~IMsgSink() = default;
    // Posts a CustomEvent to the sink object; returns at once.
    virtual void postMsg(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                         unsigned long long p4);
    // Delivers a CustomEvent synchronously; false without an application object.
    virtual bool sendMsg(unsigned int id, unsigned long long p1, unsigned long long p2, unsigned long long p3,
                         unsigned long long p4);

protected:
    virtual QObject* sinkObject() = 0;
};
