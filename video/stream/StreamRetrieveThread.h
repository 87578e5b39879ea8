#pragma once
// Pulls the frames of one camera stream, counts them, and hands the frames
// that are to be displayed, saved or recorded to the video view as one
// converted, shared frame. Frames that nobody wants are dropped before any
// copy is made.
#include <QElapsedTimer>
#include <QMetaType>
#include <mutex>
#include <QSharedPointer>
#include <QThread>
#include <atomic>
#include <functional>

#include "CDisplayCounter.h"
#include "Gliv/CQtHybridFrame.h"
#include "StreamStatistic.h"
#include "WorkerSettings.h"
#include "Vorlen/GenICam/CFrame.h"
#include "Vorlen/GenICam/CInternalStreamSource.h"
#include "Vorlen/GenICam/ICamera.h"

Q_DECLARE_METATYPE(CQtHybridFramePtr)

// Registers CQtHybridFramePtr for queued signals. Safe to call more than once.
void registerFrameMetaTypes();

class StreamRetrieveThread : public QThread
{
    Q_OBJECT
public:
    // Save throttle rules (configuration key imageSaveThrottleOption).
    enum ESaveType
    {
        saveOneOutOf = SStreamSettings::saveOneOutOf,
        saveMaxRate = SStreamSettings::saveMaxRate,
        saveAverageThroughput = SStreamSettings::saveAverageThroughput,
        saveAll = SStreamSettings::saveAll
    };

    // Construct on the configuration's (GUI) thread: the first settings
    // snapshot is read here. The loop never reads the configuration; see
    // WorkerSettings.h.
    explicit StreamRetrieveThread(QObject* parent = nullptr);
    ~StreamRetrieveThread() override;

    void setStream(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource>& stream);
    void setDevice(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera>& camera);
    // Re-arms the save throttle (the next frame starts a new sequence) and
    // zeroes the record statistics. Reads no configuration: any thread.
    void Init();
    // Asks the loop to end; the caller waits for the thread.
    void stop();

    void setShowTrunkData(bool show) { m_bShowTrunkData = show; }
    void setSaveImageEnable(bool enable) { m_bSaveImageEnable = enable; }
    void setRecordEnable(bool enable) { m_bRecordEnable = enable; }
    void setCompressionModeJpeg(bool jpeg) { m_bCompressionModeJpeg = jpeg; }
    void setDriverInstalled(bool installed) { m_bDriverInstalled = installed; }
    void setWidthReg(qint64 width) { m_nWidthReg = width; }
    void setHeightReg(qint64 height) { m_nHeightReg = height; }
    bool isShowTrunkData() const { return m_bShowTrunkData; }
    bool isSaveImageEnable() const { return m_bSaveImageEnable; }
    bool isRecordEnable() const { return m_bRecordEnable; }

    // Display rate shown by the statistic and kept by the display counter.
    void setDisplayFPS(int fps);

    // Save throttle: type as ESaveType, value N / milliseconds / Mbit/s.
    // Re-arms the rule (the next frame starts a new sequence).
    void setSaveType(int type, int value);
    // The settings the loop uses now (a copy that no one changes).
    std::shared_ptr<const SStreamSettings> settings() const { return m_settings.get(); }
    // Decision for one frame of imageSize bytes; advances the throttle state.
    bool isTimeToSaveImage(unsigned long long imageSize);
    // Same at a given time in ms of a monotonic clock; lets tests drive the clock.
    bool isTimeToSaveImage(unsigned long long imageSize, qint64 nowMs);

    void getRecordStatistics(unsigned long long& processed, unsigned long long& recorded);
    void resetRecordStatistics();

    StreamStatistic* getStatistic() { return &m_statistic; }
    CDisplayCounter* getDisplayCounter() { return &m_displayCounter; }
    void getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                            QString& bandwidth)
    {
        m_statistic.getStatistic(receiveFps, displayFps, totalFrames, bandwidth);
    }

    // One frame of the loop: count, decide, build and emit. Public so that
    // the per-frame rules can be exercised without a camera. The frame's
    // camera buffer is released as soon as it has been copied or dropped.
    void addFrame(Vorlen::GenICam::CFrame& frame);

    // Called on this thread with the time in ns each hybrid frame took to
    // build: the raw copy, plus the full conversion for a frame that is saved
    // or recorded (measurement hook for the benchmarks); set it before start().
    void setConversionTimeObserver(std::function<void(qint64)> observer) { m_conversionObserver = std::move(observer); }

public slots:
    // Connected directly to the configuration's change signals (emitted on
    // the GUI thread): each copies the configuration into a new snapshot.
    // The save settings changed: the throttle starts over.
    void onSaveConfigChanged();
    // Display rate, demosaicing or chunk display changed; applies to the
    // frames built after it.
    void onDisplayConfigChanged();
    // Settings restored or a configuration file opened: everything is re-read.
    void onRestoreCfg();

signals:
    void newFrame(CQtHybridFramePtr frame, bool display, bool save, bool record);
    // Emitted before every frame's decision; connect it directly so that the
    // receiver can call setRecordEnable for this frame.
    void signalGetRecordEnable();
    // A displayed frame was handed over; the statistic has counted it already.
    void increaseDisplayFrame();

protected:
    void run() override;

private:
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> streamSource();
    // GUI thread: copies the configuration into a new snapshot.
    void refreshSettings(bool rearmSave);
    void publishSettings(SStreamSettings settings, bool rearmSave);
    bool isTimeToSaveImage(const SStreamSettings& settings, unsigned long long imageSize, qint64 nowMs);

    // Standard mutexes throughout, so that ThreadSanitizer sees every hand-off.
    std::mutex m_streamMutex;   // guards m_pStream/m_pCamera against setStream during run
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> m_pStream;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> m_pCamera;
    std::atomic<bool> m_bRunning{false};

    StreamStatistic m_statistic;
    CDisplayCounter m_displayCounter;

    // Decisions of the current frame.
    bool m_bDisplay = false;
    bool m_bSave = false;
    bool m_bRecord = false;

    // Set from outside.
    std::atomic<bool> m_bShowTrunkData{false};
    std::atomic<bool> m_bSaveImageEnable{false};
    std::atomic<bool> m_bRecordEnable{false};
    std::atomic<bool> m_bCompressionModeJpeg{false};
    std::atomic<bool> m_bDriverInstalled{true};
    std::atomic<qint64> m_nWidthReg{0};
    std::atomic<qint64> m_nHeightReg{0};

    // Settings copied from the configuration; the loop's only source.
    CSettingsSnapshot<SStreamSettings> m_settings;
    std::mutex m_publishMutex;          // one publisher at a time (generation count)

    // Save throttle state; the rule and its value come from the snapshot.
    std::mutex m_saveMutex;
    QElapsedTimer m_clock;          // monotonic clock of the throttle
    unsigned long long m_nArmedGeneration = 0;   // snapshot generation the state belongs to
    bool m_bForceRearm = true;      // Init(): start over at the next frame
    unsigned long long m_nSaveCounter = 0;
    bool m_bSaveArmed = true;       // the next frame is the first after arming
    qint64 m_nLastSaveMs = 0;
    qint64 m_nSaveWaitMs = 0;

    // Record statistics.
    std::mutex m_recordMutex;
    unsigned long long m_nProcessedFrames = 0;
    unsigned long long m_nRecordedFrames = 0;

    std::function<void(qint64)> m_conversionObserver;
};
