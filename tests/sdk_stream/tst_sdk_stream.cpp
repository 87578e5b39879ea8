// Streaming through CInternalStreamSource from simulated GigE Vision cameras
// running in the test process.
// Aravis before Qt: GLib uses "signals" as a name.
#include <arv.h>

#include <QtTest>
#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <thread>

#include "CAravisCamera.h"
#include "CEventRecorder.h"
#include "EventHub.h"
#include "FakeCameraRig.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::getLastError;

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr uint32_t kPeriod60Fps = 16667;   // frame period register, microseconds

// Records the thread on which a GObject was released.
struct SReleaseWatch
{
    std::mutex mutex;
    bool released = false;
    std::thread::id thread;
    static void notify(gpointer data, GObject*)
    {
        auto* w = static_cast<SReleaseWatch*>(data);
        std::lock_guard<std::mutex> lock(w->mutex);
        w->released = true;
        w->thread = std::this_thread::get_id();
    }
    bool isReleased()
    {
        std::lock_guard<std::mutex> lock(mutex);
        return released;
    }
};

size_t countOf(CEventRecorder<SStreamArg>& log, EStreamEventStatus status)
{
    return log.count([status](const SStreamArg& a) { return a.eStreamEventStatus == status; });
}

uint64_t receivedImages(const CInternalStreamSource& src)
{
    StreamStatisticsInfo info;
    src.getStatisticsInfo(info);
    return info.receivedImages;
}

} // namespace

class TestSdkStream : public QObject
{
    Q_OBJECT

private:
    FakeCameraRig m_rig;
    int m_index = -1;
    CInternalCameraPtr m_camera;
    int m_serial = 0;

    // Starts a camera and connects to it; m_rig.lastError() says what failed.
    bool openCamera()
    {
        m_camera = m_rig.startConnected("127.0.0.1", "SDKS" + std::to_string(++m_serial), kWidth, kHeight, "Mono8",
                                        kPeriod60Fps, &m_index);
        return bool(m_camera);
    }

    static bool grab(CInternalStreamSource& src, CFrame& frame, int attempts = 20)
    {
        for (int i = 0; i < attempts; ++i) {
            if (src.getFrame(frame, 500))
                return true;
        }
        return false;
    }

private slots:
    void cleanup()
    {
        // Also after a loss: disconnecting joins the finished thread that
        // released the lost camera's Aravis object. The camera object itself
        // lives as long as the process, so nothing else would join it.
        if (m_camera)
            m_camera->disConnect();
        m_camera.reset();
        m_rig.stopAll();
    }

    void streamsFrames()
    {
        QVERIFY2(openCamera(), m_rig.lastError().c_str());
        CInternalStreamSource src(m_camera);
        CFrame frame;
        QVERIFY(!src.getFrame(frame, 10));
        QCOMPARE(getLastError(), int(Vorlen::Infra::ERR_STREAM_NOT_OPEN));
        QVERIFY(!src.setBufferCount(0) && src.setBufferCount(4) && src.setInterPacketTimeout(50));
        QVERIFY(src.setMaxLostPacketNum(100) && src.setSingleResendMaxPacketNum(64));
        QVERIFY(!src.setUrbTransfer(64, 64));   // not a USB camera
        QVERIFY(!src.isGrabbing());

        QVERIFY2(src.startGrabbing(), Vorlen::Infra::getErrMsg(getLastError()));
        QVERIFY(src.isGrabbing() && !src.startGrabbing());
        QCOMPARE(getLastError(), int(Vorlen::Infra::ERR_STREAM_BUSY));
        QVERIFY(!src.setBufferCount(6));

        uint64_t lastId = 0;
        for (int i = 0; i < 30; ++i) {
            QVERIFY(grab(src, frame) && frame.valid());
            // A frame may follow a gap (a block dropped on a loaded machine or
            // overwritten in the queue): that is reported, not a failure here;
            // the loss counting has tests of its own on fixed packet sequences.
            const int err = getLastError();
            QVERIFY2(err == Vorlen::Infra::ERR_OK || err == Vorlen::Infra::WARN_BUFFER_OVERRIDE ||
                         err == Vorlen::Infra::ERROR_STREAM_CHANNEL_ERROR,
                     Vorlen::Infra::getErrMsg(err));
            QCOMPARE(frame.getImageWidth(), uint32_t(kWidth));
            QCOMPARE(frame.getImageHeight(), uint32_t(kHeight));
            QCOMPARE(frame.getImagePixelFormat(), uint32_t(ARV_PIXEL_FORMAT_MONO_8));
            QCOMPARE(frame.getImageSize(), uint64_t(kWidth) * kHeight);
            QVERIFY(frame.getImage() != nullptr);
            TVector<CFrame::EPayloadType> types;
            QVERIFY(frame.getPayLoadTypes(types));
            QCOMPARE(types.size(), size_t(1));
            QCOMPARE(types[0], CFrame::payloadImage);
            QCOMPARE(frame.getChunkCount(), 0u);
            QVERIFY2(frame.getBlockId() > lastId, qPrintable(QString("%1 after %2").arg(frame.getBlockId()).arg(lastId)));
            lastId = frame.getBlockId();
        }

        StreamStatisticsInfo info;
        QVERIFY(src.getStatisticsInfo(info) && info.receivedImages >= 30 && info.acquisitionFps > 0.0);
        QVERIFY(info.bandwidthMbps > 0.0);
        QCOMPARE(info.errorImages, uint64_t(0));
        const uint64_t before = info.receivedImages;
        QVERIFY(src.resetStatisticsInfo() && src.getStatisticsInfo(info) && info.receivedImages < before);

        QVERIFY(src.stopGrabbing() && !src.isGrabbing() && !src.stopGrabbing() && !src.getFrame(frame, 10));
        QCOMPARE(getLastError(), int(Vorlen::Infra::ERR_STREAM_NOT_OPEN));
        QVERIFY(!frame.valid());
        // Counters of a finished grab stay readable.
        StreamStatisticsInfo after;
        QVERIFY(src.getStatisticsInfo(after) && after.receivedImages >= info.receivedImages);
    }

    void heldFramesDoNotDeadlock()
    {
        QVERIFY2(openCamera(), m_rig.lastError().c_str());
        CInternalStreamSource src(m_camera);
        QVERIFY(src.setBufferCount(3) && src.startGrabbing());

        // Every buffer held by the application: nothing more can arrive.
        QList<CFrame> held;
        for (int i = 0; i < 3; ++i) {
            CFrame f;
            QVERIFY(grab(src, f));
            held.append(f);
        }
        CFrame extra;
        QVERIFY(!src.getFrame(extra, 300));
        QCOMPARE(getLastError(), int(Vorlen::Infra::ERR_OK));   // a plain timeout
        QVERIFY(!extra.valid());
        for (const CFrame& f : held)
            QVERIFY(f.valid() && f.getImage());

        // Released: frames flow again, and the frames dropped meanwhile are
        // reported once.
        held.clear();
        QVERIFY(grab(src, extra));
        QCOMPARE(getLastError(), int(Vorlen::Infra::WARN_BUFFER_OVERRIDE));
        StreamStatisticsInfo info;
        src.getStatisticsInfo(info);
        QVERIFY(info.overrideBlocks > 0 && src.getLostFrameCount() >= info.overrideBlocks);

        // One frame object reused: getFrame gives its old buffer back first.
        uint64_t lastId = extra.getBlockId();
        for (int i = 0; i < 20; ++i) {
            QVERIFY(grab(src, extra) && extra.getBlockId() > lastId);
            lastId = extra.getBlockId();
        }
        QVERIFY(src.stopGrabbing());
    }

    void startStopCycles()
    {
        QVERIFY2(openCamera(), m_rig.lastError().c_str());
        CFrame fromEarlierGrab;
        {
            CInternalStreamSource src(m_camera);
            QVERIFY(src.setBufferCount(4));
            for (int cycle = 0; cycle < 3; ++cycle) {
                QVERIFY2(src.startGrabbing(), Vorlen::Infra::getErrMsg(getLastError()));
                CFrame f;
                for (int i = 0; i < 5; ++i)
                    QVERIFY(grab(src, f));
                fromEarlierGrab = f;   // the previous one is released into a newer grab
                QVERIFY(src.stopGrabbing());
                // Still readable after the stop: the buffer belongs to the frame.
                QVERIFY(fromEarlierGrab.valid());
                const unsigned char* p = fromEarlierGrab.getImage();
                volatile unsigned char sum = p[0] + p[fromEarlierGrab.getImageSize() - 1];
                Q_UNUSED(sum);
            }

            // Only the newest frame: the older ones queued meanwhile are dropped.
            QVERIFY(src.startGrabbing(0, grabStrategyLatestImage));
            CFrame f;
            QVERIFY(grab(src, f));
            // Two more blocks completed behind the reader: the next call
            // hands out the newer and drops the older.
            const uint64_t completed = receivedImages(src);
            QTRY_VERIFY_WITH_TIMEOUT(receivedImages(src) >= completed + 2, 10000);
            QVERIFY(grab(src, f));
            QCOMPARE(getLastError(), int(Vorlen::Infra::WARN_BUFFER_OVERRIDE));
            StreamStatisticsInfo info;
            src.getStatisticsInfo(info);
            QVERIFY(info.overrideBlocks > 0 && src.stopGrabbing());

            // A limited grab ends by itself.
            QVERIFY(src.startGrabbing(3));
            for (int i = 0; i < 3; ++i)
                QVERIFY(grab(src, f));
            QVERIFY(!src.getFrame(f, 300) && src.stopGrabbing());

            // The source goes away while still grabbing and a frame is held.
            QVERIFY(src.startGrabbing() && grab(src, fromEarlierGrab));
        }
        QVERIFY(fromEarlierGrab.valid());
        QCOMPARE(fromEarlierGrab.getImageSize(), uint64_t(kWidth) * kHeight);
        fromEarlierGrab.reset();

        // The camera streams again through a new source.
        CInternalStreamSource again(m_camera);
        QVERIFY2(again.startGrabbing(), Vorlen::Infra::getErrMsg(getLastError()));
        CFrame f;
        QVERIFY(grab(again, f) && again.stopGrabbing());
    }

    void incompleteBlocksReported()
    {
        QVERIFY2(openCamera(), m_rig.lastError().c_str());
        auto log = std::make_shared<CEventRecorder<SStreamArg>>();
        CInternalEventManager events(m_camera);
        QVERIFY(events.subscribeStreamArg(log->proc()));

        CInternalStreamSource src(m_camera);
        QVERIFY(src.setBufferCount(8) && src.startGrabbing());
        CFrame f;
        QVERIFY(grab(src, f));
        std::vector<uint64_t> delivered{f.getBlockId()};

        // The camera's packets shrink under the running stream: the receiver
        // places them as if they were full size and closes every block short
        // of its image. No frame may come out of such a block; each one is
        // the last error, counted, and reported as a lost-packet event.
        const uint32_t kPacketSizeRegister = 0x0d04;   // stream channel 0 packet size
        uint32_t packetSize = 0;
        QVERIFY(m_rig.readRegister(m_index, kPacketSizeRegister, packetSize));
        QVERIFY(m_rig.writeRegister(m_index, kPacketSizeRegister, (packetSize & 0xFFFF0000u) | 1400u));
        int incomplete = 0;
        for (int i = 0; i < 100 && incomplete < 3; ++i) {
            if (src.getFrame(f, 200)) {
                // A frame from before the change.
                QCOMPARE(f.getImageSize(), uint64_t(kWidth) * kHeight);
                delivered.push_back(f.getBlockId());
                continue;
            }
            if (getLastError() == Vorlen::Infra::ERR_NO_FRAME)
                ++incomplete;
        }
        QVERIFY(incomplete >= 3 && QString(Vorlen::Infra::getErrMsg(getLastError())).contains("incomplete"));
        StreamStatisticsInfo info;
        src.getStatisticsInfo(info);
        QVERIFY(info.lostPacketBlock >= 3 && src.getLostFrameCount() >= 3);
        QTRY_VERIFY_WITH_TIMEOUT(countOf(*log, streamEventLostPacket) >= 3, 5000);

        // Back to full packets: the stream carries on with complete frames.
        QVERIFY(m_rig.writeRegister(m_index, kPacketSizeRegister, packetSize));
        for (int i = 0; i < 10; ++i) {
            QVERIFY(grab(src, f));
            QCOMPARE(f.getImageSize(), uint64_t(kWidth) * kHeight);
            delivered.push_back(f.getBlockId());
        }
        QVERIFY(src.stopGrabbing() && Vorlen::GenICam::EventHub::flush(5000));
        events.unsubscribeStreamArg();

        // Normal frames are reported (at most one per interval, see the
        // throttle's own test): only frames that were delivered, in order,
        // and none of the incomplete blocks.
        std::vector<uint64_t> normal, incompleteIds;
        for (const SStreamArg& a : log->all()) {
            if (a.eStreamEventStatus == streamEventNormal)
                normal.push_back(a.blockId);
            else if (a.eStreamEventStatus == streamEventLostPacket)
                incompleteIds.push_back(a.blockId);
        }
        QVERIFY(!normal.empty() && normal.size() <= delivered.size());
        QVERIFY(std::is_sorted(normal.begin(), normal.end()));
        QCOMPARE(std::adjacent_find(normal.begin(), normal.end()), normal.end());
        for (uint64_t id : normal) {
            QVERIFY2(std::find(delivered.begin(), delivered.end(), id) != delivered.end(),
                     qPrintable(QString::number(id)));
            QVERIFY(std::find(incompleteIds.begin(), incompleteIds.end(), id) == incompleteIds.end());
        }
    }

    void cameraVanishes()
    {
        QVERIFY2(openCamera(), m_rig.lastError().c_str());
        auto log = std::make_shared<CEventRecorder<SStreamArg>>();
        CInternalEventManager events(m_camera);
        QVERIFY(events.subscribeStreamArg(log->proc()));

        CInternalStreamSource src(m_camera);
        QVERIFY(src.startGrabbing());
        CFrame held;
        QVERIFY(grab(src, held));

        // The camera's device object, released once nobody holds it.
        static SReleaseWatch watch;
        ArvDevice* device = toAravisCamera(m_camera)->arvDevice();
        QVERIFY(device);
        g_object_weak_ref(G_OBJECT(device), &SReleaseWatch::notify, &watch);

        m_rig.stop(m_index);   // the camera is gone mid-stream
        CFrame f;
        QTRY_VERIFY_WITH_TIMEOUT(!src.getFrame(f, 100) && getLastError() == Vorlen::Infra::ERROR_STREAM_CHANNEL_ERROR,
                                 30000);
        QVERIFY(!src.getFrame(f, 100));
        QCOMPARE(QString(Vorlen::Infra::getErrMsg(getLastError())), QString("ERROR_STREAM_CHANNEL_ERROR"));
        QTRY_VERIFY_WITH_TIMEOUT(countOf(*log, streamEventStreamChannelError) == 1, 5000);

        QVERIFY(held.valid());
        QCOMPARE(held.getImageSize(), uint64_t(kWidth) * kHeight);
        // Once the camera has noticed its loss, the stream holds the last
        // reference to the device; releasing a vanished device waits for its
        // control channel to time out, which stopGrabbing must not do on the
        // caller's thread.
        QTRY_VERIFY_WITH_TIMEOUT(!m_camera->isConnected(), 30000);
        QVERIFY(!watch.isReleased() && src.stopGrabbing());
        QTRY_VERIFY_WITH_TIMEOUT(watch.isReleased(), 30000);
        QVERIFY(watch.thread != std::this_thread::get_id() && held.valid());
        held.reset();
        events.unsubscribeStreamArg();
    }
};

QTEST_GUILESS_MAIN(TestSdkStream)
#include "tst_sdk_stream.moc"
