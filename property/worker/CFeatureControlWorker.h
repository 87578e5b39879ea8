#pragma once
// The camera side of a page of plain feature controls (quick settings, image
// format, user sets): reads the state of named features, writes values and
// executes commands on its own thread, and reports each result by a queued
// signal. Requests are kept in order; a read of a feature already waiting
// is not queued twice, and a newer write of a feature replaces the last one
// of it that has not started yet. An owner that goes away retires it: the
// worker stops and deletes itself once the request under way (a camera
// round trip) has ended.
#include <QHash>
#include <QMetaType>
#include <QMutex>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

#include "CJobQueueThread.h"
#include "CTavMessage.h"
#include "Vorlen/GenICam.h"

// What a control needs to know about one feature.
struct SFeatureState
{
    QString name;
    bool valid = false;       // the camera has the feature
    bool available = false;
    bool readable = false;
    bool writeable = false;
    int type = 0;             // CInternalParameterNode::EFeatureType
    int visibility = 0;
    qint64 intValue = 0, intMin = 0, intMax = 0, intInc = 1;
    double floatValue = 0, floatMin = 0, floatMax = 0, floatInc = 0;
    int floatPrecision = 2;
    bool boolValue = false;
    QString symbol;           // enumeration: current entry
    QStringList symbols;      // enumeration: entries available now, in order
    QString unit;

    bool isInt() const;
    bool isFloat() const;
    bool isEnum() const;
    bool isBool() const;
    bool isCommand() const;
};
Q_DECLARE_METATYPE(SFeatureState)

class CFeatureControlWorker : public CJobQueueThread
{
    Q_OBJECT
public:
    explicit CFeatureControlWorker(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>& camera,
                                   QObject* parent = nullptr);
    // The device's camera (none without a device).
    explicit CFeatureControlWorker(const CTavDevicePtr& device, QObject* parent = nullptr);

    // Delivers the results to the receiver's handlers on its thread.
    template <class Receiver>
    void deliverTo(Receiver* receiver, void (Receiver::*onStateRead)(SFeatureState),
                   void (Receiver::*onWriteDone)(QString, bool, QString, SFeatureState),
                   void (Receiver::*onExecuteDone)(QString, bool, QString))
    {
        connect(this, &CFeatureControlWorker::stateRead, receiver, onStateRead, Qt::QueuedConnection);
        connect(this, &CFeatureControlWorker::writeDone, receiver, onWriteDone, Qt::QueuedConnection);
        connect(this, &CFeatureControlWorker::executeDone, receiver, onExecuteDone, Qt::QueuedConnection);
    }

    // Reads the state of a feature from the camera (any thread).
    static SFeatureState readState(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>& camera,
                                   const QString& name);

    void requestRead(const QStringList& names);
    // value: qint64 for integers, double for floats, bool for booleans, the
    // entry symbol (QString) for enumerations.
    // coalesce false queues the write even when one of the same feature is
    // waiting (a sequence such as offset 0, size, offset must keep each step).
    void requestWrite(const QString& name, const QVariant& value, bool coalesce = true);
    void requestExecute(const QString& name);

signals:
    void stateRead(SFeatureState state);
    // ok false: error holds the camera's reason. state is read back after the
    // write either way.
    void writeDone(QString name, bool ok, QString error, SFeatureState state);
    void executeDone(QString name, bool ok, QString error);

private:
    using ValueSlot = std::shared_ptr<QVariant>;
    void read(const QString& name);
    void write(const QString& name, const ValueSlot& value);
    void execute(const QString& name);

    const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_camera;
    QMutex m_mutex;
    QSet<QString> m_waitingReads;              // guarded by m_mutex
    QHash<QString, ValueSlot> m_waitingWrites;   // guarded by m_mutex: the last write of each, not started
};
