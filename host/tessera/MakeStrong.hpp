#pragma once

#include <tessera/Reference.hpp>
#include <utility>

namespace Tessera {

namespace detail {

template <typename B>
B* counted(ReferenceBase<B> const*);

} // namespace detail

/// The class from which T inherits its reference counters: B where T derives from `ReferenceBase<B>`.
template <typename T>
using CountedBase = std::remove_pointer_t<decltype(detail::counted(std::declval<T*>()))>;

/// A new T, made from the arguments, and the first strong reference to it: the references adopt the object and delete
/// it. Any thread. Throws what the constructor throws.
template <typename T, typename... Arguments>
[[nodiscard]] StrongPtr<T, CountedBase<T>> makeStrong(Arguments&&... arguments) {
    return StrongPtr<T, CountedBase<T>>(new T(std::forward<Arguments>(arguments)...));
}

/// A weak reference to an object that somebody else owns: a static one, one with a parent or `this`. The references
/// never delete it, and its destructor empties them. Null gives an empty reference. Any thread.
template <typename T>
[[nodiscard]] WeakPtr<T, CountedBase<T>> watch(T* object) {
    return WeakPtr<T, CountedBase<T>>(object);
}

} // namespace Tessera
