#pragma once

#include "WalkEvent.hpp"

#include <ostream>

/// A walk that is to be done.
struct WalkPlan {
    std::string name;
    WalkEvents events;
    /// The file for the log.
    QString log;
    /// Whether the log stays although the walk succeeds.
    bool keepsLog = false;
    /// Whether the network is one of 10,000 parameters; their rows come and go.
    bool isLarge = false;
    /// For how long further walks follow, in minutes.
    int minutes = 0;
    /// Why there are no events; empty otherwise.
    std::string error;
    /// The log that is to be shortened instead; empty for none.
    QString shortened;
};

/// What a failed test says.
inline std::ostream& operator<<(std::ostream& stream, WalkPlan const& plan) {
    return stream << "walk " << plan.name;
}

/// The walks of three seeds and of the seed of the day, with so many acts each, on a display fewer, and a shorter one
/// in a large network. A log whose name has "large" in it is of such a walk. Or what the environment asks for instead:
/// TALO_WALK_SHORTEN, TALO_WALK_REPLAY, TALO_WALK_SEED, TALO_WALK_MINUTES, TALO_WALK_EVENTS. Logs are made in `folder`,
/// or in TALO_WALK_LOGS, where they stay.
std::vector<WalkPlan> walkPlans(int acts, QString const& folder);
