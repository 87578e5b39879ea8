#pragma once
// The life of the camera library: its public singletons (CSystem,
// CInternalSystem) are made here, and end here. shutdown() closes every camera
// (stopping their watchdogs and message channels), waits for the releases
// of lost cameras under way, and ends event delivery. Afterwards discovery,
// connecting and subscribing fail with ERR_INVALID_HANDLE ("the camera
// library is shut down") and no thread of the library starts again.
namespace Vorlen {
namespace GenICam {

class CLibraryLifetime
{
public:
    // Idempotent; the first call does the work, later ones return at once.
    static void shutdown();
    static bool isShutDown();
    // Sets the last error to the library's end when it is shut down; true then.
    static bool refuse();
};

} // namespace GenICam
} // namespace Vorlen
