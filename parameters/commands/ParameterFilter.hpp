#pragma once

#include <lattice/Object.hpp>
#include <optional>
#include <QString>
#include <QStringList>
#include <tessera/Export.hpp>

namespace Talo {

/// Words by which parameters are found. A parameter is found when each word is contained in "object.parameter", in its
/// label or help, in the kind of its object, or in the text of its value, in capitals or not. A filter for changes
/// finds only those of them whose value differs from the default; a parameter without a default is never changed.
/// Without words and without that every parameter is found. User-interface thread.
class TALO_EXPORT ParameterFilter {
public:
    /// The words of a text, between blanks.
    explicit ParameterFilter(QString const& text = {}, bool onlyChanged = false);

    /// Whether every parameter passes.
    bool isEmpty() const { return words_.isEmpty() && !onlyChanged_; }
    /// Whether a parameter of the object is found, with the value that it has in the pool, else with its own one.
    /// `kind` says what the object is for.
    bool finds(Kolt::VObject const& object, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool,
               QString const& kind = {}) const;
    /// How many of the object's parameters are found; those that are hidden by "visibleWhen" do not count. Nothing if
    /// none is found, unless the words find the object itself by its name or kind and need not be changes.
    std::optional<int> countIn(Kolt::VObject const& object, Kolt::PoolPtr const& pool, QString const& kind = {}) const;

private:
    QStringList words_;
    bool onlyChanged_;
};

/// Whether the parameter's value in the pool differs from its default. False without a default.
TALO_EXPORT bool isChanged(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool);

} // namespace Talo
