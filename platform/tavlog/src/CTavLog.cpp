#include "Tavlog4cpp/CTavLog.h"
#include "Tavlog4cpp/TavLogMacros.h"

#include <log4cpp/Appender.hh>
#include <log4cpp/Category.hh>
#include <log4cpp/OstreamAppender.hh>
#include <log4cpp/PatternLayout.hh>
#include <log4cpp/Priority.hh>
#include <log4cpp/PropertyConfigurator.hh>

#include <cstdarg>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tavlog4cpp {

namespace {

const char* const kCategoryName = "vintrel";

// Serialises every log call against (re)configuration, so a line is never
// written through an appender that is being replaced.
std::mutex& logMutex()
{
    static std::mutex m;
    return m;
}

std::string trim(const std::string& s)
{
    const char* ws = " \t\r\n";
    const std::string::size_type b = s.find_first_not_of(ws);
    if (b == std::string::npos)
        return std::string();
    const std::string::size_type e = s.find_last_not_of(ws);
    return s.substr(b, e - b + 1);
}

std::vector<std::string> splitList(const std::string& s)
{
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    while (true) {
        const std::string::size_type comma = s.find(',', start);
        parts.push_back(trim(s.substr(start, comma == std::string::npos ? std::string::npos : comma - start)));
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    return parts;
}

// Reads "key = value" lines the way log4cpp does: '#' starts a comment and a
// leading "log4cpp." or "log4j." is dropped from the key.
std::map<std::string, std::string> parseProperties(std::istream& in)
{
    std::map<std::string, std::string> props;
    std::string line;
    while (std::getline(in, line)) {
        const std::string::size_type hash = line.find('#');
        if (hash != std::string::npos)
            line.erase(hash);
        const std::string::size_type eq = line.find('=');
        if (eq == std::string::npos)
            continue;
        std::string key = trim(line.substr(0, eq));
        const std::string value = trim(line.substr(eq + 1));
        for (const char* prefix : {"log4cpp.", "log4j."}) {
            const std::string p(prefix);
            if (key.compare(0, p.size(), p) == 0) {
                key.erase(0, p.size());
                break;
            }
        }
        if (!key.empty())
            props[key] = value;
    }
    return props;
}

bool validPriority(const std::string& name)
{
    try {
        log4cpp::Priority::getPriorityValue(name);
        return true;
    } catch (...) {
        return false;
    }
}

// Checks the category lines before log4cpp applies them: log4cpp changes the
// root category first and throws on a later bad category, which would leave
// the logging half reconfigured.
bool categoriesAreValid(const std::map<std::string, std::string>& props)
{
    auto root = props.find("rootCategory");
    if (root == props.end())
        return false;
    for (const auto& kv : props) {
        const bool isRoot = kv.first == "rootCategory";
        if (!isRoot && kv.first.compare(0, 9, "category.") != 0)
            continue;
        const std::vector<std::string> items = splitList(kv.second);
        const std::string& priority = items.front();
        if (priority.empty() ? isRoot : !validPriority(priority))
            return false;
        for (size_t i = 1; i < items.size(); ++i) {
            if (items[i].empty() || props.find("appender." + items[i]) == props.end())
                return false;
        }
    }
    return true;
}

// Names of the appenders a properties file defines ("appender.<name>").
std::set<std::string> appenderNames(const std::map<std::string, std::string>& props)
{
    std::set<std::string> names;
    const std::string prefix = "appender.";
    for (const auto& kv : props) {
        if (kv.first.compare(0, prefix.size(), prefix) != 0)
            continue;
        const std::string name = kv.first.substr(prefix.size());
        if (!name.empty() && name.find('.') == std::string::npos)
            names.insert(name);
    }
    return names;
}

// Appenders of the configuration in force, by name, so that loading another
// one can delete them: log4cpp keeps appenders in a registry by name, and a
// new appender of the same name silently takes the old one's place there,
// leaving the old one owned by nobody.
std::set<std::string>& configuredAppenderNames()
{
    static std::set<std::string> names;
    return names;
}

// Detaches every appender from every category and deletes it, together with
// the appenders of the previous configuration and any appender already
// registered under a name the next configuration uses. Called under
// logMutex(), so no line is being written meanwhile.
void dropAllAppenders(const std::set<std::string>& nextNames)
{
    std::set<log4cpp::Appender*> all;
    std::set<log4cpp::Appender*> owned;
    std::unique_ptr<std::vector<log4cpp::Category*>> categories(log4cpp::Category::getCurrentCategories());
    for (log4cpp::Category* category : *categories) {
        for (log4cpp::Appender* appender : category->getAllAppenders()) {
            all.insert(appender);
            if (category->ownsAppender(appender))
                owned.insert(appender);
        }
    }
    std::set<std::string> names = configuredAppenderNames();
    names.insert(nextNames.begin(), nextNames.end());
    for (const std::string& name : names) {
        if (log4cpp::Appender* appender = log4cpp::Appender::getAppender(name))
            all.insert(appender);
    }
    // Owned appenders are deleted by their category; the rest here.
    for (log4cpp::Category* category : *categories)
        category->removeAllAppenders();
    for (log4cpp::Appender* appender : all) {
        if (owned.count(appender) == 0)
            delete appender;
    }
    configuredAppenderNames().clear();
}

// The built-in configuration: the application's category writes to
// standard error. Called under logMutex().
void installDefault()
{
    auto* layout = new log4cpp::PatternLayout();
    layout->setConversionPattern("%d{%Y-%m-%d %H:%M:%S,%l} [%p] %m%n");
    auto* appender = new log4cpp::OstreamAppender("vintrelDefault", &std::cerr);
    appender->setLayout(layout);

    log4cpp::Category& category = log4cpp::Category::getInstance(kCategoryName);
    category.setAdditivity(false);
    category.setPriority(log4cpp::Priority::DEBUG);
    category.addAppender(appender);
}

} // namespace

const char* sourceName(const char* file)
{
    if (!file)
        return "";
    std::string name(file);
    const std::string::size_type slash = name.find_last_of("/\\");
    if (slash != std::string::npos)
        name.erase(0, slash + 1);
    const std::string::size_type dot = name.rfind('.');
    if (dot != std::string::npos && dot > 0)
        name.erase(dot);

    // Names are interned so the returned pointer stays valid for the process.
    static std::mutex m;
    static std::set<std::string> names;
    std::lock_guard<std::mutex> lock(m);
    return names.insert(name).first->c_str();
}

bool CTavLog::LoadConfig(const char* path)
{
    if (!path || !*path)
        return false;
    std::ifstream in(path);
    if (!in.is_open())
        return false;
    std::stringstream text;
    text << in.rdbuf();
    if (in.bad())
        return false;
    std::istringstream props(text.str());
    const std::map<std::string, std::string> properties = parseProperties(props);
    if (!categoriesAreValid(properties))
        return false;

    std::lock_guard<std::mutex> lock(logMutex());
    const std::set<std::string> names = appenderNames(properties);
    try {
        dropAllAppenders(names);
        configuredAppenderNames() = names;
        log4cpp::PropertyConfigurator::configure(path);
    } catch (...) {
        // A file log4cpp refuses half-way (an unknown appender class, say)
        // must not leave the application without a log: fall back to the
        // built-in configuration.
        try {
            dropAllAppenders(std::set<std::string>());
            installDefault();
        } catch (...) {
        }
        return false;
    }
    return true;
}

void CTavLog::LoadDefault()
{
    std::lock_guard<std::mutex> lock(logMutex());
    try {
        dropAllAppenders(std::set<std::string>());
        installDefault();
    } catch (...) {
        // A broken default leaves the category as it was; logging goes on.
    }
}

log4cpp::Category* CTavLog::Logger_vintrel()
{
    static log4cpp::Category* category = &log4cpp::Category::getInstance(kCategoryName);
    return category;
}

void CTavLog::Log(log4cpp::Category* logger, int priority, const char* format, ...)
{
    if (!logger || !format)
        return;
    if (!logger->isPriorityEnabled(priority))
        return;

    char stackBuf[1024];
    std::string message;
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int needed = std::vsnprintf(stackBuf, sizeof(stackBuf), format, args);
    va_end(args);
    if (needed < 0) {
        va_end(copy);
        return;
    }
    if (static_cast<size_t>(needed) < sizeof(stackBuf)) {
        message.assign(stackBuf, static_cast<size_t>(needed));
    } else {
        message.resize(static_cast<size_t>(needed) + 1);
        std::vsnprintf(&message[0], message.size(), format, copy);
        message.resize(static_cast<size_t>(needed));
    }
    va_end(copy);

    std::lock_guard<std::mutex> lock(logMutex());
    try {
        logger->log(priority, message);
    } catch (...) {
        // Logging never takes the caller down.
    }
}

} // namespace Tavlog4cpp
