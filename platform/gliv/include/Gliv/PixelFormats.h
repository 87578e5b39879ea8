#pragma once
// GenICam pixel format codes (PFNC values, including the GigE Vision 1.x
// packed formats) that Gliv::CQtHybridFrame converts to BGR.
#include <cstdint>

namespace Gliv {
namespace PixelFormat {

// Monochrome
constexpr uint32_t Mono8 = 0x01080001;
constexpr uint32_t Mono10 = 0x01100003;
constexpr uint32_t Mono10Packed = 0x010C0004;    // GigE Vision: 2 pixels in 3 bytes
constexpr uint32_t Mono12 = 0x01100005;
constexpr uint32_t Mono12Packed = 0x010C0006;    // GigE Vision: 2 pixels in 3 bytes
constexpr uint32_t Mono16 = 0x01100007;
constexpr uint32_t Mono14 = 0x01100025;
constexpr uint32_t Mono10p = 0x010A0046;         // LSB-first bit stream
constexpr uint32_t Mono12p = 0x010C0047;         // LSB-first bit stream

// Bayer, 8 bits
constexpr uint32_t BayerGR8 = 0x01080008;
constexpr uint32_t BayerRG8 = 0x01080009;
constexpr uint32_t BayerGB8 = 0x0108000A;
constexpr uint32_t BayerBG8 = 0x0108000B;
// Bayer, 10/12/16 bits in 16-bit little-endian words
constexpr uint32_t BayerGR10 = 0x0110000C;
constexpr uint32_t BayerRG10 = 0x0110000D;
constexpr uint32_t BayerGB10 = 0x0110000E;
constexpr uint32_t BayerBG10 = 0x0110000F;
constexpr uint32_t BayerGR12 = 0x01100010;
constexpr uint32_t BayerRG12 = 0x01100011;
constexpr uint32_t BayerGB12 = 0x01100012;
constexpr uint32_t BayerBG12 = 0x01100013;
constexpr uint32_t BayerGR16 = 0x0110002E;
constexpr uint32_t BayerRG16 = 0x0110002F;
constexpr uint32_t BayerGB16 = 0x01100030;
constexpr uint32_t BayerBG16 = 0x01100031;
// Bayer, GigE Vision packed (2 pixels in 3 bytes)
constexpr uint32_t BayerGR10Packed = 0x010C0026;
constexpr uint32_t BayerRG10Packed = 0x010C0027;
constexpr uint32_t BayerGB10Packed = 0x010C0028;
constexpr uint32_t BayerBG10Packed = 0x010C0029;
constexpr uint32_t BayerGR12Packed = 0x010C002A;
constexpr uint32_t BayerRG12Packed = 0x010C002B;
constexpr uint32_t BayerGB12Packed = 0x010C002C;
constexpr uint32_t BayerBG12Packed = 0x010C002D;
// Bayer, LSB-first bit stream
constexpr uint32_t BayerBG10p = 0x010A0052;
constexpr uint32_t BayerBG12p = 0x010C0053;
constexpr uint32_t BayerGB10p = 0x010A0054;
constexpr uint32_t BayerGB12p = 0x010C0055;
constexpr uint32_t BayerGR10p = 0x010A0056;
constexpr uint32_t BayerGR12p = 0x010C0057;
constexpr uint32_t BayerRG10p = 0x010A0058;
constexpr uint32_t BayerRG12p = 0x010C0059;

// Colour
constexpr uint32_t RGB8 = 0x02180014;            // GigE Vision name: RGB8Packed
constexpr uint32_t BGR8 = 0x02180015;            // BGR8Packed
constexpr uint32_t RGBa8 = 0x02200016;           // RGBA8Packed
constexpr uint32_t BGRa8 = 0x02200017;           // BGRA8Packed
constexpr uint32_t RGB8Packed = RGB8;
constexpr uint32_t BGR8Packed = BGR8;
constexpr uint32_t RGBA8Packed = RGBa8;
constexpr uint32_t BGRA8Packed = BGRa8;

// YUV 4:2:2, 8 bits, converted as full-range BT.601 with chroma centred on
// 128. The GigE Vision legacy names carry the same codes.
constexpr uint32_t YUV422_8_UYVY = 0x0210001F;   // U Y0 V Y1
constexpr uint32_t YUV422_8 = 0x02100032;        // Y0 U Y1 V
constexpr uint32_t YUV422Packed = YUV422_8_UYVY;
constexpr uint32_t YUV422_YUYV_Packed = YUV422_8;

} // namespace PixelFormat

// Payload type of a compressed JPEG frame.
constexpr int payloadTypeJpeg = 6;

} // namespace Gliv
