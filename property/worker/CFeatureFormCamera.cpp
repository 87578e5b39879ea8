#include "CFeatureFormCamera.h"

#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;

CFeatureFormCamera::CFeatureFormCamera(const CTavDevicePtr& device) : m_device(device)
{
    if (m_device)
        m_camera = m_device->getDevice();
}

CFeatureFormCamera::~CFeatureFormCamera()
{
    close();
}

void CFeatureFormCamera::close()
{
    m_bClosed = true;
    Vorlen::Memory::TSharedPtr<CInternalEventManager> manager;
    {
        QMutexLocker lock(&m_subscriptionMutex);
        manager.swap(m_eventManager);
    }
    // Returns once no change notice is being delivered (no camera traffic).
    if (manager)
        manager->unsubscribeParamUpdate();
}

bool CFeatureFormCamera::mayRun() const
{
    return !m_bClosed && m_device && m_device->isConnected();
}

bool CFeatureFormCamera::readRoot(CFeatureNodeInfo& root, NodeList& children)
{
    QMutexLocker lock(&m_cameraMutex);
    if (!mayRun())
        return false;
    Vorlen::Memory::TSharedPtr<Node> rootNode(new Node(m_camera, "Root"));
    root = CFeatureNodeInfo::read(rootNode.get());
    return rootNode->getChildren(children);
}

bool CFeatureFormCamera::readChildren(const NodeList& children, CFeatureNodeInfo& root)
{
    QMutexLocker lock(&m_cameraMutex);
    int nodesRead = 0;
    auto perNode = [this, &nodesRead]() {
        ++nodesRead;
        if (m_loadProbe && !m_loadProbe(nodesRead))
            return false;
        return mayRun();
    };
    for (const auto& child : children)
    {
        if (!child || !child->isValid() || child->getVisibility() > Node::visibilityGuru)
            continue;
        CFeatureNodeInfo info;
        if (!CFeatureNodeInfo::readTree(child, info, perNode))
        {
            LOG_ERROR("load properties stopped after %d nodes: the camera is gone or the page closes.", nodesRead);
            return false;
        }
        root.children.push_back(std::move(info));
    }
    return true;
}

void CFeatureFormCamera::subscribe(const ChangeSink& sink)
{
    Vorlen::Memory::TSharedPtr<CInternalEventManager> manager(new CInternalEventManager(m_camera));
    QMutexLocker subscription(&m_subscriptionMutex);
    // A page that closed meanwhile has already let its subscription go.
    if (!mayRun() || m_eventManager)
        return;
    const bool subscribed = manager->subscribeParamUpdate([sink](const SParamUpdataArg& arg) {
        QList<QString> names;
        for (const Vorlen::Infra::CString& s : arg.paramNames)
            names.append(QString::fromLocal8Bit(s.c_str()));
        sink(names);
    });
    if (subscribed)
        m_eventManager = manager;
    else
        LOG_ERROR("subscribeParamUpdate failed. [%s]", GetErrorDesc().toLocal8Bit().constData());
}

CFeatureNodeInfo CFeatureFormCamera::readNode(const QString& name)
{
    CFeatureNodeInfo info;
    withNode(name, [&info](Node& node) { info = CFeatureNodeInfo::read(&node); });
    return info;
}

bool CFeatureFormCamera::withNode(const QString& name, const std::function<void(Node& node)>& work)
{
    QMutexLocker lock(&m_cameraMutex);
    if (!mayRun())
        return false;
    Node node(m_camera, name.toLocal8Bit().constData());
    work(node);
    return true;
}

CFeatureFormCamera::ECommandState CFeatureFormCamera::commandState(const QString& name, CFeatureNodeInfo& info)
{
    QMutexLocker lock(&m_cameraMutex);
    if (!mayRun())
        return commandGone;
    Node node(m_camera, name.toLocal8Bit().constData());
    if (node.getType() != Node::featureTypeCommand)
        return commandNone;
    bool done = false;
    if (!node.isDone(done))
        return CFeatureNodeInfo::lastErrorMeansDeviceLost() ? commandGone : commandRunning;
    if (!done)
        return commandRunning;
    info = CFeatureNodeInfo::read(&node);
    return commandDone;
}
