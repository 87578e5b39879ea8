#include "CFeatureControlWorker.h"

#include "CFeatureNodeInfo.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;
using Vorlen::Infra::TVector;

bool SFeatureState::isInt() const { return type == int(CInternalParameterNode::featureTypeInteger); }
bool SFeatureState::isFloat() const { return type == int(CInternalParameterNode::featureTypeFloat); }
bool SFeatureState::isEnum() const { return type == int(CInternalParameterNode::featureTypeEnum); }
bool SFeatureState::isBool() const { return type == int(CInternalParameterNode::featureTypeBool); }
bool SFeatureState::isCommand() const { return type == int(CInternalParameterNode::featureTypeCommand); }

CFeatureControlWorker::CFeatureControlWorker(const Vorlen::Memory::TSharedPtr<ICamera>& camera, QObject* parent)
    : CJobQueueThread("CFeatureControlWorker", parent), m_camera(camera)
{
    qRegisterMetaType<SFeatureState>("SFeatureState");
}

CFeatureControlWorker::CFeatureControlWorker(const CTavDevicePtr& device, QObject* parent)
    : CFeatureControlWorker(device ? device->getDevice() : Vorlen::Memory::TSharedPtr<ICamera>(), parent)
{
}

SFeatureState CFeatureControlWorker::readState(const Vorlen::Memory::TSharedPtr<ICamera>& camera,
                                               const QString& name)
{
    SFeatureState s;
    s.name = name;
    if (!camera)
        return s;
    const QByteArray n = name.toLatin1();
    CInternalParameterNode node(camera, n.constData());
    s.valid = node.isValid() && node.isImplemented();
    if (!s.valid)
        return s;
    s.type = int(node.getType());
    s.visibility = int(node.getVisibility());
    s.available = node.isAvailable();
    s.readable = s.available && node.isReadable();
    s.writeable = s.available && node.isWriteable();
    CString unit;
    if (node.getUnit(unit))
        s.unit = QString::fromUtf8(unit.c_str());
    if (!s.readable)
        return s;
    switch (node.getType())
    {
    case CInternalParameterNode::featureTypeInteger: {
        const auto n = CFeatureNodeInfo::readInt(node, true);
        s.intValue = n.value;
        // Without a range the control holds the value alone.
        s.intMin = n.rangeOk ? n.min : n.value;
        s.intMax = n.rangeOk ? n.max : n.value;
        if (n.incrementOk)
            s.intInc = n.increment;
        break;
    }
    case CInternalParameterNode::featureTypeFloat: {
        const auto n = CFeatureNodeInfo::readFloat(node, true, true);
        s.floatValue = n.value;
        s.floatMin = n.rangeOk ? n.min : n.value;
        s.floatMax = n.rangeOk ? n.max : n.value;
        if (n.incrementOk)
            s.floatInc = n.increment;
        long precision = 2;
        if (node.getFloatDisplayPrecision(precision) && precision >= 0 && precision <= 9)
            s.floatPrecision = int(precision);
        break;
    }
    case CInternalParameterNode::featureTypeBool:
        node.getBoolValue(s.boolValue);
        break;
    case CInternalParameterNode::featureTypeEnum: {
        CEnumNode en(camera, n.constData());
        TVector<CString> symbols;
        if (en.getEnumSymbolList(symbols))
            for (const CString& sym : symbols)
                s.symbols.append(QString::fromUtf8(sym.c_str()));
        CString cur;
        if (en.getValueSymbol(cur))
            s.symbol = QString::fromUtf8(cur.c_str());
        break;
    }
    default:
        break;
    }
    return s;
}

void CFeatureControlWorker::requestRead(const QStringList& names)
{
    QMutexLocker lock(&m_mutex);
    for (const QString& name : names)
    {
        if (m_waitingReads.contains(name))
            continue;
        m_waitingReads.insert(name);
        post([this, name]() { read(name); });
    }
}

void CFeatureControlWorker::requestWrite(const QString& name, const QVariant& value, bool coalesce)
{
    QMutexLocker lock(&m_mutex);
    if (coalesce)
    {
        if (const ValueSlot waiting = m_waitingWrites.value(name))
        {
            *waiting = value;
            return;
        }
    }
    const ValueSlot slot = std::make_shared<QVariant>(value);
    m_waitingWrites.insert(name, slot);
    post([this, name, slot]() { write(name, slot); });
}

void CFeatureControlWorker::requestExecute(const QString& name)
{
    post([this, name]() { execute(name); });
}

void CFeatureControlWorker::read(const QString& name)
{
    {
        QMutexLocker lock(&m_mutex);
        m_waitingReads.remove(name);
    }
    emit stateRead(readState(m_camera, name));
}

void CFeatureControlWorker::execute(const QString& name)
{
    const QByteArray n = name.toLatin1();
    CInternalParameterNode node(m_camera, n.constData());
    QString error;
    const bool ok = node.isValid() && node.execute();
    if (!ok)
    {
        error = GetErrorDesc();
        LOG_ERROR("execute %s failed: %s", n.constData(), error.toLocal8Bit().constData());
    }
    emit executeDone(name, ok, error);
}

void CFeatureControlWorker::write(const QString& name, const ValueSlot& slot)
{
    QVariant value;
    {
        // From here on a newer write of the feature queues a job of its own.
        QMutexLocker lock(&m_mutex);
        if (m_waitingWrites.value(name) == slot)
            m_waitingWrites.remove(name);
        value = *slot;
    }
    const QByteArray n = name.toLatin1();
    CInternalParameterNode node(m_camera, n.constData());
    bool ok = false;
    if (node.isValid())
    {
        switch (node.getType())
        {
        case CInternalParameterNode::featureTypeInteger:
            ok = node.setIntValue(long(value.toLongLong()));
            break;
        case CInternalParameterNode::featureTypeFloat:
            ok = node.setFloatValue(value.toDouble());
            break;
        case CInternalParameterNode::featureTypeBool:
            ok = node.setBoolValue(value.toBool());
            break;
        case CInternalParameterNode::featureTypeEnum:
            ok = node.setEnumValueBySymbol(CString(value.toString().toUtf8().constData()));
            break;
        default:
            ok = node.setValueFromString(CString(value.toString().toUtf8().constData()));
            break;
        }
    }
    QString error;
    if (!ok)
    {
        error = GetErrorDesc();
        LOG_ERROR("set %s to %s failed: %s", n.constData(), value.toString().toLocal8Bit().constData(),
                  error.toLocal8Bit().constData());
    }
    emit writeDone(name, ok, error, readState(m_camera, name));
}
