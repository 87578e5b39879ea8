#include "CLostDeviceReleaser.h"

#include <arv.h>

namespace Vorlen {
namespace GenICam {

CLostDeviceReleaser::~CLostDeviceReleaser()
{
    joinAll();
}

void CLostDeviceReleaser::release(ArvCamera* camera)
{
    joinFinished();
    SRelease release;
    release.done = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<std::atomic<bool>> done = release.done;
    release.thread = std::thread([camera, done] {
        g_object_unref(camera);
        done->store(true);
    });
    std::lock_guard<std::mutex> lock(m_mutex);
    m_releases.push_back(std::move(release));
}

void CLostDeviceReleaser::joinFinished()
{
    join(false);
}

void CLostDeviceReleaser::joinAll()
{
    join(true);
}

void CLostDeviceReleaser::join(bool all)
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
