#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Where computing is started, and where it tells of itself. Its parameters: `start` (action), `progress` (info) and
/// `status` (status).
class RenderObject : public ComputingObject {
public:
    explicit RenderObject(std::string const& name);
    ~RenderObject() override;

    /// Adds nothing.
    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    bool shapesPicture() const override;

    /// Whether firing the parameter's action starts the computing.
    bool isStart(Kolt::ParameterPtr const& parameter) const;
    /// Tells in `progress` what was computed.
    void tellProgress(QString const& text, Kolt::PoolPtr const& pool) const;
};

} // namespace Fractal
