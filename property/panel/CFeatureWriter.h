#pragma once
// The user's edits and commands of a features page on their way to the
// camera and back. A write runs on the write worker with the camera side
// only, reads the feature back whatever became of it, and returns to the GUI
// thread: the row then shows what the camera holds and a refusal is shown
// to the user. A command that is still running once executed puts its button
// into the executing state and is watched by the command worker until the
// camera reports it done. Results reach the page only while the writer
// exists: closing retires both workers without waiting for the camera.
#include <QObject>
#include <QString>
#include <functional>

#include "CFeatureFormCamera.h"
#include "CFeatureNodeInfo.h"

class CCommandParamDoneStatusThread;
class CFeatureTreeModel;
class CWriteParamThread;

class CFeatureWriter : public QObject
{
    Q_OBJECT
public:
    struct SResult
    {
        QString name;
        bool ok = true;
        QString message;   // shown to the user when not empty
        bool isBool = false;
        bool boolValue = false;
    };
    // Runs on the write worker, on the feature's node.
    using Work = std::function<void(Vorlen::GenICam::CInternalParameterNode& node, SResult& result)>;

    CFeatureWriter(const CFeatureFormCamera::Ptr& camera, CFeatureTreeModel& model, QObject* parent = nullptr);
    ~CFeatureWriter() override;

    void write(const QString& name, const Work& work);
    void execute(const QString& name);

    CWriteParamThread* writeThread() const { return m_writeThread; }
    CCommandParamDoneStatusThread* commandThread() const { return m_commandThread; }

signals:
    // What the camera holds now, for the feature's row.
    void nodeRead(CFeatureNodeInfo info);
    // A refused write or command: the camera's reason or the page's own.
    void refused(QString message);
    // A write came back from the camera (ok false: refused).
    void writeFinished(QString name, bool ok);
    void boolWritten(QString name, bool value);
    // A command the page started has finished on the camera.
    void commandFinished(QString name);

private:
    void onWritten(const SResult& result, const CFeatureNodeInfo& info);
    void onExecuted(const QString& name, bool ok, bool done, const QString& message);
    void onCommandDone(const QString& name, const CFeatureNodeInfo& info);
    void setCommandDone(const QString& name, bool done);

    const CFeatureFormCamera::Ptr m_camera;
    CFeatureTreeModel& m_model;
    CWriteParamThread* m_writeThread = nullptr;
    CCommandParamDoneStatusThread* m_commandThread = nullptr;
};
