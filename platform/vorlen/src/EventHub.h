#pragma once
// Delivery of camera events to the subscribers of each camera's event
// managers. Publishers are the camera (connection loss), parameter nodes
// (writes) and streams (per-frame status); callbacks run on the dispatch
// thread of their camera, never on the publisher's, so a slow subscriber
// never stalls a stream or a GUI call, nor another camera's events. The
// functions below work on the process-wide hub (CEventHub).
#include <functional>
#include <memory>
#include "Vorlen/GenICam/ICamera.h"
#include "Vorlen/GenICam/CInternalEventManager.h"

namespace Vorlen {
namespace GenICam {
namespace EventHub {

void publishConnect(const ICamera* camera, const SConnectArg& arg);
void publishParamUpdate(const ICamera* camera, const SParamUpdataArg& arg);
void publishStream(const ICamera* camera, const SStreamArg& arg);
void publishMsgChannel(const ICamera* camera, const SMsgChannelArg& arg);

// True when anybody subscribed to stream events of this camera (lets the
// stream skip building records nobody reads).
bool hasStreamSubscribers(const ICamera* camera);

// --- Internal to the library -------------------------------------------

enum EKind
{
    kindConnect = 0,
    kindParamUpdate,
    kindStream,
    kindMsgChannel
};

// The handlers of one event manager. Handlers are changed only through
// setHandler so that the dispatch thread never sees a half-written one.
struct SSubscriber
{
    const ICamera* camera = nullptr;
    CInternalEventManager::ConnectProc onConnect;
    CInternalEventManager::ParamUpdateProc onParamUpdate;
    CInternalEventManager::StreamProc onStream;
    CInternalEventManager::MsgChannelProc onMsgChannel;
};

void attach(const std::shared_ptr<SSubscriber>& subscriber);
// Removes the subscriber; once it returns (off the dispatch thread) none of
// its handlers runs any more.
void detach(const std::shared_ptr<SSubscriber>& subscriber);
void setConnectHandler(SSubscriber& s, const CInternalEventManager::ConnectProc& proc);
void setParamUpdateHandler(SSubscriber& s, const CInternalEventManager::ParamUpdateProc& proc);
void setStreamHandler(SSubscriber& s, const CInternalEventManager::StreamProc& proc);
void setMsgChannelHandler(SSubscriber& s, const CInternalEventManager::MsgChannelProc& proc);
bool hasSubscribers(const ICamera* camera, EKind kind);

// Delivers a connection event to one subscriber only (one who subscribed
// after its camera was lost), after the camera's events queued before it.
void tellConnect(const std::shared_ptr<SSubscriber>& subscriber, const SConnectArg& arg);
// The camera object is going away: its dispatch thread ends.
void forget(const ICamera* camera);
// True on the dispatch thread of any camera.
bool onDispatchThread();
// Waits until everything queued so far for any camera has been delivered
// (not from a dispatch thread; returns false on timeout).
bool flush(unsigned int timeoutMs);
// Ends delivery for good: drops every subscriber and queued event and joins
// the dispatch thread. Idempotent; publishing afterwards does nothing.
void shutdown();

} // namespace EventHub
} // namespace GenICam
} // namespace Vorlen
