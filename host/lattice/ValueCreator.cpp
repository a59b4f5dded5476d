#include <lattice/ValueCreator.hpp>

#include <algorithm>
#include <lattice/Initialization.hpp>
#include <vector>

namespace Kolt {

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

} // namespace Kolt
