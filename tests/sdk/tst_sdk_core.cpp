// Camera library parts that need no camera: errors, threads, GVCP and
// event packets, event delivery.
#include <QtTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "CAravisCamera.h"
#include "EventHub.h"
#include "Gvcp.h"
#include "MessageChannel.h"
#include "Vorlen/GenICam.h"
#include "Vorlen/Infra/CSemaphore.h"
#include "Vorlen/Infra/CThread.h"

using namespace Vorlen;
using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;

namespace {

QString lastSeen(std::mutex& mutex, const QStringList& seen)
{
    std::lock_guard<std::mutex> lock(mutex);
    return seen.isEmpty() ? QString() : seen.last();
}

} // namespace

class TestSdkCore : public QObject
{
    Q_OBJECT

private slots:
    void errorTexts();
    void semaphoreAndThread();
    void gvcpPackets();
    void eventPackets();
    void eventHubDelivery();
    void nodesWithoutConnection();
};

void TestSdkCore::errorTexts()
{
    setLastError(ERR_NOT_WRITABLE, "Width");
    QCOMPARE(getLastError(), int(ERR_NOT_WRITABLE));
    QCOMPARE(QString(getErrMsg(ERR_NOT_WRITABLE)), QString("Feature not writable: Width"));
    // Another code than the current one: the bare text.
    QCOMPARE(QString(getErrMsg(ERR_ACCESS_DENIED)), QString("Camera is controlled by another host"));
    QCOMPARE(QString(getErrMsg(ERR_TIMEOUT)), QString("Timeout waiting for the camera"));

    // Stable texts never carry a detail.
    setLastError(WARN_BUFFER_OVERRIDE, "3 frames");
    QCOMPARE(QString(getErrMsg(getLastError())), QString("WARN_BUFFER_OVERRIDE"));
    QCOMPARE(QString(getErrMsg(ERROR_STREAM_CHANNEL_ERROR)), QString("ERROR_STREAM_CHANNEL_ERROR"));
    setLastError(ERR_NOT_SUPPORTED_IMAGE_FORMAT, "Mono12p");
    QCOMPARE(QString(getErrMsg(getLastError())), QString("NOT SUPPORTED IMAGE FORMAT"));
    QCOMPARE(QString(getErrMsg(ERR_OK)), QString());
    QVERIFY(QString(getErrMsg(12345)).size() > 0);
    for (int code = ERR_UNKNOWN; code < ERR_CODE_COUNT; ++code)
        QVERIFY2(*getErrMsg(code), qPrintable(QString::number(code)));

    // The last error belongs to the thread.
    setLastError(ERR_IO, "x");
    int other = -1;
    std::thread([&other] { other = getLastError(); }).join();
    QCOMPARE(other, int(ERR_OK));
    QCOMPARE(getLastError(), int(ERR_IO));
    clearLastError();
    QCOMPARE(getLastError(), int(ERR_OK));
    QCOMPARE(QString(getErrMsg(getLastError())), QString());
}

void TestSdkCore::semaphoreAndThread()
{
    CSemaphore sem;
    QVERIFY(!sem.tryPend() && !sem.pend(20));
    sem.post();
    sem.post();
    QVERIFY(sem.tryPend() && sem.pend(0) && !sem.tryPend());

    CThread thread;
    QVERIFY(thread.isThreadOver());
    QVERIFY(thread.createThread([&] {
        while (thread.looping()) {
            sem.post();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));   // pace, not proof
        }
    }));
    QVERIFY(!thread.createThread([] {}));   // one body at a time
    QVERIFY(sem.pend(5000) && !thread.isThreadOver());
    QVERIFY(thread.destroyThread());   // joined: the body has returned
    QVERIFY(thread.isThreadOver() && !thread.looping());
    // Restartable after it ended.
    QVERIFY(thread.createThread([] {}) && thread.destroyThread());
}

void TestSdkCore::gvcpPackets()
{
    Gvcp::SDeviceInfo in;
    in.versionMajor = 2;
    in.versionMinor = 1;
    in.deviceMode = 0x80000000;
    in.mac = 0x0011223344AAull;
    in.ipConfigOptions = 7;
    in.ipConfigCurrent = 5;
    in.ip = 0xC0A80164;
    in.mask = 0xFFFFFF00;
    in.gateway = 0xC0A80101;
    in.manufacturer = "Acme";
    in.model = "M-1";
    in.version = "3.2";
    in.manufacturerInfo = "info";
    in.serial = "0123456789ABCDEF";   // the field is 16 bytes: the last one is cut
    in.userName = "Line 4";
    uint8_t payload[Gvcp::kDiscoveryAckSize];
    Gvcp::writeDiscoveryAck(in, payload);
    Gvcp::SDeviceInfo out;
    QVERIFY(!Gvcp::parseDiscoveryAck(payload, sizeof(payload) - 1, out));
    QVERIFY(Gvcp::parseDiscoveryAck(payload, sizeof(payload), out));
    QCOMPARE(out.versionMajor, uint16_t(2));
    QCOMPARE(out.versionMinor, uint16_t(1));
    QCOMPARE(out.mac, in.mac);
    QCOMPARE(out.ipConfigCurrent, 5u);
    QCOMPARE(out.ip, in.ip);
    QCOMPARE(out.mask, in.mask);
    QCOMPARE(out.gateway, in.gateway);
    QCOMPARE(QString::fromStdString(out.manufacturer), QString("Acme"));
    QCOMPARE(QString::fromStdString(out.serial), QString("0123456789ABCDE"));
    QCOMPARE(QString::fromStdString(out.userName), QString("Line 4"));

    uint8_t force[Gvcp::kForceIpSize];
    Gvcp::writeForceIp(0x0011223344AAull, 0x0A000005, 0xFF000000, 0x0A000001, force);
    QCOMPARE(int(force[0x02]), 0x00);
    QCOMPARE(int(force[0x03]), 0x11);
    QCOMPARE(int(force[0x07]), 0xAA);
    QCOMPARE(int(force[0x17]), 0x05);   // address at 0x14, big-endian
    uint64_t mac = 0;
    uint32_t ip = 0, mask = 0, gw = 0;
    QVERIFY(Gvcp::parseForceIp(force, sizeof(force), mac, ip, mask, gw));
    QCOMPARE(mac, 0x0011223344AAull);
    QCOMPARE(ip, 0x0A000005u);
    QCOMPARE(mask, 0xFF000000u);
    QCOMPARE(gw, 0x0A000001u);

    QCOMPARE(QString::fromStdString(Gvcp::ipToString(0xC0A80164)), QString("192.168.1.100"));
    QVERIFY(Gvcp::parseIp("10.1.2.3", ip));
    QCOMPARE(ip, 0x0A010203u);
    QVERIFY(!Gvcp::parseIp("10.1.2", ip) && !Gvcp::parseIp("300.1.2.3", ip) && !Gvcp::parseIp(nullptr, ip));
    QCOMPARE(QString::fromStdString(Gvcp::macToString(0x0011223344AAull)), QString("00:11:22:33:44:aa"));
    QVERIFY(Gvcp::parseMac("00-11-22-33-44-AA", mac));
    QCOMPARE(mac, 0x0011223344AAull);
    QVERIFY(!Gvcp::parseMac("00:11:22:33:44", mac) && !Gvcp::parseMac("00:11:22:33:44:55:66", mac));

    // The loopback interface is always there.
    Gvcp::SHostInterface lo;
    QVERIFY(Gvcp::hostInterfaceFor(0x7F000001, lo) && lo.loopback);
    QCOMPARE(lo.mask, 0xFF000000u);
}

void TestSdkCore::eventPackets()
{
    // EVENT_CMD with two GigE Vision 1.x events, acknowledge requested.
    QByteArray p(8 + 32, '\0');
    uint8_t* d = reinterpret_cast<uint8_t*>(p.data());
    d[0] = 0x42;
    d[1] = 0x01;
    Gvcp::put16(d + 2, Gvcp::EVENT_CMD);
    Gvcp::put16(d + 4, 32);
    Gvcp::put16(d + 6, 0x1234);
    Gvcp::put16(d + 8 + 2, 0x9001);
    Gvcp::put16(d + 8 + 4, 0);
    Gvcp::put16(d + 8 + 6, 77);
    Gvcp::put32(d + 8 + 8, 0x1);
    Gvcp::put32(d + 8 + 12, 0x2);
    Gvcp::put16(d + 24 + 2, 0x0002);
    Gvcp::put16(d + 24 + 6, 78);
    CMessageChannel::SPacket packet;
    QVERIFY(CMessageChannel::parse(d, size_t(p.size()), packet) && packet.ackRequired);
    QCOMPARE(packet.requestId, uint16_t(0x1234));
    QCOMPARE(packet.ackCode, uint16_t(Gvcp::EVENT_ACK));
    QCOMPARE(int(packet.events.size()), 2);
    QCOMPARE(packet.events[0].eventID, uint16_t(0x9001));
    QCOMPARE(packet.events[0].blockID, uint64_t(77));
    QCOMPARE(packet.events[0].timeStamp, (uint64_t(1) << 32) | 2);
    QCOMPARE(packet.events[1].eventID, uint16_t(0x0002));
    QCOMPARE(QString(CMessageChannel::standardEventName(0x0002)), QString("EndOfExposure"));

    // A length field longer than the datagram is cut to what arrived.
    Gvcp::put16(d + 4, 400);
    QVERIFY(CMessageChannel::parse(d, size_t(p.size()), packet));
    QCOMPARE(int(packet.events.size()), 2);

    // Extended ids: 64-bit block id and timestamp; EVENTDATA carries one event.
    QByteArray e(8 + 24 + 6, '\0');
    d = reinterpret_cast<uint8_t*>(e.data());
    d[0] = 0x42;
    d[1] = 0x10;
    Gvcp::put16(d + 2, Gvcp::EVENTDATA_CMD);
    Gvcp::put16(d + 4, 30);
    Gvcp::put16(d + 6, 9);
    Gvcp::put16(d + 8, 30);
    Gvcp::put16(d + 10, 0x9002);
    Gvcp::put16(d + 12, 1);
    Gvcp::put32(d + 16, 0x1);
    Gvcp::put32(d + 20, 0x5);
    Gvcp::put32(d + 24, 0x0);
    Gvcp::put32(d + 28, 0x99);
    QVERIFY(CMessageChannel::parse(d, size_t(e.size()), packet) && !packet.ackRequired);
    QCOMPARE(packet.ackCode, uint16_t(Gvcp::EVENTDATA_ACK));
    QCOMPARE(int(packet.events.size()), 1);
    QCOMPARE(packet.events[0].eventID, uint16_t(0x9002));
    QCOMPARE(packet.events[0].channelID, uint16_t(1));
    QCOMPARE(packet.events[0].blockID, (uint64_t(1) << 32) | 5);
    QCOMPARE(packet.events[0].timeStamp, uint64_t(0x99));

    // Not event packets.
    d[0] = 0x41;
    QVERIFY(!CMessageChannel::parse(d, size_t(e.size()), packet));
    d[0] = 0x42;
    Gvcp::put16(d + 2, Gvcp::READREG_CMD);
    QVERIFY(!CMessageChannel::parse(d, size_t(e.size()), packet) && !CMessageChannel::parse(d, 5, packet));
    QVERIFY(!CMessageChannel::parse(nullptr, 0, packet));
}

void TestSdkCore::eventHubDelivery()
{
    CAravisCamera::SDiscoveryInfo infoA, infoB;
    infoA.key = "Acme:M:A";
    infoB.key = "Acme:M:B";
    auto camA = CAravisCamera::create(infoA);
    auto camB = CAravisCamera::create(infoB);

    std::mutex mutex;
    QStringList seen;
    std::thread::id callbackThread;
    auto manager = std::make_shared<CInternalEventManager>(camA);
    QVERIFY(manager->subscribeParamUpdate([&](const SParamUpdataArg& arg) {
        std::lock_guard<std::mutex> lock(mutex);
        callbackThread = std::this_thread::get_id();
        seen << QString::fromStdString(arg.paramNames.at(0).str());
    }));
    QVERIFY(!manager->subscribeConnectArgs(CInternalEventManager::ConnectProc()));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));
    QVERIFY(!EventHub::hasStreamSubscribers(camA.get()));
    QVERIFY(manager->subscribeStreamArg([](const SStreamArg&) {}));
    QVERIFY(EventHub::hasStreamSubscribers(camA.get()) && !EventHub::hasStreamSubscribers(camB.get()));

    for (int i = 0; i < 50; ++i) {
        SParamUpdataArg arg;
        arg.paramNames.push_back(CString(QString("F%1").arg(i).toStdString()));
        EventHub::publishParamUpdate(i % 2 ? camB.get() : camA.get(), arg);
    }
    QVERIFY(EventHub::flush(5000));
    {
        std::lock_guard<std::mutex> lock(mutex);
        QCOMPARE(seen.size(), 25);   // only camera A's, in order
        QCOMPARE(seen.first(), QString("F0"));
        QCOMPARE(seen.last(), QString("F48"));
        QVERIFY(callbackThread != std::this_thread::get_id());
    }

    // Each camera's events have a thread of their own: a subscriber stuck
    // with camera B's event does not hold up camera A's.
    std::mutex gateMutex;
    std::condition_variable gate;
    bool open = false, stuck = false;
    CInternalEventManager managerB(camB);
    QVERIFY(managerB.subscribeParamUpdate([&](const SParamUpdataArg&) {
        std::unique_lock<std::mutex> lock(gateMutex);
        stuck = true;
        gate.notify_all();
        gate.wait(lock, [&] { return open; });
    }));
    EventHub::publishParamUpdate(camB.get(), SParamUpdataArg{false, 0, "k", {CString("B")}});
    {
        std::unique_lock<std::mutex> lock(gateMutex);
        QVERIFY(gate.wait_for(lock, std::chrono::seconds(5), [&] { return stuck; }));
    }
    EventHub::publishParamUpdate(camA.get(), SParamUpdataArg{false, 0, "k", {CString("F50")}});
    QTRY_VERIFY_WITH_TIMEOUT(lastSeen(mutex, seen) == "F50", 5000);
    {
        std::lock_guard<std::mutex> lock(gateMutex);
        open = true;
    }
    gate.notify_all();
    QVERIFY(managerB.unsubscribeParamUpdate());
    {
        std::lock_guard<std::mutex> lock(mutex);
        seen.removeLast();
    }

    // No delivery after unsubscribing, nor after the manager is gone.
    QVERIFY(manager->unsubscribeParamUpdate());
    EventHub::publishParamUpdate(camA.get(), SParamUpdataArg{false, 0, "k", {CString("late")}});
    QVERIFY(EventHub::flush(5000));
    QVERIFY(manager->subscribeParamUpdate([&](const SParamUpdataArg& arg) {
        std::lock_guard<std::mutex> lock(mutex);
        seen << QString::fromStdString(arg.paramNames.at(0).str());
    }));
    manager.reset();
    QVERIFY(!EventHub::hasStreamSubscribers(camA.get()));
    EventHub::publishParamUpdate(camA.get(), SParamUpdataArg{false, 0, "k", {CString("later")}});
    QVERIFY(EventHub::flush(5000));
    QCOMPARE(lastSeen(mutex, seen), QString("F48"));

    // A null camera makes a manager that refuses everything.
    CInternalEventManager none{ICameraPtr()};
    QVERIFY(!none.subscribeMsgChannel([](const SMsgChannelArg&) {}));
    QCOMPARE(getLastError(), int(ERR_INVALID_HANDLE));
}

void TestSdkCore::nodesWithoutConnection()
{
    CAravisCamera::SDiscoveryInfo info;
    info.key = "Acme:M:C";
    info.ipAddress = "127.0.0.1";
    ICameraPtr camera = CAravisCamera::create(info);
    CIntNode width(camera, "Width");
    QVERIFY(!width.isValid());
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    long v = 0;
    QVERIFY(!width.setValue(5));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    QVERIFY(QString(getErrMsg(getLastError())).startsWith("Camera is not connected"));
    QCOMPARE(width.getVisibility(), CInternalParameterNode::visibilityUndefined);
    QVERIFY(!width.getValue(v));

    CCmdNode none(ICameraPtr(), "AcquisitionStart");
    QVERIFY(!none.execute());
    QCOMPARE(getLastError(), int(ERR_INVALID_HANDLE));

    CInternalGigECameraInfo gigeInfo(ICameraPtr{});
    QVERIFY(!gigeInfo.isValid() && gigeInfo.getModelName().empty());
    ECameraAccessPermission perm;
    QVERIFY(!gigeInfo.getAccessPermission(perm));

    QVERIFY(QString(CInternalSystem::getInstance().getVersion().c_str()).startsWith("Vorlen GenICam over Aravis 0.8"));
}

QTEST_GUILESS_MAIN(TestSdkCore)
#include "tst_sdk_core.moc"
