#include "CLoadPropertiesThread.h"

CLoadPropertiesThread::CLoadPropertiesThread(QObject* parent) : CJobQueueThread("CLoadPropertiesThread", parent)
{
    qRegisterMetaType<CFeatureTreePtr>("CFeatureTreePtr");
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
