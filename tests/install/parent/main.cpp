#include <iostream>
#include <lattice/Parameter.hpp>

int main() {
    Kolt::ParameterPtr const count(new Kolt::VParameter("count", Kolt::makeValue(41)));
    std::cout << count->Name() << " = " << count->ownValue()->Text() << '\n';
}
