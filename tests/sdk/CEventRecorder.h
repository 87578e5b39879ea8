#pragma once
// Records events that the camera library delivers on its own threads, for
// the test thread to read.
#include <functional>
#include <mutex>
#include <vector>

template <class Arg>
class CEventRecorder
{
public:
    std::function<void(const Arg&)> proc()
    {
        return [this](const Arg& a) {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_args.push_back(a);
        };
    }
    size_t count()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_args.size();
    }
    // Events for which match is true.
    size_t count(const std::function<bool(const Arg&)>& match)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        size_t n = 0;
        for (const Arg& a : m_args)
            n += match(a) ? 1 : 0;
        return n;
    }
    Arg at(size_t i)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_args.at(i);
    }
    std::vector<Arg> all()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_args;
    }
    void clear()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_args.clear();
    }

private:
    std::mutex m_mutex;
    std::vector<Arg> m_args;
};
