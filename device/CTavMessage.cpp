#include "CTavMessage.h"

#include <QMetaType>

CTavMessage::CTavMessage()
    : type(MSG_DISCOVERY_FINISHED)
{
    device.reset();
    paramUpdateArg.paramNames.clear();
    msgChannelArg.paramNames.clear();
}

void registerMessageMetaTypes()
{
    // Signals spell the types both with and without their namespaces; each
    // spelling must be known for a queued connection to carry the argument.
    qRegisterMetaType<EN_MESSAGE_TYPE>("EN_MESSAGE_TYPE");
    qRegisterMetaType<CTavMessagePtr>("CTavMessagePtr");
    qRegisterMetaType<CTavMessagePtr>("Vorlen::Memory::TSharedPtr<CTavMessage>");
    qRegisterMetaType<CTavDevicePtr>("CTavDevicePtr");
    qRegisterMetaType<CTavDevicePtr>("Vorlen::Memory::TSharedPtr<CTavDevice>");

    qRegisterMetaType<Vorlen::GenICam::SParamUpdataArg>("SParamUpdataArg");
    qRegisterMetaType<Vorlen::GenICam::SParamUpdataArg>("Vorlen::GenICam::SParamUpdataArg");
    qRegisterMetaType<Vorlen::GenICam::SStreamArg>("SStreamArg");
    qRegisterMetaType<Vorlen::GenICam::SStreamArg>("Vorlen::GenICam::SStreamArg");
    qRegisterMetaType<Vorlen::GenICam::SMsgChannelArg>("SMsgChannelArg");
    qRegisterMetaType<Vorlen::GenICam::SMsgChannelArg>("Vorlen::GenICam::SMsgChannelArg");
    qRegisterMetaType<Vorlen::GenICam::SConnectArg>("SConnectArg");
    qRegisterMetaType<Vorlen::GenICam::SConnectArg>("Vorlen::GenICam::SConnectArg");
}
