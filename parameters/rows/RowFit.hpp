#pragma once

#include <parameters/rows/EditorCell.hpp>
#include <parameters/rows/EditorScroller.hpp>
#include <QHBoxLayout>
#include <QPointer>

namespace Talo {

/// How much of the width of a row is taken by what stands beside its editor, in pixels.
int widthBesideEditor(EditorCell const& cell, QPointer<EditorScroller> const& scroller, QHBoxLayout const& layout);

/// Limits the editor in the second place of a row's layout to what a row of this width, in pixels, leaves it. One that
/// cannot become so narrow is put into a scroller, where it stays. Nothing for a closed cell.
void fitEditor(EditorCell& cell, QPointer<EditorScroller>& scroller, QHBoxLayout& layout, int width);

/// Hides the scroller, if there is one, and deletes it as soon as control returns to the event loop.
void dropScroller(QPointer<EditorScroller>& scroller);

} // namespace Talo
