#pragma once
// One camera event on the message bus: an immutable record, shared by every
// observer it reaches.
#include <QMetaType>
#include "Vorlen/GenICam/Defs.h"
#include "Vorlen/Memory/TSharedPtr.h"

class CTavDevice;
using CTavDevicePtr = Vorlen::Memory::TSharedPtr<CTavDevice>;

enum EN_MESSAGE_TYPE
{
    MSG_DISCOVERY_FINISHED = 0,
    MSG_DEVICE_CONNECTING = 1,
    MSG_DEVICE_CONNECTED = 2,
    MSG_DEVICE_CONNECT_FAILED = 3,
    MSG_DEVICE_DISCONNECTING = 4,
    MSG_DEVICE_DISCONNECTED = 5,
    MSG_DEVICE_OFFLINE = 6,
    MSG_STREAM_OPENED = 7,
    MSG_STREAM_CLOSED = 8,
    MSG_ACCESS_STATUS_CHANGED = 9,
    MSG_PARAM_UPDATE = 10,
    MSG_MSG_CHANNEL = 11,
    MSG_STREAM_EVENT = 12
};

class CTavMessage
{
public:
    CTavMessage();

    EN_MESSAGE_TYPE type;
    CTavDevicePtr device;
    Vorlen::GenICam::SParamUpdataArg paramUpdateArg;
    Vorlen::GenICam::SStreamArg streamArg;
    Vorlen::GenICam::SMsgChannelArg msgChannelArg;
};

using CTavMessagePtr = Vorlen::Memory::TSharedPtr<CTavMessage>;

// Registers the bus and camera-event types with Qt so that queued signals can
// carry them. Safe to call more than once.
void registerMessageMetaTypes();

Q_DECLARE_METATYPE(EN_MESSAGE_TYPE)
Q_DECLARE_METATYPE(CTavMessagePtr)
Q_DECLARE_METATYPE(CTavDevicePtr)
Q_DECLARE_METATYPE(Vorlen::GenICam::SParamUpdataArg)
Q_DECLARE_METATYPE(Vorlen::GenICam::SStreamArg)
Q_DECLARE_METATYPE(Vorlen::GenICam::SMsgChannelArg)
Q_DECLARE_METATYPE(Vorlen::GenICam::SConnectArg)
