#include <tessera/Reference.hpp>

#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace Tessera {

std::atomic<unsigned long> PointerID{0};

namespace {

std::atomic<SpeakPtr*> installedSpeaker{nullptr};

void report(char const* what, std::type_info const& type) {
    std::fprintf(stderr, "%s: %s\n", Typename(type).c_str(), what);
}

} // namespace

SpeakPtr::~SpeakPtr() = default;

SpeakPtr& SpeakPtr::theSpeaker() {
    // Never destroyed: objects may still go after the statics of this library.
    static auto* const firstSpeaker = new SpeakPtr;
    auto* const speaker = installedSpeaker.load();
    return speaker ? *speaker : *firstSpeaker;
}

void SpeakPtr::setSpeaker(SpeakPtr* speaker) {
    installedSpeaker = speaker;
}

void SpeakPtr::SelfConstruction(std::type_info const& type, void const*, void const*) {
    report("a strong reference was made inside the constructor", type);
}

void SpeakPtr::DestructionAssertion(int, int, std::type_info const& type) {
    report("deleted while strong references stand", type);
}

void SpeakPtr::DestructionCancelled(int, int, std::type_info const& type) {
    report("deletion cancelled by a new strong reference", type);
}

void SpeakPtr::WarningUnctionChange(int, int, std::type_info const& type) {
    report("adopted although it was only watched until now", type);
}

bool ReferenceControl::tryAddStrong() noexcept {
    if (!alive() || dying_.load(std::memory_order_acquire))
        return false;
    int count = strong_.load(std::memory_order_relaxed);
    do {
        // At zero an adopted object is being deleted; a watched one is simply not in use.
        if (count == 0 && adopted_.load(std::memory_order_acquire))
            return false;
    } while (!strong_.compare_exchange_weak(count, count + 1, std::memory_order_acq_rel, std::memory_order_relaxed));
    if (count == 0)
        addWeak();
    return true;
}

void ReferenceControl::adopt(std::type_info const& type, void const* address) {
    addStrong();
    // The dynamic type grows while constructors run: another type than at the first adoption means that the first
    // one happened in the constructor of a base.
    std::type_info const* first = nullptr;
    if (!type_.compare_exchange_strong(first, &type) && *first != type) {
        type_ = &type;
        SpeakPtr::theSpeaker().SelfConstruction(type, address, object_.load());
    }
    if (!adopted_.exchange(true, std::memory_order_acq_rel) && strong_.load() > 1)
        SpeakPtr::theSpeaker().WarningUnctionChange(strong_.load(), weakCount(), type);
}

void ReferenceControl::lastStrongGone() noexcept {
    if (adopted_.load(std::memory_order_acquire) && !dying_.load(std::memory_order_acquire)) {
        if (auto* const object = object_.load(std::memory_order_acquire)) {
            object->referenceHook();
            if (strong_.load(std::memory_order_acquire) > 0) {
                // The reference that is going still counts as a user, but no longer among the strong ones.
                SpeakPtr::theSpeaker().DestructionCancelled(strong_.load(), weakCount() - 1, *type_.load());
            } else {
                dying_ = true;
                delete object;
            }
        }
    }
    releaseWeak();
}

void ReferenceControl::releaseWeak() noexcept {
    if (users_.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

int ReferenceControl::weakCount() const noexcept {
    return users_.load() - (strong_.load() > 0 ? 1 : 0) - 1;
}

void ReferenceControl::objectGone() {
    if (adopted_.load() && strong_.load() > 0)
        SpeakPtr::theSpeaker().DestructionAssertion(strong_.load(), weakCount(), *type_.load());
    dying_ = true;
    object_.store(nullptr, std::memory_order_release);
    releaseWeak();
}

ReferenceCounted::ReferenceCounted() : control_(new ReferenceControl(this)) {}

ReferenceCounted::ReferenceCounted(ReferenceCounted const&) : ReferenceCounted() {}

ReferenceCounted::~ReferenceCounted() {
    control_->objectGone();
}

void ReferenceCounted::referenceHook() {}

namespace {

void replaceAll(std::string& text, std::string const& what, std::string const& by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

/// "StrongPtr<X, X>" is written "StrongPtr<X>" in the code.
void dropRepeatedBases(std::string& text) {
    for (auto at = text.find("Ptr<"); at != std::string::npos; at = text.find("Ptr<", at + 1)) {
        auto const comma = text.find(", ", at);
        if (comma == std::string::npos)
            return;
        auto const object = text.substr(at + 4, comma - at - 4);
        if (text.compare(comma + 2, object.size() + 1, object + ">") == 0)
            text.erase(comma, object.size() + 2);
    }
}

std::string readableName(char const* mangled) {
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> const demangled(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                           std::free);
    std::string name = status == 0 ? demangled.get() : mangled;
    replaceAll(name, " >", ">");
    replaceAll(name, "std::__cxx11::", "std::");
    replaceAll(name, "std::basic_string<char, std::char_traits<char>, std::allocator<char>>", "std::string");
    // The size of an array.
    for (char digit = '0'; digit <= '9'; ++digit)
        replaceAll(name, std::string(1, digit) + "ul>", std::string(1, digit) + ">");
    dropRepeatedBases(name);
    return name;
}

} // namespace

std::string Typename(std::type_info const& type) {
    // Immortal, as creators that are destroyed at the end of the process still ask.
    static auto& mutex = *new std::mutex;
    static auto& names = *new std::unordered_map<std::string, std::string>;
    std::lock_guard const lock(mutex);
    auto& name = names[type.name()];
    if (name.empty())
        name = readableName(type.name());
    return name;
}

} // namespace Tessera
