#pragma once
// Every camera ever seen, by key. A camera keeps its object for the life of
// the library, so its key and every shared pointer to it stay valid across
// discoveries; discovery updates the object in place.
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "CAravisCamera.h"

namespace Vorlen {
namespace GenICam {

class CCameraRegistry
{
public:
    using CameraPtr = Memory::TSharedPtr<CAravisCamera>;

    static CCameraRegistry& instance();

    // The camera of info.key: made on first sight, its discovery information
    // updated otherwise. Null once shut down.
    CameraPtr upsert(const CAravisCamera::SDiscoveryInfo& info);
    // Keys the last broadcast discovery of a kind (GigE Vision, USB3 Vision) found.
    void setSeen(EInterfaceType type, const std::set<std::string>& keys);
    // A camera that answered unicast discovery at address, and an address
    // that no longer answers.
    void addUnicast(const std::string& key, const std::string& address);
    void dropUnicast(const std::string& address);
    // The cameras seen by the last discovery of each kind, the unicast ones
    // still answering and the connected ones, in key order.
    std::vector<CameraPtr> listed();
    // Hands over every camera and keeps none from now on.
    std::vector<CameraPtr> takeAll();

private:
    CCameraRegistry() = default;

    std::mutex m_mutex;
    std::map<std::string, CameraPtr> m_cameras;
    std::set<std::string> m_lastSeen[2];              // by the last discovery of GigE / USB3
    std::map<std::string, std::string> m_unicast;     // key -> address that answered
    bool m_closed = false;
};

} // namespace GenICam
} // namespace Vorlen
