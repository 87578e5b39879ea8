#pragma once
// Enumeration features. Entries come in description order (Aravis' own list
// is not); a symbol is the entry's name without the "EnumEntry_<Feature>_"
// prefix some descriptions give their entries.
#include "CFeatureOperations.h"
#include "Vorlen/GenICam/CInternalParameterNode.h"

namespace Vorlen {
namespace GenICam {

class CEnumerationFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool get(unsigned long& value) const;
    // Refused for a value without an entry and for an entry not available now.
    bool set(unsigned long value) const;
    bool setBySymbol(const CString& symbol) const;
    bool entries(TVector<CInternalParameterNode::SEnumEntry>& entries) const;
    // Symbol of the current value.
    bool symbol(CString& symbol) const;
};

} // namespace GenICam
} // namespace Vorlen
