#pragma once

#include <complex>
#include <fractal/engine/FractalSettings.hpp>
#include <vector>

namespace Fractal {

/// A formula that is applied to a point of the plane again and again. Any thread. Every point gives an answer, one
/// that is no number included.
class FractalFormula {
public:
    using Point = std::complex<double>;

    /// What becomes of a point.
    struct EscapeResult {
        /// Whether the point stays, as far as the formula was applied.
        bool stays = false;
        /// After how many steps it is known where it goes; with a fraction if the settings are smooth. 0 where it
        /// stays.
        double count = 0;
        /// The root that the point comes to, 0 to 2, for the formula with roots; else 0.
        int root = 0;
    };

    /// The settings must have been limited.
    explicit FractalFormula(FractalSettings const& settings);

    EscapeResult escapeResultAt(Point const& point) const;
    /// The places that a point goes through, itself first, at most `length` of them; ends where it has gone far away.
    std::vector<Point> orbitOf(Point const& point, int length) const;

    /// The point in the middle of the picture that is not magnified, and half the height of that picture.
    Point home() const;
    double homeHalfHeight() const;
    /// The point that a magnification goes to. There is always something to see.
    Point focus() const;

private:
    Point step(Point const& place, Point const& point) const;
    EscapeResult escape(Point const& point) const;
    EscapeResult descend(Point const& point) const;

    FractalSettings::Formula const formula_;
    int const iterations_;
    bool const smooth_;
};

} // namespace Fractal
