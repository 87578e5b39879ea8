#include "CUnicastDlg.h"

#include <QLineEdit>

#include "MessageBox.h"
#include "Utils.h"

CUnicastDlg::CUnicastDlg(QWidget* parent) : CSingleFieldDlg(parent)
{
    lineEdit()->setMaxLength(15);
    init();
    setCurrentIp(QStringLiteral("255.255.255.255"));
}

void CUnicastDlg::init()
{
    initFrame();
    retranslateUi();
}

void CUnicastDlg::setCurrentIp(const QString& ip)
{
    lineEdit()->setText(ip);
    lineEdit()->selectAll();
    lineEdit()->setFocus();
}

bool CUnicastDlg::validate()
{
    if (refuseTooLong(tr("The length of IP can not be longer than %1.")))
        return false;
    const std::string ip = getEditValue().toLocal8Bit().toStdString();
    if (!isValidIP(ip.c_str()) || !isValidRange(ip) || !isLookBackIP(ip)) {
        messageBox(tr("invalid ip"), this, QMessageBox::Ok, QMessageBox::Critical);
        return false;
    }
    return true;
}

void CUnicastDlg::retranslateUi()
{
    setTexts(tr("Add Remote Camera"), tr("Device IP"));
}
