#include "CParamFileLoadThread.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>
#include <algorithm>

#include "CDeviceManager.h"
#include "CDeviceParamFile.h"
#include "CDiscoveryDevicesThread.h"
#include "CParamFileNodeMap.h"
#include "CTavDevice.h"
#include "LogSinks.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
// Lines of the file the report quotes at most.
const int kMaxReportedProblems = 100;
// Passes over the features that failed, while each pass loads at least one.
const int kMaxRetryPasses = 3;
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
    : CParamFileThread(path, parent), m_key(deviceKey), m_env(env),
      m_reportPath(reportPath.isEmpty() ? getLoadConfigReportPath() : reportPath)
{
}

void CParamFileLoadThread::run()
{
    LOG_DEBUG("CParamFileLoadThread run begin");
    QList<SFailure> failures;
    QStringList skipped, problems, notes;
    const auto finish = [&](int result, int loaded, int total, const QString& message) {
        writeReport(result, loaded, total, message, failures, skipped, problems, notes);
        emit loadFinished(result, loaded, total, message);
        LOG_DEBUG("CParamFileLoadThread run end");
    };

    // The device map is only complete after the first discovery pass.
    if (!m_env.isFirstDiscoveryFinished())
    {
        m_env.startDiscovery();
        while (!m_env.isFirstDiscoveryFinished() && !m_bStop)
            m_env.sleep(500);
        m_env.sleep(1000);
    }
    if (m_bStop)
        return finish(resultStopped, 0, 0, tr("Loading was stopped."));

    CDeviceParamFile file;
    QString error;
    if (!CDeviceParamFile::load(m_path, file, error))
        return finish(resultFailed, 0, 0, tr("The file could not be read: %1").arg(error));
    problems = file.problems;
    if (!file.hasHeader)
        notes.append(tr("The file does not start with the header of a Lumidor device parameter file; "
                        "only lines naming features of this camera are loaded."));

    const CTavDevicePtr device = m_env.findDevice(m_key);
    if (!device)
        return finish(resultFailed, 0, file.entries.size(), tr("The camera %1 was not found.").arg(m_key));
    if (!device->isConnected())
    {
        emit needConnect(m_key);
        for (int i = 0; i < kConnectPolls && !device->isConnected() && !m_bStop; ++i)
            m_env.sleep(100);
        if (!device->isConnected())
            return finish(resultFailed, 0, file.entries.size(), tr("The camera %1 could not be connected.").arg(m_key));
    }

    const auto camera = device->getDevice();
    CParamFileNodeMap map(camera);
    if (!map.build([&]() { return keepGoing(device); }))
        return finish(keepGoing(device) ? resultFailed : resultStopped, 0, file.entries.size(),
                      keepGoing(device) ? tr("The camera's features could not be read.")
                                        : tr("The camera was disconnected."));
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

    // Order: plain features in description order, then the selector groups
    // (each in description order), then the selectors' own values again.
    const auto orderOf = [&](const SParamEntry& e) { return map.find(e.name)->order; };
    QList<SParamEntry> plainList, selectedList, selectorsAgain;
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
    QList<SParamEntry> order = plainList + selectedList + selectorsAgain;

    // One write: the entry's selectors first, then its value.
    const auto apply = [&](const SParamEntry& e, QString& why) {
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
        if (apply(e, why))
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
            if (apply(f.first, why))
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
            apply(e, why);
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
        return finish(resultStopped, loadedCount, total,
                      m_bStop ? tr("Loading was stopped.") : tr("The camera was disconnected while loading."));
    if (failures.isEmpty() && problems.isEmpty() && file.hasHeader)
        return finish(resultLoaded, loadedCount, total, QString());
    finish(loadedCount > 0 ? resultPartial : resultFailed, loadedCount, total, QString());
}

void CParamFileLoadThread::writeReport(int result, int loaded, int total, const QString& message,
                                       const QList<SFailure>& failures, const QStringList& skipped,
                                       const QStringList& problems, const QStringList& notes)
{
    QString text;
    text += tr("Parameter file load report") + QLatin1Char('\n');
    text += tr("Time: %1").arg(QDateTime::currentDateTime().toString(Qt::ISODate)) + QLatin1Char('\n');
    text += tr("File: %1").arg(QDir::toNativeSeparators(m_path)) + QLatin1Char('\n');
    text += tr("Camera: %1").arg(m_key) + QLatin1Char('\n');
    text += tr("Loaded %1 of %2 features.").arg(loaded).arg(total) + QLatin1Char('\n');
    if (result == resultStopped || result == resultFailed)
        text += tr("Loading did not complete.") + QLatin1Char('\n');
    if (!message.isEmpty())
        text += message + QLatin1Char('\n');
    for (const QString& n : notes)
        text += n + QLatin1Char('\n');
    if (!failures.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Features not loaded (%1):").arg(failures.size()) + QLatin1Char('\n');
        for (const SFailure& f : failures)
            text += QStringLiteral("  %1: %2\n").arg(f.what, f.why);
    }
    if (!skipped.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Features skipped because they identify the camera or its link (%1):")
                                        .arg(skipped.size()) + QLatin1Char('\n');
        for (const QString& s : skipped)
            text += QStringLiteral("  %1\n").arg(s);
    }
    if (!problems.isEmpty())
    {
        text += QLatin1Char('\n') + tr("Lines not understood (%1):").arg(problems.size()) + QLatin1Char('\n');
        for (int i = 0; i < problems.size() && i < kMaxReportedProblems; ++i)
            text += QStringLiteral("  %1\n").arg(problems.at(i));
        if (problems.size() > kMaxReportedProblems)
            text += QStringLiteral("  ...\n");
    }
    QDir().mkpath(QFileInfo(m_reportPath).absolutePath());
    QSaveFile out(m_reportPath);
    if (!out.open(QIODevice::WriteOnly) || out.write(text.toUtf8()) < 0 || !out.commit())
        LOG_ERROR("write load report failed. [%s]", m_reportPath.toLocal8Bit().constData());
}
