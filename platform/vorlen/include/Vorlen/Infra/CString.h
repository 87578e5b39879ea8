#pragma once
// 8-bit string of the camera library boundary.
#include <string>

namespace Vorlen {
namespace Infra {

class CString
{
public:
    CString() = default;
    CString(const char* s) : m_str(s ? s : "") {}
    CString(const char* s, size_t n) : m_str(s ? std::string(s, n) : std::string()) {}
    CString(const std::string& s) : m_str(s) {}

    const char* c_str() const { return m_str.c_str(); }
    size_t size() const { return m_str.size(); }
    size_t length() const { return m_str.size(); }
    bool empty() const { return m_str.empty(); }
    void clear() { m_str.clear(); }
    const std::string& str() const { return m_str; }

    CString& operator+=(const CString& o) { m_str += o.m_str; return *this; }
    friend CString operator+(const CString& a, const CString& b) { return CString(a.m_str + b.m_str); }
    bool operator==(const CString& o) const { return m_str == o.m_str; }
    bool operator!=(const CString& o) const { return m_str != o.m_str; }
    bool operator<(const CString& o) const { return m_str < o.m_str; }

private:
    std::string m_str;
};

} // namespace Infra
} // namespace Vorlen
