#pragma once
// Float features (Float, FloatReg, SwissKnife, Converter).
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CNodeAccess;

class CFloatFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool get(double& value) const;
    // Refused outside the range (rounding in the last digits of the limits
    // is tolerated) and for NaN or infinity.
    bool set(double value) const;
    bool range(double& max, double& min) const;
    bool increment(double& inc) const;   // ERR_NOT_SUPPORTED when the float has none
    bool displayPrecision(long& precision) const;

private:
    // Lowest and highest value, in that order whatever the formula.
    static bool bounds(const CNodeAccess& a, double& max, double& min);
};

} // namespace GenICam
} // namespace Vorlen
