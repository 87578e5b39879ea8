#include "MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "StyleSheet.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

namespace {
const char* const kEnglishFontSheet = "Skins/Default/Vintrel/style_eng_font.qss";
const char* const kChineseFontSheet = "Skins/Default/Vintrel/style_chn_font.qss";
} // namespace

MainWindow::MainWindow(const QString& commandLine, QWidget* parent)
    : QMainWindow(parent)
    , m_commandLine(commandLine)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QStringLiteral("Lumidor"));
    m_baseStyleSheet = qApp->styleSheet();

    createAreas();
    createMenus();

    const int language = CConfiguration::getInstance()->readLanguageSetting();
    (language == LanguageChinese ? m_actionChinese : m_actionEnglish)->setChecked(true);
    applyFontSheet(language);

    resize(1400, 860);
    startDeviceManager();

    // Lets automated start-up checks end the program on their own.
    bool ok = false;
    const int quitAfterMs = qEnvironmentVariableIntValue("LUMIDOR_QUIT_AFTER_MS", &ok);
    if (ok && quitAfterMs > 0)
        QTimer::singleShot(quitAfterMs, this, &QWidget::close);
}

MainWindow::~MainWindow() = default;

void MainWindow::startDeviceManager()
{
    connect(CDiscoveryDevicesThread::getInstance(), &CDiscoveryDevicesThread::discoveryDevicesFinished, this,
            &MainWindow::onSignalDiscoveryFinished, Qt::QueuedConnection);
    // The manager starts the discovery worker and asks for the first pass.
    connect(CDeviceManager::getInstance(), &CDeviceManager::discoveryDevicesFinished, this,
            &MainWindow::onDevicesChanged);
    statusBar()->showMessage(tr("Searching for cameras..."));
}

void MainWindow::onSignalDiscoveryFinished(bool ok)
{
    if (!ok)
        messageBox(tr("Add remote device failed."), this, QMessageBox::Ok, QMessageBox::Critical);
}

void MainWindow::onDevicesChanged()
{
    const int count = CDeviceManager::getInstance()->getAllDevices().size();
    statusBar()->showMessage(tr("Cameras found: %1").arg(count));
}

void MainWindow::createAreas()
{
    m_videoArea = new QWidget(this);
    m_videoArea->setObjectName(QStringLiteral("videoArea"));
    setCentralWidget(m_videoArea);

    m_deviceDock = new QDockWidget(tr("Devices"), this);
    m_deviceDock->setObjectName(QStringLiteral("deviceListDock"));
    m_deviceDock->setFeatures(QDockWidget::DockWidgetMovable);
    m_deviceListArea = new QWidget(m_deviceDock);
    m_deviceListArea->setObjectName(QStringLiteral("deviceListArea"));
    m_deviceListArea->setMinimumWidth(260);
    m_deviceDock->setWidget(m_deviceListArea);
    addDockWidget(Qt::LeftDockWidgetArea, m_deviceDock);

    m_propertyDock = new QDockWidget(tr("Properties"), this);
    m_propertyDock->setObjectName(QStringLiteral("propertyDock"));
    m_propertyDock->setFeatures(QDockWidget::DockWidgetMovable);
    m_propertyArea = new QWidget(m_propertyDock);
    m_propertyArea->setObjectName(QStringLiteral("propertyArea"));
    m_propertyArea->setMinimumWidth(320);
    m_propertyDock->setWidget(m_propertyArea);
    addDockWidget(Qt::RightDockWidgetArea, m_propertyDock);
}

void MainWindow::createMenus()
{
    QMenu* fileMenu = menuBar()->addMenu(tr("&File"));
    fileMenu->setObjectName(QStringLiteral("menuFile"));
    QAction* open = fileMenu->addAction(tr("Open configuration..."));
    open->setObjectName(QStringLiteral("actionOpenConfig"));
    QAction* save = fileMenu->addAction(tr("Save configuration..."));
    save->setObjectName(QStringLiteral("actionSaveConfig"));
    fileMenu->addSeparator();
    QAction* exit = fileMenu->addAction(tr("Exit"));
    exit->setObjectName(QStringLiteral("actionExit"));
    connect(exit, &QAction::triggered, this, &QWidget::close);

    QMenu* toolsMenu = menuBar()->addMenu(tr("&Tools"));
    toolsMenu->setObjectName(QStringLiteral("menuTools"));
    QAction* monitor = toolsMenu->addAction(tr("Event Monitor"));
    monitor->setObjectName(QStringLiteral("actionEventMonitor"));
    monitor->setEnabled(false);
    QAction* statistics = toolsMenu->addAction(tr("Statistics"));
    statistics->setObjectName(QStringLiteral("actionStatistics"));
    statistics->setEnabled(false);

    QMenu* languageMenu = menuBar()->addMenu(tr("&Language"));
    languageMenu->setObjectName(QStringLiteral("menuLanguage"));
    auto* group = new QActionGroup(this);
    group->setExclusive(true);
    m_actionEnglish = languageMenu->addAction(QStringLiteral("English"));
    m_actionEnglish->setObjectName(QStringLiteral("actionEnglish"));
    m_actionChinese = languageMenu->addAction(QString::fromUtf8("\xe4\xb8\xad\xe6\x96\x87 (Chinese)"));
    m_actionChinese->setObjectName(QStringLiteral("actionChinese"));
    for (QAction* a : {m_actionEnglish, m_actionChinese}) {
        a->setCheckable(true);
        group->addAction(a);
    }
    connect(m_actionEnglish, &QAction::triggered, this, [this] { setLanguage(LanguageEnglish); });
    connect(m_actionChinese, &QAction::triggered, this, [this] { setLanguage(LanguageChinese); });

    QMenu* helpMenu = menuBar()->addMenu(tr("&Help"));
    helpMenu->setObjectName(QStringLiteral("menuHelp"));
    QAction* about = helpMenu->addAction(tr("About"));
    about->setObjectName(QStringLiteral("actionAbout"));

    // The on_<object>_<signal> slots are connected by name.
    QMetaObject::connectSlotsByName(this);
}

void MainWindow::applyFontSheet(int language)
{
    CStyleSheetText fontSheet;
    ::setStyleSheet<CStyleSheetText>(fontSheet, QLatin1String(language == LanguageChinese ? kChineseFontSheet
                                                                                        : kEnglishFontSheet));
    qApp->setStyleSheet(m_baseStyleSheet + QLatin1Char('\n') + fontSheet.text);
}

void MainWindow::setLanguage(int language)
{
    CConfiguration::getInstance()->writeLanguageSetting(language);
    (language == LanguageChinese ? m_actionChinese : m_actionEnglish)->setChecked(true);
    applyFontSheet(language);
}

bool MainWindow::openConfiguration(const QString& path)
{
    CConfiguration* cfg = CConfiguration::getInstance();
    if (!cfg->restoreConfig(path, false)) {
        LOG_ERROR("restore config failed. path: [%s]", path.toLocal8Bit().constData());
        return false;
    }
    const bool saved = cfg->saveConfigToUserXml();
    cfg->notifyRestoreCfg();
    return saved;
}

bool MainWindow::saveConfiguration(const QString& path)
{
    return CConfiguration::getInstance()->saveConfig(path);
}

void MainWindow::on_actionOpenConfig_triggered()
{
    const QString dir = QFileInfo(CConfiguration::getInstance()->userConfigPath()).absolutePath();
    const QString path = QFileDialog::getOpenFileName(this, tr("Open configuration"), dir,
                                                      tr("Configuration files (*.tavcfg);;All files (*)"));
    if (path.isEmpty())
        return;
    if (!openConfiguration(path))
        messageBox(tr("Load configuration failed."), this, QMessageBox::Ok, QMessageBox::Critical);
}

void MainWindow::on_actionSaveConfig_triggered()
{
    const QString dir = QFileInfo(CConfiguration::getInstance()->userConfigPath()).absolutePath();
    QString path = QFileDialog::getSaveFileName(this, tr("Save configuration"), dir,
                                                tr("Configuration files (*.tavcfg);;All files (*)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".tavcfg");
    if (!saveConfiguration(path))
        messageBox(tr("Save Config failed."), this, QMessageBox::Ok, QMessageBox::Critical);
}

void MainWindow::on_actionAbout_triggered()
{
    messageBox(tr("Lumidor %1\nViewer for GigE Vision and USB3 Vision cameras.")
                   .arg(QCoreApplication::applicationVersion().isEmpty() ? QStringLiteral("0.1.0")
                                                                          : QCoreApplication::applicationVersion()),
               this, QMessageBox::Ok, QMessageBox::Information);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // Open cameras are closed first, off the GUI thread; the window closes
    // again when that is done (the worker gives up after 5 s).
    if (!m_closingDevices && CDeviceManager::getInstance()->getOpenedDeviceCount() > 0) {
        m_closingDevices = true;
        event->ignore();
        statusBar()->showMessage(tr("Closing cameras..."));
        CDisconnectAllThread* worker = CDisconnectAllThread::getInstance();
        connect(worker, &CDisconnectAllThread::closeAllFinished, this, &QWidget::close, Qt::QueuedConnection);
        worker->start();
        return;
    }
    QMainWindow::closeEvent(event);
    // Closing the last window does not end the program by itself.
    if (event->isAccepted())
        QCoreApplication::quit();
}
