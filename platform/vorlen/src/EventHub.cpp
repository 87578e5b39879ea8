// One dispatch thread and its queue deliver every camera event.
#include "EventHub.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace Vorlen {
namespace GenICam {
namespace EventHub {

namespace {

class CHub
{
public:
    static CHub& instance()
    {
        // Never destroyed: the dispatch thread may still be waiting when
        // static destructors run at exit.
        static CHub* hub = new CHub;
        return *hub;
    }

    void post(std::function<void()> task)
    {
        {
            std::lock_guard<std::mutex> lock(m_queueMutex);
            if (!m_started) {
                m_started = true;
                std::thread(&CHub::run, this).detach();
            }
            m_queue.push_back(std::move(task));
            ++m_posted;
        }
        m_queueCond.notify_all();
    }

    bool flush(unsigned int timeoutMs)
    {
        std::unique_lock<std::mutex> lock(m_queueMutex);
        const uint64_t target = m_posted;
        return m_doneCond.wait_for(lock, std::chrono::milliseconds(timeoutMs), [&] { return m_done >= target; });
    }

    bool onDispatchThread() const { return std::this_thread::get_id() == m_threadId; }

    std::mutex m_subMutex;                            // guards m_subscribers and every handler
    std::vector<std::shared_ptr<SSubscriber>> m_subscribers;
    std::mutex m_callMutex;                           // held while a handler runs

    // Copies of the handlers of one kind for one camera.
    template <class Proc>
    std::vector<Proc> handlers(const ICamera* camera, Proc SSubscriber::*member)
    {
        std::vector<Proc> out;
        std::lock_guard<std::mutex> lock(m_subMutex);
        for (const auto& s : m_subscribers)
            if (s->camera == camera && (*s).*member)
                out.push_back((*s).*member);
        return out;
    }

    // Waits until no handler is running (unless called by one).
    void waitIdle()
    {
        if (onDispatchThread())
            return;
        std::lock_guard<std::mutex> lock(m_callMutex);
    }

private:
    CHub() = default;

    void run()
    {
        m_threadId = std::this_thread::get_id();
        for (;;) {
            std::function<void()> task;
            {
                std::unique_lock<std::mutex> lock(m_queueMutex);
                m_queueCond.wait(lock, [this] { return !m_queue.empty(); });
                task = std::move(m_queue.front());
                m_queue.pop_front();
            }
            {
                std::lock_guard<std::mutex> lock(m_callMutex);
                try {
                    task();
                } catch (...) {
                }
            }
            {
                std::lock_guard<std::mutex> lock(m_queueMutex);
                ++m_done;
            }
            m_doneCond.notify_all();
        }
    }

    std::mutex m_queueMutex;
    std::condition_variable m_queueCond;
    std::condition_variable m_doneCond;
    std::deque<std::function<void()>> m_queue;
    uint64_t m_posted = 0;
    uint64_t m_done = 0;
    bool m_started = false;
    std::atomic<std::thread::id> m_threadId{};
};

template <class Arg, class Proc>
void publish(const ICamera* camera, const Arg& arg, Proc SSubscriber::*member)
{
    if (!camera)
        return;
    CHub::instance().post([camera, arg, member] {
        for (const Proc& proc : CHub::instance().handlers(camera, member)) {
            // A throwing subscriber must not end event delivery for everybody.
            try {
                proc(arg);
            } catch (...) {
            }
        }
    });
}

template <class Proc>
void setHandler(SSubscriber& s, Proc SSubscriber::*member, const Proc& proc)
{
    CHub& hub = CHub::instance();
    {
        std::lock_guard<std::mutex> lock(hub.m_subMutex);
        s.*member = proc;
    }
    if (!proc)
        hub.waitIdle();
}

} // namespace

void publishConnect(const ICamera* camera, const SConnectArg& arg)
{
    publish(camera, arg, &SSubscriber::onConnect);
}

void publishParamUpdate(const ICamera* camera, const SParamUpdataArg& arg)
{
    publish(camera, arg, &SSubscriber::onParamUpdate);
}

void publishStream(const ICamera* camera, const SStreamArg& arg)
{
    publish(camera, arg, &SSubscriber::onStream);
}

void publishMsgChannel(const ICamera* camera, const SMsgChannelArg& arg)
{
    publish(camera, arg, &SSubscriber::onMsgChannel);
}

bool hasStreamSubscribers(const ICamera* camera)
{
    return hasSubscribers(camera, kindStream);
}

bool hasSubscribers(const ICamera* camera, EKind kind)
{
    CHub& hub = CHub::instance();
    std::lock_guard<std::mutex> lock(hub.m_subMutex);
    for (const auto& s : hub.m_subscribers) {
        if (s->camera != camera)
            continue;
        switch (kind) {
        case kindConnect: if (s->onConnect) return true; break;
        case kindParamUpdate: if (s->onParamUpdate) return true; break;
        case kindStream: if (s->onStream) return true; break;
        case kindMsgChannel: if (s->onMsgChannel) return true; break;
        }
    }
    return false;
}

void attach(const std::shared_ptr<SSubscriber>& subscriber)
{
    if (!subscriber)
        return;
    CHub& hub = CHub::instance();
    std::lock_guard<std::mutex> lock(hub.m_subMutex);
    for (const auto& s : hub.m_subscribers)
        if (s == subscriber)
            return;
    hub.m_subscribers.push_back(subscriber);
}

void detach(const std::shared_ptr<SSubscriber>& subscriber)
{
    CHub& hub = CHub::instance();
    {
        std::lock_guard<std::mutex> lock(hub.m_subMutex);
        for (auto it = hub.m_subscribers.begin(); it != hub.m_subscribers.end(); ++it) {
            if (*it == subscriber) {
                hub.m_subscribers.erase(it);
                break;
            }
        }
    }
    hub.waitIdle();
}

void setConnectHandler(SSubscriber& s, const CInternalEventManager::ConnectProc& proc)
{
    setHandler(s, &SSubscriber::onConnect, proc);
}

void setParamUpdateHandler(SSubscriber& s, const CInternalEventManager::ParamUpdateProc& proc)
{
    setHandler(s, &SSubscriber::onParamUpdate, proc);
}

void setStreamHandler(SSubscriber& s, const CInternalEventManager::StreamProc& proc)
{
    setHandler(s, &SSubscriber::onStream, proc);
}

void setMsgChannelHandler(SSubscriber& s, const CInternalEventManager::MsgChannelProc& proc)
{
    setHandler(s, &SSubscriber::onMsgChannel, proc);
}

void post(const std::function<void()>& task)
{
    if (task)
        CHub::instance().post(task);
}

bool onDispatchThread()
{
    return CHub::instance().onDispatchThread();
}

bool flush(unsigned int timeoutMs)
{
    if (onDispatchThread())
        return false;
    return CHub::instance().flush(timeoutMs);
}

} // namespace EventHub
} // namespace GenICam
} // namespace Vorlen
