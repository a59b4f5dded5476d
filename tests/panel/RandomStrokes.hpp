#pragma once

#include <QFlags>
#include <qnamespace.h>
#include <vector>

/// A key with its modifiers.
struct Stroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

/// The keys that a random walk presses; some are listed twice because they should be more frequent.
std::vector<Stroke> const& strokes();
/// Keys whose actions are slow, to be pressed rarely.
std::vector<Stroke> const& rareStrokes();
