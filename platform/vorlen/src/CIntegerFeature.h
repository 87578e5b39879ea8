#pragma once
// Integer features (Integer, IntReg, MaskedIntReg, IntSwissKnife,
// IntConverter, StructEntry; reading also works on an enumeration's value).
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CNodeAccess;

class CIntegerFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool get(long& value) const;
    // Refused outside the range and off the increment.
    bool set(long value) const;
    bool range(long& max, long& min) const;
    bool increment(long& inc) const;   // 1 when the feature has none

private:
    static bool bounds(const CNodeAccess& a, long& max, long& min);
};

} // namespace GenICam
} // namespace Vorlen
