// Discovery, camera information, control privilege, link settings, FORCEIP
// and description download against simulated GigE Vision cameras in this
// process.

#include <QtTest>

#include <atomic>
#include <cstring>
#include <thread>

#include "CSimCameraTest.h"
#include "SmallTmpfs.h"
#include "TestFiles.h"
#include "SimCamSetup.h"

using namespace Vorlen;
using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;

class TestSdkDiscovery : public CSimCameraTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void discovery();
    void unicastDiscovery();
    void controlPrivilege();
    void descriptionDownload();
    void linkSettings();
    void forceIp();
};

void TestSdkDiscovery::initTestCase()
{
    std::string error;
    QVERIFY2(startCameras(2, error), error.c_str());
}

void TestSdkDiscovery::cleanup()
{
    disconnectAll();
}

void TestSdkDiscovery::discovery()
{
    QCOMPARE(QString(m_cam1->getKey().c_str()), QString("Lumidor:SimCam:SIM001"));
    QCOMPARE(QString(m_cam1->getVendorName().c_str()), QString("Lumidor"));
    QCOMPARE(QString(m_cam1->getName().c_str()), QString("SimCam"));
    QCOMPARE(m_cam1->getType(), typeGigEVision);
    QVERIFY(!m_cam1->isConnected());

    CInternalGigECameraInfo info(m_cam1);
    QVERIFY(info.isValid());
    QCOMPARE(QString(info.getIpAddress().c_str()), QString("127.0.0.1"));
    QCOMPARE(QString(info.getSubnetMask().c_str()), QString("255.0.0.0"));
    QCOMPARE(QString(info.getMacAddress().c_str()),
             QString::fromStdString(Gvcp::macToString(SimCam::macFromSerial("SIM001"))));
    QCOMPARE(QString(info.getProtocolVersion().c_str()), QString("2.0"));
    QCOMPARE(QString(info.getIpconfig().c_str()), QString("DHCP, LLA"));
    QCOMPARE(QString(info.getManufactureInfo().c_str()), QString("Lumidor simulated camera"));
    QCOMPARE(QString(info.getVersion().c_str()), QString("1.0.0"));
    QCOMPARE(QString(info.getSerialNum().c_str()), QString("SIM001"));

    TSharedPtrGigEInterfaceInfo host = CInternalSystem::getInstance().getGigEInterfaceInfoByCamera(m_cam1);
    QVERIFY(host);
    QCOMPARE(QString(host->getDescription().c_str()), QString("lo"));
    QCOMPARE(QString(host->getSubnetMask().c_str()), QString("255.0.0.0"));
    QVERIFY(!CInternalSystem::getInstance().getUsbInterfaceInfoByCamera(m_cam1));
    bool installed = false;
    QVERIFY(internal(m_cam1)->isDriverInstalled(installed) && installed);

    // A second pass hands out the same objects under the same keys.
    TVector<ICameraPtr> again;
    QVERIFY(CSystem::getInstance().discovery(again, typeGigEVision));
    QCOMPARE(findBySerial(again, "SIM001").get(), m_cam1.get());
    TVector<ICameraPtr> all;
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QCOMPARE(findBySerial(all, "SIM001").get(), m_cam1.get());
    for (size_t i = 1; i < all.size(); ++i)
        QVERIFY(all[i - 1]->getKey() < all[i]->getKey());

    // Other interface kinds: whatever is plugged in, never a GigE camera.
    TVector<ICameraPtr> usb;
    QVERIFY(CSystem::getInstance().discovery(usb, typeUsb3Vision));
    for (const ICameraPtr& c : usb)
        QCOMPARE(c->getType(), typeUsb3Vision);
    QVERIFY(CSystem::getInstance().discovery(usb, typeCameraLink) && usb.empty());
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QCOMPARE(findBySerial(all, "SIM001").get(), m_cam1.get());

    QCOMPARE(findBySerial(again, "SIM002").get(), m_cam2.get());
    QCOMPARE(QString(CInternalGigECameraInfo(m_cam2).getIpAddress().c_str()), QString("127.0.0.2"));
    QVERIFY(m_cam1->getKey() != m_cam2->getKey());
}

void TestSdkDiscovery::unicastDiscovery()
{
    CSystem::_DiscoveryModeInfo probe;
    std::strcpy(probe.ipAddress, "127.0.0.1");
    TVector<ICameraPtr> found;
    QVERIFY(CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QCOMPARE(int(found.size()), 1);
    QCOMPARE(found[0].get(), m_cam1.get());

    // Nobody answers on 127.0.0.9.
    std::strcpy(probe.ipAddress, "127.0.0.9");
    probe.timeoutMs = 300;
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe) && found.empty());
    QCOMPARE(getLastError(), int(ERR_TIMEOUT));
    QVERIFY(lastErrorText().startsWith("Timeout waiting for the camera"));

    std::strcpy(probe.ipAddress, "not-an-address");
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));
}

void TestSdkDiscovery::controlPrivilege()
{
    auto* cam = internal(m_cam2);
    CInternalGigECameraInfo info(m_cam2);
    ECameraAccessPermission permission = accessPermissionUnknown;
    QVERIFY(info.getAccessPermission(permission));
    QCOMPARE(permission, accessPermissionOpen);

    // Another host (a plain Aravis client) takes control first.
    GError* error = nullptr;
    ArvCamera* other = arv_camera_new("127.0.0.2", &error);
    QVERIFY2(other, error ? error->message : "");
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(arv_camera_get_device(other))));
    QVERIFY(info.getAccessPermission(permission));   // read without taking control
    QCOMPARE(permission, accessPermissionControl);
    QVERIFY(!cam->connect(accessPermissionControl));
    QCOMPARE(getLastError(), int(ERR_ACCESS_DENIED));
    QVERIFY(lastErrorText().startsWith("Camera is controlled by another host") && !m_cam2->isConnected());
    // Refusing did not take control away from the other host.
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(arv_camera_get_device(other))));
    QCOMPARE(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 2u);
    g_object_unref(other);

    // Now ours; a second client is refused while we hold control.
    QVERIFY2(cam->connect(accessPermissionControl), qPrintable(lastErrorText()));
    QVERIFY(m_cam2->isConnected() && !cam->connect(accessPermissionControl));
    QCOMPARE(getLastError(), int(ERR_ALREADY_CONNECTED));
    QVERIFY(info.getAccessPermission(permission));
    QCOMPARE(permission, accessPermissionControl);
    ArvCamera* second = arv_camera_new("127.0.0.2", &error);
    QVERIFY(second && !arv_gv_device_is_controller(ARV_GV_DEVICE(arv_camera_get_device(second))));
    g_object_unref(second);
    QVERIFY(m_cam2->isConnected());

    // Disconnecting gives control back.
    QVERIFY(cam->disConnect() && !m_cam2->isConnected());
    QTRY_COMPARE_WITH_TIMEOUT(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 0u, 5000);
    QVERIFY(cam->disConnect());   // twice is harmless

    // Exclusive access.
    QVERIFY(cam->connect(accessPermissionExclusive));
    QCOMPARE(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 1u);
    QVERIFY(info.getAccessPermission(permission));
    QCOMPARE(permission, accessPermissionExclusive);
}

void TestSdkDiscovery::descriptionDownload()
{
    QFile source(QString::fromStdString(FakeCameraRig::defaultXmlPath()));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray expected = source.readAll();
    QTemporaryDir dir;
    QVERIFY(dir.isValid());

    auto* cam = internal(m_cam1);
    QCOMPARE(QString(cam->getDefXMLFilename().c_str()), QString("LumidorSimCam.xml"));
    // Not connected: read over GVCP.
    const QString offline = dir.filePath("offline.xml");
    QVERIFY2(cam->downLoadGenICamXML(offline.toLocal8Bit().constData()), qPrintable(lastErrorText()));
    QFile a(offline);
    QVERIFY(a.open(QIODevice::ReadOnly));
    QCOMPARE(a.readAll(), expected);

    QVERIFY(cam->connect(accessPermissionControl));
    const QString online = dir.filePath("online.xml");
    QVERIFY(cam->downLoadGenICamXML(online.toLocal8Bit().constData()));
    QFile b(online);
    QVERIFY(b.open(QIODevice::ReadOnly));
    QCOMPARE(b.readAll(), expected);
    QVERIFY(!cam->downLoadGenICamXML("/nonexistent-dir/x.xml"));
    QCOMPARE(getLastError(), int(ERR_IO));
    QVERIFY(!cam->downLoadGenICamXML(""));

    // A full disk: an earlier file stays as it was, a new file is not left
    // behind cut short, and the error gives the system's reason.
    SmallTmpfs disk;
    const QString small = dir.filePath("small");
    QVERIFY2(disk.mount(small, 64), qPrintable(disk.error()));
    const QString earlier = small + "/earlier.xml";
    QVERIFY(writeAll(earlier, "<earlier/>"));
    QVERIFY2(disk.fill(), qPrintable(disk.error()));
    for (const QString& target : {earlier, small + "/new.xml"}) {
        QVERIFY(!cam->downLoadGenICamXML(target.toLocal8Bit().constData()));
        QCOMPARE(getLastError(), int(ERR_IO));
        QVERIFY2(lastErrorText().contains(QString::fromLocal8Bit(std::strerror(ENOSPC))), qPrintable(lastErrorText()));
    }
    QCOMPARE(readAll(earlier), QByteArray("<earlier/>"));
    QCOMPARE(QDir(small).entryList(QDir::Files | QDir::Hidden, QDir::Name), QStringList({"earlier.xml", "filler"}));
}

void TestSdkDiscovery::linkSettings()
{
    auto* cam = internal(m_cam1);
    QVERIFY(!cam->setHeartbeatIntervel(5000));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    QVERIFY(cam->connect(accessPermissionControl) && cam->setAnswerTimeout(500) && !cam->setAnswerTimeout(0));
    QVERIFY(cam->setHeartbeatIntervel(5000));
    QCOMPARE(arv_fake_camera_get_heartbeat_timeout(m_rig.fake(m_fake1)), 5000u);
    QVERIFY(cam->setHeartbeatIntervel(100));   // raised to what Aravis can keep up with
    QVERIFY(arv_fake_camera_get_heartbeat_timeout(m_rig.fake(m_fake1)) >= 1000u);
    QVERIFY(cam->setHeartbeatIntervel(3000) && cam->setAnswerTimeout(1000));
}

void TestSdkDiscovery::forceIp()
{
    // The simulated camera does not implement FORCEIP: no acknowledge.
    auto* cam = internal(m_cam1);
    QVERIFY(!cam->forceIpAddress("127.0.0.1", "255.0.0.0", "0.0.0.0"));
    QCOMPARE(getLastError(), int(ERR_TIMEOUT));
    QVERIFY(!cam->forceIpAddress("1.2.3", "255.0.0.0", nullptr));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));

    // A camera of our own making answers discovery and FORCEIP.
    if (!FakeCameraRig::hasAddress("127.0.0.3"))
        QFAIL("rig incomplete: 127.0.0.3 is not on the loopback interface (scripts/test.sh runs the tests with it)");
    CUdpSocket responder(ipOf("127.0.0.3"), Gvcp::kPort, false, true);
    QVERIFY(responder.valid());
    const uint64_t mac = 0x0A1B2C3D4E5Full;
    std::atomic<bool> stop{false};
    std::atomic<uint32_t> forcedIp{0}, forcedMask{0};
    std::atomic<uint64_t> forcedMac{0};
    std::thread thread([&] {
        while (!stop) {
            uint32_t fromIp = 0;
            uint16_t fromPort = 0;
            const QByteArray cmd = receiveDatagram(responder, -1, &fromIp, &fromPort);
            if (cmd.size() < 8)
                continue;
            const uint8_t* c = reinterpret_cast<const uint8_t*>(cmd.constData());
            const uint16_t command = Gvcp::get16(c + 2), id = Gvcp::get16(c + 6);
            QByteArray reply(8, '\0');
            uint8_t* r = reinterpret_cast<uint8_t*>(reply.data());
            Gvcp::put16(r + 6, id);
            if (command == Gvcp::DISCOVERY_CMD) {
                Gvcp::SDeviceInfo info;
                info.versionMajor = 1;
                info.versionMinor = 2;
                info.mac = mac;
                info.ipConfigCurrent = 0x1;
                info.ip = 0x7F000003;
                info.mask = 0xFF000000;
                info.gateway = 0x7F0000FE;
                info.manufacturer = "Acme";
                info.model = "Responder";
                info.serial = "R1";
                info.userName = "bench";
                QByteArray payload(int(Gvcp::kDiscoveryAckSize), '\0');
                Gvcp::writeDiscoveryAck(info, reinterpret_cast<uint8_t*>(payload.data()));
                Gvcp::put16(r + 2, Gvcp::DISCOVERY_ACK);
                Gvcp::put16(r + 4, uint16_t(payload.size()));
                reply += payload;
            } else if (command == Gvcp::FORCEIP_CMD) {
                uint64_t m = 0;
                uint32_t ip = 0, mask = 0, gw = 0;
                Gvcp::parseForceIp(c + 8, size_t(cmd.size() - 8), m, ip, mask, gw);
                forcedMac = m;
                forcedIp = ip;
                forcedMask = mask;
                Gvcp::put16(r + 2, Gvcp::FORCEIP_ACK);
            } else {
                continue;
            }
            responder.sendTo(fromIp, fromPort, reinterpret_cast<const uint8_t*>(reply.constData()),
                             size_t(reply.size()));
        }
    });
    CSystem::_DiscoveryModeInfo probe;
    std::strcpy(probe.ipAddress, "127.0.0.3");
    TVector<ICameraPtr> found;
    const bool discovered = CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe);
    bool forced = false;
    ICameraPtr other;
    QString gateway;
    if (discovered && found.size() == 1) {
        other = found[0];
        gateway = CInternalGigECameraInfo(other).getGateway().c_str();
        forced = dynamic_cast<CInternalCamera*>(other.get())->forceIpAddress("127.0.0.3", "255.255.0.0", "");
    }
    stop = true;
    responder.interrupt();
    thread.join();
    QVERIFY2(discovered, qPrintable(lastErrorText()));
    QCOMPARE(QString(other->getKey().c_str()), QString("Acme:Responder:R1"));
    CInternalGigECameraInfo info(other);
    QCOMPARE(QString(info.getProtocolVersion().c_str()), QString("1.2"));
    QCOMPARE(QString(info.getIpconfig().c_str()), QString("Persistent IP"));
    QCOMPARE(QString(info.getMacAddress().c_str()), QString("0a:1b:2c:3d:4e:5f"));
    QVERIFY2(forced, qPrintable(lastErrorText()));
    QCOMPARE(uint64_t(forcedMac), mac);
    QCOMPARE(uint32_t(forcedIp), 0x7F000003u);
    QCOMPARE(uint32_t(forcedMask), 0xFFFF0000u);
    QCOMPARE(gateway, QString("127.0.0.254"));
    QCOMPARE(QString(info.getSubnetMask().c_str()), QString("255.255.0.0"));
    QCOMPARE(QString(info.getGateway().c_str()), QString("0.0.0.0"));

    // The unicast camera is listed while it answers, and dropped after.
    TVector<ICameraPtr> all;
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all) && findBySerial(all, "R1"));
    probe.timeoutMs = 200;
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all) && !findBySerial(all, "R1"));
}

QTEST_GUILESS_MAIN(TestSdkDiscovery)
#include "tst_sdk_discovery.moc"
