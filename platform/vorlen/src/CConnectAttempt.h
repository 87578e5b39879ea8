#pragma once
// One try to open a camera, run on a thread of its own so that connect()
// can give up the moment the camera is found lost, instead of waiting out
// Aravis' retries against a camera that stopped answering. An abandoned
// attempt releases whatever it opens by itself.
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

#include "CCameraConnector.h"

namespace Vorlen {
namespace GenICam {

class CConnectAttempt
{
public:
    // Starts opening the camera described by info with connector.
    static std::shared_ptr<CConnectAttempt> start(std::unique_ptr<CCameraConnector> connector,
                                                  const CAravisCamera::SDiscoveryInfo& info,
                                                  ECameraAccessPermission permission, unsigned int answerTimeoutMs);

    // Waits until the camera is opened (true, out filled), the opening
    // failed (false, the last error says why) or the attempt was abandoned
    // (false, the last error untouched).
    bool wait(CCameraConnector::SConnection& out);
    // The camera was found lost: wait() returns at once. Any thread.
    void abandon();

private:
    CConnectAttempt() = default;
    void finish(bool opened, const CCameraConnector::SConnection& connection);

    std::mutex m_mutex;
    std::condition_variable m_cond;
    bool m_done = false;
    bool m_abandoned = false;
    bool m_opened = false;
    bool m_taken = false;   // wait() handed the camera over
    CCameraConnector::SConnection m_connection;
    int m_error = 0;
    std::string m_errorDetail;
};

} // namespace GenICam
} // namespace Vorlen
