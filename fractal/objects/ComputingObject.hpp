#pragma once

#include <fractal/engine/FractalSettings.hpp>
#include <lattice/Object.hpp>

namespace Fractal {

/// An object that has a part in computing a picture. It finds its parameters by their names and reads what they hold at
/// the moment; a parameter that is missing, or of another type than expected, leaves what is used where a network says
/// nothing. User-interface thread. Prints nothing.
class ComputingObject : public Kolt::VObject {
public:
    explicit ComputingObject(std::string const& name);
    ~ComputingObject() override;

    /// Puts what the object's parameters hold in a pool into the settings.
    virtual void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const = 0;
    /// Reads the files that the settings need and that were not read yet, and puts what they hold into the settings.
    /// Most objects read none.
    virtual void readFiles(FractalSettings& settings, Kolt::PoolPtr const& pool);
    /// Whether the object's parameters change what a picture looks like.
    virtual bool shapesPicture() const;

protected:
    /// The value that one of the object's parameters has in the pool, or behind the pool; null when there is none.
    Kolt::ValuePtr value(char const* parameter, Kolt::PoolPtr const& pool) const;

    /// The T that a parameter holds.
    template <typename T>
    T read(char const* parameter, Kolt::PoolPtr const& pool, T const& otherwise) const {
        return Kolt::valueOr(value(parameter, pool), otherwise);
    }
    /// What a parameter of the type T holds, as text; empty where it does not hold a T.
    template <typename T>
    QString readText(char const* parameter, Kolt::PoolPtr const& pool) const {
        auto const found = value(parameter, pool);
        auto const* const typed = Kolt::typedValue<T>(found.get());
        return typed ? QString::fromStdString(typed->Text()) : QString();
    }
};

/// The value object that is effective in a pool; null for a null parameter.
Kolt::ValuePtr effectiveValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// Writes a value as the host does: everybody is told, and the age stamp is renewed. Nothing happens for a parameter
/// that is null or of another type.
template <typename T>
void writeValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool, T const& value) {
    if (parameter && Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr))
        Kolt::markValueChanged(*parameter, pool);
}

} // namespace Fractal
