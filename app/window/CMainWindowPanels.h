#pragma once
// Places the device list, the video manager and the property panel in the
// main window and wires them to each other: a device selected in one panel
// becomes current in the others, and the device list's parameter-file
// entries reach the property panel. Owns nothing but the connections; the
// panels belong to the window.
#include <QObject>

#include "CTavMessage.h"

class MainWindow;
class CDiscoveryDevicesForm;
class CVideoManagerForm;
class CPropertyForm;

class CMainWindowPanels : public QObject
{
    Q_OBJECT
public:
    explicit CMainWindowPanels(MainWindow* window);

    CDiscoveryDevicesForm* deviceList() const { return m_deviceList; }
    CVideoManagerForm* videoManager() const { return m_videoManager; }
    CPropertyForm* propertyPanel() const { return m_propertyPanel; }

public slots:
    // The device the operator is working on, from whichever panel chose it.
    void selectDevice(CTavDevicePtr device);

private:
    CDiscoveryDevicesForm* m_deviceList = nullptr;
    CVideoManagerForm* m_videoManager = nullptr;
    CPropertyForm* m_propertyPanel = nullptr;
};
