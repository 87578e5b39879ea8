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
class QXmlStreamReader;

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

    // Keys, in the order of the file.
    int deviceCtrlVisibility = 0;
    uint16_t iAnswerTimeout = 1000;
    uint16_t iHeartbeatIval = 1500;
    uint32_t iInterPacketTimeout = 0;
    uint32_t iSingleResendMaxPackNum = 65536;
    uint32_t iMaximumLostPacketNum = 65536;
    bool logGenIcamEnabled = true;
    bool logEventsEnabled = false;
    bool logBufferAllEnabled = false;
    bool logBufferErrorEnabled = true;
    QString logFileName;
    uint32_t streamingBufferCount = 8;
    uint32_t snapRecordBufferCount = 60;
    uint32_t streamingUrbNumberCount = 64;
    uint32_t streamingUrbSizeCount = 64;
    QString strDisplayValue = "30 FPS";
    int displayValue = 30;             // in memory only
    QString imageOneOutOf = "10";
    QString imageMaxRate = "100";
    QString imageAverageThroughPut = "1";
    int imageSaveThrottleOption = 1;
    QString imageSavePath;
    int imageSaveFormat = 0;
    bool displayChunkDataEnable = false;
    bool autoRefreshEnable = true;
    QString imageSavePreFix = "Pic";
    int imageSaveFileNameFormat = 0;
    int imageQualityLevel = 3;
    int imageQuality = 100;
    bool imageSaveOnePopDlg = false;
    bool setPersistentIP = true;
    bool isShowCrosshair = false;
    int RedCrosshair = 255;
    int BlueCrosshair = 0;
    int GreenCrosshair = 0;
    int BayerDemosaicing = 0;
    bool AcquisitionFPS = true;
    bool BandwidthMbps = true;
    bool ReceivedImages = true;
    bool LostBlocks = true;
    bool ErrorImages = true;
    QString RecordLocation;
    bool RecordPopDlg = false;
    QString videoFormat = "AVI";      // never written: the element always says "AVI"
    int VideoQualityLevel = 0;
    int VideoQuality = 30;
    int VideoNameFormat = 0;
    QString VideoPrefix = "Video";
    uint32_t PlaybackSpeed = 0;
    QString CustomFps = "20";
    QString RemoteIpAddr = "0.0.0.0";

    // Drawing ROIs (user file only).
    bool drawRoiEnable = false;
    bool displayRoiEnable = false;
    int roiRed = 255;
    int roiBlue = 0;
    int roiGreen = 0;
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
    void readRoiSection(QXmlStreamReader& reader);

    QString m_appHome;
    QString m_userCfgPath;
    QString m_defaultCfgPath;
    QString m_languageIniPath;
};
