#include "CUpdateParamThread.h"

CUpdateParamThread::CUpdateParamThread(const Reader& read, QObject* parent)
    : CFeatureListThread("CUpdateParamThread", parent), m_read(read)
{
    qRegisterMetaType<CFeatureNodeInfo>("CFeatureNodeInfo");
}

void CUpdateParamThread::SetPropertyList(const QList<QString>& names)
{
    addNames(names, true);
}

void CUpdateParamThread::appendPropertyList(const QList<QString>& names)
{
    addNames(names, false);
}

QString CUpdateParamThread::getProperty()
{
    return takeName();
}

void CUpdateParamThread::pass()
{
    // A burst of names drains at once, one camera read after the other.
    while (!isStopping())
    {
        const QString name = getProperty();
        if (name.isEmpty())
            return;
        const CFeatureNodeInfo info = m_read(name);
        if (info.valid)
            emit nodeRead(info);
    }
}
