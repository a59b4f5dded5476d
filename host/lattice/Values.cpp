#include <algorithm>
#include <lattice/HostObserver.hpp>
#include <lattice/Value.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValueMap.hpp>
#include <lattice/ValuePool.hpp>
#include <vector>

namespace Kolt {

VValueBase::VValueBase() = default;

VValueBase::~VValueBase() = default;

Tessera::StrongPtr<Tessera::InterfaceBase> VValueBase::getInterface() const {
    return nullptr;
}

bool VValueBase::isEdited() const {
    return true;
}

void VValueBase::setContainerValue(Tessera::WeakPtr<VValueBase> const& container) {
    container_ = container;
}

void VValueBase::setSource(Tessera::WeakPtr<VManagedObject, VManagedObjectBase> const& source) {
    source_ = source;
}

template class VTypedValueBase<bool>;
template class VTypedValueBase<int>;
template class VTypedValueBase<double>;
template class VTypedValueBase<std::string>;
template class VTypedValueBase<std::array<std::string, 1>>;
template class VValue<bool>;
template class VValue<int>;
template class VValue<double>;
template class VValue<std::string>;
template class VValue<std::array<std::string, 1>>;

namespace {

struct KnownValueCreator {
    std::string typeName;
    Tessera::WeakPtr<VValueCreator> creator;
};

template <typename T>
void addOwnCreator(std::vector<KnownValueCreator>& known) {
    static auto* const creator = new TypedValueCreator<T>;
    known.push_back({Tessera::Typename(typeid(T)), Tessera::WeakPtr<VValueCreator>(creator)});
}

// Immortal: a plug-in may still come and go after the statics of this library.
std::vector<KnownValueCreator>& knownValueCreators() {
    static auto& known = *[] {
        auto* const made = new std::vector<KnownValueCreator>;
        addOwnCreator<bool>(*made);
        addOwnCreator<int>(*made);
        addOwnCreator<double>(*made);
        addOwnCreator<std::string>(*made);
        addOwnCreator<std::array<std::string, 1>>(*made);
        return made;
    }();
    return known;
}

} // namespace

VValueCreator::VValueCreator() = default;

VValueCreator::~VValueCreator() = default;

void VValueCreator::registerCreator(Tessera::WeakPtr<VValueCreator> const& creator, std::string const& typeName) {
    if (!creator)
        return;
    auto& known = knownValueCreators();
    known.erase(std::remove_if(known.begin(), known.end(), [](auto const& entry) { return !entry.creator.alive(); }),
                known.end());
    known.push_back({typeName, creator});
    HostObserver::theObserver().valueCreatorRegistered(typeName);
}

ValuePtr VValueCreator::create(std::string const& typeName) {
    for (auto const& known : knownValueCreators()) {
        if (known.typeName != typeName)
            continue;
        if (auto const creator = known.creator.strong())
            return creator->createValue();
    }
    return nullptr;
}

int VValueCreator::registered(std::string const& typeName) {
    auto const& known = knownValueCreators();
    return static_cast<int>(std::count_if(known.begin(), known.end(), [&](auto const& entry) {
        return entry.typeName == typeName && entry.creator.alive();
    }));
}

ValuePool::ValuePool(std::string name) : name_(std::move(name)) {}

ValuePool::~ValuePool() = default;

ValuePoolProvider::~ValuePoolProvider() = default;

ValuePoolSource::~ValuePoolSource() = default;

PoolPtr currentPool(Tessera::StrongPtr<ValuePoolProvider> const& provider) {
    return provider ? provider->getValuePool() : nullptr;
}

PoolPtr currentPool(ValuePoolSource const* source) {
    return source ? currentPool(source->getValuePoolProvider()) : nullptr;
}

VContext::Addendum::Addendum(PoolPtr const& pool) : pool_(pool) {}

VContext::Addendum::~Addendum() = default;

VContext::VContext(Tessera::StrongPtr<Addendum> const& addendum)
    : pool_(addendum ? addendum->pool() : nullptr), addendum_(addendum) {}

VContext::VContext(PoolPtr const& pool, Tessera::StrongPtr<Addendum> const& addendum)
    : pool_(pool), addendum_(addendum), addendumToBeMade_(!addendum) {}

Tessera::StrongPtr<VContext::Addendum> const& VContext::addendum() const {
    if (addendumToBeMade_) {
        addendum_ = Tessera::StrongPtr<Addendum>(new Addendum(pool_));
        addendumToBeMade_ = false;
    }
    return addendum_;
}

VContext::~VContext() = default;

ValuePtr ValueMap::getValue(std::string const& name) const {
    auto const found = values_.find(name);
    return found == values_.end() ? nullptr : found->second;
}

void ValueMap::setValue(std::string const& name, ValuePtr const& value) {
    if (value)
        values_[name] = value;
    else
        values_.erase(name);
}

} // namespace Kolt
