#pragma once

namespace Kolt {

/// The interval of floating-point numbers that a control with integer positions represents: position 0 is `min`, the
/// last one `max`, and the others lie between them at equal distances. Every field may have any value, infinities and
/// NaN included: a position is then saturated to the range of int and 0 for NaN. While `min` and `max` are finite,
/// every value of the interval is, also where it is wider than the largest double. Any thread; prints nothing.
struct FloatInterval {
    double min = 0.0;       ///< lower end
    double max = 1.0;       ///< upper end
    double delta = 0.001;   ///< how far one step of the control moves the value
    int steps = 1000000000; ///< the number of positions used where the interval is widened or narrowed

    /// The number of the last position, at least 1: how many steps of `delta` the interval holds, and one more.
    int lastPosition() const;
    /// The value at a position, never outside the interval.
    double valueAt(int position) const;
    /// The position nearest to a value. Values outside the interval have positions beyond the ends.
    int positionOf(double value) const;
    /// The position at a fraction (0 to 1) of the way from the first position to the last.
    int positionAtFraction(double fraction) const;
    /// The position at a fraction of the width of the interval.
    int positionAtShare(double share) const;

    /// Sets `delta` so that a number of positions, of which the whole part counts, covers the interval.
    void setResolution(double positions);
    /// Doubles `delta`, up to the width of the interval.
    void coarsen();
    /// Halves `delta`, down to 1e-8 of the width of the interval.
    void refine();
    /// Makes the interval twice as wide, or half as wide, with `centre` in its middle and `steps` positions. Gives the
    /// middle position.
    int widen(double centre);
    int narrow(double centre);

private:
    /// Centres the interval, with `steps` positions, and lets it reach a multiple of its width to both sides. Ends that
    /// became too large for a double stop at the largest one. Gives the middle position.
    int resize(double centre, double reach);
    /// The width, multiplied by a power of two so that it is finite where both ends are.
    double scaledWidth() const;
};

} // namespace Kolt
