#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Says what is written on a picture. Its parameters: `heading`, `author`, `date` and `legend` (string), `caption`
/// (stringarray).
class TitlesObject : public ComputingObject {
public:
    explicit TitlesObject(std::string const& name);
    ~TitlesObject() override;

    void contribute(FractalSettings& settings, Kolt::PoolPtr const& pool) override;
};

} // namespace Fractal
