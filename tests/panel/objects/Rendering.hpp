#pragma once

#include <panel/objects/Picture.hpp>
#include <QColor>
#include <QImage>

/// Small pictures, computed on one thread unless said otherwise.
namespace Rendering {

inline Panel::FractalPoints points(Panel::FractalSettings const& settings, QSize const& size = {80, 60},
                                   int threads = 1) {
    std::atomic<bool> const cancelled{false};
    auto limited = settings;
    limited.limit();
    return Panel::FractalRenderer(threads).render(limited, size, cancelled).value();
}

/// With everything that is drawn over the points.
inline QImage picture(Panel::FractalSettings const& settings, QSize const& size = {160, 120}, int coarseness = 1) {
    std::atomic<bool> const cancelled{false};
    Panel::Picture::Order const order{settings, size, true, coarseness};
    return Panel::Picture::compute(order, Panel::FractalRenderer(1), cancelled).value().image;
}

/// Settings that are quickly computed, and show something of everything.
inline Panel::FractalSettings quick() {
    Panel::FractalSettings settings;
    settings.iterations = 60;
    settings.quality = 1;
    return settings;
}

} // namespace Rendering
