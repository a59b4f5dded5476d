#include "NumberScale.hpp"

#include <algorithm>
#include <cmath>
#include <QLocale>

namespace MoreInputs {

namespace {

// In one step a logarithmic number grows by about a twentieth; 50 steps make ten times as much.
constexpr double stepsOfTen = 50;

// Enough to tell positions apart, and few enough to hide what binary numbers leave behind.
constexpr int linearDigits = 12;
constexpr int logarithmicDigits = 4;

double rounded(double number, int significantDigits) {
    return QString::number(number, 'g', significantDigits).toDouble();
}

/// The largest power of ten that is not above the number.
double powerOfTenIn(double number) {
    return std::pow(10.0, std::floor(std::log10(number)));
}

} // namespace

bool NumberScale::contains(double number) const {
    return maximum < minimum || (number >= minimum && number <= maximum);
}

double NumberScale::lowest(double number) const {
    double const bound = maximum < minimum ? -std::numeric_limits<double>::infinity() : minimum;
    double const soft = softMaximum < softMinimum ? bound : std::max(bound, softMinimum);
    return std::min(number, soft);
}

double NumberScale::highest(double number) const {
    double const bound = maximum < minimum ? std::numeric_limits<double>::infinity() : maximum;
    double const soft = softMaximum < softMinimum ? bound : std::min(bound, softMaximum);
    return std::max(number, soft);
}

double NumberScale::stepAt(double number) const {
    if (step > 0 && std::isfinite(step))
        return step;
    if (isWhole)
        return 1;
    double const width = std::min(maximum, softMaximum) - std::max(minimum, softMinimum);
    if (width > 0 && std::isfinite(width))
        return powerOfTenIn(width / 100);
    return number == 0 ? 0.1 : powerOfTenIn(std::abs(number)) / 10;
}

double NumberScale::stepped(double number, int steps, double factor) const {
    double moved = number;
    if (isLogarithmic && number > 0)
        moved = rounded(number * std::pow(10.0, steps * factor / stepsOfTen), logarithmicDigits);
    else
        moved = rounded(number + steps * stepAt(number) * factor, linearDigits);
    if (isWhole) {
        moved = std::round(moved);
        // A finer step than 1 still moves, if only by 1.
        if (moved == number && factor >= 1 && steps != 0)
            moved += steps > 0 ? 1 : -1;
    }
    return std::clamp(moved, lowest(number), highest(number));
}

QString NumberScale::text(double number) const {
    if (isWhole)
        return QString::number(number, 'f', 0);
    return decimals >= 0 ? QString::number(number, 'f', decimals)
                         : QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace MoreInputs
