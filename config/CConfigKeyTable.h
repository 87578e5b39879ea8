#pragma once
// The keys of the configuration file in the order they are written: each
// key's element name, its built-in default as the file holds it, and how its
// field is written and read back. The one place the defaults live: init()
// applies them and the default file is written from the result.
#include <QString>
#include <QStringRef>

#include <vector>

class CConfiguration;

class CConfigKeyTable
{
public:
    struct Key
    {
        const char* name;
        // Below the application's home folder (home + application name + "/")
        // when inAppHome is set.
        const char* defaultText;
        bool inAppHome;
        QString (*write)(const CConfiguration& cfg);
        void (*read)(CConfiguration& cfg, const QString& text);

        QString defaultValue(const QString& appHome) const;
    };

    static const std::vector<Key>& keys();
    // Null for an element that is not a key.
    static const Key* find(const QStringRef& name);
    // Sets the field of every key to its default.
    static void applyDefaults(CConfiguration& cfg, const QString& appHome);

    // Bool keys and flags are written as "1" / "0" and read as "not 0".
    static QString boolText(bool value);
    static bool textToBool(const QString& text);
};
