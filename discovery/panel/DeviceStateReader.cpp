#include "DeviceStateReader.h"

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "DiscoveryItemTypes.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

CTavDevicePtr lookUpDevice(const QString& key, const char* handler)
{
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key);
    if (!device)
        LOG_ERROR("%s getDeviceByKey failed.", handler);
    return device;
}

bool hasValidIp(const CTavDevicePtr& device)
{
    if (!device || !device->getDevice())
        return false;
    CInternalGigECameraInfo info(device->getDevice());
    return isValidIpConfig(QString::fromLocal8Bit(info.getIpconfig().c_str()));
}

QString usbSpeedOf(const CTavDevicePtr& device)
{
    if (!device || !device->getDevice())
        return QString();
    return QString::fromLocal8Bit(CInternalUsbCameraInfo(device->getDevice()).getSpeedType().c_str());
}

SDeviceState readDeviceState(const CTavDevicePtr& device, int cameraType)
{
    SDeviceState state;
    state.cameraType = cameraType;
    state.found = bool(device);
    if (cameraType == cameraTypeGigE) {
        if (!device || !device->getDevice())
            LOG_ERROR("isValidIp getDeviceByKey failed.");
        state.ipValid = hasValidIp(device);
    } else if (cameraType == cameraTypeUsb) {
        if (!device)
            LOG_ERROR("getUSBSpeed getDeviceByKey failed.");
        const QString speed = usbSpeedOf(device);
        state.usb3Port = isUsb3PortSpeed(speed);
        state.superSpeed = isSuperSpeedPort(speed);
    }
    if (!device)
        return state;
    state.connected = device->isConnected();
    state.connecting = device->isConnecting();
    state.disconnecting = device->isDisconnecting();
    state.grabbing = state.connected && device->isGrabing();
    state.acqModeEnable = device->isAcqModeEnable();
    state.accessPermission = int(device->getAccessPermission());
    return state;
}

QList<SDeviceRow> readDeviceRows(const QMap<QString, CTavDevicePtr>& devices)
{
    QList<SDeviceRow> rows;
    for (const CTavDevicePtr& device : devices) {
        ICameraPtr camera = device ? device->getDevice() : ICameraPtr();
        if (!camera)
            continue;
        const int type = int(camera->getType());
        if (type < 0 || type >= cameraTypeCount)
            continue;
        Vorlen::Infra::CString name;
        if (!device->generateDeviceNameByUserID(name))
            LOG_ERROR("generateDeviceNameByUserID failed");
        rows.append(SDeviceRow{type, QString::fromLocal8Bit(camera->getKey().c_str()), QByteArray(name.c_str())});
    }
    return rows;
}
