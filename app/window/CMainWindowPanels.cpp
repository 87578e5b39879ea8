#include "CMainWindowPanels.h"

#include "CCollapsiblePanel.h"
#include "CDiscoveryDevicesForm.h"
#include "CPropertyForm.h"
#include "CSaveFeaturesDlg.h"
#include "CVideoManagerForm.h"
#include "MainWindow.h"

CMainWindowPanels::CMainWindowPanels(MainWindow* window) : QObject(window)
{
    m_deviceList = new CDiscoveryDevicesForm(window);
    m_videoManager = new CVideoManagerForm(window);
    m_propertyPanel = new CPropertyForm(window);
    m_propertyPanel->setViewSignals(m_videoManager->viewSignals());
    window->setDeviceListPanel(m_deviceList);
    window->setVideoPanel(m_videoManager);
    window->setPropertyPanel(m_propertyPanel);

    // The device list folds itself to a thin strip with its own button; its
    // side of the window only follows its width.
    CCollapsiblePanel* left = window->leftPanel();
    left->setStripVisible(false);
    connect(m_deviceList, &CDiscoveryDevicesForm::formCollpased, left,
            [left]() { left->resizeInSplitter(CCollapsiblePanel::kStripWidth); });
    connect(m_deviceList, &CDiscoveryDevicesForm::formExpanded, left,
            [left](int width) { left->resizeInSplitter(qMax(width, left->expandedWidth())); });

    connect(m_deviceList, &CDiscoveryDevicesForm::select_device, this, &CMainWindowPanels::selectDevice);
    connect(m_videoManager, &CVideoManagerForm::select_device, this, &CMainWindowPanels::selectDevice);
    connect(m_deviceList, &CDiscoveryDevicesForm::signalOpenConfig, m_propertyPanel, &CPropertyForm::onOpenConfig);
    connect(m_deviceList, &CDiscoveryDevicesForm::signalSaveConfig, m_propertyPanel, &CPropertyForm::onSaveConfig);
    connect(window, &MainWindow::signalFeatureLanChanged, m_propertyPanel, &CPropertyForm::onFeatureLanChanged);
}

void CMainWindowPanels::selectDevice(CTavDevicePtr device)
{
    m_videoManager->setCurDevice(device);
    m_propertyPanel->setCurDevice(device);
}
