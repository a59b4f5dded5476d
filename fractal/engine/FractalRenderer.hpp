#pragma once

#include <atomic>
#include <fractal/engine/FractalSettings.hpp>
#include <functional>
#include <optional>
#include <QImage>

namespace Fractal {

/// The points of a picture, without anything drawn over them.
struct FractalPoints {
    QImage image;   ///< with premultiplied alpha
    QSize computed; ///< how many were computed, which is also the size of the image until it is scaled
    /// For each point, row by row, after how many steps its first sample escaped; infinite where it stays.
    std::vector<float> counts;
    /// The share of the points that stay, 0 to 1.
    double staying = 0;
};

/// Computes the points of pictures, on several threads. Any thread may use one.
class FractalRenderer {
public:
    /// Called on the thread that renders, with what is done in percent, which never becomes less. May be empty.
    using Progress = std::function<void(int percent)>;

    /// How many threads work, the one that renders among them; less than one counts as one. The points are the same
    /// whatever the number.
    explicit FractalRenderer(int threads);

    /// Computes all points; nothing when `cancelled` becomes true, which is looked at for every point. The settings
    /// must have been limited.
    std::optional<FractalPoints> render(FractalSettings const& settings, QSize const& size,
                                        std::atomic<bool> const& cancelled, Progress const& progress = {}) const;

private:
    int const threads_;
};

} // namespace Fractal
