#pragma once

namespace Checker {

/// A type of values that no editor supports.
struct StrangeValue {
    /// All are equal.
    bool operator==(StrangeValue const&) const { return true; }
};

} // namespace Checker
