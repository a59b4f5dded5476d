#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Defines what is drawn over a picture. Its parameters: `overlays` (multiselection of "Axes", "Grid", "Escape circle",
/// "Orbit" and "Legend") and `contours` (multiselection of texts that end with a number of steps, such as "level 10").
class LayersObject : public ComputingObject {
public:
    explicit LayersObject(std::string const& name);
    ~LayersObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
};

} // namespace Fractal
