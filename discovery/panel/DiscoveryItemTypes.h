#pragma once
// Item types of the device tree and the small id helpers around them.
// Interface (root) items are 1001..1006 and device items 1007..1012, one per
// camera type 0..5; 1000 means "no such item".
#include <QVariant>

#include "Vorlen/GenICam/CSystem.h"

enum ETreeItemType
{
    treeItemUnknown = 1000,
    treeItemInterfaceFirst = 1001,
    treeItemInterfaceLast = 1006,
    treeItemDeviceFirst = 1007,
    treeItemDeviceLast = 1012,
    treeItemGigEDevice = 1007,
    treeItemUsbDevice = 1008
};

// Camera types the tree knows (the camera's interface kind).
enum ECameraTypeIndex
{
    cameraTypeGigE = 0,
    cameraTypeUsb = 1,
    cameraTypeCount = 6
};

int treeItemType(int cameraType, bool isInterface);
bool isInterfaceItemType(int type);
bool isDeviceItemType(int type);
// The camera type of a device item type (-1 for any other).
int deviceCameraType(int itemType);
// Interface enumerator 0..5 -> 1..6, anything else 0.
int interfaceType(Vorlen::GenICam::EInterfaceType type);
// 1..6 -> 1..6, anything else 0.
int deviceType(int type);
// Process-wide counter: 1, 2, ... wrapping from 0xFFFFFFFF back to 1.
unsigned int createId();
unsigned int toUid(const QVariant& value);
