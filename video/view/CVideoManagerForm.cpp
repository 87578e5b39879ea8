#include "CVideoManagerForm.h"

#include <QAction>
#include <QActionGroup>
#include <QButtonGroup>
#include <QColorDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "CDeviceManager.h"
#include "CMenu.h"
#include "CMultiVideoForm.h"
#include "CTavDevice.h"
#include "CVideoForm.h"
#include "CVideoFullScreenWnd.h"
#include "MessageBox.h"
#include "Utils.h"
#include "VideoLayout.h"

namespace {
// Stored values of the display-rate choice; the menu shows them translated.
const char* const kDisplayRates[] = { "Disabled", "30 FPS", "60 FPS" };
const int kLayouts[] = { VIDEO_LAYOUT_1, VIDEO_LAYOUT_2, VIDEO_LAYOUT_4, VIDEO_LAYOUT_9, VIDEO_LAYOUT_16 };

// Offers the stored colour to the picker; a colour chosen is stored and
// returned, a cancelled pick returns an invalid colour and stores nothing.
QColor pickStoredColor(const std::function<QColor(const QColor&)>& picker, int& red, int& green, int& blue)
{
    const QColor color = picker(QColor(red, green, blue));
    if (color.isValid()) {
        red = color.red();
        green = color.green();
        blue = color.blue();
    }
    return color;
}
}

CVideoManagerForm::CVideoManagerForm(QWidget* parent, bool attachToBus) : QWidget(parent)
{
    setObjectName(QStringLiteral("videoManagerForm"));
    registerMessageMetaTypes();
    m_multi = new CMultiVideoForm(this, attachToBus);
    m_fullScreen = new CVideoFullScreenWnd(this);

    m_toolBar = new QWidget(this);
    m_toolBar->setObjectName(QStringLiteral("videoToolBar"));
    m_toolBar->setAttribute(Qt::WA_StyledBackground);
    auto* bar = new QHBoxLayout(m_toolBar);
    bar->setContentsMargins(4, 2, 4, 2);
    bar->setSpacing(2);
    m_layoutGroup = new QButtonGroup(this);
    m_layoutGroup->setExclusive(true);
    for (int layout : kLayouts) {
        auto* b = new QToolButton(m_toolBar);
        b->setObjectName(QStringLiteral("btnLayout%1").arg(layout));
        b->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Layout_%1.png").arg(layout)));
        b->setCheckable(true);
        b->setAutoRaise(true);
        m_layoutGroup->addButton(b, layout);
        bar->addWidget(b);
    }
    bar->addStretch(1);
    m_btnOptions = new QToolButton(m_toolBar);
    m_btnOptions->setObjectName(QStringLiteral("btnDisplayOptions"));
    m_btnOptions->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Video_Options.png")));
    m_btnOptions->setAutoRaise(true);
    m_btnOptions->setPopupMode(QToolButton::InstantPopup);
    bar->addWidget(m_btnOptions);
    m_btnFullScreen = new QToolButton(m_toolBar);
    m_btnFullScreen->setObjectName(QStringLiteral("btnFullScreen"));
    m_btnFullScreen->setIcon(QIcon(QStringLiteral(":/Pic/Icon_Video_FullScreen.png")));
    m_btnFullScreen->setAutoRaise(true);
    bar->addWidget(m_btnFullScreen);

    m_mainLayout = new QVBoxLayout(this);
    m_mainLayout->setContentsMargins(0, 0, 0, 0);
    m_mainLayout->setSpacing(0);
    m_mainLayout->addWidget(m_toolBar);
    m_mainLayout->addWidget(m_multi, 1);

    buildMenu();
    m_btnOptions->setMenu(m_menu);

    m_colorPicker = [this](const QColor& initial) { return QColorDialog::getColor(initial, this); };
    m_message = [this](const QString& text) {
        messageBox(text, this, QMessageBox::Ok, QMessageBox::Critical);
    };

    connect(m_layoutGroup, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &CVideoManagerForm::onLayoutBtnClicked);
    connect(m_btnFullScreen, &QToolButton::clicked, this, &CVideoManagerForm::fullScreen);
    connect(m_multi, &CMultiVideoForm::layout_changed, this, &CVideoManagerForm::OnLayoutChanged);
    connect(m_multi, &CMultiVideoForm::select_device, this, &CVideoManagerForm::select_device);
    connect(m_multi, &CMultiVideoForm::signalWndMoved, this, &CVideoManagerForm::signalWndMoved);
    connect(m_multi, &CMultiVideoForm::roiSaved, this, [this](bool ok) {
        if (!ok)
            m_message(CConfiguration::getInstance()->saveFailedMessage(tr("Save Config failed.")));
    });
    connect(m_fullScreen, &CVideoFullScreenWnd::exited, this, [this]() { emit full_screen(false); });
    connect(CConfiguration::getInstance(), &CConfiguration::signalRestoreCfg, this, &CVideoManagerForm::onRestoreCfg);

    connect(this, &CVideoManagerForm::update_receive, this, &CVideoManagerForm::OnUpdateReceive,
            Qt::QueuedConnection);
    if (attachToBus) {
        m_busOwner = CDeviceManager::getInstance();
        if (m_busOwner)
            m_busOwner->attach(this);
    }
    retranslate();
    applyConfig();
    OnLayoutChanged();
}

CViewSignalHub* CVideoManagerForm::viewSignals() const
{
    return m_multi->viewSignals();
}

CVideoManagerForm::~CVideoManagerForm()
{
    if (m_busOwner)
        m_busOwner->detach(this);
}

void CVideoManagerForm::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CVideoManagerForm::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device)
        return;
    switch (msg->type) {
    case MSG_DEVICE_CONNECTING:
        m_multi->bindDevice(msg->device);
        m_multi->showWaitingGif(msg->device, msg->type);
        break;
    case MSG_DEVICE_CONNECTED:
    case MSG_DEVICE_DISCONNECTING:
        m_multi->showWaitingGif(msg->device, msg->type);
        break;
    case MSG_DEVICE_CONNECT_FAILED:
    case MSG_DEVICE_DISCONNECTED:
    case MSG_DEVICE_OFFLINE:
        m_multi->showWaitingGif(msg->device, msg->type);
        m_multi->unBindDevice(msg->device);
        break;
    default:
        break;
    }
}

void CVideoManagerForm::buildMenu()
{
    m_menu = new CMenu(this);
    m_menu->setObjectName(QStringLiteral("menuDisplayOptions"));
    m_menuDemosaic = m_menu->addMenu(QString());
    m_menuDemosaic->setObjectName(QStringLiteral("menuBayerDemosaicing"));
    m_groupDemosaic = new QActionGroup(this);
    for (int i = 0; i < 3; ++i) {
        QAction* a = m_menuDemosaic->addAction(QString());
        a->setCheckable(true);
        a->setData(i);
        m_groupDemosaic->addAction(a);
    }
    m_menuDisplay = m_menu->addMenu(QString());
    m_menuDisplay->setObjectName(QStringLiteral("menuDisplayRate"));
    m_groupDisplay = new QActionGroup(this);
    for (const char* rate : kDisplayRates) {
        QAction* a = m_menuDisplay->addAction(QString());
        a->setCheckable(true);
        a->setData(QString::fromLatin1(rate));
        m_groupDisplay->addAction(a);
    }
    m_menu->addSeparator();
    m_actChunk = m_menu->addAction(QString());
    m_actChunk->setCheckable(true);
    m_actCrosshair = m_menu->addAction(QString());
    m_actCrosshair->setCheckable(true);
    m_actCrosshairColor = m_menu->addAction(QString());
    m_menu->addSeparator();
    m_actDrawROI = m_menu->addAction(QString());
    m_actDrawROI->setCheckable(true);
    m_actROIColor = m_menu->addAction(QString());
    m_actDisplayROI = m_menu->addAction(QString());
    m_actDisplayROI->setCheckable(true);
    m_actDeleteROI = m_menu->addAction(QString());

    connect(m_groupDemosaic, &QActionGroup::triggered, this, &CVideoManagerForm::onActionBayerDemosaicing);
    connect(m_groupDisplay, &QActionGroup::triggered, this, &CVideoManagerForm::onActionDisplay);
    connect(m_actChunk, &QAction::triggered, this, &CVideoManagerForm::onActionDisplayChunkData);
    connect(m_actCrosshair, &QAction::triggered, this, &CVideoManagerForm::onActionDisplayCrosshair);
    connect(m_actCrosshairColor, &QAction::triggered, this, &CVideoManagerForm::onActionCrosshairColorConfig);
    connect(m_actDrawROI, &QAction::triggered, this, &CVideoManagerForm::onActionDrawROI);
    connect(m_actROIColor, &QAction::triggered, this, &CVideoManagerForm::onActionDrawROIColorConfig);
    connect(m_actDisplayROI, &QAction::triggered, this, &CVideoManagerForm::onActionDisplayROI);
    connect(m_actDeleteROI, &QAction::triggered, this, &CVideoManagerForm::onActionDeleteROI);
}

void CVideoManagerForm::retranslate()
{
    const QString layoutTips[] = { tr("One view"), tr("Two views"), tr("Four views"), tr("Nine views"),
                                   tr("Sixteen views") };
    for (int i = 0; i < 5; ++i)
        if (QAbstractButton* b = m_layoutGroup->button(kLayouts[i]))
            b->setToolTip(layoutTips[i]);
    m_btnFullScreen->setToolTip(tr("Full screen (Esc to leave)"));
    m_btnOptions->setToolTip(tr("Display options"));
    m_menuDemosaic->setTitle(tr("Bayer demosaicing"));
    const QString demosaic[] = { tr("Bilinear"), tr("Edge aware"), tr("Variable number of gradients") };
    const QList<QAction*> da = m_groupDemosaic->actions();
    for (int i = 0; i < da.size(); ++i)
        da[i]->setText(demosaic[i]);
    m_menuDisplay->setTitle(tr("Display rate"));
    const QString rates[] = { tr("Disabled"), tr("30 FPS"), tr("60 FPS") };
    const QList<QAction*> ra = m_groupDisplay->actions();
    for (int i = 0; i < ra.size(); ++i)
        ra[i]->setText(rates[i]);
    m_actChunk->setText(tr("Display chunk data"));
    m_actCrosshair->setText(tr("Display crosshair"));
    m_actCrosshairColor->setText(tr("Crosshair color..."));
    m_actDrawROI->setText(tr("Draw ROI"));
    m_actROIColor->setText(tr("ROI color..."));
    m_actDisplayROI->setText(tr("Display ROI"));
    m_actDeleteROI->setText(tr("Delete ROI"));
}

void CVideoManagerForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

QAction* CVideoManagerForm::actionDemosaic(int value) const
{
    for (QAction* a : m_groupDemosaic->actions())
        if (a->data().toInt() == value)
            return a;
    return nullptr;
}

QAction* CVideoManagerForm::actionDisplayRate(const QString& value) const
{
    for (QAction* a : m_groupDisplay->actions())
        if (a->data().toString() == value)
            return a;
    return nullptr;
}

bool CVideoManagerForm::isFullScreenMode() const
{
    return m_fullScreen->isActive();
}

int CVideoManagerForm::displayRateValue(const QString& value)
{
    if (value == QLatin1String("Disabled"))
        return 0;
    return value == QLatin1String("60 FPS") ? 60 : 30;
}

bool CVideoManagerForm::saveConfig()
{
    CConfiguration* config = CConfiguration::getInstance();
    if (config->saveConfigToUserXml())
        return true;
    m_message(config->saveFailedMessage(tr("Save Config failed.")));
    return false;
}

void CVideoManagerForm::applyConfig()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    if (QAction* a = actionDemosaic(cfg->BayerDemosaicing))
        a->setChecked(true);
    QAction* rate = actionDisplayRate(cfg->strDisplayValue);
    if (!rate)
        rate = actionDisplayRate(QStringLiteral("30 FPS"));
    rate->setChecked(true);
    m_actChunk->setChecked(cfg->displayChunkDataEnable);
    m_actCrosshair->setChecked(cfg->isShowCrosshair);
    m_actDrawROI->setChecked(cfg->drawRoiEnable);
    m_actDisplayROI->setChecked(cfg->displayRoiEnable);

    m_multi->setBayerDemosaic(cfg->BayerDemosaicing);
    m_multi->setShowChunkData(cfg->displayChunkDataEnable);
    m_multi->setShowCrosshair(cfg->isShowCrosshair);
    m_multi->setCrosshairColor(QColor(cfg->RedCrosshair, cfg->GreenCrosshair, cfg->BlueCrosshair));
    m_multi->setDrawROIEnable(cfg->drawRoiEnable);
    m_multi->setDisplayROIEnable(cfg->displayRoiEnable);
    m_multi->setROIColor(QColor(cfg->roiRed, cfg->roiGreen, cfg->roiBlue));
    m_multi->restoreROIFromConfig();
}

void CVideoManagerForm::onLayoutBtnClicked(QAbstractButton* button)
{
    const EN_VIDEO_LAYOUT layout = getVideoLayout(m_layoutGroup->id(button));
    if (layout != VIDEO_LAYOUT_NONE)
        m_multi->setGridLayout(layout);
}

void CVideoManagerForm::OnLayoutChanged()
{
    if (QAbstractButton* b = m_layoutGroup->button(int(m_multi->getCurrentLayout())))
        b->setChecked(true);
}

void CVideoManagerForm::fullScreen()
{
    if (m_fullScreen->isActive()) {
        m_fullScreen->exitFullScreen();
        return;
    }
    const int index = m_mainLayout->indexOf(m_multi);
    m_mainLayout->removeWidget(m_multi);
    m_fullScreen->enter(m_multi, m_mainLayout, index);
    emit full_screen(true);
}

void CVideoManagerForm::MaximizeRestoreVideo()
{
    m_multi->MaximizeRestoreVideo();
}

void CVideoManagerForm::setCurDevice(CTavDevicePtr device)
{
    m_multi->setCurDevice(device);
}

void CVideoManagerForm::onActionBayerDemosaicing(QAction* action)
{
    if (!action)
        return;
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->BayerDemosaicing = action->data().toInt();
    m_multi->setBayerDemosaic(cfg->BayerDemosaicing);
    cfg->notifyDisplayConfigChanged();   // the stream threads copy the display options
    saveConfig();
}

void CVideoManagerForm::onActionDisplay(QAction* action)
{
    if (!action)
        return;
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->strDisplayValue = action->data().toString();
    cfg->displayValue = displayRateValue(cfg->strDisplayValue);
    for (int id = 0; id < CMultiVideoForm::kFormCount; ++id)
        if (CTavDevicePtr device = m_multi->getForm(id) ? m_multi->getForm(id)->getDevice() : CTavDevicePtr())
            device->setDisplayFPS(cfg->displayValue);
    cfg->notifyDisplayConfigChanged();
    saveConfig();
}

void CVideoManagerForm::onActionDisplayChunkData()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->displayChunkDataEnable = m_actChunk->isChecked();
    m_multi->setShowChunkData(cfg->displayChunkDataEnable);
    cfg->notifyDisplayConfigChanged();
    saveConfig();
}

void CVideoManagerForm::onActionDisplayCrosshair()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->isShowCrosshair = m_actCrosshair->isChecked();
    m_multi->setShowCrosshair(cfg->isShowCrosshair);
    saveConfig();
}

void CVideoManagerForm::onActionCrosshairColorConfig()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    const QColor color = pickStoredColor(m_colorPicker, cfg->RedCrosshair, cfg->GreenCrosshair, cfg->BlueCrosshair);
    if (!color.isValid())
        return;
    m_multi->setCrosshairColor(color);
    saveConfig();
}

void CVideoManagerForm::onActionDrawROI()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->drawRoiEnable = m_actDrawROI->isChecked();
    m_multi->setDrawROIEnable(cfg->drawRoiEnable);
    saveConfig();
}

void CVideoManagerForm::onActionDrawROIColorConfig()
{
    CConfiguration* cfg = CConfiguration::getInstance();
    const QColor color = pickStoredColor(m_colorPicker, cfg->roiRed, cfg->roiGreen, cfg->roiBlue);
    if (!color.isValid())
        return;
    m_multi->setROIColor(color);
    saveConfig();
}

void CVideoManagerForm::onActionDisplayROI(bool checked)
{
    CConfiguration* cfg = CConfiguration::getInstance();
    cfg->displayRoiEnable = checked;
    m_multi->setDisplayROIEnable(checked);
    saveConfig();
}

void CVideoManagerForm::onActionDeleteROI()
{
    m_multi->deleteROI();   // the view announces the change and its ROIs are saved
}

void CVideoManagerForm::onSignalGetROI(QList<stuROI>& rois, CTavDevicePtr device)
{
    m_multi->getROIByDevcie(rois, device);
}

void CVideoManagerForm::onSignalSetROI(QList<stuROI> rois)
{
    m_multi->setROI(rois);
    if (!m_multi->saveROIConfig())
        m_message(tr("Save Config failed."));
}

void CVideoManagerForm::onRestoreCfg()
{
    applyConfig();
}
