#include "CPropertyForm.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "CBusyIndicator.h"
#include "CDeviceManager.h"
#include "CLanguageWatcher.h"
#include "CParamFileController.h"
#include "CPropertyFeaturesForm.h"
#include "CPropertyGPIOForm.h"
#include "CPropertyImageFormatForm.h"
#include "CViewSignalHub.h"
#include "CPropertySettingsForm.h"
#include "Named.h"
#include "CSaveFeaturesDlg.h"
#include "CTavDevice.h"
#include "ParamTransTables.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
// The panel's tool buttons: the four tabs in tab order, then expand and
// collapse, which show their text as a tooltip.
struct SButton
{
    const char* name;
    const char* icon;
    const char* text;
    void (CPropertyForm::*clicked)();
};
const SButton kButtons[] = {
    {"btnfeatures", ":/Pic/Icon_Property_Tab_Features.png", QT_TRANSLATE_NOOP("CPropertyForm", "Features"),
     &CPropertyForm::on_btnfeatures_clicked},
    {"btnSettings", ":/Pic/Icon_Property_Tab_Settings.png", QT_TRANSLATE_NOOP("CPropertyForm", "Settings"),
     &CPropertyForm::on_btnSettings_clicked},
    {"btnImageFormat", ":/Pic/Icon_Property_Tab_ImageFormat.png", QT_TRANSLATE_NOOP("CPropertyForm", "Image Format"),
     &CPropertyForm::on_btnImageFormat_clicked},
    {"btnGPIO", ":/Pic/Icon_Property_Tab_GPIO.png", QT_TRANSLATE_NOOP("CPropertyForm", "GPIO"),
     &CPropertyForm::on_btnGPIO_clicked},
    {"btnExpandProperty", ":/Pic/Icon_Property_Expand.png", QT_TRANSLATE_NOOP("CPropertyForm", "Expand all"),
     &CPropertyForm::on_btnExpandProperty_clicked},
    {"btnCollpaseProperty", ":/Pic/Icon_Property_Collapse.png", QT_TRANSLATE_NOOP("CPropertyForm", "Collapse all"),
     &CPropertyForm::onBtnCollpasePropertyClicked},
};
const int kTabCount = 4;
}

CPropertyForm::CPropertyForm(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("CPropertyForm"));
    auto* tabs = new QHBoxLayout();
    tabs->setContentsMargins(4, 4, 4, 0);
    tabs->setSpacing(2);
    for (int i = 0; i < kButtonCount; ++i)
    {
        const bool tab = i < kTabCount;
        auto* b = named(new QToolButton(this), kButtons[i].name);
        b->setIcon(QIcon(QLatin1String(kButtons[i].icon)));
        b->setIconSize(QSize(20, 20));
        b->setCheckable(tab);
        b->setAutoRaise(true);
        // Tabs carry their text under the icon so four of them fit a narrow panel.
        b->setToolButtonStyle(tab ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
        connect(b, &QToolButton::clicked, this, kButtons[i].clicked);
        if (i == kTabCount)
            tabs->addStretch(1);
        tabs->addWidget(b);
        m_buttons[i] = b;
    }

    m_stack = named(new QStackedWidget(this), "stackedWidget");
    m_emptyPage = named(new QWidget(m_stack), "emptyPage");
    m_emptyLabel = new QLabel(m_emptyPage);
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    auto* emptyLayout = new QVBoxLayout(m_emptyPage);
    emptyLayout->addWidget(m_emptyLabel);
    m_stack->addWidget(m_emptyPage);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(tabs);
    layout->addWidget(m_stack, 1);

    // Laid over the stack, outside the layout.
    m_waiting = named(new CBusyIndicator(this), "waitingGif");
    m_waiting->hide();

    m_paramFiles = new CParamFileController(this, this);

    connect(this, &CPropertyForm::update_receive, this, &CPropertyForm::OnUpdateReceive, Qt::QueuedConnection);
    CDeviceManager::getInstance()->attach(this);
    initParamTransMap();
    // The pages below hear of a language change after this panel, so the
    // tables are refilled before they re-label their rows.
    CLanguageWatcher::install(this, [this]() {
        clearParamTransMap();
        initParamTransMap();
        retranslateUi();
    });
    retranslateUi();
    setTab(tabFeatures);
}

CPropertyForm::~CPropertyForm()
{
    CDeviceManager::getInstance()->detach(this);
    delete m_saveDlg;
    const QList<CTavDevicePtr> devices = m_features.keys();
    for (const CTavDevicePtr& d : devices)
        removeDevicePages(d);
}

void CPropertyForm::initParamTransMap()
{
    fillParamTransTables();
}

void CPropertyForm::clearParamTransMap()
{
    clearParamTransTables();
}

void CPropertyForm::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CPropertyForm::retranslateUi()
{
    for (int i = 0; i < kButtonCount; ++i)
    {
        if (i < kTabCount)
            m_buttons[i]->setText(tr(kButtons[i].text));
        else
            m_buttons[i]->setToolTip(tr(kButtons[i].text));
    }
    m_emptyLabel->setText(tr("Connect a camera to see its features."));
}

void CPropertyForm::onLanChanged(int language)
{
    clearParamTransMap();
    initParamTransMap();
    retranslateUi();
    for (CPropertyFeaturesForm* page : qAsConst(m_features))
        page->retranslateUi();
    emit signalLanChanged(language);
}

void CPropertyForm::onFeatureLanChanged(int language)
{
    for (CPropertyFeaturesForm* page : qAsConst(m_features))
        page->setFeatureLanguage(language);
}

void CPropertyForm::setViewSignals(CViewSignalHub* hub)
{
    m_viewSignals = hub;
}

void CPropertyForm::addDevicePages(const CTavDevicePtr& device)
{
    if (!device || m_features.contains(device))
        return;
    auto* features = new CPropertyFeaturesForm(device, m_stack);
    auto* settings = new CPropertySettingsForm(device, m_stack);
    auto* imageFormat = new CPropertyImageFormatForm(device, m_stack, m_viewSignals);
    auto* gpio = new CPropertyGPIOForm(m_stack);
    for (QWidget* page : {static_cast<QWidget*>(features), static_cast<QWidget*>(settings),
                          static_cast<QWidget*>(imageFormat), static_cast<QWidget*>(gpio)})
        m_stack->addWidget(page);
    m_features.insert(device, features);
    m_settings.insert(device, settings);
    m_imageFormat.insert(device, imageFormat);
    m_gpio.insert(device, gpio);
    connect(features, &CPropertyFeaturesForm::showGenParamFinish, this, &CPropertyForm::onShowGenParamFinish);
    connect(features, &CPropertyFeaturesForm::propertyLoadAborted, this, &CPropertyForm::refreshShow);
    connect(features, &CPropertyFeaturesForm::signalSaveFeatures, this, &CPropertyForm::onSaveFeatures);
    connect(this, &CPropertyForm::signalLanChanged, gpio, [gpio](int) { gpio->retranslateUi(); });
    connect(this, &CPropertyForm::signalLanChanged, settings, [settings](int) { settings->retranslateUi(); });
    connect(this, &CPropertyForm::signalLanChanged, imageFormat,
            [imageFormat](int) { imageFormat->retranslateUi(); });
}

void CPropertyForm::removeDevicePages(const CTavDevicePtr& device)
{
    if (!m_features.contains(device))
        return;
    CPropertyImageFormatForm* imageFormat = m_imageFormat.take(device);
    if (imageFormat)
        imageFormat->cancelROI();
    const QList<QWidget*> pages = {m_features.take(device), m_settings.take(device), imageFormat, m_gpio.take(device)};
    for (QWidget* page : pages)
    {
        if (!page)
            continue;
        m_stack->removeWidget(page);
        page->hide();
        page->deleteLater();
    }
}

void CPropertyForm::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device)
        return;
    const CTavDevicePtr device = msg->device;
    switch (msg->type)
    {
    case MSG_DEVICE_CONNECTED:
        // A camera closed as soon as it connects (the window closing, a
        // disconnect-all) gets no pages: building them is long GUI work.
        if (!device->isClosing())
            addDevicePages(device);
        break;
    case MSG_DEVICE_CONNECT_FAILED:
    case MSG_DEVICE_DISCONNECTED:
    case MSG_DEVICE_OFFLINE:
        removeDevicePages(device);
        break;
    case MSG_DEVICE_DISCONNECTING:
        if (CPropertyImageFormatForm* page = m_imageFormat.value(device))
            page->cancelROI();
        break;
    case MSG_STREAM_OPENED:
    case MSG_STREAM_CLOSED:
        if (CPropertyFeaturesForm* page = m_features.value(device))
            page->updateGrabStatus();
        break;
    case MSG_DEVICE_CONNECTING:
        break;
    default:
        return;
    }
    refreshShow();
}

void CPropertyForm::setCurDevice(CTavDevicePtr device)
{
    if (m_curDevice && m_curDevice != device)
        cancelROI();
    m_curDevice = device;
    refreshShow();
}

void CPropertyForm::refreshShow()
{
    QWidget* page = nullptr;
    if (m_curDevice)
    {
        switch (m_tab)
        {
        case tabFeatures:
            page = m_features.value(m_curDevice);
            break;
        case tabSettings:
            page = m_settings.value(m_curDevice);
            break;
        case tabImageFormat:
            page = m_imageFormat.value(m_curDevice);
            break;
        default:
            page = m_gpio.value(m_curDevice);
            break;
        }
    }
    m_stack->setCurrentWidget(page ? page : m_emptyPage);
    const CPropertyFeaturesForm* features = m_curDevice ? m_features.value(m_curDevice) : nullptr;
    const bool waiting = m_curDevice && (m_curDevice->isConnecting() || (features && features->isLoadingGenParams()));
    showWaitingGif(waiting);
    const bool treeShown = m_tab == tabFeatures && features;
    m_buttons[buttonExpand]->setEnabled(treeShown);
    m_buttons[buttonCollapse]->setEnabled(treeShown);
}

void CPropertyForm::showWaitingGif(bool show)
{
    if (!show)
    {
        m_waiting->hide();
        return;
    }
    const QSize size = m_waiting->sizeHint();
    const QRect area = m_stack->geometry();
    m_waiting->setGeometry(QRect(area.center() - QPoint(size.width() / 2, size.height() / 2), size));
    m_waiting->raise();
    m_waiting->show();
}

bool CPropertyForm::isWaitingShown() const
{
    return !m_waiting->isHidden();
}

void CPropertyForm::cancelROI()
{
    if (m_curDevice)
        if (CPropertyImageFormatForm* page = m_imageFormat.value(m_curDevice))
            page->cancelROI();
}

void CPropertyForm::setTab(int tab)
{
    if (m_tab == tabImageFormat && tab != tabImageFormat)
        cancelROI();
    m_tab = tab;
    for (int i = 0; i < kTabCount; ++i)
        m_buttons[i]->setChecked(i == tab);
    refreshShow();
}

void CPropertyForm::on_btnfeatures_clicked()
{
    setTab(tabFeatures);
}
void CPropertyForm::on_btnSettings_clicked()
{
    setTab(tabSettings);
}
void CPropertyForm::on_btnImageFormat_clicked()
{
    setTab(tabImageFormat);
}
void CPropertyForm::on_btnGPIO_clicked()
{
    setTab(tabGPIO);
}

void CPropertyForm::on_btnExpandProperty_clicked()
{
    if (CPropertyFeaturesForm* page = m_curDevice ? m_features.value(m_curDevice) : nullptr)
        page->expandAll();
}

void CPropertyForm::onBtnCollpasePropertyClicked()
{
    if (CPropertyFeaturesForm* page = m_curDevice ? m_features.value(m_curDevice) : nullptr)
        page->collapseAll();
}

void CPropertyForm::onShowGenParamFinish(CTavDevicePtr device)
{
    if (device == m_curDevice)
        showWaitingGif(false);
}

void CPropertyForm::onSaveFeatures(CTavDevicePtr device)
{
    if (!device)
        return;
    delete m_saveDlg;
    QWidget* parent = QApplication::activeWindow() ? QApplication::activeWindow() : window();
    m_saveDlg = new CSaveFeaturesDlg(device, parent);
    m_saveDlg->setAttribute(Qt::WA_DeleteOnClose);
    m_saveDlg->open();
}

void CPropertyForm::onOpenConfig(CTavDevicePtr device)
{
    m_paramFiles->onOpenConfig(device);
}

void CPropertyForm::onSaveConfig(CTavDevicePtr device)
{
    m_paramFiles->onSaveConfig(device);
}

void CPropertyForm::enterEvent(QEvent* event)
{
    QWidget::enterEvent(event);
    refreshShow();
}

void CPropertyForm::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isWaitingShown())
        showWaitingGif(true);
}
