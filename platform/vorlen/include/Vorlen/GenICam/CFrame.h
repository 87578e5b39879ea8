#pragma once
// One frame handed out by a stream. The pixel data is the stream's own buffer,
// not a copy; the buffer goes back to the stream when the last CFrame copy
// that holds it is destroyed (or reset()).
#include "Vorlen/GenICam/Defs.h"
#include "Vorlen/Memory/TSharedPtr.h"

namespace Vorlen {
namespace GenICam {

class CFrame
{
public:
    enum EPayloadType
    {
        payloadUnknown = 0,
        payloadImage = 1,
        payloadRawData = 2,
        payloadFile = 3,
        payloadChunkData = 4,
        payloadExtendedChunkData = 5,
        payloadJPEG = 6,
        payloadJPEG2000 = 7,
        payloadH264 = 8,
        payloadMultiPart = 9
    };

    // Implementation side of a frame; the stream fills it.
    struct SData;

    CFrame();
    explicit CFrame(const Memory::TSharedPtr<SData>& data);
    ~CFrame();
    CFrame(const CFrame&);
    CFrame& operator=(const CFrame&);

    bool valid() const;     // a complete frame is held
    void reset();           // gives the buffer back now

    bool getPayLoadTypes(TVector<EPayloadType>& types) const;
    uint64_t getBlockId() const;
    const unsigned char* getImage() const;
    uint64_t getImageSize() const;
    uint32_t getImageWidth() const;
    uint32_t getImageHeight() const;
    uint32_t getImagePadddingX() const;
    uint32_t getImagePadddingY() const;
    uint32_t getImagePixelFormat() const;   // GenICam PFNC code
    uint64_t getImageTimeStamp() const;     // camera timestamp (ns)
    uint64_t getImageOffsetX() const;
    uint64_t getImageOffsetY() const;
    // Chunk data: chunk i has an id and its data rendered as text lines.
    uint32_t getChunkCount() const;
    bool getChunkDataByIndex(uint32_t index, uint32_t& id, TVector<CString>& lines) const;

private:
    Memory::TSharedPtr<SData> m_data;
};

} // namespace GenICam
} // namespace Vorlen
