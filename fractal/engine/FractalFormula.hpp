#pragma once

#include <complex>
#include <fractal/engine/FractalSettings.hpp>
#include <vector>

namespace Fractal {

/// A formula that is iterated on a point of the plane. Any thread. Every point has a result, NaN included.
class FractalFormula {
public:
    using Point = std::complex<double>;

    /// The result of iterating on a point.
    struct EscapeResult {
        /// Whether the point stays within the number of iterations: it neither escapes nor reaches a root.
        bool stays = false;
        /// The number of steps until the point escapes, or before the step that reaches a root; with a fraction if the
        /// settings are smooth. 0 if the point stays.
        double count = 0;
        /// For the formula with roots, the root that the point converges to, 0 to 2; otherwise 0.
        int root = 0;
    };

    /// The settings must have been limited.
    explicit FractalFormula(FractalSettings const& settings);

    EscapeResult escapeResultAt(Point const& point) const;
    /// The orbit of a point: at most `length` places, beginning with the start of the iteration. Ends when the point
    /// escapes.
    std::vector<Point> orbitOf(Point const& point, int length) const;

    /// The centre of the unmagnified picture, and half its height.
    Point home() const;
    double homeHalfHeight() const;
    /// The point that zooming approaches. It has detail at every magnification.
    Point focus() const;

private:
    Point step(Point const& place, Point const& point) const;
    EscapeResult escape(Point const& point) const;
    EscapeResult descend(Point const& point) const;

    FractalSettings::Formula const formula_;
    Point const juliaConstant_;
    int const iterations_;
    bool const smooth_;
};

} // namespace Fractal
