#pragma once
// Logging facade over log4cpp: one category, printf-style messages.

namespace log4cpp { class Category; }

namespace Tavlog4cpp {

class CTavLog
{
public:
    // Configures log4cpp from a properties file, replacing (and freeing) the
    // appenders of the configuration in force. False when the file is
    // missing, unreadable or names an unknown category level or appender
    // (nothing is changed then), or when log4cpp refuses it half-way (the
    // built-in configuration is in force then).
    static bool LoadConfig(const char* path);
    // Built-in configuration, replacing any other: the category writes to
    // standard error.
    static void LoadDefault();
    // The category all of the application logs to.
    static log4cpp::Category* Logger_vintrel();
    // priority: log4cpp numeric level (300 error, 400 warning, 700 debug).
    static void Log(log4cpp::Category* logger, int priority, const char* format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 3, 4)))
#endif
        ;
};

} // namespace Tavlog4cpp
