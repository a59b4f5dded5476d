#pragma once

class QEvent;
class QWidget;

namespace Talo {

/// Sees an event before its widget does. When a label in a GestureTarget gets another palette, its links get the colour
/// of that: a label keeps the colour with which its text was read.
void followLinkColour(QWidget& widget, QEvent const& event);

} // namespace Talo
