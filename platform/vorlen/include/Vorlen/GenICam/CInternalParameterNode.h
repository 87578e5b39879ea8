#pragma once
// One feature of a camera's GenICam node map, built from the camera and the
// feature name. Every operation returns true on success; on failure the
// calling thread's last error (Vorlen::Infra::getLastError) says why.
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CInternalParameterNode
{
public:
    // Node type, held in the top nibble.
    enum EFeatureType : uint32_t
    {
        featureTypeNone = 0x00000000,
        featureTypeInteger = 0x10000000,
        featureTypeFloat = 0x20000000,
        featureTypeEnum = 0x30000000,
        featureTypeBool = 0x40000000,
        featureTypeString = 0x50000000,
        featureTypeCommand = 0x60000000,
        featureTypeCategory = 0x70000000,
        featureTypeRegister = 0x80000000
    };

    // GenICam integer representation.
    enum ERepresent
    {
        representLinear = 0,
        representLogarithmic = 1,
        representBoolean = 2,
        representPureNumber = 3,
        representHexNumber = 4,
        representIPV4Address = 5,
        representMACAddress = 6,
        representUndefined = 7
    };

    enum EVisibility
    {
        visibilityBeginner = 0,
        visibilityExpert = 1,
        visibilityGuru = 2,
        visibilityInvisible = 3,
        visibilityUndefined = 99
    };

    enum ENameSpace
    {
        nameSpaceCustom = 0,
        nameSpaceStandard = 1,
        nameSpaceUndefined = 2
    };

    struct SEnumEntry
    {
        CString symbol;
        unsigned long value = 0;
        CString displayName;
        bool available = true;
        EVisibility visibility = visibilityBeginner;
        ENameSpace nameSpace = nameSpaceCustom;
    };

    CInternalParameterNode(const Memory::TSharedPtr<ICamera>& camera, const char* name);
    virtual ~CInternalParameterNode();

    // Metadata.
    bool isValid() const;          // the feature exists in the camera's description
    bool isImplemented() const;
    bool isAvailable() const;
    bool isReadable() const;
    bool isWriteable() const;
    bool isStreamable() const;
    EFeatureType getType() const;
    ERepresent getRepresentation() const;
    EVisibility getVisibility() const;
    ENameSpace getNameSpace() const;
    CString getName() const;
    CString getDisplayName() const;
    CString getDescription() const;
    CString getToolTip() const;
    bool getUnit(CString& unit) const;                  // false when the node has no unit
    TVector<CString> getSelectorsName() const;          // features this one is selected by
    TVector<CString> getSelectedName() const;           // features this selector selects
    // Children of a category, in description order.
    bool getChildren(TVector<Memory::TSharedPtr<CInternalParameterNode>>& children) const;

    // Integer.
    bool getIntValue(long& value) const;
    bool setIntValue(long value);
    bool getIntMaxMin(long& max, long& min) const;
    bool getIntIncrement(long& inc) const;
    // Float.
    bool getFloatValue(double& value) const;
    bool setFloatValue(double value);
    bool getFloatMaxMin(double& max, double& min) const;
    bool getFloatIncrement(double& inc) const;           // false when the float has none
    bool getFloatDisplayPrecision(long& precision) const;
    // Boolean.
    bool getBoolValue(bool& value) const;
    bool setBoolValue(bool value);
    // String.
    bool getStringValue(CString& value) const;
    bool setStringValue(const CString& value);
    bool getMaxStringLen(unsigned int& len) const;
    // Enumeration.
    bool getEnumValue(unsigned long& value) const;
    bool setEnumValue(unsigned long value);
    bool setEnumValueBySymbol(const CString& symbol);
    bool getEnumEntry(TVector<SEnumEntry>& entries) const; // every entry, in description order
    // Any readable value as text (enum: the symbol).
    bool getValueAsString(CString& value) const;
    bool setValueFromString(const CString& value);
    // Register.
    bool getRegLength(long& length) const;
    bool getRegValue(TVector<unsigned char>& bytes) const;
    bool setRegValue(const TVector<unsigned char>& bytes);
    // Command.
    bool execute();
    bool isDone(bool& done) const;
    bool isDone() const;             // false while the command is still running

    Memory::TSharedPtr<ICamera> getCamera() const { return m_camera; }

protected:
    Memory::TSharedPtr<ICamera> m_camera;
    CString m_name;
};

class CIntNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
    bool getValue(long& value) const { return getIntValue(value); }
    bool setValue(long value) { return setIntValue(value); }
};

class CFloatNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
    bool getValue(double& value) const { return getFloatValue(value); }
    bool setValue(double value) { return setFloatValue(value); }
};

class CBoolNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
    bool getValue(bool& value) const { return getBoolValue(value); }
    bool setValue(bool value) { return setBoolValue(value); }
};

class CEnumNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
    // Symbols of the entries that are available now.
    bool getEnumSymbolList(TVector<CString>& symbols) const;
    bool getValueSymbol(CString& symbol) const;
    bool setValueBySymbol(const CString& symbol) { return setEnumValueBySymbol(symbol); }
};

class CStringNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
    bool getValue(CString& value) const { return getStringValue(value); }
    bool setValue(const CString& value) { return setStringValue(value); }
};

class CCmdNode : public CInternalParameterNode
{
public:
    using CInternalParameterNode::CInternalParameterNode;
};

using CInternalParameterNodePtr = Memory::TSharedPtr<CInternalParameterNode>;

} // namespace GenICam
} // namespace Vorlen
