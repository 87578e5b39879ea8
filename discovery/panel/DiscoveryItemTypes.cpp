#include "DiscoveryItemTypes.h"

namespace {
struct SItemTypeRow
{
    int cameraType;
    bool isInterface;
    int itemType;
};

const SItemTypeRow kItemTypes[] = {
    {0, true, 1001},  {1, true, 1002},  {2, true, 1003},  {3, true, 1004},  {4, true, 1005},  {5, true, 1006},
    {0, false, 1007}, {1, false, 1008}, {2, false, 1009}, {3, false, 1010}, {4, false, 1011}, {5, false, 1012},
};
} // namespace

int treeItemType(int cameraType, bool isInterface)
{
    for (const SItemTypeRow& row : kItemTypes)
        if (row.cameraType == cameraType && row.isInterface == isInterface)
            return row.itemType;
    return treeItemUnknown;
}

bool isInterfaceItemType(int type)
{
    return type >= treeItemInterfaceFirst && type <= treeItemInterfaceLast;
}

bool isDeviceItemType(int type)
{
    return type >= treeItemDeviceFirst && type <= treeItemDeviceLast;
}

int deviceCameraType(int itemType)
{
    return isDeviceItemType(itemType) ? itemType - treeItemDeviceFirst : -1;
}
