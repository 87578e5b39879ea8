#pragma once
// Enumerations and callback records of the camera library.
#include <cstdint>
#include "Vorlen/Infra/CString.h"
#include "Vorlen/Infra/TVector.h"

namespace Vorlen {
namespace GenICam {

using Infra::CString;
using Infra::TVector;

// Interface kind; also the argument of CSystem::discovery.
enum EInterfaceType
{
    typeGigEVision = 0,
    typeUsb3Vision = 1,
    typeCameraLink = 2,
    typePCIe = 3,
    typeGenTL = 4,
    typeUndefined = 255
};

enum EDiscoveryMode
{
    discoveryBroadcast = 0,
    discoveryUnicast = 1
};

enum EGrabStrategy
{
    grabStrategySequential = 0,   // oldest frame first
    grabStrategyLatestImage = 1   // newest frame first, older ones dropped
};

enum ECameraAccessPermission
{
    accessPermissionOpen = 0,          // nobody controls the camera
    accessPermissionExclusive = 1,
    accessPermissionControl = 2,
    accessPermissionControlWithSwitchover = 3,
    accessPermissionMonitor = 4,
    accessPermissionUnknown = 255
};

// Connection event.
enum EConnectEvent
{
    connectEventOnline = 0,
    connectEventOffline = 1
};

struct SConnectArg
{
    EConnectEvent event = connectEventOnline;
    CString key;                       // camera key
};

// Parameter-update event: the features whose value, range or availability
// may have changed after a write.
struct SParamUpdataArg
{
    bool isPoll = false;               // raised by polling rather than by a write
    uint64_t timestamp = 0;            // ns since the epoch
    CString key;                       // camera key
    TVector<CString> paramNames;
};

// Stream event status codes.
enum EStreamEventStatus
{
    streamEventNormal = 1,
    streamEventLostFrame = 2,
    streamEventLostPacket = 3,
    streamEventImageError = 4,
    streamEventStreamChannelError = 5,
    streamEventTooManyConsecutiveResends = 6,
    streamEventTooManyLostPacket = 7
};

struct SStreamArg
{
    uint32_t channel = 0;
    uint64_t blockId = 0;
    uint64_t timeStamp = 0;            // camera timestamp of the block (ns)
    EStreamEventStatus eStreamEventStatus = streamEventNormal;
    uint32_t status = 0;               // raw status code
    CString description;
};

// GigE Vision message-channel event.
struct SMsgChannelArg
{
    uint16_t eventID = 0;
    uint16_t channelID = 0;
    uint64_t blockID = 0;
    uint64_t timeStamp = 0;
    CString eventName;
    TVector<CString> paramNames;       // features that carry the event's data
};

// Stream statistics, one counter per column of the statistics table.
struct StreamStatisticsInfo
{
    double acquisitionFps = 0.0;
    double bandwidthMbps = 0.0;
    uint64_t receivedImages = 0;
    uint64_t lostBlocks = 0;
    uint64_t errorImages = 0;
    uint64_t overrideBlocks = 0;
    uint64_t lostPacketBlock = 0;
    uint64_t tooManyConsecutiveResendsBlock = 0;
    uint64_t tooManyLostPacketBlock = 0;
    uint64_t missingBlockId = 0;
    uint64_t lostPacket = 0;
    uint64_t resendPacket = 0;
    uint64_t recoveredPacket = 0;
    uint64_t resendRequest = 0;
    uint64_t redundantPacket = 0;
    uint64_t invalidFormatPacket = 0;
};

} // namespace GenICam
} // namespace Vorlen
