// Stream-side pieces that need no camera: rates, event throttle, counter mapping, block id
// unwrapping, chunk layout and chunk feature discovery, frame ownership.
// Aravis before Qt: GLib uses "signals" as a name.
#include <arv.h>

#include <QtTest>
#include <algorithm>
#include <cstring>
#include <vector>

#include "FrameData.h"
#include "StreamStatisticsCounter.h"
#include "Vorlen/GenICam.h"

using namespace Vorlen::GenICam;

namespace {

void put32(std::vector<uint8_t>& v, uint32_t x, bool bigEndian)
{
    if (bigEndian) {
        v.push_back(uint8_t(x >> 24)); v.push_back(uint8_t(x >> 16)); v.push_back(uint8_t(x >> 8)); v.push_back(uint8_t(x));
    } else {
        v.push_back(uint8_t(x)); v.push_back(uint8_t(x >> 8)); v.push_back(uint8_t(x >> 16)); v.push_back(uint8_t(x >> 24));
    }
}

// [image 16 bytes][id A, len 16][chunk 8 bytes][id B, len 8]
std::vector<uint8_t> chunkPayload(bool bigEndian)
{
    std::vector<uint8_t> v;
    for (int i = 0; i < 16; ++i)
        v.push_back(uint8_t(i));
    put32(v, 0xA5A5A5A5u, bigEndian);
    put32(v, 16, bigEndian);
    for (int i = 0; i < 8; ++i)
        v.push_back(uint8_t(0xF0 + i));
    put32(v, 0x1001u, bigEndian);
    put32(v, 8, bigEndian);
    return v;
}

const char* kChunkXml =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
    "<RegisterDescription ModelName=\"T\" VendorName=\"L\" StandardNameSpace=\"None\" SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" ToolTip=\"t\" ProductGuid=\"0\" VersionGuid=\"0\" xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n"
    "  <Category Name=\"Root\"><pFeature>ChunkModeActive</pFeature></Category>\n"
    "  <Boolean Name=\"ChunkModeActive\"><pValue>ChunkModeReg</pValue></Boolean>\n"
    "  <IntReg Name=\"ChunkModeReg\"><Address>0x100</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>\n"
    "  <Integer Name=\"ChunkWidth\"><pValue>ChunkWidthReg</pValue></Integer>\n"
    "  <IntReg Name=\"ChunkWidthReg\"><Address>0x0</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>ChunkPortA</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>\n"
    "  <Float Name=\"ChunkGain\"><pValue>ChunkGainReg</pValue></Float>\n"
    "  <FloatReg Name=\"ChunkGainReg\"><Address>0x4</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>ChunkPortA</pPort><Endianess>BigEndian</Endianess></FloatReg>\n"
    "  <IntReg Name=\"ChunkTimestamp\"><Address>0x0</Address><Length>8</Length><AccessMode>RO</AccessMode><pPort>ChunkPortB</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>\n"
    "  <StructReg Comment=\"line status\">\n"
    "    <Address>0x0</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>ChunkPortC</pPort><Endianess>BigEndian</Endianess>\n"
    "    <StructEntry Name=\"ChunkLineStatus\"><Bit>0</Bit></StructEntry>\n"
    "  </StructReg>\n"
    "  <Integer Name=\"NotAChunk\"><Value>3</Value></Integer>\n"
    "  <Port Name=\"Device\"/>\n"
    "  <Port Name=\"ChunkPortA\"><ChunkID>A001</ChunkID></Port>\n"
    "  <Port Name=\"ChunkPortB\"><ChunkID>0xB002</ChunkID></Port>\n"
    "  <Port Name=\"ChunkPortC\"><ChunkID>c003</ChunkID></Port>\n"
    "</RegisterDescription>\n";

void markGone(gpointer flag, GObject*)
{
    *static_cast<bool*>(flag) = true;
}

} // namespace

class TestSdkStreamUnits : public QObject
{
    Q_OBJECT

private slots:
    void slidingRate()
    {
        SlidingRate rate(1000000000LL);
        double fps = -1, mbps = -1;
        rate.rates(0, fps, mbps);
        QCOMPARE(fps, 0.0);
        rate.add(0, 1000);
        rate.rates(0, fps, mbps);
        QCOMPARE(fps, 0.0);   // one frame: no interval yet
        for (int i = 1; i <= 10; ++i)
            rate.add(int64_t(i) * 10000000LL, 1000);   // 10 ms apart
        rate.rates(100000000LL, fps, mbps);
        QVERIFY(qAbs(fps - 100.0) < 1e-6);
        QVERIFY(qAbs(mbps - 0.8) < 1e-6);              // 10 x 1000 bytes in 100 ms
        // A stream gone quiet for a whole window reads 0, not its last rate.
        rate.rates(2000000000LL, fps, mbps);
        QCOMPARE(fps, 0.0);
        QCOMPARE(mbps, 0.0);
        // Old entries leave the window as new ones come.
        rate.clear();
        for (int i = 0; i < 30; ++i)
            rate.add(int64_t(i) * 100000000LL, 10);    // 10 fps for 3 s
        rate.rates(29LL * 100000000LL, fps, mbps);
        QVERIFY(qAbs(fps - 10.0) < 1e-6);
    }

    void normalEventThrottle()
    {
        CEventThrottle t(100);
        QVERIFY(t.pass(5));        // the first always
        QVERIFY(!t.pass(5) && !t.pass(104));
        QVERIFY(t.pass(105));      // a whole interval after the last one let through
        QVERIFY(!t.pass(150));
        QVERIFY(t.pass(1000));     // after a pause

        // A stream's normal-frame events: ten a second whatever the frame rate.
        GrabSession s;
        int passed = 0;
        for (int64_t i = 0; i < 60; ++i)
            passed += s.normalEvents.pass(i * 16666667LL) ? 1 : 0;   // 60 fps for a second
        QCOMPARE(passed, 10);
    }

    void counterMapping()
    {
        StreamCounters c{};
        for (int k = 0; k < ctrCount; ++k)
            c[k] = uint64_t(100 + k);
        StreamStatisticsInfo info;
        countersToInfo(c, info);
        QCOMPARE(info.receivedImages, c[ctrCompletedBuffers]);
        QCOMPARE(info.errorImages, c[ctrFailures]);
        QCOMPARE(info.lostBlocks, c[ctrMissingFrames] + c[ctrFailures] + c[ctrUnderruns] + c[ctrShortBlocks]);
        QCOMPARE(lostFrames(c), info.lostBlocks);
        QCOMPARE(info.overrideBlocks, c[ctrUnderruns] + c[ctrLatestImageDrops]);
        QCOMPARE(info.lostPacketBlock, c[ctrStatusMissingPackets] + c[ctrShortBlocks]);
        QCOMPARE(info.tooManyLostPacketBlock, c[ctrStatusTimeout]);
        QCOMPARE(info.tooManyConsecutiveResendsBlock, c[ctrResendRatioReached]);
        QCOMPARE(info.missingBlockId, c[ctrMissingFrames]);
        QCOMPARE(info.lostPacket, c[ctrLostPackets]);   // ours, not Aravis' n_missing_packets
        QCOMPARE(info.resendRequest, c[ctrResendRequests]);
        QCOMPARE(info.resendPacket, c[ctrResentPackets]);
        QCOMPARE(info.redundantPacket, c[ctrDuplicatedPackets]);
        QCOMPARE(info.invalidFormatPacket, c[ctrErrorPackets]);
        // Every Aravis counter has its info name.
        for (int k = 0; k < ctrArvCount; ++k)
            QVERIFY(std::strncmp(streamInfoName(k), "n_", 2) == 0);
    }

    void ownCountersAndBaseline()
    {
        StreamStatisticsCounter stats;
        stats.onBufferDone(ARV_BUFFER_STATUS_MISSING_PACKETS, 0, 0);
        stats.onBufferDone(ARV_BUFFER_STATUS_MISSING_PACKETS, 0, 0);
        stats.onBufferDone(ARV_BUFFER_STATUS_TIMEOUT, 0, 0);
        stats.onBufferDone(ARV_BUFFER_STATUS_SIZE_MISMATCH, 0, 0);
        stats.onBufferDone(ARV_BUFFER_STATUS_ABORTED, 0, 0);   // a stop, not an error
        stats.onLatestImageDrop();
        StreamStatisticsInfo info;
        stats.fill(nullptr, info, 0);
        QCOMPARE(info.lostPacketBlock, uint64_t(2));
        QCOMPARE(info.tooManyLostPacketBlock, uint64_t(1));
        QCOMPARE(info.overrideBlocks, uint64_t(1));
        QCOMPARE(stats.totals(nullptr)[ctrStatusImageError], uint64_t(1));

        stats.reset(nullptr);
        stats.fill(nullptr, info, 0);
        QCOMPARE(info.lostPacketBlock, uint64_t(0));
        QCOMPARE(info.overrideBlocks, uint64_t(0));
        stats.onBufferDone(ARV_BUFFER_STATUS_MISSING_PACKETS, 0, 0);
        stats.fill(nullptr, info, 0);
        QCOMPARE(info.lostPacketBlock, uint64_t(1));

        // Complete frames feed the rates only.
        for (int i = 0; i < 5; ++i)
            stats.onBufferDone(ARV_BUFFER_STATUS_SUCCESS, 1000, int64_t(i) * 20000000LL);
        stats.fill(nullptr, info, 80000000LL);
        QVERIFY(qAbs(info.acquisitionFps - 50.0) < 1e-6);
        QCOMPARE(info.lostPacketBlock, uint64_t(1));
    }

    void blockIdUnwrap()
    {
        GrabSession s;
        QCOMPARE(s.unwrapBlockId(65534), uint64_t(65534));
        QCOMPARE(s.unwrapBlockId(65535), uint64_t(65535));
        QCOMPARE(s.unwrapBlockId(1), uint64_t(65536));     // 0 is skipped on the wire
        QCOMPARE(s.unwrapBlockId(2), uint64_t(65537));
        QCOMPARE(s.unwrapBlockId(65535), uint64_t(65535 + 65535));
        QCOMPARE(s.unwrapBlockId(3), uint64_t(3 + 2 * 65535));
        // A jump back that is no wrap (camera restarted counting) adds nothing.
        GrabSession t;
        t.unwrapBlockId(500);
        QCOMPARE(t.unwrapBlockId(100), uint64_t(100));
        // 64-bit ids are taken as they are.
        GrabSession u;
        u.unwrapBlockId(0x100000000ULL);
        QCOMPARE(u.unwrapBlockId(5), uint64_t(5));
    }

    void chunkLayout()
    {
        for (bool be : {true, false}) {
            const std::vector<uint8_t> p = chunkPayload(be);
            std::vector<SChunkSpan> spans;
            QVERIFY(walkChunks(p.data(), p.size(), be, spans));
            QCOMPARE(spans.size(), size_t(2));
            QCOMPARE(spans[0].id, 0xA5A5A5A5u);
            QCOMPARE(spans[0].offset, size_t(0));
            QCOMPARE(spans[0].size, size_t(16));
            QCOMPARE(spans[1].id, 0x1001u);
            QCOMPARE(spans[1].offset, size_t(24));
            QCOMPARE(spans[1].size, size_t(8));
        }
        // Wrong byte order: the first tag claims more than there is.
        std::vector<uint8_t> p = chunkPayload(true);
        std::vector<SChunkSpan> spans;
        QVERIFY(!walkChunks(p.data(), p.size(), false, spans) && spans.empty());
        // Too short and null payloads.
        QVERIFY(!walkChunks(p.data(), 7, true, spans) && !walkChunks(nullptr, 100, true, spans));
        // Data in front of the chunks that is no chunk: the walk stops there.
        std::vector<uint8_t> q(p.begin() + 24, p.end());
        q.insert(q.begin(), 5, uint8_t(0xEE));          // 5 stray bytes + last chunk
        QVERIFY(walkChunks(q.data(), q.size(), true, spans));
        QCOMPARE(spans.size(), size_t(1));
        QCOMPARE(spans[0].offset, size_t(5));
    }

    void hexText()
    {
        uint8_t data[20];
        for (int i = 0; i < 20; ++i)
            data[i] = uint8_t(i * 3);
        std::vector<std::string> lines = hexLines(data, sizeof(data));
        QCOMPARE(lines.size(), size_t(2));
        QCOMPARE(QString::fromStdString(lines[0]), QString("0000: 00 03 06 09 0c 0f 12 15 18 1b 1e 21 24 27 2a 2d"));
        QCOMPARE(QString::fromStdString(lines[1]), QString("0010: 30 33 36 39"));
        lines = hexLines(data, sizeof(data), 4);
        QCOMPARE(lines.size(), size_t(2));
        QCOMPARE(QString::fromStdString(lines[1]), QString("... (20 bytes)"));
        QCOMPARE(hexLines(nullptr, 0).size(), size_t(1));
    }

    void chunkFeatures()
    {
        ArvGc* gc = arv_gc_new(nullptr, kChunkXml, std::strlen(kChunkXml));
        QVERIFY(gc);
        const std::vector<ChunkFeature> f = findChunkFeatures(gc);
        QMap<QString, QPair<uint32_t, int>> found;
        for (const ChunkFeature& c : f)
            found.insert(QString::fromStdString(c.name), qMakePair(c.chunkId, int(c.kind)));
        QCOMPARE(found.value("ChunkWidth").first, 0xA001u);
        QCOMPARE(found.value("ChunkWidth").second, int(ChunkFeature::kindInteger));
        QCOMPARE(found.value("ChunkGain").first, 0xA001u);
        QCOMPARE(found.value("ChunkGain").second, int(ChunkFeature::kindFloat));
        QCOMPARE(found.value("ChunkTimestamp").first, 0xB002u);
        QCOMPARE(found.value("ChunkLineStatus").first, 0xC003u);
        // Not chunk data: the mode switch lives on the device port.
        QVERIFY(!found.contains("ChunkModeActive") && !found.contains("NotAChunk"));
        g_object_unref(gc);
        QVERIFY(findChunkFeatures(nullptr).empty());
    }

    void lostPacketsCountedExactly()
    {
        // A block of 10 full packets and a short last one (37 bytes). The
        // receiver copies each packet that arrives to its place; the places
        // of the lost ones keep their markers.
        PacketMarks marks;
        marks.blockSize = 100;
        marks.payload = 10 * 100 + 37;
        QCOMPARE(marks.packetCount(), uint64_t(11));
        ArvBuffer* buffer = arv_buffer_new_allocate(marks.payload);
        auto* data = static_cast<uint8_t*>(const_cast<void*>(arv_buffer_get_data(buffer, nullptr)));
        auto deliver = [&](const std::vector<int>& lost, uint8_t fill) {
            marks.mark(buffer);
            for (uint64_t k = 0; k < marks.packetCount(); ++k) {
                if (std::find(lost.begin(), lost.end(), int(k)) != lost.end())
                    continue;
                const size_t offset = size_t(k) * marks.blockSize;
                std::memset(data + offset, fill, std::min(marks.blockSize, marks.payload - offset));
            }
        };

        deliver({}, 0x00);
        QCOMPARE(marks.countMissing(buffer), uint64_t(0));
        // A gap early in the block counts its own packets only, not every
        // packet after it.
        deliver({1}, 0x55);
        QCOMPARE(marks.countMissing(buffer), uint64_t(1));
        deliver({2, 5, 6, 10}, 0xFF);
        QCOMPARE(marks.countMissing(buffer), uint64_t(4));
        // The buffer goes round again: old markers never count twice.
        deliver({0}, 0x12);
        QCOMPARE(marks.countMissing(buffer), uint64_t(1));
        deliver(std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 0x12);
        QCOMPARE(marks.countMissing(buffer), uint64_t(11));
        // Data that happens to equal another place's marker is not a loss.
        marks.mark(buffer);
        std::memcpy(data + 300, data + 200, 8);
        std::memset(data + 200, 1, 8);
        QCOMPARE(marks.countMissing(buffer), uint64_t(9));
        g_object_unref(buffer);

        // Without a packet size nothing is marked or counted.
        PacketMarks none;
        none.payload = 64;
        std::vector<uint8_t> plain(64, 0);
        none.mark(plain.data(), plain.size());
        QVERIFY(std::all_of(plain.begin(), plain.end(), [](uint8_t b) { return b == 0; }));
        QCOMPARE(none.countMissing(plain.data(), plain.size()), uint64_t(0));

        // The statistics add up what the blocks lacked.
        StreamStatisticsCounter stats;
        stats.onBufferDone(ARV_BUFFER_STATUS_MISSING_PACKETS, 0, 0, 4);
        stats.onBufferDone(ARV_BUFFER_STATUS_TIMEOUT, 0, 0, 11);
        stats.onBufferDone(ARV_BUFFER_STATUS_SUCCESS, 1037, 0, 0);
        StreamStatisticsInfo info;
        stats.fill(nullptr, info, 0);
        QCOMPARE(info.lostPacket, uint64_t(15));
        QCOMPARE(info.lostPacketBlock, uint64_t(1));
        QCOMPARE(info.tooManyLostPacketBlock, uint64_t(1));
        stats.reset(nullptr);
        stats.fill(nullptr, info, 0);
        QCOMPARE(info.lostPacket, uint64_t(0));
    }

    void frameOwnsBuffer()
    {
        // A frame made by hand: the buffer is freed with its last copy when
        // no stream is there to take it back.
        const std::vector<uint8_t> payload = chunkPayload(true);
        ArvBuffer* buffer = arv_buffer_new_allocate(payload.size());
        bool gone = false;
        g_object_weak_ref(G_OBJECT(buffer), markGone, &gone);

        CFrame empty;
        QVERIFY(!empty.valid());
        QCOMPARE(empty.getChunkCount(), 0u);
        TVector<CFrame::EPayloadType> types;
        QVERIFY(!empty.getPayLoadTypes(types));

        {
            auto data = Vorlen::Memory::makeShared<CFrame::SData>();
            data->buffer = buffer;
            data->payload = payload.data();
            data->payloadSize = payload.size();
            data->blockId = 42;
            data->payloadTypes = {CFrame::payloadImage, CFrame::payloadChunkData};
            walkChunks(payload.data(), payload.size(), true, data->chunkSpans);
            data->chunkSpans.erase(data->chunkSpans.begin());   // the image chunk
            CFrame a(data);
            data.reset();
            CFrame b = a;
            a.reset();
            QVERIFY(!a.valid() && b.valid() && !gone);
            QCOMPARE(b.getBlockId(), uint64_t(42));
            QVERIFY(b.getPayLoadTypes(types));
            QCOMPARE(types.size(), size_t(2));
            QCOMPARE(b.getChunkCount(), 1u);
            uint32_t id = 0;
            TVector<CString> lines;
            QVERIFY(b.getChunkDataByIndex(0, id, lines));
            QCOMPARE(id, 0x1001u);
            QCOMPARE(lines.size(), size_t(1));
            QCOMPARE(QString(lines[0].c_str()), QString("0000: f0 f1 f2 f3 f4 f5 f6 f7"));
            QVERIFY(!b.getChunkDataByIndex(1, id, lines) && lines.empty());
        }
        QVERIFY(gone);
    }
};

QTEST_GUILESS_MAIN(TestSdkStreamUnits)
#include "tst_sdk_stream_units.moc"
