#pragma once
// Any feature's value as text and back: integers in decimal (addresses as
// dotted quads and MAC addresses where the feature is represented so),
// floats with 15 significant digits, booleans as "true"/"false",
// enumerations by symbol, registers as hexadecimal bytes. Setting a command
// from text executes it.
#include "Vorlen/GenICam/CInternalParameterNode.h"

namespace Vorlen {
namespace GenICam {

class CNodeTextForm
{
public:
    explicit CNodeTextForm(const CInternalParameterNode& node) : m_node(node) {}

    bool get(CString& value) const;
    bool set(const CString& value) const;

private:
    bool fail(int code, const std::string& more) const;

    const CInternalParameterNode& m_node;
};

} // namespace GenICam
} // namespace Vorlen
