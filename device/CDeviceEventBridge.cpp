#include "CDeviceEventBridge.h"

#include "CDeviceFeatures.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;

namespace {
void logUnless(bool ok, const char* what)
{
    if (!ok)
        LOG_ERROR("%s fail. [%s]", what, CDeviceFeatures::errorText().constData());
}
} // namespace

void CDeviceEventBridge::attach(const ICameraPtr& camera, const std::weak_ptr<CTavDevice>& device, const QString& key)
{
    const Vorlen::Memory::TSharedPtr<CInternalEventManager> events =
        Vorlen::Memory::makeShared<CInternalEventManager>(camera);
    m_events.exchange(events);

    logUnless(events->subscribeConnectArgs([device, key](const SConnectArg& arg) {
        if (arg.event != connectEventOffline)
            return;
        if (const std::shared_ptr<CTavDevice> d = device.lock())
            emit d->device_offline(key);
    }),
              "subscribeConnectArgs");

    logUnless(events->subscribeParamUpdate([device, key](const SParamUpdataArg& arg) {
        const std::shared_ptr<CTavDevice> d = device.lock();
        if (!d)
            return;
        // A user id written elsewhere (the feature panel) refreshes the cache.
        for (const CString& name : arg.paramNames)
        {
            if (name == CString("DeviceUserID"))
            {
                d->refreshUserId();
                break;
            }
        }
        emit d->device_param_update(arg, key);
    }),
              "subscribeParamUpdate");

    logUnless(events->subscribeStreamArg([device, key](const SStreamArg& arg) {
        if (const std::shared_ptr<CTavDevice> d = device.lock())
            emit d->device_stream_event(arg, key);
    }),
              "subscribeStreamArg");

    logUnless(events->subscribeMsgChannel([device, key](const SMsgChannelArg& arg) {
        if (const std::shared_ptr<CTavDevice> d = device.lock())
            emit d->device_msg_channel(arg, key);
    }),
              "subscribeMsgChannel");
}

void CDeviceEventBridge::unsubscribe()
{
    const Vorlen::Memory::TSharedPtr<CInternalEventManager> events = m_events.get();
    if (!events)
        return;
    logUnless(events->unsubscribeConnectArgs(), "unsubscribeConnectArgs");
    logUnless(events->unsubscribeParamUpdate(), "unsubscribeParamUpdate");
    logUnless(events->unsubscribeStreamArg(), "unsubscribeStreamArg");
    logUnless(events->unsubscribeMsgChannel(), "unsubscribeMsgChannel");
}
