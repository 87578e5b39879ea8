#pragma once
// The rules of the device list as plain functions of a device's state: the
// status icon of its row, its inline buttons, the entries of its context
// menu, and the checks made before it is connected. The panel reads the
// state (DeviceStateReader.h) and applies what these return.
#include <QString>

// What the rules look at: the device's connection state and what discovery
// recorded about its camera.
struct SDeviceState
{
    int cameraType = -1;           // 0 GigE Vision, 1 USB3 Vision, 2 to 5 the other kinds
    bool found = false;            // the key resolves to a device (and its row exists)
    bool connected = false;
    bool connecting = false;
    bool disconnecting = false;
    bool grabbing = false;
    bool acqModeEnable = false;
    int accessPermission = 255;    // GigE: the permission read last
    bool ipValid = false;          // GigE: the address is valid on the interface it answered on
    bool usb3Port = false;         // USB: on a port a USB3 Vision camera can run on
    bool superSpeed = false;       // USB: on a SuperSpeed port
};

// Status icons, in the order the panel loads them.
enum EStatusIcon
{
    iconError = 0,
    iconConnected,
    iconNormal,
    iconAcquisition,
    iconWarn,
    iconCount
};

// Icon of a device row.
int statusIcon(const SDeviceState& state);
// Icon after the stream opened (grabbing) or closed: Acquisition or
// Connected while connected, else the row's usual icon.
int acquisitionIcon(const SDeviceState& state, bool grabbing);

// A GigE address configuration that makes the camera reachable.
bool isValidIpConfig(const QString& ipConfig);
// A USB port speed a USB3 Vision camera runs on (SuperSpeed, or slowly on
// high speed), and a SuperSpeed port.
bool isUsb3PortSpeed(const QString& speed);
bool isSuperSpeedPort(const QString& speed);

struct SButtonState
{
    bool visible = false;
    bool enabled = false;
};

// The inline Connect / Disconnect / Force IP buttons of a row.
struct SInlineButtonsState
{
    SButtonState connect;
    SButtonState disconnect;
    SButtonState forceIp;
};

SInlineButtonsState refleshConnectStatInfo();
SInlineButtonsState refleshDisconnectStatInfo(bool gige);
SInlineButtonsState refleshIpValidStatInfo();
SInlineButtonsState refleshUsbDisconnectStatInfo();
// The buttons of an existing device: one of the four cases above, all
// disabled while a connection or disconnection is under way.
SInlineButtonsState inlineButtonsState(const SDeviceState& state);

// The device menu's entries before it opens.
struct SDeviceMenuState
{
    bool connectIsDisconnect = false;   // the first entry reads "Disconnect"
    bool connectEnabled = true;
    bool openConfigEnabled = false;
    bool saveConfigEnabled = false;
    bool playEnabled = false;
    bool playIsStop = false;            // "Stop Acquisition" rather than "Start Acquisition"
    bool forceIpVisible = false;
    bool forceIpEnabled = false;
    bool setUserIdEnabled = false;
    bool saveXmlEnabled = false;
    bool copyInfoEnabled = true;
};

SDeviceMenuState deviceMenuState(const SDeviceState& state);

// What stands in the way of a connection, checked in this order.
enum EConnectVerdict
{
    connectGo = 0,
    connectIpInvalid,          // GigE address invalid on its interface
    connectUsbIncompatible,    // USB camera on a port it cannot run on
    connectAskSlowUsb,         // USB camera on a port below SuperSpeed: ask first
    connectNotFound,
    connectAlreadyOpen,        // connected or connecting: nothing to do
    connectLimitReached
};

const int kMaxConnections = 16;

// The checks before any question is asked: connectIpInvalid,
// connectUsbIncompatible, connectAskSlowUsb or connectGo.
EConnectVerdict connectPrecheck(const SDeviceState& state);
// The checks once the user has agreed (the device is looked up again):
// connectNotFound, connectAlreadyOpen, connectLimitReached or connectGo.
EConnectVerdict connectFinalCheck(const SDeviceState& state, int openedDeviceCount);
