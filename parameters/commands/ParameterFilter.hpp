#pragma once

#include <lattice/Object.hpp>
#include <QString>
#include <QStringList>
#include <tessera/Export.hpp>

namespace Talo {

/// Words by which parameters are found. A parameter is found when each word is contained in "object.parameter",
/// in its label or help, or in the text of its value, in capitals or not. Without words every parameter is found.
/// User-interface thread.
class TALO_EXPORT ParameterFilter {
public:
    /// The words of a text, between blanks.
    explicit ParameterFilter(QString const& text = {});

    /// Whether there is no word, so that every parameter passes.
    bool isEmpty() const { return words_.isEmpty(); }
    /// Whether a parameter of the object is found, with the value that it has in the pool, else with its own one.
    bool finds(Kolt::VObject const& object, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) const;
    /// Whether a parameter of the object is found, or the object itself by its name.
    bool finds(Kolt::VObject const& object, Kolt::PoolPtr const& pool) const;

private:
    QStringList words_;
};

} // namespace Talo
