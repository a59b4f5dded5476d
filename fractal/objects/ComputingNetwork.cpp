#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/FormulaObject.hpp>

namespace Fractal {

ComputingNetwork::ComputingNetwork(Talo::Network const& network) : network_(network) {}

bool ComputingNetwork::computes() const {
    return !all<FormulaObject>().empty();
}

FractalSettings ComputingNetwork::settings(Kolt::PoolPtr const& pool) const {
    FractalSettings settings;
    for (auto* const object : all<ComputingObject>()) {
        object->applyParameters(settings, pool);
        object->readFiles(settings, pool);
    }
    settings.limit();
    return settings;
}

} // namespace Fractal
