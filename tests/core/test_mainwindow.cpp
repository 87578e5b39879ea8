// Main window: panel placement and folding, menus, language switching and
// its persistence, configuration files with their failure messages, and
// closing through the disconnect-all worker.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSignalSpy>
#include "QueuedSignalSpy.h"
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>
#include <cstring>
#include <memory>

#include "CAboutDlg.h"
#include "CCollapsiblePanel.h"
#include "CHelpDlg.h"
#include "CCommonMessageBox.h"
#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CDisconnectAllThread.h"
#include "CLanguageManager.h"
#include "CSingletonOwner.h"
#include "CWaitDlg.h"
#include "MainWindow.h"

namespace {
// Runs `action`, answers the first application message box it opens and
// returns that box's text (empty when none opened).
template <class F>
QString messageShownBy(F action)
{
    QString text;
    QTimer::singleShot(0, [&text] {
        if (auto* box = qobject_cast<CCommonMessageBox*>(QApplication::activeModalWidget())) {
            text = box->message();
            box->done(QMessageBox::Ok);
        }
    });
    action();
    return text;
}
} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT
    QTemporaryDir m_home;
    std::unique_ptr<CSingletonOwner> m_owner;

private slots:
    void initTestCase()
    {
        qputenv("LUMIDOR_HOME", m_home.path().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("Lumidor"));
        qApp->setQuitOnLastWindowClosed(false);
        // The font sheets are read relative to the current directory, as in
        // the installed program.
        const QByteArray src = qgetenv("LUMIDOR_SOURCE_DIR");
        if (src.isEmpty())
            QFAIL("LUMIDOR_SOURCE_DIR is not set: run this test through ctest");
        QVERIFY(QDir::setCurrent(QString::fromLocal8Bit(src) + QStringLiteral("/res")));
        QVERIFY2(QFile::exists(QStringLiteral("Skins/Default/Vintrel/style_chn_font.qss")), "font sheets missing");
        m_owner.reset(new CSingletonOwner);
    }

    void cleanupTestCase() { m_owner.reset(); }

    void panelsAndMenus()
    {
        MainWindow w(QStringLiteral("a b"));
        QCOMPARE(w.windowTitle(), QStringLiteral("Lumidor"));
        QCOMPARE(w.commandLine(), QStringLiteral("a b"));
        QVERIFY(!w.windowIcon().isNull());
        for (const char* name : {"deviceListArea", "videoArea", "propertyArea"})
            QVERIFY2(w.findChild<QWidget*>(QLatin1String(name)), name);
        for (const char* name : {"actionOpenConfig", "actionSaveConfig", "actionExit", "actionEnglish",
                                 "actionChinese", "actionFeatureOriginal", "actionFeatureTranslated", "actionHelp",
                                 "actionAbout"})
            QVERIFY2(w.findChild<QAction*>(QLatin1String(name))->isEnabled(), name);

        // The panels handed in replace the placeholders, in their places.
        QPointer<QWidget> oldVideo = w.videoArea();
        QPointer<QWidget> oldDevices = w.deviceListArea();
        auto* devices = new QWidget;
        auto* video = new QWidget;
        auto* props = new QWidget;
        w.setDeviceListPanel(devices);
        w.setVideoPanel(video);
        w.setPropertyPanel(props);
        QVERIFY(oldVideo.isNull() && oldDevices.isNull());
        QCOMPARE(w.leftPanel()->content(), devices);
        QCOMPARE(w.rightPanel()->content(), props);
        auto* splitter = w.findChild<QSplitter*>(QStringLiteral("mainSplitter"));
        QCOMPARE(splitter->indexOf(w.leftPanel()), 0);
        QCOMPARE(splitter->indexOf(video), 1);
        QCOMPARE(splitter->indexOf(w.rightPanel()), 2);

        // Tools: a disabled stand-in until a tool registers.
        QAction* none = w.findChild<QAction*>(QStringLiteral("actionNoTools"));
        QVERIFY(none->isVisible() && !none->isEnabled());
        auto* tool = new QAction(QStringLiteral("Statistics"), &w);
        w.addToolsAction(tool);
        QVERIFY(!none->isVisible() && w.toolsMenu()->actions().contains(tool));

        // Help opens one window however often it is asked for; About tells
        // both versions.
        QAction* help = w.findChild<QAction*>(QStringLiteral("actionHelp"));
        help->trigger();
        help->trigger();
        QCOMPARE(w.findChildren<CHelpDlg*>().size(), 1);
        CHelpDlg* dlg = w.findChild<CHelpDlg*>();
        QVERIFY(dlg->isVisible());
        QCOMPARE(dlg->tabs()->count(), 3);
        for (int i = 0; i < dlg->tabs()->count(); ++i)
            QVERIFY(qobject_cast<QTableWidget*>(dlg->tabs()->widget(i))->rowCount() >= 5);
        CAboutDlg about;
        QVERIFY(!CAboutDlg::cameraLayerVersion().isEmpty());
        QVERIFY(about.text().contains(CAboutDlg::programVersion()));
        QVERIFY(about.text().contains(CAboutDlg::cameraLayerVersion().toHtmlEscaped()));
    }

    void sidePanelsFoldToAStripAndBack()
    {
        MainWindow w{QString()};
        w.resize(1400, 800);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        CCollapsiblePanel* left = w.leftPanel();
        CCollapsiblePanel* right = w.rightPanel();
        const int leftWidth = left->width();
        const int rightWidth = right->width();
        QVERIFY(leftWidth > 200 && rightWidth > 200);

        QSignalSpy changed(left, &CCollapsiblePanel::collapsedChanged);
        left->toggleButton()->click();
        right->setCollapsed(true);
        QApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QVERIFY(left->isCollapsed());
        QCOMPARE(left->width(), CCollapsiblePanel::kStripWidth);
        QCOMPARE(right->width(), CCollapsiblePanel::kStripWidth);
        QVERIFY(!w.deviceListArea()->isVisible() && w.videoArea()->width() > 1300);

        left->toggleButton()->click();
        right->setCollapsed(false);
        QApplication::processEvents();
        QVERIFY(!left->isCollapsed());
        QCOMPARE(left->width(), leftWidth);
        QCOMPARE(right->width(), rightWidth);
        QVERIFY(w.deviceListArea()->isVisible());
    }

    void languageSwitchesAtOnceAndPersists()
    {
        CConfiguration* cfg = CConfiguration::getInstance();
        cfg->writeLanguageSetting(0);
        MainWindow w{QString()};
        QWidget other; // another open window follows too
        QMenu* file = w.findChild<QMenu*>(QStringLiteral("menuFile"));
        QCOMPARE(file->title(), QStringLiteral("&File"));
        QSignalSpy changed(&w, &MainWindow::signalLanChanged);

        w.findChild<QAction*>(QStringLiteral("actionChinese"))->trigger();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), int(MainWindow::LanguageChinese));
        QCOMPARE(file->title(), QString::fromUtf8("文件(&F)"));
        QCOMPARE(w.findChild<QAction*>(QStringLiteral("actionExit"))->text(), QString::fromUtf8("退出"));
        QCOMPARE(w.findChild<QMenu*>(QStringLiteral("menuTools"))->title(), QString::fromUtf8("工具(&T)"));
        // Every translation embedded in the program is in force.
        const QStringList embedded = CLanguageManager::embeddedTranslations();
        QVERIFY(embedded.contains(QStringLiteral("app_zh_CN")));
        QVERIFY(embedded.contains(QStringLiteral("widgets_zh_CN")));
        QCOMPARE(w.languageManager()->installedTranslations(), embedded);
        QCOMPARE(QCoreApplication::translate("CCommonMessageBox", "Cancel"), QString::fromUtf8("取消"));
        QVERIFY(qApp->styleSheet().contains(QLatin1String("Noto Sans CJK SC")));
        QSettings ini(cfg->languageIniPath(), QSettings::IniFormat);
        QCOMPARE(ini.value(QStringLiteral("language/lang")).toInt(), 1);

        {
            // A new window (a restart) comes up in the stored language.
            MainWindow again{QString()};
            QVERIFY(again.findChild<QAction*>(QStringLiteral("actionChinese"))->isChecked());
            QCOMPARE(again.findChild<QMenu*>(QStringLiteral("menuHelp"))->title(), QString::fromUtf8("帮助(&H)"));
        }

        w.findChild<QAction*>(QStringLiteral("actionEnglish"))->trigger();
        QCOMPARE(file->title(), QStringLiteral("&File"));
        QVERIFY(w.languageManager()->installedTranslations().isEmpty());
        QCOMPARE(QCoreApplication::translate("CCommonMessageBox", "Cancel"), QStringLiteral("Cancel"));
        QVERIFY(!qApp->styleSheet().contains(QLatin1String("Noto Sans CJK SC")));
        QCOMPARE(cfg->readLanguageSetting(), 0);
        // The base sheet is kept once, not stacked by each switch.
        const int length = qApp->styleSheet().size();
        w.setLanguage(MainWindow::LanguageChinese);
        w.setLanguage(MainWindow::LanguageEnglish);
        QCOMPARE(qApp->styleSheet().size(), length);

        // The feature-name language is a separate choice in the same file.
        QSignalSpy feature(&w, &MainWindow::signalFeatureLanChanged);
        w.findChild<QAction*>(QStringLiteral("actionFeatureOriginal"))->trigger();
        QCOMPARE(feature.count(), 1);
        QCOMPARE(cfg->readFeatureLanguageSetting(), 0);
        QCOMPARE(cfg->readLanguageSetting(), 0);
        w.setFeatureLanguage(1);
        QCOMPARE(cfg->readFeatureLanguageSetting(), 1);
    }

    void configurationFiles()
    {
        CConfiguration* cfg = CConfiguration::getInstance();
        MainWindow w{QString()};
        const QString file = m_home.filePath(QStringLiteral("chosen.tavcfg"));
        cfg->RemoteIpAddr = QStringLiteral("10.1.2.3");
        QVERIFY(w.saveConfigurationReporting(file));

        // Opening keeps the drawing ROIs, writes the user file, tells the panels.
        cfg->init();
        stuROI roi;
        roi.Width = 64;
        cfg->mapVideoFormROI[4] = {roi};
        QSignalSpy restored(cfg, &CConfiguration::signalRestoreCfg);
        QVERIFY(w.openConfigurationReporting(file));
        QCOMPARE(restored.count(), 1);
        QCOMPARE(cfg->RemoteIpAddr, QStringLiteral("10.1.2.3"));
        QCOMPARE(cfg->mapVideoFormROI[4].size(), 1);
        QFile user(cfg->userConfigPath());
        QVERIFY(user.open(QIODevice::ReadOnly));
        QVERIFY(user.readAll().contains("<RemoteIpAddr>10.1.2.3</RemoteIpAddr>"));

        // Failures are told with the path, and change nothing.
        const QString missing = m_home.filePath(QStringLiteral("none.tavcfg"));
        bool result = true;
        QString text = messageShownBy([&] { result = w.openConfigurationReporting(missing); });
        QVERIFY(!result);
        QCOMPARE(text, QStringLiteral("Load configuration failed: %1").arg(missing));
        QCOMPARE(restored.count(), 1);

        QFile blocker(m_home.filePath(QStringLiteral("plainfile")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const QString unwritable = blocker.fileName() + QStringLiteral("/sub/x.tavcfg");
        text = messageShownBy([&] { result = w.saveConfigurationReporting(unwritable); });
        QVERIFY(!result);
        QCOMPARE(text, QStringLiteral("Save configuration failed: %1\n%2").arg(unwritable, strerror(ENOTDIR)));
        cfg->init();
    }

    // A unicast search of an address where no camera answers ends in the
    // message the operator must see.
    void silentUnicastAddressIsReported()
    {
        CDeviceManager* manager = CDeviceManager::getInstance();
        QueuedSignalSpy passes(CDiscoveryDevicesThread::getInstance(), &CDiscoveryDevicesThread::discoveryDevicesFinished);
        MainWindow w{QString()};
        w.show();
        // A request made while a pass runs is absorbed by it: let a plain
        // pass (or the one running) end before asking for the address.
        manager->refreshDeviceMap(QString(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(passes.count() > 0, 20000);
        QString text;
        QTimer poll;
        connect(&poll, &QTimer::timeout, [&text] {
            if (auto* box = qobject_cast<CCommonMessageBox*>(QApplication::activeModalWidget())) {
                text = box->message();
                box->done(QMessageBox::Ok);
            }
        });
        poll.start(20);
        manager->refreshDeviceMap(QStringLiteral("127.0.0.9"), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!text.isEmpty(), 20000);
        QCOMPARE(text, QStringLiteral("Add remote device failed."));
    }

    void closingDisconnectsAllThenQuits()
    {
        MainWindow w{QString()};
        w.show();
        CDisconnectAllThread* worker = CDisconnectAllThread::getInstance();
        QueuedSignalSpy begin(worker, &CDisconnectAllThread::closeAllBegin);
        QueuedSignalSpy finished(worker, &CDisconnectAllThread::closeAllFinished);
        bool waitShownWhileClosing = false;
        connect(worker, &CDisconnectAllThread::closeAllBegin, &w, [&] {
            waitShownWhileClosing = w.closeWaitDialog() && w.closeWaitDialog()->isVisible() && w.isVisible();
        }, Qt::QueuedConnection);
        QTimer::singleShot(0, &w, &QWidget::close);
        QTimer failSafe;
        failSafe.setSingleShot(true);
        bool timedOut = false;
        connect(&failSafe, &QTimer::timeout, [&timedOut] {
            timedOut = true;
            qApp->exit(1);
        });
        failSafe.start(20000);
        QCOMPARE(qApp->exec(), 0);
        QVERIFY(!timedOut);
        // The spies record on this thread: the last relays may still be queued.
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(begin.count(), 1);
        QVERIFY(waitShownWhileClosing && !w.isVisible() && !w.closeWaitDialog()->isVisible());
        QVERIFY(worker->waitIdle(10000));
    }
};

QTEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
