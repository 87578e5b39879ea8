#include "CLoadPropertiesThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

namespace {
const int kTreeTypeId = qRegisterMetaType<CFeatureTreePtr>("CFeatureTreePtr");
}

CLoadPropertiesThread::CLoadPropertiesThread(const CFeatureFormCamera::Ptr& camera,
                                             const CFeatureFormCamera::ChangeSink& sink, QObject* parent)
    : CRetiringThread(parent), m_camera(camera), m_sink(sink)
{
    Q_UNUSED(kTreeTypeId);
}

CLoadPropertiesThread::~CLoadPropertiesThread()
{
    wait();
}

void CLoadPropertiesThread::run()
{
    LOG_DEBUG("CLoadPropertiesThread run begin");
    auto tree = std::make_shared<CFeatureNodeInfo>();
    const bool ok = m_camera->loadTree(*tree, m_sink);
    emit loaded(tree, ok);
    LOG_DEBUG("CLoadPropertiesThread run end");
}
