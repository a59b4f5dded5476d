#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Defines the texts on a picture. Its parameters: `heading`, `author`, `date` and `legend` (string), `caption`
/// (stringarray).
class TitlesObject : public ComputingObject {
public:
    explicit TitlesObject(std::string const& name);
    ~TitlesObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
};

} // namespace Fractal
