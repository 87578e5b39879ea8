#include "CCameraConnector.h"

#include "CGigEConnector.h"
#include "CUsbConnector.h"

namespace Vorlen {
namespace GenICam {

std::unique_ptr<CCameraConnector> CCameraConnector::forType(EInterfaceType type)
{
    if (type == typeGigEVision)
        return std::make_unique<CGigEConnector>();
    if (type == typeUsb3Vision)
        return std::make_unique<CUsbConnector>();
    return nullptr;
}

} // namespace GenICam
} // namespace Vorlen
