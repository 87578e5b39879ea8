#include "CParamFileSaveThread.h"

#include <QDateTime>
#include <QMap>

#include "CDeviceParamFile.h"
#include "CParamFileNodeMap.h"
#include "CRegularFile.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;

namespace {
// Saving stops expanding selector combinations beyond this many per group.
const int kMaxCombinations = 256;

QList<QList<QPair<QString, QString>>> combinations(const QStringList& selectors, const CParamFileNodeMap& map)
{
    QList<QList<QPair<QString, QString>>> out = {{}};
    for (const QString& s : selectors)
    {
        QList<QList<QPair<QString, QString>>> next;
        for (const QString& v : map.selectorValues(s))
            for (const auto& partial : out)
            {
                if (next.size() >= kMaxCombinations)
                    break;
                auto c = partial;
                c.append({s, v});
                next.append(c);
            }
        out = next;
    }
    return out;
}
}

CParamFileSaveThread::CParamFileSaveThread(CTavDevicePtr device, const QString& path, QObject* parent)
    : CParamFileThread("CParamFileSaveThread", path, parent), m_device(device)
{
}

bool CParamFileSaveThread::finish(bool ok, const QString& message, int count)
{
    // A cancelled save reports nothing.
    if (commit())
        emit saveFinished(ok, message, count);
    return true;
}

QString CParamFileSaveThread::stopped() const
{
    return stopReason(m_device, tr("Saving was stopped."), tr("The camera was disconnected."));
}

bool CParamFileSaveThread::work()
{
    // A path that is no regular file is refused before the camera is read.
    const QString refused = CRegularFile::check(m_path, true);
    if (!refused.isEmpty())
        return finish(false, refused, 0);
    if (!keepGoing(m_device))
        return finish(false, m_device && m_device->isConnected() ? stopped() : tr("The camera is not connected."), 0);
    const auto camera = m_device->getDevice();
    CParamFileNodeMap map(camera);
    if (!map.build([this]() { return keepGoing(m_device); }))
        return finish(false, keepGoing(m_device) ? tr("The camera's features could not be read.") : stopped(), 0);

    CDeviceParamFile file;
    file.vendor = QString::fromUtf8(camera->getVendorName().c_str());
    if (!map.readValue(QStringLiteral("DeviceModelName"), file.model))
        file.model = QString::fromUtf8(camera->getName().c_str());
    file.serial = QString::fromUtf8(camera->getSerialNumber().c_str());
    file.saved = QDateTime::currentDateTime().toString(Qt::ISODate);

    // Features of the same selectors are read together under each combination.
    QList<const CParamFileNodeMap::SNode*> plain;
    QMap<QString, QList<const CParamFileNodeMap::SNode*>> groups;
    QStringList groupOrder;
    for (const auto& n : map.nodes())
    {
        if (!CParamFileNodeMap::isValueType(n.type) || CParamFileNodeMap::isExcluded(n.name))
            continue;
        QStringList selectors;
        for (const QString& s : n.selectors)
            if (map.find(s))
                selectors.append(s);
        if (selectors.isEmpty())
        {
            plain.append(&n);
            continue;
        }
        const QString key = selectors.join(QLatin1Char(','));
        if (!groups.contains(key))
            groupOrder.append(key);
        groups[key].append(&n);
    }
    const int total = plain.size() + [&]() {
        int n = 0;
        for (const auto& g : groups)
            n += g.size();
        return n;
    }();
    int done = 0;

    for (const auto* n : plain)
    {
        if (!keepGoing(m_device))
            return finish(false, stopped(), 0);
        QString value;
        if (map.isReadWrite(n->name) && map.readValue(n->name, value))
            file.entries.append({n->name, {}, value, 0});
        emit progress(++done, total);
    }
    for (const QString& key : groupOrder)
    {
        const QStringList selectors = key.split(QLatin1Char(','));
        const auto& members = groups.value(key);
        QList<QPair<QString, QString>> original;
        for (const QString& s : selectors)
        {
            QString v;
            if (map.readValue(s, v))
                original.append({s, v});
        }
        for (const auto& combo : combinations(selectors, map))
        {
            if (!keepGoing(m_device))
                return finish(false, stopped(), 0);
            bool selected = true;
            for (const auto& sv : combo)
            {
                QString error;
                QString current;
                selected = selected && ((map.readValue(sv.first, current) && current == sv.second) ||
                                        map.writeValue(sv.first, sv.second, error));
            }
            if (!selected)
                continue;
            for (const auto* n : members)
            {
                QString value;
                if (map.isReadWrite(n->name) && map.readValue(n->name, value))
                    file.entries.append({n->name, combo, value, 0});
            }
        }
        for (const auto& sv : original)
        {
            QString error;
            map.writeValue(sv.first, sv.second, error);
        }
        done += members.size();
        emit progress(done, total);
    }

    // The point of no return: from here the file is written, or fails.
    if (!commit())
        return true;
    QString error;
    if (!file.save(m_path, error))
    {
        LOG_ERROR("write parameter file failed. %s", error.toLocal8Bit().constData());
        emit saveFinished(false, error, 0);
        return true;
    }
    emit saveFinished(true, QString(), file.entries.size());
    return true;
}
