#include "CDeviceListController.h"

#include <QApplication>
#include <QFileDialog>
#include <memory>

#include "CCameraTaskThread.h"
#include "CConfiguration.h"
#include "CDeviceListModel.h"
#include "CDeviceManager.h"
#include "CSetDevUserIDDlg.h"
#include "CSetIPDlg.h"
#include "CTavDevice.h"
#include "CUnicastDlg.h"
#include "CWaitDlg.h"
#include "DeviceStateReader.h"
#include "MessageBox.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

CDeviceListController::CDeviceListController(CDeviceListModel* model, QWidget* view)
    : QObject(view), m_model(model), m_view(view)
{
    m_pWaitDlg = new CWaitDlg(view);
    m_pTasks = new CCameraTaskThread("CDeviceListController", this);
    m_openedDeviceCounter = []() { return CDeviceManager::getInstance()->getOpenedDeviceCount(); };
    m_xmlFileChooser = [](QWidget* parent, const QString& suggested) {
        return QFileDialog::getSaveFileName(parent, tr("Save GenICam XML"), suggested, tr("XML (*.xml *.zip)"));
    };
}

CDeviceListController::~CDeviceListController()
{
    m_pTasks->retire();
}

void CDeviceListController::setOpenedDeviceCounter(std::function<int()> counter)
{
    m_openedDeviceCounter = std::move(counter);
}

void CDeviceListController::setXmlFileChooser(std::function<QString(QWidget*, const QString&)> chooser)
{
    m_xmlFileChooser = std::move(chooser);
}

bool CDeviceListController::refuse(const QString& text)
{
    messageBox(text, m_view, QMessageBox::Ok, QMessageBox::Critical);
    return false;
}

bool CDeviceListController::connectDevice(const QString& key, int cameraType)
{
    CTavDevicePtr device = CDeviceManager::getInstance()->getDeviceByKey(key);
    switch (connectPrecheck(readDeviceState(device, cameraType))) {
    case connectIpInvalid:
        return refuse(key + tr(" IP address is invalid!"));
    case connectUsbIncompatible:
        return refuse(tr("Connection failed. Device is incompatible with the current USB port!\nPlease plug in the "
                         "device into suitable PC USB port!\n"));
    case connectAskSlowUsb:
        if (messageBox(tr("Current physical link is not USB3.0. Connection maybe fail!\nAre you sure you want to "
                          "continue?"),
                       m_view, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question) != QMessageBox::Ok)
            return false;
        break;
    default:
        break;
    }
    // The question is modal: a refresh may have removed the row, or the
    // camera, meanwhile.
    device = CDeviceManager::getInstance()->getDeviceByKey(key);
    SDeviceState now;
    now.found = device && m_model->getItemByKey(key);
    now.connected = device && device->isConnected();
    now.connecting = device && device->isConnecting();
    switch (connectFinalCheck(now, m_openedDeviceCounter())) {
    case connectNotFound:
        return refuse(tr("Connection failed. Device does not exist!\n"));
    case connectAlreadyOpen:
        return false;
    case connectLimitReached:
        return refuse(tr("The maximum number of connections has been reached."));
    default:
        break;
    }
    // Starts the connection on the device's worker; message 2 or 3 ends it.
    if (device->openDevice(false)) {
        m_pWaitDlg->setTitle(tr("Connect"));
        m_pWaitDlg->setText(tr("Connecting, please wait..."));
        m_pWaitDlg->open();
    }
    return true;
}

void CDeviceListController::connectionSettled()
{
    if (m_pWaitDlg->isVisible())
        m_pWaitDlg->accept();
}

void CDeviceListController::toggleAcquisition(const CTavDevicePtr& device)
{
    // Both are requests to the device's worker; messages 7 and 8 report them.
    if (!device || !device->isConnected())
        return;
    if (device->isGrabing())
        device->closeStream();
    else
        device->openStream();
}

void CDeviceListController::modifyIp(const CTavDevicePtr& device)
{
    if (!device || !device->getDevice()) {
        LOG_ERROR("on_modifyIp getDeviceByKey failed.");
        refuse(tr("Device not found."));
        return;
    }
    ICameraPtr camera = device->getDevice();
    // A look-up in the host's own interface table, not a camera round trip.
    TSharedPtrGigEInterfaceInfo info = CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(camera);
    if (!info) {
        LOG_ERROR("get GigEInterfaceInfo failed.");
        refuse(tr("network card has modified!"));
        return;
    }
    QWidget* over = QApplication::activeWindow() ? QApplication::activeWindow() : m_view;
    CSetIPDlg dialog(true, over);
    if (!dialog.setInfo(info, camera->getKey()))
        return;
    if (dialog.exec() == QDialog::Accepted)
        m_scheduler.request(QString());
}

void CDeviceListController::setDeviceUserId(const CTavDevicePtr& device)
{
    auto value = std::make_shared<QString>();
    auto maxLength = std::make_shared<int>(64);
    m_pTasks->run(
        this, [device, value, maxLength]() { return device->getParaStringValue("DeviceUserID", *value, *maxLength); },
        [this, device, value, maxLength](bool ok, const QString&) {
            if (ok)
                writeDeviceUserId(device, *value, *maxLength);
            else
                emit cameraTaskFinished();
        });
}

void CDeviceListController::writeDeviceUserId(const CTavDevicePtr& device, const QString& value, int maxLength)
{
    CSetDevUserIDDlg dialog(m_view);
    dialog.setCurrentDeviceUserID(value, maxLength);
    if (dialog.exec() != QDialog::Accepted) {
        emit cameraTaskFinished();
        return;
    }
    const QString text = dialog.getEditValue();
    m_pTasks->run(
        this, [device, text]() { return device->setParaStringValue("DeviceUserID", text); },
        [this](bool written, const QString& error) {
            if (!written)
                refuse(error);
            emit cameraTaskFinished();
        });
}

void CDeviceListController::saveGenICamXml(const CTavDevicePtr& device)
{
    if (!device || !device->getDevice())
        return;
    const QString path = m_xmlFileChooser(m_view, device->getDeviceSaveName() + QStringLiteral(".xml"));
    if (path.isEmpty())
        return;
    ICameraPtr camera = device->getDevice();
    m_pTasks->run(
        this,
        [camera, path]() {
            auto* c = dynamic_cast<CInternalCamera*>(camera.get());
            return c && c->downLoadGenICamXML(path.toLocal8Bit().constData());
        },
        [this](bool ok, const QString& error) {
            if (!ok) {
                LOG_ERROR("downLoadGenICamXML failed. [%s]", error.toLocal8Bit().constData());
                refuse(error.isEmpty() ? tr("Download xml file failed.")
                                       : tr("Download xml file failed.") + QLatin1Char('\n') + error);
            }
            emit cameraTaskFinished();
        });
}

void CDeviceListController::addRemoteCamera()
{
    CConfiguration* config = CConfiguration::getInstance();
    CUnicastDlg dialog(m_view);
    dialog.setCurrentIp(config->RemoteIpAddr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    config->RemoteIpAddr = dialog.getEditValue();
    // A wait on this thread: the small user configuration file is written
    // here, as every settings change writes it.
    if (!config->saveConfigToUserXml())
        refuse(config->saveFailedMessage(tr("Save Config failed.")));
    const QString ip = QString::fromStdString(IPIntToStr(IPStrToInt(dialog.getEditValue().toStdString())));
    emit remoteDiscoveryRequested();
    m_scheduler.request(ip);
}

void CDeviceListController::refresh()
{
    m_scheduler.request(QString());
}

void CDeviceListController::passFinished()
{
    m_scheduler.passFinished();
}
