// Camera events against simulated GigE Vision cameras in this process: the
// message channel and the loss of a camera.

#include <QtTest>

#include "CAravisCamera.h"
#include "CEventRecorder.h"
#include "EventHub.h"
#include "CSimCameraTest.h"

using namespace Vorlen;
using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;

class TestSdkEvents : public CSimCameraTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void messageChannel();
    void cameraLost();
};

void TestSdkEvents::initTestCase()
{
    std::string error;
    QVERIFY2(startCameras(2, error), error.c_str());
}

void TestSdkEvents::cleanup()
{
    disconnectAll();
}

void TestSdkEvents::messageChannel()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));
    CEventRecorder<SMsgChannelArg> received;
    auto events = std::make_shared<CInternalEventManager>(m_cam1);
    QVERIFY(events->subscribeMsgChannel(received.proc()));

    // The camera was told where to send its events.
    uint32_t mcp = 0, mcda = 0;
    QVERIFY(m_rig.readRegister(m_fake1, 0x0B00, mcp) && m_rig.readRegister(m_fake1, 0x0B10, mcda));
    const uint16_t port = uint16_t(mcp & 0xFFFF);
    QVERIFY(port != 0);
    QCOMPARE(mcda, 0x7F000001u);

    // Play the camera: EVENT_CMD with two events, acknowledge requested.
    CUdpSocket camera(ipOf("127.0.0.1"));
    QVERIFY(camera.valid());
    QByteArray packet = gvcpHeader(0x01, Gvcp::EVENT_CMD, 32, 0x0BCD);
    QByteArray items(32, '\0');
    uint8_t* d = reinterpret_cast<uint8_t*>(items.data());
    Gvcp::put16(d + 2, 0x9001);
    Gvcp::put16(d + 6, 12);
    Gvcp::put32(d + 8, 0);
    Gvcp::put32(d + 12, 123456);
    Gvcp::put16(d + 16 + 2, 0x0004);
    Gvcp::put16(d + 16 + 6, 13);
    packet += items;
    QVERIFY(sendDatagram(camera, "127.0.0.1", port, packet));
    const QByteArray ack = receiveDatagram(camera, 3000);
    QCOMPARE(ack.size(), 8);
    const uint8_t* a = reinterpret_cast<const uint8_t*>(ack.constData());
    QCOMPARE(Gvcp::get16(a), uint16_t(0));
    QCOMPARE(Gvcp::get16(a + 2), uint16_t(Gvcp::EVENT_ACK));
    QCOMPARE(Gvcp::get16(a + 6), uint16_t(0x0BCD));
    QTRY_COMPARE_WITH_TIMEOUT(received.count(), size_t(2), 5000);
    SMsgChannelArg ev = received.at(0);
    QCOMPARE(ev.eventID, uint16_t(0x9001));
    QCOMPARE(ev.blockID, uint64_t(12));
    QCOMPARE(ev.timeStamp, uint64_t(123456));
    QCOMPARE(QString(ev.eventName.c_str()), QString("ExposureEnd"));
    QCOMPARE(names(ev.paramNames), QStringList({"EventExposureEndTimestamp", "EventExposureEndFrameID"}));
    ev = received.at(1);
    QCOMPARE(QString(ev.eventName.c_str()), QString("EndOfTransfer"));
    QVERIFY(ev.paramNames.empty());

    // EVENTDATA without acknowledge; an unknown id gets a generic name.
    packet = gvcpHeader(0x00, Gvcp::EVENTDATA_CMD, 20, 0x0BCE);
    QByteArray item(20, '\0');
    Gvcp::put16(reinterpret_cast<uint8_t*>(item.data()) + 2, 0x9ABC);
    packet += item;
    QVERIFY(sendDatagram(camera, "127.0.0.1", port, packet));
    QTRY_COMPARE_WITH_TIMEOUT(received.count(), size_t(3), 5000);
    QCOMPARE(QString(received.at(2).eventName.c_str()), QString("Event0x9ABC"));
    // The acknowledge would have been sent before the event was published.
    QVERIFY(receiveDatagram(camera, 0).isEmpty());
    // Garbage is ignored.
    QVERIFY(sendDatagram(camera, "127.0.0.1", port, QByteArray("hello")));

    // The last subscriber leaving closes the channel on the camera.
    events.reset();
    QVERIFY(m_rig.readRegister(m_fake1, 0x0B00, mcp));
    QCOMPARE(mcp & 0xFFFF, 0u);
    QCOMPARE(received.count(), size_t(3));
}

void TestSdkEvents::cameraLost()
{
    auto* cam = internal(m_cam2);
    QVERIFY(cam->connect(accessPermissionControl));
    CEventRecorder<SConnectArg> connection;
    CEventRecorder<SMsgChannelArg> messages;
    CInternalEventManager events(m_cam2);
    QVERIFY(events.subscribeConnectArgs(connection.proc()) && events.subscribeMsgChannel(messages.proc()));
    QVERIFY(cam->setHeartbeatIntervel(2000));

    m_rig.stop(m_fake2);
    QTRY_COMPARE_WITH_TIMEOUT(connection.count(), size_t(1), 30000);
    SConnectArg arg = connection.at(0);
    QCOMPARE(arg.event, connectEventOffline);
    QCOMPARE(QString(arg.key.c_str()), QString(m_cam2->getKey().c_str()));
    QVERIFY(!m_cam2->isConnected());
    // Calls fail with the loss, not with a timeout of their own.
    long v = 0;
    QVERIFY(!CIntNode(m_cam2, "Width").getValue(v));
    QCOMPARE(getLastError(), int(ERR_DEVICE_LOST));
    QCOMPARE(lastErrorText(), "Camera lost: " + QString(m_cam2->getKey().c_str()) + " does not answer any more");
    ECameraAccessPermission permission;
    QVERIFY(!CInternalGigECameraInfo(m_cam2).getAccessPermission(permission));
    QCOMPARE(getLastError(), int(ERR_DEVICE_LOST));

    // A later notice of the same loss (Aravis' own, say) says nothing more;
    // a subscriber that comes after the loss hears of it at once.
    CAravisCamera* camera = toAravisCamera(m_cam2);
    camera->markLost(camera->generation());
    CEventRecorder<SConnectArg> late;
    CInternalEventManager lateEvents(m_cam2);
    QVERIFY(lateEvents.subscribeConnectArgs(late.proc()));
    QTRY_COMPARE_WITH_TIMEOUT(late.count(), size_t(1), 5000);
    QVERIFY(EventHub::flush(5000));
    QCOMPARE(connection.count(), size_t(1));
    QVERIFY(cam->disConnect() && !CIntNode(m_cam2, "Width").getValue(v));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));

    // Still listed (the last discovery saw it).
    TVector<ICameraPtr> all;
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all) && findBySerial(all, "SIM002"));

    // The camera comes back: same object, connects again.
    m_fake2 = m_rig.start("127.0.0.2", "SIM002");
    QVERIFY(m_fake2 >= 0);
    TVector<ICameraPtr> found;
    QVERIFY(CSystem::getInstance().discovery(found, typeGigEVision));
    QCOMPARE(findBySerial(found, "SIM002").get(), m_cam2.get());
    QVERIFY2(cam->connect(accessPermissionControl), qPrintable(lastErrorText()));
    QVERIFY(CIntNode(m_cam2, "Width").getValue(v) && cam->disConnect());
}

QTEST_GUILESS_MAIN(TestSdkEvents)
#include "tst_sdk_events.moc"
