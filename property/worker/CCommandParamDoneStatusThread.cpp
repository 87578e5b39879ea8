#include "CCommandParamDoneStatusThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

CCommandParamDoneStatusThread::CCommandParamDoneStatusThread(const StateReader& read, QObject* parent)
    : CFeatureListThread("CCommandParamDoneStatusThread", parent), m_read(read)
{
    qRegisterMetaType<CFeatureNodeInfo>("CFeatureNodeInfo");
}

void CCommandParamDoneStatusThread::addProperty(const QString& name)
{
    addNames({name}, false);
}

void CCommandParamDoneStatusThread::pass()
{
    // The camera is asked without the list's lock, from the last name to the first.
    for (QList<QString> names = listedNames(); !names.isEmpty() && !isStopping(); names = listedNames())
    {
        for (int i = names.size() - 1; i >= 0 && !isStopping(); --i)
        {
            const QString& name = names.at(i);
            CFeatureNodeInfo info;
            switch (m_read(name, info))
            {
            case CFeatureFormCamera::commandRunning:
                continue;
            case CFeatureFormCamera::commandDone:
                emit setDone(name, info);
                break;
            case CFeatureFormCamera::commandGone:
                LOG_WARN("command abandoned, the device is gone. name: [%s]", name.toLocal8Bit().constData());
                emit abandoned(name);
                break;
            case CFeatureFormCamera::commandNone:
                break;
            }
            removeName(name);
        }
        // Only while a command still runs: the camera has no event for its end.
        if (pendingNames() > 0)
            msleep(kPollMs);
    }
}
