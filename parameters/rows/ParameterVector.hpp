#pragma once

#include <lattice/Parameter.hpp>
#include <QString>
#include <QStringList>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Parameters that share a row, as the components of a vector do: a parameter, and those after it whose text property
/// "rowOf" names it. User-interface thread.
struct TALO_EXPORT ParameterVector {
    /// What the row is called: the label of the first parameter, else what the names of all begin with.
    QString name;
    /// What each component is called beside its editor: its label, unless it is the first one, else what its name has
    /// beyond the other names.
    QStringList components;
    /// The parameters in their order, at least two.
    std::vector<Kolt::ParameterPtr> members;
};

/// The vectors among these parameters. A parameter that names itself, a later one, none of these or one that is in the
/// row of another is in no vector.
TALO_EXPORT std::vector<ParameterVector> vectorsOf(std::vector<Kolt::ParameterPtr> const& parameters);

} // namespace Talo
