#pragma once
// The main window: a thin assembly of the panels. Device list on the left,
// video in the centre, properties on the right, each side panel foldable to
// a thin strip; menus for file, tools, language and help. It owns no device
// or stream logic: the panels bring their own.
#include <QMainWindow>
#include <QPointer>
#include <QString>

#include "CLanguageManager.h"

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QSplitter;
class CCollapsiblePanel;
class CHelpDlg;
class CWaitDlg;

class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    enum ELanguage
    {
        LanguageEnglish = CLanguageManager::LanguageEnglish,
        LanguageChinese = CLanguageManager::LanguageChinese
    };

    explicit MainWindow(const QString& commandLine, QWidget* parent = nullptr);
    ~MainWindow() override;

    QString commandLine() const { return m_commandLine; }

    // Places a panel; the placeholder (or previous panel) is deleted.
    void setDeviceListPanel(QWidget* panel);
    void setVideoPanel(QWidget* panel);
    void setPropertyPanel(QWidget* panel);
    QWidget* deviceListArea() const { return m_deviceListArea; }
    QWidget* videoArea() const { return m_videoArea; }
    QWidget* propertyArea() const { return m_propertyArea; }
    CCollapsiblePanel* leftPanel() const { return m_leftPanel; }
    CCollapsiblePanel* rightPanel() const { return m_rightPanel; }

    // The Tools menu. Later dialogs add their entry with addToolsAction():
    // give the action an object name, set its text again in the owner's
    // retranslation (or let the owner connect to signalLanChanged), and
    // connect triggered() to open the dialog.
    QMenu* toolsMenu() const { return m_toolsMenu; }
    void addToolsAction(QAction* action);

    CLanguageManager* languageManager() const { return m_language; }

    // Reads a configuration file chosen by the user (drawing ROIs kept),
    // stores it as the user's configuration and tells every panel.
    bool openConfiguration(const QString& path);
    bool saveConfiguration(const QString& path);
    // The same, telling the user in a message box when it fails.
    bool openConfigurationReporting(const QString& path);
    bool saveConfigurationReporting(const QString& path);
    // Applies the language at once to every window and stores it.
    void setLanguage(int language);
    void setFeatureLanguage(int language);

    // Closing runs the disconnect-all worker first; true while it runs.
    bool isClosingDevices() const { return m_closingDevices; }
    CWaitDlg* closeWaitDialog() const { return m_closeWait; }

signals:
    // Interface language changed, after the translators were installed.
    void signalLanChanged(int language);
    // Feature-name language changed (0 original names, 1 translated).
    void signalFeatureLanChanged(int language);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_actionOpenConfig_triggered();
    void on_actionSaveConfig_triggered();
    void on_actionHelp_triggered();
    void on_actionAbout_triggered();
    // End of a discovery pass; false only when a unicast address was silent.
    void onSignalDiscoveryFinished(bool ok);
    void onDevicesChanged();
    void onCloseAllFinished();

private:
    void createMenus();
    void createAreas();
    void retranslate();
    void startDeviceManager();
    void syncLanguageActions();
    QWidget* placePanel(QWidget* panel, QWidget*& slot, const QString& name);

    QString m_commandLine;
    CLanguageManager* m_language = nullptr;
    QSplitter* m_splitter = nullptr;
    CCollapsiblePanel* m_leftPanel = nullptr;
    CCollapsiblePanel* m_rightPanel = nullptr;
    QWidget* m_deviceListArea = nullptr;
    QWidget* m_videoArea = nullptr;
    QWidget* m_propertyArea = nullptr;
    QLabel* m_statusLabel = nullptr;

    QMenu* m_fileMenu = nullptr;
    QMenu* m_toolsMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QMenu* m_featureLanguageMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QAction* m_actionOpen = nullptr;
    QAction* m_actionSave = nullptr;
    QAction* m_actionExit = nullptr;
    QAction* m_actionNoTools = nullptr;
    QAction* m_actionEnglish = nullptr;
    QAction* m_actionChinese = nullptr;
    QAction* m_actionFeatureOriginal = nullptr;
    QAction* m_actionFeatureTranslated = nullptr;
    QAction* m_actionHelp = nullptr;
    QAction* m_actionAbout = nullptr;

    CWaitDlg* m_closeWait = nullptr;
    QPointer<CHelpDlg> m_helpDlg;
    bool m_closingDevices = false;
    bool m_splitterSized = false;   // side panels given their widths at the first show
    bool m_devicesClosed = false;
    QMetaObject::Connection m_closeAllConnection;   // to the disconnect-all worker while it closes
    int m_cameraCount = -1;
};
