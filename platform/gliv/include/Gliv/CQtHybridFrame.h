#pragma once
// A frame prepared for display, saving and recording: the camera's raw pixels
// (copied once, so the camera buffer goes straight back to the stream) and,
// on demand, the same image converted to 24-bit BGR at full resolution.
//
// Immutable once built: display, saving and recording share one frame from
// several threads, so nothing about it changes after construction. Its
// demosaicing is fixed by SFrameInfo. The full-resolution conversion runs at
// most once, on the first call of a getConverted...() accessor (from any
// thread; concurrent callers wait for the one conversion). A view that draws
// at a smaller size reads the raw data and needs no conversion at all.
// setChunkData is for the frame's builder, before the frame is handed on.
#include <QByteArray>
#include <QSharedPointer>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace Gliv {

enum EBayerDemosaic
{
    bayerBilinear = 0,
    bayerEdgeAware = 1,
    bayerVariableNumberOfGradients = 2
};

enum EConvertedPixelType
{
    convertedNone = 0,
    convertedBGR24 = 1
};

// Frame information record the stream thread fills per wanted frame.
struct SFrameInfo
{
    uint64_t blockId = 0;
    uint64_t imageSize = 0;        // bytes of rawData
    uint32_t height = 0;
    uint32_t width = 0;
    int64_t widthReg = 0;          // camera Width/Height features at stream start
    int64_t heightReg = 0;
    uint32_t paddingX = 0;         // bytes at the end of each line
    uint32_t paddingY = 0;         // bytes at the end of the image
    int payloadType = 1;           // 1 image, 6 JPEG
    uint32_t pixelFormat = 0;      // GenICam PFNC code
    const unsigned char* rawData = nullptr;
    bool driverInstalled = true;
    EBayerDemosaic demosaic = bayerBilinear;
};

class CQtHybridFrame
{
public:
    explicit CQtHybridFrame(const SFrameInfo& info);
    ~CQtHybridFrame();

    // False when the format is not supported or the data is short; the
    // converted image is then empty. Checked without converting, except for
    // a JPEG payload, which must be decoded to be known good.
    bool isHybridFrameValid() const;

    // Full-resolution BGR image; the first call converts (see above).
    const unsigned char* getConvertedData() const;
    uint64_t getConvertedDataSize() const;
    uint32_t getConvertedWidth() const;
    uint32_t getConvertedHeight() const;
    EConvertedPixelType getConvertedPixelType() const;

    const unsigned char* getRawData() const;
    uint64_t getRawDataSize() const;
    uint64_t getBlockId() const;
    uint32_t getPixelFormat() const;
    uint32_t getWidth() const;
    uint32_t getHeight() const;
    uint32_t getPaddingX() const;   // bytes at the end of each raw line
    uint32_t getPaddingY() const;   // bytes at the end of the raw image
    int getPayloadType() const;     // 1 image, 6 JPEG
    EBayerDemosaic getDemosaic() const;
    // Whether the full-resolution conversion has run (for tests and benchmarks).
    bool isConverted() const;

    void setChunkData(const char* text);
    const char* getChunkData() const;

    // Whether a pixel format can be converted.
    static bool isSupportedPixelFormat(uint32_t pixelFormat, int payloadType = 1);

private:
    void ensureConverted() const;
    void convert() const;

    SFrameInfo m_info;
    // The raw pixels, in a buffer of the shared pool.
    std::shared_ptr<std::vector<uint8_t>> m_raw;
    bool m_layoutValid = false;     // raw data complete for its format (non-JPEG)
    QByteArray m_chunk;

    // Written once, by the conversion, under m_convertOnce.
    mutable std::once_flag m_convertOnce;
    mutable std::atomic<bool> m_convertDone{false};
    mutable QByteArray m_converted;
    mutable uint32_t m_convertedWidth = 0;
    mutable uint32_t m_convertedHeight = 0;
    mutable bool m_valid = false;
};

} // namespace Gliv

using CQtHybridFramePtr = QSharedPointer<Gliv::CQtHybridFrame>;
