// Display-rate limit, stream statistics, save throttle and the per-frame
// decisions of the retrieval thread, on synthetic frames and clocks.
// GLib headers come before Qt's: Qt defines "signals" as a keyword.
#include <arv.h>
#include "FrameData.h"
#include <QSignalSpy>
#include <QtTest>
#include <memory>
#include <vector>

#include "CConfiguration.h"
#include "CDisplayCounter.h"
#include "SingletonTestSupport.h"
#include "StreamRetrieveThread.h"
#include "StreamStatistic.h"

using Vorlen::GenICam::CFrame;

namespace {
const uint32_t kMono8 = 0x01080001;
const qint64 kMs = 1000000;   // ns

// A complete frame as the stream would hand it out, over our own pixels.
CFrame makeFrame(const std::vector<CFrame::EPayloadType>& types, uint32_t width = 32, uint32_t height = 16,
                 uint32_t pixelFormat = kMono8)
{
    static std::vector<unsigned char> pixels(1 << 16, 0x80);
    std::shared_ptr<CFrame::SData> data = std::make_shared<CFrame::SData>();
    data->buffer = arv_buffer_new_allocate(16);
    data->payloadTypes = Vorlen::Infra::TVector<CFrame::EPayloadType>(types.begin(), types.end());
    data->image = pixels.data();
    data->imageSize = uint64_t(width) * height;
    data->width = width;
    data->height = height;
    data->pixelFormat = pixelFormat;
    data->blockId = 7;
    return CFrame(Vorlen::Memory::TSharedPtr<CFrame::SData>(data));
}

CConfiguration* cfg()
{
    return CConfiguration::getInstance();
}

// Frames the statistics counted.
unsigned long long received(StreamRetrieveThread& thread)
{
    QString rx, disp, bw;
    unsigned long long total = 0;
    thread.getStreamStatistic(rx, disp, total, bw);
    return total;
}

// Frames processed and recorded.
QPair<unsigned long long, unsigned long long> recordCounts(StreamRetrieveThread& thread)
{
    unsigned long long processed = 0, recorded = 0;
    thread.getRecordStatistics(processed, recorded);
    return qMakePair(processed, recorded);
}

struct FrameRecord
{
    CQtHybridFramePtr frame;
    bool display, save, record;
};
}

class TestVideoStream : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void displayCounterLimitsRate();
    void displayCounterSettings();
    void statisticFigures();
    void statisticErrorText();
    void saveThrottleRules();
    void saveThrottleFromConfiguration();
    void frameDecisions();
    void disabledDisplayStillSavesAndRecords();
    void framesWithoutAUsablePicture();

private:
    std::unique_ptr<CSingletonOwner> m_owner = makeSingletons();   // the configuration the threads read
};

void TestVideoStream::init()
{
    cfg()->strDisplayValue = "30 FPS";
    cfg()->displayChunkDataEnable = false;
    cfg()->imageSaveThrottleOption = 3;
    cfg()->notifyDisplayConfigChanged();
    cfg()->notifySaveConfigChanged();
}

void TestVideoStream::displayCounterLimitsRate()
{
    // First frame is always shown, then at most one per 33.3 ms.
    {
        CDisplayCounter counter;
        QVERIFY(counter.isTimeToDisplay(0, 1000 * kMs) && !counter.isTimeToDisplay(0, 1010 * kMs));
        QVERIFY(!counter.isTimeToDisplay(0, 1033 * kMs) && counter.isTimeToDisplay(0, 1034 * kMs));
        QVERIFY(!counter.isTimeToDisplay(0, 1050 * kMs));
    }
    // A 60 fps stream for 10 s: about 300 frames shown, never more than one
    // per period on average, and frames shown at regular gaps.
    {
        CDisplayCounter counter;
        int shown = 0;
        const qint64 start = 5000 * kMs;
        const qint64 step = 16666667;
        for (int i = 0; i < 600; ++i)
            shown += counter.isTimeToDisplay(0, start + i * step) ? 1 : 0;
        QVERIFY2(shown <= 600 * step / CDisplayCounter::kDisplayPeriodNs + 1, qPrintable(QString::number(shown)));
        QVERIFY2(shown >= 290, qPrintable(QString::number(shown)));
    }
    // Frames slower than the period are all shown.
    {
        CDisplayCounter counter;
        int shown = 0;
        for (int i = 0; i < 100; ++i)
            shown += counter.isTimeToDisplay(0, 100 * kMs + i * 50 * kMs) ? 1 : 0;
        QCOMPARE(shown, 100);
    }
}

void TestVideoStream::displayCounterSettings()
{
    // The setting reaches the thread's display counter through the
    // configuration's change signal, not by the counter reading it.
    StreamRetrieveThread thread;
    CDisplayCounter* counter = thread.getDisplayCounter();
    auto countShown = [&](const char* setting) {
        cfg()->strDisplayValue = setting;
        cfg()->notifyDisplayConfigChanged();
        counter->reset();
        int shown = 0;
        for (int i = 0; i < 600; ++i)
            shown += counter->isTimeToDisplay(0, 1000 * kMs + qint64(i) * 8333333) ? 1 : 0;   // 120 fps for 5 s
        return shown;
    };
    const int at30 = countShown("30 FPS");
    const int at60 = countShown("60 FPS");
    const int disabled = countShown("Disabled");
    const int other = countShown("whatever");
    // Assigned but not announced: the thread keeps what it had.
    cfg()->strDisplayValue = "Disabled";
    counter->reset();
    QVERIFY(counter->isTimeToDisplay(0, 1000 * kMs));

    QVERIFY(at30 > 100);
    QCOMPARE(at60, at30);   // the period is fixed, "60 FPS" does not shorten it
    QCOMPARE(disabled, 0);
    QCOMPARE(other, at30);
}

void TestVideoStream::statisticFigures()
{
    StreamStatistic stat;
    QString rx, disp, bw;
    unsigned long long total = 99;

    // Fewer than two frames: the texts keep their defaults.
    stat.rcvNewFrame(1000000, 100 * kMs);
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(rx, StreamStatistic::defaultReceiveFps());
    QCOMPARE(disp, StreamStatistic::defaultDisplayFps());
    QCOMPARE(bw, StreamStatistic::defaultBandwidth());
    QCOMPARE(total, 1ULL);

    // 10 frames of 1 MB, 100 ms apart: 9 intervals over 0.9 s.
    for (int i = 1; i < 10; ++i)
        stat.rcvNewFrame(1000000, 100 * kMs + i * 100 * kMs);
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(rx, QString("10.00"));
    QCOMPARE(bw, QString("88.89"));   // 10 MB * 8 / 0.9 s
    QCOMPARE(total, 10ULL);

    // Only the last 50 frames count: 60 more at 10 ms with 500000 bytes.
    for (int i = 0; i < 60; ++i)
        stat.rcvNewFrame(500000, 5000 * kMs + i * 10 * kMs);
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(rx, QString("100.00"));
    QCOMPARE(bw, QString("408.16"));   // 50 * 0.5 MB * 8 / 0.49 s
    QCOMPARE(total, 70ULL);

    // Display rate: 5 frames 40 ms apart is 25 fps; capped by the configured rate.
    for (int i = 0; i < 5; ++i)
        stat.increaseDisplayFrame(1000 * kMs + i * 40 * kMs);
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(disp, QString("25"));
    stat.setDisplayFPS(20);
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(disp, QString("20"));

    // 3 frames over 0.9 s: 2.22 rounds to 2.
    StreamStatistic slow;
    slow.increaseDisplayFrame(0 + 1);
    slow.increaseDisplayFrame(450 * kMs);
    slow.increaseDisplayFrame(900 * kMs);
    slow.getStatistic(rx, disp, total, bw);
    QCOMPARE(disp, QString("2"));

    // Display rate 0: the display text stays at its default.
    StreamStatistic off;
    off.setDisplayFPS(0);
    for (int i = 0; i < 5; ++i)
        off.increaseDisplayFrame(1000 * kMs + i * 40 * kMs);
    off.getStatistic(rx, disp, total, bw);
    QCOMPARE(disp, StreamStatistic::defaultDisplayFps());

    // reset() forgets everything.
    stat.reset();
    stat.getStatistic(rx, disp, total, bw);
    QCOMPARE(rx, StreamStatistic::defaultReceiveFps());
    QCOMPARE(disp, StreamStatistic::defaultDisplayFps());
    QCOMPARE(total, 0ULL);
}

void TestVideoStream::statisticErrorText()
{
    StreamStatistic stat;
    QString rx, disp, bw, error;
    unsigned long long total = 0, errors = 0;

    // An ordinary error is shown once, with the lost-frame count.
    stat.setError("ERR_TIMEOUT");
    stat.setErrorCount(3);
    stat.getStatistic(rx, disp, total, bw, error, errors);
    QCOMPARE(error, QString("ERR_TIMEOUT"));
    QCOMPARE(errors, 3ULL);
    stat.getStatistic(rx, disp, total, bw, error, errors);
    QCOMPARE(error, QString());

    // These two stay until replaced or reset.
    for (const char* sticky : {"NOT SUPPORTED IMAGE FORMAT", "ERROR_STREAM_CHANNEL_ERROR"})
    {
        stat.setError(sticky);
        stat.getStatistic(rx, disp, total, bw);
        stat.getStatistic(rx, disp, total, bw, error, errors);
        QCOMPARE(error, QString(sticky));
    }
    stat.reset();
    stat.getStatistic(rx, disp, total, bw, error, errors);
    QCOMPARE(error, QString());
    QCOMPARE(errors, 0ULL);
}

void TestVideoStream::saveThrottleRules()
{
    StreamRetrieveThread thread;
    thread.setSaveImageEnable(true);
    // Each rule is armed afresh on the same thread, then offered frames of
    // (bytes, ms). 131072 bytes = 2^20 bits: at 1 Mbit/s a frame takes 1000 ms.
    using T = StreamRetrieveThread;
    const struct
    {
        int type, value;
        std::vector<std::pair<qint64, qint64>> frames;
        const char* saved;
    } rules[] = {
        {T::saveOneOutOf, 3, {{100, 0}, {100, 1}, {100, 2}, {100, 3}, {100, 4}, {100, 5}, {100, 6}, {100, 7}}, "10010010"},
        {T::saveOneOutOf, 3, {{100, 0}}, "1"},   // re-arming starts the count again
        {T::saveOneOutOf, 1, {{100, 0}, {100, 1}, {100, 2}}, "111"},
        {T::saveOneOutOf, 0, {{100, 0}, {100, 1}, {100, 2}}, "000"},
        {T::saveMaxRate, 100, {{100, 5000}, {100, 5050}, {100, 5100}, {100, 5150}, {100, 5199}, {100, 5200}}, "101001"},
        {T::saveMaxRate, 0, {{100, 6000}, {100, 6000}}, "11"},
        {T::saveMaxRate, -1, {{100, 7000}, {100, 9000}}, "00"},
        {7, 0, {{100, 0}, {100, 0}}, "11"},   // unknown rule: every frame
        {T::saveAverageThroughput, 1, {{131072, 10000}, {131072, 10500}, {131072, 11000}, {131072, 11001}}, "1001"},
        // A larger frame waits longer (4 Mbit at 2 Mbit/s is 2000 ms), and
        // the frame saved sets the next wait (500 ms).
        {T::saveAverageThroughput, 2, {{524288, 20000}, {131072, 21500}, {131072, 22000}, {131072, 22001},
                                        {131072, 22501}, {131072, 22502}}, "100101"},
        // Rate 0 leaves the wait at 0: saved whenever the clock has moved on.
        {T::saveAverageThroughput, 0, {{131072, 30000}, {131072, 30000}, {131072, 30001}}, "101"},
    };
    for (const auto& rule : rules) {
        thread.setSaveType(rule.type, rule.value);
        QString saved;
        for (const auto& frame : rule.frames)
            saved += thread.isTimeToSaveImage(frame.first, frame.second) ? '1' : '0';
        QVERIFY2(saved == rule.saved, qPrintable(QString("rule %1 (%2): %3").arg(rule.type).arg(rule.value).arg(saved)));
    }

    // Save switched off: nothing, whatever the rule.
    thread.setSaveType(T::saveAll, 0);
    QVERIFY(thread.isTimeToSaveImage(100, 0));
    thread.setSaveImageEnable(false);
    QVERIFY(!thread.isTimeToSaveImage(100, 0));
    thread.setSaveType(T::saveOneOutOf, 1);
    QVERIFY(!thread.isTimeToSaveImage(100, 0));
}

void TestVideoStream::saveThrottleFromConfiguration()
{
    StreamRetrieveThread thread;
    thread.setSaveImageEnable(true);
    auto saved = [&](qint64 bytes, std::initializer_list<qint64> times) {
        QString out;
        for (qint64 ms : times)
            out += thread.isTimeToSaveImage(bytes, ms) ? '1' : '0';
        return out;
    };

    cfg()->imageSaveThrottleOption = 0;
    cfg()->imageOneOutOf = "2";
    cfg()->notifySaveConfigChanged();
    QCOMPARE(saved(10, {0, 1, 2, 3, 4, 5}), QString("101010"));

    cfg()->imageSaveThrottleOption = 1;
    cfg()->imageMaxRate = "250";
    cfg()->notifySaveConfigChanged();
    QCOMPARE(saved(10, {1000, 1249, 1250}), QString("101"));
    // Init() starts the rule over without reading the configuration.
    thread.Init();
    QCOMPARE(saved(10, {5000, 5001}), QString("10"));

    cfg()->imageSaveThrottleOption = 2;
    cfg()->imageAverageThroughPut = "1";
    cfg()->notifyRestoreCfg();   // a restore re-reads everything
    QCOMPARE(saved(131072, {0, 1000, 1001}), QString("101"));

    cfg()->imageSaveThrottleOption = 3;
    cfg()->notifySaveConfigChanged();
    QCOMPARE(saved(10, {0, 0}), QString("11"));
}

void TestVideoStream::frameDecisions()
{
    StreamRetrieveThread thread;
    thread.Init();
    QList<FrameRecord> frames;
    connect(&thread, &StreamRetrieveThread::newFrame, this,
            [&](CQtHybridFramePtr f, bool d, bool s, bool r) { frames.append({f, d, s, r}); });
    QSignalSpy displayed(&thread, &StreamRetrieveThread::increaseDisplayFrame);

    thread.setWidthReg(32);
    thread.setHeightReg(16);

    // The first frame is displayed; the converted frame comes out, and the
    // camera buffer is let go at once.
    CFrame first = makeFrame({CFrame::payloadImage}, 32, 16);
    QElapsedTimer timer;
    timer.start();
    thread.addFrame(first);
    CFrame second = makeFrame({CFrame::payloadImage}, 32, 16);
    thread.addFrame(second);
    const qint64 gapMs = timer.elapsed();
    QVERIFY(!first.valid() && !second.valid());

    QVERIFY(frames.size() >= 1 && frames[0].display && !frames[0].save && !frames[0].record);
    // Only displayed: the full-resolution image is made on first use only.
    QVERIFY(!frames[0].frame->isConverted() && frames[0].frame->isHybridFrameValid());
    QCOMPARE(frames[0].frame->getConvertedWidth(), 32u);
    QCOMPARE(frames[0].frame->getConvertedHeight(), 16u);
    QCOMPARE(frames[0].frame->getRawDataSize(), 32ull * 16);
    QCOMPARE(frames[0].frame->getBlockId(), 7ull);
    if (gapMs < 30)
    {
        // The second came within the display period and nobody else wanted it.
        QCOMPARE(frames.size(), 1);
        QCOMPARE(displayed.count(), 1);
    }

    QCOMPARE(recordCounts(thread), qMakePair(2ULL, 0ULL));

    // The record question is answered by a direct receiver before the decision.
    cfg()->strDisplayValue = "Disabled";
    cfg()->notifyDisplayConfigChanged();
    int asked = 0;
    connect(&thread, &StreamRetrieveThread::signalGetRecordEnable, this,
            [&]() {
                ++asked;
                thread.setRecordEnable(true);
            },
            Qt::DirectConnection);
    frames.clear();
    CFrame third = makeFrame({CFrame::payloadImage});
    thread.addFrame(third);
    QCOMPARE(asked, 1);
    QCOMPARE(frames.size(), 1);
    QVERIFY(!frames[0].display && !frames[0].save && frames[0].record);
    QVERIFY(frames[0].frame->isConverted());   // converted on the stream thread for the recorder
    QCOMPARE(recordCounts(thread), qMakePair(3ULL, 1ULL));

    thread.resetRecordStatistics();
    QCOMPARE(recordCounts(thread), qMakePair(0ULL, 0ULL));

    // An invalid frame is not even counted.
    CFrame empty;
    thread.addFrame(empty);
    QCOMPARE(recordCounts(thread).first, 0ULL);
}

void TestVideoStream::disabledDisplayStillSavesAndRecords()
{
    cfg()->strDisplayValue = "Disabled";
    StreamRetrieveThread thread;
    thread.Init();
    thread.setSaveImageEnable(true);
    thread.setSaveType(StreamRetrieveThread::saveAll, 0);
    thread.setRecordEnable(true);
    QList<FrameRecord> frames;
    connect(&thread, &StreamRetrieveThread::newFrame, this,
            [&](CQtHybridFramePtr f, bool d, bool s, bool r) { frames.append({f, d, s, r}); });

    for (int i = 0; i < 5; ++i)
    {
        CFrame frame = makeFrame({CFrame::payloadImage});
        thread.addFrame(frame);
    }
    QCOMPARE(frames.size(), 5);
    for (const FrameRecord& r : frames)
        QVERIFY(!r.display && r.save && r.record);

    QCOMPARE(received(thread), 5ULL);   // counted although never displayed
    QCOMPARE(recordCounts(thread), qMakePair(5ULL, 5ULL));

    // Nobody wants the frames: dropped, still counted.
    thread.setSaveImageEnable(false);
    thread.setRecordEnable(false);
    frames.clear();
    CFrame frame = makeFrame({CFrame::payloadImage});
    thread.addFrame(frame);
    QVERIFY(!frame.valid());
    QCOMPARE(frames.size(), 0);
    QCOMPARE(received(thread), 6ULL);
}

// A chunk-only frame is ignored and not counted; a picture in an unknown
// format is counted, dropped, and sets the error text.
void TestVideoStream::framesWithoutAUsablePicture()
{
    cfg()->displayChunkDataEnable = true;
    StreamRetrieveThread thread;
    thread.Init();
    thread.setSaveImageEnable(true);
    thread.setSaveType(StreamRetrieveThread::saveAll, 0);
    thread.setRecordEnable(true);
    QSignalSpy spy(&thread, &StreamRetrieveThread::newFrame);

    CFrame frame = makeFrame({CFrame::payloadChunkData});
    thread.addFrame(frame);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(received(thread), 0ULL);
    QCOMPARE(recordCounts(thread).first, 0ULL);

    CFrame unknown = makeFrame({CFrame::payloadImage}, 32, 16, 0x7fff0001);
    thread.addFrame(unknown);
    QCOMPARE(spy.count(), 0);
    QVERIFY(!unknown.valid());
    QString rx, disp, bw, error;
    unsigned long long total = 0, errors = 0;
    thread.getStatistic()->getStatistic(rx, disp, total, bw, error, errors);
    QCOMPARE(error, QString("NOT SUPPORTED IMAGE FORMAT"));
    QCOMPARE(total, 1ULL);
    QCOMPARE(recordCounts(thread).first, 1ULL);

    // Image with chunk payload: one frame, counted once.
    CFrame withChunk = makeFrame({CFrame::payloadImage, CFrame::payloadChunkData});
    thread.addFrame(withChunk);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(received(thread), 2ULL);
}

QTEST_GUILESS_MAIN(TestVideoStream)
#include "test_video_stream.moc"
