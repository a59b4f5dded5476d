#include "host/signature.hpp"
#include "support/TaloTest.hpp"
#include <tessera/Ageable.hpp>
#include <tessera/Chunk.hpp>
#include <tessera/Intercube.hpp>
#include <tessera/Reference.hpp>
#include <tessera/StringList.hpp>
#include <type_traits>

namespace {

using namespace Tessera;

static_assert(hasSignature<void (Intercube::*)(StrongPtr<InterfaceBase> const&) const>(&Intercube::addInterface));
static_assert(hasSignature<bool (InterfaceBase::*)(Intercube&, StrongPtr<InterfaceIterationParameter> const&)>(
    &InterfaceBase::apply));
static_assert(hasSignature<bool (InterfaceBase::*)(Intercube const&, StrongPtr<InterfaceIterationParameter> const&)
                               const>(&InterfaceBase::apply_const));
static_assert(hasSignature<std::string (*)(std::type_info const&)>(&Typename));

static_assert(hasSignature<SpeakPtr& (*)()>(&SpeakPtr::theSpeaker));
static_assert(
    hasSignature<void (SpeakPtr::*)(std::type_info const&, void const*, void const*)>(&SpeakPtr::SelfConstruction));
static_assert(hasSignature<void (SpeakPtr::*)(int, int, std::type_info const&)>(&SpeakPtr::DestructionAssertion));
static_assert(hasSignature<void (SpeakPtr::*)(int, int, std::type_info const&)>(&SpeakPtr::DestructionCancelled));
static_assert(hasSignature<void (SpeakPtr::*)(int, int, std::type_info const&)>(&SpeakPtr::WarningUnctionChange));

struct Named : Interface<Named> {};
struct Derived : Named {};

static_assert(std::is_base_of_v<InterfaceBase, Interface<Named>>);
static_assert(std::is_base_of_v<ReferenceBase<InterfaceBase>, InterfaceBase>);
static_assert(std::is_base_of_v<ReferenceBase<StringList>, StringList>);
static_assert(std::is_base_of_v<ChunkBase, Chunk<int>>);
static_assert(std::is_constructible_v<StrongPtr<Named, InterfaceBase>, Named*>);
static_assert(std::is_constructible_v<WeakPtr<Named, InterfaceBase>, Named*>);
static_assert(std::is_convertible_v<std::nullptr_t, StrongPtr<Named, InterfaceBase>>);
static_assert(std::is_convertible_v<std::nullptr_t, WeakPtr<Named, InterfaceBase>>);
static_assert(!std::is_convertible_v<Named*, StrongPtr<Named, InterfaceBase>>, "adoption is always spelt out");
static_assert(std::is_convertible_v<StrongPtr<Derived, InterfaceBase>, StrongPtr<Named, InterfaceBase>>);
static_assert(std::is_convertible_v<StrongPtr<Derived, InterfaceBase>, WeakPtr<Named, InterfaceBase>>);
static_assert(std::is_convertible_v<WeakPtr<Derived, InterfaceBase>, WeakPtr<Named, InterfaceBase>>);
static_assert(!std::is_convertible_v<StrongPtr<Named, InterfaceBase>, StrongPtr<Derived, InterfaceBase>>);
static_assert(std::is_base_of_v<StrongPtr<Derived, InterfaceBase>, DynPtr<Derived, InterfaceBase>>);
static_assert(!std::is_copy_assignable_v<StringList>, "the texts of a list are fixed");

class TesseraSignatures : public TaloTest {};

TEST_F(TesseraSignatures, TheGlobalCountersCanBeRead) {
    unsigned long const pointers = PointerID;
    StrongPtr<Named, InterfaceBase> const pointer(new Named);
    EXPECT_GT(PointerID, pointers);

    unsigned long const age = Ageable::GlobalTime;
    EXPECT_EQ(Ageable::GlobalTime, age);

    std::size_t const bytes = ChunkBase::TotalMemsize;
    Chunk<int> const chunk(3);
    EXPECT_EQ(ChunkBase::TotalMemsize, bytes + 3 * sizeof(int));
}

TEST_F(TesseraSignatures, ADynamicReferenceTestsTheType) {
    StrongPtr<Named, InterfaceBase> const named(new Named);
    StrongPtr<Named, InterfaceBase> const derived(new Derived);
    EXPECT_FALSE((DynPtr<Derived, InterfaceBase>(named)));
    EXPECT_TRUE((DynPtr<Derived, InterfaceBase>(derived)));
}

} // namespace
