#include <fractal/engine/FractalView.hpp>

#include <algorithm>
#include <cmath>

namespace Fractal {

namespace {

constexpr double pi = 3.14159265358979323846;

double radians(double degrees) {
    return degrees * pi / 180;
}

} // namespace

FractalView::FractalView(FractalSettings const& settings, QSize const& size)
    : middle_(std::max(1, size.width()) / 2.0, std::max(1, size.height()) / 2.0), sector_(radians(settings.symmetry)) {
    FractalFormula const formula(settings);
    double const magnification = std::exp2(settings.zoom);
    scale_ = formula.homeHalfHeight() / middle_.y() / magnification;
    // As the magnification grows, the centre moves towards the focus, so that zooming approaches it without a jump.
    // Below a magnification of 1 the centre does not move.
    auto const away = (formula.home() - formula.focus()) / std::max(1.0, magnification);
    centre_ = formula.focus() + away;
    double const angle = radians(settings.rotation);
    turn_ = {std::cos(angle), std::sin(angle)};
}

FractalView::Point FractalView::mirrored(Point const& offset) const {
    double angle = std::arg(offset);
    if (angle < 0)
        angle += 2 * pi;
    angle = std::fmod(angle, 2 * sector_);
    return std::polar(std::abs(offset), angle > sector_ ? 2 * sector_ - angle : angle);
}

FractalView::Point FractalView::pointAt(double x, double y) const {
    Point offset((x - middle_.x()) * scale_, (middle_.y() - y) * scale_);
    if (sector_ > 0)
        offset = mirrored(offset);
    return centre_ + offset / turn_;
}

QPointF FractalView::placeOf(Point const& point) const {
    auto const offset = (point - centre_) * turn_;
    return {middle_.x() + offset.real() / scale_, middle_.y() - offset.imag() / scale_};
}

} // namespace Fractal
