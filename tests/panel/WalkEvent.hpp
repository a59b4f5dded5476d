#pragma once

#include <QString>
#include <string>
#include <vector>

/// One event of a random walk. A walk is a list of them; what an event does depends on its own number and on the state
/// of the panel alone, so events can be taken out of a walk without changing what the others choose.
struct WalkEvent {
    enum class Kind {
        Act,  ///< one act of a user or of the host
        Rest, ///< the panel comes to rest and is checked
        Back  ///< all steps are undone and redone, and the network is opened again
    };

    Kind kind = Kind::Act;
    /// Of an act: the seed of its choices.
    unsigned seed = 0;
};

using WalkEvents = std::vector<WalkEvent>;

/// The walk of a seed: `acts` acts with rests between them. It ends with a rest, and with a check of the steps.
WalkEvents walkOfSeed(unsigned seed, int acts);

/// The line of an event in a log, "act SEED", "rest" or "back". What follows in a log says what the act did.
std::string lineOf(WalkEvent const& event);

/// Reads a log, of which the last line may be incomplete. Empty if the file cannot be read or has another line; the
/// reason is in `error`.
WalkEvents readWalk(QString const& file, QString* error);

/// Writes the lines of a walk; false if the file cannot be written.
bool writeWalk(QString const& file, WalkEvents const& events);
