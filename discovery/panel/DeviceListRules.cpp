#include "DeviceListRules.h"

#include "DiscoveryItemTypes.h"
#include "Vorlen/GenICam/Defs.h"

namespace {
// The camera type whose Start Acquisition entry is always enabled.
const int kAlwaysAcquireType = 5;

SButtonState shown(bool enabled)
{
    return SButtonState{true, enabled};
}

const SButtonState kHidden{false, false};
} // namespace

int statusIcon(const SDeviceState& state)
{
    const bool connected = state.found && state.connected;
    int icon = (connected && state.grabbing) ? iconAcquisition : (connected ? iconConnected : iconNormal);
    if (state.cameraType == cameraTypeGigE) {
        if (!state.ipValid)
            icon = iconWarn;
        else if (!connected && state.accessPermission == Vorlen::GenICam::accessPermissionControl)
            icon = iconError;   // another host controls the camera
    } else if (state.cameraType == cameraTypeUsb) {
        if (!state.usb3Port)
            icon = iconError;
        else if (!state.superSpeed)
            icon = iconWarn;
    }
    return icon;
}

int acquisitionIcon(const SDeviceState& state, bool grabbing)
{
    if (state.found && state.connected)
        return grabbing ? iconAcquisition : iconConnected;
    return statusIcon(state);
}

bool isValidIpConfig(const QString& ipConfig)
{
    return !ipConfig.isEmpty() && ipConfig != QLatin1String("Invalid On This Interface");
}

bool isUsb3PortSpeed(const QString& speed)
{
    return speed.contains(QLatin1String("Super")) || speed.contains(QLatin1String("High"));
}

bool isSuperSpeedPort(const QString& speed)
{
    return speed.startsWith(QLatin1String("Super"));
}

// Hidden buttons are disabled as well, so that nothing hidden can act.
SInlineButtonsState refleshConnectStatInfo()
{
    return SInlineButtonsState{kHidden, shown(true), kHidden};
}

SInlineButtonsState refleshDisconnectStatInfo(bool gige)
{
    return SInlineButtonsState{shown(true), kHidden, gige ? shown(true) : kHidden};
}

SInlineButtonsState refleshIpValidStatInfo()
{
    return SInlineButtonsState{shown(true), kHidden, shown(true)};
}

SInlineButtonsState refleshUsbDisconnectStatInfo()
{
    return SInlineButtonsState{shown(true), kHidden, kHidden};
}

SInlineButtonsState inlineButtonsState(const SDeviceState& state)
{
    const bool gige = state.cameraType == cameraTypeGigE;
    SInlineButtonsState buttons;
    bool busy = false;
    if (state.disconnecting) {
        buttons = refleshConnectStatInfo();
        busy = true;
    } else if (state.connected) {
        // Connected, possibly still applying its settings: it can be closed.
        buttons = refleshConnectStatInfo();
    } else if (state.connecting) {
        buttons = refleshDisconnectStatInfo(gige);
        busy = true;
    } else if (gige && !state.ipValid) {
        buttons = refleshIpValidStatInfo();
    } else if (state.cameraType == cameraTypeUsb) {
        buttons = refleshUsbDisconnectStatInfo();
    } else {
        buttons = refleshDisconnectStatInfo(gige);
    }
    if (busy)
        buttons.connect.enabled = buttons.disconnect.enabled = buttons.forceIp.enabled = false;
    return buttons;
}

SDeviceMenuState deviceMenuState(const SDeviceState& state)
{
    const bool gige = state.cameraType == cameraTypeGigE;
    SDeviceMenuState menu;
    menu.forceIpVisible = gige;
    if (state.connected) {
        menu.connectIsDisconnect = true;
        menu.playEnabled = state.acqModeEnable || state.cameraType == kAlwaysAcquireType;
        menu.playIsStop = state.grabbing;
        menu.openConfigEnabled = menu.saveConfigEnabled = !state.grabbing;
        menu.setUserIdEnabled = menu.saveXmlEnabled = true;
        return menu;
    }
    if (gige) {
        const bool controlled = state.accessPermission == Vorlen::GenICam::accessPermissionControl;
        menu.forceIpEnabled = !controlled;
        menu.openConfigEnabled = !controlled;
    } else {
        menu.openConfigEnabled = !(state.cameraType == cameraTypeUsb && !state.usb3Port);
    }
    return menu;
}

EConnectVerdict connectPrecheck(const SDeviceState& state)
{
    if (state.cameraType == cameraTypeGigE && !state.ipValid)
        return connectIpInvalid;
    if (state.cameraType == cameraTypeUsb) {
        if (!state.usb3Port)
            return connectUsbIncompatible;
        if (!state.superSpeed)
            return connectAskSlowUsb;
    }
    return connectGo;
}

EConnectVerdict connectFinalCheck(const SDeviceState& state, int openedDeviceCount)
{
    if (!state.found)
        return connectNotFound;
    if (state.connected || state.connecting)
        return connectAlreadyOpen;
    if (openedDeviceCount >= kMaxConnections)
        return connectLimitReached;
    return connectGo;
}
