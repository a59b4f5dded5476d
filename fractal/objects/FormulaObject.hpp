#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Defines which formula is computed, and how. Its parameters: `kind` (enum: "Mandelbrot", "Julia", "Burning ship" or
/// "Newton"), `iterations`, `quality` and `symmetry` (int), `zoom`, `contrast` and `rotation` (double), `smooth`
/// (bool). A network that computes a picture has at least one such object; if it has several, the last one counts.
class FormulaObject : public ComputingObject {
public:
    explicit FormulaObject(std::string const& name);
    ~FormulaObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
};

} // namespace Fractal
