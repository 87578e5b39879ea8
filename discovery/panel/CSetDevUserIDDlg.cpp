#include "CSetDevUserIDDlg.h"

#include <QLineEdit>

#include "MessageBox.h"
#include "Utils.h"

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
    if (exceedsMaxLength()) {
        messageBox(tr("The length of DeviceUserID can not be longer than %1.").arg(lineEdit()->maxLength()), this,
                   QMessageBox::Ok, QMessageBox::Critical);
        return false;
    }
    return true;
}

void CSetDevUserIDDlg::retranslateUi()
{
    setTexts(tr("Set Device UserID"), tr("Device UserID"));
}
