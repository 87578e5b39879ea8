#include "MainWindow.h"

#include <QShowEvent>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>

#include "CAboutDlg.h"
#include "CCollapsiblePanel.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "CHelpDlg.h"
#include "CMenu.h"
#include "CWaitDlg.h"
#include "LumidorResources.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "MessageBox.h"
#include "Utils.h"

namespace {
// The main sheet as loaded at start, kept on the application so that every
// window appends its font sheet to the same base.
QString baseStyleSheet()
{
    const char* key = "lumidorBaseStyleSheet";
    if (!qApp->property(key).isValid())
        qApp->setProperty(key, qApp->styleSheet());
    return qApp->property(key).toString();
}

QWidget* placeholder(QWidget* parent, const QString& name)
{
    auto* w = new QWidget(parent);
    w->setObjectName(name);
    w->setAttribute(Qt::WA_StyledBackground, true);
    return w;
}
} // namespace

MainWindow::MainWindow(const QString& commandLine, QWidget* parent)
    : QMainWindow(parent)
    , m_commandLine(commandLine)
{
    initLumidorResources();
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QStringLiteral("Lumidor"));
    // The application's icon, so every dialog carries it too.
    qApp->setWindowIcon(QIcon(QStringLiteral(":/Pic/Lumidor.png")));

    m_language = new CLanguageManager(baseStyleSheet(), QStringLiteral("Skins/Default/Vintrel"), this);
    connect(m_language, &CLanguageManager::languageChanged, this, &MainWindow::signalLanChanged);
    connect(m_language, &CLanguageManager::featureLanguageChanged, this, &MainWindow::signalFeatureLanChanged);

    createAreas();
    createMenus();
    m_language->applyStoredLanguage();
    syncLanguageActions();
    retranslate();

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
}

void MainWindow::onSignalDiscoveryFinished(bool ok)
{
    if (!ok)
        messageBox(tr("Add remote device failed."), this, QMessageBox::Ok, QMessageBox::Critical);
}

void MainWindow::onDevicesChanged()
{
    m_cameraCount = CDeviceManager::getInstance()->getAllDevices().size();
    retranslate();
}

void MainWindow::createAreas()
{
    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setObjectName(QStringLiteral("mainSplitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(2);

    m_leftPanel = new CCollapsiblePanel(CCollapsiblePanel::LeftSide, m_splitter);
    m_videoArea = placeholder(m_splitter, QStringLiteral("videoArea"));
    m_rightPanel = new CCollapsiblePanel(CCollapsiblePanel::RightSide, m_splitter);
    m_splitter->addWidget(m_leftPanel);
    m_splitter->addWidget(m_videoArea);
    m_splitter->addWidget(m_rightPanel);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setStretchFactor(2, 0);

    m_deviceListArea = placeholder(m_leftPanel, QStringLiteral("deviceListArea"));
    m_deviceListArea->setMinimumWidth(260);
    m_leftPanel->setContent(m_deviceListArea);
    m_leftPanel->setExpandedWidth(300);
    m_propertyArea = placeholder(m_rightPanel, QStringLiteral("propertyArea"));
    m_propertyArea->setMinimumWidth(320);
    m_rightPanel->setContent(m_propertyArea);
    m_rightPanel->setExpandedWidth(360);
    m_splitter->setSizes({300, 740, 360});
    setCentralWidget(m_splitter);

    // A label, not a status message: menu hints would wipe a message.
    m_statusLabel = new QLabel(this);
    m_statusLabel->setObjectName(QStringLiteral("lblMainStatus"));
    statusBar()->addWidget(m_statusLabel, 1);
}

QWidget* MainWindow::placePanel(QWidget* panel, QWidget*& slot, const QString& name)
{
    if (!panel)
        panel = placeholder(nullptr, name);
    slot = panel;
    return panel;
}

void MainWindow::setDeviceListPanel(QWidget* panel)
{
    m_leftPanel->setContent(placePanel(panel, m_deviceListArea, QStringLiteral("deviceListArea")));
}

void MainWindow::setPropertyPanel(QWidget* panel)
{
    m_rightPanel->setContent(placePanel(panel, m_propertyArea, QStringLiteral("propertyArea")));
}

void MainWindow::setVideoPanel(QWidget* panel)
{
    QWidget* old = m_videoArea;
    placePanel(panel, m_videoArea, QStringLiteral("videoArea"));
    if (old == m_videoArea)
        return;
    const QList<int> sizes = m_splitter->sizes();
    m_splitter->replaceWidget(m_splitter->indexOf(old), m_videoArea);
    m_videoArea->show();
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes(sizes);
    delete old;
}

namespace {

CMenu* namedMenu(QWidget* parent, const char* name)
{
    auto* menu = new CMenu(parent);
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QAction* addNamedAction(QMenu* menu, const char* name, const QString& text = QString(),
                        const QKeySequence& shortcut = QKeySequence())
{
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    return action;
}

// Checkable actions of which one at a time is checked.
void makeExclusive(QObject* owner, std::initializer_list<QAction*> actions)
{
    auto* group = new QActionGroup(owner);
    for (QAction* a : actions) {
        a->setCheckable(true);
        group->addAction(a);
    }
}

} // namespace

void MainWindow::createMenus()
{
    m_fileMenu = namedMenu(this, "menuFile");
    menuBar()->addMenu(m_fileMenu);
    m_actionOpen = addNamedAction(m_fileMenu, "actionOpenConfig", QString(), QKeySequence::Open);
    m_actionSave = addNamedAction(m_fileMenu, "actionSaveConfig", QString(), QKeySequence::Save);
    m_fileMenu->addSeparator();
    m_actionExit = addNamedAction(m_fileMenu, "actionExit", QString(), QKeySequence::Quit);
    connect(m_actionExit, &QAction::triggered, this, &QWidget::close);

    m_toolsMenu = namedMenu(this, "menuTools");
    menuBar()->addMenu(m_toolsMenu);
    // Stands in while no tool has registered, so the menu never opens empty.
    m_actionNoTools = addNamedAction(m_toolsMenu, "actionNoTools");
    m_actionNoTools->setEnabled(false);

    m_languageMenu = namedMenu(this, "menuLanguage");
    menuBar()->addMenu(m_languageMenu);
    // Each language is named in its own language, so it can be found in either.
    m_actionEnglish = addNamedAction(m_languageMenu, "actionEnglish", QStringLiteral("English"));
    m_actionChinese = addNamedAction(m_languageMenu, "actionChinese",
                                     QString::fromUtf8("\xe7\xae\x80\xe4\xbd\x93\xe4\xb8\xad\xe6\x96\x87"));
    makeExclusive(this, {m_actionEnglish, m_actionChinese});
    connect(m_actionEnglish, &QAction::triggered, this, [this] { setLanguage(LanguageEnglish); });
    connect(m_actionChinese, &QAction::triggered, this, [this] { setLanguage(LanguageChinese); });

    m_languageMenu->addSeparator();
    m_featureLanguageMenu = namedMenu(m_languageMenu, "menuFeatureLanguage");
    m_languageMenu->addMenu(m_featureLanguageMenu);
    m_actionFeatureOriginal = addNamedAction(m_featureLanguageMenu, "actionFeatureOriginal");
    m_actionFeatureTranslated = addNamedAction(m_featureLanguageMenu, "actionFeatureTranslated");
    makeExclusive(this, {m_actionFeatureOriginal, m_actionFeatureTranslated});
    connect(m_actionFeatureOriginal, &QAction::triggered, this, [this] { setFeatureLanguage(0); });
    connect(m_actionFeatureTranslated, &QAction::triggered, this, [this] { setFeatureLanguage(1); });

    m_helpMenu = namedMenu(this, "menuHelp");
    menuBar()->addMenu(m_helpMenu);
    m_actionHelp = addNamedAction(m_helpMenu, "actionHelp", QString(), QKeySequence::HelpContents);
    m_actionAbout = addNamedAction(m_helpMenu, "actionAbout");

    // The on_<object>_<signal> slots are connected by name.
    QMetaObject::connectSlotsByName(this);
}

void MainWindow::addToolsAction(QAction* action)
{
    if (!action)
        return;
    m_actionNoTools->setVisible(false);
    m_toolsMenu->addAction(action);
}

void MainWindow::retranslate()
{
    m_fileMenu->setTitle(tr("&File"));
    m_actionOpen->setText(tr("Open configuration..."));
    m_actionSave->setText(tr("Save configuration..."));
    m_actionExit->setText(tr("Exit"));
    m_toolsMenu->setTitle(tr("&Tools"));
    m_actionNoTools->setText(tr("No tools available"));
    m_languageMenu->setTitle(tr("&Language"));
    m_featureLanguageMenu->setTitle(tr("Feature names"));
    m_actionFeatureOriginal->setText(tr("Original names"));
    m_actionFeatureTranslated->setText(tr("Translated names"));
    m_helpMenu->setTitle(tr("&Help"));
    m_actionHelp->setText(tr("Mouse and keyboard..."));
    m_actionAbout->setText(tr("About Lumidor..."));
    if (m_closingDevices)
        m_statusLabel->setText(tr("Closing cameras..."));
    else if (m_cameraCount < 0)
        m_statusLabel->setText(tr("Searching for cameras..."));
    else
        m_statusLabel->setText(tr("Cameras found: %1").arg(m_cameraCount));
    if (m_closeWait) {
        m_closeWait->setTitle(tr("Exit"));
        m_closeWait->setText(tr("Closing cameras, please wait..."));
    }
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (m_splitterSized)
        return;
    // The panels placed after construction bring their own size hints; at the
    // first show the side panels get their widths and the video area the rest.
    m_splitterSized = true;
    auto widthOf = [](CCollapsiblePanel* panel) {
        return panel->isCollapsed() ? int(CCollapsiblePanel::kStripWidth)
                                    : qMax(panel->expandedWidth(), panel->minimumSizeHint().width());
    };
    const int left = widthOf(m_leftPanel);
    const int right = widthOf(m_rightPanel);
    const int total = m_splitter->width();
    m_splitter->setSizes({left, qMax(0, total - left - right), right});
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::syncLanguageActions()
{
    (m_language->language() == LanguageChinese ? m_actionChinese : m_actionEnglish)->setChecked(true);
    (m_language->featureLanguage() == 0 ? m_actionFeatureOriginal : m_actionFeatureTranslated)->setChecked(true);
}

void MainWindow::setLanguage(int language)
{
    m_language->setLanguage(language);
    syncLanguageActions();
}

void MainWindow::setFeatureLanguage(int language)
{
    m_language->setFeatureLanguage(language);
    syncLanguageActions();
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
    if (!path.isEmpty())
        openConfigurationReporting(path);
}

bool MainWindow::openConfigurationReporting(const QString& path)
{
    if (openConfiguration(path))
        return true;
    messageBox(tr("Load configuration failed: %1").arg(QDir::toNativeSeparators(path)), this, QMessageBox::Ok,
               QMessageBox::Critical);
    return false;
}

bool MainWindow::saveConfigurationReporting(const QString& path)
{
    if (saveConfiguration(path))
        return true;
    // The file named once, then the system's reason.
    messageBox(tr("Save configuration failed: %1").arg(QDir::toNativeSeparators(path)) + QLatin1Char('\n') +
                   CConfiguration::getInstance()->lastSaveError(),
               this, QMessageBox::Ok, QMessageBox::Critical);
    return false;
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
    saveConfigurationReporting(path);
}

void MainWindow::on_actionHelp_triggered()
{
    // One help window: asking again brings it forward.
    if (!m_helpDlg) {
        m_helpDlg = new CHelpDlg(this);
        m_helpDlg->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_helpDlg->show();
    m_helpDlg->raise();
    m_helpDlg->activateWindow();
}

void MainWindow::on_actionAbout_triggered()
{
    auto* dlg = new CAboutDlg(this);
    dlg->setAttribute(Qt::WA_DeleteOnClose);
    dlg->open();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // Every open camera is closed first, on the disconnect-all worker; a wait
    // dialog covers the window meanwhile and the window closes again when
    // the worker reports (it gives up after 5 s). The GUI thread waits for
    // nothing: the worker's report arrives as a queued signal.
    if (!m_devicesClosed) {
        if (m_closingDevices) {
            event->ignore();
            return;
        }
        CDisconnectAllThread* worker = CDisconnectAllThread::getInstance();
        if (worker) {
            event->ignore();
            m_closingDevices = true;
            m_closeWait = new CWaitDlg(this);
            m_closeWait->setObjectName(QStringLiteral("closeWaitDlg"));
            retranslate();
            m_closeWait->open();
            m_closeAllConnection = connect(worker, &CDisconnectAllThread::closeAllFinished, this,
                                           &MainWindow::onCloseAllFinished, Qt::QueuedConnection);
            worker->closeAll();
            return;
        }
        // Outside the application's lifetime there is nothing to close.
        m_devicesClosed = true;
    }
    QMainWindow::closeEvent(event);
    // Closing the last window does not end the program by itself.
    if (event->isAccepted())
        QCoreApplication::quit();
}

void MainWindow::onCloseAllFinished()
{
    disconnect(m_closeAllConnection);
    m_devicesClosed = true;
    m_closingDevices = false;
    if (m_closeWait)
        m_closeWait->accept();
    close();
}
