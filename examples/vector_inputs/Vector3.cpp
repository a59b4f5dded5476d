#include "Vector3.hpp"

#include <cmath>

using VectorInputs::Vector3;
using NumberTrait = Kolt::VValueTrait<double>;

std::string Kolt::VValueTrait<Vector3>::Text(Vector3 const& vector) {
    auto const& [x, y, z] = vector.numbers;
    return NumberTrait::Text(x) + ' ' + NumberTrait::Text(y) + ' ' + NumberTrait::Text(z);
}

bool Kolt::VValueTrait<Vector3>::setValueFromText(Vector3& vector, std::string const& text) {
    Vector3 read;
    std::size_t begin = 0;
    for (auto& number : read.numbers) {
        bool const isLast = &number == &read.numbers.back();
        auto const end = isLast ? text.size() : text.find(' ', begin);
        if (end == std::string::npos || !NumberTrait::setValueFromText(number, text.substr(begin, end - begin)) ||
            !std::isfinite(number))
            return false;
        begin = end + 1;
    }
    vector = read;
    return true;
}
