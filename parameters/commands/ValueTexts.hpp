#pragma once

#include <lattice/Value.hpp>
#include <optional>
#include <QString>

namespace Talo {

/// A value in one line, however long: the chosen texts and the flags that are on with commas between them, a text
/// without its line ends.
QString wholeText(Kolt::VValueBase const& value);

/// The start of wholeText, with at least so many characters if there are as many. Of a long text only the start is
/// looked at.
QString startOfText(Kolt::VValueBase const& value, int characters);

/// Two values in one line each, or a part of each around the first difference.
struct DifferingTexts {
    QString before; ///< of the first value
    QString after;  ///< of the second value
    /// Whether both texts begin before these parts.
    bool isCut = false;
};

/// The parts of the texts of two long values, with at least `charactersBefore` characters before the first difference
/// and `characters` behind it, if there are as many. Empty for values whose whole texts are to be looked at.
std::optional<DifferingTexts> differingParts(Kolt::VValueBase const& before, Kolt::VValueBase const& after,
                                             int charactersBefore, int characters);

} // namespace Talo
