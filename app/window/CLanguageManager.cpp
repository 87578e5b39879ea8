#include "CLanguageManager.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>
#include <QWidget>

#include "CConfiguration.h"
#include "StyleSheet.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
const char* const kEnglishFontSheet = "style_eng_font.qss";
const char* const kChineseFontSheet = "style_chn_font.qss";
} // namespace

CLanguageManager::CLanguageManager(const QString& baseStyleSheet, const QString& skinDir, QObject* parent)
    : QObject(parent)
    , m_baseStyleSheet(baseStyleSheet)
    , m_skinDir(skinDir)
{
    m_featureLanguage = CConfiguration::getInstance()->readFeatureLanguageSetting();
}

CLanguageManager::~CLanguageManager()
{
    removeTranslators();
}

QStringList CLanguageManager::embeddedTranslations()
{
    QStringList names;
    const QFileInfoList files = QDir(QStringLiteral(":/i18n")).entryInfoList({QStringLiteral("*.qm")}, QDir::Files,
                                                                            QDir::Name);
    for (const QFileInfo& file : files)
        names << file.completeBaseName();
    return names;
}

QString CLanguageManager::fontSheetPath(int language) const
{
    return m_skinDir + QLatin1Char('/')
           + QLatin1String(language == LanguageChinese ? kChineseFontSheet : kEnglishFontSheet);
}

void CLanguageManager::setLanguage(int language)
{
    if (language != LanguageChinese)
        language = LanguageEnglish;
    CConfiguration::getInstance()->writeLanguageSetting(language);
    apply(language);
}

void CLanguageManager::applyStoredLanguage()
{
    apply(CConfiguration::getInstance()->readLanguageSetting() == LanguageChinese ? LanguageChinese
                                                                                   : LanguageEnglish);
}

void CLanguageManager::setFeatureLanguage(int language)
{
    if (language == m_featureLanguage)
        return;
    m_featureLanguage = language;
    CConfiguration::getInstance()->writeFeatureLanguageSetting(language);
    emit featureLanguageChanged(language);
}

void CLanguageManager::apply(int language)
{
    if (language != m_language) {
        removeTranslators();
        if (language == LanguageChinese)
            installTranslators();
        m_language = language;
        // Qt announces a new translator only while the event loop runs, and
        // then by posted events; telling every window here makes the switch
        // complete before languageChanged() is emitted, in every case.
        QEvent change(QEvent::LanguageChange);
        for (QWidget* w : QApplication::topLevelWidgets())
            QCoreApplication::sendEvent(w, &change);
    }

    CStyleSheetText fontSheet;
    ::setStyleSheet<CStyleSheetText>(fontSheet, fontSheetPath(language));
    qApp->setStyleSheet(m_baseStyleSheet + QLatin1Char('\n') + fontSheet.text);
    emit languageChanged(language);
}

void CLanguageManager::removeTranslators()
{
    for (QTranslator* t : qAsConst(m_translators)) {
        QCoreApplication::removeTranslator(t);
        delete t;
    }
    m_translators.clear();
    m_installedNames.clear();
}

void CLanguageManager::installTranslators()
{
    // Qt's own texts (standard buttons, file dialogs) when the system has them.
    auto* qt = new QTranslator(this);
    if (qt->load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt);
        m_translators << qt;
    } else {
        LOG_WARN("Qt's own Chinese translation not found; standard dialogs stay in English");
        delete qt;
    }
    // Ours last, so they take precedence over Qt's.
    for (const QString& name : embeddedTranslations()) {
        auto* t = new QTranslator(this);
        if (!t->load(QStringLiteral(":/i18n/%1.qm").arg(name))) {
            LOG_ERROR("load translation failed. name: [%s]", name.toLocal8Bit().constData());
            delete t;
            continue;
        }
        QCoreApplication::installTranslator(t);
        m_translators << t;
        m_installedNames << name;
    }
}
