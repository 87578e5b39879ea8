#include "CConnectAttempt.h"

#include "CBackgroundWork.h"
#include "LastErrorDetail.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

std::shared_ptr<CConnectAttempt> CConnectAttempt::start(std::unique_ptr<CCameraConnector> connector,
                                                        const CAravisCamera::SDiscoveryInfo& info,
                                                        ECameraAccessPermission permission,
                                                        unsigned int answerTimeoutMs)
{
    std::shared_ptr<CConnectAttempt> attempt(new CConnectAttempt);
    // The work must be copyable: the connector travels by shared pointer.
    std::shared_ptr<CCameraConnector> shared(std::move(connector));
    CBackgroundWork::instance().run([attempt, shared, info, permission, answerTimeoutMs] {
        CCameraConnector::SConnection connection;
        const bool opened = shared->open(info, permission, answerTimeoutMs, connection);
        attempt->finish(opened, connection);
    });
    return attempt;
}

void CConnectAttempt::finish(bool opened, const CCameraConnector::SConnection& connection)
{
    bool orphan = false;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
        m_opened = opened;
        m_connection = connection;
        if (!opened) {
            m_error = Infra::getLastError();
            m_errorDetail = Infra::lastErrorDetail();
        }
        orphan = opened && m_abandoned;
    }
    m_cond.notify_all();
    if (orphan)
        g_object_unref(connection.camera);   // on this thread of its own
}

bool CConnectAttempt::wait(CCameraConnector::SConnection& out)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_cond.wait(lock, [this] { return m_done || m_abandoned; });
    if (m_abandoned)
        return false;
    if (!m_opened) {
        Infra::setLastError(m_error, m_errorDetail.c_str());
        return false;
    }
    out = m_connection;
    m_taken = true;
    return true;
}

void CConnectAttempt::abandon()
{
    ArvCamera* orphan = nullptr;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_abandoned)
            return;
        m_abandoned = true;
        if (m_done && m_opened && !m_taken)
            orphan = m_connection.camera;
    }
    m_cond.notify_all();
    if (orphan)
        CBackgroundWork::instance().run([orphan] { g_object_unref(orphan); });
}

} // namespace GenICam
} // namespace Vorlen
