#pragma once
// Reads the feature tree of a features page once, off the GUI thread, and
// hands it over by a queued signal; the thread ends after that one load. It
// knows nothing of the page: a page that closes retires it, and the tree
// then goes nowhere.
#include <QMetaType>
#include <functional>
#include <memory>

#include "CFeatureNodeInfo.h"
#include "CJobQueueThread.h"

using CFeatureTreePtr = std::shared_ptr<const CFeatureNodeInfo>;
Q_DECLARE_METATYPE(CFeatureTreePtr)

class CLoadPropertiesThread : public CJobQueueThread
{
    Q_OBJECT
public:
    // Reads the tree into its argument (on the worker); false when the load
    // stopped (camera gone, page closing).
    using Loader = std::function<bool(CFeatureNodeInfo& tree)>;

    explicit CLoadPropertiesThread(QObject* parent = nullptr);

    // Runs the load on the worker, which ends once the tree is out.
    void load(const Loader& loader);

signals:
    // ok false: the load stopped; the tree is partial.
    void loaded(CFeatureTreePtr tree, bool ok);
};
