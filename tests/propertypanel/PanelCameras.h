#pragma once
// Two simulated cameras for the panel's tests, on 127.0.0.2 and 127.0.0.3,
// discovered and connected, and feature values read and written around the
// panel (straight through the camera's node map).
#include "FakeCameraRig.h"

#include <memory>

#include "CDeviceManager.h"
#include "CSingletonOwner.h"
#include "CParamFileNodeMap.h"
#include "FeatureTestSupport.h"

class PanelCameras
{
public:
    // Empty when both cameras run and are connected, else what is missing.
    QString start()
    {
        owner.reset(new CSingletonOwner);
        const char* addresses[2] = {"127.0.0.2", "127.0.0.3"};
        const char* serials[2] = {"LUMPANEL1", "LUMPANEL2"};
        for (int i = 0; i < 2; ++i)
        {
            if (!FakeCameraRig::hasAddress(addresses[i]))
                return QString("%1 is not configured: run inside a network namespace after scripts/loopback.sh 3")
                    .arg(addresses[i]);
            cam[i] = rig.start(addresses[i], serials[i], std::string(), 320, 240, "Mono8");
            if (cam[i] < 0)
                return QString("simulated camera did not start: %1").arg(rig.lastError().c_str());
        }
        for (int i = 0; i < 2; ++i)
        {
            dev[i] = waitForDevice(serials[i]);
            if (!dev[i])
            {
                // A pass may have missed the second camera: ask once more.
                CDeviceManager::getInstance()->refreshDeviceMap(QString(), 0);
                dev[i] = waitForDevice(serials[i]);
            }
            if (!dev[i])
                return QString("the simulated camera %1 was not discovered").arg(serials[i]);
            if (!dev[i]->openDevice(true))
                return QString("the simulated camera %1 could not be connected").arg(serials[i]);
        }
        return QString();
    }

    ~PanelCameras()
    {
        for (CTavDevicePtr& d : dev)
        {
            if (d && d->isConnected())
                d->closeDevice(true);
            d.reset();
        }
        owner.reset();
    }

    std::unique_ptr<CSingletonOwner> owner;
    FakeCameraRig rig;
    int cam[2] = {-1, -1};
    CTavDevicePtr dev[2];
};

inline QString featureValue(const CTavDevicePtr& device, const QString& name)
{
    QString text;
    CParamFileNodeMap(device->getDevice()).readValue(name, text);
    return text;
}

inline bool writeFeature(const CTavDevicePtr& device, const QString& name, const QString& text)
{
    QString error;
    return CParamFileNodeMap(device->getDevice()).writeValue(name, text, error);
}
