#pragma once
// String features (String, StringReg).
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CStringFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool get(CString& value) const;
    // Refused when longer than the feature's maximum length.
    bool set(const CString& value) const;
    bool maxLength(unsigned int& length) const;
};

} // namespace GenICam
} // namespace Vorlen
