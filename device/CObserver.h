#pragma once
#include "CTavMessage.h"

// A panel that listens to the bus. Update() runs under the subject's lock, so
// implementations only emit a queued signal to their own slot.
class CObserver
{
public:
    CObserver() = default;
    virtual ~CObserver() = default;
    virtual void Update(CTavMessagePtr msg) = 0;
};
