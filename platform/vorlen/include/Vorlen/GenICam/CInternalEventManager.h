#pragma once
// Event subscriptions of one camera. Callbacks are called on threads of the
// camera library, never on the caller's; a callback must not block long.
#include <functional>
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CInternalEventManager
{
public:
    using ConnectProc = std::function<void(const SConnectArg&)>;
    using ParamUpdateProc = std::function<void(const SParamUpdataArg&)>;
    using StreamProc = std::function<void(const SStreamArg&)>;
    using MsgChannelProc = std::function<void(const SMsgChannelArg&)>;

    explicit CInternalEventManager(const Memory::TSharedPtr<ICamera>& camera);
    ~CInternalEventManager();   // unsubscribes everything

    // Connection events: the camera lost (heartbeat or control loss).
    bool subscribeConnectArgs(const ConnectProc& proc);
    bool unsubscribeConnectArgs();
    // After every successful write: the written feature and every feature
    // whose value, range or availability depends on it.
    bool subscribeParamUpdate(const ParamUpdateProc& proc);
    bool unsubscribeParamUpdate();
    // Per-frame status of the camera's streams.
    bool subscribeStreamArg(const StreamProc& proc);
    bool unsubscribeStreamArg();
    // GigE Vision message channel (camera events).
    bool subscribeMsgChannel(const MsgChannelProc& proc);
    bool unsubscribeMsgChannel();

    struct SImpl;

private:
    Memory::TSharedPtr<SImpl> d;
};

using CInternalEventManagerPtr = Memory::TSharedPtr<CInternalEventManager>;

} // namespace GenICam
} // namespace Vorlen
