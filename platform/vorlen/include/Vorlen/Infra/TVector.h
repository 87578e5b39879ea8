#pragma once
// Vector of the camera library boundary.
#include <vector>

namespace Vorlen {
namespace Infra {

template <class T>
class TVector : public std::vector<T>
{
public:
    using std::vector<T>::vector;
    TVector() = default;
    TVector(const std::vector<T>& v) : std::vector<T>(v) {}
};

} // namespace Infra
} // namespace Vorlen
