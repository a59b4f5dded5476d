#pragma once

#include <atomic>
#include <cstddef>
#include <tessera/SpeakPtr.hpp>
#include <tessera/Typename.hpp>
#include <type_traits>
#include <typeinfo>
#include <utility>

/// Counted references.
///
/// Two kinds of object are reached through them. An object that a StrongPtr once took over from a raw pointer is
/// *adopted*: it is deleted when the last strong reference to it goes. Every other object (a static creator, a widget
/// that belongs to its parent) is only *watched*: the references never delete it, and its destructor empties all of
/// them, weak and strong.
///
/// Threads: the counts are atomic, so references to one object may be copied and dropped on any thread. One and the
/// same pointer object must not be changed by two threads at once. A watched object must not be destroyed on one
/// thread while another one works with a strong reference to it.
namespace Tessera {

/// The serial number last given to a pointer. Every pointer copy takes the next one. It is counted without a lock, so
/// copies made by two threads at the same moment may share a number.
extern std::atomic<unsigned long> PointerID;

/// Takes the next serial number.
inline unsigned long nextPointerID() {
    auto const id = PointerID.load(std::memory_order_relaxed) + 1;
    PointerID.store(id, std::memory_order_relaxed);
    return id;
}

class ReferenceCounted;

/// The counters of one object. They outlive it until the last reference is gone. Only the pointer templates use it.
class ReferenceControl {
public:
    /// False from the moment at which the object's destructor reaches its counters.
    bool alive() const noexcept { return object_.load(std::memory_order_acquire) != nullptr; }
    /// Takes a strong count if the object lives and is not on its way out.
    bool tryAddStrong() noexcept;
    /// Takes a strong count for the object at `address` and makes the strong references its owners.
    void adopt(std::type_info const& type, void const* address);
    void addStrong() noexcept {
        if (strong_.fetch_add(1, std::memory_order_acq_rel) == 0)
            addWeak();
    }
    void releaseStrong() noexcept {
        if (strong_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            lastStrongGone();
    }
    void addWeak() noexcept { users_.fetch_add(1, std::memory_order_relaxed); }
    void releaseWeak() noexcept;

private:
    friend class ReferenceCounted;
    explicit ReferenceControl(ReferenceCounted* object) noexcept : object_(object) {}
    ~ReferenceControl() = default;
    void lastStrongGone() noexcept;
    void objectGone();
    int weakCount() const noexcept;

    std::atomic<ReferenceCounted*> object_;
    std::atomic<int> strong_{0};
    // Every weak pointer, all strong ones together and the object itself are one user each; the last of them deletes
    // the counters.
    std::atomic<int> users_{1};
    std::atomic<bool> adopted_{false};
    std::atomic<bool> dying_{false};
    std::atomic<std::type_info const*> type_{nullptr};
};

/// What all ReferenceBase<T> share.
class ReferenceCounted {
public:
    /// Called when the last strong reference to an adopted object has gone, before the object is deleted. Empty.
    virtual void referenceHook();

    ReferenceControl* referenceControl() const noexcept { return control_; }

protected:
    ReferenceCounted();
    // The copy of an object is another object: it starts with counters of its own.
    ReferenceCounted(ReferenceCounted const&);
    ReferenceCounted& operator=(ReferenceCounted const&) { return *this; }
    virtual ~ReferenceCounted();

private:
    friend class ReferenceControl;
    ReferenceControl* control_;
};

/// The base of every referenced object; T names the class that first derives from it. It holds the counters.
template <typename T>
class ReferenceBase : public ReferenceCounted {};

template <typename T, typename B>
class WeakPtr;
template <typename T, typename B>
class DynPtr;

/// A strong reference to a T whose counters stand in its base B.
///
/// Made from a raw pointer it adopts the object; made from a weak reference it does not. `get` is null once a watched
/// object was destroyed; to follow a null reference is a programming error.
template <typename T, typename B = T>
class StrongPtr {
public:
    using element_type = T;

    StrongPtr() noexcept = default;
    StrongPtr(std::nullptr_t) noexcept {}
    /// Adopts `object`; null gives a null reference.
    explicit StrongPtr(T* object) : object_(object) {
        if (!object)
            return;
        B const* base = object;
        control_ = base->referenceControl();
        control_->adopt(typeid(*object), object);
        id_ = nextPointerID();
    }
    StrongPtr(StrongPtr const& other) noexcept : StrongPtr(other.object_, other.control_) {}
    StrongPtr(StrongPtr&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)),
          control_(std::exchange(other.control_, nullptr)),
          id_(other.id_) {}
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    StrongPtr(StrongPtr<U, C> const& other) noexcept : StrongPtr(static_cast<T*>(other.get()), other.control_) {}
    ~StrongPtr() {
        if (control_)
            control_->releaseStrong();
    }
    StrongPtr& operator=(StrongPtr other) noexcept {
        swap(other);
        return *this;
    }
    void swap(StrongPtr& other) noexcept {
        std::swap(object_, other.object_);
        std::swap(control_, other.control_);
        std::swap(id_, other.id_);
    }
    void reset() noexcept { StrongPtr().swap(*this); }

    T* get() const noexcept { return control_ && control_->alive() ? object_ : nullptr; }
    T& operator*() const noexcept { return *get(); }
    T* operator->() const noexcept { return get(); }
    explicit operator bool() const noexcept { return get() != nullptr; }
    /// This pointer's serial number.
    unsigned long id() const noexcept { return id_; }

    template <typename U, typename C>
    bool operator==(StrongPtr<U, C> const& other) const noexcept {
        return get() == other.get();
    }
    template <typename U, typename C>
    bool operator!=(StrongPtr<U, C> const& other) const noexcept {
        return get() != other.get();
    }
    bool operator==(std::nullptr_t) const noexcept { return get() == nullptr; }
    bool operator!=(std::nullptr_t) const noexcept { return get() != nullptr; }

protected:
    template <typename U, typename C>
    friend class StrongPtr;
    template <typename U, typename C>
    friend class WeakPtr;
    template <typename U, typename C>
    friend class DynPtr;
    struct Counted {};

    StrongPtr(T* object, ReferenceControl* control) noexcept {
        if (!object || !control)
            return;
        control->addStrong();
        object_ = object;
        control_ = control;
        id_ = nextPointerID();
    }
    // The strong count was taken already.
    StrongPtr(Counted, T* object, ReferenceControl* control) noexcept
        : object_(object), control_(control), id_(nextPointerID()) {}

    T* object_ = nullptr;
    ReferenceControl* control_ = nullptr;
    unsigned long id_ = 0;
};

/// A reference that does not keep its object. It can be tested for a living object and turned into a strong one.
template <typename T, typename B = T>
class WeakPtr {
public:
    WeakPtr() noexcept = default;
    WeakPtr(std::nullptr_t) noexcept {}
    /// Watches `object`; null gives an empty reference.
    explicit WeakPtr(T* object) noexcept : object_(object) {
        if (!object)
            return;
        B const* base = object;
        take(base->referenceControl());
    }
    WeakPtr(WeakPtr const& other) noexcept : object_(other.object_) { take(other.control_); }
    WeakPtr(WeakPtr&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)),
          control_(std::exchange(other.control_, nullptr)),
          id_(other.id_) {}
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    WeakPtr(StrongPtr<U, C> const& other) noexcept : object_(other.get()) {
        take(object_ ? other.control_ : nullptr);
    }
    // Finding a virtual base reads the object, so the object is held meanwhile.
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    WeakPtr(WeakPtr<U, C> const& other) noexcept : WeakPtr(other.strong()) {}
    ~WeakPtr() {
        if (control_)
            control_->releaseWeak();
    }
    WeakPtr& operator=(WeakPtr other) noexcept {
        std::swap(object_, other.object_);
        std::swap(control_, other.control_);
        std::swap(id_, other.id_);
        return *this;
    }

    /// A strong reference, null when the object is gone. It never adopts.
    StrongPtr<T, B> strong() const noexcept {
        if (!control_ || !control_->tryAddStrong())
            return nullptr;
        return StrongPtr<T, B>(typename StrongPtr<T, B>::Counted{}, object_, control_);
    }
    bool alive() const noexcept { return control_ && control_->alive(); }
    explicit operator bool() const noexcept { return alive(); }
    unsigned long id() const noexcept { return id_; }

    /// Whether both refer to one object, also when it is gone. Two empty references are equal.
    template <typename U, typename C>
    bool operator==(WeakPtr<U, C> const& other) const noexcept {
        return control_ == other.control_;
    }
    template <typename U, typename C>
    bool operator!=(WeakPtr<U, C> const& other) const noexcept {
        return control_ != other.control_;
    }

private:
    template <typename U, typename C>
    friend class WeakPtr;

    void take(ReferenceControl* control) noexcept {
        if (!control)
            return;
        control->addWeak();
        control_ = control;
        id_ = nextPointerID();
    }

    T* object_ = nullptr;
    ReferenceControl* control_ = nullptr;
    unsigned long id_ = 0;
};

/// A strong reference made by a dynamic type test: null when the object is no T.
template <typename T, typename B = T>
class DynPtr : public StrongPtr<T, B> {
public:
    DynPtr() noexcept = default;
    template <typename U, typename C>
    DynPtr(StrongPtr<U, C> const& other) : StrongPtr<T, B>(cast(other)) {}

private:
    template <typename U, typename C>
    static StrongPtr<T, B> cast(StrongPtr<U, C> const& other) {
        T* object = dynamic_cast<T*>(other.get());
        if (!object)
            return nullptr;
        B const* base = object;
        ReferenceControl* control = base->referenceControl();
        if (!control->tryAddStrong())
            return nullptr;
        return StrongPtr<T, B>(typename StrongPtr<T, B>::Counted{}, object, control);
    }
};

} // namespace Tessera
