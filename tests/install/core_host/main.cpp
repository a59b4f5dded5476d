#include <bramble/Color.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <iostream>
#include <lattice/Parameter.hpp>

// A host without widgets: a parameter of a built-in type and one of a type of bramble.
int main() {
    Kolt::ParameterPtr const count(new Kolt::VParameter("count", Kolt::makeValue(41)));
    Kolt::ParameterPtr const status(new Kolt::VParameter("status", Kolt::makeValue(Kolt::VObjectStatus("ready"))));
    for (auto const& parameter : {count, status})
        std::cout << parameter->Name() << " = " << parameter->ownValue()->Text() << '\n';
}
