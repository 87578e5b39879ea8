#include "DiscoveryItemTypes.h"

#include <QMutex>
#include <QMutexLocker>

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

const int kTypeMap[][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}};
const int kDeviceTypeMap[][2] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}};

QMutex g_idMutex;
unsigned int g_lastId = 0;
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

int interfaceType(Vorlen::GenICam::EInterfaceType type)
{
    for (const auto& row : kTypeMap)
        if (row[0] == int(type))
            return row[1];
    return 0;
}

int deviceType(int type)
{
    for (const auto& row : kDeviceTypeMap)
        if (row[0] == type)
            return row[1];
    return 0;
}

unsigned int createId()
{
    QMutexLocker lock(&g_idMutex);
    g_lastId = (g_lastId == 0xFFFFFFFFu) ? 1u : g_lastId + 1u;
    return g_lastId;
}

unsigned int toUid(const QVariant& value)
{
    return value.toUInt();
}
