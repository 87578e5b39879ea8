#include "CPropertySettingsForm.h"

#include <QCoreApplication>

CPropertySettingsForm::CPropertySettingsForm(CTavDevicePtr device, QWidget* parent)
    : CFeatureControlPage(device, "CPropertySettingsForm",
                          {{rowSection, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure"), nullptr},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure Auto"), "ExposureAuto"},
                           {rowNumber, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure Time"), "ExposureTime"},
                           {rowSection, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain"), nullptr},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain Auto"), "GainAuto"},
                           {rowNumber, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain"), "Gain"},
                           {rowSection, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Acquisition"), nullptr},
                           {rowBool, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Frame Rate Enable"),
                            "AcquisitionFrameRateEnable"},
                           {rowNumber, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Frame Rate"), "AcquisitionFrameRate"},
                           {rowSection, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger"), nullptr},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger Mode"), "TriggerMode"},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger Source"), "TriggerSource"},
                           {rowCommand, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Software Trigger"),
                            "TriggerSoftware"},
                           {rowSection, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Image"), nullptr},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Pixel Format"), "PixelFormat"},
                           {rowEnum, QT_TRANSLATE_NOOP("CPropertySettingsForm", "White Balance Auto"),
                            "BalanceWhiteAuto"},
                           {rowBool, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Reverse X"), "ReverseX"},
                           {rowBool, QT_TRANSLATE_NOOP("CPropertySettingsForm", "Reverse Y"), "ReverseY"}},
                          parent)
{
}
