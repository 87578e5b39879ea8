#pragma once
// The process-wide registry of event subscribers and the threads that
// deliver their events: one per camera, started with its first event, so
// that a subscriber stuck with one camera's event never holds up another
// camera's events (a loss report above all). Publishers hand over a task;
// it runs on the camera's dispatch thread, never on the publisher's, so a
// slow subscriber never stalls a stream or a camera call either.
// shutdown() ends delivery for good.
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "CEventDispatcher.h"
#include "EventHub.h"

namespace Vorlen {
namespace GenICam {

class CEventHub
{
public:
    static CEventHub& instance();

    void attach(const std::shared_ptr<EventHub::SSubscriber>& subscriber);
    // Once it returns (off the dispatch thread), none of the subscriber's
    // handlers runs any more.
    void detach(const std::shared_ptr<EventHub::SSubscriber>& subscriber);

    // Changes a handler; clearing one waits until no handler runs.
    template <class Proc>
    void setHandler(EventHub::SSubscriber& s, Proc EventHub::SSubscriber::*member, const Proc& proc)
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            s.*member = proc;
        }
        if (!proc)
            waitIdle(s.camera);
    }

    // Copies of the handlers of one kind for one camera.
    template <class Proc>
    std::vector<Proc> handlers(const ICamera* camera, Proc EventHub::SSubscriber::*member)
    {
        std::vector<Proc> out;
        std::lock_guard<std::mutex> lock(m_mutex);
        for (const auto& s : m_subscribers)
            if (s->camera == camera && (*s).*member)
                out.push_back((*s).*member);
        return out;
    }

    // The subscriber's handler now (empty once cleared).
    template <class Proc>
    Proc handlerOf(const EventHub::SSubscriber& s, Proc EventHub::SSubscriber::*member)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return s.*member;
    }

    bool hasSubscribers(const ICamera* camera, EventHub::EKind kind);
    // Runs task on the thread that delivers camera's events; false once
    // shut down.
    bool post(const ICamera* camera, std::function<void()> task);
    // Waits until the events queued so far for every camera are delivered.
    bool flush(unsigned int timeoutMs);
    // The camera object is going away: its dispatch thread ends.
    void forget(const ICamera* camera);
    // Drops every subscriber and queued event and ends the dispatch thread;
    // idempotent. Later posts fail, later attaches are ignored.
    void shutdown();

private:
    CEventHub() = default;
    std::shared_ptr<CEventDispatcher> dispatcherFor(const ICamera* camera);
    void waitIdle(const ICamera* camera);

    std::mutex m_mutex;   // guards the subscribers, every handler and the dispatchers
    std::vector<std::shared_ptr<EventHub::SSubscriber>> m_subscribers;
    std::map<const ICamera*, std::shared_ptr<CEventDispatcher>> m_dispatchers;
    bool m_shutDown = false;
};

} // namespace GenICam
} // namespace Vorlen
