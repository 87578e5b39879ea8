#include "CDescriptionFetcher.h"

#include <arv.h>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Gvcp.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

namespace {

constexpr uint32_t kUrlSize = 512;
constexpr uint32_t kMaxDescriptionSize = 64u * 1024 * 1024;

bool endsWithZip(const std::string& name)
{
    return name.size() > 4 &&
           (name.compare(name.size() - 4, 4, ".zip") == 0 || name.compare(name.size() - 4, 4, ".ZIP") == 0);
}

std::string textOf(const std::vector<uint8_t>& bytes)
{
    const char* p = reinterpret_cast<const char*>(bytes.data());
    return std::string(p, strnlen(p, bytes.size()));
}

} // namespace

CDescriptionFetcher::CDescriptionFetcher(const std::string& cameraIp, unsigned int timeoutMs)
    : m_timeoutMs(timeoutMs)
{
    m_valid = Gvcp::parseIp(cameraIp.c_str(), m_ip);
}

std::string CDescriptionFetcher::url() const
{
    std::vector<uint8_t> bytes;
    if (!m_valid || Gvcp::readMemory(m_ip, Gvcp::REG_XML_URL_0, kUrlSize, bytes, m_timeoutMs) != Infra::ERR_OK)
        return std::string();
    return textOf(bytes);
}

std::string CDescriptionFetcher::description() const
{
    const std::string location = url();
    std::string name, xml;
    uint32_t address = 0, size = 0;
    std::vector<uint8_t> raw;
    if (parseLocalUrl(location, name, address, size) && size < kMaxDescriptionSize &&
        Gvcp::readMemory(m_ip, address, size, raw, m_timeoutMs) == Infra::ERR_OK)
        unpack(location, raw, xml);
    return xml;
}

bool CDescriptionFetcher::parseLocalUrl(const std::string& url, std::string& name, uint32_t& address, uint32_t& size)
{
    if (url.size() < 6)
        return false;
    std::string scheme = url.substr(0, 6);
    for (char& c : scheme)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    if (scheme != "local:")
        return false;
    const std::string rest = url.substr(6);
    const std::string::size_type a = rest.find(';');
    if (a == std::string::npos)
        return false;
    const std::string::size_type b = rest.find(';', a + 1);
    if (b == std::string::npos)
        return false;
    name = rest.substr(0, a);
    address = uint32_t(std::strtoul(rest.substr(a + 1, b - a - 1).c_str(), nullptr, 16));
    size = uint32_t(std::strtoul(rest.substr(b + 1).c_str(), nullptr, 16));
    return !name.empty() && size > 0;
}

std::string CDescriptionFetcher::fileNameOfUrl(const std::string& url)
{
    std::string name;
    uint32_t address = 0, size = 0;
    if (parseLocalUrl(url, name, address, size)) {
        // "Local:///name.xml;..." and "Local:name.xml;..." both occur.
        const std::string::size_type slash = name.find_last_of('/');
        if (slash != std::string::npos)
            name = name.substr(slash + 1);
    } else {
        name = url.substr(0, url.find_first_of(";?"));
        const std::string::size_type slash = name.find_last_of("/:");
        if (slash != std::string::npos)
            name = name.substr(slash + 1);
    }
    if (endsWithZip(name))
        name = name.substr(0, name.size() - 4);
    return name;
}

std::string CDescriptionFetcher::fileNameFor(const std::string& url, const std::string& vendor,
                                             const std::string& model)
{
    std::string name = fileNameOfUrl(url);
    if (!name.empty())
        return name;
    name = vendor + "_" + model;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_' && c != '.')
            c = '_';
    return name + ".xml";
}

bool CDescriptionFetcher::unpack(const std::string& url, const std::vector<uint8_t>& raw, std::string& xml)
{
    std::string name;
    uint32_t address = 0, size = 0;
    parseLocalUrl(url, name, address, size);
    if (!endsWithZip(name)) {
        xml = textOf(raw);
        return !xml.empty();
    }
    ArvZip* zip = arv_zip_new(raw.data(), raw.size());
    if (!zip)
        return false;
    const GSList* files = arv_zip_get_file_list(zip);
    bool ok = false;
    if (files && files->data) {
        size_t unpackedSize = 0;
        void* data = arv_zip_get_file(zip, arv_zip_file_get_name(static_cast<ArvZipFile*>(files->data)),
                                      &unpackedSize);
        if (data) {
            xml.assign(static_cast<const char*>(data), unpackedSize);
            g_free(data);
            ok = !xml.empty();
        }
    }
    arv_zip_free(zip);
    return ok;
}

bool CDescriptionFetcher::save(const std::string& text, const char* path)
{
    // Written to a temporary file beside the target, synced and renamed over
    // it: a failed write (a full disk) leaves an earlier file as it was and
    // no partial file behind. The error names the file and the reason.
    GError* error = nullptr;
    const gboolean ok = g_file_set_contents_full(
        path, text.data(), gssize(text.size()),
        GFileSetContentsFlags(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE), 0644, &error);
    if (!ok) {
        Infra::setLastError(Infra::ERR_IO, error ? error->message : path);
        g_clear_error(&error);
        return false;
    }
    return true;
}

} // namespace GenICam
} // namespace Vorlen
