#include "CDeviceLinkSettings.h"

#include "CConfiguration.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;
using StreamPtr = Vorlen::Memory::TSharedPtr<CInternalStreamSource>;

namespace {
struct SApplier
{
    const char* name;   // in the message a refusal logs: "set <name> <value> errror."
    bool (*toCamera)(CInternalCamera&, uint32_t);
    bool (*toStream)(CInternalStreamSource&, uint32_t);
};

const SApplier kAppliers[CDeviceLinkSettings::keyCount] = {
    {"AnswerTimeout",
     [](CInternalCamera& c, uint32_t v) { return c.setAnswerTimeout(static_cast<unsigned short>(v)); }, nullptr},
    {"HeartbeatInterval",
     [](CInternalCamera& c, uint32_t v) { return c.setHeartbeatIntervel(static_cast<unsigned short>(v)); }, nullptr},
    {"InterPacketTimeout", nullptr,
     [](CInternalStreamSource& s, uint32_t v) { return s.setInterPacketTimeout(v); }},
    {"SingleResendMaxPacketNum", nullptr,
     [](CInternalStreamSource& s, uint32_t v) { return s.setSingleResendMaxPacketNum(v); }},
    {"MaxLostPacketNum", nullptr,
     [](CInternalStreamSource& s, uint32_t v) { return s.setMaxLostPacketNum(v); }},
};
} // namespace

CDeviceLinkSettings CDeviceLinkSettings::fromConfiguration()
{
    CDeviceLinkSettings s;
    if (const CConfiguration* cfg = CConfiguration::getInstance())
    {
        s.m_values[keyAnswerTimeout] = cfg->iAnswerTimeout;
        s.m_values[keyHeartbeatInterval] = cfg->iHeartbeatIval;
        s.m_values[keyInterPacketTimeout] = cfg->iInterPacketTimeout;
        s.m_values[keySingleResendMaxPackNum] = cfg->iSingleResendMaxPackNum;
        s.m_values[keyMaximumLostPacketNum] = cfg->iMaximumLostPacketNum;
        s.m_bufferCount = cfg->streamingBufferCount;
        s.m_urbNumber = cfg->streamingUrbNumberCount;
        s.m_urbSize = cfg->streamingUrbSizeCount;
    }
    return s;
}

bool CDeviceLinkSettings::isStreamSetting(EKey key)
{
    return kAppliers[key].toStream != nullptr;
}

bool CDeviceLinkSettings::apply(EKey key, uint32_t value, const CInternalCameraPtr& camera, const StreamPtr& stream)
{
    const SApplier& applier = kAppliers[key];
    bool ok = true;
    if (applier.toStream)
    {
        if (!stream)
            return false;
        ok = applier.toStream(*stream, value);
    }
    else
    {
        if (!camera)
            return false;
        ok = applier.toCamera(*camera, value);
    }
    if (!ok)
        LOG_ERROR("set %s %u errror.", applier.name, unsigned(value));
    return ok;
}

void CDeviceLinkSettings::applyToCamera(const CInternalCameraPtr& camera) const
{
    for (EKey key : {keyAnswerTimeout, keyHeartbeatInterval})
        apply(key, m_values[key], camera, StreamPtr());
}

void CDeviceLinkSettings::applyToStream(const StreamPtr& stream, EInterfaceType type) const
{
    if (!stream->setBufferCount(m_bufferCount))
        LOG_ERROR("set buffer count %u errror.", m_bufferCount);
    if (type == typeGigEVision)
    {
        for (EKey key : {keyInterPacketTimeout, keySingleResendMaxPackNum, keyMaximumLostPacketNum})
            apply(key, m_values[key], CInternalCameraPtr(), stream);
    }
    else if (type == typeUsb3Vision)
    {
        if (!stream->setUrbTransfer(m_urbNumber, m_urbSize))
            LOG_ERROR("set urb number count %u, urb size count %u errror.", m_urbNumber, m_urbSize);
    }
}
