#pragma once
// A frame prepared for display, saving and recording: the camera's raw pixels
// (copied once, so the camera buffer goes straight back to the stream) and the
// same image converted to 24-bit BGR. The conversion runs in the constructor,
// on the thread that builds the frame, never on the GUI thread.
#include <QByteArray>
#include <QSharedPointer>
#include <cstdint>

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
    // converted image is then empty.
    bool isHybridFrameValid() const;
    // Converts the raw data again with another demosaicing (Bayer only).
    void setBayerDemosaic(EBayerDemosaic demosaic);

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

    void setChunkData(const char* text);
    const char* getChunkData() const;

    // Whether a pixel format can be converted.
    static bool isSupportedPixelFormat(uint32_t pixelFormat, int payloadType = 1);

private:
    void convert();

    SFrameInfo m_info;
    QByteArray m_raw;
    QByteArray m_converted;
    uint32_t m_convertedWidth = 0;
    uint32_t m_convertedHeight = 0;
    bool m_valid = false;
    QByteArray m_chunk;
};

} // namespace Gliv

using CQtHybridFramePtr = QSharedPointer<Gliv::CQtHybridFrame>;
