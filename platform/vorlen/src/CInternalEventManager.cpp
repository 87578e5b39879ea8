// Event subscriptions of one camera, delivered by the event hub.
#include "Vorlen/GenICam/CInternalEventManager.h"

#include "CAravisCamera.h"
#include "EventHub.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

struct CInternalEventManager::SImpl
{
    Memory::TSharedPtr<ICamera> camera;
    std::shared_ptr<EventHub::SSubscriber> subscriber;
};

namespace {

bool valid(const Memory::TSharedPtr<CInternalEventManager::SImpl>& d)
{
    if (!d || !d->camera) {
        setLastError(ERR_INVALID_HANDLE, "event manager without camera");
        return false;
    }
    clearLastError();
    return true;
}

} // namespace

CInternalEventManager::CInternalEventManager(const Memory::TSharedPtr<ICamera>& camera)
    : d(std::make_shared<SImpl>())
{
    d->camera = camera;
    d->subscriber = std::make_shared<EventHub::SSubscriber>();
    d->subscriber->camera = camera.get();
    if (camera)
        EventHub::attach(d->subscriber);
}

CInternalEventManager::~CInternalEventManager()
{
    if (d->subscriber->onMsgChannel)
        unsubscribeMsgChannel();
    EventHub::detach(d->subscriber);
}

bool CInternalEventManager::subscribeConnectArgs(const ConnectProc& proc)
{
    if (!valid(d))
        return false;
    if (!proc) {
        setLastError(ERR_INVALID_PARAMETER, "empty callback");
        return false;
    }
    EventHub::setConnectHandler(*d->subscriber, proc);
    return true;
}

bool CInternalEventManager::unsubscribeConnectArgs()
{
    if (!valid(d))
        return false;
    EventHub::setConnectHandler(*d->subscriber, ConnectProc());
    return true;
}

bool CInternalEventManager::subscribeParamUpdate(const ParamUpdateProc& proc)
{
    if (!valid(d))
        return false;
    if (!proc) {
        setLastError(ERR_INVALID_PARAMETER, "empty callback");
        return false;
    }
    EventHub::setParamUpdateHandler(*d->subscriber, proc);
    return true;
}

bool CInternalEventManager::unsubscribeParamUpdate()
{
    if (!valid(d))
        return false;
    EventHub::setParamUpdateHandler(*d->subscriber, ParamUpdateProc());
    return true;
}

bool CInternalEventManager::subscribeStreamArg(const StreamProc& proc)
{
    if (!valid(d))
        return false;
    if (!proc) {
        setLastError(ERR_INVALID_PARAMETER, "empty callback");
        return false;
    }
    EventHub::setStreamHandler(*d->subscriber, proc);
    return true;
}

bool CInternalEventManager::unsubscribeStreamArg()
{
    if (!valid(d))
        return false;
    EventHub::setStreamHandler(*d->subscriber, StreamProc());
    return true;
}

bool CInternalEventManager::subscribeMsgChannel(const MsgChannelProc& proc)
{
    if (!valid(d))
        return false;
    if (!proc) {
        setLastError(ERR_INVALID_PARAMETER, "empty callback");
        return false;
    }
    EventHub::setMsgChannelHandler(*d->subscriber, proc);
    // The channel opens with the first subscriber of a connected GigE
    // camera (or when the camera connects later).
    CAravisCamera* camera = toAravisCamera(d->camera);
    if (camera && camera->isGigE() && camera->isConnected() && !camera->openMessageChannel())
        return false;   // subscribed; the last error says why no event can come
    clearLastError();
    return true;
}

bool CInternalEventManager::unsubscribeMsgChannel()
{
    if (!valid(d))
        return false;
    EventHub::setMsgChannelHandler(*d->subscriber, MsgChannelProc());
    CAravisCamera* camera = toAravisCamera(d->camera);
    if (camera && !EventHub::hasSubscribers(camera, EventHub::kindMsgChannel))
        camera->closeMessageChannel();
    clearLastError();
    return true;
}

} // namespace GenICam
} // namespace Vorlen
