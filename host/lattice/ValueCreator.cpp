#include <lattice/ValueCreator.hpp>

#include <algorithm>
#include <lattice/HostObserver.hpp>
#include <tessera/MakeStrong.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

struct KnownValueCreator {
    std::string typeName;
    Tessera::WeakPtr<VValueCreator> creator;
};

template <typename T>
KnownValueCreator ownCreator() {
    static Tessera::NoDestructor<TypedValueCreator<T>> creator;
    return {Tessera::Typename(typeid(T)), Tessera::watch<VValueCreator>(creator.get())};
}

// Immortal: a plug-in may still come and go after the statics of this library.
std::vector<KnownValueCreator>& knownValueCreators() {
    static Tessera::NoDestructor<std::vector<KnownValueCreator>> known(
        std::vector<KnownValueCreator>{ownCreator<bool>(), ownCreator<int>(), ownCreator<double>(),
                                       ownCreator<std::string>(), ownCreator<std::array<std::string, 1>>()});
    return *known;
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

std::vector<Tessera::StrongPtr<VValueCreator>> VValueCreator::living() {
    std::vector<Tessera::StrongPtr<VValueCreator>> living;
    for (auto const& known : knownValueCreators()) {
        if (auto creator = known.creator.strong())
            living.push_back(std::move(creator));
    }
    return living;
}

} // namespace Kolt
