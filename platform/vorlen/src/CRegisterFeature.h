#pragma once
// Register features: raw bytes of a fixed length.
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CRegisterFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool length(long& length) const;
    bool get(TVector<unsigned char>& bytes) const;
    // Refused unless exactly the register's length is given.
    bool set(const TVector<unsigned char>& bytes) const;
};

} // namespace GenICam
} // namespace Vorlen
