#pragma once

#include <tessera/Export.hpp>

namespace Kolt {

/// A slider or dial (QAbstractSlider) that edits a number. Screen readers get the number instead of the position. A
/// control derives from its Qt class first and from this second. User-interface thread.
class TALO_EXPORT AccessibleNumber {
public:
    /// What screen readers are given, in the unit of the number.
    struct State {
        double value;   ///< the number itself, which may lie between two positions and outside the range
        double minimum; ///< the number at the first position
        double maximum; ///< the number at the last position
        double step;    ///< from one position to the next
    };

    /// From the first one on, screen readers find these controls.
    AccessibleNumber();
    virtual ~AccessibleNumber();
    AccessibleNumber(AccessibleNumber const&) = delete;
    AccessibleNumber& operator=(AccessibleNumber const&) = delete;

    /// The number and its range.
    virtual State numberState() const = 0;
    /// The position at which a screen reader sets a number. It may lie beyond the control's range.
    virtual int positionOf(double number) const = 0;
};

} // namespace Kolt
