#pragma once

#include <tessera/Export.hpp>
#include <typeinfo>

namespace Tessera {

/// Receives reports about odd lifetimes of referenced objects. The pointer templates report; a host that wants to
/// listen derives a class and installs an object of it. The speaker that is installed first writes each report as one
/// line to standard error: the type's name, a colon and what happened.
///
/// A report comes on the thread on which the reference was made or dropped, so a speaker must be safe on any thread.
/// It must not make or drop references to the object of the report.
class TALO_EXPORT SpeakPtr {
public:
    virtual ~SpeakPtr();

    /// The installed speaker; never null.
    static SpeakPtr& theSpeaker();
    /// Installs `speaker`, which stays the caller's and must outlive its use. Null installs the first speaker again.
    static void setSpeaker(SpeakPtr* speaker);

    /// A first strong reference was made while a constructor of the object still ran. `object` is the address that the
    /// reference was made from, `base` the address of its counters.
    ///
    /// This is noticed at the object's second adoption, and only if the dynamic type has changed since the first one:
    /// the reference was made in the constructor of a base class. It is not noticed if the constructor of the most
    /// derived class made it, if the object was never adopted again, or if the reference was made from a weak one.
    /// In these cases the constructed object may be deleted, without a report, before its constructor ends.
    virtual void SelfConstruction(std::type_info const& type, void const* object, void const* base);
    /// An adopted object was deleted while `strong` strong and `weak` weak references to it existed.
    virtual void DestructionAssertion(int strong, int weak, std::type_info const& type);
    /// The last strong reference was dropped, but the object's reference hook took a new one: the object lives on.
    virtual void DestructionCancelled(int strong, int weak, std::type_info const& type);
    /// An object that strong references had only watched until now was adopted by a further one.
    virtual void WarningUnctionChange(int strong, int weak, std::type_info const& type);
};

} // namespace Tessera
