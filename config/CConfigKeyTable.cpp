#include "CConfigKeyTable.h"

#include "CConfiguration.h"
#include "ConfigKeys.h"

namespace {

const char* const kVisibilityTexts[] = {"Beginner", "Expert", "Guru"};
const char* const kImageFormatTexts[] = {"Device independent bitmap(BMP)", "JPEG", "TIFF", "Raw binary data"};

using Key = CConfigKeyTable::Key;

#define KEY_NUMBER(key, field, def, convert)                                            \
    Key{key, def, false, [](const CConfiguration& c) { return QString::number(c.field); }, \
        [](CConfiguration& c, const QString& t) { c.field = t.convert(); }}
#define KEY_INT(key, field, def) KEY_NUMBER(key, field, def, toInt)
#define KEY_UINT(key, field, def) KEY_NUMBER(key, field, def, toUInt)
#define KEY_USHORT(key, field, def) KEY_NUMBER(key, field, def, toUShort)
#define KEY_BOOL(key, field, def)                                                                   \
    Key{key, def, false, [](const CConfiguration& c) { return CConfigKeyTable::boolText(c.field); }, \
        [](CConfiguration& c, const QString& t) { c.field = CConfigKeyTable::textToBool(t); }}
#define KEY_TEXT(key, field, def, inAppHome)                                     \
    Key{key, def, inAppHome, [](const CConfiguration& c) { return c.field; }, \
        [](CConfiguration& c, const QString& t) { c.field = t; }}
#define KEY_STRING(key, field, def) KEY_TEXT(key, field, def, false)
#define KEY_PATH(key, field, def) KEY_TEXT(key, field, def, true)

} // namespace

const std::vector<CConfigKeyTable::Key>& CConfigKeyTable::keys()
{
    static const std::vector<Key> table = {
        Key{CFG_DEVICE_CTRL_VISIBILITY, "Beginner", false,
            [](const CConfiguration& c) {
                const int v = (c.deviceCtrlVisibility == 0 || c.deviceCtrlVisibility == 1) ? c.deviceCtrlVisibility : 2;
                return QString::fromLatin1(kVisibilityTexts[v]);
            },
            [](CConfiguration& c, const QString& t) {
                c.deviceCtrlVisibility = t == QLatin1String(kVisibilityTexts[0]) ? 0
                                         : t == QLatin1String(kVisibilityTexts[1]) ? 1 : 2;
            }},
        KEY_USHORT(CFG_ANSWER_TIMEOUT, iAnswerTimeout, "1000"),
        KEY_USHORT(CFG_HEARTBEAT_IVAL, iHeartbeatIval, "1500"),
        KEY_UINT(CFG_INTER_PACKET_TIMEOUT, iInterPacketTimeout, "0"),
        KEY_UINT(CFG_SINGLE_RESEND_MAX_PACK_NUM, iSingleResendMaxPackNum, "65536"),
        KEY_UINT(CFG_MAXIMUM_LOST_PACKET_NUM, iMaximumLostPacketNum, "65536"),
        KEY_BOOL(CFG_LOG_GENICAM_ENABLED, logGenIcamEnabled, "1"),
        KEY_BOOL(CFG_LOG_EVENTS_ENABLED, logEventsEnabled, "0"),
        KEY_BOOL(CFG_LOG_BUFFER_ALL_ENABLED, logBufferAllEnabled, "0"),
        KEY_BOOL(CFG_LOG_BUFFER_ERROR_ENABLED, logBufferErrorEnabled, "1"),
        KEY_PATH(CFG_LOG_FILE_NAME, logFileName, "EventMonitor.txt"),
        KEY_UINT(CFG_STREAMING_BUFFER_COUNT, streamingBufferCount, "8"),
        KEY_UINT(CFG_SNAP_RECORD_BUFFER_COUNT, snapRecordBufferCount, "60"),
        KEY_UINT(CFG_STREAMING_URB_NUMBER_COUNT, streamingUrbNumberCount, "64"),
        KEY_UINT(CFG_STREAMING_URB_SIZE_COUNT, streamingUrbSizeCount, "64"),
        KEY_STRING(CFG_DISPLAY_VALUE, strDisplayValue, "30 FPS"),
        KEY_STRING(CFG_IMAGE_ONE_OUT_OF, imageOneOutOf, "10"),
        KEY_STRING(CFG_IMAGE_MAX_RATE, imageMaxRate, "100"),
        KEY_STRING(CFG_IMAGE_AVERAGE_THROUGHPUT, imageAverageThroughPut, "1"),
        KEY_INT(CFG_IMAGE_SAVE_THROTTLE_OPTION, imageSaveThrottleOption, "1"),
        KEY_PATH(CFG_IMAGE_SAVE_PATH, imageSavePath, "pictures"),
        Key{CFG_IMAGE_SAVE_FORMAT, kImageFormatTexts[0], false,
            [](const CConfiguration& c) {
                const int f = (c.imageSaveFormat >= 0 && c.imageSaveFormat <= 2) ? c.imageSaveFormat : 3;
                return QString::fromLatin1(kImageFormatTexts[f]);
            },
            [](CConfiguration& c, const QString& t) {
                int f = 3;
                for (int i = 0; i < 3; ++i) {
                    if (t == QLatin1String(kImageFormatTexts[i]))
                        f = i;
                }
                c.imageSaveFormat = f;
            }},
        KEY_BOOL(CFG_DISPLAY_CHUNK_DATA_ENABLE, displayChunkDataEnable, "0"),
        KEY_BOOL(CFG_AUTO_REFRESH_ENABLE, autoRefreshEnable, "1"),
        KEY_STRING(CFG_IMAGE_SAVE_PREFIX, imageSavePreFix, "Pic"),
        KEY_INT(CFG_IMAGE_SAVE_FILE_NAME_FORMAT, imageSaveFileNameFormat, "0"),
        KEY_INT(CFG_IMAGE_QUALITY_LEVEL, imageQualityLevel, "3"),
        KEY_INT(CFG_IMAGE_QUALITY, imageQuality, "100"),
        KEY_BOOL(CFG_IMAGE_SAVE_ONE_POP_DLG, imageSaveOnePopDlg, "0"),
        KEY_BOOL(CFG_SET_PERSISTENT_IP, setPersistentIP, "1"),
        KEY_BOOL(CFG_IS_SHOW_CROSSHAIR, isShowCrosshair, "0"),
        KEY_INT(CFG_RED_CROSSHAIR, RedCrosshair, "255"),
        KEY_INT(CFG_BLUE_CROSSHAIR, BlueCrosshair, "0"),
        KEY_INT(CFG_GREEN_CROSSHAIR, GreenCrosshair, "0"),
        KEY_INT(CFG_BAYER_DEMOSAICING, BayerDemosaicing, "0"),
        KEY_BOOL("AcquisitionFPS", AcquisitionFPS, "1"),
        KEY_BOOL("BandwidthMbps", BandwidthMbps, "1"),
        KEY_BOOL("ReceivedImages", ReceivedImages, "1"),
        KEY_BOOL("LostBlocks", LostBlocks, "1"),
        KEY_BOOL("ErrorImages", ErrorImages, "1"),
        KEY_PATH(CFG_RECORD_LOCATION, RecordLocation, "videos"),
        KEY_BOOL(CFG_RECORD_POP_DLG, RecordPopDlg, "0"),
        // The container element always says "AVI"; the format field is not written.
        Key{CFG_AVI, CFG_AVI, false, [](const CConfiguration&) { return QStringLiteral(CFG_AVI); },
            [](CConfiguration& c, const QString& t) { c.videoFormat = t; }},
        KEY_INT(CFG_VIDEO_QUALITY_LEVEL, VideoQualityLevel, "0"),
        KEY_INT(CFG_VIDEO_QUALITY, VideoQuality, "30"),
        KEY_INT(CFG_VIDEO_NAME_FORMAT, VideoNameFormat, "0"),
        KEY_STRING(CFG_VIDEO_PREFIX, VideoPrefix, "Video"),
        KEY_UINT(CFG_PLAYBACK_SPEED, PlaybackSpeed, "0"),
        KEY_STRING(CFG_CUSTOM_FPS, CustomFps, "20"),
        KEY_STRING(CFG_REMOTE_IP_ADDR, RemoteIpAddr, "0.0.0.0"),
    };
    return table;
}

QString CConfigKeyTable::Key::defaultValue(const QString& appHome) const
{
    const QString text = QString::fromLatin1(defaultText);
    return inAppHome ? appHome + text : text;
}

const CConfigKeyTable::Key* CConfigKeyTable::find(const QStringRef& name)
{
    for (const Key& key : keys()) {
        if (name == QLatin1String(key.name))
            return &key;
    }
    return nullptr;
}

void CConfigKeyTable::applyDefaults(CConfiguration& cfg, const QString& appHome)
{
    for (const Key& key : keys())
        key.read(cfg, key.defaultValue(appHome));
}

QString CConfigKeyTable::boolText(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

bool CConfigKeyTable::textToBool(const QString& text)
{
    return text.toInt() != 0;
}
