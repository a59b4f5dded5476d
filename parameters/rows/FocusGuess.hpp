#pragma once

#include <cstddef>
#include <lattice/Parameter.hpp>
#include <set>
#include <tessera/Export.hpp>

class QWidget;

namespace Talo {

class ParameterRow;

/// Says of rows that were never made whether Tab can stop there, so that Tab over thousands of displays makes none of
/// them. User-interface thread.
class TALO_EXPORT FocusGuess {
public:
    /// Learns from a row that has an editor whether others of its height class (RowLayout) have something that takes
    /// the focus.
    void learn(ParameterRow const& row, std::size_t heightClass);
    /// To be called when other editors may be made than before.
    void forget() { withoutFocus_.clear(); }
    /// Whether the row of a parameter would perhaps have something that takes the focus. A false answer is right.
    /// `form` is a widget around the rows.
    bool mayTakeFocus(Kolt::VParameter const& parameter, std::size_t heightClass, Kolt::PoolPtr const& pool,
                      QWidget const& form) const;

private:
    // The height classes of values that people do not edit, and whose editors have nothing that takes the focus.
    std::set<std::size_t> withoutFocus_;
};

} // namespace Talo
