#pragma once
// Main window skeleton: menus and the three panel areas (device list on the
// left, video in the centre, properties on the right) that the panels fill.
#include <QMainWindow>
#include <QString>

class QAction;
class QDockWidget;

class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    enum ELanguage
    {
        LanguageEnglish = 0,
        LanguageChinese = 1
    };

    explicit MainWindow(const QString& commandLine, QWidget* parent = nullptr);
    ~MainWindow() override;

    QString commandLine() const { return m_commandLine; }
    QWidget* deviceListArea() const { return m_deviceListArea; }
    QWidget* videoArea() const { return m_videoArea; }
    QWidget* propertyArea() const { return m_propertyArea; }

    // Reads a configuration file chosen by the user (drawing ROIs kept),
    // stores it as the user's configuration and tells every panel.
    bool openConfiguration(const QString& path);
    bool saveConfiguration(const QString& path);
    // Stores the language and applies its font sheet over the main sheet.
    void setLanguage(int language);

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void on_actionOpenConfig_triggered();
    void on_actionSaveConfig_triggered();
    void on_actionAbout_triggered();
    // End of a discovery pass; false only when a unicast address was silent.
    void onSignalDiscoveryFinished(bool ok);
    void onDevicesChanged();

private:
    void createMenus();
    void createAreas();
    void applyFontSheet(int language);
    void startDeviceManager();

    QString m_commandLine;
    QString m_baseStyleSheet;   // the main sheet, loaded before the window
    QWidget* m_deviceListArea = nullptr;
    QWidget* m_videoArea = nullptr;
    QWidget* m_propertyArea = nullptr;
    QDockWidget* m_deviceDock = nullptr;
    QDockWidget* m_propertyDock = nullptr;
    QAction* m_actionEnglish = nullptr;
    QAction* m_actionChinese = nullptr;
    bool m_closingDevices = false;
};
