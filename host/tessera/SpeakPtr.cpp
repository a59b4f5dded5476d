#include <tessera/SpeakPtr.hpp>

#include <atomic>
#include <cstdio>
#include <tessera/NoDestructor.hpp>
#include <tessera/Typename.hpp>

namespace Tessera {

namespace {

std::atomic<SpeakPtr*> installedSpeaker{nullptr};

void report(char const* what, std::type_info const& type) {
    std::fprintf(stderr, "%s: %s\n", Typename(type).c_str(), what);
}

} // namespace

SpeakPtr::~SpeakPtr() = default;

SpeakPtr& SpeakPtr::theSpeaker() {
    // Never destroyed: objects may be destroyed after the statics of this library.
    static NoDestructor<SpeakPtr> firstSpeaker;
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

} // namespace Tessera
