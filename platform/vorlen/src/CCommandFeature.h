#pragma once
// Command features.
#include "CFeatureOperations.h"

namespace Vorlen {
namespace GenICam {

class CCommandFeature : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;

    bool execute() const;
    // A command is in progress while its value reads back as the command
    // value; one whose value cannot be read completes at once.
    bool isDone(bool& done) const;
};

} // namespace GenICam
} // namespace Vorlen
