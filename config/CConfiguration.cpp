#include "CConfiguration.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QSaveFile>
#include <QSettings>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <functional>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "CSingletonSlot.h"
#include "ConfigKeys.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {

const char* const kVisibilityTexts[] = {"Beginner", "Expert", "Guru"};
const char* const kImageFormatTexts[] = {"Device independent bitmap(BMP)", "JPEG", "TIFF", "Raw binary data"};

QString boolText(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

bool textToBool(const QString& text)
{
    return text.toInt() != 0;
}

// One key of the file: how its field is written and read back.
struct KeyEntry
{
    const char* name;
    std::function<QString(const CConfiguration&)> write;
    std::function<void(CConfiguration&, const QString&)> read;
};

#define KEY_INT(key, field)                                                        \
    KeyEntry{key, [](const CConfiguration& c) { return QString::number(c.field); }, \
             [](CConfiguration& c, const QString& t) { c.field = t.toInt(); }}
#define KEY_UINT(key, field)                                                       \
    KeyEntry{key, [](const CConfiguration& c) { return QString::number(c.field); }, \
             [](CConfiguration& c, const QString& t) { c.field = t.toUInt(); }}
#define KEY_USHORT(key, field)                                                     \
    KeyEntry{key, [](const CConfiguration& c) { return QString::number(c.field); }, \
             [](CConfiguration& c, const QString& t) { c.field = t.toUShort(); }}
#define KEY_BOOL(key, field)                                                       \
    KeyEntry{key, [](const CConfiguration& c) { return boolText(c.field); },        \
             [](CConfiguration& c, const QString& t) { c.field = textToBool(t); }}
#define KEY_STRING(key, field)                                                     \
    KeyEntry{key, [](const CConfiguration& c) { return c.field; },                  \
             [](CConfiguration& c, const QString& t) { c.field = t; }}

// In the order of the file.
const std::vector<KeyEntry>& keyTable()
{
    static const std::vector<KeyEntry> table = {
        KeyEntry{CFG_DEVICE_CTRL_VISIBILITY,
                 [](const CConfiguration& c) {
                     const int v = (c.deviceCtrlVisibility == 0 || c.deviceCtrlVisibility == 1) ? c.deviceCtrlVisibility : 2;
                     return QString::fromLatin1(kVisibilityTexts[v]);
                 },
                 [](CConfiguration& c, const QString& t) {
                     c.deviceCtrlVisibility = t == QLatin1String(kVisibilityTexts[0]) ? 0
                                              : t == QLatin1String(kVisibilityTexts[1]) ? 1 : 2;
                 }},
        KEY_USHORT(CFG_ANSWER_TIMEOUT, iAnswerTimeout),
        KEY_USHORT(CFG_HEARTBEAT_IVAL, iHeartbeatIval),
        KEY_UINT(CFG_INTER_PACKET_TIMEOUT, iInterPacketTimeout),
        KEY_UINT(CFG_SINGLE_RESEND_MAX_PACK_NUM, iSingleResendMaxPackNum),
        KEY_UINT(CFG_MAXIMUM_LOST_PACKET_NUM, iMaximumLostPacketNum),
        KEY_BOOL(CFG_LOG_GENICAM_ENABLED, logGenIcamEnabled),
        KEY_BOOL(CFG_LOG_EVENTS_ENABLED, logEventsEnabled),
        KEY_BOOL(CFG_LOG_BUFFER_ALL_ENABLED, logBufferAllEnabled),
        KEY_BOOL(CFG_LOG_BUFFER_ERROR_ENABLED, logBufferErrorEnabled),
        KEY_STRING(CFG_LOG_FILE_NAME, logFileName),
        KEY_UINT(CFG_STREAMING_BUFFER_COUNT, streamingBufferCount),
        KEY_UINT(CFG_SNAP_RECORD_BUFFER_COUNT, snapRecordBufferCount),
        KEY_UINT(CFG_STREAMING_URB_NUMBER_COUNT, streamingUrbNumberCount),
        KEY_UINT(CFG_STREAMING_URB_SIZE_COUNT, streamingUrbSizeCount),
        KEY_STRING(CFG_DISPLAY_VALUE, strDisplayValue),
        KEY_STRING(CFG_IMAGE_ONE_OUT_OF, imageOneOutOf),
        KEY_STRING(CFG_IMAGE_MAX_RATE, imageMaxRate),
        KEY_STRING(CFG_IMAGE_AVERAGE_THROUGHPUT, imageAverageThroughPut),
        KEY_INT(CFG_IMAGE_SAVE_THROTTLE_OPTION, imageSaveThrottleOption),
        KEY_STRING(CFG_IMAGE_SAVE_PATH, imageSavePath),
        KeyEntry{CFG_IMAGE_SAVE_FORMAT,
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
        KEY_BOOL(CFG_DISPLAY_CHUNK_DATA_ENABLE, displayChunkDataEnable),
        KEY_BOOL(CFG_AUTO_REFRESH_ENABLE, autoRefreshEnable),
        KEY_STRING(CFG_IMAGE_SAVE_PREFIX, imageSavePreFix),
        KEY_INT(CFG_IMAGE_SAVE_FILE_NAME_FORMAT, imageSaveFileNameFormat),
        KEY_INT(CFG_IMAGE_QUALITY_LEVEL, imageQualityLevel),
        KEY_INT(CFG_IMAGE_QUALITY, imageQuality),
        KEY_BOOL(CFG_IMAGE_SAVE_ONE_POP_DLG, imageSaveOnePopDlg),
        KEY_BOOL(CFG_SET_PERSISTENT_IP, setPersistentIP),
        KEY_BOOL(CFG_IS_SHOW_CROSSHAIR, isShowCrosshair),
        KEY_INT(CFG_RED_CROSSHAIR, RedCrosshair),
        KEY_INT(CFG_BLUE_CROSSHAIR, BlueCrosshair),
        KEY_INT(CFG_GREEN_CROSSHAIR, GreenCrosshair),
        KEY_INT(CFG_BAYER_DEMOSAICING, BayerDemosaicing),
        KEY_BOOL("AcquisitionFPS", AcquisitionFPS),
        KEY_BOOL("BandwidthMbps", BandwidthMbps),
        KEY_BOOL("ReceivedImages", ReceivedImages),
        KEY_BOOL("LostBlocks", LostBlocks),
        KEY_BOOL("ErrorImages", ErrorImages),
        KEY_STRING(CFG_RECORD_LOCATION, RecordLocation),
        KEY_BOOL(CFG_RECORD_POP_DLG, RecordPopDlg),
        // The container element always says "AVI"; the format field is not written.
        KeyEntry{CFG_AVI, [](const CConfiguration&) { return QStringLiteral(CFG_AVI); },
                 [](CConfiguration& c, const QString& t) { c.videoFormat = t; }},
        KEY_INT(CFG_VIDEO_QUALITY_LEVEL, VideoQualityLevel),
        KEY_INT(CFG_VIDEO_QUALITY, VideoQuality),
        KEY_INT(CFG_VIDEO_NAME_FORMAT, VideoNameFormat),
        KEY_STRING(CFG_VIDEO_PREFIX, VideoPrefix),
        KEY_UINT(CFG_PLAYBACK_SPEED, PlaybackSpeed),
        KEY_STRING(CFG_CUSTOM_FPS, CustomFps),
        KEY_STRING(CFG_REMOTE_IP_ADDR, RemoteIpAddr),
    };
    return table;
}

#undef KEY_INT
#undef KEY_UINT
#undef KEY_USHORT
#undef KEY_BOOL
#undef KEY_STRING

const KeyEntry* findKey(const QStringRef& name)
{
    for (const KeyEntry& entry : keyTable()) {
        if (name == QLatin1String(entry.name))
            return &entry;
    }
    return nullptr;
}

QString homeDirectory()
{
    QString home = qEnvironmentVariable("LUMIDOR_HOME");
    if (home.isEmpty()) {
        const struct passwd* pw = getpwuid(getuid());
        if (pw && pw->pw_dir)
            home = QString::fromLocal8Bit(pw->pw_dir);
    }
    if (!home.endsWith(QLatin1Char('/')))
        home += QLatin1Char('/');
    return home;
}

} // namespace

CConfiguration* CConfiguration::getInstance()
{
    CConfiguration* instance = CSingletonSlot<CConfiguration>::instance([]() { return new CConfiguration(); });
    if (!instance)
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "configuration asked for outside the application's lifetime.");
    return instance;
}

CConfiguration::CConfiguration()
    : QObject(nullptr)
{
    // The change signals spell their arguments uint16_t / uint32_t; queued
    // connections look types up by that spelling.
    qRegisterMetaType<uint16_t>("uint16_t");
    qRegisterMetaType<uint32_t>("uint32_t");

    QString app = QCoreApplication::applicationName();
    if (app.isEmpty())
        app = QStringLiteral("Lumidor");
    m_appHome = homeDirectory() + app + QStringLiteral("/");
    const QString cfgDir = m_appHome + QStringLiteral("cfg/app/");
    m_userCfgPath = cfgDir + app + QStringLiteral(".tavcfg");
    m_defaultCfgPath = cfgDir + app + QStringLiteral("Default.tavcfg");
    m_languageIniPath = cfgDir + QStringLiteral("language.ini");

    init();
    // The default copy always reflects the built-in defaults of this version.
    saveConfig(m_defaultCfgPath);
    restoreConfig(m_userCfgPath, true);
}

void CConfiguration::init()
{
    deviceCtrlVisibility = 0;
    iAnswerTimeout = 1000;
    iHeartbeatIval = 1500;
    iInterPacketTimeout = 0;
    iSingleResendMaxPackNum = 65536;
    iMaximumLostPacketNum = 65536;
    logGenIcamEnabled = true;
    logEventsEnabled = false;
    logBufferAllEnabled = false;
    logBufferErrorEnabled = true;
    logFileName = m_appHome + QStringLiteral("EventMonitor.txt");
    streamingBufferCount = 8;
    snapRecordBufferCount = 60;
    streamingUrbNumberCount = 64;
    streamingUrbSizeCount = 64;
    strDisplayValue = QStringLiteral("30 FPS");
    displayValue = 30;
    imageOneOutOf = QStringLiteral("10");
    imageMaxRate = QStringLiteral("100");
    imageAverageThroughPut = QStringLiteral("1");
    imageSaveThrottleOption = 1;
    imageSavePath = m_appHome + QStringLiteral("pictures");
    imageSaveFormat = 0;
    displayChunkDataEnable = false;
    autoRefreshEnable = true;
    imageSavePreFix = QStringLiteral("Pic");
    imageSaveFileNameFormat = 0;
    imageQualityLevel = 3;
    imageQuality = 100;
    imageSaveOnePopDlg = false;
    setPersistentIP = true;
    isShowCrosshair = false;
    RedCrosshair = 255;
    BlueCrosshair = 0;
    GreenCrosshair = 0;
    BayerDemosaicing = 0;
    AcquisitionFPS = true;
    BandwidthMbps = true;
    ReceivedImages = true;
    LostBlocks = true;
    ErrorImages = true;
    RecordLocation = m_appHome + QStringLiteral("videos");
    RecordPopDlg = false;
    videoFormat = QStringLiteral("AVI");
    VideoQualityLevel = 0;
    VideoQuality = 30;
    VideoNameFormat = 0;
    VideoPrefix = QStringLiteral("Video");
    PlaybackSpeed = 0;
    CustomFps = QStringLiteral("20");
    RemoteIpAddr = QStringLiteral("0.0.0.0");

    drawRoiEnable = false;
    displayRoiEnable = false;
    roiRed = 255;
    roiBlue = 0;
    roiGreen = 0;
    mapVideoFormROI.clear();
    for (int i = 0; i < kVideoFormCount; ++i)
        mapVideoFormROI.insert(i, QList<stuROI>());
}

void CConfiguration::createConfigDir(const QString& path)
{
    const QDir dir = QFileInfo(path).absoluteDir();
    if (!dir.exists())
        QDir().mkpath(dir.absolutePath());
}

bool CConfiguration::saveConfig(const QString& path)
{
    if (!path.isEmpty())
        createConfigDir(path);

    QBuffer buffer;
    if (!buffer.open(QIODevice::ReadWrite)) {
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "open config file buffer failed.");
        return false;
    }
    QXmlStreamWriter writer(&buffer);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral(CFG_ROOT_ELEMENT));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    writer.writeStartElement(QStringLiteral(CFG_APP_ELEMENT));
    saveConfig(writer);
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();

    // Written beside the file and renamed over it only when complete: a full
    // disk or a crash leaves the previous file as it was.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "open file error. path: [%s]", path.toLocal8Bit().constData());
        return false;
    }
    const QByteArray& bytes = buffer.data();
    if (file.write(bytes) != bytes.size()) {
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "write config file failed, previous file kept. path: [%s] [%s]",
                   path.toLocal8Bit().constData(), file.errorString().toLocal8Bit().constData());
        file.cancelWriting();
        file.commit();
        return false;
    }
    if (!file.commit()) {
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "write config file failed, previous file kept. path: [%s] [%s]",
                   path.toLocal8Bit().constData(), file.errorString().toLocal8Bit().constData());
        return false;
    }
    return true;
}

void CConfiguration::saveConfig(QXmlStreamWriter& writer)
{
    for (const KeyEntry& entry : keyTable())
        writer.writeTextElement(QLatin1String(entry.name), entry.write(*this));

    writer.writeStartElement(QStringLiteral(CFG_DRAW_ROI));
    writer.writeTextElement(QStringLiteral(CFG_ROI_ENABLE), boolText(drawRoiEnable));
    writer.writeTextElement(QStringLiteral(CFG_ROI_DISPLAY_ENABLE), boolText(displayRoiEnable));
    writer.writeTextElement(QStringLiteral(CFG_RED_ROI), QString::number(roiRed));
    writer.writeTextElement(QStringLiteral(CFG_BLUE_ROI), QString::number(roiBlue));
    writer.writeTextElement(QStringLiteral(CFG_GREEN_ROI), QString::number(roiGreen));
    for (auto it = mapVideoFormROI.constBegin(); it != mapVideoFormROI.constEnd(); ++it) {
        writer.writeStartElement(QStringLiteral(CFG_VIDEO_FORM));
        writer.writeAttribute(QStringLiteral(CFG_VIDEO_FORM_INDEX), QString::number(it.key()));
        for (const stuROI& roi : it.value()) {
            writer.writeStartElement(QStringLiteral(CFG_ROI));
            writer.writeTextElement(QStringLiteral(CFG_ROI_LEFT), QString::number(roi.Left));
            writer.writeTextElement(QStringLiteral(CFG_ROI_TOP), QString::number(roi.Top));
            writer.writeTextElement(QStringLiteral(CFG_ROI_WIDTH), QString::number(roi.Width));
            writer.writeTextElement(QStringLiteral(CFG_ROI_HEIGHT), QString::number(roi.Height));
            writer.writeTextElement(QStringLiteral(CFG_RED_ROI), QString::number(roi.RedROI));
            writer.writeTextElement(QStringLiteral(CFG_BLUE_ROI), QString::number(roi.BlueROI));
            writer.writeTextElement(QStringLiteral(CFG_GREEN_ROI), QString::number(roi.GreenROI));
            writer.writeEndElement();
        }
        writer.writeEndElement();
    }
    writer.writeEndElement();
}

bool CConfiguration::isRegularFile(const QString& path)
{
    struct stat st;
    const QByteArray name = QFile::encodeName(path);
    if (::stat(name.constData(), &st) != 0)
        return false;   // missing: nothing to ignore, nothing to read
    if (S_ISREG(st.st_mode))
        return true;
    // Opening a FIFO or a device for reading can block for ever.
    TAVLOG_SRC(TAVLOG_LEVEL_WARN, "Preferences", "not a regular file, ignored. path: [%s]", name.constData());
    return false;
}

bool CConfiguration::hasLumidorElement(const QString& path)
{
    if (!isRegularFile(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(CFG_APP_ELEMENT))
            return true;
    }
    return false;
}

bool CConfiguration::restoreConfig(const QString& path, bool withRoi)
{
    if (!isRegularFile(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;

    const bool hasAppElement = hasLumidorElement(path);
    QXmlStreamReader reader(&file);
    if (hasAppElement) {
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(CFG_APP_ELEMENT))
                break;
        }
    }

    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringRef name = reader.name();
        if (name == QLatin1String(CFG_ROOT_ELEMENT) || name == QLatin1String(CFG_DEVICE_ELEMENT))
            continue;
        if (name == QLatin1String(CFG_DRAW_ROI)) {
            if (withRoi)
                readRoiSection(reader);
            else
                reader.skipCurrentElement();
            continue;
        }
        if (name == QLatin1String(CFG_VIDEO_FORMAT)) {
            // An element of older files; it always meant the BMP format.
            imageSaveFormat = 0;
            continue;
        }
        if (const KeyEntry* entry = findKey(name)) {
            const QString text = reader.readElementText();
            if (reader.hasError())
                break;
            entry->read(*this, text);
        }
        // Other elements are not ours; their children are still looked at.
    }
    return !reader.hasError();
}

void CConfiguration::readRoiSection(QXmlStreamReader& reader)
{
    auto readInt = [&reader](bool& ok) {
        const QString text = reader.readElementText();
        ok = !reader.hasError();
        return text.toLongLong();
    };
    bool ok = false;
    while (reader.readNextStartElement()) {
        const QStringRef name = reader.name();
        if (name == QLatin1String(CFG_ROI_ENABLE)) {
            const bool v = readInt(ok) != 0;
            if (ok)
                drawRoiEnable = v;
        } else if (name == QLatin1String(CFG_ROI_DISPLAY_ENABLE)) {
            const bool v = readInt(ok) != 0;
            if (ok)
                displayRoiEnable = v;
        } else if (name == QLatin1String(CFG_RED_ROI)) {
            const int v = int(readInt(ok));
            if (ok)
                roiRed = v;
        } else if (name == QLatin1String(CFG_BLUE_ROI)) {
            const int v = int(readInt(ok));
            if (ok)
                roiBlue = v;
        } else if (name == QLatin1String(CFG_GREEN_ROI)) {
            const int v = int(readInt(ok));
            if (ok)
                roiGreen = v;
        } else if (name == QLatin1String(CFG_VIDEO_FORM)) {
            bool indexOk = false;
            const int index = reader.attributes().value(QLatin1String(CFG_VIDEO_FORM_INDEX)).toInt(&indexOk);
            const bool known = indexOk && index >= 0 && index < kVideoFormCount;
            while (reader.readNextStartElement()) {
                if (reader.name() != QLatin1String(CFG_ROI)) {
                    reader.skipCurrentElement();
                    continue;
                }
                stuROI roi;
                while (reader.readNextStartElement()) {
                    const QStringRef field = reader.name();
                    const qint64 v = readInt(ok);
                    if (!ok)
                        break;
                    if (field == QLatin1String(CFG_ROI_LEFT))
                        roi.Left = v;
                    else if (field == QLatin1String(CFG_ROI_TOP))
                        roi.Top = v;
                    else if (field == QLatin1String(CFG_ROI_WIDTH))
                        roi.Width = v;
                    else if (field == QLatin1String(CFG_ROI_HEIGHT))
                        roi.Height = v;
                    else if (field == QLatin1String(CFG_RED_ROI))
                        roi.RedROI = int(v);
                    else if (field == QLatin1String(CFG_BLUE_ROI))
                        roi.BlueROI = int(v);
                    else if (field == QLatin1String(CFG_GREEN_ROI))
                        roi.GreenROI = int(v);
                }
                // A region cut off by a damaged file is not taken.
                if (reader.hasError())
                    return;
                if (known)
                    mapVideoFormROI[index].append(roi);
            }
        } else {
            reader.skipCurrentElement();
        }
        if (reader.hasError())
            return;
    }
}

bool CConfiguration::saveConfigToUserXml()
{
    return saveConfig(m_userCfgPath);
}

int CConfiguration::readLanguageSetting()
{
    if (QFileInfo::exists(m_languageIniPath) && !isRegularFile(m_languageIniPath))
        return 0;
    QSettings settings(m_languageIniPath, QSettings::IniFormat);
    return settings.value(QStringLiteral("language/lang"), 0).toInt();
}

void CConfiguration::writeLanguageSetting(int lang)
{
    QSettings settings(m_languageIniPath, QSettings::IniFormat);
    settings.setValue(QStringLiteral("language/lang"), lang);
    settings.sync();
}

int CConfiguration::readFeatureLanguageSetting()
{
    if (QFileInfo::exists(m_languageIniPath) && !isRegularFile(m_languageIniPath))
        return 1;
    QSettings settings(m_languageIniPath, QSettings::IniFormat);
    // A fresh installation shows translated feature names.
    if (!settings.contains(QStringLiteral("language/featurelang")))
        return 1;
    return settings.value(QStringLiteral("language/featurelang")).toInt();
}

void CConfiguration::writeFeatureLanguageSetting(int lang)
{
    QSettings settings(m_languageIniPath, QSettings::IniFormat);
    settings.setValue(QStringLiteral("language/featurelang"), lang);
    settings.sync();
}

void CConfiguration::setAnswerTimeout(uint16_t ms)
{
    if (iAnswerTimeout == ms)
        return;
    iAnswerTimeout = ms;
    emit signalAnswerTimeoutChanged(ms);
}

void CConfiguration::setHeartbeatInterval(uint16_t ms)
{
    if (iHeartbeatIval == ms)
        return;
    iHeartbeatIval = ms;
    emit signalHeartbeatIntervalChanged(ms);
}

void CConfiguration::setInterPacketTimeout(uint32_t ms)
{
    if (iInterPacketTimeout == ms)
        return;
    iInterPacketTimeout = ms;
    emit signalInterPacketTimeoutChanged(ms);
}

void CConfiguration::setSingleResendMaxPackNum(uint32_t n)
{
    if (iSingleResendMaxPackNum == n)
        return;
    iSingleResendMaxPackNum = n;
    emit signalSingleResendMaxPackNumChanged(n);
}

void CConfiguration::setMaximumLostPacketNum(uint32_t n)
{
    if (iMaximumLostPacketNum == n)
        return;
    iMaximumLostPacketNum = n;
    emit signalMaximumLostPacketNumChanged(n);
}

void CConfiguration::setVisibility(int level)
{
    if (deviceCtrlVisibility == level)
        return;
    deviceCtrlVisibility = level;
    emit signalVisibilityChanged(level);
}
