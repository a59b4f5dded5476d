#pragma once

#include <fractal/objects/RenderObject.hpp>

namespace Fractal {

/// Writes the status of a RenderObject in one pool, on any thread. Made and destroyed on the user-interface thread.
class StatusReport {
public:
    /// Reports nothing.
    StatusReport() = default;
    /// A null object, or one without a status, reports nothing.
    StatusReport(RenderObject const* object, Kolt::PoolPtr const& pool);

    /// Stores a status, which may be rich text, and notifies the parameter's listeners.
    void write(QString const& text) const;

private:
    Kolt::ParameterPtr parameter_;
    Kolt::ValuePtr value_;
    Kolt::PoolPtr pool_;
};

} // namespace Fractal
