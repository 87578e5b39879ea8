#pragma once
// Delivery of camera events to the subscribers of each camera's event
// managers. Publishers are the camera (connection loss), parameter nodes
// (writes) and streams (per-frame status); callbacks run on the hub's own
// dispatch thread, never on the publisher's, so a slow subscriber never
// stalls a stream or a GUI call.
#include "Vorlen/GenICam/ICamera.h"

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

} // namespace EventHub
} // namespace GenICam
} // namespace Vorlen
