#pragma once
// Tight loops that turn packed and wide camera pixels into 8-bit values, and
// YUV 4:2:2 into BGR. OpenCV has no converters for these layouts.
#include <cstddef>
#include <cstdint>

namespace Gliv {
namespace detail {

// Bytes that n pixels take in each layout.
inline size_t gevPackedBytes(size_t n) { return (n * 3 + 1) / 2; }
inline size_t lsbPackedBytes(size_t n, int bits) { return (n * size_t(bits) + 7) / 8; }

// 16-bit little-endian words, shifted right by `shift` and clamped to 255.
void unpackWide16(const uint8_t* src, size_t n, int shift, uint8_t* dst);
// GigE Vision Mono10Packed / Mono12Packed (and the Bayer ones): the first and
// third byte of each 3-byte group hold the 8 most significant bits.
void unpackGevPacked(const uint8_t* src, size_t n, uint8_t* dst);
// PFNC 10p / 12p: an LSB-first bit stream of 10 or 12-bit pixels.
void unpack10p(const uint8_t* src, size_t n, uint8_t* dst);
void unpack12p(const uint8_t* src, size_t n, uint8_t* dst);

// One line of YUV 4:2:2 (n pixels, n even) to BGR, full-range BT.601.
void yuv422ToBgr(const uint8_t* src, size_t n, bool uyvy, uint8_t* dst);

} // namespace detail
} // namespace Gliv
