#include "CDeviceListMenus.h"

#include <QAction>
#include <QMenu>

#include "DeviceListRules.h"

CDeviceListMenus::CDeviceListMenus(QWidget* parent) : QObject(parent)
{
    m_pDeviceMenu = new QMenu(parent);
    m_actConnect = m_pDeviceMenu->addAction(QString());
    m_actOpenConfig = m_pDeviceMenu->addAction(QString());
    m_actSaveConfig = m_pDeviceMenu->addAction(QString());
    m_pDeviceMenu->addSeparator();
    m_actPlay = m_pDeviceMenu->addAction(QString());
    m_pDeviceMenu->addSeparator();
    m_actForceIp = m_pDeviceMenu->addAction(QString());
    m_actSetDevUserID = m_pDeviceMenu->addAction(QString());
    m_pDeviceMenu->addSeparator();
    m_actSaveXml = m_pDeviceMenu->addAction(QString());
    m_actCopyInfo = m_pDeviceMenu->addAction(QString());

    m_pRootMenu = new QMenu(parent);
    m_actUnicast = m_pRootMenu->addAction(QString());
    retranslate();
}

void CDeviceListMenus::apply(const SDeviceMenuState& state)
{
    m_bDisconnectText = state.connectIsDisconnect;
    m_actConnect->setEnabled(state.connectEnabled);
    m_actOpenConfig->setEnabled(state.openConfigEnabled);
    m_actSaveConfig->setEnabled(state.saveConfigEnabled);
    m_bStopText = state.playIsStop;
    m_actPlay->setEnabled(state.playEnabled);
    m_actForceIp->setVisible(state.forceIpVisible);
    m_actForceIp->setEnabled(state.forceIpEnabled);
    m_actSetDevUserID->setEnabled(state.setUserIdEnabled);
    m_actSaveXml->setEnabled(state.saveXmlEnabled);
    m_actCopyInfo->setEnabled(state.copyInfoEnabled);
    retranslate();
}

void CDeviceListMenus::retranslate()
{
    m_actConnect->setText(m_bDisconnectText ? tr("Disconnect") : tr("Connect"));
    m_actOpenConfig->setText(tr("Open Config"));
    m_actSaveConfig->setText(tr("Save Config"));
    m_actPlay->setText(m_bStopText ? tr("Stop Acquisition") : tr("Start Acquisition"));
    m_actForceIp->setText(tr("Force IP"));
    m_actSetDevUserID->setText(tr("Set DeviceUserID"));
    m_actSaveXml->setText(tr("Save GenICam XML"));
    m_actCopyInfo->setText(tr("Copy Device Info"));
    m_actUnicast->setText(tr("Add Remote Camera"));
}
