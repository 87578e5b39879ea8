#pragma once
// How a worker thread gets its settings.
//
// CConfiguration belongs to the GUI thread: its fields are plain members that
// a dialog, "Open configuration" or restore-defaults may assign at any time,
// so a worker thread never reads them. Instead each worker owns a snapshot:
//
//   1. a small record (like SStreamSettings below) holding copies of exactly
//      the values the worker uses, built by a function that reads
//      CConfiguration and runs on the GUI thread only;
//   2. a CSettingsSnapshot<Record> in the worker; the worker takes get() once
//      per unit of work (a frame, a file, an event) and uses that record to
//      the end of it, so one unit never mixes old and new values;
//   3. slots connected to the configuration's change signals
//      (signalSaveConfigChanged, signalDisplayConfigChanged, signalRestoreCfg,
//      the per-key signals) with Qt::DirectConnection: the signals are
//      emitted on the GUI thread, so the record is rebuilt there whatever
//      thread the worker object lives in, and published with set().
//
// Code that changes configuration fields calls the matching notify...()
// method of CConfiguration afterwards, or the workers keep the old values.
// Later workers (image save, record, event monitor) follow the same three
// steps with a record of their own; StreamRetrieveThread is the example.
#include <QString>
#include <memory>
#include <mutex>

#include "CConfiguration.h"
#include "Gliv/CQtHybridFrame.h"

// Immutable once published: replace it, never change it in place.
template <typename T>
class CSettingsSnapshot
{
public:
    CSettingsSnapshot() : m_current(std::make_shared<const T>()) {}

    // Any thread: the current record; it stays valid while held.
    std::shared_ptr<const T> get() const
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        return m_current;
    }

    // Publishes a new record; holders of the old one keep theirs.
    void set(const T& value)
    {
        std::shared_ptr<const T> next = std::make_shared<const T>(value);
        std::lock_guard<std::mutex> locker(m_mutex);
        m_current.swap(next);
        // The old record (now in `next`) is released after the lock.
    }

private:
    mutable std::mutex m_mutex;   // standard, so that ThreadSanitizer sees its hand-offs
    std::shared_ptr<const T> m_current;
};

// Settings of a stream retrieval thread and its display counter.
struct SStreamSettings
{
    // Save throttle rules (configuration key imageSaveThrottleOption).
    enum ESaveType
    {
        saveOneOutOf = 0,
        saveMaxRate = 1,
        saveAverageThroughput = 2,
        saveAll = 3
    };

    int displayRate = 30;            // strDisplayValue: 0 ("Disabled"), 30 or 60
    bool showChunkData = false;      // displayChunkDataEnable
    Gliv::EBayerDemosaic demosaic = Gliv::bayerBilinear;   // BayerDemosaicing
    int saveType = saveMaxRate;      // imageSaveThrottleOption
    int saveValue = 100;             // N, milliseconds or Mbit/s of that rule
    // Bumped whenever the throttle is to start over (a save setting changed).
    unsigned long long saveGeneration = 0;

    // "Disabled" -> 0, "60 FPS" -> 60, anything else -> 30.
    static int displayRateFromSetting(const QString& value)
    {
        if (value == QLatin1String("Disabled"))
            return 0;
        if (value == QLatin1String("60 FPS"))
            return 60;
        return 30;
    }

    // Out-of-range choices fall back to bilinear.
    static Gliv::EBayerDemosaic demosaicFromSetting(int value)
    {
        return (value >= Gliv::bayerBilinear && value <= Gliv::bayerVariableNumberOfGradients)
                   ? static_cast<Gliv::EBayerDemosaic>(value)
                   : Gliv::bayerBilinear;
    }

    // GUI thread only: the values of the configuration. saveGeneration is
    // left to the caller.
    static SStreamSettings fromConfiguration(const CConfiguration& cfg)
    {
        SStreamSettings s;
        s.displayRate = displayRateFromSetting(cfg.strDisplayValue);
        s.showChunkData = cfg.displayChunkDataEnable;
        s.demosaic = demosaicFromSetting(cfg.BayerDemosaicing);
        s.saveType = cfg.imageSaveThrottleOption;
        switch (s.saveType)
        {
        case saveOneOutOf:
            s.saveValue = cfg.imageOneOutOf.toInt();
            break;
        case saveMaxRate:
            s.saveValue = cfg.imageMaxRate.toInt();
            break;
        case saveAverageThroughput:
            s.saveValue = cfg.imageAverageThroughPut.toInt();
            break;
        default:
            s.saveValue = 0;
            break;
        }
        return s;
    }
};
