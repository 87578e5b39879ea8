#include "CPropertySettingsForm.h"

#include <QCoreApplication>

CPropertySettingsForm::CPropertySettingsForm(CTavDevicePtr device, QWidget* parent)
    : CFeatureControlPage(device, "CPropertySettingsForm", parent)
{
    setObjectName(QStringLiteral("CPropertySettingsForm"));
    addSection(QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure"));
    addRow(QStringLiteral("ExposureAuto"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure Auto"), rowEnum);
    addRow(QStringLiteral("ExposureTime"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Exposure Time"), rowNumber);
    addSection(QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain"));
    addRow(QStringLiteral("GainAuto"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain Auto"), rowEnum);
    addRow(QStringLiteral("Gain"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Gain"), rowNumber);
    addSection(QT_TRANSLATE_NOOP("CPropertySettingsForm", "Acquisition"));
    addRow(QStringLiteral("AcquisitionFrameRateEnable"),
           QT_TRANSLATE_NOOP("CPropertySettingsForm", "Frame Rate Enable"), rowBool);
    addRow(QStringLiteral("AcquisitionFrameRate"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Frame Rate"),
           rowNumber);
    addSection(QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger"));
    addRow(QStringLiteral("TriggerMode"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger Mode"), rowEnum);
    addRow(QStringLiteral("TriggerSource"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Trigger Source"), rowEnum);
    addRow(QStringLiteral("TriggerSoftware"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Software Trigger"),
           rowCommand);
    addSection(QT_TRANSLATE_NOOP("CPropertySettingsForm", "Image"));
    addRow(QStringLiteral("PixelFormat"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Pixel Format"), rowEnum);
    addRow(QStringLiteral("BalanceWhiteAuto"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "White Balance Auto"),
           rowEnum);
    addRow(QStringLiteral("ReverseX"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Reverse X"), rowBool);
    addRow(QStringLiteral("ReverseY"), QT_TRANSLATE_NOOP("CPropertySettingsForm", "Reverse Y"), rowBool);
    refresh();
}
