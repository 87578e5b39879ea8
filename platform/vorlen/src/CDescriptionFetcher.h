#pragma once
// The GenICam description of a GigE Vision camera read from its memory over
// our own GVCP socket (no control of the camera needed), and the helpers to
// name and store a description.
#include <cstdint>
#include <string>
#include <vector>

namespace Vorlen {
namespace GenICam {

class CDescriptionFetcher
{
public:
    CDescriptionFetcher(const std::string& cameraIp, unsigned int timeoutMs);

    // The first description URL of the camera ("" when it does not answer).
    std::string url() const;
    // The description named by a "Local:" URL, unpacked when zipped; "" when
    // it cannot be read.
    std::string description() const;

    // "Local:name.xml;10000;3e67" -> name, address, size. False for other schemes.
    static bool parseLocalUrl(const std::string& url, std::string& name, uint32_t& address, uint32_t& size);
    // File name a URL names, without a ".zip" ending.
    static std::string fileNameOfUrl(const std::string& url);
    // The name to offer for a camera's description: the URL's, else one
    // made of vendor and model.
    static std::string fileNameFor(const std::string& url, const std::string& vendor, const std::string& model);
    // The description file of a "Local:" URL, unpacked when zipped.
    static bool unpack(const std::string& url, const std::vector<uint8_t>& raw, std::string& xml);
    // Writes text to path; false with the last error set (ERR_IO).
    static bool save(const std::string& text, const char* path);

private:
    uint32_t m_ip = 0;
    bool m_valid = false;
    unsigned int m_timeoutMs;
};

} // namespace GenICam
} // namespace Vorlen
