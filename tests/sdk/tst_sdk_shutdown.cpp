// The end of the camera library: shutdownInstance() with a camera
// connected, streaming and subscribed, and every call after it.
#include <QtTest>

#include <dirent.h>

#include <cstring>

#include "CEventRecorder.h"
#include "EventHub.h"
#include "SdkTestSupport.h"

using namespace Vorlen::GenICam;
using namespace Vorlen::Infra;
using namespace SdkTest;

namespace {

// Threads of the library whose names start with prefix (all of them carry
// names starting with "vorlen-").
int libraryThreads(const char* prefix = "vorlen-")
{
    int n = 0;
    if (DIR* dir = opendir("/proc/self/task")) {
        while (dirent* e = readdir(dir)) {
            QFile comm(QString("/proc/self/task/%1/comm").arg(e->d_name));
            if (e->d_name[0] != '.' && comm.open(QIODevice::ReadOnly) && comm.readAll().startsWith(prefix))
                ++n;
        }
        closedir(dir);
    }
    return n;
}

bool refusedAsShutDown()
{
    return getLastError() == ERR_INVALID_HANDLE && lastErrorText().contains("shut down");
}

} // namespace

class TestSdkShutdown : public QObject
{
    Q_OBJECT

private slots:
    void endsEverything();
};

void TestSdkShutdown::endsEverything()
{
    FakeCameraRig rig;
    int index = -1;
    std::string error;
    ICameraPtr camera = startCamera(rig, "127.0.0.1", "SIM001", index, error);
    QVERIFY2(camera, error.c_str());

    // Every kind of library thread running: watchdog, message channel,
    // event delivery, stream.
    QVERIFY2(internal(camera)->connect(accessPermissionControl), qPrintable(lastErrorText()));
    CEventRecorder<SParamUpdataArg> updates;
    CEventRecorder<SMsgChannelArg> messages;
    auto events = std::make_shared<CInternalEventManager>(camera);
    QVERIFY(events->subscribeParamUpdate(updates.proc()) && events->subscribeMsgChannel(messages.proc()));
    QVERIFY(CIntNode(camera, "Width").setValue(640));
    QTRY_COMPARE_WITH_TIMEOUT(updates.count(), size_t(1), 5000);
    CInternalStreamSource stream(camera);
    QVERIFY(stream.startGrabbing());
    CFrame frame;
    QTRY_VERIFY_WITH_TIMEOUT(stream.getFrame(frame, 100), 10000);
    QCOMPARE(libraryThreads("vorlen-watchdog"), 1);
    QCOMPARE(libraryThreads("vorlen-messages"), 1);
    QCOMPARE(libraryThreads("vorlen-events"), 1);

    CSystem::shutdownInstance();
    QVERIFY(!camera->isConnected());
    QCOMPARE(libraryThreads("vorlen-watchdog"), 0);
    QCOMPARE(libraryThreads("vorlen-messages"), 0);
    QCOMPARE(libraryThreads("vorlen-events"), 0);
    CInternalSystem::shutdownInstance();      // idempotent
    CSystem::shutdownInstance();

    // Calls fail cleanly, and none starts a thread again.
    TVector<ICameraPtr> found;
    QVERIFY(!CSystem::getInstance().discovery(found, typeGigEVision) && refusedAsShutDown() && found.empty());
    CSystem::_DiscoveryModeInfo probe;
    std::strcpy(probe.ipAddress, "127.0.0.1");
    QVERIFY(!CSystem::getInstance().discoveryEx(found, discoveryUnicast, probe) && refusedAsShutDown());
    QVERIFY(!CSystem::getInstance().getCameraPtrAll(found));
    QVERIFY(!internal(camera)->connect(accessPermissionControl) && refusedAsShutDown());
    QVERIFY(!CInternalEventManager(camera).subscribeConnectArgs([](const SConnectArg&) {}));
    QVERIFY(refusedAsShutDown());
    long width = 0;
    QVERIFY(!CIntNode(camera, "Width").getValue(width));
    QCOMPARE(getLastError(), int(ERR_NOT_CONNECTED));
    stream.getFrame(frame, 10);   // what was received may still be handed out; nothing breaks
    QVERIFY(!CInternalStreamSource(camera).startGrabbing());
    EventHub::publishParamUpdate(camera.get(), SParamUpdataArg());
    QVERIFY(!EventHub::flush(1000));
    QCOMPARE(updates.count(), size_t(1));
    // The stream still held the device; with it goes the last thread of the
    // camera (Aravis' heartbeat, begun on a thread of ours, carries its name).
    QVERIFY(stream.stopGrabbing());
    frame.reset();
    events.reset();   // unsubscribing after the end returns at once
    QCOMPARE(libraryThreads(), 0);
}

QTEST_GUILESS_MAIN(TestSdkShutdown)
#include "tst_sdk_shutdown.moc"
