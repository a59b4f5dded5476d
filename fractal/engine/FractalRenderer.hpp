#pragma once

#include <atomic>
#include <fractal/engine/FractalSettings.hpp>
#include <functional>
#include <optional>
#include <QImage>

namespace Fractal {

/// The computed pixels of a picture, without anything drawn over them.
struct FractalPoints {
    QImage image;   ///< with premultiplied alpha
    QSize computed; ///< the number of computed pixels, and the size of the image until it is scaled
    /// For each computed pixel, row by row, the number of steps until its first sample escaped; infinite if it stays.
    std::vector<float> counts;
    /// The fraction of pixels whose first sample stays, 0 to 1.
    double staying = 0;
};

/// Computes the pixels of pictures on several threads. May be used on any thread.
class FractalRenderer {
public:
    /// Called on the thread that calls render(), with the progress in percent, which never decreases. May be empty.
    using Progress = std::function<void(int percent)>;

    /// The number of threads that compute, the calling one included; at least one is used. The result does not depend
    /// on it.
    explicit FractalRenderer(int threads);

    /// Computes all pixels. Empty if the size is empty, if the image cannot be allocated, or when `cancelled` becomes
    /// true, which is checked before every pixel. May throw std::bad_alloc. The settings must have been limited.
    std::optional<FractalPoints> render(FractalSettings const& settings, QSize const& size,
                                        std::atomic<bool> const& cancelled, Progress const& progress = {}) const;

private:
    int const threads_;
};

} // namespace Fractal
