#pragma once

#include <fractal/engine/FractalSettings.hpp>
#include <lattice/Object.hpp>

namespace Fractal {

/// An object that takes part in computing a picture. It finds its parameters by name and reads their current values. A
/// parameter that is missing or has another type leaves the default. User-interface thread. Prints nothing.
class ComputingObject : public Kolt::VObject {
public:
    explicit ComputingObject(std::string const& name);
    ~ComputingObject() override;

    /// Copies the values of the object's parameters in a pool to the settings.
    virtual void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const = 0;
    /// Reads the files that the settings need and that were not read yet, and adds their content to the settings. By
    /// default there are none.
    virtual void readFiles(FractalSettings& settings, Kolt::PoolPtr const& pool);
    /// Whether the object's parameters affect the look of a picture.
    virtual bool shapesPicture() const;

protected:
    /// The value of one of the object's parameters that is effective in the pool; null if there is none.
    Kolt::ValuePtr value(char const* parameter, Kolt::PoolPtr const& pool) const;

    /// The parameter's value of type T; `otherwise` if it has none.
    template <typename T>
    T read(char const* parameter, Kolt::PoolPtr const& pool, T const& otherwise) const {
        return Kolt::valueOr(value(parameter, pool), otherwise);
    }
    /// The parameter's value of type T as text; empty if it has none.
    template <typename T>
    QString readText(char const* parameter, Kolt::PoolPtr const& pool) const {
        auto const found = value(parameter, pool);
        auto const* const typed = Kolt::typedValue<T>(found.get());
        return typed ? QString::fromStdString(typed->Text()) : QString();
    }
};

/// The value object that is effective in a pool; null for a null parameter.
Kolt::ValuePtr effectiveValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// Writes a value as the host does: calls all notifiers and renews the age stamp. Does nothing if the parameter is null
/// or has another type.
template <typename T>
void writeValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool, T const& value) {
    if (parameter && Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr))
        Kolt::markValueChanged(*parameter, pool);
}

} // namespace Fractal
