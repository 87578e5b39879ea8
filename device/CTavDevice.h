#pragma once
// One camera for the rest of the application: opens and closes it off the GUI
// thread, applies the link settings of the configuration, forwards its events
// as Qt signals, runs its stream with a StreamRetrieveThread and offers typed
// feature access by name. Owned by the device manager, shared as CTavDevicePtr.
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <atomic>

#include "CTavMessage.h"
#include "IMsgSink.h"
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
    static CTavDevicePtr create(IMsgSink* sink);

    explicit CTavDevice(IMsgSink* sink);
    ~CTavDevice() override;

    // ---- life cycle
    void setDevice(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>& camera);
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> getDevice() const;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> getInternalDevice() const;
    void getDeviceKey(QString& key) const;
    QString getDeviceKey() const;
    IMsgSink* getMsgSink() const { return m_pMsgSink; }
    // Wires the workers, the stream thread and the configuration to the device.
    void init();

    // bSync false: the connection runs on the connect worker and its result
    // arrives later (messages 2 or 3); true: connects in the caller's thread
    // and returns the result. A call while the worker still runs starts nothing.
    bool openDevice(bool bSync);
    // bSync false: the camera is disconnected on the connect worker (message 5
    // when it is done); true: at once, in the caller's thread.
    bool closeDevice(bool bSync);
    bool openStream();
    bool closeStream();
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
    // The connect worker is running (a connection or disconnection under way).
    bool isConnectThreadRunning() const;

    // ---- state
    bool isConnecting() const { return m_bConnecting; }
    bool isDisconnecting() const { return m_bDisconnecting; }
    bool isConnected() const { return m_bConnected; }
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
    // "<user id> (<serial>)" when the camera carries a user id, else as
    // generateDeviceName.
    bool generateDeviceNameByUserID(Vorlen::Infra::CString& name);
    // "<model>_<serial>", safe as a file-name stem.
    QString getDeviceSaveName();

    bool setPersistentIp(const QString& ip, const QString& mask, const QString& gateway);

public slots:
    void onAnswerTimeoutChanged(uint16_t ms);
    void onHeartbeatIntervalChanged(uint16_t ms);
    void onInterPacketTimeoutChanged(uint32_t ms);
    void onSingleResendMaxPackNumChanged(uint32_t count);
    void onMaximumLostPacketNumChanged(uint32_t count);

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

private:
    CTavDevicePtr self();
    void emitStatus(EN_MESSAGE_TYPE type);
    void subscribeEvents();
    void unsubscribeEvents();
    // Stream thread stopped, stream and event manager released.
    void releaseConnectionObjects();
    bool isGigE() const;
    bool isUsb() const;

    IMsgSink* m_pMsgSink = nullptr;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_spCamera;
    QString m_strKey;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> m_ptrEventManager;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> m_ptrStream;

    StreamRetrieveThread* m_pStreamThread = nullptr;
    CDeviceConnectThread* m_pConnectThread = nullptr;
    AccessStatusThread* m_pAccessStatusThread = nullptr;

    std::atomic<bool> m_bConnecting{false};
    std::atomic<bool> m_bDisconnecting{false};
    std::atomic<bool> m_bConnected{false};
    std::atomic<bool> m_bAcqModeEnable{true};
    bool m_bInitialized = false;
    bool m_bOfflineCleanup = false;   // the connect worker tears down a lost connection
    unsigned int m_nGevSCPHostPort = 0;
    Vorlen::GenICam::ECameraAccessPermission m_eAccessPermission = Vorlen::GenICam::accessPermissionUnknown;
    QString m_strCurFile;
};
