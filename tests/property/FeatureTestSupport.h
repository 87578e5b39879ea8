#pragma once
// What the feature panel's tests share: the connected device of a simulated
// camera found by its serial number, and the application's log lines
// captured while a test looks at them.
#include <QMap>
#include <QMutex>
#include <QStringList>
#include <QTest>
#include <log4cpp/AppenderSkeleton.hh>
#include <log4cpp/Category.hh>
#include <log4cpp/LoggingEvent.hh>

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/CTavLog.h"

// The application keeps its configuration in the home CTest gives the test.
inline const bool g_ownHome = []() {
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return true;
}();

// Waits for discovery to find the camera with the serial number; null when
// it did not within timeoutMs.
inline CTavDevicePtr waitForDevice(const QString& serial, int timeoutMs = 20000)
{
    CTavDevicePtr device;
    QTest::qWaitFor(
        [&]() {
            for (const CTavDevicePtr& d : CDeviceManager::getInstance()->getAllDevices())
                if (d->getDevice() && QString::fromLocal8Bit(d->getDevice()->getSerialNumber().c_str()) == serial)
                    return bool(device = d);
            return false;
        },
        timeoutMs);
    return device;
}

// Every line the application logs, from any thread, while it exists (at
// every level: the progress lines included).
class LogCapture : public log4cpp::AppenderSkeleton
{
public:
    LogCapture() : log4cpp::AppenderSkeleton("capture" + std::to_string(reinterpret_cast<quintptr>(this)))
    {
        log4cpp::Category* logger = Tavlog4cpp::CTavLog::Logger_vintrel();
        m_priority = logger->getPriority();
        logger->setPriority(log4cpp::Priority::DEBUG);
        logger->addAppender(*this);
    }
    ~LogCapture() override
    {
        log4cpp::Category* logger = Tavlog4cpp::CTavLog::Logger_vintrel();
        logger->removeAppender(this);
        logger->setPriority(m_priority);
    }
    QStringList lines() const
    {
        QMutexLocker lock(&m_mutex);
        return m_lines;
    }
    // The first line from the source file (without extension) that holds
    // text, at or after index from; -1 when there is none.
    int find(const QString& source, const QString& text, int from = 0) const
    {
        const QStringList all = lines();
        for (int i = from; i < all.size(); ++i)
            if (all.at(i).startsWith("[" + source + "(") && all.at(i).contains(text))
                return i;
        return -1;
    }

    void close() override {}
    bool requiresLayout() const override { return false; }
    void setLayout(log4cpp::Layout*) override {}

protected:
    void _append(const log4cpp::LoggingEvent& event) override
    {
        QMutexLocker lock(&m_mutex);
        m_lines.append(QString::fromStdString(event.message));
    }

private:
    mutable QMutex m_mutex;
    QStringList m_lines;
    log4cpp::Priority::Value m_priority = log4cpp::Priority::NOTSET;
};
