#pragma once
// The camera side of a features page, shared by the page's workers: the
// camera, the lock that serialises their camera calls, the page's closing
// flag and its subscription to camera-side changes. Workers hold it by
// shared pointer, so it outlives a page that closed while one of them still
// waited on the camera; nothing in it refers to the page.
#include <QList>
#include <QMutex>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>

#include "CFeatureNodeInfo.h"
#include "CTavMessage.h"
#include "Vorlen/GenICam.h"

class CFeatureFormCamera
{
public:
    using Ptr = std::shared_ptr<CFeatureFormCamera>;
    using Node = Vorlen::GenICam::CInternalParameterNode;
    // Receives the names of features the camera changed (library event thread).
    using ChangeSink = std::function<void(const QList<QString>& names)>;
    enum ECommandState
    {
        commandRunning,   // still executing on the camera
        commandDone,      // finished: info holds the row's new state
        commandGone,      // can no longer finish (page closing, camera lost)
        commandNone       // not a command
    };

    explicit CFeatureFormCamera(const CTavDevicePtr& device);
    ~CFeatureFormCamera();

    // The page closes (GUI thread): work stops at its next check and no
    // change is delivered once this returns. Never waits on the camera.
    void close();
    bool mayRun() const;
    // Called by the loader after each node read; false stops the load.
    // Set before the load starts.
    void setLoadProbe(const std::function<bool(int nodesRead)>& probe) { m_loadProbe = probe; }

    // ---- on the workers, each a camera round trip under the shared lock
    using NodeList = Vorlen::Infra::TVector<Vorlen::Memory::TSharedPtr<Node>>;
    // Reads the node "Root" into root and hands out its children; false
    // when they cannot be read (read failed, page closing, camera gone).
    bool readRoot(CFeatureNodeInfo& root, NodeList& children);
    // Reads, depth first, the subtree of each child into root's children;
    // false when the load stops (page closing, camera gone, the probe).
    bool readChildren(const NodeList& children, CFeatureNodeInfo& root);
    // Subscribes sink to camera-side changes, unless the page has closed.
    void subscribe(const ChangeSink& sink);
    // The feature's state now; invalid when the page closes or the camera is gone.
    CFeatureNodeInfo readNode(const QString& name);
    // Runs work on the named node; false (work not run) when the page closes
    // or the camera is gone.
    bool withNode(const QString& name, const std::function<void(Node& node)>& work);
    ECommandState commandState(const QString& name, CFeatureNodeInfo& info);

private:
    CTavDevicePtr m_device;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_camera;
    QMutex m_cameraMutex;                  // serialises the workers' camera calls
    std::atomic<bool> m_bClosed{false};
    std::function<bool(int)> m_loadProbe;

    // Subscription: taken briefly, never across a camera call.
    QMutex m_subscriptionMutex;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> m_eventManager;
};
