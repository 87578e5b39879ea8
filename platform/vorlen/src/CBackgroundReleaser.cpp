#include "CBackgroundReleaser.h"

#include "ThreadName.h"

namespace Vorlen {
namespace GenICam {

CBackgroundReleaser& CBackgroundReleaser::instance()
{
    // Never destroyed: shutdown() joins its threads while the process is whole.
    static CBackgroundReleaser* releaser = new CBackgroundReleaser;
    return *releaser;
}

void CBackgroundReleaser::run(std::function<void()> release)
{
    joinFinished();
    SRelease r;
    r.done = std::make_shared<std::atomic<bool>>(false);
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_shutDown) {
            std::shared_ptr<std::atomic<bool>> done = r.done;
            // Moved, not copied: the thread must hold the only reference to
            // whatever release lets go of.
            r.thread = std::thread([release = std::move(release), done] {
                nameThisThread("vorlen-release");
                release();
                done->store(true);
            });
            m_releases.push_back(std::move(r));
            return;
        }
    }
    release();
}

void CBackgroundReleaser::joinFinished()
{
    join(false);
}

void CBackgroundReleaser::shutdown()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_shutDown = true;
    }
    join(true);
}

void CBackgroundReleaser::join(bool all)
{
    std::vector<SRelease> joining;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (auto it = m_releases.begin(); it != m_releases.end();) {
            if (all || it->done->load()) {
                joining.push_back(std::move(*it));
                it = m_releases.erase(it);
            } else {
                ++it;
            }
        }
    }
    for (SRelease& r : joining)
        r.thread.join();
}

} // namespace GenICam
} // namespace Vorlen
