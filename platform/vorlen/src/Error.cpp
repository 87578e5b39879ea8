// Per-thread last error and its texts.
#include "Vorlen/Infra/Error.h"

#include "LastErrorDetail.h"

#include <string>

namespace Vorlen {
namespace Infra {

namespace {

struct SLastError
{
    int code = ERR_OK;
    std::string detail;
    std::string message;   // storage for the composed text handed out
};

thread_local SLastError t_last;

const char* baseText(int code)
{
    switch (code) {
    case ERR_OK: return "";
    case ERR_UNKNOWN: return "Unknown error";
    case ERR_INVALID_PARAMETER: return "Invalid parameter";
    case ERR_INVALID_HANDLE: return "Invalid handle";
    case ERR_NOT_CONNECTED: return "Camera is not connected";
    case ERR_ALREADY_CONNECTED: return "Camera is already connected";
    case ERR_ACCESS_DENIED: return "Camera is controlled by another host";
    case ERR_TIMEOUT: return "Timeout waiting for the camera";
    case ERR_NOT_FOUND: return "Not found";
    case ERR_NOT_IMPLEMENTED: return "Feature not implemented";
    case ERR_NOT_AVAILABLE: return "Feature not available";
    case ERR_NOT_READABLE: return "Feature not readable";
    case ERR_NOT_WRITABLE: return "Feature not writable";
    case ERR_OUT_OF_RANGE: return "Value out of range";
    case ERR_TYPE_MISMATCH: return "Feature type mismatch";
    case ERR_WRITE_FAILED: return "Write failed";
    case ERR_READ_FAILED: return "Read failed";
    case ERR_IO: return "I/O error";
    case ERR_DEVICE_LOST: return "Camera lost";
    case ERR_STREAM_NOT_OPEN: return "Stream not open";
    case ERR_STREAM_BUSY: return "Stream already grabbing";
    case ERR_NO_FRAME: return "No frame";
    case ERR_NOT_SUPPORTED: return "Not supported";
    case WARN_BUFFER_OVERRIDE: return "WARN_BUFFER_OVERRIDE";
    case ERROR_STREAM_CHANNEL_ERROR: return "ERROR_STREAM_CHANNEL_ERROR";
    case ERR_NOT_SUPPORTED_IMAGE_FORMAT: return "NOT SUPPORTED IMAGE FORMAT";
    default: return "Unknown error";
    }
}

// Texts that callers compare against; they never carry a detail.
bool isStable(int code)
{
    return code == ERR_OK || code == WARN_BUFFER_OVERRIDE || code == ERROR_STREAM_CHANNEL_ERROR ||
           code == ERR_NOT_SUPPORTED_IMAGE_FORMAT;
}

} // namespace

int getLastError()
{
    return t_last.code;
}

const char* getErrMsg(int code)
{
    if (code == t_last.code && !t_last.detail.empty() && !isStable(code)) {
        t_last.message = std::string(baseText(code)) + ": " + t_last.detail;
        return t_last.message.c_str();
    }
    return baseText(code);
}

void setLastError(int code, const char* detail)
{
    t_last.code = code;
    t_last.detail = detail ? detail : "";
}

const char* lastErrorDetail()
{
    return t_last.detail.c_str();
}

void clearLastError()
{
    t_last.code = ERR_OK;
    t_last.detail.clear();
}

} // namespace Infra
} // namespace Vorlen
