#pragma once
// Per-thread last error of the camera library. Every operation that fails
// sets it; getErrMsg() turns a code into a stable, readable text.

namespace Vorlen {
namespace Infra {

enum EErrorCode
{
    ERR_OK = 0,
    ERR_UNKNOWN,
    ERR_INVALID_PARAMETER,
    ERR_INVALID_HANDLE,           // null camera, node or stream
    ERR_NOT_CONNECTED,
    ERR_ALREADY_CONNECTED,
    ERR_ACCESS_DENIED,            // another host controls the camera
    ERR_TIMEOUT,
    ERR_NOT_FOUND,                // no camera / no feature of that name
    ERR_NOT_IMPLEMENTED,
    ERR_NOT_AVAILABLE,
    ERR_NOT_READABLE,
    ERR_NOT_WRITABLE,
    ERR_OUT_OF_RANGE,
    ERR_TYPE_MISMATCH,            // the feature is not of the type asked for
    ERR_WRITE_FAILED,             // the camera refused the write
    ERR_READ_FAILED,
    ERR_IO,                       // file or socket error
    ERR_DEVICE_LOST,              // the camera vanished mid-call
    ERR_STREAM_NOT_OPEN,
    ERR_STREAM_BUSY,              // already grabbing
    ERR_NO_FRAME,                 // getFrame timed out
    ERR_NOT_SUPPORTED,
    WARN_BUFFER_OVERRIDE,         // a queued frame was overwritten by a newer one
    ERROR_STREAM_CHANNEL_ERROR,   // stream channel failure
    ERR_NOT_SUPPORTED_IMAGE_FORMAT,
    ERR_CODE_COUNT
};

// Last error of the calling thread (ERR_OK when the last call succeeded or
// after clearLastError()).
int getLastError();
// Stable text of an error code ("WARN_BUFFER_OVERRIDE",
// "ERROR_STREAM_CHANNEL_ERROR", "NOT SUPPORTED IMAGE FORMAT", ...). For the
// calling thread's last error, the text carries the detail given when it was
// set, if any.
const char* getErrMsg(int code);
void setLastError(int code, const char* detail = nullptr);
void clearLastError();

} // namespace Infra
} // namespace Vorlen
