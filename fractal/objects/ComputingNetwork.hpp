#pragma once

#include <fractal/objects/ComputingObject.hpp>
#include <network/Network.hpp>

namespace Fractal {

/// The objects of a network that compute. It refers to the network, which must outlive it. User-interface thread.
class ComputingNetwork {
public:
    explicit ComputingNetwork(Talo::Network const& network);

    /// Whether there is something to compute: a formula.
    bool computes() const;
    /// What all objects say together, in a pool, within the ranges.
    FractalSettings settings(Kolt::PoolPtr const& pool) const;

    /// The objects of a class, in the order of the network. They live as long as the network does.
    template <typename T>
    std::vector<T*> all() const {
        std::vector<T*> found;
        for (auto const& object : network_.objects()) {
            if (auto* const typed = dynamic_cast<T*>(object.get()))
                found.push_back(typed);
        }
        return found;
    }

private:
    Talo::Network const& network_;
};

} // namespace Fractal
