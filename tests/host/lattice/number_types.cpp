// Compiled once for each expression that must not compile: a number or text of a kind that no value holds.

#include <lattice/TypedParameter.hpp>
#include <lattice/ValueFormat.hpp>

struct Textless {
    bool operator==(Textless const&) const { return true; }
};

using Array = Kolt::Parameter<std::array<std::string, 1>>;

void evaluate(Kolt::Parameter<int> const& number, Kolt::ValuePtr value, Kolt::PoolPtr const& pool,
              std::string const& member, char const* pointer) {
    TALO_EXPRESSION;
    static_cast<void>(number), static_cast<void>(value), static_cast<void>(pool);
    static_cast<void>(member), static_cast<void>(pointer);
}
