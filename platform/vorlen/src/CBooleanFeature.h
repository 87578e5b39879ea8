#pragma once
// Boolean features.
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CBooleanFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool get(bool& value) const;
    bool set(bool value) const;
};

} // namespace GenICam
} // namespace Vorlen
