#include "CDeviceInfoRows.h"

#include "CTavDevice.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {
QString text(const Vorlen::Infra::CString& value)
{
    return QString::fromLocal8Bit(value.c_str());
}

// The rows every camera kind but GigE Vision starts its device section with.
QList<InfoRow> identityRows(const CInternalCameraInfo& info)
{
    return QList<InfoRow>() << InfoRow(CDeviceInfoRows::tr("Vendor"), text(info.getVenderName()))
                            << InfoRow(CDeviceInfoRows::tr("Model"), text(info.getModelName()))
                            << InfoRow(CDeviceInfoRows::tr("Version"), text(info.getVersion()))
                            << InfoRow(CDeviceInfoRows::tr("Manufacture"), text(info.getManufactureInfo()))
                            << InfoRow(CDeviceInfoRows::tr("Serial Number"), text(info.getSerialNum()));
}

// The interface rows of a Camera Link port or a GenTL interface: its
// description, its vendor and its identifier.
template <class InfoPtr>
QList<InfoRow> producerInterfaceRows(const InfoPtr& info, const QString& idLabel, const Vorlen::Infra::CString& id)
{
    return QList<InfoRow>() << InfoRow(CDeviceInfoRows::tr("Description"), text(info->getDescription()))
                            << InfoRow(CDeviceInfoRows::tr("Vendor Name"), text(info->getVendorName()))
                            << InfoRow(idLabel, text(id));
}
} // namespace

QString CDeviceInfoRows::accessPermissionText(int permission)
{
    switch (permission) {
    case 0: return tr("Open");
    case 1: return tr("Exclusive");
    case 2: return tr("Control");
    case 3: return tr("ControlWithSwitchover");
    case 255: return tr("Undefined");
    default: return tr("Unknown");
    }
}

QString CDeviceInfoRows::genTLAccessStatusText(int status)
{
    switch (status) {
    case 0: return tr("OpenReadWrite");
    case 1: return tr("OpenReadOnly");
    case 2: return tr("ReadWrite");
    case 3: return tr("ReadOnly");
    case 4: return tr("NoAccess");
    case 5: return tr("Busy");
    case 6: return tr("Unknown");
    default: return tr("Undefined");
    }
}

QString CDeviceInfoRows::accessStatusLabel()
{
    return tr("Access Status");
}

bool CDeviceInfoRows::build(const CTavDevicePtr& device, SDeviceInfoRows& rows)
{
    rows = SDeviceInfoRows();
    if (!device)
        return false;
    ICameraPtr camera = device->getDevice();
    if (!camera)
        return false;
    CInternalSystem& system = CInternalSystem::getInstance();
    QList<InfoRow>& iface = rows.interfaceRows;
    QList<InfoRow>& dev = rows.deviceRows;

    switch (camera->getType()) {
    case typeGigEVision: {
        if (TSharedPtrGigEInterfaceInfo info = system.getGigEInterfaceInfoByCamera(camera)) {
            iface << InfoRow(tr("Description"), text(info->getDescription()))
                  << InfoRow(tr("IP Address"), text(info->getIpAddress()))
                  << InfoRow(tr("Subnet Mask"), text(info->getSubnetMask()))
                  << InfoRow(tr("Gateway"), text(info->getGateway()));
        } else {
            iface << InfoRow(tr("Description"), QString()) << InfoRow(tr("IP Address"), QString())
                  << InfoRow(tr("Subnet Mask"), QString()) << InfoRow(tr("Gateway"), QString());
        }
        CInternalGigECameraInfo info(camera);
        dev << InfoRow(tr("IP Address"), text(info.getIpAddress()))
            << InfoRow(tr("Subnet Mask"), text(info.getSubnetMask()))
            << InfoRow(tr("Gateway"), text(info.getGateway()))
            << InfoRow(tr("Vendor"), text(info.getVenderName()))
            << InfoRow(tr("Model"), text(info.getModelName()))
            << InfoRow(tr("Manufacture"), text(info.getManufactureInfo()))
            << InfoRow(tr("Version"), text(info.getVersion()))
            << InfoRow(tr("Serial Number"), text(info.getSerialNum()))
            << InfoRow(tr("Protocol Version"), text(info.getProtocolVersion()))
            << InfoRow(tr("Valid"), info.isValid() ? tr("True") : tr("False"))
            << InfoRow(tr("IP Configuration"), text(info.getIpconfig()))
            << InfoRow(accessStatusLabel(), accessPermissionText(int(device->getAccessPermission())));
        break;
    }
    case typeUsb3Vision: {
        if (TSharedPtrUsbInterfaceInfo info = system.getUsbInterfaceInfoByCamera(camera)) {
            iface << InfoRow(tr("Description"), text(info->getDescription()))
                  << InfoRow(tr("Vendor ID"), text(info->getVendorId()))
                  << InfoRow(tr("Device ID"), text(info->getDeviceId()))
                  << InfoRow(tr("Subsystem ID"), text(info->getSubsystemId()))
                  << InfoRow(tr("Revision"), text(info->getsubRevision()))
                  << InfoRow(tr("Speed"), text(info->getSpeed()));
        }
        CInternalUsbCameraInfo info(camera);
        dev << identityRows(info) << InfoRow(tr("Device GUID"), text(info.getDeviceGuid()))
            << InfoRow(tr("Speed"), text(info.getSpeedType()))
            << InfoRow(tr("Max Power"), text(info.getMaxPower()))
            << InfoRow(tr("Driver Installed"), info.getDriverValid() ? tr("True") : tr("False"));
        break;
    }
    case typeCameraLink: {
        if (TSharedPtrCLInterfaceInfo info = system.getCLInterfaceInfoByCamera(camera))
            iface << producerInterfaceRows(info, tr("Port ID"), info->getPortId());
        dev << identityRows(CInternalCLCameraInfo(camera));
        break;
    }
    case typePCIe: {
        dev << identityRows(CInternalPCIeCameraInfo(camera));
        break;
    }
    case typeGenTL: {
        if (TSharedPtrGenTLInterfaceInfo info = system.getGenTLInterfaceInfoByCamera(camera))
            iface << producerInterfaceRows(info, tr("Interface ID"), info->getInterfaceID());
        CInternalGenTLCameraInfo info(camera);
        int status = -1;
        const bool haveStatus = info.getAccessStatus(status);
        dev << identityRows(info) << InfoRow(tr("Devide ID"), text(info.getDeviceID()))
            << InfoRow(tr("TL Type"), text(info.getTLType()))
            << InfoRow(accessStatusLabel(), genTLAccessStatusText(haveStatus ? status : -1));
        break;
    }
    default:
        return false;
    }
    return true;
}

QString CDeviceInfoRows::toCopyText(const SDeviceInfoRows& rows)
{
    auto line = [](const InfoRow& row) {
        return QString::asprintf("%-25s %s\n", row.first.toUtf8().constData(),
                                 row.second.toUtf8().constData());
    };
    QString out = tr("Interface Info") + QLatin1Char('\n');
    for (const InfoRow& row : rows.interfaceRows)
        out += line(row);
    out += QLatin1Char('\n');
    out += tr("Device Info") + QLatin1Char('\n');
    for (const InfoRow& row : rows.deviceRows)
        out += line(row);
    return out;
}
