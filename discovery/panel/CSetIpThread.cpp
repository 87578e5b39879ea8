#include "CSetIpThread.h"

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/GenICam.h"

CSetIpThread::CSetIpThread(QObject* parent) : CCameraTaskThread("SetIpThread", parent) {}

void CSetIpThread::startSetIp(QString key, QString ip, QString mask, QString gateway)
{
    post([this, key, ip, mask, gateway]() { emit signalSetIpEnd(writePersistentIp(key, ip, mask, gateway)); });
}

bool CSetIpThread::writePersistentIp(const QString& key, const QString& ip, const QString& mask,
                                     const QString& gateway)
{
    // A worker may outlive the device manager (the end of the program).
    CDeviceManager* manager = CDeviceManager::getInstance();
    CTavDevicePtr device = manager ? manager->getDeviceByKey(key) : CTavDevicePtr();
    if (!device) {
        LOG_ERROR("getDeviceByKey failed. [%s]", key.toLocal8Bit().constData());
        return false;
    }
    // The features are written over a control session: a camera that is not
    // open (the usual case after Force IP) gets a short one of its own.
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> camera = device->getInternalDevice();
    bool ownSession = false;
    if (!device->isConnected()) {
        if (!camera || !camera->connect(Vorlen::GenICam::accessPermissionControl)) {
            LOG_ERROR("connect for the persistent IP failed. [%s]", key.toLocal8Bit().constData());
            return false;
        }
        ownSession = true;
    }
    const bool ok = device->setPersistentIp(ip, mask, gateway);
    if (ownSession)
        camera->disConnect();
    return ok;
}
