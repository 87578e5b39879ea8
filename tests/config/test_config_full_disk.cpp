// The configuration folder on a full disk: a failed save says so, keeps the
// earlier files whole, and the settings saved before survive a restart.
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "SmallTmpfs.h"
#include "TestFiles.h"

#include "CConfiguration.h"
#include "CSingletonOwner.h"

class TestConfigFullDisk : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    SmallTmpfs m_disk;
    std::unique_ptr<CSingletonOwner> m_owner;

private slots:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        qputenv("LUMIDOR_HOME", m_home.path().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("Lumidor"));
        const QString cfgDir = m_home.path() + QStringLiteral("/Lumidor/cfg/app");
        QVERIFY2(m_disk.mount(cfgDir, 64), qPrintable(m_disk.error()));
    }

    void settingsSurviveAFailedSaveAndARestart()
    {
        m_owner.reset(new CSingletonOwner);
        CConfiguration* c = CConfiguration::getInstance();
        const QString userPath = c->userConfigPath();
        const QString defaultPath = c->defaultConfigPath();
        const QByteArray defaults = readAll(defaultPath);
        QVERIFY(defaults.contains("<iHeartbeatIval>1500</iHeartbeatIval>"));

        c->iHeartbeatIval = 4000;
        c->RemoteIpAddr = QStringLiteral("10.1.2.3");
        QVERIFY(c->saveConfigToUserXml() && c->lastSaveError().isEmpty());
        const QByteArray saved = readAll(userPath);
        QVERIFY(saved.contains("<iHeartbeatIval>4000</iHeartbeatIval>"));

        // Disk full: the save fails with the system's reason, the file stays.
        QVERIFY2(m_disk.fill(), qPrintable(m_disk.error()));
        c->iHeartbeatIval = 2222;
        QVERIFY(!c->saveConfigToUserXml());
        QCOMPARE(c->lastSaveError(), QString::fromLocal8Bit(strerror(ENOSPC)));
        QCOMPARE(c->saveFailedMessage("Save Config failed."),
                 QString("Save Config failed.\n%1: %2").arg(userPath, QString::fromLocal8Bit(strerror(ENOSPC))));
        QCOMPARE(readAll(userPath), saved);

        // Restart on the full disk: the default file is not rewritten to
        // nothing, and the settings come back from the user file.
        m_owner.reset();
        m_owner.reset(new CSingletonOwner);
        c = CConfiguration::getInstance();
        QCOMPARE(readAll(defaultPath), defaults);
        QCOMPARE(c->iHeartbeatIval, uint16_t(4000));
        QCOMPARE(c->RemoteIpAddr, QStringLiteral("10.1.2.3"));
        QCOMPARE(QDir(QFileInfo(userPath).path()).entryList(QDir::Files | QDir::Hidden, QDir::Name),
                 QStringList() << QStringLiteral("Lumidor.tavcfg") << QStringLiteral("LumidorDefault.tavcfg")
                               << QStringLiteral("filler"));

        // Space again: the next save goes through.
        m_disk.release();
        c->iHeartbeatIval = 2222;
        QVERIFY(c->saveConfigToUserXml() && c->lastSaveError().isEmpty());
        QVERIFY(readAll(userPath).contains("<iHeartbeatIval>2222</iHeartbeatIval>"));
        m_owner.reset();
    }
};

QTEST_GUILESS_MAIN(TestConfigFullDisk)
#include "test_config_full_disk.moc"
