// Parameter nodes over the Aravis node map of a connected camera. A node is
// its camera and feature name; each operation hands them to the operations
// of the feature's kind, which check the access and map the errors.
#include "Vorlen/GenICam/CInternalParameterNode.h"

#include "CBooleanFeature.h"
#include "CCommandFeature.h"
#include "CEnumerationFeature.h"
#include "CFloatFeature.h"
#include "CIntegerFeature.h"
#include "CNodeMetadata.h"
#include "CNodeTextForm.h"
#include "CRegisterFeature.h"
#include "CStringFeature.h"

namespace Vorlen {
namespace GenICam {

using Memory::TSharedPtr;
using Node = CInternalParameterNode;

CInternalParameterNode::CInternalParameterNode(const TSharedPtr<ICamera>& camera, const char* name)
    : m_camera(camera), m_name(name ? name : "")
{
}

CInternalParameterNode::~CInternalParameterNode() = default;

// ---- Metadata -----------------------------------------------------------

bool Node::isValid() const { return CNodeMetadata(m_camera, m_name).isValid(); }
bool Node::isImplemented() const { return CNodeMetadata(m_camera, m_name).isImplemented(); }
bool Node::isAvailable() const { return CNodeMetadata(m_camera, m_name).isAvailable(); }
bool Node::isReadable() const { return CNodeMetadata(m_camera, m_name).isReadable(); }
bool Node::isWriteable() const { return CNodeMetadata(m_camera, m_name).isWriteable(); }
bool Node::isStreamable() const { return CNodeMetadata(m_camera, m_name).isStreamable(); }
Node::EFeatureType Node::getType() const { return CNodeMetadata(m_camera, m_name).type(); }
Node::ERepresent Node::getRepresentation() const { return CNodeMetadata(m_camera, m_name).representation(); }
Node::EVisibility Node::getVisibility() const { return CNodeMetadata(m_camera, m_name).visibility(); }
Node::ENameSpace Node::getNameSpace() const { return CNodeMetadata(m_camera, m_name).nameSpace(); }
CString Node::getName() const { return m_name; }
CString Node::getDisplayName() const { return CNodeMetadata(m_camera, m_name).displayName(); }
CString Node::getDescription() const { return CNodeMetadata(m_camera, m_name).description(); }
CString Node::getToolTip() const { return CNodeMetadata(m_camera, m_name).toolTip(); }
bool Node::getUnit(CString& unit) const { return CNodeMetadata(m_camera, m_name).unit(unit); }
TVector<CString> Node::getSelectorsName() const { return CNodeMetadata(m_camera, m_name).selectors(); }
TVector<CString> Node::getSelectedName() const { return CNodeMetadata(m_camera, m_name).selected(); }

bool Node::getChildren(TVector<TSharedPtr<Node>>& children) const
{
    return CNodeMetadata(m_camera, m_name).children(children);
}

// ---- Values by kind -----------------------------------------------------

bool Node::getIntValue(long& value) const { return CIntegerFeature(m_camera, m_name).get(value); }
bool Node::setIntValue(long value) { return CIntegerFeature(m_camera, m_name).set(value); }
bool Node::getIntMaxMin(long& max, long& min) const { return CIntegerFeature(m_camera, m_name).range(max, min); }
bool Node::getIntIncrement(long& inc) const { return CIntegerFeature(m_camera, m_name).increment(inc); }

bool Node::getFloatValue(double& value) const { return CFloatFeature(m_camera, m_name).get(value); }
bool Node::setFloatValue(double value) { return CFloatFeature(m_camera, m_name).set(value); }
bool Node::getFloatMaxMin(double& max, double& min) const { return CFloatFeature(m_camera, m_name).range(max, min); }
bool Node::getFloatIncrement(double& inc) const { return CFloatFeature(m_camera, m_name).increment(inc); }

bool Node::getFloatDisplayPrecision(long& precision) const
{
    return CFloatFeature(m_camera, m_name).displayPrecision(precision);
}

bool Node::getBoolValue(bool& value) const { return CBooleanFeature(m_camera, m_name).get(value); }
bool Node::setBoolValue(bool value) { return CBooleanFeature(m_camera, m_name).set(value); }

bool Node::getStringValue(CString& value) const { return CStringFeature(m_camera, m_name).get(value); }
bool Node::setStringValue(const CString& value) { return CStringFeature(m_camera, m_name).set(value); }
bool Node::getMaxStringLen(unsigned int& len) const { return CStringFeature(m_camera, m_name).maxLength(len); }

bool Node::getEnumValue(unsigned long& value) const { return CEnumerationFeature(m_camera, m_name).get(value); }
bool Node::setEnumValue(unsigned long value) { return CEnumerationFeature(m_camera, m_name).set(value); }

bool Node::setEnumValueBySymbol(const CString& symbol)
{
    return CEnumerationFeature(m_camera, m_name).setBySymbol(symbol);
}

bool Node::getEnumEntry(TVector<SEnumEntry>& entries) const
{
    return CEnumerationFeature(m_camera, m_name).entries(entries);
}

bool Node::getRegLength(long& length) const { return CRegisterFeature(m_camera, m_name).length(length); }
bool Node::getRegValue(TVector<unsigned char>& bytes) const { return CRegisterFeature(m_camera, m_name).get(bytes); }
bool Node::setRegValue(const TVector<unsigned char>& bytes) { return CRegisterFeature(m_camera, m_name).set(bytes); }

bool Node::execute() { return CCommandFeature(m_camera, m_name).execute(); }
bool Node::isDone(bool& done) const { return CCommandFeature(m_camera, m_name).isDone(done); }

bool Node::isDone() const
{
    bool done = true;
    return isDone(done) ? done : true;
}

// ---- Text form ----------------------------------------------------------

bool Node::getValueAsString(CString& value) const { return CNodeTextForm(*this).get(value); }
bool Node::setValueFromString(const CString& value) { return CNodeTextForm(*this).set(value); }

// ---- Typed wrappers -----------------------------------------------------

bool CEnumNode::getEnumSymbolList(TVector<CString>& symbols) const
{
    symbols.clear();
    TVector<SEnumEntry> entries;
    if (!getEnumEntry(entries))
        return false;
    for (const SEnumEntry& e : entries)
        if (e.available)
            symbols.push_back(e.symbol);
    return true;
}

bool CEnumNode::getValueSymbol(CString& symbol) const
{
    return CEnumerationFeature(m_camera, m_name).symbol(symbol);
}

} // namespace GenICam
} // namespace Vorlen
