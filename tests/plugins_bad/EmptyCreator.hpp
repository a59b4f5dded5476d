#pragma once

#include <lattice/InputCreator.hpp>

/// A creator that makes nothing. Each plug-in has a class of its own, as it is compiled into it.
struct EmptyCreator : Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
    explicit EmptyCreator(std::string const& name) : VInputCreator(name, 0, nullptr, "TALO_API_VERSION") {}
};
