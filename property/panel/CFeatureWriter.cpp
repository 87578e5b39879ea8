#include "CFeatureWriter.h"

#include "CCommandParamDoneStatusThread.h"
#include "CFeatureTreeModel.h"
#include "CWriteParamThread.h"
#include "QtPushButtonFactory.h"
#include "Utils.h"

using Node = Vorlen::GenICam::CInternalParameterNode;

CFeatureWriter::CFeatureWriter(const CFeatureFormCamera::Ptr& camera, CFeatureTreeModel& model, QObject* parent)
    : QObject(parent), m_camera(camera), m_model(model)
{
    m_writeThread = new CWriteParamThread();
    connect(
        m_writeThread, &CWriteParamThread::jobDone, this,
        [](const CWriteContinuation& continuation) { continuation(); }, Qt::QueuedConnection);
    m_commandThread = new CCommandParamDoneStatusThread(
        [camera](const QString& name, CFeatureNodeInfo& info) { return camera->commandState(name, info); });
    connect(m_commandThread, &CCommandParamDoneStatusThread::setDone, this, &CFeatureWriter::onCommandDone,
            Qt::QueuedConnection);
    // The camera went away while the command ran: the button comes back,
    // but nothing is reported as finished.
    connect(
        m_commandThread, &CCommandParamDoneStatusThread::abandoned, this,
        [this](const QString& name) { setCommandDone(name, true); }, Qt::QueuedConnection);
}

CFeatureWriter::~CFeatureWriter()
{
    // A worker inside a camera call is not waited for: it deletes itself
    // when the call returns, and its result, queued to this writer, is
    // dropped with the writer's connections.
    for (CJobQueueThread* worker : std::initializer_list<CJobQueueThread*>{m_writeThread, m_commandThread})
    {
        disconnect(worker, nullptr, this, nullptr);
        worker->retire();
    }
}

void CFeatureWriter::write(const QString& name, const Work& work)
{
    const CFeatureFormCamera::Ptr camera = m_camera;
    // The job holds the camera side only; its continuation runs on this
    // writer, delivered only while the writer exists.
    m_writeThread->addJob([this, camera, name, work]() -> CWriteContinuation {
        SResult result;
        result.name = name;
        CFeatureNodeInfo info;
        const bool ran = camera->withNode(name, [&](Node& node) {
            work(node, result);
            // What the camera holds now, whatever became of the write.
            info = CFeatureNodeInfo::read(&node);
        });
        if (!ran)
            return CWriteContinuation();
        return [this, result, info]() { onWritten(result, info); };
    });
}

void CFeatureWriter::onWritten(const SResult& result, const CFeatureNodeInfo& info)
{
    emit nodeRead(info);
    if (!result.message.isEmpty())
        emit refused(result.message);
    if (result.ok && result.isBool)
        emit boolWritten(result.name, result.boolValue);
    emit writeFinished(result.name, result.ok);
}

void CFeatureWriter::execute(const QString& name)
{
    const CFeatureFormCamera::Ptr camera = m_camera;
    m_writeThread->addJob([this, camera, name]() -> CWriteContinuation {
        bool ok = false, done = true;
        QString message;
        const bool ran = camera->withNode(name, [&](Node& node) {
            ok = node.execute();
            if (!ok)
                message = GetErrorDesc();
            else
                done = !node.isReadable() || node.isDone();
        });
        if (!ran)
            return CWriteContinuation();
        return [this, name, ok, done, message]() { onExecuted(name, ok, done, message); };
    });
}

void CFeatureWriter::onExecuted(const QString& name, bool ok, bool done, const QString& message)
{
    if (!ok)
    {
        emit refused(message);
        return;
    }
    if (done)
    {
        emit commandFinished(name);
        return;
    }
    setCommandDone(name, false);
    m_commandThread->addProperty(name);
}

void CFeatureWriter::onCommandDone(const QString& name, const CFeatureNodeInfo& info)
{
    setCommandDone(name, true);
    emit nodeRead(info);
    emit commandFinished(name);
}

void CFeatureWriter::setCommandDone(const QString& name, bool done)
{
    if (QtProperty* property = m_model.row(name))
        m_model.commandFactory()->setDone(property, done);
}
