#include "Vorlen/GenICam/CFrame.h"

#include "FrameData.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

namespace {

// A field of the frame record; zero for an empty frame.
template <class T>
T value(const Memory::TSharedPtr<CFrame::SData>& data, T CFrame::SData::*member)
{
    return data ? (*data).*member : T();
}

} // namespace

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

uint64_t CFrame::getBlockId() const { return value(m_data, &SData::blockId); }
const unsigned char* CFrame::getImage() const { return value(m_data, &SData::image); }
uint64_t CFrame::getImageSize() const { return value(m_data, &SData::imageSize); }
uint32_t CFrame::getImageWidth() const { return value(m_data, &SData::width); }
uint32_t CFrame::getImageHeight() const { return value(m_data, &SData::height); }
uint32_t CFrame::getImagePadddingX() const { return value(m_data, &SData::paddingX); }
uint32_t CFrame::getImagePadddingY() const { return value(m_data, &SData::paddingY); }
uint32_t CFrame::getImagePixelFormat() const { return value(m_data, &SData::pixelFormat); }
uint64_t CFrame::getImageTimeStamp() const { return value(m_data, &SData::timestamp); }
uint64_t CFrame::getImageOffsetX() const { return value(m_data, &SData::offsetX); }
uint64_t CFrame::getImageOffsetY() const { return value(m_data, &SData::offsetY); }

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
