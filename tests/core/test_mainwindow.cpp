// Main window skeleton: panel areas, menus, opening a configuration file
// (ROIs kept, user file written, panels told), language choice, closing.
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "CConfiguration.h"
#include "MainWindow.h"

class TestMainWindow : public QObject
{
    Q_OBJECT
    QTemporaryDir m_home;

private slots:
    void initTestCase()
    {
        qputenv("LUMIDOR_HOME", m_home.path().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("Lumidor"));
        qApp->setQuitOnLastWindowClosed(false);
    }

    void layoutAndMenus()
    {
        MainWindow w(QStringLiteral("a b"));
        QCOMPARE(w.windowTitle(), QStringLiteral("Lumidor"));
        QCOMPARE(w.commandLine(), QStringLiteral("a b"));
        for (const char* name : {"deviceListArea", "videoArea", "propertyArea"})
            QVERIFY2(w.findChild<QWidget*>(QLatin1String(name)), name);
        for (const char* name : {"actionOpenConfig", "actionSaveConfig", "actionExit", "actionEnglish",
                                 "actionChinese", "actionAbout"})
            QVERIFY2(w.findChild<QAction*>(QLatin1String(name))->isEnabled(), name);
        QVERIFY(!w.findChild<QAction*>(QStringLiteral("actionEventMonitor"))->isEnabled());
        QVERIFY(!w.findChild<QAction*>(QStringLiteral("actionStatistics"))->isEnabled());
        QVERIFY(w.findChild<QAction*>(QStringLiteral("actionEnglish"))->isChecked());
    }

    void openConfigurationKeepsRois()
    {
        CConfiguration* cfg = CConfiguration::getInstance();
        MainWindow w{QString()};
        const QString file = m_home.filePath(QStringLiteral("chosen.tavcfg"));
        cfg->RemoteIpAddr = QStringLiteral("10.1.2.3");
        cfg->mapVideoFormROI[1].clear();
        QVERIFY(w.saveConfiguration(file));

        cfg->init();
        stuROI roi;
        roi.Width = 64;
        cfg->mapVideoFormROI[4] = {roi};
        QSignalSpy restored(cfg, &CConfiguration::signalRestoreCfg);
        QVERIFY(w.openConfiguration(file));
        QCOMPARE(restored.count(), 1);
        QCOMPARE(cfg->RemoteIpAddr, QStringLiteral("10.1.2.3"));
        QCOMPARE(cfg->mapVideoFormROI[4].size(), 1);
        QFile user(cfg->userConfigPath());
        QVERIFY(user.open(QIODevice::ReadOnly));
        QVERIFY(user.readAll().contains("<RemoteIpAddr>10.1.2.3</RemoteIpAddr>"));

        QVERIFY(!w.openConfiguration(m_home.filePath(QStringLiteral("none.tavcfg"))));
        QCOMPARE(restored.count(), 1);
        cfg->init();
    }

    void languageChoiceIsStored()
    {
        MainWindow w{QString()};
        w.findChild<QAction*>(QStringLiteral("actionChinese"))->trigger();
        QCOMPARE(CConfiguration::getInstance()->readLanguageSetting(), int(MainWindow::LanguageChinese));
        MainWindow again{QString()};
        QVERIFY(again.findChild<QAction*>(QStringLiteral("actionChinese"))->isChecked());
        again.setLanguage(MainWindow::LanguageEnglish);
        QCOMPARE(CConfiguration::getInstance()->readLanguageSetting(), int(MainWindow::LanguageEnglish));
    }

    void closingEndsTheProgram()
    {
        MainWindow w{QString()};
        w.show();
        QTimer::singleShot(0, &w, &QWidget::close);
        QTimer failSafe;
        failSafe.setSingleShot(true);
        bool timedOut = false;
        connect(&failSafe, &QTimer::timeout, [&timedOut] {
            timedOut = true;
            qApp->exit(1);
        });
        failSafe.start(10000);
        QCOMPARE(qApp->exec(), 0);
        QVERIFY(!timedOut);
    }
};

QTEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
