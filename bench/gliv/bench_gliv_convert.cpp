// Time to build a Gliv::CQtHybridFrame from a 1920x1080 frame in several
// pixel formats: building copies the raw data only (what a frame that is just
// displayed costs the stream thread), and the first getConvertedData() adds
// the full-resolution conversion to BGR (what a saved or recorded frame
// costs). Prints median and 99th percentile milliseconds per frame for both.
// Usage: bench_gliv_convert [iterations]
#include "Gliv/CQtHybridFrame.h"
#include "Gliv/PixelFormats.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace Gliv;
namespace PF = Gliv::PixelFormat;

namespace {

const uint32_t kWidth = 1920, kHeight = 1080;

// Deterministic picture-like content: gradients plus noise.
std::vector<uint8_t> makePayload(size_t bytes)
{
    std::vector<uint8_t> v(bytes);
    uint32_t seed = 2463534242u;
    for (size_t i = 0; i < bytes; ++i) {
        seed ^= seed << 13;
        seed ^= seed >> 17;
        seed ^= seed << 5;
        v[i] = uint8_t((i % 1931) / 8 + (seed & 31));
    }
    return v;
}

struct SCase
{
    const char* name;
    uint32_t pixelFormat;
    size_t bytes;
    EBayerDemosaic demosaic;
    int iterationDivisor;   // slow cases run fewer times
};

void run(const SCase& c, int iterations)
{
    const std::vector<uint8_t> payload = makePayload(c.bytes);
    SFrameInfo info;
    info.width = kWidth;
    info.height = kHeight;
    info.pixelFormat = c.pixelFormat;
    info.imageSize = payload.size();
    info.rawData = payload.data();
    info.demosaic = c.demosaic;

    const int n = std::max(20, iterations / c.iterationDivisor);
    std::vector<double> ms, buildMs;
    ms.reserve(size_t(n));
    buildMs.reserve(size_t(n));
    bool valid = true;
    // The view keeps the frame it shows until the next one arrives, so the
    // previous frame stays alive while the next is built.
    std::unique_ptr<CQtHybridFrame> shown;
    for (int i = -3; i < n; ++i) {   // three warm-up rounds
        const auto t0 = std::chrono::steady_clock::now();
        std::unique_ptr<CQtHybridFrame> frame(new CQtHybridFrame(info));
        const auto tBuilt = std::chrono::steady_clock::now();
        valid = valid && frame->getConvertedData() != nullptr;
        const auto t1 = std::chrono::steady_clock::now();
        shown = std::move(frame);
        if (i >= 0) {
            buildMs.push_back(std::chrono::duration<double, std::milli>(tBuilt - t0).count());
            ms.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
        }
    }
    auto pct = [](std::vector<double>& v, double& median, double& p99) {
        std::sort(v.begin(), v.end());
        median = v[v.size() / 2];
        p99 = v[std::min(v.size() - 1, size_t(double(v.size()) * 0.99))];
    };
    double median = 0, p99 = 0, buildMedian = 0, buildP99 = 0;
    pct(ms, median, p99);
    pct(buildMs, buildMedian, buildP99);
    std::printf("%-26s %6d %10.3f %10.3f %10.3f %10.3f%s\n", c.name, n, buildMedian, buildP99, median, p99,
                valid ? "" : "  (INVALID)");
}

} // namespace

int main(int argc, char** argv)
{
    const int iterations = argc > 1 ? std::max(1, std::atoi(argv[1])) : 300;
    const size_t px = size_t(kWidth) * kHeight;
    const SCase cases[] = {
        { "BayerRG8 bilinear", PF::BayerRG8, px, bayerBilinear, 1 },
        { "BayerRG8 edge-aware", PF::BayerRG8, px, bayerEdgeAware, 1 },
        { "BayerRG8 VNG", PF::BayerRG8, px, bayerVariableNumberOfGradients, 3 },
        { "Mono8", PF::Mono8, px, bayerBilinear, 1 },
        { "Mono12Packed", PF::Mono12Packed, px * 3 / 2, bayerBilinear, 1 },
        { "BayerRG12p bilinear", PF::BayerRG12p, px * 3 / 2, bayerBilinear, 1 },
        { "RGB8", PF::RGB8, px * 3, bayerBilinear, 1 },
        { "YUV422_8 (YUYV)", PF::YUV422_8, px * 2, bayerBilinear, 1 },
        { "YUV422_8_UYVY", PF::YUV422_8_UYVY, px * 2, bayerBilinear, 1 },
    };
    std::printf("1920x1080, time per frame: build (raw copy) and build + full conversion to BGR\n");
    std::printf("%-26s %6s %10s %10s %10s %10s\n", "format", "frames", "build med", "build p99", "conv med",
                "conv p99");
    for (const SCase& c : cases)
        run(c, iterations);
    return 0;
}
