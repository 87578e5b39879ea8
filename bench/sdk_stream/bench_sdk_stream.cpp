// bench_sdk_stream: streams from N simulated cameras (lumidor-simcam
// processes on 127.0.0.1..N) for a fixed time, once through a bare Aravis
// client and once through CInternalStreamSource, and prints per camera the
// frames sent (expected from the frame period), received, incomplete and
// lost, and the CPU this process spent per 1000 frames. The cameras run in
// their own processes, so this process' CPU time is the client's alone.
//
//   bench_sdk_stream [--cameras 1,2,4] [--seconds 10] [--fps 60]
//                    [--width 1920] [--height 1080] [--pixel-format Mono8]
//                    [--packet-size 8192] [--buffers 8] [--simcam PATH]
//                    [--hosts 1,2,3,4]   (camera i on 127.0.0.<i-th host>)
#include <arv.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {

struct SOptions
{
    std::vector<int> cameraCounts{1, 2, 4};
    double seconds = 10.0;
    double fps = 60.0;
    int width = 1920, height = 1080;
    std::string pixelFormat = "Mono8";
    unsigned int packetSize = 8192;
    unsigned int buffers = 8;
    std::string simcam;
};

struct SResult
{
    double seconds = 0.0;       // streaming time of this camera (acquisition start to stop)
    uint64_t received = 0;      // complete frames handed to the client
    uint64_t incomplete = 0;    // frames that arrived with packets missing
    uint64_t lost = 0;          // frames never seen (block id gaps, no free buffer)
    bool ok = false;
    std::string error;
};

double cpuSeconds()
{
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return double(u.ru_utime.tv_sec + u.ru_stime.tv_sec) + double(u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Camera i listens on 127.0.0.<g_hosts[i]>.
std::vector<int> g_hosts{1, 2, 3, 4};

std::string address(int i)
{
    return "127.0.0." + std::to_string(g_hosts[size_t(i)]);
}

std::string serial(int i)
{
    return "BENCH" + std::to_string(i + 1);
}

std::string selfDir()
{
    char path[PATH_MAX] = {0};
    const ssize_t n = readlink("/proc/self/exe", path, sizeof(path) - 1);
    std::string exe = n > 0 ? std::string(path, size_t(n)) : std::string(".");
    const size_t slash = exe.find_last_of('/');
    return slash == std::string::npos ? std::string(".") : exe.substr(0, slash);
}

// ---------------------------------------------------------------------------
// Simulated cameras in their own processes

// False when something else already answers GVCP on the address (another
// simulated camera would mix its frames into the figures).
bool gvcpPortFree(const std::string& ip)
{
    const int fd = socket(AF_INET, SOCK_DGRAM, 0);
    if (fd < 0)
        return false;
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(3956);
    inet_pton(AF_INET, ip.c_str(), &a.sin_addr);
    const bool free = bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof(a)) == 0;
    close(fd);
    return free;
}

std::vector<pid_t> startCameras(const SOptions& o, int n)
{
    std::vector<pid_t> pids;
    const std::string w = std::to_string(o.width), h = std::to_string(o.height);
    const std::string f = std::to_string(o.fps), p = std::to_string(o.packetSize);
    for (int i = 0; i < n; ++i) {
        const std::string a = address(i), s = serial(i);
        std::vector<std::string> args = {o.simcam, "--address", a, "--serial", s, "--width", w, "--height", h,
                                         "--pixel-format", o.pixelFormat, "--fps", f, "--packet-size", p};
        std::vector<char*> argv;
        for (std::string& x : args)
            argv.push_back(&x[0]);
        argv.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        pid_t pid = 0;
        if (posix_spawn(&pid, o.simcam.c_str(), &actions, nullptr, argv.data(), environ) == 0)
            pids.push_back(pid);
        posix_spawn_file_actions_destroy(&actions);
    }
    // Wait until every camera answers.
    for (int i = 0; i < n; ++i) {
        bool up = false;
        for (int attempt = 0; attempt < 50 && !up; ++attempt) {
            ArvDevice* d = arv_open_device(address(i).c_str(), nullptr);
            if (d) {
                g_object_unref(d);
                up = true;
            } else {
                usleep(100 * 1000);
            }
        }
        if (!up)
            std::fprintf(stderr, "bench_sdk_stream: camera on %s did not answer\n", address(i).c_str());
    }
    return pids;
}

void stopCameras(std::vector<pid_t>& pids)
{
    for (pid_t p : pids)
        kill(p, SIGTERM);
    for (pid_t p : pids)
        waitpid(p, nullptr, 0);
    pids.clear();
}

// ---------------------------------------------------------------------------
// Bare Aravis client: camera, stream, pop and push, nothing else.

struct SReference
{
    ArvCamera* camera = nullptr;
    ArvStream* stream = nullptr;
};

bool referenceOpen(const SOptions& o, int i, SReference& r, std::string& error)
{
    GError* e = nullptr;
    r.camera = arv_camera_new(address(i).c_str(), &e);
    if (!r.camera) {
        error = e ? e->message : "no camera";
        g_clear_error(&e);
        return false;
    }
    return true;
}

// Stream set-up, as startGrabbing does it: packet size, stream, buffers,
// acquisition mode.
bool referenceStart(const SOptions& o, SReference& r, std::string& error)
{
    GError* e = nullptr;
    arv_camera_gv_set_packet_size(r.camera, gint(o.packetSize), nullptr);
    const guint payload = arv_camera_get_payload(r.camera, nullptr);
    r.stream = arv_camera_create_stream(r.camera, nullptr, nullptr, &e);
    if (!r.stream) {
        error = e ? e->message : "no stream";
        g_clear_error(&e);
        return false;
    }
    for (unsigned int k = 0; k < o.buffers; ++k)
        arv_stream_push_buffer(r.stream, arv_buffer_new_allocate(payload));
    arv_camera_set_acquisition_mode(r.camera, ARV_ACQUISITION_MODE_CONTINUOUS, nullptr);
    arv_camera_start_acquisition(r.camera, &e);
    if (e) {
        error = e->message;
        g_clear_error(&e);
        return false;
    }
    return true;
}

void referenceRun(const SOptions& o, SReference& r, std::atomic<int>& ready, const std::atomic<bool>& go, SResult& out)
{
    ready.fetch_add(1);
    while (!go.load())
        std::this_thread::yield();
    if (!referenceStart(o, r, out.error))
        return;
    const double t0 = now();
    const double end = t0 + o.seconds;
    volatile unsigned char sink = 0;
    while (now() < end) {
        ArvBuffer* b = arv_stream_timeout_pop_buffer(r.stream, 100000);
        if (!b)
            continue;
        if (arv_buffer_get_status(b) == ARV_BUFFER_STATUS_SUCCESS) {
            size_t size = 0;
            const unsigned char* p = static_cast<const unsigned char*>(arv_buffer_get_data(b, &size));
            if (p && size)
                sink = sink + p[size - 1];
            ++out.received;
        }
        arv_stream_push_buffer(r.stream, b);
    }
    out.seconds = now() - t0;
    arv_camera_stop_acquisition(r.camera, nullptr);
    guint64 completed = 0, failures = 0, underruns = 0;
    arv_stream_get_statistics(r.stream, &completed, &failures, &underruns);
    out.incomplete = failures;
    out.lost = arv_stream_get_info_uint64_by_name(r.stream, "n_missing_frames") + underruns;
    out.ok = true;
}

void referenceClose(SReference& r)
{
    if (r.stream)
        g_object_unref(r.stream);
    if (r.camera)
        g_object_unref(r.camera);
    r = SReference();
}

// ---------------------------------------------------------------------------
// Our layer: discovery, connect, CInternalStreamSource, getFrame.

struct SOurs
{
    CInternalCameraPtr camera;
    CInternalStreamSourcePtr source;
};

bool oursOpen(const SOptions& o, int i, SOurs& s, std::string& error)
{
    CSystem::_DiscoveryModeInfo info;
    std::strncpy(info.ipAddress, address(i).c_str(), sizeof(info.ipAddress) - 1);
    info.timeoutMs = 2000;
    TVector<ICameraPtr> cameras;
    if (!CSystem::getInstance().discoveryEx(cameras, discoveryUnicast, info)) {
        error = Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError());
        return false;
    }
    for (const ICameraPtr& c : cameras)
        if (c->getSerialNumber().str() == serial(i))
            s.camera = Vorlen::Memory::dynamicPointerCast<CInternalCamera>(c);
    if (!s.camera || !s.camera->connect(accessPermissionControl)) {
        error = s.camera ? Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError()) : "camera not found";
        return false;
    }
    s.source = Vorlen::Memory::makeShared<CInternalStreamSource>(s.camera);
    s.source->setBufferCount(o.buffers);
    s.source->setPacketSize(o.packetSize);
    return true;
}

void oursRun(const SOptions& o, SOurs& s, std::atomic<int>& ready, const std::atomic<bool>& go, SResult& out)
{
    ready.fetch_add(1);
    while (!go.load())
        std::this_thread::yield();
    if (!s.source->startGrabbing()) {
        out.error = Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError());
        return;
    }
    const double t0 = now();
    const double end = t0 + o.seconds;
    volatile unsigned char sink = 0;
    CFrame frame;
    while (now() < end) {
        if (!s.source->getFrame(frame, 100))
            continue;
        const unsigned char* p = frame.getImage();
        if (p && frame.getImageSize())
            sink = sink + p[frame.getImageSize() - 1];
        ++out.received;
    }
    out.seconds = now() - t0;
    frame.reset();
    s.source->stopGrabbing();
    StreamStatisticsInfo info;
    s.source->getStatisticsInfo(info);
    out.incomplete = info.errorImages;
    out.lost = info.lostBlocks - info.errorImages;
    out.ok = true;
}

void oursClose(SOurs& s)
{
    s.source.reset();
    if (s.camera)
        s.camera->disConnect();
    s.camera.reset();
}

// ---------------------------------------------------------------------------

struct SPhase
{
    std::vector<SResult> cameras;
    double cpu = 0.0;
    uint64_t received() const
    {
        uint64_t n = 0;
        for (const SResult& r : cameras)
            n += r.received;
        return n;
    }
};

template <class Client, class Open, class Run, class Close>
SPhase runPhase(const SOptions& o, int n, Open open, Run run, Close close)
{
    SPhase phase;
    phase.cameras.resize(size_t(n));
    std::vector<Client> clients(static_cast<size_t>(n));
    std::vector<bool> opened(static_cast<size_t>(n), false);
    for (int i = 0; i < n; ++i) {
        opened[size_t(i)] = open(o, i, clients[size_t(i)], phase.cameras[size_t(i)].error);
    }
    std::atomic<int> ready{0};
    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < n; ++i) {
        if (opened[size_t(i)])
            threads.emplace_back([&, i]() { run(o, clients[size_t(i)], ready, go, phase.cameras[size_t(i)]); });
    }
    while (ready.load() < int(threads.size()))
        std::this_thread::yield();
    const double cpu0 = cpuSeconds();
    go.store(true);
    for (std::thread& t : threads)
        t.join();
    phase.cpu = cpuSeconds() - cpu0;
    for (Client& c : clients)
        close(c);
    return phase;
}

void printPhase(const char* name, const SOptions& o, const SPhase& p)
{
    for (size_t i = 0; i < p.cameras.size(); ++i) {
        const SResult& r = p.cameras[i];
        if (!r.ok) {
            std::printf("  %-9s %-10s failed: %s\n", name, address(int(i)).c_str(), r.error.c_str());
            continue;
        }
        std::printf("  %-9s %-10s %9.0f %9llu %10llu %6llu\n", name, address(int(i)).c_str(), r.seconds * o.fps,
                    (unsigned long long)r.received, (unsigned long long)r.incomplete, (unsigned long long)r.lost);
    }
}

double perThousand(const SPhase& p)
{
    const uint64_t n = p.received();
    return n ? p.cpu / (double(n) / 1000.0) : 0.0;
}

bool parseList(const char* text, std::vector<int>& out, int max)
{
    out.clear();
    for (const char* p = text; *p;) {
        char* end = nullptr;
        const long v = std::strtol(p, &end, 10);
        if (end == p || v < 1 || v > max)
            return false;
        out.push_back(int(v));
        p = *end == ',' ? end + 1 : end;
    }
    return !out.empty();
}

} // namespace

int main(int argc, char** argv)
{
    SOptions o;
    o.simcam = selfDir() + "/lumidor-simcam";
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        const char* v = i + 1 < argc ? argv[i + 1] : nullptr;
        if (!v) {
            std::fprintf(stderr, "bench_sdk_stream: %s needs a value\n", a.c_str());
            return 2;
        }
        ++i;
        if (a == "--cameras") {
            if (!parseList(v, o.cameraCounts, 4)) {
                std::fprintf(stderr, "bench_sdk_stream: --cameras takes counts 1 to 4, e.g. 1,2,4\n");
                return 2;
            }
        } else if (a == "--seconds") o.seconds = std::atof(v);
        else if (a == "--fps") o.fps = std::atof(v);
        else if (a == "--width") o.width = std::atoi(v);
        else if (a == "--height") o.height = std::atoi(v);
        else if (a == "--pixel-format") o.pixelFormat = v;
        else if (a == "--packet-size") o.packetSize = unsigned(std::atoi(v));
        else if (a == "--buffers") o.buffers = unsigned(std::atoi(v));
        else if (a == "--simcam") o.simcam = v;
        else if (a == "--hosts") {
            if (!parseList(v, g_hosts, 254)) {
                std::fprintf(stderr, "bench_sdk_stream: --hosts takes host numbers, e.g. 1,2,3,4\n");
                return 2;
            }
        }
        else {
            std::fprintf(stderr, "bench_sdk_stream: unknown option %s\n", a.c_str());
            return 2;
        }
    }
    for (int n : o.cameraCounts) {
        if (n > int(g_hosts.size())) {
            std::fprintf(stderr, "bench_sdk_stream: %d cameras need %d addresses in --hosts\n", n, n);
            return 2;
        }
    }
    if (access(o.simcam.c_str(), X_OK) != 0) {
        std::fprintf(stderr, "bench_sdk_stream: %s not found (build the lumidor-simcam target)\n", o.simcam.c_str());
        return 1;
    }

    std::printf("bench_sdk_stream: %dx%d %s, %.0f fps, %.0f s per run, packet %u bytes, %u buffers\n", o.width,
                o.height, o.pixelFormat.c_str(), o.fps, o.seconds, o.packetSize, o.buffers);
    for (int n : o.cameraCounts) {
        bool free = true;
        for (int i = 0; i < n; ++i) {
            if (!gvcpPortFree(address(i))) {
                std::fprintf(stderr, "bench_sdk_stream: %s:3956 is in use by another program; skipping %d camera(s)\n",
                             address(i).c_str(), n);
                free = false;
            }
        }
        if (!free)
            continue;
        std::vector<pid_t> pids = startCameras(o, n);
        const SPhase ref = runPhase<SReference>(o, n, referenceOpen, referenceRun, referenceClose);
        const SPhase ours = runPhase<SOurs>(o, n, oursOpen, oursRun, oursClose);
        stopCameras(pids);

        std::printf("\n%d camera(s)\n", n);
        std::printf("  %-9s %-10s %9s %9s %10s %6s\n", "client", "camera", "sent", "received", "incomplete", "lost");
        printPhase("reference", o, ref);
        printPhase("ours", o, ours);
        std::printf("  %-9s %9s %9s %14s\n", "client", "received", "CPU s", "CPU s/1000 fr");
        std::printf("  %-9s %9llu %9.2f %14.3f\n", "reference", (unsigned long long)ref.received(), ref.cpu,
                    perThousand(ref));
        std::printf("  %-9s %9llu %9.2f %14.3f\n", "ours", (unsigned long long)ours.received(), ours.cpu,
                    perThousand(ours));
        const double r = perThousand(ref) > 0.0 ? perThousand(ours) / perThousand(ref) : 0.0;
        const double q = ref.received() ? double(ours.received()) / double(ref.received()) : 0.0;
        std::printf("  ours/reference: CPU per 1000 frames %.2f, frames received %.2f\n", r, q);
        std::fflush(stdout);
    }
    return 0;
}
