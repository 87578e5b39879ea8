// Event subscriptions of one camera, delivered by the event hub.
#include "Vorlen/GenICam/CInternalEventManager.h"

#include "CAravisCamera.h"
#include "CLibraryLifetime.h"
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

namespace {

// Sets a handler of the manager's subscriber; refused for an empty one and
// once the library is shut down.
template <class Proc>
bool subscribe(const Memory::TSharedPtr<CInternalEventManager::SImpl>& d,
               void (*set)(EventHub::SSubscriber&, const Proc&), const Proc& proc)
{
    if (!valid(d))
        return false;
    if (!proc) {
        setLastError(ERR_INVALID_PARAMETER, "empty callback");
        return false;
    }
    if (CLibraryLifetime::refuse())
        return false;
    set(*d->subscriber, proc);
    return true;
}

// Clears a handler; once it returns the old one no longer runs.
template <class Proc>
bool unsubscribe(const Memory::TSharedPtr<CInternalEventManager::SImpl>& d,
                 void (*set)(EventHub::SSubscriber&, const Proc&))
{
    if (!valid(d))
        return false;
    set(*d->subscriber, Proc());
    return true;
}

} // namespace

bool CInternalEventManager::subscribeConnectArgs(const ConnectProc& proc)
{
    if (!subscribe(d, &EventHub::setConnectHandler, proc))
        return false;
    // A camera lost before anybody listened (between connecting and
    // subscribing, say) is reported to the newcomer at once.
    CAravisCamera* camera = toAravisCamera(d->camera);
    if (camera && camera->lossUnclosed()) {
        SConnectArg arg;
        arg.event = connectEventOffline;
        arg.key = camera->getKey();
        EventHub::tellConnect(d->subscriber, arg);
    }
    return true;
}

bool CInternalEventManager::unsubscribeConnectArgs()
{
    return unsubscribe(d, &EventHub::setConnectHandler);
}

bool CInternalEventManager::subscribeParamUpdate(const ParamUpdateProc& proc)
{
    return subscribe(d, &EventHub::setParamUpdateHandler, proc);
}

bool CInternalEventManager::unsubscribeParamUpdate()
{
    return unsubscribe(d, &EventHub::setParamUpdateHandler);
}

bool CInternalEventManager::subscribeStreamArg(const StreamProc& proc)
{
    return subscribe(d, &EventHub::setStreamHandler, proc);
}

bool CInternalEventManager::unsubscribeStreamArg()
{
    return unsubscribe(d, &EventHub::setStreamHandler);
}

bool CInternalEventManager::subscribeMsgChannel(const MsgChannelProc& proc)
{
    if (!subscribe(d, &EventHub::setMsgChannelHandler, proc))
        return false;
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
    if (!unsubscribe(d, &EventHub::setMsgChannelHandler))
        return false;
    CAravisCamera* camera = toAravisCamera(d->camera);
    if (camera && !EventHub::hasSubscribers(camera, EventHub::kindMsgChannel))
        camera->closeMessageChannel();
    clearLastError();
    return true;
}

} // namespace GenICam
} // namespace Vorlen
