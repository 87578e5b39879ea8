#pragma once
// One camera for the rest of the application: opens and closes it off the GUI
// thread, applies the link settings of the configuration, forwards its events
// as Qt signals, runs its stream with a StreamRetrieveThread and offers typed
// feature access by name. Owned by the device manager, shared as CTavDevicePtr.
#include <QObject>
#include <QPoint>
#include <QString>
#include <QMutex>
#include <QStringList>
#include <atomic>
#include <functional>

#include "CTavMessage.h"
#include "StreamRetrieveThread.h"
#include "Vorlen/GenICam.h"

class CDeviceConnectThread;
class AccessStatusThread;

class CTavDevice : public QObject, public Vorlen::Memory::TEnableSharedFromThis<CTavDevice>
{
    Q_OBJECT
public:
    // A device owned by a CTavDevicePtr whose last release deletes the object
    // on its own thread (deleteLater when released elsewhere).
    static CTavDevicePtr create();

    CTavDevice();
    ~CTavDevice() override;

    // ---- life cycle
    void setDevice(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>& camera);
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> getDevice() const;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> getInternalDevice() const;
    void getDeviceKey(QString& key) const;
    QString getDeviceKey() const;
    // Wires the workers, the stream thread and the configuration to the device.
    void init();

    // Where the device stands; changed on the device's own (GUI) thread only.
    enum EConnectionState
    {
        stateDisconnected = 0,
        stateConnecting = 1,     // connect and the steps after it under way
        stateConnected = 2,
        stateDisconnecting = 3   // a close (or the clean-up after a loss) under way
    };

    // bSync false: the connection and the steps after it run on the device's
    // worker and the result arrives later (message 2 or 3); true: the caller
    // waits for the worker and gets the result. A call while a connection,
    // or a close, is under way starts nothing.
    bool openDevice(bool bSync);
    // bSync false: the close runs on the device's worker (message 5 when it
    // is done); true: the caller waits for it. A close asked for during a
    // connection is carried out once the connection has finished.
    bool closeDevice(bool bSync);
    // Requests that return at once (true when accepted); the worker reports
    // with message 7 (stream opened, a failure is logged) and message 8.
    bool openStream();
    bool closeStream();
    // Stops the retrieval thread and waits for it (worker side).
    void stopStreamThread();
    bool doPropertyReset();
    void refreshAccessPermission();
    bool isDriverInstalled(bool& installed);
    bool isCompressionModeJpeg();
    void setShowChunkData(bool show);
    void setDisplayFPS(int fps);
    void getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                            QString& bandwidth);
    // Also the stream error text and count.
    void getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                            QString& bandwidth, QString& errorText, unsigned long long& errorCount);
    bool getStatisticsInfo(Vorlen::GenICam::StreamStatisticsInfo& info);

    StreamRetrieveThread* GetStreamThread() { return m_pStreamThread; }
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> getStreamSource() const;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> getEventManager() const;
    // The device's worker has a job queued or running.
    bool isConnectThreadRunning() const;
    // Waits until the worker has run every job asked for so far (timeoutMs
    // < 0: without limit); true when it is idle. For tests and shutdown.
    bool waitForWorker(int timeoutMs = -1);

    // ---- state
    EConnectionState connectionState() const { return EConnectionState(m_eState.load()); }
    bool isConnecting() const { return m_eState == stateConnecting; }
    bool isDisconnecting() const { return m_eState == stateDisconnecting; }
    // The camera is connected (set by the worker as soon as it is).
    bool isConnected() const { return m_bConnected; }
    // A stream has been asked for and not closed since.
    bool isStreamRequested() const { return m_bStreamRequested; }
    bool isGrabing() const;
    void setAcqModeEnable(bool enable) { m_bAcqModeEnable = enable; }
    bool isAcqModeEnable() const { return m_bAcqModeEnable; }
    unsigned int getGevSCPHostPort() const { return m_nGevSCPHostPort; }
    Vorlen::GenICam::ECameraAccessPermission getAccessPermission() const { return m_eAccessPermission; }
    void setCurFile(const QString& file) { m_strCurFile = file; }
    QString getCurFile() const { return m_strCurFile; }

    // ---- features by name; each returns the library's result, failures logged
    Vorlen::GenICam::CInternalParameterNodePtr getParam(const char* name);
    bool getParaIntValue(const char* name, long& value);
    bool setParaIntValue(const char* name, long value);
    bool getParaEnumValue(const char* name, unsigned long& value);
    bool getParaEnumValue(const char* name, QString& symbol);
    bool setParamEnumValue(const char* name, unsigned long value);
    bool getParaBoolValue(const char* name, bool& value);
    bool setParaBoolValue(const char* name, bool value);
    bool getParaStringValue(const char* name, QString& value, int& maxLength);
    bool setParaStringValue(const char* name, QString value);
    bool getParamEnumList(const char* name, QStringList& symbols);

    // ---- names
    // "<model> (<serial>)".
    bool generateDeviceName(Vorlen::Infra::CString& name);
    // "<user id> (<serial>)" when the connected camera carries a user id,
    // else as generateDeviceName. Uses the user id the worker read at the
    // connection (and again after a change); never asks the camera.
    bool generateDeviceNameByUserID(Vorlen::Infra::CString& name);
    // The cached user id (empty when not connected or not read yet).
    QString cachedUserId() const;
    // Asks the worker to read the user id again (after a discovery pass);
    // a connected device only.
    void refreshUserId();
    // "<model>_<serial>", safe as a file-name stem.
    QString getDeviceSaveName();

    bool setPersistentIp(const QString& ip, const QString& mask, const QString& gateway);

public slots:
    void onAnswerTimeoutChanged(uint16_t ms);
    void onHeartbeatIntervalChanged(uint16_t ms);
    void onInterPacketTimeoutChanged(uint32_t ms);
    void onSingleResendMaxPackNumChanged(uint32_t count);
    void onMaximumLostPacketNumChanged(uint32_t count);

    // Results of the worker, on the device's thread.
    void onDeviceConnect(bool ok);
    void onDeviceDisConnect(bool ok);
    void onDeviceOffline();
    void onRefreshAccessStatusFinished(Vorlen::GenICam::ECameraAccessPermission permission);

signals:
    void device_status_changed(EN_MESSAGE_TYPE type, CTavDevicePtr device);
    void device_param_update(const Vorlen::GenICam::SParamUpdataArg arg, QString key);
    void device_stream_event(const Vorlen::GenICam::SStreamArg arg, QString key);
    void device_msg_channel(const Vorlen::GenICam::SMsgChannelArg arg, QString key);
    // The camera reported itself lost; handled by onDeviceOffline on the
    // device's own thread.
    void device_offline(QString key);

    void newFrame(CQtHybridFramePtr frame, bool display, bool save, bool record);
    void signalGetRecordEnable();
    void increaseDisplayFrame();
    void signalStartGrab();

    void ROIChanged(int x, int y, int width, int height);
    void signalInitROI(int x, int y, int width, int height);
    void signalDrawROI(bool draw);
    void signalCancelDrawROI();
    void signaROIEnable(bool enable);
    void cursorPoint(QPoint point);

private slots:
    void onConnectResult(bool ok, quint64 generation);
    void onDisconnectResult(bool ok, quint64 generation);
    void onStreamOpenFailed();

signals:
    // Worker to device: the stream did not start.
    void streamOpenFailed();

private:
    // Values the worker needs, copied from the configuration on the GUI
    // thread when the request is made.
    struct SLinkSettings
    {
        uint16_t answerTimeout = 1000;
        uint16_t heartbeat = 1500;
    };
    struct SStreamSettings
    {
        uint32_t bufferCount = 8;
        uint32_t interPacketTimeout = 0;
        uint32_t singleResendMaxPackNum = 65536;
        uint32_t maximumLostPacketNum = 65536;
        uint32_t urbNumber = 64;
        uint32_t urbSize = 64;
    };

    CTavDevicePtr self();
    // Queues work on the worker; the job keeps the device alive until it ran.
    void postJob(std::function<void()> job);
    void deliverWorkerResults();
    // Worker side of the requests.
    bool connectOnWorker(const SLinkSettings& link);
    void openStreamOnWorker(const SStreamSettings& settings);
    void closeStreamOnWorker();
    bool disconnectOnWorker(bool offline);
    // Reads DeviceUserID from the camera into the cache (not on the GUI
    // thread); true when the cached value changed.
    bool readUserIdFromCamera();
    void setCachedUserId(const Vorlen::Infra::CString& userId);
    void setStreamObjects(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource>& stream,
                          const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager>& events);
    static SLinkSettings linkSettings();
    static SStreamSettings streamSettings();
    void emitStatus(EN_MESSAGE_TYPE type);
    void subscribeEvents();
    void unsubscribeEvents();
    // Stream thread stopped, stream and event manager released.
    void releaseConnectionObjects();
    bool isGigE() const;
    bool isUsb() const;

    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_spCamera;
    QString m_strKey;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> m_ptrEventManager;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> m_ptrStream;

    mutable QMutex m_objectMutex;   // m_ptrEventManager and m_ptrStream: written by the worker
    mutable QMutex m_userIdMutex;   // m_strUserId: written off the GUI thread, read by the name functions
    Vorlen::Infra::CString m_strUserId;

    StreamRetrieveThread* m_pStreamThread = nullptr;
    CDeviceConnectThread* m_pConnectThread = nullptr;
    AccessStatusThread* m_pAccessStatusThread = nullptr;

    std::atomic<int> m_eState{stateDisconnected};
    std::atomic<bool> m_bConnected{false};
    std::atomic<bool> m_bStreamRequested{false};
    std::atomic<bool> m_bAcqModeEnable{true};
    bool m_bInitialized = false;
    bool m_bCloseAfterConnect = false;   // a close was asked for during the connection
    bool m_bOfflineCleanup = false;      // the worker tears down a lost connection
    quint64 m_nGeneration = 0;           // number of the request whose result is awaited
    std::atomic<unsigned int> m_nGevSCPHostPort{0};
    Vorlen::GenICam::ECameraAccessPermission m_eAccessPermission = Vorlen::GenICam::accessPermissionUnknown;
    QString m_strCurFile;
};
