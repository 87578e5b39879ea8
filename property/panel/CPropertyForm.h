#pragma once
// The right-hand property panel: for every connected device four pages
// (features, settings, image format, GPIO) in one stack, shown for the
// current device under four tab buttons, with a waiting animation over the
// stack while the device connects or its feature tree loads. It owns the
// translation tables of feature names (initParamTransMap) and the
// parameter-file operations of the device list (onOpenConfig/onSaveConfig).
#include <QMap>
#include <QPointer>
#include <QWidget>

#include "CObserver.h"
#include "CTavMessage.h"

class QStackedWidget;
class QToolButton;
class QLabel;
class CBusyIndicator;
class CPropertyFeaturesForm;
class CPropertySettingsForm;
class CPropertyImageFormatForm;
class CPropertyGPIOForm;
class CParamFileController;
class CSaveFeaturesDlg;
class CViewSignalHub;

class CPropertyForm : public QWidget, public CObserver
{
    Q_OBJECT
public:
    enum ETab
    {
        tabFeatures = 0,
        tabSettings = 1,
        tabImageFormat = 2,
        tabGPIO = 3
    };

    explicit CPropertyForm(QWidget* parent = nullptr);
    ~CPropertyForm() override;

    void Update(CTavMessagePtr msg) override;

    void setCurDevice(CTavDevicePtr device);
    CTavDevicePtr curDevice() const { return m_curDevice; }
    // The video views' drawing signals, for the image-format pages made
    // from now on.
    void setViewSignals(CViewSignalHub* hub);
    void refreshShow();
    void showWaitingGif(bool show);
    // Ends a region drawing of the current device's image-format page.
    void cancelROI();
    void retranslateUi();

    // Clears and refills the feature-name translation tables in the current language.
    static void initParamTransMap();
    static void clearParamTransMap();

    int currentTab() const { return m_tab; }
    QStackedWidget* stack() const { return m_stack; }
    QWidget* emptyPage() const { return m_emptyPage; }
    bool isWaitingShown() const;
    CPropertyFeaturesForm* featuresPage(const CTavDevicePtr& device) const { return m_features.value(device); }
    CPropertySettingsForm* settingsPage(const CTavDevicePtr& device) const { return m_settings.value(device); }
    CPropertyImageFormatForm* imageFormatPage(const CTavDevicePtr& device) const { return m_imageFormat.value(device); }
    CPropertyGPIOForm* gpioPage(const CTavDevicePtr& device) const { return m_gpio.value(device); }
    int deviceCount() const { return m_features.size(); }
    CParamFileController* paramFileController() const { return m_paramFiles; }
    CSaveFeaturesDlg* saveFeaturesDialog() const { return m_saveDlg; }

signals:
    void update_receive(CTavMessagePtr msg);
    // Forwarded to the pages (and connected from the main window's signalLanChanged).
    void signalLanChanged(int language);

public slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    void on_btnfeatures_clicked();
    void on_btnSettings_clicked();
    void on_btnImageFormat_clicked();
    void on_btnGPIO_clicked();
    void on_btnExpandProperty_clicked();
    void onBtnCollpasePropertyClicked();
    void onShowGenParamFinish(CTavDevicePtr device);
    // Opens the save-features dialog of the device (the features page's save button).
    void onSaveFeatures(CTavDevicePtr device);
    // "Open Config" / "Save Config" of the device list.
    void onOpenConfig(CTavDevicePtr device);
    void onSaveConfig(CTavDevicePtr device);
    void onLanChanged(int language);
    // Feature-name language of the main window (0 raw names, else translated).
    void onFeatureLanChanged(int language);

protected:
    void enterEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setTab(int tab);
    void addDevicePages(const CTavDevicePtr& device);
    void removeDevicePages(const CTavDevicePtr& device);

    // The four tabs (by ETab), then expand and collapse.
    enum
    {
        buttonExpand = 4,
        buttonCollapse = 5,
        kButtonCount = 6
    };
    QToolButton* m_buttons[kButtonCount] = {};
    QStackedWidget* m_stack = nullptr;
    QWidget* m_emptyPage = nullptr;
    QLabel* m_emptyLabel = nullptr;
    CBusyIndicator* m_waiting = nullptr;

    QMap<CTavDevicePtr, CPropertyFeaturesForm*> m_features;
    QMap<CTavDevicePtr, CPropertySettingsForm*> m_settings;
    QMap<CTavDevicePtr, CPropertyImageFormatForm*> m_imageFormat;
    QMap<CTavDevicePtr, CPropertyGPIOForm*> m_gpio;
    CTavDevicePtr m_curDevice;
    int m_tab = tabFeatures;
    CParamFileController* m_paramFiles = nullptr;
    QPointer<CSaveFeaturesDlg> m_saveDlg;
    QPointer<CViewSignalHub> m_viewSignals;
};
