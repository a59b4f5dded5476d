#pragma once

#include <limits>
#include <QString>

namespace MoreInputs {

/// How the number of a field is limited, stepped and written. A range without sense, as one from 3 to 2, limits
/// nothing. Any thread.
struct NumberScale {
    /// The number may not leave these bounds.
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    /// Steps and drags stay between these bounds; a typed number need not.
    double softMinimum = -std::numeric_limits<double>::infinity();
    double softMaximum = std::numeric_limits<double>::infinity();
    /// Steps multiply instead of adding, where the number is positive.
    bool isLogarithmic = false;
    /// Only whole numbers.
    bool isWhole = false;
    /// What one step adds; 0: it is found from the range, or from the number itself.
    double step = 0;
    /// The number of decimals that are shown; negative: as many as it takes.
    int decimals = -1;

    /// Whether the number is not outside the bounds that it may not leave.
    bool contains(double number) const;
    /// The number after some steps, which `factor` makes finer or coarser, within the soft bounds. A number outside of
    /// them is not moved further away.
    double stepped(double number, int steps, double factor) const;
    /// The bounds of steps from a number on.
    double lowest(double number) const;
    double highest(double number) const;
    QString text(double number) const;

private:
    double stepAt(double number) const;
};

} // namespace MoreInputs
