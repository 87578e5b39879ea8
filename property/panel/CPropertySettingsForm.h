#pragma once
// The quick-settings page of the property panel: the features an operator
// touches most (exposure, gain, frame rate, trigger, pixel format, white
// balance, mirroring) as plain controls that follow the camera.
#include "CFeatureControlPage.h"

class CPropertySettingsForm : public CFeatureControlPage
{
    Q_OBJECT
public:
    explicit CPropertySettingsForm(CTavDevicePtr device, QWidget* parent = nullptr);
};
