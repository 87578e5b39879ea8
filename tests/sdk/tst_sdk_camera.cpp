// The camera library against simulated GigE Vision cameras in this process.
#include <QtTest>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <mutex>
#include <thread>

#include "CAravisCamera.h"
#include "EventHub.h"
#include "FakeCameraRig.h"
#include "Gvcp.h"
#include "SimCamSetup.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen;
using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;

namespace {

ICameraPtr findBySerial(const TVector<ICameraPtr>& cameras, const char* serial)
{
    for (const ICameraPtr& c : cameras)
        if (c->getSerialNumber() == CString(serial))
            return c;
    return ICameraPtr();
}

QString lastErrorText()
{
    return QString(getErrMsg(getLastError()));
}

QStringList names(const TVector<CString>& list)
{
    QStringList out;
    for (const CString& s : list)
        out << QString::fromStdString(s.str());
    return out;
}

// Records events delivered on the library's thread.
template <class Arg>
struct SRecorder
{
    std::mutex mutex;
    std::vector<Arg> args;
    std::function<void(const Arg&)> proc()
    {
        return [this](const Arg& a) {
            std::lock_guard<std::mutex> lock(mutex);
            args.push_back(a);
        };
    }
    size_t count()
    {
        std::lock_guard<std::mutex> lock(mutex);
        return args.size();
    }
    Arg at(size_t i)
    {
        std::lock_guard<std::mutex> lock(mutex);
        return args.at(i);
    }
    void clear()
    {
        std::lock_guard<std::mutex> lock(mutex);
        args.clear();
    }
};

// A UDP socket of the test itself.
struct SUdp
{
    int fd = -1;
    explicit SUdp(const char* bindIp = "127.0.0.1", uint16_t port = 0)
    {
        fd = ::socket(AF_INET, SOCK_DGRAM, 0);
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_port = htons(port);
        inet_pton(AF_INET, bindIp, &a.sin_addr);
        int on = 1;
        ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
        if (::bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof(a)) != 0) {
            ::close(fd);
            fd = -1;
        }
    }
    ~SUdp()
    {
        if (fd >= 0)
            ::close(fd);
    }
    bool sendTo(const char* ip, uint16_t port, const QByteArray& data)
    {
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_port = htons(port);
        inet_pton(AF_INET, ip, &a.sin_addr);
        return ::sendto(fd, data.constData(), size_t(data.size()), 0, reinterpret_cast<sockaddr*>(&a), sizeof(a)) ==
               data.size();
    }
    QByteArray receive(int ms, sockaddr_in* from = nullptr)
    {
        pollfd p{fd, POLLIN, 0};
        if (::poll(&p, 1, ms) <= 0)
            return QByteArray();
        char buffer[2048];
        sockaddr_in f{};
        socklen_t len = sizeof(f);
        const ssize_t n = ::recvfrom(fd, buffer, sizeof(buffer), 0, reinterpret_cast<sockaddr*>(&f), &len);
        if (from)
            *from = f;
        return n > 0 ? QByteArray(buffer, int(n)) : QByteArray();
    }
};

QByteArray gvcpHeader(uint8_t flags, uint16_t command, uint16_t length, uint16_t id)
{
    QByteArray h(8, '\0');
    uint8_t* d = reinterpret_cast<uint8_t*>(h.data());
    d[0] = 0x42;
    d[1] = flags;
    Gvcp::put16(d + 2, command);
    Gvcp::put16(d + 4, length);
    Gvcp::put16(d + 6, id);
    return h;
}

} // namespace

class TestSdkCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void discovery();
    void unicastDiscovery();
    void controlPrivilege();
    void featuresOfEveryType();
    void commands();
    void refusedWrites();
    void metadataAndTree();
    void availabilityAndSelectors();
    void parameterUpdateEvents();
    void messageChannel();
    void descriptionDownload();
    void linkSettings();
    void forceIp();
    void cameraLost();

private:
    FakeCameraRig m_rig;
    int m_fake1 = -1, m_fake2 = -1;
    ICameraPtr m_cam1, m_cam2;
    bool m_second = false;
};

void TestSdkCamera::initTestCase()
{
    m_fake1 = m_rig.start("127.0.0.1", "SIM001");
    QVERIFY2(m_fake1 >= 0, m_rig.lastError().c_str());
    m_second = FakeCameraRig::hasAddress("127.0.0.2");
    if (m_second) {
        m_fake2 = m_rig.start("127.0.0.2", "SIM002");
        QVERIFY2(m_fake2 >= 0, m_rig.lastError().c_str());
    }
    TVector<ICameraPtr> cameras;
    QVERIFY(CSystem::getInstance().discovery(cameras, typeGigEVision));
    m_cam1 = findBySerial(cameras, "SIM001");
    QVERIFY(m_cam1);
    if (m_second) {
        m_cam2 = findBySerial(cameras, "SIM002");
        QVERIFY(m_cam2);
    }
}

void TestSdkCamera::cleanup()
{
    for (const ICameraPtr& c : {m_cam1, m_cam2}) {
        if (auto* internal = dynamic_cast<CInternalCamera*>(c.get()))
            internal->disConnect();
    }
}

void TestSdkCamera::discovery()
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
    QVERIFY(dynamic_cast<CInternalCamera*>(m_cam1.get())->isDriverInstalled(installed));
    QVERIFY(installed);

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
    QVERIFY(CSystem::getInstance().discovery(usb, typeCameraLink));
    QVERIFY(usb.empty());
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QCOMPARE(findBySerial(all, "SIM001").get(), m_cam1.get());

    if (!m_second)
        QFAIL("rig incomplete: 127.0.0.2 is not on the loopback interface (scripts/test.sh runs the tests with it)");
    QCOMPARE(findBySerial(again, "SIM002").get(), m_cam2.get());
    QCOMPARE(QString(CInternalGigECameraInfo(m_cam2).getIpAddress().c_str()), QString("127.0.0.2"));
    QVERIFY(m_cam1->getKey() != m_cam2->getKey());
}

void TestSdkCamera::unicastDiscovery()
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
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QVERIFY(found.empty());
    QCOMPARE(getLastError(), int(ERR_TIMEOUT));
    QVERIFY(lastErrorText().startsWith("Timeout waiting for the camera"));

    std::strcpy(probe.ipAddress, "not-an-address");
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));
}

void TestSdkCamera::controlPrivilege()
{
    if (!m_second)
        QFAIL("rig incomplete: no simulated camera on 127.0.0.2 (scripts/test.sh adds the address)");
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam2.get());
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
    QVERIFY(lastErrorText().startsWith("Camera is controlled by another host"));
    QVERIFY(!m_cam2->isConnected());
    // Refusing did not take control away from the other host.
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(arv_camera_get_device(other))));
    QCOMPARE(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 2u);
    g_object_unref(other);

    // Now ours; a second client is refused while we hold control.
    QVERIFY2(cam->connect(accessPermissionControl), qPrintable(lastErrorText()));
    QVERIFY(m_cam2->isConnected());
    QVERIFY(!cam->connect(accessPermissionControl));
    QCOMPARE(getLastError(), int(ERR_ALREADY_CONNECTED));
    QVERIFY(info.getAccessPermission(permission));
    QCOMPARE(permission, accessPermissionControl);
    ArvCamera* second = arv_camera_new("127.0.0.2", &error);
    QVERIFY(second);
    QVERIFY(!arv_gv_device_is_controller(ARV_GV_DEVICE(arv_camera_get_device(second))));
    g_object_unref(second);
    QVERIFY(m_cam2->isConnected());

    // Disconnecting gives control back.
    QVERIFY(cam->disConnect());
    QVERIFY(!m_cam2->isConnected());
    QTRY_COMPARE_WITH_TIMEOUT(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 0u, 5000);
    QVERIFY(cam->disConnect());   // twice is harmless

    // Exclusive access.
    QVERIFY(cam->connect(accessPermissionExclusive));
    QCOMPARE(arv_fake_camera_get_control_channel_privilege(m_rig.fake(m_fake2)), 1u);
    QVERIFY(info.getAccessPermission(permission));
    QCOMPARE(permission, accessPermissionExclusive);
}

void TestSdkCamera::featuresOfEveryType()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY2(cam->connect(accessPermissionControl), qPrintable(lastErrorText()));
    ArvFakeCamera* fake = m_rig.fake(m_fake1);

    CIntNode width(m_cam1, "Width");
    QVERIFY(width.isValid());
    QCOMPARE(width.getType(), CInternalParameterNode::featureTypeInteger);
    long v = 0, max = 0, min = 0, inc = 0;
    QVERIFY(width.getValue(v));
    QCOMPARE(v, 512L);
    QVERIFY(width.getIntMaxMin(max, min));
    QCOMPARE(min, 16L);
    QCOMPARE(max, 2048L);
    QVERIFY(width.getIntIncrement(inc));
    QCOMPARE(inc, 2L);
    QVERIFY(width.setValue(640));
    QVERIFY(width.getValue(v));
    QCOMPARE(v, 640L);
    guint32 reg = 0;
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_WIDTH, &reg);
    QCOMPARE(reg, 640u);
    CIntNode payload(m_cam1, "PayloadSize");
    QVERIFY(payload.getValue(v));
    QCOMPARE(v, 640L * 512L);

    // Integers shown as addresses.
    CIntNode persistentIp(m_cam1, "GevPersistentIPAddress");
    QCOMPARE(persistentIp.getRepresentation(), CInternalParameterNode::representIPV4Address);
    QVERIFY(persistentIp.setValueFromString("192.168.1.10"));
    QVERIFY(persistentIp.getValue(v));
    QCOMPARE(v, 0xC0A8010AL);
    CString text;
    QVERIFY(persistentIp.getValueAsString(text));
    QCOMPARE(QString(text.c_str()), QString("192.168.1.10"));
    arv_fake_camera_read_register(fake, 0x064C, &reg);
    QCOMPARE(reg, 0xC0A8010Au);
    CIntNode mac(m_cam1, "GevMACAddress");
    QCOMPARE(mac.getRepresentation(), CInternalParameterNode::representMACAddress);
    QVERIFY(mac.getValue(v));
    QCOMPARE(uint64_t(v), SimCam::macFromSerial("SIM001"));
    QVERIFY(mac.getValueAsString(text));
    QCOMPARE(QString(text.c_str()), QString::fromStdString(Gvcp::macToString(SimCam::macFromSerial("SIM001"))));

    // Floats with units, one over a converter of the camera's raw register.
    CFloatNode exposure(m_cam1, "ExposureTime");
    QCOMPARE(exposure.getType(), CInternalParameterNode::featureTypeFloat);
    CString unit;
    QVERIFY(exposure.getUnit(unit));
    QCOMPARE(QString(unit.c_str()), QString("us"));
    double d = 0, dmax = 0, dmin = 0;
    QVERIFY(exposure.getFloatMaxMin(dmax, dmin));
    QCOMPARE(dmin, 10.0);
    QCOMPARE(dmax, 1000000.0);
    QVERIFY(exposure.setValue(2500.0));
    QVERIFY(exposure.getValue(d));
    QCOMPARE(d, 2500.0);
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_EXPOSURE_TIME_US, &reg);
    QCOMPARE(reg, 2500u);
    CFloatNode gain(m_cam1, "Gain");
    QVERIFY(gain.getUnit(unit));
    QCOMPARE(QString(unit.c_str()), QString("dB"));
    QVERIFY(gain.setValue(6.5));
    QVERIFY(gain.getValue(d));
    QCOMPARE(d, 6.5);
    CFloatNode rate(m_cam1, "AcquisitionFrameRate");
    QVERIFY(rate.getFloatMaxMin(dmax, dmin));
    QVERIFY(dmin < dmax);
    QVERIFY(rate.setValue(50.0));
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US, &reg);
    QCOMPARE(reg, 20000u);
    CFloatNode black(m_cam1, "BlackLevel");
    QVERIFY(!black.getUnit(unit));
    QVERIFY(black.getFloatIncrement(d));
    QCOMPARE(d, 0.5);
    QVERIFY(!exposure.getFloatIncrement(d));
    long precision = 0;
    QVERIFY(gain.getFloatDisplayPrecision(precision));
    QCOMPARE(precision, 1L);

    CBoolNode reverse(m_cam1, "ReverseX");
    QCOMPARE(reverse.getType(), CInternalParameterNode::featureTypeBool);
    bool b = true;
    QVERIFY(reverse.getValue(b));
    QVERIFY(!b);
    QVERIFY(reverse.setValue(true));
    QVERIFY(reverse.getValue(b));
    QVERIFY(b);
    arv_fake_camera_read_register(fake, 0x1010, &reg);
    QCOMPARE(reg, 1u);
    QVERIFY(reverse.setValueFromString("false"));
    QVERIFY(reverse.getValueAsString(text));
    QCOMPARE(QString(text.c_str()), QString("false"));

    CStringNode userId(m_cam1, "DeviceUserID");
    QCOMPARE(userId.getType(), CInternalParameterNode::featureTypeString);
    unsigned int maxLen = 0;
    QVERIFY(userId.getMaxStringLen(maxLen));
    QCOMPARE(maxLen, 16u);
    QVERIFY(userId.setValue("Line-A"));
    QVERIFY(userId.getValue(text));
    QCOMPARE(QString(text.c_str()), QString("Line-A"));
    QVERIFY(!userId.setValue("a name far longer than sixteen"));
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));

    CEnumNode format(m_cam1, "PixelFormat");
    QCOMPARE(format.getType(), CInternalParameterNode::featureTypeEnum);
    QVERIFY(format.setValueBySymbol("BayerRG8"));
    unsigned long e = 0;
    QVERIFY(format.getEnumValue(e));
    QCOMPARE(e, 0x01080009UL);
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, &reg);
    QCOMPARE(reg, 0x01080009u);
    QVERIFY(format.getValueSymbol(text));
    QCOMPARE(QString(text.c_str()), QString("BayerRG8"));
    TVector<CInternalParameterNode::SEnumEntry> entries;
    QVERIFY(format.getEnumEntry(entries));
    QStringList symbols;
    for (const auto& entry : entries)
        symbols << QString(entry.symbol.c_str());
    QCOMPARE(symbols, QStringList({"Mono8", "Mono16", "BayerGR8", "BayerRG8", "BayerGB8", "BayerBG8", "RGB8"}));
    QCOMPARE(QString(entries.back().displayName.c_str()), QString("RGB 8"));
    QCOMPARE(entries[0].value, 0x01080001UL);
    QCOMPARE(entries[0].nameSpace, CInternalParameterNode::nameSpaceStandard);
    QVERIFY(format.setEnumValue(0x01080001UL));
    QVERIFY(format.getValueAsString(text));
    QCOMPARE(QString(text.c_str()), QString("Mono8"));
    QVERIFY(!format.setValueBySymbol("Mono12"));
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));
    QVERIFY(!format.setEnumValue(42));
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));

    CInternalParameterNode raw(m_cam1, "TestRegister");
    QCOMPARE(raw.getType(), CInternalParameterNode::featureTypeRegister);
    long length = 0;
    QVERIFY(raw.getRegLength(length));
    QCOMPARE(length, 16L);
    TVector<unsigned char> bytes;
    for (int i = 0; i < 16; ++i)
        bytes.push_back(static_cast<unsigned char>(0xA0 + i));
    QVERIFY(raw.setRegValue(bytes));
    unsigned char memory[16] = {0};
    arv_fake_camera_read_memory(fake, 0x4100, 16, memory);
    QCOMPARE(int(memory[0]), 0xA0);
    QCOMPARE(int(memory[15]), 0xAF);
    TVector<unsigned char> back;
    QVERIFY(raw.getRegValue(back));
    QVERIFY(back == bytes);
    QVERIFY(!raw.setRegValue(TVector<unsigned char>(3, 0)));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));

    // Wrong accessor for the type.
    QVERIFY(!width.getFloatValue(d));
    QCOMPARE(getLastError(), int(ERR_TYPE_MISMATCH));
    QVERIFY(!format.getStringValue(text));
    QCOMPARE(getLastError(), int(ERR_TYPE_MISMATCH));
    // Unknown feature.
    CIntNode missing(m_cam1, "NoSuchFeature");
    QVERIFY(!missing.isValid());
    QCOMPARE(getLastError(), int(ERR_NOT_FOUND));
    QVERIFY(!missing.getValue(v));
    QVERIFY(lastErrorText().contains("NoSuchFeature"));
}

void TestSdkCamera::commands()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));
    ArvFakeCamera* fake = m_rig.fake(m_fake1);

    CCmdNode hold(m_cam1, "TestHoldCommand");
    CCmdNode release(m_cam1, "TestHoldRelease");
    QCOMPARE(hold.getType(), CInternalParameterNode::featureTypeCommand);
    QVERIFY(hold.isDone());
    QVERIFY(hold.execute());
    bool done = true;
    QVERIFY(hold.isDone(done));
    QVERIFY(!done);
    QVERIFY(!hold.isDone());
    QVERIFY(release.execute());
    QVERIFY(hold.isDone(done));
    QVERIFY(done);
    QVERIFY(release.isDone());

    // Released by the camera itself.
    QVERIFY(hold.execute());
    QVERIFY(!hold.isDone());
    const guint32 zero = 0;
    arv_fake_camera_write_memory(fake, 0x4000, 4, &zero);
    QVERIFY(hold.isDone());

    // Write-only command registers complete at once.
    CCmdNode start(m_cam1, "AcquisitionStart");
    CCmdNode stop(m_cam1, "AcquisitionStop");
    QVERIFY(!start.isReadable());
    QVERIFY(start.isWriteable());
    QVERIFY(start.execute());
    QVERIFY(start.isDone());
    QCOMPARE(arv_fake_camera_get_acquisition_status(fake), 1u);
    QVERIFY(stop.execute());
    QCOMPARE(arv_fake_camera_get_acquisition_status(fake), 0u);
    QVERIFY(!CIntNode(m_cam1, "Width").execute());
    QCOMPARE(getLastError(), int(ERR_TYPE_MISMATCH));
}

void TestSdkCamera::refusedWrites()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));
    CIntNode readOnly(m_cam1, "TestReadOnlyValue");
    QVERIFY(readOnly.isReadable());
    QVERIFY(!readOnly.isWriteable());
    long v = 0;
    QVERIFY(readOnly.getValue(v));
    QCOMPARE(v, 0x12345678L);
    QVERIFY(!readOnly.setValue(1));
    QCOMPARE(getLastError(), int(ERR_NOT_WRITABLE));
    QCOMPARE(lastErrorText(), QString("Feature not writable: TestReadOnlyValue"));
    QVERIFY(readOnly.getValue(v));
    QCOMPARE(v, 0x12345678L);

    CIntNode width(m_cam1, "Width");
    QVERIFY(!width.setValue(4096));
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));
    QVERIFY(lastErrorText().startsWith("Value out of range: Width"));
    QVERIFY(!width.setValue(641));   // off the increment
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));
    QVERIFY(!width.setValueFromString("wide"));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));
    CFloatNode exposure(m_cam1, "ExposureTime");
    QVERIFY(!exposure.setValue(5.0));
    QCOMPARE(getLastError(), int(ERR_OUT_OF_RANGE));
    QVERIFY(!exposure.setValue(std::nan("")));
    CIntNode ccpless(m_cam1, "PayloadSize");
    QVERIFY(!ccpless.setValue(10));
    QCOMPARE(getLastError(), int(ERR_NOT_WRITABLE));
    // A success clears the last error.
    QVERIFY(width.setValue(512));
    QCOMPARE(getLastError(), int(ERR_OK));
}

void TestSdkCamera::metadataAndTree()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));

    CInternalParameterNode invisible(m_cam1, "TestInvisibleValue");
    QCOMPARE(invisible.getVisibility(), CInternalParameterNode::visibilityInvisible);
    CInternalParameterNode width(m_cam1, "Width");
    QCOMPARE(width.getVisibility(), CInternalParameterNode::visibilityBeginner);
    QCOMPARE(width.getNameSpace(), CInternalParameterNode::nameSpaceStandard);
    QCOMPARE(width.getRepresentation(), CInternalParameterNode::representLinear);
    QCOMPARE(QString(width.getDisplayName().c_str()), QString("Width"));
    QVERIFY(QString(width.getDescription().c_str()).contains("Width of the image"));
    QVERIFY(!QString(width.getToolTip().c_str()).isEmpty());
    QVERIFY(width.isImplemented());
    QVERIFY(width.isAvailable());
    QVERIFY(!width.isStreamable());
    QCOMPARE(CInternalParameterNode(m_cam1, "PayloadSize").getType(), CInternalParameterNode::featureTypeInteger);
    QCOMPARE(CInternalParameterNode(m_cam1, "GevSCPSPacketSize").getType(),
             CInternalParameterNode::featureTypeInteger);
    QCOMPARE(CInternalParameterNode(m_cam1, "TestRegister").getNameSpace(), CInternalParameterNode::nameSpaceCustom);
    QCOMPARE(CInternalParameterNode(m_cam1, "DeviceTemperature").getVisibility(),
             CInternalParameterNode::visibilityExpert);
    QCOMPARE(CInternalParameterNode(m_cam1, "ColorPipelineCoarseFloat02").getVisibility(),
             CInternalParameterNode::visibilityExpert);

    CInternalParameterNode root(m_cam1, "Root");
    QCOMPARE(root.getType(), CInternalParameterNode::featureTypeCategory);
    QVERIFY(!root.isWriteable());
    TVector<CInternalParameterNodePtr> children;
    QVERIFY(root.getChildren(children));
    QStringList top;
    for (const auto& c : children)
        top << QString(c->getName().c_str());
    QCOMPARE(top, QStringList({"DeviceControl", "ImageFormatControl", "AcquisitionControl", "AnalogControl",
                               "UserSetControl", "EventControl", "TransportLayerControl", "TestControl",
                               "ExtendedControl"}));
    QVERIFY(children[1]->getChildren(children));
    QCOMPARE(QString(children[0]->getName().c_str()), QString("SensorWidth"));
    QCOMPARE(QString(children[4]->getName().c_str()), QString("Width"));
    QVERIFY(width.getChildren(children));
    QVERIFY(children.empty());

    // The whole tree, depth first: more than 300 features, nested categories.
    int features = 0, maxDepth = 0;
    std::function<void(const CInternalParameterNodePtr&, int)> walk = [&](const CInternalParameterNodePtr& n,
                                                                           int depth) {
        maxDepth = std::max(maxDepth, depth);
        TVector<CInternalParameterNodePtr> kids;
        QVERIFY(n->getChildren(kids));
        for (const auto& k : kids) {
            if (k->getType() == CInternalParameterNode::featureTypeCategory)
                walk(k, depth + 1);
            else
                ++features;
        }
    };
    walk(std::make_shared<CInternalParameterNode>(m_cam1, "Root"), 0);
    QVERIFY2(features > 300, qPrintable(QString::number(features)));
    QVERIFY(maxDepth >= 3);
}

void TestSdkCamera::availabilityAndSelectors()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));
    ArvFakeCamera* fake = m_rig.fake(m_fake1);

    CIntNode quality(m_cam1, "ImageCompressionQuality");
    CEnumNode compression(m_cam1, "ImageCompressionMode");
    QVERIFY(compression.setValueBySymbol("Off"));
    QVERIFY(!quality.isAvailable());
    QVERIFY(!quality.isWriteable());
    QVERIFY(!quality.setValue(80));
    QCOMPARE(getLastError(), int(ERR_NOT_AVAILABLE));
    QVERIFY(compression.setValueBySymbol("JPEG"));
    QVERIFY(quality.isAvailable());
    QVERIFY(quality.setValue(80));
    QVERIFY(compression.setValueBySymbol("Off"));

    CInternalParameterNode gated(m_cam1, "TestGatedValue");
    CBoolNode gate(m_cam1, "TestAvailabilityGate");
    QVERIFY(gate.setValue(false));
    QVERIFY(!gated.isAvailable());
    QVERIFY(gate.setValue(true));
    QVERIFY(gated.isAvailable());

    CEnumNode userSet(m_cam1, "UserSetSelector");
    CCmdNode save(m_cam1, "UserSetSave");
    QVERIFY(userSet.setValueBySymbol("Default"));
    QVERIFY(!save.isAvailable());
    QVERIFY(!save.execute());
    QCOMPARE(getLastError(), int(ERR_NOT_AVAILABLE));
    QVERIFY(userSet.setValueBySymbol("UserSet1"));
    QVERIFY(save.isAvailable());
    QVERIFY(save.execute());
    TVector<CString> available;
    QVERIFY(userSet.getEnumSymbolList(available));
    QCOMPARE(names(available), QStringList({"Default", "UserSet1", "UserSet2"}));

    // Selectors both ways; a selected feature lands on the selected register.
    CEnumNode selector(m_cam1, "TriggerSelector");
    CEnumNode mode(m_cam1, "TriggerMode");
    QCOMPARE(names(mode.getSelectorsName()), QStringList({"TriggerSelector"}));
    QCOMPARE(names(selector.getSelectedName()), QStringList({"TriggerMode", "TriggerSource", "TriggerActivation"}));
    QVERIFY(names(CInternalParameterNode(m_cam1, "Width").getSelectorsName()).isEmpty());
    QVERIFY(selector.setValueBySymbol("AcquisitionStart"));
    QVERIFY(mode.setValueBySymbol("On"));
    guint32 reg = 0;
    arv_fake_camera_read_register(fake, 0x320, &reg);
    QCOMPARE(reg, 1u);
    arv_fake_camera_read_register(fake, 0x300, &reg);
    QCOMPARE(reg, 0u);
    QVERIFY(mode.setValueBySymbol("Off"));
    QVERIFY(selector.setValueBySymbol("FrameStart"));
}

void TestSdkCamera::parameterUpdateEvents()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));
    SRecorder<SParamUpdataArg> updates;
    CInternalEventManager events(m_cam1);
    QVERIFY(events.subscribeParamUpdate(updates.proc()));

    auto namesOf = [](const SParamUpdataArg& arg) {
        QStringList out;
        for (const CString& n : arg.paramNames)
            out << QString(n.c_str());
        return out;
    };

    QVERIFY(CIntNode(m_cam1, "Width").setValue(1024));
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(1), 5000);
    SParamUpdataArg arg = updates.at(0);
    QStringList changed = namesOf(arg);
    QCOMPARE(changed.first(), QString("Width"));
    QVERIFY2(changed.contains("PayloadSize"), qPrintable(changed.join(',')));
    QVERIFY(changed.contains("OffsetX"));          // its maximum follows the width
    QVERIFY(!changed.contains("HeightMax"));
    QVERIFY(!changed.contains("WidthReg"));        // not a feature of the tree
    QCOMPARE(QString(arg.key.c_str()), QString(m_cam1->getKey().c_str()));
    QVERIFY(!arg.isPoll);
    QVERIFY(arg.timestamp > 0);

    QVERIFY(CIntNode(m_cam1, "OffsetX").setValue(64));
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(2), 5000);
    changed = namesOf(updates.at(1));
    QVERIFY(changed.contains("WidthMax"));
    QVERIFY(changed.contains("Width"));            // its maximum follows the offset
    QVERIFY(CIntNode(m_cam1, "OffsetX").setValue(0));

    QVERIFY(EventHub::flush(5000));
    updates.clear();
    QVERIFY(CEnumNode(m_cam1, "ImageCompressionMode").setValueBySymbol("Off"));
    QVERIFY(CEnumNode(m_cam1, "UserSetSelector").setValueBySymbol("Default"));
    QVERIFY(CEnumNode(m_cam1, "PixelFormat").setValueBySymbol("Mono8"));
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(3), 5000);
    QVERIFY(namesOf(updates.at(0)).contains("ImageCompressionQuality"));
    changed = namesOf(updates.at(1));
    QVERIFY(changed.contains("UserSetSave"));
    QVERIFY(changed.contains("UserSetLoad"));
    changed = namesOf(updates.at(2));
    QVERIFY(changed.contains("PixelSize"));
    QVERIFY(changed.contains("PayloadSize"));

    // Refused writes say nothing.
    QVERIFY(!CIntNode(m_cam1, "TestReadOnlyValue").setValue(3));
    QVERIFY(CCmdNode(m_cam1, "TestHoldRelease").execute());
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(4), 5000);
    changed = namesOf(updates.at(3));
    QCOMPARE(changed.first(), QString("TestHoldRelease"));
    QVERIFY(changed.contains("TestPendingCount"));
    QVERIFY(events.unsubscribeParamUpdate());
    QVERIFY(CIntNode(m_cam1, "Width").setValue(512));
    QVERIFY(EventHub::flush(5000));
    QCOMPARE(updates.count(), size_t(4));
}

void TestSdkCamera::messageChannel()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(cam->connect(accessPermissionControl));
    SRecorder<SMsgChannelArg> received;
    auto events = std::make_shared<CInternalEventManager>(m_cam1);
    QVERIFY(events->subscribeMsgChannel(received.proc()));

    // The camera was told where to send its events.
    uint32_t mcp = 0, mcda = 0;
    QVERIFY(m_rig.readRegister(m_fake1, 0x0B00, mcp));
    QVERIFY(m_rig.readRegister(m_fake1, 0x0B10, mcda));
    const uint16_t port = uint16_t(mcp & 0xFFFF);
    QVERIFY(port != 0);
    QCOMPARE(mcda, 0x7F000001u);

    // Play the camera: EVENT_CMD with two events, acknowledge requested.
    SUdp camera;
    QVERIFY(camera.fd >= 0);
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
    QVERIFY(camera.sendTo("127.0.0.1", port, packet));
    const QByteArray ack = camera.receive(3000);
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
    QVERIFY(camera.sendTo("127.0.0.1", port, packet));
    QTRY_COMPARE_WITH_TIMEOUT(received.count(), size_t(3), 5000);
    QCOMPARE(QString(received.at(2).eventName.c_str()), QString("Event0x9ABC"));
    QVERIFY(camera.receive(200).isEmpty());
    // Garbage is ignored.
    QVERIFY(camera.sendTo("127.0.0.1", port, QByteArray("hello")));

    // The last subscriber leaving closes the channel on the camera.
    events.reset();
    QVERIFY(m_rig.readRegister(m_fake1, 0x0B00, mcp));
    QCOMPARE(mcp & 0xFFFF, 0u);
    QCOMPARE(received.count(), size_t(3));
}

void TestSdkCamera::descriptionDownload()
{
    QFile source(QString::fromStdString(FakeCameraRig::defaultXmlPath()));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray expected = source.readAll();
    QTemporaryDir dir;
    QVERIFY(dir.isValid());

    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
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
}

void TestSdkCamera::linkSettings()
{
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(!cam->setHeartbeatIntervel(5000));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    QVERIFY(cam->connect(accessPermissionControl));
    QVERIFY(cam->setAnswerTimeout(500));
    QVERIFY(!cam->setAnswerTimeout(0));
    QVERIFY(cam->setHeartbeatIntervel(5000));
    QCOMPARE(arv_fake_camera_get_heartbeat_timeout(m_rig.fake(m_fake1)), 5000u);
    QVERIFY(cam->setHeartbeatIntervel(100));   // raised to what Aravis can keep up with
    QVERIFY(arv_fake_camera_get_heartbeat_timeout(m_rig.fake(m_fake1)) >= 1000u);
    QVERIFY(cam->setHeartbeatIntervel(3000));
    QVERIFY(cam->setAnswerTimeout(1000));
}

void TestSdkCamera::forceIp()
{
    // The simulated camera does not implement FORCEIP: no acknowledge.
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam1.get());
    QVERIFY(!cam->forceIpAddress("127.0.0.1", "255.0.0.0", "0.0.0.0"));
    QCOMPARE(getLastError(), int(ERR_TIMEOUT));
    QVERIFY(!cam->forceIpAddress("1.2.3", "255.0.0.0", nullptr));
    QCOMPARE(getLastError(), int(ERR_INVALID_PARAMETER));

    // A camera of our own making answers discovery and FORCEIP.
    if (!FakeCameraRig::hasAddress("127.0.0.3"))
        QFAIL("rig incomplete: 127.0.0.3 is not on the loopback interface (scripts/test.sh runs the tests with it)");
    SUdp responder("127.0.0.3", 3956);
    QVERIFY(responder.fd >= 0);
    const uint64_t mac = 0x0A1B2C3D4E5Full;
    std::atomic<bool> stop{false};
    std::atomic<uint32_t> forcedIp{0}, forcedMask{0};
    std::atomic<uint64_t> forcedMac{0};
    std::thread thread([&] {
        while (!stop) {
            sockaddr_in from{};
            const QByteArray cmd = responder.receive(50, &from);
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
            ::sendto(responder.fd, reply.constData(), size_t(reply.size()), 0, reinterpret_cast<sockaddr*>(&from),
                     sizeof(from));
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
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QVERIFY(findBySerial(all, "R1"));
    probe.timeoutMs = 200;
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe));
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QVERIFY(!findBySerial(all, "R1"));
}

void TestSdkCamera::cameraLost()
{
    if (!m_second)
        QFAIL("rig incomplete: no simulated camera on 127.0.0.2 (scripts/test.sh adds the address)");
    auto* cam = dynamic_cast<CInternalCamera*>(m_cam2.get());
    QVERIFY(cam->connect(accessPermissionControl));
    SRecorder<SConnectArg> connection;
    SRecorder<SMsgChannelArg> messages;
    CInternalEventManager events(m_cam2);
    QVERIFY(events.subscribeConnectArgs(connection.proc()));
    QVERIFY(events.subscribeMsgChannel(messages.proc()));
    QVERIFY(cam->setHeartbeatIntervel(2000));

    m_rig.stop(m_fake2);
    QTRY_COMPARE_WITH_TIMEOUT(connection.count(), size_t(1), 30000);
    SConnectArg arg = connection.at(0);
    QCOMPARE(arg.event, connectEventOffline);
    QCOMPARE(QString(arg.key.c_str()), QString(m_cam2->getKey().c_str()));
    QVERIFY(!m_cam2->isConnected());
    long v = 0;
    QVERIFY(!CIntNode(m_cam2, "Width").getValue(v));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    QVERIFY(cam->disConnect());

    // Still listed (the last discovery saw it); one event only.
    TVector<ICameraPtr> all;
    QVERIFY(CSystem::getInstance().getCameraPtrAll(all));
    QVERIFY(findBySerial(all, "SIM002"));
    QTest::qWait(1500);
    QCOMPARE(connection.count(), size_t(1));

    // The camera comes back: same object, connects again.
    m_fake2 = m_rig.start("127.0.0.2", "SIM002");
    QVERIFY(m_fake2 >= 0);
    TVector<ICameraPtr> found;
    QVERIFY(CSystem::getInstance().discovery(found, typeGigEVision));
    QCOMPARE(findBySerial(found, "SIM002").get(), m_cam2.get());
    QVERIFY2(cam->connect(accessPermissionControl), qPrintable(lastErrorText()));
    QVERIFY(CIntNode(m_cam2, "Width").getValue(v));
    QVERIFY(cam->disConnect());
}

QTEST_GUILESS_MAIN(TestSdkCamera)
#include "tst_sdk_camera.moc"
