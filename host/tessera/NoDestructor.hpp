#pragma once

#include <new>
#include <utility>

namespace Tessera {

/// A T that is never destroyed, for a static that plug-ins and other libraries may still use while the process ends:
///
///     static NoDestructor<std::vector<int>> numbers;
///     numbers->push_back(1);
///
/// The T lies in the object itself, so a leak checker finds what it owns. A static in a function is made by the first
/// call, also if two threads call at once; what is done with the T is as safe as T is. Prints nothing.
template <typename T>
class NoDestructor {
public:
    /// Makes the T from the arguments.
    template <typename... Arguments>
    explicit NoDestructor(Arguments&&... arguments) {
        new (storage_) T(std::forward<Arguments>(arguments)...);
    }
    NoDestructor(NoDestructor const&) = delete;
    NoDestructor& operator=(NoDestructor const&) = delete;
    ~NoDestructor() = default;

    /// The T; never null.
    T* get() noexcept { return std::launder(reinterpret_cast<T*>(storage_)); }
    /// The object.
    T& operator*() noexcept { return *get(); }
    /// The object.
    T* operator->() noexcept { return get(); }

private:
    alignas(T) unsigned char storage_[sizeof(T)] = {};
};

} // namespace Tessera
