#pragma once

#include "WalkEvent.hpp"

#include <functional>

/// Shortens a walk that fails, as long as it fails: leaves out halves first, then ever smaller parts, then single
/// events. `fails` says whether a walk fails; it may take long and is asked about each walk that is tried. The result
/// fails, and does not if any single event is left out. REQUIRES: the walk fails.
WalkEvents shortestThatFails(WalkEvents walk, std::function<bool(WalkEvents const&)> const& fails);

/// Replays the walk in a process of its own, from a file of this name; whether that fails, crashes or takes minutes.
bool failsWhenReplayed(WalkEvents const& walk, QString const& name);

/// Shortens the log of a walk and writes what is left to FILE.short. Returns the reason if that is impossible,
/// otherwise an empty text.
std::string shortenLog(QString const& file);
