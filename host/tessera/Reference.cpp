#include <tessera/Reference.hpp>

#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <mutex>
#include <regex>
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
    addWeak();
    return true;
}

void ReferenceControl::addStrong() noexcept {
    strong_.fetch_add(1, std::memory_order_acq_rel);
    addWeak();
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

void ReferenceControl::releaseStrong() noexcept {
    if (strong_.fetch_sub(1, std::memory_order_acq_rel) == 1 && adopted_.load(std::memory_order_acquire) &&
        !dying_.load(std::memory_order_acquire)) {
        if (auto* const object = object_.load(std::memory_order_acquire)) {
            object->referenceHook();
            if (strong_.load(std::memory_order_acquire) > 0) {
                SpeakPtr::theSpeaker().DestructionCancelled(strong_.load(), weakCount(), *type_.load());
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
    return users_.load() - strong_.load() - 1;
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

std::string readableName(char const* mangled) {
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> const demangled(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                           std::free);
    std::string name = status == 0 ? demangled.get() : mangled;
    std::pair<std::regex, char const*> const rules[] = {
        {std::regex("std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> ?>"), "std::string"},
        {std::regex("std::__cxx11::"), "std::"},
        {std::regex("([0-9])ul\\b"), "$1"},
        {std::regex("((?:Strong|Weak)Ptr<([A-Za-z_:0-9]+)), \\2 ?>"), "$1>"},
        {std::regex(" >"), ">"},
    };
    for (auto const& [pattern, replacement] : rules)
        name = std::regex_replace(name, pattern, replacement);
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
