#pragma once
// Reads the feature tree of a features page once, off the GUI thread, and
// hands it over by a queued signal. It knows nothing of the page: a page
// that closes retires it, and the tree then goes nowhere.
#include <QMetaType>
#include <memory>

#include "CFeatureFormCamera.h"
#include "CRetiringThread.h"

using CFeatureTreePtr = std::shared_ptr<const CFeatureNodeInfo>;
Q_DECLARE_METATYPE(CFeatureTreePtr)

class CLoadPropertiesThread : public CRetiringThread
{
    Q_OBJECT
public:
    // sink receives the camera-side changes once the tree is loaded.
    CLoadPropertiesThread(const CFeatureFormCamera::Ptr& camera, const CFeatureFormCamera::ChangeSink& sink,
                          QObject* parent = nullptr);
    ~CLoadPropertiesThread() override;

signals:
    // ok false: the load stopped (camera gone, page closing); tree partial.
    void loaded(CFeatureTreePtr tree, bool ok);

protected:
    void run() override;
    // The load checks the shared camera's closing flag after every node.
    void requestStop() override {}

private:
    CFeatureFormCamera::Ptr m_camera;
    CFeatureFormCamera::ChangeSink m_sink;
};
