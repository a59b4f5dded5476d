#pragma once

#include <atomic>
#include <cstddef>
#include <tessera/Export.hpp>
#include <tessera/SpeakPtr.hpp>
#include <tessera/Typename.hpp>
#include <type_traits>
#include <typeinfo>
#include <utility>

/// Counted references.
///
/// They refer to two kinds of object. An object that a StrongPtr was once made of from a raw pointer is *adopted*: it
/// is deleted when the last strong reference to it is dropped. Every other object (a static creator, a widget that
/// belongs to its parent) is only *watched*: the references never delete it, and its destructor empties all of them,
/// weak and strong.
///
/// Threads: the counts are atomic, so references to one object may be copied and dropped on any thread. Two threads
/// must not change the same pointer object at once. A watched object must not be destroyed on one thread while another
/// thread works with a strong reference to it.
///
/// The pointers print nothing; SpeakPtr reports odd lifetimes. Nothing here throws but std::bad_alloc.
namespace Tessera {

/// The serial number last given to a pointer. Every new pointer to an object takes the next one, a copy too. It is
/// counted without a lock, so copies made by two threads at the same moment may share a number.
extern TALO_EXPORT std::atomic<unsigned long> PointerID;

/// Takes the next serial number. Any thread.
inline unsigned long nextPointerID() {
    auto const id = PointerID.load(std::memory_order_relaxed) + 1;
    PointerID.store(id, std::memory_order_relaxed);
    return id;
}

class ReferenceCounted;

/// The counters of one object. They outlive it until the last reference is dropped. Only the pointer templates use it.
class TALO_EXPORT ReferenceControl {
public:
    /// False from the moment at which the object's destructor reaches its counters.
    bool alive() const noexcept { return object_.load(std::memory_order_acquire) != nullptr; }
    /// Takes a strong count if the object lives and is not being deleted. Returns whether it did.
    bool tryAddStrong() noexcept;
    /// Takes a strong count for the object at `address` and makes the strong references its owners.
    void adopt(std::type_info const& type, void const* address);
    /// Takes a strong count. REQUIRES: the object lives.
    void addStrong() noexcept {
        if (strong_.fetch_add(1, std::memory_order_acq_rel) == 0)
            addWeak();
    }
    /// Gives a strong count back; the last one deletes an adopted object. REQUIRES: a strong count was taken.
    void releaseStrong() noexcept {
        if (strong_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            lastStrongGone();
    }
    /// Takes a weak count. REQUIRES: the object lives, or the caller has a weak count already.
    void addWeak() noexcept { users_.fetch_add(1, std::memory_order_relaxed); }
    /// Gives a weak count back; the last one deletes the counters. REQUIRES: a weak count was taken.
    void releaseWeak() noexcept;
    /// How many strong references there are. Other threads may change it meanwhile.
    int strongCount() const noexcept { return strong_.load(std::memory_order_acquire); }
    /// Empties all references to the object and leaves it where it is: it is not deleted and not used any more. For an
    /// object whose code was unloaded. The counters must not be used afterwards unless the caller has a reference.
    void abandon() noexcept;

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
    // Whether LivingObjects knows the object.
    std::atomic<bool> isNoted_{false};
    std::atomic<std::type_info const*> type_{nullptr};
};

/// What all ReferenceBase<T> share: the counters, which each object makes for itself. A copy of an object is another
/// object; an assignment leaves the counters of both alone.
class TALO_EXPORT ReferenceCounted {
public:
    /// Called after the last strong reference to an adopted object was dropped, before the object is deleted. A
    /// derived class may take a new strong reference here; if it keeps it, the object lives on, and the hook is called
    /// again after that one. Empty.
    virtual void referenceHook();

    /// The counters; never null.
    ReferenceControl* referenceControl() const noexcept { return control_; }

protected:
    ReferenceCounted();
    ReferenceCounted(ReferenceCounted const&);
    /// Keeps the counts: they belong to the object.
    ReferenceCounted& operator=(ReferenceCounted const&) { return *this; }
    virtual ~ReferenceCounted();

private:
    friend class ReferenceControl;
    ReferenceControl* control_;
};

/// The base of every referenced object. T names the class that first derives from it; it is the second argument, the
/// base, of all pointers to the object.
template <typename T>
class ReferenceBase : public ReferenceCounted {};

template <typename T, typename B>
class WeakPtr;
template <typename T, typename B>
class DynPtr;

/// A strong reference to a T that has its counters in its base B.
///
/// Made from a raw pointer it adopts the object; made from a weak reference it does not. An adopted object lives as
/// long as a strong reference to it. Two references are equal if they refer to the same object, whatever their types.
template <typename T, typename B = T>
class StrongPtr {
public:
    /// The type of the object.
    using element_type = T;

    StrongPtr() noexcept = default;
    /// Null.
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
    /// A copy refers to the same object and takes a serial number of its own.
    StrongPtr(StrongPtr const& other) noexcept : StrongPtr(other.object_, other.control_) {}
    /// Moving keeps the serial number and leaves `other` null.
    StrongPtr(StrongPtr&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)),
          control_(std::exchange(other.control_, nullptr)),
          id_(other.id_) {}
    /// From a reference to a derived class.
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    StrongPtr(StrongPtr<U, C> const& other) noexcept : StrongPtr(static_cast<T*>(other.get()), other.control_) {}
    ~StrongPtr() {
        if (control_)
            control_->releaseStrong();
    }
    /// Refers to what the other one refers to.
    StrongPtr& operator=(StrongPtr other) noexcept {
        swap(other);
        return *this;
    }
    /// Exchanges what both refer to.
    void swap(StrongPtr& other) noexcept {
        std::swap(object_, other.object_);
        std::swap(control_, other.control_);
        std::swap(id_, other.id_);
    }
    /// Drops the reference; the pointer is null then.
    void reset() noexcept { StrongPtr().swap(*this); }

    /// The object; null for a null reference and after a watched object was destroyed.
    T* get() const noexcept { return control_ && control_->alive() ? object_ : nullptr; }
    /// The object itself. REQUIRES: get() is not null.
    T& operator*() const noexcept { return *get(); }
    /// The object. REQUIRES: it is not null.
    T* operator->() const noexcept { return get(); }
    /// Whether get() is not null.
    explicit operator bool() const noexcept { return get() != nullptr; }
    /// This pointer's serial number; 0 for one that was made null.
    unsigned long id() const noexcept { return id_; }

    /// Whether both refer to the same object.
    template <typename U, typename C>
    bool operator==(StrongPtr<U, C> const& other) const noexcept {
        return get() == other.get();
    }
    /// Whether it refers to another object.
    template <typename U, typename C>
    bool operator!=(StrongPtr<U, C> const& other) const noexcept {
        return get() != other.get();
    }
    /// Whether it is null, or its object is gone.
    bool operator==(std::nullptr_t) const noexcept { return get() == nullptr; }
    /// Whether it refers to a living object.
    bool operator!=(std::nullptr_t) const noexcept { return get() != nullptr; }

protected:
    template <typename U, typename C>
    friend class StrongPtr;
    template <typename U, typename C>
    friend class WeakPtr;
    template <typename U, typename C>
    friend class DynPtr;
    struct Counted {};

    /// One more reference to an object with these counts; null if either is null.
    StrongPtr(T* object, ReferenceControl* control) noexcept {
        if (!object || !control)
            return;
        control->addStrong();
        object_ = object;
        control_ = control;
        id_ = nextPointerID();
    }
    /// A reference whose strong count was taken already.
    StrongPtr(Counted, T* object, ReferenceControl* control) noexcept
        : object_(object), control_(control), id_(nextPointerID()) {}

    /// The object; null for a null reference.
    T* object_ = nullptr;
    /// The counts of the object; null for a null reference.
    ReferenceControl* control_ = nullptr;
    /// The serial number of this reference.
    unsigned long id_ = 0;
};

/// A reference that does not keep its object alive. It can be tested for a living object and turned into a strong
/// reference; between the two an object may die, so to use the object, make the strong reference and test that.
template <typename T, typename B = T>
class WeakPtr {
public:
    WeakPtr() noexcept = default;
    /// Refers to nothing.
    WeakPtr(std::nullptr_t) noexcept {}
    /// Watches `object`; null gives an empty reference.
    explicit WeakPtr(T* object) noexcept : object_(object) {
        if (!object)
            return;
        B const* base = object;
        take(base->referenceControl());
    }
    /// One more reference to the same object.
    WeakPtr(WeakPtr const& other) noexcept : object_(other.object_) { take(other.control_); }
    /// Takes the reference over; the other one refers to nothing.
    WeakPtr(WeakPtr&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)),
          control_(std::exchange(other.control_, nullptr)),
          id_(other.id_) {}
    /// A reference that does not keep the object alive.
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    WeakPtr(StrongPtr<U, C> const& other) noexcept : object_(other.get()) {
        take(object_ ? other.control_ : nullptr);
    }
    // Finding a virtual base reads the object, so the object is held meanwhile.
    /// One more reference to the same object, as an object of its base class.
    template <typename U, typename C, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    WeakPtr(WeakPtr<U, C> const& other) noexcept : WeakPtr(other.strong()) {}
    ~WeakPtr() {
        if (control_)
            control_->releaseWeak();
    }
    /// Refers to what the other one refers to.
    WeakPtr& operator=(WeakPtr other) noexcept {
        std::swap(object_, other.object_);
        std::swap(control_, other.control_);
        std::swap(id_, other.id_);
        return *this;
    }

    /// A strong reference; null if the object was destroyed or is being deleted. It never adopts.
    [[nodiscard]] StrongPtr<T, B> strong() const noexcept {
        if (!control_ || !control_->tryAddStrong())
            return nullptr;
        return StrongPtr<T, B>(typename StrongPtr<T, B>::Counted{}, object_, control_);
    }
    /// Whether the object lives.
    bool alive() const noexcept { return control_ && control_->alive(); }
    /// Whether the object is alive.
    explicit operator bool() const noexcept { return alive(); }
    /// This pointer's serial number; 0 for one that was made empty.
    unsigned long id() const noexcept { return id_; }
    /// Two references have the same identity if they are equal, so that maps can be searched for an object that may be
    /// destroyed. Only compared, never used.
    void const* identity() const noexcept { return control_; }

    /// Whether both refer to one object, even if it was destroyed. Two empty references are equal.
    template <typename U, typename C>
    bool operator==(WeakPtr<U, C> const& other) const noexcept {
        return control_ == other.control_;
    }
    /// Whether it refers to another object, alive or not.
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

/// A strong reference made by a dynamic type test: null if the object is no T. It never adopts.
template <typename T, typename B = T>
class DynPtr : public StrongPtr<T, B> {
public:
    DynPtr() noexcept = default;
    /// A strong reference to the object if it is of this type, else null; found by a dynamic type test.
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
