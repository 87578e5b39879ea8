#include "Vorlen/GenICam/CFrame.h"

#include "FrameData.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

CFrame::CFrame() = default;
CFrame::CFrame(const Memory::TSharedPtr<SData>& data) : m_data(data) {}
CFrame::~CFrame() = default;
CFrame::CFrame(const CFrame&) = default;
CFrame& CFrame::operator=(const CFrame&) = default;

bool CFrame::valid() const
{
    return m_data && m_data->buffer;
}

void CFrame::reset()
{
    m_data.reset();
}

bool CFrame::getPayLoadTypes(TVector<EPayloadType>& types) const
{
    types.clear();
    if (!valid()) {
        Infra::setLastError(Infra::ERR_INVALID_HANDLE, "empty frame");
        return false;
    }
    types = m_data->payloadTypes;
    return true;
}

uint64_t CFrame::getBlockId() const
{
    return m_data ? m_data->blockId : 0;
}

const unsigned char* CFrame::getImage() const
{
    return m_data ? m_data->image : nullptr;
}

uint64_t CFrame::getImageSize() const
{
    return m_data ? m_data->imageSize : 0;
}

uint32_t CFrame::getImageWidth() const
{
    return m_data ? m_data->width : 0;
}

uint32_t CFrame::getImageHeight() const
{
    return m_data ? m_data->height : 0;
}

uint32_t CFrame::getImagePadddingX() const
{
    return m_data ? m_data->paddingX : 0;
}

uint32_t CFrame::getImagePadddingY() const
{
    return m_data ? m_data->paddingY : 0;
}

uint32_t CFrame::getImagePixelFormat() const
{
    return m_data ? m_data->pixelFormat : 0;
}

uint64_t CFrame::getImageTimeStamp() const
{
    return m_data ? m_data->timestamp : 0;
}

uint64_t CFrame::getImageOffsetX() const
{
    return m_data ? m_data->offsetX : 0;
}

uint64_t CFrame::getImageOffsetY() const
{
    return m_data ? m_data->offsetY : 0;
}

uint32_t CFrame::getChunkCount() const
{
    return m_data ? uint32_t(m_data->chunkSpans.size()) : 0;
}

bool CFrame::getChunkDataByIndex(uint32_t index, uint32_t& id, TVector<CString>& lines) const
{
    lines.clear();
    if (!valid()) {
        Infra::setLastError(Infra::ERR_INVALID_HANDLE, "empty frame");
        return false;
    }
    if (index >= m_data->chunkSpans.size()) {
        Infra::setLastError(Infra::ERR_OUT_OF_RANGE, "no chunk of that index");
        return false;
    }
    SData* d = m_data.get();
    std::call_once(d->chunkTextOnce, [d]() { d->decodeChunks(); });
    id = d->chunkSpans[index].id;
    for (const std::string& line : d->chunkText[index])
        lines.push_back(CString(line));
    return true;
}

} // namespace GenICam
} // namespace Vorlen
