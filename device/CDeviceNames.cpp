#include "CDeviceNames.h"

using Vorlen::Infra::CString;

bool CDeviceNames::deviceName(const Vorlen::GenICam::ICameraPtr& camera, CString& name)
{
    if (!camera)
        return false;
    name = camera->getName() + CString(" (") + camera->getSerialNumber() + CString(")");
    return true;
}

bool CDeviceNames::nameByUserId(const Vorlen::GenICam::ICameraPtr& camera, bool connected, CString& name) const
{
    if (!camera)
        return false;
    CString userId;
    if (connected)
    {
        QMutexLocker locker(&m_mutex);
        userId = m_userId;
    }
    if (userId.empty())
        return deviceName(camera, name);
    name = userId + CString(" (") + camera->getSerialNumber() + CString(")");
    return true;
}

QString CDeviceNames::saveName(const Vorlen::GenICam::ICameraPtr& camera)
{
    if (!camera)
        return QString();
    QString stem = QString("%1_%2").arg(QString::fromLocal8Bit(camera->getName().c_str()),
                                        QString::fromLocal8Bit(camera->getSerialNumber().c_str()));
    // Keep the name usable as a directory and file name.
    for (QChar& c : stem)
    {
        if (c == '/' || c == '\\' || c == ':' || c == '*' || c == '?' || c == '"' || c == '<' || c == '>' ||
            c == '|' || c.isSpace())
            c = '_';
    }
    return stem;
}

QString CDeviceNames::userId() const
{
    QMutexLocker locker(&m_mutex);
    return QString::fromLocal8Bit(m_userId.c_str());
}

void CDeviceNames::setUserId(const CString& userId)
{
    QMutexLocker locker(&m_mutex);
    m_userId = userId;
}
