#pragma once

#include <QFlags>
#include <qnamespace.h>
#include <vector>

/// A key with those held down with it.
struct Stroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

/// The keys that a random walk presses; some stand there twice, to come more often.
std::vector<Stroke> const& strokes();
/// Those that take longer, for now and then.
std::vector<Stroke> const& rareStrokes();
