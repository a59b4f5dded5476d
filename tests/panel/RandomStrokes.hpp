#pragma once

#include <QFlags>
#include <qnamespace.h>
#include <QString>
#include <vector>

/// A key with its modifiers.
struct Stroke {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
};

/// The keys that a random walk presses; some are listed twice because they should be more frequent.
std::vector<Stroke> const& strokes();
/// What is typed by keys that are not on the list: letters beyond ASCII, a letter that a dead key begins, and the empty
/// text of the dead key itself.
std::vector<QString> const& typedLetters();
/// Keys whose actions are slow, to be pressed rarely.
std::vector<Stroke> const& rareStrokes();
