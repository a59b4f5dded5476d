#pragma once

#include <fractal/objects/ComputingObject.hpp>
#include <network/Network.hpp>

namespace Fractal {

/// The objects of a network that take part in computing a picture. The network must outlive this object. User-interface
/// thread.
class ComputingNetwork {
public:
    explicit ComputingNetwork(Talo::Network const& network);

    /// Whether the network computes a picture: it has a formula.
    bool computes() const;
    /// The settings that all objects together define in a pool, within their ranges.
    FractalSettings settings(Kolt::PoolPtr const& pool) const;

    /// The objects of type T, in the order of the network, which owns them.
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
