#pragma once
// "Add Remote Camera": asks for one IPv4 address that the discovery worker
// then probes by unicast. Accepts only an address of four parts 0-255 whose
// first octet is at most 223 and not 127.
#include "CSingleFieldDlg.h"

class CUnicastDlg : public CSingleFieldDlg
{
    Q_OBJECT
public:
    explicit CUnicastDlg(QWidget* parent = nullptr);
    void init();
    void setCurrentIp(const QString& ip);

protected:
    bool validate() override;
    void retranslateUi() override;
};
