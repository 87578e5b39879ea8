// Lumidor: viewer for GenICam cameras.
#include <QApplication>
#include <memory>

#include "CMainWindowPanels.h"
#include "CSingletonOwner.h"
#include "Gliv/CRawBufferPool.h"
#include "Vorlen/GenICam/CSystem.h"
#include "CTavMessage.h"
#include "MainWindow.h"
#include "StartupUtils.h"
#include "StyleSheet.h"
#include "Tavlog4cpp/TavLogMacros.h"

int main(int argc, char* argv[])
{
    // Logging first, so everything after it can report. The properties file
    // is looked up in the directory the program was started from.
    const bool configured = Tavlog4cpp::CTavLog::LoadConfig("SDKLOG_default.properties");
    if (!configured)
        Tavlog4cpp::CTavLog::LoadDefault();
    LOG_DEBUG("###########################################################################");
    LOG_DEBUG("#                                    Start                                #");
    LOG_DEBUG("###########################################################################");
    if (configured)
        LOG_DEBUG("use log configuration file");
    else
        LOG_DEBUG("use default log configuration");

    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    registerMessageMetaTypes();

    // Resources (style sheets, ...) are found relative to the executable.
    changeToExecutableDir(argv[0]);
    setStyleSheet<QApplication>(app, QStringLiteral("Skins/Default/Vintrel/style.qss"));

    const QString commandLine = joinCommandLine(argc, argv);
    // The process-wide objects, the configuration first; they end in the
    // reverse order after the window and before the application object
    // (see CSingletonOwner.h).
    auto singletons = std::make_unique<CSingletonOwner>();

    MainWindow* window = new MainWindow(commandLine, nullptr);
    new CMainWindowPanels(window);
    window->showMaximized();
    const int result = app.exec();
    delete window;
    singletons.reset();
    // Last, still before the application object: the camera library and the
    // frame buffer pool end for good (they are never made again).
    Vorlen::GenICam::CSystem::shutdownInstance();
    Gliv::CRawBufferPool::shutdownInstance();
    return result;
}
