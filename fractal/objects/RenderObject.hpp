#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Holds the action that starts the computing, and shows progress and status. Its parameters: `start` (action),
/// `progress` (info) and `status` (status).
class RenderObject : public ComputingObject {
public:
    explicit RenderObject(std::string const& name);
    ~RenderObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    bool shapesPicture() const override;

    /// Whether the parameter is the action that starts the computing.
    bool isStart(Kolt::ParameterPtr const& parameter) const;
    /// Writes what was computed to `progress`.
    void showProgress(QString const& text, Kolt::PoolPtr const& pool) const;
};

} // namespace Fractal
