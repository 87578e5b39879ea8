#include "CLoadPropertiesThread.h"

namespace {
const int kTreeTypeId = qRegisterMetaType<CFeatureTreePtr>("CFeatureTreePtr");
}

CLoadPropertiesThread::CLoadPropertiesThread(QObject* parent) : CJobQueueThread("CLoadPropertiesThread", parent)
{
    Q_UNUSED(kTreeTypeId);
}

void CLoadPropertiesThread::load(const Loader& loader)
{
    post([this, loader]() {
        auto tree = std::make_shared<CFeatureNodeInfo>();
        const bool ok = loader(*tree);
        emit loaded(tree, ok);
        stop();
    });
}
