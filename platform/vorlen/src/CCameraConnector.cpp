#include "CCameraConnector.h"

#include "CGigEConnector.h"
#include "CUsbConnector.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

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

bool CCameraConnector::failed(int code, const std::string& key, GError*& error)
{
    const std::string text = error && error->message ? error->message : "";
    Infra::setLastError(code, text.c_str());
    LOG_ERROR("connect %s: %s", key.c_str(), text.c_str());
    g_clear_error(&error);
    return false;
}

} // namespace GenICam
} // namespace Vorlen
