#include <lattice/Parameter.hpp>

#include <algorithm>
#include <lattice/ActionNotifier.hpp>
#include <lattice/ChangeSignal.hpp>
#include <lattice/EditRecorder.hpp>
#include <lattice/Object.hpp>
#include <lattice/UndoHistory.hpp>
#include <lattice/ValueCreator.hpp>
#include <mutex>
#include <set>
#include <tessera/NoDestructor.hpp>
#include <typeinfo>

namespace Kolt {

namespace {

/// The type that editors and panels expect of a property; null for names that they do not know.
std::type_info const* expectedPropertyType(std::string const& declaredType, std::string const& name) {
    auto const isOneOf = [&](std::initializer_list<char const*> names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    bool const isInteger = declaredType == "int";
    bool const isNumber = isInteger || declaredType == "double";
    if (isNumber && isOneOf({"min", "max", "increment"}))
        return isInteger ? &typeid(int) : &typeid(double);
    if (isNumber && name == "precision")
        return &typeid(int);
    if (isOneOf({"advanced", "readOnly"}))
        return &typeid(bool);
    bool const isText = isOneOf(
        {"tooltip", "icon", "inputmask", "Extension", "label", "help", "unit", "group", "visibleWhen", "enabledWhen"});
    return isText ? &typeid(std::string) : nullptr;
}

/// The copy of a type's name that all its parameters share: types are few, and their names are long. Any thread.
std::string const& sharedName(std::string const& type) {
    // Immortal, as parameters may be destroyed at the end of the process.
    static Tessera::NoDestructor<std::mutex> mutex;
    static Tessera::NoDestructor<std::set<std::string>> names;
    std::lock_guard const lock(*mutex);
    return *names->insert(type).first;
}

} // namespace

VParameter::VParameter(std::string name, ValuePtr const& ownValue, Values values, std::string const& declaredType)
    : name_(std::move(name)),
      ownValue_(ownValue),
      values_(values),
      declaredType_(sharedName(declaredType.empty() ? Tessera::Typename(ownValue->valueType()) : declaredType)) {}

VParameter::~VParameter() = default;

ValuePtr* VParameter::findLocalValue(PoolPtr const& pool) const {
    Tessera::WeakPtr<ValuePool> const key(pool);
    auto const found =
        std::find_if(localValues_.begin(), localValues_.end(), [&](auto const& local) { return local.pool == key; });
    return found == localValues_.end() ? nullptr : &found->value;
}

void VParameter::putLocalValue(PoolPtr const& pool, ValuePtr const& value) const {
    if (auto* const found = findLocalValue(pool)) {
        *found = value;
        return;
    }
    localValues_.erase(
        std::remove_if(localValues_.begin(), localValues_.end(), [](auto const& local) { return !local.pool.alive(); }),
        localValues_.end());
    localValues_.push_back({pool, value});
}

ValuePtr VParameter::getLocalValue(PoolPtr const& pool, std::string const&, bool create) const {
    if (!keepsValuesPerPool())
        return ownValue_;
    if (!pool)
        return nullptr;
    if (auto const* const found = findLocalValue(pool))
        return *found;
    if (!create)
        return nullptr;
    auto const value = ownValue_->clone();
    putLocalValue(pool, value);
    return value;
}

ValuePtr VParameter::effectiveValue(PoolPtr const& pool) const {
    auto const* const local = pool && keepsValuesPerPool() ? findLocalValue(pool) : nullptr;
    return local ? *local : ownValue_;
}

ValuePtr VParameter::freshLocalValue(PoolPtr const& pool) const {
    if (!pool || !keepsValuesPerPool())
        return nullptr;
    auto const value = VValueCreator::create(declaredType_);
    if (value)
        putLocalValue(pool, value);
    return value;
}

void VParameter::removeLocalValue(PoolPtr const& pool) {
    Tessera::WeakPtr<ValuePool> const key(pool);
    localValues_.erase(
        std::remove_if(localValues_.begin(), localValues_.end(), [&](auto const& local) { return local.pool == key; }),
        localValues_.end());
}

void VParameter::setLocalValue(PoolPtr const& pool, ValuePtr const& value) {
    if (pool && value && keepsValuesPerPool())
        putLocalValue(pool, value);
}

std::vector<PoolPtr> VParameter::poolsWithValue() const {
    std::vector<PoolPtr> pools;
    for (auto const& local : localValues_)
        if (auto const pool = local.pool.strong())
            pools.push_back(pool);
    return pools;
}

void VParameter::rememberDefaults() {
    defaults_ = std::make_unique<ValueSnapshot>(*this);
}

void VParameter::selectMember(std::string const&) const {}

void VParameter::notifyValueChange(ValuePtr const& value, PoolPtr const& pool, std::string const&,
                                   Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                                   ValueMap const* values) const {
    if (changeSignal_ && !values && isEdited())
        changeSignal_->raise(*this);
    if (!hasListeners() && !alsoNotify && recorder_.expired())
        return;
    // A copy, as a notifier may destroy what holds the caller's reference.
    auto const live = value;
    VContext const context(pool, nullptr);
    auto recorder = values ? nullptr : recorder_.lock();
    if (!recorder) {
        notify(source, alsoNotify, live, context, values);
        return;
    }
    EditRecorder::NotificationScope const scope(std::move(recorder), context.pool(), source.alive());
    // A listener of the history may have destroyed the parameter.
    if (scope.parameterLives())
        notify(source, alsoNotify, live, context, values);
}

std::string VParameter::fullName() const {
    return object_ ? object_->Name() + '.' + name_ : name_;
}

void VParameter::setProperty(std::string const& name, ValuePtr const& value,
                             Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                             Tessera::WeakPtr<ValuePool> const& pool) {
    auto const* const expected = value ? expectedPropertyType(declaredType_, name) : nullptr;
    if (expected && *expected != value->valueType())
        VActionNotifier::Warning("The property \"" + name + "\" of the parameter \"" + fullName() +
                                 "\" should be of type " + Tessera::Typename(*expected) + ", not " +
                                 Tessera::Typename(value->valueType()));
    if (!properties_)
        properties_ = std::make_shared<ValueMap>();
    filledIn_.erase(std::remove(filledIn_.begin(), filledIn_.end(), name), filledIn_.end());
    if (source.alive() && !properties_->getValue(name))
        filledIn_.push_back(name);
    properties_->setValue(name, value);

    auto const properties = properties_;
    auto const context = pool.strong();
    notifyValueChange(effectiveValue(context), context, std::string(), source, alsoNotify, properties.get());
}

bool VParameter::isFilledIn(std::string const& property) const {
    return std::find(filledIn_.begin(), filledIn_.end(), property) != filledIn_.end();
}

UndoHistory& VParameter::history() const {
    auto const attached = history_.strong();
    return attached ? *attached : UndoHistory::theHistory();
}

void VParameter::setHistory(UndoHistory* history) {
    history_ = Tessera::WeakPtr<UndoHistory>(history);
}

void VParameter::AddUndoAction(Tessera::StrongPtr<VUndoAction> const& action, int) {
    history().add(action, ParameterRef(this));
}

void reportRefusedStore(VParameter const& parameter, std::type_info const& valueType, PoolPtr const& pool) {
    auto const parameterName = "the parameter \"" + parameter.fullName() + '"';
    auto const value =
        parameter.keepsValuesPerPool() ? parameter.getLocalValue(pool, std::string(), false) : parameter.ownValue();
    if (value)
        VActionNotifier::Warning("A value of type " + Tessera::Typename(valueType) + " cannot be stored in " +
                                 parameterName + ", whose value is of type " + Tessera::Typename(value->valueType()));
    else if (!pool)
        VActionNotifier::Warning("A value cannot be stored without a pool in " + parameterName +
                                 ", which has a value for each pool");
}

void markValueChanged(VParameter const& parameter, PoolPtr const& pool) {
    parameter.effectiveValue(pool)->renewAge();
}

} // namespace Kolt
