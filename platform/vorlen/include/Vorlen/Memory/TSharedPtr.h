#pragma once
// Reference-counted pointer of the camera library. The count is atomic, so
// copies may be made and released on any thread.
#include <memory>
#include <utility>

namespace Vorlen {
namespace Memory {

template <class T>
class TSharedPtr : public std::shared_ptr<T>
{
public:
    using std::shared_ptr<T>::shared_ptr;
    TSharedPtr() = default;
    TSharedPtr(const std::shared_ptr<T>& other) : std::shared_ptr<T>(other) {}
    TSharedPtr(std::shared_ptr<T>&& other) : std::shared_ptr<T>(std::move(other)) {}
    template <class U>
    TSharedPtr(const TSharedPtr<U>& other) : std::shared_ptr<T>(other) {}

    bool isNull() const { return this->get() == nullptr; }
};

template <class T, class U>
TSharedPtr<T> dynamicPointerCast(const TSharedPtr<U>& p)
{
    return TSharedPtr<T>(std::dynamic_pointer_cast<T>(static_cast<const std::shared_ptr<U>&>(p)));
}

template <class T, class... Args>
TSharedPtr<T> makeShared(Args&&... args)
{
    return TSharedPtr<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

// Lets an object owned by TSharedPtr hand out further shared pointers to itself.
template <class T>
class TEnableSharedFromThis : public std::enable_shared_from_this<T>
{
public:
    TSharedPtr<T> sharedFromThis() { return TSharedPtr<T>(this->shared_from_this()); }
    TSharedPtr<const T> sharedFromThis() const { return TSharedPtr<const T>(this->shared_from_this()); }
};

} // namespace Memory
} // namespace Vorlen
