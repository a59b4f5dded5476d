#pragma once

#include <lattice/Object.hpp>
#include <optional>
#include <QString>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// A condition on another parameter of the same object, as the properties "visibleWhen" and "enabledWhen" have it:
/// "kind=Julia|Burning ship" holds while the parameter "kind" has one of the two values, which are written as
/// VValueBase::Text() does. The name ends at the first "=". User-interface thread.
class TALO_EXPORT Condition {
public:
    /// The properties of a parameter that are conditions.
    static constexpr char const* Properties[] = {"visibleWhen", "enabledWhen"};

    /// The condition in a property of the parameter; none without the property, or if its text is not one.
    static std::optional<Condition> of(Kolt::VParameter const& parameter, char const* property);
    /// The condition that a text is; none for other texts.
    static std::optional<Condition> parse(std::string const& text);

    /// The name of the other parameter.
    std::string const& parameterName() const { return parameterName_; }
    /// Whether the other parameter has one of the values in the pool.
    bool holds(Kolt::VParameter const& other, Kolt::PoolPtr const& pool) const;

    /// What is expected instead of the parameter's property, for an error of the file; empty if the property is right
    /// or missing. It is wrong if it is no condition, if the object has no such other parameter or that one cannot have
    /// one of the values, and if the conditions of the object's parameters lead from the parameter to itself.
    static QString faultOf(Kolt::VObject const& object, Kolt::VParameter const& parameter, char const* property);

private:
    std::string parameterName_;
    std::vector<std::string> values_;
};

} // namespace Talo
