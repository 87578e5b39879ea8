// Remote cameras for real: a simulated camera behind a router, in network
// namespaces the test makes itself (remote_camera_rig.sh), out of reach of
// broadcast discovery. It is found only through "Add Remote Camera", stays
// listed while it answers, and leaves the list when it stops.
#include <memory>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QTreeWidget>
#include <unistd.h>

#include "CSingletonOwner.h"
#include "CConfiguration.h"
#include "CDiscoveryDevicesForm.h"
#include "CDiscoveryDevicesThread.h"
#include "CUnicastDlg.h"
#include "DeviceListTestSupport.h"
#include "Gvcp.h"

namespace {
const char* const kCameraIp = "10.77.2.2";
const char* const kSerial = "REMOTE01";
} // namespace

class TestDeviceListUnicast : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void foundOnlyByUnicastAndKeptWhileAnswering();

private:
    std::unique_ptr<CSingletonOwner> m_owner;
    // remote_camera_rig.sh up or down; the reason in error when it fails.
    bool rig(const QString& action, QString& error);
    QTreeWidgetItem* remoteItem() const;

    QString m_name;
    bool m_rigUp = false;
    QProcess m_camera;
    QWidget* m_host = nullptr;
    CDiscoveryDevicesForm* m_form = nullptr;
};

bool TestDeviceListUnicast::rig(const QString& action, QString& error)
{
    QProcess p;
    p.start("bash", {QString(LUMIDOR_TEST_DIR) + "/remote_camera_rig.sh", action, m_name});
    const bool finished = p.waitForFinished(30000);
    error = finished ? QString::fromLocal8Bit(p.readAllStandardError()).trimmed()
                     : QString("remote_camera_rig.sh did not finish");
    return finished && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

QTreeWidgetItem* TestDeviceListUnicast::remoteItem() const
{
    CTavDevicePtr device = findDeviceBySerial(kSerial);
    return device ? m_form->getItemByDevice(device) : nullptr;
}

void TestDeviceListUnicast::initTestCase()
{
    m_owner.reset(new CSingletonOwner);
    enableLogWhenAsked();
    m_name = QString("lumi%1").arg(::getpid());
    QString error;
    rig("down", error);
    if (!rig("up", error))
        QFAIL(qPrintable("cannot set up the remote camera network: " + error));
    m_rigUp = true;

    const QString simcam = QString(qgetenv("LUMIDOR_BIN_DIR")) + "/lumidor-simcam";
    if (!QFile::exists(simcam))
        QFAIL(qPrintable(simcam + " is missing: build the lumidor-simcam target"));
    m_camera.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_camera.start("ip", {"netns", "exec", m_name + "_c", simcam, "--address", kCameraIp, "--serial", kSerial});
    QVERIFY2(m_camera.waitForStarted(10000), "cannot start lumidor-simcam in the camera namespace");
    // Ready once it answers a discovery through the router.
    uint32_t ip = 0;
    Vorlen::GenICam::Gvcp::parseIp(kCameraIp, ip);
    Vorlen::GenICam::Gvcp::SDeviceInfo info;
    QVERIFY2(QTest::qWaitFor([&]() { return Vorlen::GenICam::Gvcp::discover(ip, 3956, 200, info) == 0; }, 30000),
             "the simulated camera behind the router does not answer: check routing in remote_camera_rig.sh");

    m_host = new QWidget;
    m_form = new CDiscoveryDevicesForm(m_host);
    m_form->resize(320, 600);
    m_host->show();
    // The automatic refresh is driven by hand where a test wants it, never by the clock.
    m_form->autoRefreshTimer()->stop();
}

void TestDeviceListUnicast::cleanupTestCase()
{
    delete m_host;
    m_owner.reset();
    if (m_camera.state() != QProcess::NotRunning) {
        m_camera.kill();
        m_camera.waitForFinished(5000);
    }
    QString error;
    QVERIFY2(!m_rigUp || rig("down", error), qPrintable(error));
}

void TestDeviceListUnicast::foundOnlyByUnicastAndKeptWhileAnswering()
{
    // Broadcast discovery does not reach it.
    QVERIFY(rediscoverWhenIdle());
    QVERIFY(rediscoverWhenIdle());
    QVERIFY(!findDeviceBySerial(kSerial));

    // Asked for while another pass is under way: the probe waits its turn
    // rather than being lost.
    BoxAnswerer answerer;
    CDeviceManager::getInstance()->refreshDeviceMap(QString(), 0);
    QVERIFY(CDiscoveryDevicesThread::getInstance()->isDisconvrying());
    onDialog<CUnicastDlg>([](CUnicastDlg* dialog) {
        dialog->lineEdit()->setText(kCameraIp);
        dialog->okButton()->click();
    });
    // "Add Remote Camera" on the GigE root.
    m_form->ShowContextMenu(m_form->deviceList()->visualItemRect(m_form->getRootItem(0)).center());
    QVERIFY(m_form->rootMenu()->isVisible());
    m_form->rootMenu()->close();
    m_form->actionUnicast()->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(remoteItem() != nullptr, 20000);
    QTreeWidgetItem* item = remoteItem();
    QCOMPARE(item->parent(), m_form->getRootItem(0));
    QCOMPARE(CConfiguration::getInstance()->RemoteIpAddr, QString(kCameraIp));
    QVERIFY(answerer.texts.isEmpty());

    // Ordinary refreshes probe it again and keep it. Once it stops, the next
    // refresh drops it, and it is not probed again.
    for (int i = 0; i < 3; ++i) {
        if (i == 2) {
            m_camera.kill();
            m_camera.waitForFinished(5000);
        }
        QSignalSpy finished(m_form, &CDiscoveryDevicesForm::discoveryDevicesFinished);
        QTRY_VERIFY(m_form->refreshButton()->isEnabled());
        m_form->on_reflesh_clicked();
        QVERIFY(finished.wait(20000));
        QCOMPARE(remoteItem(), i < 2 ? item : nullptr);
    }
    QVERIFY(!findDeviceBySerial(kSerial));
    QVERIFY(CDiscoveryDevicesThread::getInstance()->unicastAddresses().isEmpty());
    QVERIFY(answerer.texts.isEmpty());
}

QTEST_MAIN(TestDeviceListUnicast)
#include "test_devicelist_unicast.moc"
