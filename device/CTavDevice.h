#pragma once
// One camera for the rest of the application: opens and closes it off the GUI
// thread, applies the link settings of the configuration, forwards its events
// as Qt signals, runs its stream with a StreamRetrieveThread and offers typed
// feature access by name. Owned by the device manager, shared as CTavDevicePtr.
//
// The work is split in parts behind this interface: CDeviceConnection (where
// the connection stands, and the device's worker that every camera round
// trip of a request runs on), CDeviceStream (stream source and retrieval
// thread), CDeviceEventBridge (the camera's events as this object's signals),
// CDeviceFeatures (typed feature access), CDeviceNames (names and the user
// id cache) and CDeviceLinkSettings (the configuration's link settings and
// how each is applied).
//
// Threads: the object lives on the GUI thread, which alone changes the
// connection state. The camera handle and its key, the stream source, the
// event manager, the user id and the parameter file name are guarded; the
// flags read by other threads are atomic. Nothing here waits on a camera on
// the GUI thread, destruction included: a device that goes while its camera
// is still open hands the closing to its worker, which ends by itself.
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>

#include "CDeviceLinkSettings.h"
#include "CTavMessage.h"
#include "StreamRetrieveThread.h"
#include "Vorlen/GenICam.h"

class AccessStatusThread;
class CDeviceConnection;
class CDeviceEventBridge;
class CDeviceNames;
class CDeviceStream;

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

    // How long a synchronous open or close waits for the device's worker;
    // after that the result arrives as with the asynchronous form.
    static const int kSyncWaitMs = 15000;
    // bSync false: the connection and the steps after it run on the device's
    // worker and the result arrives later (message 2 or 3); true: the caller
    // waits for the worker (at most kSyncWaitMs; for tests and tools, never
    // the application's GUI) and gets the result. A call while a connection,
    // or a close, is under way starts nothing.
    bool openDevice(bool bSync);
    // bSync false: the close runs on the device's worker (message 5 when it
    // is done); true: the caller waits for it, as openDevice(true) does. A
    // close asked for during a connection is carried out once the connection
    // has finished.
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

    StreamRetrieveThread* GetStreamThread();
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> getStreamSource() const;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> getEventManager() const;
    // The device's worker has a job queued or running.
    bool isConnectThreadRunning() const;
    // Waits at most timeoutMs until the worker has run every job asked for
    // so far; true when it is idle. For tests and tools, never the
    // application's GUI thread.
    bool waitForWorker(int timeoutMs);

    // ---- state
    EConnectionState connectionState() const;
    bool isConnecting() const { return connectionState() == stateConnecting; }
    bool isDisconnecting() const { return connectionState() == stateDisconnecting; }
    // A close was asked for while connecting, or is under way: the device is
    // on its way back to rest (GUI thread).
    bool isClosing() const;
    // The camera is connected (set by the worker as soon as it is).
    bool isConnected() const;
    // Connected, connecting or closing: not yet back at rest.
    bool isActive() const { return connectionState() != stateDisconnected || isConnected(); }
    // A stream has been asked for and not closed since.
    bool isStreamRequested() const;
    bool isGrabing() const;
    void setAcqModeEnable(bool enable) { m_bAcqModeEnable = enable; }
    bool isAcqModeEnable() const { return m_bAcqModeEnable; }
    unsigned int getGevSCPHostPort() const { return m_nGevSCPHostPort; }
    Vorlen::GenICam::ECameraAccessPermission getAccessPermission() const { return m_eAccessPermission; }
    void setCurFile(const QString& file);
    QString getCurFile() const;

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

private:
    friend class CDeviceConnection;

    CTavDevicePtr self();
    // Queues work on the device's worker; the job keeps the device alive
    // until it ran. False when the device is already going away.
    bool postJob(std::function<void()> job);
    void emitStatus(EN_MESSAGE_TYPE type);
    // A configuration change signal: applied on the worker to a connected
    // GigE camera or its stream source.
    void applyLinkSetting(CDeviceLinkSettings::EKey key, uint32_t value);
    Vorlen::GenICam::EInterfaceType interfaceType() const;

    // Worker side of the requests, called by CDeviceConnection's jobs.
    // Connects the camera and, on success, takes the steps after it.
    bool connectOnWorker(const CDeviceLinkSettings& link);
    // The subscriptions end, the stream is stopped and released, then the
    // camera's disConnect (also after a loss: the library must forget it).
    bool disconnectOnWorker();
    // False (logged) when the stream did not start.
    bool openStreamOnWorker(const CDeviceLinkSettings& settings);
    // Closes the stream; announces message 8 when there was one.
    void closeStreamOnWorker();
    // Reads DeviceUserID from the camera into the cache (not on the GUI
    // thread).
    void readUserIdFromCamera();

    mutable QMutex m_mutex;   // m_spCamera, m_strKey, m_strCurFile
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_spCamera;
    QString m_strKey;
    QString m_strCurFile;

    // Shared, so that the worker's last job can close them after the device.
    std::shared_ptr<CDeviceStream> m_stream;
    std::shared_ptr<CDeviceEventBridge> m_events;
    std::unique_ptr<CDeviceNames> m_names;
    std::unique_ptr<CDeviceConnection> m_connection;
    AccessStatusThread* m_pAccessStatusThread = nullptr;

    std::atomic<bool> m_bAcqModeEnable{true};
    std::atomic<unsigned int> m_nGevSCPHostPort{0};
    std::atomic<Vorlen::GenICam::ECameraAccessPermission> m_eAccessPermission{
        Vorlen::GenICam::accessPermissionUnknown};
    bool m_bInitialized = false;   // GUI thread only
};
