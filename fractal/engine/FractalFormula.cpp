#include <fractal/engine/FractalFormula.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace Fractal {

namespace {

using Point = FractalFormula::Point;
using Formula = FractalSettings::Formula;

// The escape radius, 256, squared. A radius of 2 would suffice, but the fraction of the smooth count needs a larger
// one.
constexpr double farAway = 65536;
// The distance, squared, below which a point has reached a root.
constexpr double nearby = 1e-12;

// Written out because the products of std::complex check for NaN and infinity at every step.
Point square(Point const& z) {
    return {z.real() * z.real() - z.imag() * z.imag(), 2 * z.real() * z.imag()};
}

Point product(Point const& a, Point const& b) {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// The main cardioid and the largest disc of the Mandelbrot set can be tested directly, which saves most of the work on
// points inside the set.
bool isInTheLargestParts(Point const& c) {
    double const y2 = c.imag() * c.imag();
    double const x = c.real() - 0.25;
    double const q = x * x + y2;
    double const left = c.real() + 1;
    return q * (q + x) <= 0.25 * y2 || left * left + y2 <= 0.0625;
}

std::array<Point, 3> const& roots() {
    static std::array<Point, 3> const points{Point(1, 0), Point(-0.5, std::sqrt(0.75)), Point(-0.5, -std::sqrt(0.75))};
    return points;
}

} // namespace

FractalFormula::FractalFormula(FractalSettings const& settings)
    : formula_(settings.formula),
      juliaConstant_(settings.juliaReal, settings.juliaImaginary),
      iterations_(settings.iterations),
      smooth_(settings.smooth) {}

Point FractalFormula::step(Point const& place, Point const& point) const {
    switch (formula_) {
    case Formula::Julia:
        return square(place) + juliaConstant_;
    case Formula::BurningShip:
        // By convention this formula is drawn upside down.
        return square({std::abs(place.real()), std::abs(place.imag())}) + std::conj(point);
    case Formula::Newton: {
        auto const squared = square(place);
        return place - (product(squared, place) - 1.0) / (3.0 * squared);
    }
    case Formula::Mandelbrot:
        break;
    }
    return square(place) + point;
}

FractalFormula::EscapeResult FractalFormula::escapeResultAt(Point const& point) const {
    if (formula_ == Formula::Newton)
        return descend(point);
    if (formula_ == Formula::Mandelbrot && isInTheLargestParts(point))
        return {true, 0, 0};
    return escape(point);
}

FractalFormula::EscapeResult FractalFormula::escape(Point const& point) const {
    Point place = formula_ == Formula::Julia ? point : Point();
    for (int count = 0; count < iterations_; ++count) {
        double const distance = std::norm(place);
        // Negated so that NaN counts as escaped.
        if (!(distance <= farAway)) {
            if (!smooth_ || !std::isfinite(distance))
                return {false, static_cast<double>(count), 0};
            double const fraction = std::log2(std::log(distance) / std::log(farAway));
            return {false, std::max(0.0, count - fraction), 0};
        }
        place = step(place, point);
    }
    return {true, 0, 0};
}

FractalFormula::EscapeResult FractalFormula::descend(Point const& point) const {
    Point place = point;
    double lastDistance = 1;
    for (int count = 0; count < iterations_; ++count) {
        // Newton's method cannot continue from 0, infinity or NaN.
        if (place == Point() || !std::isfinite(std::norm(place)))
            return {true, 0, 0};
        for (int root = 0; root < 3; ++root) {
            double const distance = std::norm(place - roots()[static_cast<std::size_t>(root)]);
            if (distance >= nearby)
                continue;
            double fraction = 0;
            if (smooth_ && count > 0 && lastDistance > nearby)
                fraction = std::log(nearby / lastDistance) /
                           std::log(std::max(distance, std::numeric_limits<double>::min()) / lastDistance);
            return {false, std::max(0.0, count - 1 + std::clamp(fraction, 0.0, 1.0)), root};
        }
        lastDistance = std::numeric_limits<double>::max();
        for (auto const& root : roots())
            lastDistance = std::min(lastDistance, std::norm(place - root));
        place = step(place, point);
    }
    return {true, 0, 0};
}

std::vector<Point> FractalFormula::orbitOf(Point const& point, int length) const {
    bool const startsAtPoint = formula_ == Formula::Julia || formula_ == Formula::Newton;
    Point place = startsAtPoint ? point : Point();
    std::vector<Point> places;
    // NaN fails the comparison, so it ends the orbit, too.
    while (static_cast<int>(places.size()) < length && std::norm(place) <= farAway) {
        places.push_back(place);
        place = step(place, point);
    }
    return places;
}

Point FractalFormula::home() const {
    switch (formula_) {
    case Formula::Mandelbrot:
        return {-0.6, 0};
    case Formula::BurningShip:
        return {-0.5, 0.5};
    case Formula::Julia:
    case Formula::Newton:
        break;
    }
    return {};
}

double FractalFormula::homeHalfHeight() const {
    return formula_ == Formula::BurningShip ? 1.6 : 1.3;
}

Point FractalFormula::focus() const {
    switch (formula_) {
    case Formula::Mandelbrot:
        // A preperiodic point with spirals at every scale: step 4 lands on a repelling fixed point.
        return {-0.1010963638456222, 0.9562865108091415};
    case Formula::Julia:
        // The repelling fixed point.
        return (1.0 + std::sqrt(1.0 - 4.0 * juliaConstant_)) / 2.0;
    case Formula::BurningShip:
        // The point on the mast at which two bands of the ship meet.
        return {-1.5436890126920764, 0};
    case Formula::Newton:
        break;
    }
    return {};
}

} // namespace Fractal
