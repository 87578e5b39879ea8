#include "FrameData.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace Vorlen {
namespace GenICam {

// ---------------------------------------------------------------------------
// Grab session and buffer return

GrabSession::~GrabSession()
{
    if (device) {
        if (controlLostHandler)
            g_signal_handler_disconnect(device, controlLostHandler);
        g_object_unref(device);
    }
    if (stream)
        g_object_unref(stream);
}

uint64_t GrabSession::unwrapBlockId(uint64_t raw)
{
    // GigE Vision 1.x block ids are 16 bits and skip 0 after 65535.
    if (haveBlockId && raw < lastRawBlockId && lastRawBlockId <= 0xFFFF && lastRawBlockId > 0xF000 && raw < 0x1000)
        blockIdEpoch += 0xFFFF;
    haveBlockId = true;
    lastRawBlockId = raw;
    return blockIdEpoch + raw;
}

uint64_t GrabSession::missingPackets(ArvBuffer* buffer) const
{
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    if (!marks.enabled() || (status != ARV_BUFFER_STATUS_MISSING_PACKETS && status != ARV_BUFFER_STATUS_TIMEOUT))
        return 0;
    return std::max<uint64_t>(1, marks.countMissing(buffer));
}

namespace {

constexpr uint64_t kPacketMarker = 0x4C756D69446F7221ULL;

uint64_t markerAt(uint64_t packet)
{
    return kPacketMarker ^ (packet * 0x9E3779B97F4A7C15ULL);
}

// Calls visit(place, marker, bytes) for every packet place that starts
// inside the first size bytes.
template <class Visit>
void forEachPlace(const PacketMarks& marks, size_t size, Visit visit)
{
    const uint64_t n = marks.packetCount();
    for (uint64_t k = 0; k < n; ++k) {
        const size_t offset = size_t(k) * marks.blockSize;
        if (offset >= size)
            break;
        visit(offset, markerAt(k), std::min<size_t>(sizeof(uint64_t), size - offset));
    }
}

} // namespace

void PacketMarks::mark(uint8_t* data, size_t size) const
{
    if (!enabled() || !data)
        return;
    forEachPlace(*this, size,
                 [data](size_t offset, uint64_t m, size_t bytes) { std::memcpy(data + offset, &m, bytes); });
}

void PacketMarks::mark(ArvBuffer* buffer) const
{
    if (!enabled() || !buffer)
        return;
    // Every buffer of a grab is allocated with the payload size; the size
    // Aravis reports is what the last block filled, not the allocation.
    auto* data = static_cast<uint8_t*>(const_cast<void*>(arv_buffer_get_data(buffer, nullptr)));
    mark(data, payload);
}

uint64_t PacketMarks::countMissing(const uint8_t* data, size_t size) const
{
    if (!enabled() || !data)
        return 0;
    uint64_t missing = 0;
    forEachPlace(*this, size, [data, &missing](size_t offset, uint64_t m, size_t bytes) {
        missing += std::memcmp(data + offset, &m, bytes) == 0 ? 1 : 0;
    });
    return missing;
}

uint64_t PacketMarks::countMissing(ArvBuffer* buffer) const
{
    if (!enabled() || !buffer)
        return 0;
    const auto* data = static_cast<const uint8_t*>(arv_buffer_get_data(buffer, nullptr));
    return countMissing(data, payload);
}

void StreamCore::recycle(ArvBuffer* buffer, uint64_t gen)
{
    if (!buffer)
        return;
    std::lock_guard<std::mutex> lock(mutex);
    if (grabbing && session && session->stream && gen == generation) {
        session->marks.mark(buffer);
        bufferHandOff(buffer);
        arv_stream_push_buffer(session->stream, buffer);
    } else
        g_object_unref(buffer);
}

ChunkContext::~ChunkContext()
{
    if (parser)
        g_object_unref(parser);
}

// ---------------------------------------------------------------------------
// Chunk features of a GenICam document

namespace {

// ChunkID is written in hex, with or without a 0x prefix.
bool parseChunkId(const char* text, uint32_t& id)
{
    if (!text)
        return false;
    while (*text == ' ' || *text == '\t' || *text == '\n' || *text == '\r')
        ++text;
    char* end = nullptr;
    const unsigned long long v = std::strtoull(text, &end, 16);
    if (end == text)
        return false;
    id = uint32_t(v);
    return true;
}

bool resolveChunkId(ArvDomNode* node, uint32_t& id, int depth)
{
    if (!node || depth > 8)
        return false;
    for (ArvDomNode* c = arv_dom_node_get_first_child(node); c; c = arv_dom_node_get_next_sibling(c)) {
        if (ARV_IS_GC_PROPERTY_NODE(c)
            && arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(c)) == ARV_GC_PROPERTY_NODE_TYPE_CHUNK_ID) {
            GError* error = nullptr;
            const char* text = arv_gc_property_node_get_string(ARV_GC_PROPERTY_NODE(c), &error);
            if (error) {
                g_clear_error(&error);
                return false;
            }
            return parseChunkId(text, id);
        }
    }
    // A struct entry reads from the register of its StructReg.
    if (ARV_IS_GC_STRUCT_ENTRY_NODE(node))
        return resolveChunkId(arv_dom_node_get_parent_node(node), id, depth + 1);
    // The value's register, then the register's port: the port of a chunk
    // register carries the ChunkID.
    for (ArvDomNode* c = arv_dom_node_get_first_child(node); c; c = arv_dom_node_get_next_sibling(c)) {
        if (!ARV_IS_GC_PROPERTY_NODE(c))
            continue;
        const ArvGcPropertyNodeType type = arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(c));
        if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE || type == ARV_GC_PROPERTY_NODE_TYPE_P_PORT) {
            ArvGcNode* linked = arv_gc_property_node_get_linked_node(ARV_GC_PROPERTY_NODE(c));
            if (linked && resolveChunkId(ARV_DOM_NODE(linked), id, depth + 1))
                return true;
        }
    }
    return false;
}

void collectChunkFeatures(ArvDomNode* parent, std::vector<ChunkFeature>& out, int depth)
{
    if (depth > 16)
        return;
    for (ArvDomNode* c = arv_dom_node_get_first_child(parent); c; c = arv_dom_node_get_next_sibling(c)) {
        if (ARV_IS_GC_FEATURE_NODE(c)) {
            const char* name = arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(c));
            if (name && std::strncmp(name, "Chunk", 5) == 0) {
                ChunkFeature f;
                bool value = true;
                if (ARV_IS_GC_ENUMERATION(c))
                    f.kind = ChunkFeature::kindEnumeration;
                else if (ARV_IS_GC_BOOLEAN(c))
                    f.kind = ChunkFeature::kindBoolean;
                else if (ARV_IS_GC_FLOAT(c))
                    f.kind = ChunkFeature::kindFloat;
                else if (ARV_IS_GC_INTEGER(c))
                    f.kind = ChunkFeature::kindInteger;
                else if (ARV_IS_GC_STRING(c))
                    f.kind = ChunkFeature::kindString;
                else
                    value = false;
                if (value && resolveChunkId(c, f.chunkId, 0)) {
                    f.name = name;
                    out.push_back(f);
                }
            }
        }
        // Groups and struct registers hold further features.
        if (ARV_IS_GC_GROUP_NODE(c) || ARV_IS_GC_STRUCT_REG_NODE(c))
            collectChunkFeatures(c, out, depth + 1);
    }
}

uint32_t read32(const uint8_t* p, bool bigEndian)
{
    if (bigEndian)
        return (uint32_t(p[0]) << 24) | (uint32_t(p[1]) << 16) | (uint32_t(p[2]) << 8) | uint32_t(p[3]);
    return (uint32_t(p[3]) << 24) | (uint32_t(p[2]) << 16) | (uint32_t(p[1]) << 8) | uint32_t(p[0]);
}

} // namespace

std::vector<ChunkFeature> findChunkFeatures(ArvGc* genicam)
{
    std::vector<ChunkFeature> out;
    if (!genicam)
        return out;
    ArvDomElement* root = arv_dom_document_get_document_element(ARV_DOM_DOCUMENT(genicam));
    if (root)
        collectChunkFeatures(ARV_DOM_NODE(root), out, 0);
    return out;
}

bool walkChunks(const uint8_t* data, size_t size, bool bigEndian, std::vector<SChunkSpan>& spans)
{
    spans.clear();
    if (!data)
        return false;
    size_t pos = size;
    while (pos >= 8 && spans.size() < 1024) {
        const uint32_t id = read32(data + pos - 8, bigEndian);
        const uint32_t length = read32(data + pos - 4, bigEndian);
        if (length > pos - 8)
            break;
        SChunkSpan s;
        s.id = id;
        s.offset = pos - 8 - length;
        s.size = length;
        spans.push_back(s);
        pos = s.offset;
        if (pos == 0)
            break;
    }
    std::reverse(spans.begin(), spans.end());
    return !spans.empty();
}

std::vector<std::string> hexLines(const uint8_t* data, size_t size, size_t maxBytes)
{
    std::vector<std::string> lines;
    if (!data || size == 0) {
        lines.emplace_back("(empty)");
        return lines;
    }
    const size_t shown = std::min(size, maxBytes);
    char text[16 * 3 + 16];
    for (size_t off = 0; off < shown; off += 16) {
        int n = std::snprintf(text, sizeof(text), "%04zx:", off);
        for (size_t i = off; i < std::min(shown, off + 16); ++i)
            n += std::snprintf(text + n, sizeof(text) - size_t(n), " %02x", data[i]);
        lines.emplace_back(text);
    }
    if (shown < size) {
        std::snprintf(text, sizeof(text), "... (%zu bytes)", size);
        lines.emplace_back(text);
    }
    return lines;
}

// ---------------------------------------------------------------------------
// Frame record

CFrame::SData::~SData()
{
    if (!buffer)
        return;
    if (auto c = core.lock()) {
        c->heldBuffers.fetch_sub(1, std::memory_order_relaxed);
        c->recycle(buffer, generation);
    } else {
        g_object_unref(buffer);
    }
}

uint64_t CFrame::SData::minimumImageBytes() const
{
    if (!image || std::find(payloadTypes.begin(), payloadTypes.end(), CFrame::payloadImage) == payloadTypes.end())
        return 0;
    const uint64_t bpp = ARV_PIXEL_FORMAT_BIT_PER_PIXEL(pixelFormat);
    if (bpp == 0 || bpp > 64)
        return 0;
    return (uint64_t(width) * height * bpp + 7) / 8;
}

void CFrame::SData::describe(ArvBuffer* buf, uint64_t unwrappedBlockId, const SFallbackGeometry& fallback)
{
    blockId = unwrappedBlockId;
    timestamp = arv_buffer_get_timestamp(buf);
    if (timestamp == 0)
        timestamp = arv_buffer_get_system_timestamp(buf);

    size_t dataSize = 0;
    const uint8_t* data = static_cast<const uint8_t*>(arv_buffer_get_data(buf, &dataSize));
    payload = data;
    payloadSize = dataSize;
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buf);
    hasChunks = arv_buffer_has_chunks(buf);

    // Image part: the first 2D image part of the buffer, if any.
    int imagePart = -1;
    switch (type) {
    case ARV_BUFFER_PAYLOAD_TYPE_IMAGE:
    case ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA:
        if (arv_buffer_get_n_parts(buf) > 0)
            imagePart = 0;
        payloadTypes.push_back(CFrame::payloadImage);
        if (type == ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA)
            hasChunks = true;
        break;
    case ARV_BUFFER_PAYLOAD_TYPE_CHUNK_DATA:
        hasChunks = true;
        break;
    case ARV_BUFFER_PAYLOAD_TYPE_JPEG:
        payloadTypes.push_back(CFrame::payloadJPEG);
        image = data;
        imageSize = dataSize;
        break;
    case ARV_BUFFER_PAYLOAD_TYPE_MULTIPART: {
        payloadTypes.push_back(CFrame::payloadMultiPart);
        const guint n = arv_buffer_get_n_parts(buf);
        for (guint i = 0; i < n && imagePart < 0; ++i) {
            const ArvBufferPartDataType pt = arv_buffer_get_part_data_type(buf, i);
            if (pt == ARV_BUFFER_PART_DATA_TYPE_2D_IMAGE)
                imagePart = int(i);
        }
        if (imagePart >= 0)
            payloadTypes.insert(payloadTypes.begin(), CFrame::payloadImage);
        break;
    }
    default:
        if (int(type) > 0)
            payloadTypes.push_back(CFrame::EPayloadType(int(type)));
        break;
    }

    if (imagePart >= 0) {
        size_t partSize = 0;
        image = static_cast<const unsigned char*>(arv_buffer_get_part_data(buf, guint(imagePart), &partSize));
        imageSize = partSize;
        gint x = 0, y = 0, w = 0, h = 0, px = 0, py = 0;
        arv_buffer_get_part_region(buf, guint(imagePart), &x, &y, &w, &h);
        arv_buffer_get_part_padding(buf, guint(imagePart), &px, &py);
        width = uint32_t(std::max(w, 0));
        height = uint32_t(std::max(h, 0));
        offsetX = uint64_t(std::max(x, 0));
        offsetY = uint64_t(std::max(y, 0));
        paddingX = uint32_t(std::max(px, 0));
        paddingY = uint32_t(std::max(py, 0));
        pixelFormat = uint32_t(arv_buffer_get_part_pixel_format(buf, guint(imagePart)));
    } else {
        width = fallback.width;
        height = fallback.height;
        pixelFormat = fallback.pixelFormat;
        offsetX = fallback.offsetX;
        offsetY = fallback.offsetY;
    }

    if (hasChunks && data && dataSize >= 8) {
        std::vector<SChunkSpan> spans;
        if (!walkChunks(data, dataSize, true, spans) || spans.front().offset != 0) {
            std::vector<SChunkSpan> le;
            if (walkChunks(data, dataSize, false, le) && le.front().offset == 0)
                spans.swap(le);
        }
        const uint64_t bpp = ARV_PIXEL_FORMAT_BIT_PER_PIXEL(pixelFormat);
        const uint64_t minImage = uint64_t(width) * height * bpp / 8;
        if (!spans.empty() && spans.front().offset == 0 && minImage > 0
            && spans.front().size >= minImage && (imagePart >= 0 || type == ARV_BUFFER_PAYLOAD_TYPE_CHUNK_DATA)) {
            // The image travels as the first chunk: it is the image part.
            image = data;
            imageSize = spans.front().size;
            if (imagePart < 0)
                payloadTypes.insert(payloadTypes.begin(), CFrame::payloadImage);
            spans.erase(spans.begin());
        } else if (!spans.empty() && image == data && imageSize > spans.front().offset) {
            // Image data followed by chunks: the image ends where they begin.
            imageSize = spans.front().offset;
        }
        chunkSpans = spans;
        payloadTypes.push_back(CFrame::payloadChunkData);
    }
}

void CFrame::SData::decodeChunks()
{
    chunkText.resize(chunkSpans.size());
    const uint8_t* data = payload;
    const size_t dataSize = payloadSize;
    for (size_t i = 0; i < chunkSpans.size(); ++i) {
        const SChunkSpan& span = chunkSpans[i];
        std::vector<std::string>& lines = chunkText[i];
        if (chunkContext && chunkContext->parser) {
            std::lock_guard<std::mutex> lock(chunkContext->mutex);
            for (const ChunkFeature& f : chunkContext->features) {
                if (f.chunkId != span.id)
                    continue;
                GError* error = nullptr;
                std::string value;
                char text[64];
                switch (f.kind) {
                case ChunkFeature::kindFloat: {
                    const double v = arv_chunk_parser_get_float_value(chunkContext->parser, buffer, f.name.c_str(), &error);
                    std::snprintf(text, sizeof(text), "%.6g", v);
                    value = text;
                    break;
                }
                case ChunkFeature::kindBoolean: {
                    const gboolean v = arv_chunk_parser_get_boolean_value(chunkContext->parser, buffer, f.name.c_str(), &error);
                    value = v ? "true" : "false";
                    break;
                }
                case ChunkFeature::kindString:
                case ChunkFeature::kindEnumeration: {
                    const char* v = arv_chunk_parser_get_string_value(chunkContext->parser, buffer, f.name.c_str(), &error);
                    if (!error && v) {
                        value = v;
                        break;
                    }
                    g_clear_error(&error);
                    if (f.kind == ChunkFeature::kindString)
                        break;
                    // An enumeration that only reads as its integer value.
                    const gint64 iv = arv_chunk_parser_get_integer_value(chunkContext->parser, buffer, f.name.c_str(), &error);
                    std::snprintf(text, sizeof(text), "%" PRId64, int64_t(iv));
                    value = text;
                    break;
                }
                case ChunkFeature::kindInteger: {
                    const gint64 v = arv_chunk_parser_get_integer_value(chunkContext->parser, buffer, f.name.c_str(), &error);
                    std::snprintf(text, sizeof(text), "%" PRId64, int64_t(v));
                    value = text;
                    break;
                }
                }
                if (error) {
                    g_clear_error(&error);
                    continue;
                }
                lines.push_back(f.name + ": " + value);
            }
        }
        if (lines.empty()) {
            const bool inside = data && span.offset + span.size <= dataSize;
            lines = hexLines(inside ? data + span.offset : nullptr, inside ? span.size : 0);
        }
    }
}

} // namespace GenICam
} // namespace Vorlen
