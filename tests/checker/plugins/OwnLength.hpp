#pragma once

#include <lattice/ValueFormat.hpp>

/// A type of values that only a plug-in knows.
struct Length {
    double metres = 0;
    bool operator==(Length const& other) const { return metres == other.metres; }
};
