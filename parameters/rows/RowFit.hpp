#pragma once

#include <parameters/rows/EditorCell.hpp>
#include <parameters/rows/EditorScroller.hpp>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

namespace Talo {

/// The least width of a row in which its open editor can be used, in pixels.
int leastRowWidth(EditorCell const& cell, QPointer<EditorScroller> const& scroller, QHBoxLayout const& layout);

/// A label for the unit behind an editor; it belongs to the caller.
QLabel* makeUnitLabel();

/// Limits the editor in the second place of a row's layout to what a row of this width, in pixels, leaves it. One that
/// cannot become so narrow is put into a scroller, where it stays. Nothing for a closed cell.
void fitEditor(EditorCell& cell, QPointer<EditorScroller>& scroller, QHBoxLayout& layout, int width);

/// Hides the scroller, if there is one, and deletes it as soon as control returns to the event loop.
void dropScroller(QPointer<EditorScroller>& scroller);

} // namespace Talo
