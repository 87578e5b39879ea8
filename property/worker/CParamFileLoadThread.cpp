#include "CParamFileLoadThread.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <algorithm>

#include "CAtomicFileWriter.h"
#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CParamFileNodeMap.h"
#include "CRegularFile.h"
#include "CTavDevice.h"
#include "LogSinks.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
// Lines of the file the report quotes at most.
const int kMaxReportedProblems = 100;
// Passes over the features that failed, while each pass loads at least one.
const int kMaxRetryPasses = 3;

// The order of the writes: plain features in description order, then the
// selector groups (each in description order), then the selectors' own
// values again (returned in selectorsAgain too).
QList<SParamEntry> writeOrder(const QList<SParamEntry>& entries, const CParamFileNodeMap& map,
                              QList<SParamEntry>& selectorsAgain)
{
    const auto orderOf = [&](const SParamEntry& e) { return map.find(e.name)->order; };
    QList<SParamEntry> plainList, selectedList;
    for (const SParamEntry& e : entries)
        (e.selectors.isEmpty() ? plainList : selectedList).append(e);
    std::stable_sort(plainList.begin(), plainList.end(),
                     [&](const SParamEntry& a, const SParamEntry& b) { return orderOf(a) < orderOf(b); });
    std::stable_sort(selectedList.begin(), selectedList.end(), [&](const SParamEntry& a, const SParamEntry& b) {
        int oa = 0, ob = 0;
        for (const auto& s : a.selectors)
            oa = qMax(oa, map.find(s.first)->order);
        for (const auto& s : b.selectors)
            ob = qMax(ob, map.find(s.first)->order);
        if (oa != ob)
            return oa < ob;
        const QString ka = a.key().mid(a.name.size()), kb = b.key().mid(b.name.size());
        if (ka != kb)
            return ka < kb;
        return orderOf(a) < orderOf(b);
    });
    if (!selectedList.isEmpty())
        for (const SParamEntry& e : plainList)
            if (map.find(e.name)->isSelector)
                selectorsAgain.append(e);
    return plainList + selectedList + selectorsAgain;
}
}

SParamFileEnv SParamFileEnv::standard()
{
    SParamFileEnv env;
    // The worker may outlive the singletons (the end of the program): then
    // there is nothing to wait for and no device to find.
    env.isFirstDiscoveryFinished = []() {
        CDiscoveryDevicesThread* discovery = CDiscoveryDevicesThread::getInstance();
        return !discovery || discovery->isFirstDiscoveryFinished();
    };
    env.startDiscovery = []() {
        if (CDiscoveryDevicesThread* discovery = CDiscoveryDevicesThread::getInstance())
            discovery->StartDiscovery(QString(), 0);
    };
    env.sleep = [](int ms) { QThread::msleep(ulong(ms)); };
    env.findDevice = [](const QString& key) {
        CDeviceManager* manager = CDeviceManager::getInstance();
        return manager ? manager->getDeviceByKey(key) : CTavDevicePtr();
    };
    return env;
}

CParamFileLoadThread::CParamFileLoadThread(const QString& deviceKey, const QString& path, const SParamFileEnv& env,
                                           const QString& reportPath, QObject* parent)
    : CParamFileThread("CParamFileLoadThread", path, parent), m_key(deviceKey), m_env(env),
      m_reportPath(reportPath.isEmpty() ? getLoadConfigReportPath() : reportPath)
{
}

bool CParamFileLoadThread::work()
{
    SOutcome out;
    QString error;
    if (!CDeviceParamFile::load(m_path, m_file, error, [this]() { return !isStopping(); }))
    {
        out.result = isStopping() ? resultStopped : resultFailed;
        out.message = isStopping() ? tr("Loading was stopped.") : tr("The file could not be read: %1").arg(error);
        finish(out);
        return true;
    }
    if (m_file.damage.isEmpty())
        return apply();
    const QString why = tr("The file %1 is damaged: %2.").arg(CRegularFile::shown(m_path), m_file.damage);
    if (m_file.entries.isEmpty())
    {
        out.message = why + QLatin1Char(' ') + tr("Nothing in it can be loaded.");
        out.problems = m_file.problems;
        finish(out);
        return true;
    }
    // Nothing is applied unless the owner says so.
    emit damaged(why, m_file.entries.size());
    return false;
}

bool CParamFileLoadThread::loadAnyway()
{
    return postStep([this]() { return apply(); });
}

bool CParamFileLoadThread::apply()
{
    SOutcome out;
    QList<SFailure>& failures = out.failures;
    const CDeviceParamFile& file = m_file;
    out.problems = file.problems;
    QStringList& notes = out.notes;
    QStringList& skipped = out.skipped;
    const auto finishWith = [&](int result, int loaded, int total, const QString& message) {
        out.result = result;
        out.loaded = loaded;
        out.total = total;
        out.message = message;
        finish(out);
        return true;
    };
    if (!file.damage.isEmpty())
    {
        notes.append(tr("The file is damaged: %1. Only the complete lines it holds were loaded, "
                        "as chosen when asked.").arg(file.damage));
    }
    else if (file.hasHeader() && !file.hasEndMarker)
    {
        notes.append(tr("The file carries no end marker (it was written before files had one), "
                        "so a file cut short cannot be told from a whole one."));
    }
    if (!file.hasHeader())
        notes.append(tr("The file does not start with the header of a Lumidor device parameter file; "
                        "only lines naming features of this camera are loaded."));

    // The device map is only complete after the first discovery pass.
    if (!m_env.isFirstDiscoveryFinished())
    {
        m_env.startDiscovery();
        while (!m_env.isFirstDiscoveryFinished() && !isStopping())
            m_env.sleep(500);
        m_env.sleep(1000);
    }
    if (isStopping())
        return finishWith(resultStopped, 0, file.entries.size(), tr("Loading was stopped."));

    const CTavDevicePtr device = m_env.findDevice(m_key);
    if (!device)
        return finishWith(resultFailed, 0, file.entries.size(), tr("The camera %1 was not found.").arg(m_key));
    if (!device->isConnected())
    {
        emit needConnect(m_key);
        for (int i = 0; i < kConnectPolls && !device->isConnected() && !isStopping(); ++i)
            m_env.sleep(100);
        if (isStopping())
            return finishWith(resultStopped, 0, file.entries.size(), tr("Loading was stopped."));
        if (!device->isConnected())
            return finishWith(resultFailed, 0, file.entries.size(),
                              tr("The camera %1 could not be connected.").arg(m_key));
    }

    const auto camera = device->getDevice();
    CParamFileNodeMap map(camera);
    if (!map.build([&]() { return keepGoing(device); }))
        return finishWith(keepGoing(device) ? resultFailed : resultStopped, 0, file.entries.size(),
                          keepGoing(device) ? tr("The camera's features could not be read.")
                                            : stopReason(device, tr("Loading was stopped."),
                                                         tr("The camera was disconnected while loading.")));
    QString model;
    map.readValue(QStringLiteral("DeviceModelName"), model);
    if (!file.model.isEmpty() && !model.isEmpty() && file.model != model)
        notes.append(tr("The file was saved from a %1 %2; this camera is a %3. Features that match are loaded.")
                         .arg(file.vendor, file.model, model));

    // Match the file to the camera.
    QList<SParamEntry> entries;
    for (const SParamEntry& e : file.entries)
    {
        const CParamFileNodeMap::SNode* node = map.find(e.name);
        if (!node)
        {
            failures.append({e.key(), tr("this camera has no such feature")});
            continue;
        }
        if (CParamFileNodeMap::isExcluded(e.name))
        {
            skipped.append(e.key());
            continue;
        }
        if (!CParamFileNodeMap::isValueType(node->type))
        {
            failures.append({e.key(), tr("not a feature that holds a value")});
            continue;
        }
        bool selectorsOk = true;
        for (const auto& s : e.selectors)
        {
            if (!map.find(s.first) || !node->selectors.contains(s.first))
            {
                failures.append({e.key(), tr("%1 does not select this feature on this camera").arg(s.first)});
                selectorsOk = false;
                break;
            }
        }
        if (selectorsOk)
            entries.append(e);
    }
    const int total = entries.size() + failures.size();

    QList<SParamEntry> selectorsAgain;
    const QList<SParamEntry> order = writeOrder(entries, map, selectorsAgain);

    // One write: the entry's selectors first, then its value.
    const auto writeEntry = [&](const SParamEntry& e, QString& why) {
        for (const auto& s : e.selectors)
        {
            QString current;
            if (map.readValue(s.first, current) && current == s.second)
                continue;
            if (!map.writeValue(s.first, s.second, why))
            {
                why = tr("selector %1 could not be set to %2: %3").arg(s.first, s.second, why);
                return false;
            }
        }
        return map.writeValue(e.name, e.value, why);
    };

    int done = 0;
    const int steps = order.size();
    QMap<QString, bool> loaded;   // by key: loaded once is loaded
    QList<QPair<SParamEntry, QString>> failed;
    for (const SParamEntry& e : order)
    {
        if (!keepGoing(device))
            break;
        QString why;
        if (writeEntry(e, why))
        {
            loaded[e.key()] = true;
        }
        else if (!loaded.value(e.key()))
        {
            failed.append({e, why});
        }
        emit progress(++done, steps);
    }
    for (int pass = 0; pass < kMaxRetryPasses && !failed.isEmpty() && keepGoing(device); ++pass)
    {
        QList<QPair<SParamEntry, QString>> still;
        for (const auto& f : failed)
        {
            if (!keepGoing(device))
            {
                still.append(f);
                continue;
            }
            QString why;
            if (writeEntry(f.first, why))
                loaded[f.first.key()] = true;
            else
                still.append({f.first, why});
        }
        const bool progressMade = still.size() < failed.size();
        failed = still;
        if (!progressMade)
            break;
    }
    // Selectors end on the file's values even when a retry moved them.
    if (!failed.isEmpty() && keepGoing(device))
        for (const SParamEntry& e : selectorsAgain)
        {
            QString why;
            writeEntry(e, why);
        }

    const bool lost = !keepGoing(device);
    for (const auto& f : failed)
        failures.append({f.first.key(), f.second});
    if (lost)
    {
        for (const SParamEntry& e : entries)
            if (!loaded.value(e.key()))
            {
                bool listed = false;
                for (const SFailure& f : failures)
                    listed = listed || f.what == e.key();
                if (!listed)
                    failures.append({e.key(), tr("not written: loading stopped")});
            }
    }
    int loadedCount = 0;
    for (const SParamEntry& e : entries)
        loadedCount += loaded.value(e.key()) ? 1 : 0;
    if (lost)
        return finishWith(resultStopped, loadedCount, total,
                          stopReason(device, tr("Loading was stopped."), tr("The camera was disconnected while loading.")));
    if (failures.isEmpty() && out.problems.isEmpty() && file.hasHeader() && file.damage.isEmpty())
        return finishWith(resultLoaded, loadedCount, total, QString());
    return finishWith(loadedCount > 0 ? resultPartial : resultFailed, loadedCount, total,
                      file.damage.isEmpty() ? QString() : tr("The file was damaged; only its complete lines were loaded."));
}

void CParamFileLoadThread::finish(const SOutcome& outcome)
{
    if (!commit())
        return;
    const QString reportError = writeReport(outcome);
    emit loadFinished(outcome.result, outcome.loaded, outcome.total, outcome.message, reportError);
}

QString CParamFileLoadThread::writeReport(const SOutcome& o)
{
    QString text;
    text += tr("Parameter file load report") + QLatin1Char('\n');
    text += tr("Time: %1").arg(QDateTime::currentDateTime().toString(Qt::ISODate)) + QLatin1Char('\n');
    text += tr("File: %1").arg(QDir::toNativeSeparators(m_path)) + QLatin1Char('\n');
    text += tr("Camera: %1").arg(m_key) + QLatin1Char('\n');
    text += tr("Loaded %1 of %2 features.").arg(o.loaded).arg(o.total) + QLatin1Char('\n');
    if (o.result == resultStopped || o.result == resultFailed)
        text += tr("Loading did not complete.") + QLatin1Char('\n');
    if (!o.message.isEmpty())
        text += o.message + QLatin1Char('\n');
    for (const QString& n : o.notes)
        text += n + QLatin1Char('\n');
    if (!o.failures.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Features not loaded (%1):").arg(o.failures.size()) + QLatin1Char('\n');
        for (const SFailure& f : o.failures)
            text += QStringLiteral("  %1: %2\n").arg(f.what, f.why);
    }
    if (!o.skipped.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Features skipped because they identify the camera or its link (%1):")
                                        .arg(o.skipped.size()) + QLatin1Char('\n');
        for (const QString& s : o.skipped)
            text += QStringLiteral("  %1\n").arg(s);
    }
    if (!o.problems.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Lines not understood (%1):").arg(o.problems.size()) + QLatin1Char('\n');
        for (int i = 0; i < o.problems.size() && i < kMaxReportedProblems; ++i)
            text += QStringLiteral("  %1\n").arg(o.problems.at(i));
        if (o.problems.size() > kMaxReportedProblems)
            text += QStringLiteral("  ...\n");
    }
    QDir().mkpath(QFileInfo(m_reportPath).absolutePath());
    QString error = CRegularFile::check(m_reportPath, true);
    if (error.isEmpty())
    {
        CAtomicFileWriter out(m_reportPath);
        if (out.open() && out.write(text.toUtf8()) && out.commit())
            return QString();
        error = tr("%1 could not be written: %2").arg(CRegularFile::shown(m_reportPath), out.errorString());
    }
    LOG_ERROR("write load report failed. %s", error.toLocal8Bit().constData());
    return error;
}
