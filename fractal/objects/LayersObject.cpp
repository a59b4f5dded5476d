#include <bramble/MultipleStringSelection.hpp>
#include <fractal/objects/LayersObject.hpp>
#include <QStringList>

namespace Fractal {

LayersObject::LayersObject(std::string const& name) : ComputingObject(name) {}

LayersObject::~LayersObject() = default;

void LayersObject::applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const {
    auto const overlays = readText<Kolt::VMultipleStringList>("overlays", pool).split(QLatin1Char('\n'));
    settings.axes = overlays.contains(QLatin1String("Axes"));
    settings.grid = overlays.contains(QLatin1String("Grid"));
    settings.escapeCircle = overlays.contains(QLatin1String("Escape circle"));
    settings.orbit = overlays.contains(QLatin1String("Orbit"));
    settings.legend = overlays.contains(QLatin1String("Legend"));

    settings.contours.clear();
    auto const contours = readText<Kolt::VMultipleStringList>("contours", pool).split(QLatin1Char('\n'));
    for (auto const& contour : contours) {
        bool isNumber = false;
        int const level = contour.section(QLatin1Char(' '), -1).toInt(&isNumber);
        if (isNumber)
            settings.contours.push_back(level);
    }
}

} // namespace Fractal
