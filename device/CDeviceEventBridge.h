#pragma once
// The camera's events as the device's signals: subscribes to a connected
// camera's event manager and turns each callback, which arrives on a thread
// of the camera library, into one emission of a device signal. The callbacks
// hold the device weakly: a device that has gone away gets nothing.
#include <QString>
#include <memory>

#include "CGuardedPtr.h"
#include "Vorlen/GenICam.h"

class CTavDevice;

class CDeviceEventBridge
{
public:
    // Device's worker: makes the camera's event manager and subscribes, in
    // this order, to connection events, feature updates, stream events and
    // message-channel events; each failure is logged.
    void attach(const Vorlen::GenICam::ICameraPtr& camera, const std::weak_ptr<CTavDevice>& device,
                const QString& key);
    // Device's worker: the four subscriptions end (when attached).
    void unsubscribe();
    // Lets go of the event manager.
    void release() { m_events.take(); }
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> eventManager() const { return m_events.get(); }

private:
    CGuardedPtr<Vorlen::GenICam::CInternalEventManager> m_events;
};
