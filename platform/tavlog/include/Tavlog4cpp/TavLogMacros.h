#pragma once
// Log lines in the house format "[source(line) function] message".
// The source is the file name without directory and extension; TAVLOG_SRC
// names it explicitly where a fixed source name is wanted.
#include "Tavlog4cpp/CTavLog.h"

namespace Tavlog4cpp {
// "/a/b/CDeviceManager.cpp" -> "CDeviceManager"
const char* sourceName(const char* file);
}

#define TAVLOG_LEVEL_ERROR 300
#define TAVLOG_LEVEL_WARN 400
#define TAVLOG_LEVEL_DEBUG 700

#define TAVLOG_SRC(level, source, fmt, ...)                                                   \
    ::Tavlog4cpp::CTavLog::Log(::Tavlog4cpp::CTavLog::Logger_vintrel(), (level), "[%s(%d) %s] " fmt, \
                               (source), __LINE__, __FUNCTION__, ##__VA_ARGS__)

#define TAVLOG(level, fmt, ...)                                                               \
    TAVLOG_SRC(level, ([]() { static const char* const s = ::Tavlog4cpp::sourceName(__FILE__); return s; }()), \
               fmt, ##__VA_ARGS__)

#define LOG_ERROR(fmt, ...) TAVLOG(TAVLOG_LEVEL_ERROR, fmt, ##__VA_ARGS__)
#define LOG_WARN(fmt, ...) TAVLOG(TAVLOG_LEVEL_WARN, fmt, ##__VA_ARGS__)
#define LOG_DEBUG(fmt, ...) TAVLOG(TAVLOG_LEVEL_DEBUG, fmt, ##__VA_ARGS__)
