#pragma once
// Reads a camera's features one after the other on a thread of its own
// until stopped. Each read is told apart by whether the loss had been
// reported before it began.
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "Vorlen/GenICam.h"

class CReadSequence
{
public:
    CReadSequence(const Vorlen::GenICam::ICameraPtr& camera, const std::atomic<bool>& reported)
    {
        m_thread = std::thread([this, camera, &reported] {
            const char* names[] = {"Width", "Height", "OffsetX", "PayloadSize", "TestReadOnlyValue"};
            for (int i = 0; !m_stop; ++i) {
                const bool after = reported.load();
                long value = 0;
                const bool ok = Vorlen::GenICam::CIntNode(camera, names[i % 5]).getValue(value);
                std::lock_guard<std::mutex> lock(m_mutex);
                if (ok)
                    ++m_succeeded;
                if (after)
                    m_errorsAfterReport.push_back(ok ? int(Vorlen::Infra::ERR_OK) : Vorlen::Infra::getLastError());
            }
        });
    }
    ~CReadSequence() { stop(); }

    void stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
    }
    int succeeded()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_succeeded;
    }
    // The result (ERR_OK or the error) of every read begun after the report.
    std::vector<int> afterReport()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_errorsAfterReport;
    }

private:
    std::thread m_thread;
    std::atomic<bool> m_stop{false};
    std::mutex m_mutex;
    int m_succeeded = 0;
    std::vector<int> m_errorsAfterReport;
};
