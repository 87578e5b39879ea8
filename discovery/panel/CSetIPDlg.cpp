#include "CSetIPDlg.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QStringList>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CLanguageWatcher.h"
#include "FramelessDialogLayout.h"
#include "CSetIpThread.h"
#include "CTavDevice.h"
#include "CWaitDlg.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "MessageBox.h"
#include "Named.h"
#include "Utils.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {
const int kAddressMaxLength = 15;
const char* const kNormalIcon = ":/Pic/Icon_DevList_DeviceStatus_Normal.png";
const char* const kWarningIcon = ":/Pic/Icon_Common_Exclamation_Mark.png";

QString fromSdk(const Vorlen::Infra::CString& s)
{
    return QString::fromLocal8Bit(s.c_str());
}

QLineEdit* makeEdit(QWidget* parent, const char* name, bool readOnly)
{
    auto* edit = named(new QLineEdit(parent), name);
    edit->setReadOnly(readOnly);
    if (readOnly)
        edit->setFocusPolicy(Qt::ClickFocus);   // the first field the keyboard reaches is the device IP
    edit->setMaxLength(readOnly ? 32767 : kAddressMaxLength);
    return edit;
}
} // namespace

CSetIPDlg::CSetIPDlg(bool modal, QWidget* parent) : CFramelessDialog(parent)
{
    setModal(modal);
    buildUi();
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();
    restoreConfig();

    m_pWaitDlg = new CWaitDlg(this);
    m_pSetIpThread = new CSetIpThread(this);
    connect(m_pSetIpThread, &CSetIpThread::signalSetIpEnd, this, &CSetIPDlg::onSetIpEnd, Qt::QueuedConnection);
    connect(CConfiguration::getInstance(), &CConfiguration::signalRestoreCfg, this, &CSetIPDlg::onRestoreCfg);
}

CSetIPDlg::~CSetIPDlg()
{
    // A write under way finishes on its own; its answer goes nowhere.
    m_pSetIpThread->retire();
}

void CSetIPDlg::buildUi()
{
    m_lblInterfaceSection = new QLabel(this);
    m_lblDeviceSection = new QLabel(this);
    m_lblDeviceStatus = named(new QLabel(this), "labelDevStatus");
    m_lblHint = named(new QLabel(this), "labelHint");
    m_lblHint->setWordWrap(true);
    m_lblHint->hide();
    m_lblInterfaceMac = new QLabel(this);
    m_lblInterfaceIP = new QLabel(this);
    m_lblInterfaceMask = new QLabel(this);
    m_lblInterfaceGateway = new QLabel(this);
    m_lblDevMac = new QLabel(this);
    m_lblDevIP = new QLabel(this);
    m_lblDevMask = new QLabel(this);
    m_lblDevGateway = new QLabel(this);
    m_txtInterfaceMac = makeEdit(this, "txtInterfaceMac", true);
    m_txtInterfaceIP = makeEdit(this, "txtInterfaceIP", true);
    m_txtInterfaceSubnetMask = makeEdit(this, "txtInterfaceSubnetMask", true);
    m_txtInterfaceGateway = makeEdit(this, "txtInterfaceGateway", true);
    m_txtDevMac = makeEdit(this, "txtDevMac", true);
    m_txtDevIP = makeEdit(this, "txtDevIP", false);
    m_txtDevSubnetMask = makeEdit(this, "txtDevSubnetMask", false);
    m_txtDevGateway = makeEdit(this, "txtDevGateway", false);
    m_cbSetPersistentIP = named(new QCheckBox(this), "cbSetPersistentIP");
    m_btnOk = named(new QPushButton(this), "btnOk");
    m_btnOk->setProperty("highlight", 1);
    m_btnOk->setDefault(true);
    m_btnCancel = named(new QPushButton(this), "btnCancel");
    m_lblDeviceStatus->setPixmap(QPixmap(QLatin1String(kNormalIcon)));
    for (QLabel* section : {m_lblInterfaceSection, m_lblDeviceSection}) {
        QFont font = section->font();
        font.setBold(true);
        section->setFont(font);
    }

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    int row = 0;
    auto addFields = [grid, &row](std::initializer_list<std::pair<QLabel*, QLineEdit*>> fields) {
        for (const auto& field : fields) {
            grid->addWidget(field.first, row, 0);
            grid->addWidget(field.second, row++, 1);
        }
    };
    grid->addWidget(m_lblInterfaceSection, row++, 0, 1, 2);
    addFields({{m_lblInterfaceMac, m_txtInterfaceMac},
               {m_lblInterfaceIP, m_txtInterfaceIP},
               {m_lblInterfaceMask, m_txtInterfaceSubnetMask},
               {m_lblInterfaceGateway, m_txtInterfaceGateway}});
    auto* deviceHeader = new QHBoxLayout;
    deviceHeader->setSpacing(6);
    deviceHeader->addWidget(m_lblDeviceSection);
    deviceHeader->addWidget(m_lblDeviceStatus);
    deviceHeader->addStretch(1);
    grid->addLayout(deviceHeader, row++, 0, 1, 2);
    addFields({{m_lblDevMac, m_txtDevMac},
               {m_lblDevIP, m_txtDevIP},
               {m_lblDevMask, m_txtDevSubnetMask},
               {m_lblDevGateway, m_txtDevGateway}});
    grid->addWidget(m_lblHint, row++, 0, 1, 2);
    grid->addWidget(m_cbSetPersistentIP, row++, 0, 1, 2);

    layOutFramelessDialog(this, grid, {m_btnOk, m_btnCancel});
    setMinimumWidth(380);

    connect(m_btnOk, &QPushButton::clicked, this, &CSetIPDlg::on_btnOk_clicked);
    connect(m_btnCancel, &QPushButton::clicked, this, &CSetIPDlg::on_btnCancel_clicked);
    // The editable fields and their edit and cursor handlers.
    const struct
    {
        QLineEdit* edit;
        void (CSetIPDlg::*edited)(const QString&);
        void (CSetIPDlg::*cursorMoved)(int, int);
    } fields[] = {
        {m_txtDevIP, &CSetIPDlg::on_txtDevIP_textEdited, &CSetIPDlg::on_txtDevIP_cursorPositionChanged},
        {m_txtDevSubnetMask, &CSetIPDlg::on_txtDevSubnetMask_textEdited,
         &CSetIPDlg::on_txtDevSubnetMask_cursorPositionChanged},
        {m_txtDevGateway, &CSetIPDlg::on_txtDevGateway_textEdited, &CSetIPDlg::on_txtDevGateway_cursorPositionChanged},
    };
    for (const auto& field : fields) {
        connect(field.edit, &QLineEdit::textEdited, this, field.edited);
        connect(field.edit, &QLineEdit::cursorPositionChanged, this, field.cursorMoved);
    }
}

void CSetIPDlg::retranslateUi()
{
    setTitle(tr("Set IP Address"));
    m_lblInterfaceSection->setText(tr("Interface Info"));
    m_lblDeviceSection->setText(tr("Device Info"));
    m_lblInterfaceMac->setText(tr("MAC Address"));
    m_lblInterfaceIP->setText(tr("IP Address"));
    m_lblInterfaceMask->setText(tr("Subnet Mask"));
    m_lblInterfaceGateway->setText(tr("Default Gateway"));
    m_lblDevMac->setText(tr("MAC Address"));
    m_lblDevIP->setText(tr("IP Address"));
    m_lblDevMask->setText(tr("Subnet Mask"));
    m_lblDevGateway->setText(tr("Default Gateway"));
    m_cbSetPersistentIP->setText(tr("set as persistent IP"));
    m_btnOk->setText(tr("OK"));
    m_btnCancel->setText(tr("Cancel"));
    if (!m_lblHint->isHidden())
        m_lblHint->setText(tr("Not a valid number. Please enter a number between 0 and 255!"));
}

bool CSetIPDlg::setInfo(const TSharedPtrGigEInterfaceInfo& info, const Vorlen::Infra::CString& key)
{
    m_ptrInterfaceInfo = info;
    m_strKey = key;
    if (info) {
        m_txtInterfaceMac->setText(fromSdk(info->getMacAddress()));
        m_txtInterfaceIP->setText(fromSdk(info->getIpAddress()));
        m_txtInterfaceSubnetMask->setText(fromSdk(info->getSubnetMask()));
        m_txtInterfaceGateway->setText(fromSdk(info->getGateway()));
    }
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(fromSdk(key));
    if (!device || !device->getDevice()) {
        messageBox(tr("Device not found."), this, QMessageBox::Ok, QMessageBox::Critical);
        return false;
    }
    CInternalGigECameraInfo camera(device->getDevice());
    m_txtDevMac->setText(fromSdk(camera.getMacAddress()));
    m_txtDevIP->setText(fromSdk(camera.getIpAddress()));
    m_txtDevSubnetMask->setText(fromSdk(camera.getSubnetMask()));
    m_txtDevGateway->setText(fromSdk(camera.getGateway()));
    updateSubnetWarning();
    m_txtDevIP->setFocus();
    return true;
}

bool CSetIPDlg::isNetMaskMatched(const QString& mask)
{
    return mask == QLatin1String("255.0.0.0") || mask == QLatin1String("255.255.0.0") ||
           mask == QLatin1String("255.255.255.0") || mask == QLatin1String("255.255.255.255");
}

bool CSetIPDlg::isInSameSubnet(const QString& a, const QString& b, const QString& mask)
{
    const QStringList pa = a.split(QLatin1Char('.'));
    const QStringList pb = b.split(QLatin1Char('.'));
    const QStringList pm = mask.split(QLatin1Char('.'));
    if (pa.size() != 4 || pb.size() != 4 || pm.size() != 4)
        return false;
    for (int i = 0; i < 4; ++i) {
        const uint m = pm.at(i).toUInt();
        if ((pa.at(i).toUInt() & m) != (pb.at(i).toUInt() & m))
            return false;
    }
    return true;
}

bool CSetIPDlg::invalidIPto255(QString& text)
{
    static const QRegularExpression tooBig(QStringLiteral("^([3-9]\\d\\d|2[6-9]\\d|25[6-9])$"));
    QStringList parts = text.split(QLatin1Char('.'));
    bool changed = false;
    for (QString& part : parts) {
        if (tooBig.match(part).hasMatch()) {
            part = QStringLiteral("255");
            changed = true;
        }
    }
    if (changed)
        text = parts.join(QLatin1Char('.'));
    return changed;
}

QString CSetIPDlg::checkIpMessage(int code)
{
    switch (code) {
    case CHECK_IP_EMPTY: return tr("IP or Subnet Mask is empty.");
    case CHECK_IP_MALFORMED: return tr("IP or Subnet Mask or Gateway is out of range of 0-255.");
    case CHECK_IP_RANGE:
        return tr("IP or Gateway in the 224.*.*.* to 255.*.*.* range or 0.*.*.* cannot be assigned to a device.");
    case CHECK_IP_LOOPBACK: return tr("IP addresses 127.*.*.* cannot be assigned to a device.");
    case CHECK_IP_HOST_ALL_ZERO: return tr("IP host number can not be all 0.");
    case CHECK_IP_HOST_ALL_ONE: return tr("IP host number can not be all 1.");
    case CHECK_IP_GATEWAY_ALL_ZERO: return tr("Gateway host number can not be all 0.");
    case CHECK_IP_GATEWAY_ALL_ONE: return tr("Gateway host number can not be all 1.");
    case CHECK_IP_SAME_AS_INTERFACE: return tr("Device IP address should differ from Interface IP address.");
    case CHECK_IP_OTHER_SUBNET:
        return tr("The network segment of the device is different from NIC's. Are you sure you want to continue?");
    default: return QString();
    }
}

QString CSetIPDlg::hintText() const
{
    return m_lblHint->isHidden() ? QString() : m_lblHint->text();
}

void CSetIPDlg::onDeviceFieldEdited(QLineEdit* edit)
{
    QString text = edit->text();
    if (invalidIPto255(text)) {
        const int cursor = edit->cursorPosition();
        edit->setText(text);
        edit->setCursorPosition(qMin(cursor, text.size()));
        m_lblHint->setText(tr("Not a valid number. Please enter a number between 0 and 255!"));
        m_lblHint->show();
    } else {
        m_lblHint->hide();
    }
    updateSubnetWarning();
}

void CSetIPDlg::on_txtDevIP_textEdited(const QString&)
{
    onDeviceFieldEdited(m_txtDevIP);
}

void CSetIPDlg::on_txtDevSubnetMask_textEdited(const QString&)
{
    onDeviceFieldEdited(m_txtDevSubnetMask);
}

void CSetIPDlg::on_txtDevGateway_textEdited(const QString&)
{
    onDeviceFieldEdited(m_txtDevGateway);
}

void CSetIPDlg::onCursorMoved(QLineEdit* edit, int newPos)
{
    if (newPos >= edit->maxLength() && newPos > 0)
        edit->setCursorPosition(edit->maxLength() - 1);
}

void CSetIPDlg::on_txtDevIP_cursorPositionChanged(int, int newPos)
{
    onCursorMoved(m_txtDevIP, newPos);
}

void CSetIPDlg::on_txtDevSubnetMask_cursorPositionChanged(int, int newPos)
{
    onCursorMoved(m_txtDevSubnetMask, newPos);
}

void CSetIPDlg::on_txtDevGateway_cursorPositionChanged(int, int newPos)
{
    onCursorMoved(m_txtDevGateway, newPos);
}

void CSetIPDlg::updateSubnetWarning()
{
    m_bSubnetWarning = !isInSameSubnet(m_txtDevIP->text(), m_txtInterfaceIP->text(),
                                       m_txtInterfaceSubnetMask->text());
    m_lblDeviceStatus->setPixmap(QPixmap(QLatin1String(m_bSubnetWarning ? kWarningIcon : kNormalIcon)));
    m_lblDeviceStatus->setProperty("warning", m_bSubnetWarning);
}

void CSetIPDlg::saveConfig()
{
    CConfiguration* config = CConfiguration::getInstance();
    config->setPersistentIP = m_cbSetPersistentIP->isChecked();
    // A wait on this thread: the small user configuration file is written here.
    if (!config->saveConfigToUserXml())
        messageBox(config->saveFailedMessage(tr("Save Config failed.")), this, QMessageBox::Ok, QMessageBox::Critical);
}

void CSetIPDlg::restoreConfig()
{
    m_cbSetPersistentIP->setChecked(CConfiguration::getInstance()->setPersistentIP);
}

void CSetIPDlg::onRestoreCfg()
{
    restoreConfig();
}

void CSetIPDlg::postMsg(unsigned int msg, unsigned long long wParam, unsigned long long lParam)
{
    QCoreApplication::postEvent(this, new CPostMsgEvent(msg, wParam, lParam));
}

bool CSetIPDlg::event(QEvent* event)
{
    if (event->type() == QEvent::Type(kPostMsgEventType)) {
        auto* msg = static_cast<CPostMsgEvent*>(event);
        LOG_DEBUG("posted message %u (%llu, %llu)", msg->message, msg->wParam, msg->lParam);
        return true;
    }
    return QDialog::event(event);
}

void CSetIPDlg::showWait(const QString& text)
{
    m_bBusy = true;
    m_btnOk->setEnabled(false);
    m_btnCancel->setEnabled(false);
    m_pWaitDlg->setTitle(tr("SetIP"));
    m_pWaitDlg->setText(text);
    m_pWaitDlg->open();
}

void CSetIPDlg::closeWait()
{
    m_bBusy = false;
    m_btnOk->setEnabled(true);
    m_btnCancel->setEnabled(true);
    if (m_pWaitDlg->isVisible())
        m_pWaitDlg->accept();
}

void CSetIPDlg::reject()
{
    // The camera is being written: closing now would hide the outcome.
    if (m_bBusy)
        return;
    QDialog::reject();
}

void CSetIPDlg::on_btnCancel_clicked()
{
    reject();
}

void CSetIPDlg::on_btnOk_clicked()
{
    if (m_bBusy)
        return;
    saveConfig();

    const QString devIp = m_txtDevIP->text().trimmed();
    const QString devMask = m_txtDevSubnetMask->text().trimmed();
    QString devGateway = m_txtDevGateway->text().trimmed();
    // A text the address parser would reinterpret ("10.1" is 10.0.0.1) never
    // reaches the camera: every non-empty field must be a full dotted quad.
    auto malformed = [](const QString& text) {
        return !text.isEmpty() && !isValidIP(text.toLocal8Bit().constData());
    };
    int code = CHECK_IP_OK;
    if (devIp.isEmpty() || devMask.isEmpty())
        code = CHECK_IP_EMPTY;
    else if (malformed(devIp) || malformed(devMask) || malformed(devGateway) ||
             devIp.contains(QRegularExpression(QStringLiteral("[^0-9.]"))) ||
             devMask.contains(QRegularExpression(QStringLiteral("[^0-9.]"))) ||
             devGateway.contains(QRegularExpression(QStringLiteral("[^0-9.]"))))
        code = CHECK_IP_MALFORMED;
    else
        code = checkIp(m_txtInterfaceIP->text().toStdString(), m_txtInterfaceSubnetMask->text().toStdString(),
                       m_txtInterfaceGateway->text().toStdString(), devIp.toStdString(), devMask.toStdString(),
                       devGateway.toStdString());
    if (code >= CHECK_IP_EMPTY && code <= CHECK_IP_SAME_AS_INTERFACE) {
        messageBox(checkIpMessage(code), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    if (code == CHECK_IP_OTHER_SUBNET &&
        messageBox(checkIpMessage(code), this, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question) !=
            QMessageBox::Ok)
        return;

    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(fromSdk(m_strKey));
    ICameraPtr camera = device ? device->getDevice() : ICameraPtr();
    auto* internal = camera ? dynamic_cast<CInternalCamera*>(camera.get()) : nullptr;
    if (!internal) {
        messageBox(tr("Device not found."), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }

    const QString ip = QString::fromStdString(IPIntToStr(IPStrToInt(devIp.toStdString())));
    const QString mask = QString::fromStdString(IPIntToStr(IPStrToInt(devMask.toStdString())));
    const QString gateway = QString::fromStdString(IPIntToStr(IPStrToInt(devGateway.toStdString())));
    const bool persistent = m_cbSetPersistentIP->isChecked();
    showWait(tr("Setting IP, please wait..."));
    m_pSetIpThread->run(
        this,
        [camera, ip, mask, gateway]() {
            auto* c = dynamic_cast<CInternalCamera*>(camera.get());
            return c && c->forceIpAddress(ip.toLatin1().constData(), mask.toLatin1().constData(),
                                          gateway.toLatin1().constData());
        },
        [this, ip, mask, gateway, persistent](bool ok, const QString& error) {
            if (!ok)
                LOG_ERROR("forceIpAddress failed. [%s]", error.toLocal8Bit().constData());
            forceDone(ok, ip, mask, gateway, persistent);
        });
}

void CSetIPDlg::forceDone(bool ok, const QString& ip, const QString& mask, const QString& gateway, bool persistent)
{
    if (!ok) {
        closeWait();
        messageBox(tr("Set device IP failed."), this, QMessageBox::Ok, QMessageBox::Critical);
        return;
    }
    if (!persistent) {
        closeWait();
        accept();
        return;
    }
    m_pSetIpThread->startSetIp(fromSdk(m_strKey), ip, mask, gateway);
    m_pWaitDlg->setText(tr("Setting persistent IP, please wait..."));
}

void CSetIPDlg::onSetIpEnd(bool ok)
{
    closeWait();
    if (ok) {
        accept();
        return;
    }
    messageBox(tr("Set persistent IP failed."), this, QMessageBox::Ok, QMessageBox::Critical);
}
