#pragma once
// Interface language of the whole application. Simplified Chinese installs a
// translator for every compiled translation embedded under ":/i18n/" (one per
// folder of the source tree) plus Qt's own; English removes them all. Every
// widget then receives QEvent::LanguageChange and retranslates itself. The
// font sheet of the language is applied over the main style sheet, and the
// choice is kept in language.ini through the configuration.
// The feature-name language (translated or original GenICam names in the
// feature panel) is a separate, independent choice kept in the same file.
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QTranslator;

class CLanguageManager : public QObject
{
    Q_OBJECT
public:
    enum ELanguage
    {
        LanguageEnglish = 0,
        LanguageChinese = 1
    };

    // baseStyleSheet: the application's main sheet, to which the font sheet
    // of the language is appended; skinDir holds the font sheets.
    explicit CLanguageManager(const QString& baseStyleSheet,
                              const QString& skinDir = QStringLiteral("Skins/Default/Vintrel"),
                              QObject* parent = nullptr);
    ~CLanguageManager() override;

    int language() const { return m_language; }
    int featureLanguage() const { return m_featureLanguage; }

    // Names of the translations (":/i18n/<name>.qm") currently installed.
    QStringList installedTranslations() const { return m_installedNames; }
    // Every translation embedded in the program.
    static QStringList embeddedTranslations();
    // Path of the font sheet for a language.
    QString fontSheetPath(int language) const;

public slots:
    // Applies the language to every window at once and stores it.
    void setLanguage(int language);
    // Applies the language read from language.ini, without writing it back.
    void applyStoredLanguage();
    void setFeatureLanguage(int language);

signals:
    // After the translators are installed and the font sheet applied.
    void languageChanged(int language);
    void featureLanguageChanged(int language);

private:
    void apply(int language);
    void removeTranslators();
    void installTranslators();

    QString m_baseStyleSheet;
    QString m_skinDir;
    int m_language = -1;
    int m_featureLanguage = 1;
    QList<QTranslator*> m_translators;
    QStringList m_installedNames;
};
