#pragma once
// Opens the Aravis camera object behind one of our cameras, one subclass per
// interface kind. Opening takes no lock of ours; the caller keeps whatever
// it opens.
#include <memory>

#include "CAravisCamera.h"

namespace Vorlen {
namespace GenICam {

class CCameraConnector
{
public:
    struct SConnection
    {
        ArvCamera* camera = nullptr;   // the caller's reference
        uint32_t hostIp = 0;           // host address the camera is reached from (GigE)
        ECameraAccessPermission permission = accessPermissionOpen;   // what was granted
    };

    virtual ~CCameraConnector() = default;

    // Opens the camera with the permission asked for; false with the last
    // error set.
    virtual bool open(const CAravisCamera::SDiscoveryInfo& info, ECameraAccessPermission permission,
                      unsigned int answerTimeoutMs, SConnection& out) = 0;

    // The connector of an interface kind; null for kinds without one.
    static std::unique_ptr<CCameraConnector> forType(EInterfaceType type);

protected:
    // Sets the last error to code with Aravis' text (consumed), logs the
    // failure to connect the camera of key; false.
    static bool failed(int code, const std::string& key, GError*& error);
};

} // namespace GenICam
} // namespace Vorlen
