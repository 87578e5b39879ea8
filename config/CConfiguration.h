#pragma once
// Application settings: every key of the configuration file as a field, the
// user file and its default copy, and language.ini beside them. One instance
// per process, used from the GUI thread; worker threads only read fields.
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <cstdint>

class QXmlStreamWriter;

struct stuROI
{
    qint64 Left = 0;
    qint64 Top = 0;
    qint64 Width = 0;
    qint64 Height = 0;
    int RedROI = 255;
    int GreenROI = 0;
    int BlueROI = 0;
};

class CConfiguration : public QObject
{
    Q_OBJECT
public:
    static const int kVideoFormCount = 16;

    // The instance while the application's singleton owner (CSingletonOwner)
    // keeps it: the owner makes it first, before anything else; null before
    // the owner starts and after it has ended.
    static CConfiguration* getInstance();

    bool saveConfig(const QString& path);
    void saveConfig(QXmlStreamWriter& writer);
    bool restoreConfig(const QString& path, bool withRoi);
    bool saveConfigToUserXml();
    // The system's reason the last saveConfig() failed ("No space left on
    // device"); empty after one that succeeded.
    QString lastSaveError() const { return m_lastSaveError; }
    // The message shown after a failed save: text, then the file and the
    // system's reason on a line of their own.
    QString saveFailedMessage(const QString& text) const;
    bool hasLumidorElement(const QString& path);
    // True for an existing regular file; anything else at the path (a FIFO,
    // a device, a directory) is logged as ignored and false returned.
    static bool isRegularFile(const QString& path);
    void createConfigDir(const QString& path);
    void init();

    int readLanguageSetting();
    void writeLanguageSetting(int lang);
    int readFeatureLanguageSetting();
    void writeFeatureLanguageSetting(int lang);

    QString userConfigPath() const { return m_userCfgPath; }
    QString defaultConfigPath() const { return m_defaultCfgPath; }
    QString languageIniPath() const { return m_languageIniPath; }
    // home + application name + "/"
    QString appHomeDir() const { return m_appHome; }

    // Setters that announce the change to the objects that apply it.
    void setAnswerTimeout(uint16_t ms);
    void setHeartbeatInterval(uint16_t ms);
    void setInterPacketTimeout(uint32_t ms);
    void setSingleResendMaxPackNum(uint32_t n);
    void setMaximumLostPacketNum(uint32_t n);
    void setVisibility(int level);
    // Announce that the save-throttle keys changed / that the settings were restored.
    void notifySaveConfigChanged() { emit signalSaveConfigChanged(); }
    void notifyRestoreCfg() { emit signalRestoreCfg(); }
    // Announce that the display options (strDisplayValue, BayerDemosaicing,
    // displayChunkDataEnable) changed; the stream threads copy them.
    void notifyDisplayConfigChanged() { emit signalDisplayConfigChanged(); }

    // Keys, in the order of the file; init() sets them to the defaults of
    // CConfigKeyTable.
    int deviceCtrlVisibility{};
    uint16_t iAnswerTimeout{};
    uint16_t iHeartbeatIval{};
    uint32_t iInterPacketTimeout{};
    uint32_t iSingleResendMaxPackNum{};
    uint32_t iMaximumLostPacketNum{};
    bool logGenIcamEnabled{};
    bool logEventsEnabled{};
    bool logBufferAllEnabled{};
    bool logBufferErrorEnabled{};
    QString logFileName;
    uint32_t streamingBufferCount{};
    uint32_t snapRecordBufferCount{};
    uint32_t streamingUrbNumberCount{};
    uint32_t streamingUrbSizeCount{};
    QString strDisplayValue;
    int displayValue{};          // in memory only
    QString imageOneOutOf;
    QString imageMaxRate;
    QString imageAverageThroughPut;
    int imageSaveThrottleOption{};
    QString imageSavePath;
    int imageSaveFormat{};
    bool displayChunkDataEnable{};
    bool autoRefreshEnable{};
    QString imageSavePreFix;
    int imageSaveFileNameFormat{};
    int imageQualityLevel{};
    int imageQuality{};
    bool imageSaveOnePopDlg{};
    bool setPersistentIP{};
    bool isShowCrosshair{};
    int RedCrosshair{};
    int BlueCrosshair{};
    int GreenCrosshair{};
    int BayerDemosaicing{};
    bool AcquisitionFPS{};
    bool BandwidthMbps{};
    bool ReceivedImages{};
    bool LostBlocks{};
    bool ErrorImages{};
    QString RecordLocation;
    bool RecordPopDlg{};
    QString videoFormat;         // never written: the element always says "AVI"
    int VideoQualityLevel{};
    int VideoQuality{};
    int VideoNameFormat{};
    QString VideoPrefix;
    uint32_t PlaybackSpeed{};
    QString CustomFps;
    QString RemoteIpAddr;

    // Drawing ROIs (user file only); init() sets their defaults.
    bool drawRoiEnable{};
    bool displayRoiEnable{};
    int roiRed{};
    int roiBlue{};
    int roiGreen{};
    QMap<int, QList<stuROI>> mapVideoFormROI;   // index 0..15, all present

signals:
    void signalRestoreCfg();
    void signalVisibilityChanged(int level);
    void signalSaveConfigChanged();
    void signalDisplayConfigChanged();
    void signalAnswerTimeoutChanged(uint16_t ms);
    void signalHeartbeatIntervalChanged(uint16_t ms);
    void signalInterPacketTimeoutChanged(uint32_t ms);
    void signalSingleResendMaxPackNumChanged(uint32_t n);
    void signalMaximumLostPacketNumChanged(uint32_t n);

private:
    CConfiguration();
    template <typename T, typename... Args>
    void setAndAnnounce(T& field, T value, void (CConfiguration::*changed)(Args...))
    {
        if (field == value)
            return;
        field = value;
        emit(this->*changed)(value);
    }

    QString m_appHome;
    QString m_userCfgPath;
    QString m_defaultCfgPath;
    QString m_languageIniPath;
    QString m_lastSaveError;
    QString m_lastSavePath;   // the file of the last save
};
