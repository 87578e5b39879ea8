#include "CSetDevUserIDDlg.h"

#include <QLineEdit>

CSetDevUserIDDlg::CSetDevUserIDDlg(QWidget* parent) : CSingleFieldDlg(parent)
{
    init();
}

void CSetDevUserIDDlg::init()
{
    initFrame();
    retranslateUi();
}

void CSetDevUserIDDlg::setCurrentDeviceUserID(const QString& value, int maxLength)
{
    lineEdit()->setMaxLength(qMax(0, maxLength - 1));
    lineEdit()->setText(value);
    lineEdit()->setFocus();
}

bool CSetDevUserIDDlg::validate()
{
    return !refuseTooLong(tr("The length of DeviceUserID can not be longer than %1."));
}

void CSetDevUserIDDlg::retranslateUi()
{
    setTexts(tr("Set Device UserID"), tr("Device UserID"));
}
