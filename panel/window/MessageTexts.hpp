#pragma once

#include <lattice/Object.hpp>
#include <QFontMetrics>
#include <QWidget>

namespace Panel {

/// The message for an action that was fired in a pool; all three may be null.
QString actionMessage(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

/// The title of a window with a network: the network's title, with the mark of unsaved values behind it, and the name
/// of its file unless they are equal.
QString windowTitleFor(QString const& title, QString const& file);

/// A name of a file or of a user as a menu shows it: in one line that is not too long, and without marked keys.
QString menuText(QString const& text, QFontMetrics const& metrics);

/// Shows what failed and why in a dialog on the window, and returns at once.
void showFailure(QWidget& window, QString const& title, QString const& reason);

} // namespace Panel
