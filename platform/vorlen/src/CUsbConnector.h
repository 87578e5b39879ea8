#pragma once
// Opens a USB3 Vision camera through Aravis' device list.
#include "CCameraConnector.h"

namespace Vorlen {
namespace GenICam {

class CUsbConnector : public CCameraConnector
{
public:
    bool open(const CAravisCamera::SDiscoveryInfo& info, ECameraAccessPermission permission,
              unsigned int answerTimeoutMs, SConnection& out) override;
};

} // namespace GenICam
} // namespace Vorlen
