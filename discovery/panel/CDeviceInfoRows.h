#pragma once
// The label / value rows of the "Interface Info" and "Device Info" sections
// for one camera, by camera type, and their plain-text form for the
// clipboard. The values come from what discovery recorded (no camera round
// trip); the access status is the one the device read last.
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

#include "CTavMessage.h"

using InfoRow = QPair<QString, QString>;

struct SDeviceInfoRows
{
    QList<InfoRow> interfaceRows;
    QList<InfoRow> deviceRows;
};

class CDeviceInfoRows
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceInfoRows)
public:
    // False when the device or its camera is missing.
    static bool build(const CTavDevicePtr& device, SDeviceInfoRows& rows);
    // "Interface Info", one "%-25s %s\n" line per row, a blank line,
    // "Device Info" and its rows.
    static QString toCopyText(const SDeviceInfoRows& rows);
    // Text of a GigE access permission value.
    static QString accessPermissionText(int permission);
    // Text of a GenTL access status value.
    static QString genTLAccessStatusText(int status);
    // The label of the access status row.
    static QString accessStatusLabel();
};
