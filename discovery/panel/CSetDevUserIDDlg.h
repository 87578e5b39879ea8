#pragma once
// "Set Device UserID": edits the camera's DeviceUserID. The edit takes one
// character less than the feature's maximum length, and the length check on
// OK counts the text in the local 8-bit encoding.
#include "CSingleFieldDlg.h"

class CSetDevUserIDDlg : public CSingleFieldDlg
{
    Q_OBJECT
public:
    explicit CSetDevUserIDDlg(QWidget* parent = nullptr);
    void init();
    void setCurrentDeviceUserID(const QString& value, int maxLength);

protected:
    bool validate() override;
    void retranslateUi() override;
};
