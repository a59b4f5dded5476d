#include <algorithm>
#include <lattice/EditRecorder.hpp>
#include <lattice/Parameter.hpp>
#include <lattice/UndoHistory.hpp>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

VParameter::VParameter(std::string name, Tessera::StrongPtr<VValueBase> const& ownValue, Values values,
                       std::string declaredType)
    : name_(std::move(name)),
      ownValue_(ownValue),
      values_(values),
      declaredType_(declaredType.empty() ? Tessera::Typename(ownValue->valueType()) : std::move(declaredType)) {}

VParameter::~VParameter() = default;

Tessera::StrongPtr<VValueBase>* VParameter::findLocalValue(Tessera::StrongPtr<ValuePool> const& pool) const {
    Tessera::WeakPtr<ValuePool> const key(pool);
    auto const found =
        std::find_if(localValues_.begin(), localValues_.end(), [&](auto const& local) { return local.pool == key; });
    return found == localValues_.end() ? nullptr : &found->value;
}

void VParameter::putLocalValue(Tessera::StrongPtr<ValuePool> const& pool,
                               Tessera::StrongPtr<VValueBase> const& value) const {
    if (auto* const found = findLocalValue(pool)) {
        *found = value;
        return;
    }
    localValues_.erase(
        std::remove_if(localValues_.begin(), localValues_.end(), [](auto const& local) { return !local.pool.alive(); }),
        localValues_.end());
    localValues_.push_back({pool, value});
}

Tessera::StrongPtr<VValueBase> VParameter::getLocalValue(Tessera::StrongPtr<ValuePool> const& pool, std::string const&,
                                                         bool create) const {
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

Tessera::StrongPtr<VValueBase> VParameter::freshLocalValue(Tessera::StrongPtr<ValuePool> const& pool) const {
    if (!pool || !keepsValuesPerPool())
        return nullptr;
    auto const value = VValueCreator::create(declaredType_);
    if (value)
        putLocalValue(pool, value);
    return value;
}

void VParameter::removeLocalValue(Tessera::StrongPtr<ValuePool> const& pool) {
    Tessera::WeakPtr<ValuePool> const key(pool);
    localValues_.erase(
        std::remove_if(localValues_.begin(), localValues_.end(), [&](auto const& local) { return local.pool == key; }),
        localValues_.end());
}

void VParameter::setLocalValue(Tessera::StrongPtr<ValuePool> const& pool, Tessera::StrongPtr<VValueBase> const& value) {
    if (pool && value && keepsValuesPerPool())
        putLocalValue(pool, value);
}

std::vector<Tessera::StrongPtr<ValuePool>> VParameter::poolsWithValue() const {
    std::vector<Tessera::StrongPtr<ValuePool>> pools;
    for (auto const& local : localValues_)
        if (auto const pool = local.pool.strong())
            pools.push_back(pool);
    return pools;
}

void VParameter::rememberDefaults() {
    defaults_ = std::make_unique<ValueSnapshot>(*this);
}

void VParameter::selectMember(std::string const&) const {}

void VParameter::notifyValueChange(Tessera::StrongPtr<VValueBase> const& value,
                                   Tessera::StrongPtr<ValuePool> const& pool, std::string const&,
                                   Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                                   ValueMap const* values) const {
    if (nobodyListens() && !alsoNotify && recorder_.expired())
        return;
    // Held here, as the caller's reference may be a part of what dies on the way.
    auto const live = value;
    VContext const context(pool, nullptr);
    auto recorder = values ? nullptr : recorder_.lock();
    if (!recorder) {
        tell(source, alsoNotify, live, context, values);
        return;
    }
    EditRecorder::Telling const telling(std::move(recorder), context.pool(), source.alive());
    // The recorded step may have been the end of the parameter.
    if (telling.parameterLives())
        tell(source, alsoNotify, live, context, values);
}

void VParameter::setProperty(std::string const& name, Tessera::StrongPtr<VValueBase> const& value,
                             Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                             Tessera::WeakPtr<ValuePool> const& pool) {
    if (!properties_)
        properties_ = std::make_shared<ValueMap>();
    properties_->setValue(name, value);

    auto const properties = properties_;
    auto const context = pool.strong();
    auto const local = getLocalValue(context, std::string(), false);
    notifyValueChange(local ? local : ownValue_, context, std::string(), source, alsoNotify, properties.get());
}

void VParameter::AddUndoAction(Tessera::StrongPtr<VUndoAction> const& action, int weight) {
    UndoHistory::theHistory().add(action, weight, Tessera::WeakPtr<VParameter, ValueNotifierList>(this));
}

void markValueChanged(VParameter const& parameter, Tessera::StrongPtr<ValuePool> const& pool) {
    auto const local = parameter.getLocalValue(pool, std::string(), false);
    (local ? local : parameter.ownValue())->renewAge();
}

} // namespace Kolt
