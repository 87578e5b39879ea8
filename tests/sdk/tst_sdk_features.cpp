// Parameter nodes of every kind against a simulated GigE Vision camera in
// this process: values, ranges, refusals, metadata, the feature tree,
// availability, selectors and parameter-update events.

#include <QtTest>

#include <functional>

#include "CEventRecorder.h"
#include "EventHub.h"
#include "CSimCameraTest.h"
#include "SimCamSetup.h"

using namespace Vorlen;
using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;

class TestSdkFeatures : public CSimCameraTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void featuresOfEveryType();
    void commands();
    void refusedWrites();
    void metadataAndTree();
    void availabilityAndSelectors();
    void parameterUpdateEvents();
};

void TestSdkFeatures::initTestCase()
{
    std::string error;
    QVERIFY2(startCameras(1, error), error.c_str());
}

void TestSdkFeatures::cleanup()
{
    disconnectAll();
}

void TestSdkFeatures::featuresOfEveryType()
{
    auto* cam = internal(m_cam1);
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
    QVERIFY(width.setValue(640) && width.getValue(v));
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
    QVERIFY(persistentIp.setValueFromString("192.168.1.10") && persistentIp.getValue(v));
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
    QVERIFY(exposure.setValue(2500.0) && exposure.getValue(d));
    QCOMPARE(d, 2500.0);
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_EXPOSURE_TIME_US, &reg);
    QCOMPARE(reg, 2500u);
    CFloatNode gain(m_cam1, "Gain");
    QVERIFY(gain.getUnit(unit));
    QCOMPARE(QString(unit.c_str()), QString("dB"));
    QVERIFY(gain.setValue(6.5) && gain.getValue(d));
    QCOMPARE(d, 6.5);
    CFloatNode rate(m_cam1, "AcquisitionFrameRate");
    QVERIFY(rate.getFloatMaxMin(dmax, dmin) && dmin < dmax && rate.setValue(50.0));
    arv_fake_camera_read_register(fake, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US, &reg);
    QCOMPARE(reg, 20000u);
    CFloatNode black(m_cam1, "BlackLevel");
    QVERIFY(!black.getUnit(unit) && black.getFloatIncrement(d));
    QCOMPARE(d, 0.5);
    QVERIFY(!exposure.getFloatIncrement(d));
    long precision = 0;
    QVERIFY(gain.getFloatDisplayPrecision(precision));
    QCOMPARE(precision, 1L);

    CBoolNode reverse(m_cam1, "ReverseX");
    QCOMPARE(reverse.getType(), CInternalParameterNode::featureTypeBool);
    bool b = true;
    QVERIFY(reverse.getValue(b) && !b && reverse.setValue(true) && reverse.getValue(b) && b);
    arv_fake_camera_read_register(fake, 0x1010, &reg);
    QCOMPARE(reg, 1u);
    QVERIFY(reverse.setValueFromString("false") && reverse.getValueAsString(text));
    QCOMPARE(QString(text.c_str()), QString("false"));

    CStringNode userId(m_cam1, "DeviceUserID");
    QCOMPARE(userId.getType(), CInternalParameterNode::featureTypeString);
    unsigned int maxLen = 0;
    QVERIFY(userId.getMaxStringLen(maxLen));
    QCOMPARE(maxLen, 16u);
    QVERIFY(userId.setValue("Line-A") && userId.getValue(text));
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
    QVERIFY(format.setEnumValue(0x01080001UL) && format.getValueAsString(text));
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
    QVERIFY(raw.getRegValue(back) && back == bytes && !raw.setRegValue(TVector<unsigned char>(3, 0)));
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
    QVERIFY(!missing.getValue(v) && lastErrorText().contains("NoSuchFeature"));
}

void TestSdkFeatures::commands()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));
    ArvFakeCamera* fake = m_rig.fake(m_fake1);

    CCmdNode hold(m_cam1, "TestHoldCommand");
    CCmdNode release(m_cam1, "TestHoldRelease");
    QCOMPARE(hold.getType(), CInternalParameterNode::featureTypeCommand);
    QVERIFY(hold.isDone() && hold.execute());
    bool done = true;
    QVERIFY(hold.isDone(done) && !done && !hold.isDone() && release.execute() && hold.isDone(done) && done);
    QVERIFY(release.isDone());

    // Released by the camera itself.
    QVERIFY(hold.execute() && !hold.isDone());
    const guint32 zero = 0;
    arv_fake_camera_write_memory(fake, 0x4000, 4, &zero);
    QVERIFY(hold.isDone());

    // Write-only command registers complete at once.
    CCmdNode start(m_cam1, "AcquisitionStart");
    CCmdNode stop(m_cam1, "AcquisitionStop");
    QVERIFY(!start.isReadable() && start.isWriteable() && start.execute() && start.isDone());
    QCOMPARE(arv_fake_camera_get_acquisition_status(fake), 1u);
    QVERIFY(stop.execute());
    QCOMPARE(arv_fake_camera_get_acquisition_status(fake), 0u);
    QVERIFY(!CIntNode(m_cam1, "Width").execute());
    QCOMPARE(getLastError(), int(ERR_TYPE_MISMATCH));
}

void TestSdkFeatures::refusedWrites()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));
    CIntNode readOnly(m_cam1, "TestReadOnlyValue");
    QVERIFY(readOnly.isReadable() && !readOnly.isWriteable());
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

void TestSdkFeatures::metadataAndTree()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));

    CInternalParameterNode invisible(m_cam1, "TestInvisibleValue");
    QCOMPARE(invisible.getVisibility(), CInternalParameterNode::visibilityInvisible);
    CInternalParameterNode width(m_cam1, "Width");
    QCOMPARE(width.getVisibility(), CInternalParameterNode::visibilityBeginner);
    QCOMPARE(width.getNameSpace(), CInternalParameterNode::nameSpaceStandard);
    QCOMPARE(width.getRepresentation(), CInternalParameterNode::representLinear);
    QCOMPARE(QString(width.getDisplayName().c_str()), QString("Width"));
    QVERIFY(QString(width.getDescription().c_str()).contains("Width of the image"));
    QVERIFY(!QString(width.getToolTip().c_str()).isEmpty() && width.isImplemented() && width.isAvailable());
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
    QVERIFY(width.getChildren(children) && children.empty());

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

void TestSdkFeatures::availabilityAndSelectors()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));
    ArvFakeCamera* fake = m_rig.fake(m_fake1);

    CIntNode quality(m_cam1, "ImageCompressionQuality");
    CEnumNode compression(m_cam1, "ImageCompressionMode");
    QVERIFY(compression.setValueBySymbol("Off") && !quality.isAvailable() && !quality.isWriteable());
    QVERIFY(!quality.setValue(80));
    QCOMPARE(getLastError(), int(ERR_NOT_AVAILABLE));
    QVERIFY(compression.setValueBySymbol("JPEG") && quality.isAvailable() && quality.setValue(80));
    QVERIFY(compression.setValueBySymbol("Off"));

    CInternalParameterNode gated(m_cam1, "TestGatedValue");
    CBoolNode gate(m_cam1, "TestAvailabilityGate");
    QVERIFY(gate.setValue(false) && !gated.isAvailable() && gate.setValue(true) && gated.isAvailable());

    CEnumNode userSet(m_cam1, "UserSetSelector");
    CCmdNode save(m_cam1, "UserSetSave");
    QVERIFY(userSet.setValueBySymbol("Default") && !save.isAvailable() && !save.execute());
    QCOMPARE(getLastError(), int(ERR_NOT_AVAILABLE));
    QVERIFY(userSet.setValueBySymbol("UserSet1") && save.isAvailable() && save.execute());
    TVector<CString> available;
    QVERIFY(userSet.getEnumSymbolList(available));
    QCOMPARE(names(available), QStringList({"Default", "UserSet1", "UserSet2"}));

    // Selectors both ways; a selected feature lands on the selected register.
    CEnumNode selector(m_cam1, "TriggerSelector");
    CEnumNode mode(m_cam1, "TriggerMode");
    QCOMPARE(names(mode.getSelectorsName()), QStringList({"TriggerSelector"}));
    QCOMPARE(names(selector.getSelectedName()), QStringList({"TriggerMode", "TriggerSource", "TriggerActivation"}));
    QVERIFY(names(CInternalParameterNode(m_cam1, "Width").getSelectorsName()).isEmpty());
    QVERIFY(selector.setValueBySymbol("AcquisitionStart") && mode.setValueBySymbol("On"));
    guint32 reg = 0;
    arv_fake_camera_read_register(fake, 0x320, &reg);
    QCOMPARE(reg, 1u);
    arv_fake_camera_read_register(fake, 0x300, &reg);
    QCOMPARE(reg, 0u);
    QVERIFY(mode.setValueBySymbol("Off") && selector.setValueBySymbol("FrameStart"));
}

void TestSdkFeatures::parameterUpdateEvents()
{
    auto* cam = internal(m_cam1);
    QVERIFY(cam->connect(accessPermissionControl));
    CEventRecorder<SParamUpdataArg> updates;
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
    QVERIFY(!arg.isPoll && arg.timestamp > 0);

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
    QVERIFY(changed.contains("UserSetSave") && changed.contains("UserSetLoad"));
    changed = namesOf(updates.at(2));
    QVERIFY(changed.contains("PixelSize") && changed.contains("PayloadSize"));

    // Refused writes say nothing.
    QVERIFY(!CIntNode(m_cam1, "TestReadOnlyValue").setValue(3));
    QVERIFY(CCmdNode(m_cam1, "TestHoldRelease").execute());
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(4), 5000);
    changed = namesOf(updates.at(3));
    QCOMPARE(changed.first(), QString("TestHoldRelease"));
    QVERIFY(changed.contains("TestPendingCount") && events.unsubscribeParamUpdate());
    QVERIFY(CIntNode(m_cam1, "Width").setValue(512) && EventHub::flush(5000));
    QCOMPARE(updates.count(), size_t(4));
}

QTEST_GUILESS_MAIN(TestSdkFeatures)
#include "tst_sdk_features.moc"
