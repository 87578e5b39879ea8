#include "CEventHub.h"

#include <algorithm>
#include <chrono>

namespace Vorlen {
namespace GenICam {

using EventHub::SSubscriber;

CEventHub& CEventHub::instance()
{
    // Never destroyed: handlers may still be cleared by objects that die
    // after main() returns; shutdown() ends its thread before that.
    static CEventHub* hub = new CEventHub;
    return *hub;
}

void CEventHub::attach(const std::shared_ptr<SSubscriber>& subscriber)
{
    if (!subscriber)
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_shutDown || std::find(m_subscribers.begin(), m_subscribers.end(), subscriber) != m_subscribers.end())
        return;
    m_subscribers.push_back(subscriber);
}

void CEventHub::detach(const std::shared_ptr<SSubscriber>& subscriber)
{
    const ICamera* camera = subscriber ? subscriber->camera : nullptr;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_subscribers.erase(std::remove(m_subscribers.begin(), m_subscribers.end(), subscriber), m_subscribers.end());
    }
    waitIdle(camera);
}

bool CEventHub::hasSubscribers(const ICamera* camera, EventHub::EKind kind)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& s : m_subscribers) {
        if (s->camera != camera)
            continue;
        switch (kind) {
        case EventHub::kindConnect: if (s->onConnect) return true; break;
        case EventHub::kindParamUpdate: if (s->onParamUpdate) return true; break;
        case EventHub::kindStream: if (s->onStream) return true; break;
        case EventHub::kindMsgChannel: if (s->onMsgChannel) return true; break;
        }
    }
    return false;
}

std::shared_ptr<CEventDispatcher> CEventHub::dispatcherFor(const ICamera* camera)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_shutDown)
        return nullptr;
    std::shared_ptr<CEventDispatcher>& dispatcher = m_dispatchers[camera];
    if (!dispatcher)
        dispatcher = std::make_shared<CEventDispatcher>();
    return dispatcher;
}

bool CEventHub::post(const ICamera* camera, std::function<void()> task)
{
    std::shared_ptr<CEventDispatcher> dispatcher = dispatcherFor(camera);
    return dispatcher && dispatcher->post(std::move(task));
}

bool CEventHub::flush(unsigned int timeoutMs)
{
    std::vector<std::shared_ptr<CEventDispatcher>> dispatchers;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_shutDown)
            return false;
        for (const auto& entry : m_dispatchers)
            dispatchers.push_back(entry.second);
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    for (const auto& dispatcher : dispatchers) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !dispatcher->flush(unsigned(left.count())))
            return false;
    }
    return true;
}

void CEventHub::waitIdle(const ICamera* camera)
{
    std::shared_ptr<CEventDispatcher> dispatcher;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_dispatchers.find(camera);
        if (it != m_dispatchers.end())
            dispatcher = it->second;
    }
    if (dispatcher)
        dispatcher->waitIdle();
}

void CEventHub::forget(const ICamera* camera)
{
    std::shared_ptr<CEventDispatcher> dispatcher;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_dispatchers.find(camera);
        if (it == m_dispatchers.end())
            return;
        dispatcher = std::move(it->second);
        m_dispatchers.erase(it);
    }
    dispatcher->stop();
}

void CEventHub::shutdown()
{
    std::map<const ICamera*, std::shared_ptr<CEventDispatcher>> dispatchers;
    std::vector<std::shared_ptr<SSubscriber>> subscribers;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_shutDown = true;
        dispatchers.swap(m_dispatchers);
        subscribers.swap(m_subscribers);
    }
    for (const auto& entry : dispatchers)
        entry.second->stop();
}

} // namespace GenICam
} // namespace Vorlen
