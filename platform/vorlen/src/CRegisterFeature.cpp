#include "CRegisterFeature.h"

#include <cinttypes>
#include <cstdio>

#include "CNodeAccess.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

constexpr guint64 kMaxLength = 16u * 1024 * 1024;

// The register's length, or false with the last error set.
bool lengthOf(const CNodeAccess& a, guint64& length)
{
    return a.read(length, [&a](GError** e) { return arv_gc_register_get_length(ARV_GC_REGISTER(a.node()), e); });
}

} // namespace

bool CRegisterFeature::length(long& length) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useDescribe, &CNodeAccess::kRegister);
    guint64 v = 0;
    if (!a || !lengthOf(a, v))
        return false;
    length = long(v);
    return true;
}

bool CRegisterFeature::get(TVector<unsigned char>& bytes) const
{
    bytes.clear();
    CNodeAccess a(m_camera, m_name, CNodeAccess::useRead, &CNodeAccess::kRegister);
    guint64 length = 0;
    if (!a || !lengthOf(a, length))
        return false;
    if (length > kMaxLength)
        return a.fail(ERR_READ_FAILED, "register too long");
    bytes.resize(size_t(length));
    GError* e = nullptr;
    arv_gc_register_get(ARV_GC_REGISTER(a.node()), bytes.data(), length, &e);
    if (!a.check(e, ERR_READ_FAILED)) {
        bytes.clear();
        return false;
    }
    return a.succeed();
}

bool CRegisterFeature::set(const TVector<unsigned char>& bytes) const
{
    CNodeAccess a(m_camera, m_name, CNodeAccess::useWrite, &CNodeAccess::kRegister);
    guint64 length = 0;
    if (!a || !lengthOf(a, length))
        return false;
    if (bytes.size() != length) {
        char text[64];
        std::snprintf(text, sizeof(text), "%zu bytes given, the register has %" PRIu64, bytes.size(),
                      uint64_t(length));
        return a.fail(ERR_INVALID_PARAMETER, text);
    }
    return a.write([&a, &bytes, length](GError** e) {
        arv_gc_register_set(ARV_GC_REGISTER(a.node()), bytes.data(), length, e);
    });
}

} // namespace GenICam
} // namespace Vorlen
