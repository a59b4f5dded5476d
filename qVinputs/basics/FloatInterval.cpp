#include <qVinputs/basics/FloatInterval.hpp>

#include <algorithm>
#include <cmath>
#include <initializer_list>
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

constexpr double Largest = std::numeric_limits<double>::max();

/// The factor by which numbers of this size are multiplied before they are used in a formula. A power of two changes no
/// digit, and positions times widths stay below the largest double.
double scaleFor(std::initializer_list<double> numbers) {
    bool const isLarge =
        std::any_of(numbers.begin(), numbers.end(), [](double number) { return std::abs(number) > 0x1p900; });
    return isLarge ? 0x1p-200 : 1.0;
}

/// A length in place of one that is too large for a double.
double limited(double length) {
    return std::clamp(length, -Largest, Largest);
}

} // namespace

// The formulas are evaluated in double and in the order in which they are written: another association would round
// differently and move handles.

int FloatInterval::lastPosition() const {
    double const scale = scaleFor({min, max, delta});
    return std::max(saturated((max * scale - min * scale) / (delta * scale) + 1.0), 1);
}

double FloatInterval::valueAt(int position) const {
    double const scale = scaleFor({min, max});
    double value = (position * (max * scale - min * scale) / lastPosition() + min * scale) / scale;
    if (value < min)
        value = min;
    if (value > max)
        value = max;
    return value;
}

int FloatInterval::positionOf(double value) const {
    double const scale = scaleFor({min, max, value});
    double const distance = value * scale - min * scale;
    return saturated(lastPosition() * distance / (max * scale - min * scale) + 0.5);
}

int FloatInterval::positionAtFraction(double fraction) const {
    return saturated(lastPosition() * fraction + 0.5);
}

int FloatInterval::positionAtShare(double share) const {
    double const width = scaledWidth();
    return saturated(share * width * lastPosition() / width + 0.5);
}

void FloatInterval::setResolution(double positions) {
    double const scale = scaleFor({min, max});
    // In double, as the smallest int has no predecessor.
    delta = limited(scaledWidth() / (static_cast<double>(saturated(positions)) - 1.0) / scale);
}

void FloatInterval::coarsen() {
    delta = limited(std::min(2.0 * delta, max - min));
}

void FloatInterval::refine() {
    delta = std::max(0.5 * delta, 1e-8 * scaledWidth() / scaleFor({min, max}));
}

int FloatInterval::widen(double centre) {
    return resize(centre, 1.0);
}

int FloatInterval::narrow(double centre) {
    return resize(centre, 0.25);
}

int FloatInterval::resize(double centre, double reach) {
    double const scale = scaleFor({min, max});
    double const width = scaledWidth();
    double const distance = width * reach / scale;
    min = limited(centre - distance);
    max = limited(centre + distance);
    delta = limited(2.0 * reach * width / (steps - 1) / scale);
    return saturated(saturated((steps - 1) + 1.0) * width / (2.0 * width) + 0.5);
}

double FloatInterval::scaledWidth() const {
    double const scale = scaleFor({min, max});
    return max * scale - min * scale;
}

} // namespace Kolt
