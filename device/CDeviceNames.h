#pragma once
// The names of a device: the display name in the device tree, the one built
// from the camera's user id, and the stem of saved file names. The user id
// is cached (read off the GUI thread at the connection and after a change),
// so building a name never asks the camera. Any thread.
#include <QMutex>
#include <QString>

#include "Vorlen/GenICam.h"

class CDeviceNames
{
public:
    // "<model> (<serial>)"; false without a camera.
    static bool deviceName(const Vorlen::GenICam::ICameraPtr& camera, Vorlen::Infra::CString& name);
    // "<user id> (<serial>)" when connected with a cached user id, else the
    // device name.
    bool nameByUserId(const Vorlen::GenICam::ICameraPtr& camera, bool connected, Vorlen::Infra::CString& name) const;
    // "<model>_<serial>" with the characters a file name cannot carry
    // replaced; empty without a camera.
    static QString saveName(const Vorlen::GenICam::ICameraPtr& camera);

    QString userId() const;
    void setUserId(const Vorlen::Infra::CString& userId);

private:
    mutable QMutex m_mutex;
    Vorlen::Infra::CString m_userId;   // guarded by m_mutex
};
