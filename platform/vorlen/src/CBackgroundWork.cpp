#include "CBackgroundWork.h"

#include "ThreadName.h"

namespace Vorlen {
namespace GenICam {

CBackgroundWork& CBackgroundWork::instance()
{
    // Never destroyed: shutdown() joins its threads while the process is whole.
    static CBackgroundWork* instance = new CBackgroundWork;
    return *instance;
}

void CBackgroundWork::run(std::function<void()> work)
{
    joinFinished();
    SJob r;
    r.done = std::make_shared<std::atomic<bool>>(false);
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_shutDown) {
            std::shared_ptr<std::atomic<bool>> done = r.done;
            // Moved, not copied: the thread must hold the only reference to
            // whatever the work lets go of.
            r.thread = std::thread([work = std::move(work), done] {
                nameThisThread("vorlen-work");
                work();
                done->store(true);
            });
            m_jobs.push_back(std::move(r));
            return;
        }
    }
    work();
}

void CBackgroundWork::joinFinished()
{
    join(false);
}

void CBackgroundWork::shutdown()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_shutDown = true;
    }
    join(true);
}

void CBackgroundWork::join(bool all)
{
    std::vector<SJob> joining;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (auto it = m_jobs.begin(); it != m_jobs.end();) {
            if (all || it->done->load()) {
                joining.push_back(std::move(*it));
                it = m_jobs.erase(it);
            } else {
                ++it;
            }
        }
    }
    for (SJob& r : joining)
        r.thread.join();
}

} // namespace GenICam
} // namespace Vorlen
