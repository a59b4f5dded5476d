#include <fractal/objects/FormulaObject.hpp>

#include <bramble/Enum.hpp>
#include <fractal/objects/EnumNames.hpp>

namespace Fractal {

FormulaObject::FormulaObject(std::string const& name) : ComputingObject(name) {}

FormulaObject::~FormulaObject() = default;

void FormulaObject::applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const {
    using Formula = FractalSettings::Formula;
    settings.formula = chosen(readText<Kolt::Enum>("kind", pool), settings.formula,
                              {{"Mandelbrot", Formula::Mandelbrot},
                               {"Julia", Formula::Julia},
                               {"Burning ship", Formula::BurningShip},
                               {"Newton", Formula::Newton}});
    settings.iterations = read("iterations", pool, settings.iterations);
    settings.quality = read("quality", pool, settings.quality);
    settings.symmetry = read("symmetry", pool, settings.symmetry);
    settings.zoom = read("zoom", pool, settings.zoom);
    settings.contrast = read("contrast", pool, settings.contrast);
    settings.rotation = read("rotation", pool, settings.rotation);
    settings.juliaReal = read("constant real", pool, settings.juliaReal);
    settings.juliaImaginary = read("constant imaginary", pool, settings.juliaImaginary);
    settings.smooth = read("smooth", pool, settings.smooth);
}

} // namespace Fractal
