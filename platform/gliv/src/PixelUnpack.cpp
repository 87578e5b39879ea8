#include "PixelUnpack.h"

#include <cstring>

namespace Gliv {
namespace detail {

void unpackWide16(const uint8_t* src, size_t n, int shift, uint8_t* dst)
{
    for (size_t i = 0; i < n; ++i) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
        uint16_t v;
        std::memcpy(&v, src + 2 * i, 2);
#else
        uint16_t v = uint16_t(src[2 * i] | (src[2 * i + 1] << 8));
#endif
        v = uint16_t(v >> shift);
        dst[i] = uint8_t(v > 255 ? 255 : v);
    }
}

void unpackGevPacked(const uint8_t* src, size_t n, uint8_t* dst)
{
    const size_t pairs = n / 2;
    for (size_t i = 0; i < pairs; ++i) {
        dst[2 * i] = src[3 * i];
        dst[2 * i + 1] = src[3 * i + 2];
    }
    if (n & 1)
        dst[n - 1] = src[3 * pairs];
}

void unpack10p(const uint8_t* src, size_t n, uint8_t* dst)
{
    const size_t quads = n / 4;
    for (size_t i = 0; i < quads; ++i) {
        const uint8_t* s = src + 5 * i;
        uint8_t* d = dst + 4 * i;
        d[0] = uint8_t((s[0] >> 2) | (s[1] << 6));
        d[1] = uint8_t((s[1] >> 4) | (s[2] << 4));
        d[2] = uint8_t((s[2] >> 6) | (s[3] << 2));
        d[3] = s[4];
    }
    // 1 to 3 pixels left: they take 2, 3 or 4 bytes.
    const size_t rest = n - quads * 4;
    const uint8_t* s = src + 5 * quads;
    uint8_t* d = dst + 4 * quads;
    if (rest >= 1)
        d[0] = uint8_t((s[0] >> 2) | (s[1] << 6));
    if (rest >= 2)
        d[1] = uint8_t((s[1] >> 4) | (s[2] << 4));
    if (rest >= 3)
        d[2] = uint8_t((s[2] >> 6) | (s[3] << 2));
}

void unpack12p(const uint8_t* src, size_t n, uint8_t* dst)
{
    const size_t pairs = n / 2;
    for (size_t i = 0; i < pairs; ++i) {
        const uint8_t* s = src + 3 * i;
        dst[2 * i] = uint8_t((s[0] >> 4) | (s[1] << 4));
        dst[2 * i + 1] = s[2];
    }
    if (n & 1) {
        const uint8_t* s = src + 3 * pairs;
        dst[n - 1] = uint8_t((s[0] >> 4) | (s[1] << 4));
    }
}

namespace {

// Full-range BT.601 (as JPEG): chroma contributions per byte value, and a
// clamp table for Y + contribution in [-256, 511].
struct SYuvTables
{
    int rV[256];
    int gUV_u[256];
    int gUV_v[256];
    int bU[256];
    uint8_t clamp[768];

    SYuvTables()
    {
        for (int i = 0; i < 256; ++i) {
            const double c = i - 128;
            rV[i] = int(c * 1.402 + (c >= 0 ? 0.5 : -0.5));
            bU[i] = int(c * 1.772 + (c >= 0 ? 0.5 : -0.5));
            // Green keeps 8 fractional bits so the sum of both terms rounds once.
            gUV_u[i] = int(-c * 0.344136 * 256.0 + (c <= 0 ? 0.5 : -0.5));
            gUV_v[i] = int(-c * 0.714136 * 256.0 + (c <= 0 ? 0.5 : -0.5));
        }
        for (int i = 0; i < 768; ++i) {
            const int v = i - 256;
            clamp[i] = uint8_t(v < 0 ? 0 : (v > 255 ? 255 : v));
        }
    }
};

const SYuvTables& yuvTables()
{
    static const SYuvTables tables;
    return tables;
}

} // namespace

void yuv422ToBgr(const uint8_t* src, size_t n, bool uyvy, uint8_t* dst)
{
    const SYuvTables& t = yuvTables();
    const uint8_t* clamp = t.clamp + 256;
    const int yo0 = uyvy ? 1 : 0, uo = uyvy ? 0 : 1, yo1 = uyvy ? 3 : 2, vo = uyvy ? 2 : 3;
    const size_t pairs = n / 2;
    for (size_t i = 0; i < pairs; ++i) {
        const uint8_t* s = src + 4 * i;
        uint8_t* d = dst + 6 * i;
        const int u = s[uo], v = s[vo];
        const int cb = t.bU[u];
        const int cr = t.rV[v];
        const int cg = (t.gUV_u[u] + t.gUV_v[v] + 128) >> 8;
        const int y0 = s[yo0], y1 = s[yo1];
        d[0] = clamp[y0 + cb];
        d[1] = clamp[y0 + cg];
        d[2] = clamp[y0 + cr];
        d[3] = clamp[y1 + cb];
        d[4] = clamp[y1 + cg];
        d[5] = clamp[y1 + cr];
    }
}

} // namespace detail
} // namespace Gliv
