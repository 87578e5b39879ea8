#pragma once
// Base of the operations on one kind of feature: the camera and the feature
// name they act on, borrowed from the parameter node for one call.
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CFeatureOperations
{
public:
    CFeatureOperations(const Memory::TSharedPtr<ICamera>& camera, const CString& name)
        : m_camera(camera), m_name(name)
    {
    }

protected:
    const Memory::TSharedPtr<ICamera>& m_camera;
    const CString& m_name;
};

} // namespace GenICam
} // namespace Vorlen
