#pragma once

#include <fractal/engine/Picture.hpp>
#include <QColor>
#include <QImage>

/// Computes small pictures, on one thread by default.
namespace Rendering {

inline Fractal::FractalPoints points(Fractal::FractalSettings const& settings, QSize const& size = {80, 60},
                                     int threads = 1) {
    std::atomic<bool> const cancelled{false};
    auto limited = settings;
    limited.limit();
    return Fractal::FractalRenderer(threads).render(limited, size, cancelled).value();
}

/// A picture with everything that is drawn over its pixels.
inline QImage picture(Fractal::FractalSettings const& settings, QSize const& size = {160, 120}, int coarseness = 1) {
    std::atomic<bool> const cancelled{false};
    Fractal::Picture::RenderRequest const request{settings, size, true, coarseness};
    return Fractal::Picture::compute(request, Fractal::FractalRenderer(1), cancelled).value().image;
}

/// Settings that are computed quickly, with points that stay and points that escape.
inline Fractal::FractalSettings quick() {
    Fractal::FractalSettings settings;
    settings.iterations = 60;
    settings.quality = 1;
    return settings;
}

} // namespace Rendering
