#include "CConfiguration.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaType>
#include <QMutex>
#include <QSettings>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "CAtomicFileWriter.h"
#include "CConfigKeyTable.h"
#include "CConfigXml.h"
#include "CSingletonSlot.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {

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
    CConfigKeyTable::applyDefaults(*this, m_appHome);
    displayValue = 30;

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
    m_lastSaveError.clear();
    m_lastSavePath = path;
    if (!path.isEmpty())
        createConfigDir(path);

    QBuffer buffer;
    if (!buffer.open(QIODevice::ReadWrite)) {
        m_lastSaveError = buffer.errorString();
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "open config file buffer failed.");
        return false;
    }
    CConfigXml::writeDocument(*this, buffer);

    // Replaced whole or not at all: a full disk or a crash leaves the
    // previous file as it was.
    CAtomicFileWriter file(path);
    if (!file.open()) {
        m_lastSaveError = file.errorString();
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "open file error. path: [%s]", path.toLocal8Bit().constData());
        return false;
    }
    if (!file.write(buffer.data()) || !file.commit()) {
        m_lastSaveError = file.errorString();
        TAVLOG_SRC(TAVLOG_LEVEL_ERROR, "Preferences", "write config file failed, previous file kept. path: [%s] [%s]",
                   path.toLocal8Bit().constData(), m_lastSaveError.toLocal8Bit().constData());
        return false;
    }
    return true;
}

void CConfiguration::saveConfig(QXmlStreamWriter& writer)
{
    CConfigXml::writeContent(*this, writer);
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
    return file.open(QIODevice::ReadOnly) && CConfigXml::hasAppElement(file);
}

bool CConfiguration::restoreConfig(const QString& path, bool withRoi)
{
    if (!isRegularFile(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return CConfigXml::read(*this, file, hasLumidorElement(path), withRoi);
}

QString CConfiguration::saveFailedMessage(const QString& text) const
{
    if (m_lastSaveError.isEmpty())
        return text;
    return QStringLiteral("%1\n%2: %3").arg(text, QDir::toNativeSeparators(m_lastSavePath), m_lastSaveError);
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
    setAndAnnounce(iAnswerTimeout, ms, &CConfiguration::signalAnswerTimeoutChanged);
}

void CConfiguration::setHeartbeatInterval(uint16_t ms)
{
    setAndAnnounce(iHeartbeatIval, ms, &CConfiguration::signalHeartbeatIntervalChanged);
}

void CConfiguration::setInterPacketTimeout(uint32_t ms)
{
    setAndAnnounce(iInterPacketTimeout, ms, &CConfiguration::signalInterPacketTimeoutChanged);
}

void CConfiguration::setSingleResendMaxPackNum(uint32_t n)
{
    setAndAnnounce(iSingleResendMaxPackNum, n, &CConfiguration::signalSingleResendMaxPackNumChanged);
}

void CConfiguration::setMaximumLostPacketNum(uint32_t n)
{
    setAndAnnounce(iMaximumLostPacketNum, n, &CConfiguration::signalMaximumLostPacketNumChanged);
}

void CConfiguration::setVisibility(int level)
{
    setAndAnnounce(deviceCtrlVisibility, level, &CConfiguration::signalVisibilityChanged);
}
