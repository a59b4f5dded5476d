#include <algorithm>
#include <tessera/Ageable.hpp>
#include <tessera/Chunk.hpp>
#include <tessera/Interface.hpp>
#include <tessera/StringList.hpp>

namespace Tessera {

std::atomic<unsigned long> Ageable::GlobalTime{0};
std::atomic<std::size_t> ChunkBase::TotalMemsize{0};

ChunkBase::ChunkBase(std::size_t bytes) : bytes_(bytes) {
    TotalMemsize += bytes_;
}

ChunkBase::~ChunkBase() {
    TotalMemsize -= bytes_;
}

InterfaceIterationParameter::~InterfaceIterationParameter() = default;

InterfaceBase::~InterfaceBase() = default;

bool InterfaceBase::apply_const(Intercube const& carrier,
                                StrongPtr<InterfaceIterationParameter> const& parameter) const {
    return !parameter || parameter->visit(carrier, *this);
}

bool InterfaceBase::apply(Intercube& carrier, StrongPtr<InterfaceIterationParameter> const& parameter) {
    return !parameter || parameter->visit(carrier, *this);
}

Intercube::~Intercube() = default;

void Intercube::addInterface(StrongPtr<InterfaceBase> const& interface) const {
    if (interface)
        interfaces_.push_back(interface);
}

StrongPtr<InterfaceBase> Intercube::findInterface(std::type_info const& type) const {
    auto const found = std::find_if(interfaces_.rbegin(), interfaces_.rend(),
                                    [&](auto const& interface) { return interface->interfaceType() == type; });
    return found == interfaces_.rend() ? nullptr : *found;
}

bool Intercube::applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) const {
    auto const walked = interfaces_;
    return std::all_of(walked.begin(), walked.end(),
                       [&](auto const& interface) { return interface->apply_const(*this, parameter); });
}

bool Intercube::applyInterfaces(StrongPtr<InterfaceIterationParameter> const& parameter) {
    auto const walked = interfaces_;
    return std::all_of(walked.begin(), walked.end(),
                       [&](auto const& interface) { return interface->apply(*this, parameter); });
}

StringList::~StringList() = default;

bool StringList::contains(std::string const& text) const {
    return std::find(strings_.begin(), strings_.end(), text) != strings_.end();
}

StrongPtr<StringList> StringList::clone() const {
    return StrongPtr<StringList>(new StringList(*this));
}

} // namespace Tessera
