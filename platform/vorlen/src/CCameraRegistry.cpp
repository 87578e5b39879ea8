#include "CCameraRegistry.h"

#include "Tavlog4cpp/TavLogMacros.h"

namespace Vorlen {
namespace GenICam {

CCameraRegistry& CCameraRegistry::instance()
{
    // Never destroyed: cameras may be asked for while static objects die.
    static CCameraRegistry* registry = new CCameraRegistry;
    return *registry;
}

CCameraRegistry::CameraPtr CCameraRegistry::upsert(const CAravisCamera::SDiscoveryInfo& info)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_closed)
        return CameraPtr();
    auto it = m_cameras.find(info.key);
    if (it != m_cameras.end()) {
        it->second->updateDiscoveryInfo(info);
        return it->second;
    }
    CameraPtr camera = CAravisCamera::create(info);
    m_cameras[info.key] = camera;
    LOG_DEBUG("new camera %s at %s", info.key.c_str(),
              info.ipAddress.empty() ? info.arvId.c_str() : info.ipAddress.c_str());
    return camera;
}

void CCameraRegistry::setSeen(EInterfaceType type, const std::set<std::string>& keys)
{
    if (type != typeGigEVision && type != typeUsb3Vision)
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_lastSeen[type] = keys;
}

void CCameraRegistry::addUnicast(const std::string& key, const std::string& address)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_unicast[key] = address;
}

void CCameraRegistry::dropUnicast(const std::string& address)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto it = m_unicast.begin(); it != m_unicast.end();) {
        if (it->second == address)
            it = m_unicast.erase(it);
        else
            ++it;
    }
}

std::vector<CCameraRegistry::CameraPtr> CCameraRegistry::listed()
{
    std::vector<CameraPtr> cameras;
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& entry : m_cameras) {
        const std::string& key = entry.first;
        if (m_lastSeen[0].count(key) || m_lastSeen[1].count(key) || m_unicast.count(key) ||
            entry.second->isConnected())
            cameras.push_back(entry.second);
    }
    return cameras;
}

std::vector<CCameraRegistry::CameraPtr> CCameraRegistry::takeAll()
{
    std::vector<CameraPtr> cameras;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_closed = true;
    for (auto& entry : m_cameras)
        cameras.push_back(entry.second);
    m_cameras.clear();
    m_unicast.clear();
    m_lastSeen[0].clear();
    m_lastSeen[1].clear();
    return cameras;
}

} // namespace GenICam
} // namespace Vorlen
