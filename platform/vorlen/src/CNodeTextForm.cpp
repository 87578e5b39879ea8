#include "CNodeTextForm.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "CEnumerationFeature.h"
#include "Gvcp.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Node = CInternalParameterNode;

bool CNodeTextForm::fail(int code, const std::string& more) const
{
    const std::string detail = m_node.getName().str() + ": " + more;
    setLastError(code, detail.c_str());
    return false;
}

bool CNodeTextForm::get(CString& value) const
{
    const Node::EFeatureType type = m_node.getType();
    if (type == Node::featureTypeNone && getLastError() != ERR_OK)
        return false;
    switch (type) {
    case Node::featureTypeInteger: {
        long v = 0;
        if (!m_node.getIntValue(v))
            return false;
        const Node::ERepresent r = m_node.getRepresentation();
        if (r == Node::representIPV4Address)
            value = Gvcp::ipToString(uint32_t(v));
        else if (r == Node::representMACAddress)
            value = Gvcp::macToString(uint64_t(v));
        else
            value = std::to_string(v);
        return true;
    }
    case Node::featureTypeFloat: {
        double v = 0;
        if (!m_node.getFloatValue(v))
            return false;
        char text[64];
        std::snprintf(text, sizeof(text), "%.15g", v);
        value = text;
        return true;
    }
    case Node::featureTypeBool: {
        bool v = false;
        if (!m_node.getBoolValue(v))
            return false;
        value = v ? "true" : "false";
        return true;
    }
    case Node::featureTypeString:
        return m_node.getStringValue(value);
    case Node::featureTypeEnum:
        return CEnumerationFeature(m_node.getCamera(), m_node.getName()).symbol(value);
    case Node::featureTypeRegister: {
        TVector<unsigned char> bytes;
        if (!m_node.getRegValue(bytes))
            return false;
        std::string text;
        char hex[3];
        for (unsigned char b : bytes) {
            std::snprintf(hex, sizeof(hex), "%02x", b);
            text += hex;
        }
        value = text;
        return true;
    }
    default:
        return fail(ERR_NOT_READABLE, "no value");
    }
}

bool CNodeTextForm::set(const CString& value) const
{
    // A node is its camera and feature name: a copy writes the same feature.
    Node node(m_node.getCamera(), m_node.getName().c_str());
    const Node::EFeatureType type = node.getType();
    if (type == Node::featureTypeNone && getLastError() != ERR_OK)
        return false;
    const char* text = value.c_str();
    char* end = nullptr;
    switch (type) {
    case Node::featureTypeInteger: {
        uint32_t ip = 0;
        uint64_t mac = 0;
        const Node::ERepresent r = node.getRepresentation();
        if (r == Node::representIPV4Address && std::strchr(text, '.') && Gvcp::parseIp(text, ip))
            return node.setIntValue(long(ip));
        if (r == Node::representMACAddress && (std::strchr(text, ':') || std::strchr(text, '-')) &&
            Gvcp::parseMac(text, mac))
            return node.setIntValue(long(mac));
        const long long v = std::strtoll(text, &end, 0);
        if (end == text || *end)
            return fail(ERR_INVALID_PARAMETER, "not an integer: " + value.str());
        return node.setIntValue(long(v));
    }
    case Node::featureTypeFloat: {
        const double v = std::strtod(text, &end);
        if (end == text || *end)
            return fail(ERR_INVALID_PARAMETER, "not a number: " + value.str());
        return node.setFloatValue(v);
    }
    case Node::featureTypeBool: {
        std::string s = value.str();
        for (char& c : s)
            c = char(std::tolower(static_cast<unsigned char>(c)));
        if (s == "true" || s == "1" || s == "on")
            return node.setBoolValue(true);
        if (s == "false" || s == "0" || s == "off")
            return node.setBoolValue(false);
        return fail(ERR_INVALID_PARAMETER, "not a boolean: " + value.str());
    }
    case Node::featureTypeString:
        return node.setStringValue(value);
    case Node::featureTypeEnum:
        return node.setEnumValueBySymbol(value);
    case Node::featureTypeRegister: {
        const std::string s = value.str();
        if (s.size() % 2 != 0)
            return fail(ERR_INVALID_PARAMETER, "odd number of hex digits");
        TVector<unsigned char> bytes;
        for (size_t i = 0; i < s.size(); i += 2) {
            const std::string pair = s.substr(i, 2);
            const unsigned long b = std::strtoul(pair.c_str(), &end, 16);
            if (*end)
                return fail(ERR_INVALID_PARAMETER, "not hexadecimal: " + s);
            bytes.push_back(static_cast<unsigned char>(b));
        }
        return node.setRegValue(bytes);
    }
    case Node::featureTypeCommand:
        return node.execute();
    default:
        return fail(ERR_NOT_WRITABLE, "no value");
    }
}

} // namespace GenICam
} // namespace Vorlen
