// Delivery of camera events, over the process-wide event hub.
#include "EventHub.h"

#include "CEventHub.h"

namespace Vorlen {
namespace GenICam {
namespace EventHub {

namespace {

template <class Arg, class Proc>
void publish(const ICamera* camera, const Arg& arg, Proc SSubscriber::*member)
{
    if (!camera)
        return;
    CEventHub::instance().post(camera, [camera, arg, member] {
        for (const Proc& proc : CEventHub::instance().handlers(camera, member)) {
            // A throwing subscriber must not keep the others from their event.
            try {
                proc(arg);
            } catch (...) {
            }
        }
    });
}

} // namespace

void publishConnect(const ICamera* camera, const SConnectArg& arg)
{
    publish(camera, arg, &SSubscriber::onConnect);
}

void publishParamUpdate(const ICamera* camera, const SParamUpdataArg& arg)
{
    publish(camera, arg, &SSubscriber::onParamUpdate);
}

void publishStream(const ICamera* camera, const SStreamArg& arg)
{
    publish(camera, arg, &SSubscriber::onStream);
}

void publishMsgChannel(const ICamera* camera, const SMsgChannelArg& arg)
{
    publish(camera, arg, &SSubscriber::onMsgChannel);
}

bool hasStreamSubscribers(const ICamera* camera)
{
    return hasSubscribers(camera, kindStream);
}

bool hasSubscribers(const ICamera* camera, EKind kind)
{
    return CEventHub::instance().hasSubscribers(camera, kind);
}

void attach(const std::shared_ptr<SSubscriber>& subscriber)
{
    CEventHub::instance().attach(subscriber);
}

void detach(const std::shared_ptr<SSubscriber>& subscriber)
{
    CEventHub::instance().detach(subscriber);
}

void setConnectHandler(SSubscriber& s, const CInternalEventManager::ConnectProc& proc)
{
    CEventHub::instance().setHandler(s, &SSubscriber::onConnect, proc);
}

void setParamUpdateHandler(SSubscriber& s, const CInternalEventManager::ParamUpdateProc& proc)
{
    CEventHub::instance().setHandler(s, &SSubscriber::onParamUpdate, proc);
}

void setStreamHandler(SSubscriber& s, const CInternalEventManager::StreamProc& proc)
{
    CEventHub::instance().setHandler(s, &SSubscriber::onStream, proc);
}

void setMsgChannelHandler(SSubscriber& s, const CInternalEventManager::MsgChannelProc& proc)
{
    CEventHub::instance().setHandler(s, &SSubscriber::onMsgChannel, proc);
}

void tellConnect(const std::shared_ptr<SSubscriber>& subscriber, const SConnectArg& arg)
{
    if (!subscriber)
        return;
    CEventHub::instance().post(subscriber->camera, [subscriber, arg] {
        if (const auto proc = CEventHub::instance().handlerOf(*subscriber, &SSubscriber::onConnect)) {
            try {
                proc(arg);
            } catch (...) {
            }
        }
    });
}

void forget(const ICamera* camera)
{
    CEventHub::instance().forget(camera);
}

bool onDispatchThread()
{
    return CEventDispatcher::onAnyThread();
}

bool flush(unsigned int timeoutMs)
{
    if (onDispatchThread())
        return false;
    return CEventHub::instance().flush(timeoutMs);
}

void shutdown()
{
    CEventHub::instance().shutdown();
}

} // namespace EventHub
} // namespace GenICam
} // namespace Vorlen
