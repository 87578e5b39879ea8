#pragma once
// Lets go of the Aravis objects of lost cameras. Releasing one waits for
// Aravis' own heartbeat thread to give up on the camera, so each release
// runs on a thread of its own; finished ones are joined at the next release
// or joinFinished(), the rest by joinAll().
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

typedef struct _ArvCamera ArvCamera;

namespace Vorlen {
namespace GenICam {

class CLostDeviceReleaser
{
public:
    CLostDeviceReleaser() = default;
    ~CLostDeviceReleaser();
    CLostDeviceReleaser(const CLostDeviceReleaser&) = delete;
    CLostDeviceReleaser& operator=(const CLostDeviceReleaser&) = delete;

    // Takes over the caller's reference.
    void release(ArvCamera* camera);
    // Joins the releases that have finished; never waits.
    void joinFinished();
    // Waits for every release.
    void joinAll();

private:
    void join(bool all);

    struct SRelease
    {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };
    std::mutex m_mutex;
    std::vector<SRelease> m_releases;
};

} // namespace GenICam
} // namespace Vorlen
