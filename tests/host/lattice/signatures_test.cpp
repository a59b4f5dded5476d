#include "host/signature.hpp"
#include "support/TaloTest.hpp"
#include <bramble/Action.hpp>
#include <lattice/ActionNotifier.hpp>
#include <lattice/Initialization.hpp>
#include <lattice/Input.hpp>
#include <lattice/InputCreator.hpp>
#include <lattice/Scheduler.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <type_traits>

namespace {

using namespace Kolt;
using std::is_base_of_v;
using std::is_constructible_v;
using Tessera::Intercube;
using Tessera::InterfaceBase;
using Tessera::MutableName;
using Tessera::ReferenceBase;
using Tessera::StrongPtr;
using Tessera::WeakPtr;

using StrongParameter = StrongPtr<VParameter, ValueNotifierList>;
using WeakParameter = WeakPtr<VParameter, ValueNotifierList>;
using Preferences = StrongPtr<VCreationPreferences, InterfaceBase>;
using WeakCreator = WeakPtr<VInputCreatorBase, VManagedObjectBase>;
using Object = StrongPtr<VObject, VManagedObjectBase>;
using Pool = StrongPtr<ValuePool>;
using Value = StrongPtr<VValueBase>;
using Action = StrongPtr<VAction>;

// Initialisation of plug-ins.
static_assert(
    hasSignature<void (*)(VInitialization::InitPluginReason, char const*, char const*)>(&VInitialization::initPlugin));
static_assert(hasSignature<bool (VInitialization::*)(char const*) const>(&VInitialization::IsCompatible));
static_assert(static_cast<int>(VInitialization::Attach) == 0);
static_assert(static_cast<int>(VInitialization::Detach) == 1);
static_assert(static_cast<int>(VInitialization::ThreadAttach) == 2);
static_assert(static_cast<int>(VInitialization::ThreadDetach) == 3);

// Registration of inputs.
static_assert(is_constructible_v<VInputCreatorBase, std::string const&, int, Preferences const&, char const*>);
static_assert(is_base_of_v<VManagedDomainObject<VInputCreatorBase>, VInputCreatorBase>);
static_assert(hasSignature<bool (*)(std::type_info const&, WeakCreator const&)>(&registerVInput));
static_assert(std::is_invocable_v<decltype(&unregisterVInput), std::type_info const&, WeakCreator const&>);
static_assert(is_constructible_v<VCreationPreferences>);
static_assert(is_constructible_v<VCreationPreferences, std::string const&>);
static_assert(is_constructible_v<VCreationPreferences, std::string const&, std::string const&>);
static_assert(is_constructible_v<VCreationPreferences, VCreationPreferences const&, VCreationPreferences const&>);
static_assert(is_constructible_v<VCreationPreferences, Preferences const&>);
static_assert(
    std::is_invocable_v<decltype(&VCreationPreferences::operator+=), VCreationPreferences&, std::string const&>);
static_assert(hasSignature<bool (VCreationPreferences::*)(std::string const&) const>(&VCreationPreferences::contains));
static_assert(hasSignature<std::string (*)()>(&VValueTrait<std::string>::OneLine));
static_assert(hasSignature<std::string (*)()>(&VValueTrait<std::string>::MultiLine));

// Inputs.
static_assert(is_base_of_v<ValueNotifier, VInputBase>);
static_assert(is_base_of_v<ReferenceBase<ValueNotifier>, ValueNotifier>);
static_assert(is_base_of_v<Intercube, ValueNotifier>);
static_assert(is_base_of_v<VInputBase, VInput<int>>);
static_assert(hasSignature<void (VInputBase::*)() const>(&VInputBase::activateNotification));
static_assert(hasSignature<bool (VInput<int>::*)(Pool const&, std::string const&)>(&VInput<int>::fetchValue));
static_assert(hasSignature<bool (VInput<int>::*)(Pool const&, std::string const&, int const&,
                                                 ValueNotifierList const*)>(&VInput<int>::setValue));
static_assert(hasSignature<bool (VInput<int>::*)(Pool const&, std::string const&, int&)>(&VInput<int>::getValue));
static_assert(hasSignature<void (ValueNotifier::*)(Value const&, VContext const&, ValueMap const*)>(
    &ValueNotifier::onValueChange));

struct Input : VInputBase {
    using VInputBase::VInputBase;
    void onValueChange(Value const&, VContext const&, ValueMap const*) override {}
};
static_assert(is_constructible_v<Input, WeakParameter const&>);

// Parameters and values.
static_assert(is_base_of_v<ValueNotifierList, VParameter>);
static_assert(
    hasSignature<Value (VParameter::*)(Pool const&, std::string const&, bool) const>(&VParameter::getLocalValue));
static_assert(hasSignature<void (VParameter::*)(Value const&, Pool const&, std::string const&,
                                                WeakPtr<ValueNotifier> const&, ValueNotifierList const*,
                                                ValueMap const*) const>(&VParameter::notifyValueChange));
static_assert(
    hasSignature<void (VParameter::*)(std::string const&, Value const&, WeakPtr<ValueNotifier> const&,
                                      ValueNotifierList const*, WeakPtr<ValuePool> const&)>(&VParameter::setProperty));
static_assert(hasSignature<void (VParameter::*)(StrongPtr<VUndoAction> const&, int)>(&VParameter::AddUndoAction));
static_assert(hasSignature<std::string (VParameter::*)() const>(&VParameter::Name));
static_assert(is_base_of_v<VTypedValueBase<int>, VValue<int>>);
static_assert(is_base_of_v<VValueBase, VTypedValueBase<int>>);
static_assert(is_base_of_v<Tessera::Ageable, VValueBase>);
static_assert(hasSignature<bool (VTypedValueBase<int>::*)(int&) const>(&VTypedValueBase<int>::get));
static_assert(hasSignature<bool (VTypedValueBase<int>::*)(int const&)>(&VTypedValueBase<int>::set));
static_assert(hasSignature<void (VValueBase::*)(WeakPtr<VValueBase> const&)>(&VValueBase::setContainerValue));
static_assert(
    hasSignature<void (VValueBase::*)(WeakPtr<VManagedObject, VManagedObjectBase> const&)>(&VValueBase::setSource));
static_assert(hasSignature<StrongPtr<InterfaceBase> (VValueBase::*)() const>(&VValueBase::getInterface));
static_assert(is_constructible_v<ValueNotifierList>);
static_assert(
    hasSignature<void (ValueNotifierList::*)(WeakPtr<ValueNotifier> const&) const>(&ValueNotifierList::addNotifier));
static_assert(hasSignature<Value (ValueMap::*)(std::string const&) const>(&ValueMap::getValue));
static_assert(hasSignature<std::string (*)(double)>(&VValueTrait<double>::Text));
static_assert(hasSignature<bool (*)(double&, std::string const&)>(&VValueTrait<double>::setValueFromText));
static_assert(hasSignature<std::string (*)(int)>(&VValueTrait<int>::Text));
static_assert(hasSignature<bool (*)(int&, std::string const&)>(&VValueTrait<int>::setValueFromText));
static_assert(hasSignature<std::string (*)(Action)>(&VValueTrait<Action>::Text));
static_assert(hasSignature<bool (*)(Action&, std::string const&)>(&VValueTrait<Action>::setValueFromText));
static_assert(is_base_of_v<VValueCreator, TypedValueCreator<int>>);
static_assert(
    hasSignature<void (*)(WeakPtr<VValueCreator> const&, std::string const&)>(&VValueCreator::registerCreator));

// Undo steps, scheduler, slots, managed objects, contexts, warnings.
struct Step : VUndoAction {
    using VUndoAction::VUndoAction;
    bool undo() override { return true; }
};
static_assert(is_constructible_v<Step, std::string const&>);
static_assert(hasSignature<void (*)(Object const&, double, Pool const&)>(&VScheduler::schedule));
static_assert(std::is_invocable_r_v<StrongPtr<VSlot>, decltype(&VSlotContainer::findSlot), VSlotContainer const&,
                                    StrongParameter const&>);
static_assert(
    hasSignature<void (*)(std::type_info const&, VManagedObjectIterator&, int, int)>(&VManagedObject::traverse));
static_assert(is_base_of_v<Intercube, VManagedObject>);
static_assert(is_base_of_v<MutableName, VManagedObject>);
static_assert(is_base_of_v<VManagedObjectBase, VManagedObject>);
static_assert(is_base_of_v<VManagedObject, VManagedDomainObject<VObject>>);
static_assert(is_constructible_v<VManagedObjectBase>);
static_assert(is_constructible_v<VContext, StrongPtr<VContext::Addendum> const&>);
static_assert(is_constructible_v<VContext, Pool const&, StrongPtr<VContext::Addendum> const&>);
static_assert(hasSignature<void (*)(std::string const&)>(&VActionNotifier::Warning));
static_assert(hasSignature<Pool (ValuePoolProvider::*)() const>(&ValuePoolProvider::getValuePool));
static_assert(
    hasSignature<StrongPtr<ValuePoolProvider> (ValuePoolSource::*)() const>(&ValuePoolSource::getValuePoolProvider));

class LatticeSignatures : public TaloTest {};

TEST_F(LatticeSignatures, AValueIsReachableFromItsBaseByADynamicTypeTest) {
    Value const value(new VValue<int>(4));
    auto* const typed = dynamic_cast<VValue<int>*>(value.get());
    ASSERT_NE(typed, nullptr);
    EXPECT_EQ(dynamic_cast<VValue<double>*>(value.get()), nullptr);
    EXPECT_TRUE(typed->set(4)) << "a store of the old value is accepted, too";
    int read = 0;
    EXPECT_TRUE(typed->get(read));
    EXPECT_EQ(read, 4);
}

TEST_F(LatticeSignatures, TheApiKeyIsKnownToTheHost) {
    VInitialization const host;
    EXPECT_STREQ(VInitialization::apiKey(), "TALO_API_VERSION");
    EXPECT_TRUE(host.IsCompatible("TALO_API_VERSION"));
    EXPECT_FALSE(host.IsCompatible("TALO_API_VERSION_2"));
    EXPECT_FALSE(host.IsCompatible(""));
    EXPECT_FALSE(host.IsCompatible(nullptr));
}

} // namespace
