#include "CEventHub.h"

#include <algorithm>

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

std::shared_ptr<CEventDispatcher> CEventHub::dispatcherFor(const ICamera*)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_dispatcher && !m_shutDown)
        m_dispatcher = std::make_shared<CEventDispatcher>();
    return m_dispatcher;
}

bool CEventHub::post(const ICamera* camera, std::function<void()> task)
{
    std::shared_ptr<CEventDispatcher> dispatcher = dispatcherFor(camera);
    return dispatcher && dispatcher->post(std::move(task));
}

bool CEventHub::flush(unsigned int timeoutMs)
{
    std::shared_ptr<CEventDispatcher> dispatcher;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_shutDown)
            return false;
        dispatcher = m_dispatcher;
    }
    return !dispatcher || dispatcher->flush(timeoutMs);
}

void CEventHub::waitIdle(const ICamera*)
{
    std::shared_ptr<CEventDispatcher> dispatcher;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        dispatcher = m_dispatcher;
    }
    if (dispatcher)
        dispatcher->waitIdle();
}

void CEventHub::shutdown()
{
    std::shared_ptr<CEventDispatcher> dispatcher;
    std::vector<std::shared_ptr<SSubscriber>> subscribers;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_shutDown = true;
        dispatcher = std::move(m_dispatcher);
        subscribers.swap(m_subscribers);
    }
    if (dispatcher)
        dispatcher->stop();
}

} // namespace GenICam
} // namespace Vorlen
