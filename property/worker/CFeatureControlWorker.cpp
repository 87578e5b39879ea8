#include "CFeatureControlWorker.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;
using Vorlen::Infra::TVector;

namespace {
const int kMetaTypeId = qRegisterMetaType<SFeatureState>("SFeatureState");
}

bool SFeatureState::isInt() const { return type == int(CInternalParameterNode::featureTypeInteger); }
bool SFeatureState::isFloat() const { return type == int(CInternalParameterNode::featureTypeFloat); }
bool SFeatureState::isEnum() const { return type == int(CInternalParameterNode::featureTypeEnum); }
bool SFeatureState::isBool() const { return type == int(CInternalParameterNode::featureTypeBool); }
bool SFeatureState::isCommand() const { return type == int(CInternalParameterNode::featureTypeCommand); }

CFeatureControlWorker::CFeatureControlWorker(const Vorlen::Memory::TSharedPtr<ICamera>& camera, QObject* parent)
    : CRetiringThread(parent), m_camera(camera)
{
    Q_UNUSED(kMetaTypeId);
}

CFeatureControlWorker::~CFeatureControlWorker()
{
    stop();
    wait();
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
        long v = 0, mx = 0, mn = 0, inc = 1;
        node.getIntValue(v);
        if (node.getIntMaxMin(mx, mn))
        {
            s.intMin = mn;
            s.intMax = mx;
        }
        else
        {
            s.intMin = s.intMax = v;
        }
        if (node.getIntIncrement(inc) && inc > 0)
            s.intInc = inc;
        s.intValue = v;
        break;
    }
    case CInternalParameterNode::featureTypeFloat: {
        double v = 0, mx = 0, mn = 0, inc = 0;
        long precision = 2;
        node.getFloatValue(v);
        if (node.getFloatMaxMin(mx, mn))
        {
            s.floatMin = mn;
            s.floatMax = mx;
        }
        else
        {
            s.floatMin = s.floatMax = v;
        }
        if (node.getFloatIncrement(inc) && inc > 0)
            s.floatInc = inc;
        if (node.getFloatDisplayPrecision(precision) && precision >= 0 && precision <= 9)
            s.floatPrecision = int(precision);
        s.floatValue = v;
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
        bool waiting = false;
        for (const SRequest& r : m_requests)
            waiting = waiting || (r.kind == kindRead && r.name == name);
        if (!waiting)
            m_requests.enqueue({kindRead, name, QVariant()});
    }
    m_wake.wakeOne();
}

void CFeatureControlWorker::requestWrite(const QString& name, const QVariant& value, bool coalesce)
{
    QMutexLocker lock(&m_mutex);
    for (SRequest& r : m_requests)
    {
        if (coalesce && r.kind == kindWrite && r.name == name)
        {
            r.value = value;
            return;
        }
    }
    m_requests.enqueue({kindWrite, name, value});
    m_wake.wakeOne();
}

void CFeatureControlWorker::requestExecute(const QString& name)
{
    QMutexLocker lock(&m_mutex);
    m_requests.enqueue({kindExecute, name, QVariant()});
    m_wake.wakeOne();
}

void CFeatureControlWorker::stop()
{
    QMutexLocker lock(&m_mutex);
    m_bRunning = false;
    m_requests.clear();
    m_wake.wakeAll();
}

int CFeatureControlWorker::pendingCount()
{
    QMutexLocker lock(&m_mutex);
    return m_requests.size();
}

void CFeatureControlWorker::run()
{
    LOG_DEBUG("CFeatureControlWorker run begin");
    for (;;)
    {
        SRequest request;
        {
            QMutexLocker lock(&m_mutex);
            while (m_bRunning && m_requests.isEmpty())
                m_wake.wait(&m_mutex);
            if (!m_bRunning)
                break;
            request = m_requests.dequeue();
        }
        handle(request);
    }
    LOG_DEBUG("CFeatureControlWorker run end");
}

void CFeatureControlWorker::handle(const SRequest& request)
{
    if (request.kind == kindRead)
    {
        emit stateRead(readState(m_camera, request.name));
        return;
    }
    const QByteArray n = request.name.toLatin1();
    CInternalParameterNode node(m_camera, n.constData());
    bool ok = false;
    QString error;
    if (request.kind == kindExecute)
    {
        ok = node.isValid() && node.execute();
        if (!ok)
        {
            error = GetErrorDesc();
            LOG_ERROR("execute %s failed: %s", n.constData(), error.toLocal8Bit().constData());
        }
        emit executeDone(request.name, ok, error);
        return;
    }
    if (!node.isValid())
    {
        ok = false;
    }
    else
    {
        switch (node.getType())
        {
        case CInternalParameterNode::featureTypeInteger:
            ok = node.setIntValue(long(request.value.toLongLong()));
            break;
        case CInternalParameterNode::featureTypeFloat:
            ok = node.setFloatValue(request.value.toDouble());
            break;
        case CInternalParameterNode::featureTypeBool:
            ok = node.setBoolValue(request.value.toBool());
            break;
        case CInternalParameterNode::featureTypeEnum:
            ok = node.setEnumValueBySymbol(CString(request.value.toString().toUtf8().constData()));
            break;
        default:
            ok = node.setValueFromString(CString(request.value.toString().toUtf8().constData()));
            break;
        }
    }
    if (!ok)
    {
        error = GetErrorDesc();
        LOG_ERROR("set %s to %s failed: %s", n.constData(), request.value.toString().toLocal8Bit().constData(),
                  error.toLocal8Bit().constData());
    }
    emit writeDone(request.name, ok, error, readState(m_camera, request.name));
}
