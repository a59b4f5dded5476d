#include <qVinputs/basics/FloatInterval.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Kolt {

namespace {

int saturated(double number) {
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    if (std::isnan(number))
        return 0;
    if (number >= Largest)
        return Largest;
    if (number <= Smallest)
        return Smallest;
    return static_cast<int>(std::trunc(number));
}

} // namespace

// The formulas are evaluated in double and in the order in which they are written: another association would round
// differently and move handles.

int FloatInterval::lastPosition() const {
    return std::max(saturated((max - min) / delta + 1.0), 1);
}

double FloatInterval::valueAt(int position) const {
    double value = position * (max - min) / lastPosition() + min;
    if (value < min)
        value = min;
    if (value > max)
        value = max;
    return value;
}

int FloatInterval::positionOf(double value) const {
    return saturated(lastPosition() * (value - min) / (max - min) + 0.5);
}

int FloatInterval::positionAtFraction(double fraction) const {
    return saturated(lastPosition() * fraction + 0.5);
}

int FloatInterval::positionAtShare(double share) const {
    double const width = max - min;
    return saturated(share * width * lastPosition() / width + 0.5);
}

void FloatInterval::setResolution(double positions) {
    // In double, as the smallest int has no predecessor.
    delta = (max - min) / (static_cast<double>(saturated(positions)) - 1.0);
}

void FloatInterval::coarsen() {
    delta = std::min(2.0 * delta, max - min);
}

void FloatInterval::refine() {
    delta = std::max(0.5 * delta, 1e-8 * (max - min));
}

int FloatInterval::widen(double centre) {
    double const width = max - min;
    min = centre - width;
    max = centre + width;
    delta = 2.0 * width / (steps - 1);
    return middlePosition(width);
}

int FloatInterval::narrow(double centre) {
    double const width = max - min;
    min = centre - width / 4.0;
    max = centre + width / 4.0;
    delta = width / 2.0 / (steps - 1);
    return middlePosition(width);
}

int FloatInterval::middlePosition(double width) const {
    return saturated(saturated((steps - 1) + 1.0) * width / (2.0 * width) + 0.5);
}

} // namespace Kolt
