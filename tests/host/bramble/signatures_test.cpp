#include "host/signature.hpp"
#include "support/TaloTest.hpp"
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/ValueCreator.hpp>
#include <type_traits>

namespace {

using namespace Kolt;
using std::is_base_of_v;
using std::is_constructible_v;
using Tessera::StringList;
using Tessera::StrongPtr;

static_assert(is_constructible_v<VEnumSelection>);
static_assert(is_base_of_v<StringList, VEnumSelection>);
static_assert(hasSignature<void (VEnumSelection::*)(unsigned)>(&VEnumSelection::select));
static_assert(hasSignature<int (VEnumSelection::*)() const>(&VEnumSelection::selectedNumber));

static_assert(is_base_of_v<StringList, StringSelection>);
static_assert(hasSignature<bool (StringSelection::*)(std::string const&)>(&StringSelection::select));

using Multiple = MultipleStringSelection;
static_assert(is_base_of_v<StringList, Multiple>);
static_assert(hasSignature<void (Multiple::*)(std::string const&)>(&Multiple::add));
static_assert(hasSignature<void (Multiple::*)(std::string const&)>(&Multiple::addOrRemove));
static_assert(hasSignature<bool (Multiple::*)(std::string const&) const>(&Multiple::isInSelection));
static_assert(hasSignature<void (Multiple::*)(std::string const&)>(&Multiple::removeFromSelection));
static_assert(hasSignature<void (Multiple::*)()>(&Multiple::addAll));
static_assert(hasSignature<void (Multiple::*)()>(&Multiple::invertAll));
static_assert(hasSignature<void (Multiple::*)()>(&Multiple::removeAll));

static_assert(hasSignature<void (VAction::*)(StrongPtr<ValuePool> const&,
                                             StrongPtr<VParameter, ValueNotifierList> const&)>(&VAction::emitAction));
static_assert(is_constructible_v<FlagList>);
static_assert(std::is_same_v<Options, FlagList>);
static_assert(std::is_destructible_v<VObjectStatus>);
static_assert(std::is_same_v<VStringList, StrongPtr<StringSelection, StringList>>);
static_assert(std::is_same_v<VMultipleStringList, StrongPtr<MultipleStringSelection, StringList>>);
static_assert(std::is_same_v<decltype(Ferro::rgba_float_t::red), float>);
static_assert(std::is_same_v<decltype(info::text), std::string>);
static_assert(!std::is_copy_assignable_v<Multiple>, "its choice refers to its own texts");

class BrambleSignatures : public TaloTest {};

TEST_F(BrambleSignatures, EveryValueTypeHasItsReadableNameAndACreator) {
    std::pair<std::type_info const*, char const*> const types[] = {
        {&typeid(bool), "bool"},
        {&typeid(int), "int"},
        {&typeid(double), "double"},
        {&typeid(std::string), "std::string"},
        {&typeid(std::array<std::string, 1>), "std::array<std::string, 1>"},
        {&typeid(Ferro::rgba_float_t), "Ferro::rgba_float_t"},
        {&typeid(StrongPtr<VAction>), "Tessera::StrongPtr<Kolt::VAction>"},
        {&typeid(Enum), "Kolt::Enum"},
        {&typeid(FlagList), "Kolt::FlagList"},
        {&typeid(info), "Kolt::info"},
        {&typeid(VObjectStatus), "Kolt::VObjectStatus"},
        {&typeid(VStringList), "Tessera::StrongPtr<Kolt::StringSelection, Tessera::StringList>"},
        {&typeid(VMultipleStringList), "Tessera::StrongPtr<Kolt::MultipleStringSelection, Tessera::StringList>"},
    };
    for (auto const& [type, name] : types) {
        EXPECT_EQ(Tessera::Typename(*type), name);
        auto const value = VValueCreator::create(name);
        ASSERT_TRUE(value) << name;
        EXPECT_EQ(value->valueType(), *type);
        EXPECT_EQ(VValueCreator::registered(name), 1) << name;
    }
}

} // namespace
