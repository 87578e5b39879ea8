#pragma once
// Reads what the device list's rules look at (DeviceListRules.h) from a
// device and from what discovery recorded about its camera. Nothing here
// asks the camera: the address configuration and the USB port speed come
// from the discovery records and the host's own tables.
#include <QList>
#include <QMap>
#include <QString>

#include "CTavMessage.h"
#include "CDeviceListModel.h"
#include "DeviceListRules.h"

// The device of the key; logs "<handler> getDeviceByKey failed." when none.
CTavDevicePtr lookUpDevice(const QString& key, const char* handler);
// The address of a GigE camera is valid on the interface it answered on.
bool hasValidIp(const CTavDevicePtr& device);
// The speed of the USB port the camera is on ("" when unknown).
QString usbSpeedOf(const CTavDevicePtr& device);
// The state of a row's device (null: a row whose device has gone).
SDeviceState readDeviceState(const CTavDevicePtr& device, int cameraType);
// The rows of a pass for the tree, in the map's key order; devices without
// a camera, or of an unknown type, are left out.
QList<SDeviceRow> readDeviceRows(const QMap<QString, CTavDevicePtr>& devices);
