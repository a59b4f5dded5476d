#include <parameters/rows/RowFit.hpp>

#include <parameters/rows/MutedLabel.hpp>

namespace Talo {

namespace {

// In characters: a short number, and one with a slider beside it.
constexpr int leastFieldWidth = 8;
constexpr int leastWidthInRow = 20;

int widthBesideEditor(EditorCell const& cell, QPointer<EditorScroller> const& scroller, QHBoxLayout const& layout) {
    auto const* const editor = cell.widget();
    int width = 0;
    for (int index = 0; index < layout.count(); ++index) {
        auto* const item = layout.itemAt(index);
        bool const isEditor = item->widget() == editor || (scroller && item->widget() == scroller);
        if (!isEditor && !item->isEmpty())
            width += item->minimumSize().width() + layout.spacing();
    }
    return width;
}

} // namespace

int leastRowWidth(EditorCell const& cell, QPointer<EditorScroller> const& scroller, QHBoxLayout const& layout) {
    int const characters = cell.controls().size() > 1 ? leastWidthInRow : leastFieldWidth;
    int const editor = qMax(cell.leastWidth(), characters * cell.widget()->fontMetrics().averageCharWidth());
    return editor + widthBesideEditor(cell, scroller, layout);
}

QLabel* makeUnitLabel() {
    auto* const label = new MutedLabel;
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(0, 4, 0, 4);
    return label;
}

void fitEditor(EditorCell& cell, QPointer<EditorScroller>& scroller, QHBoxLayout& layout, int width) {
    auto* const editor = cell.widget();
    if (!editor)
        return;
    int const available = width - widthBesideEditor(cell, scroller, layout);
    cell.limitWidth(available);
    if (scroller || cell.leastWidth() <= available)
        return;
    int const place = layout.indexOf(editor);
    int const stretch = layout.stretch(place);
    layout.removeWidget(editor);
    scroller = new EditorScroller(editor, layout.parentWidget());
    layout.insertWidget(place, scroller, stretch);
    scroller->show();
}

void dropScroller(QPointer<EditorScroller>& scroller) {
    if (!scroller)
        return;
    scroller->hide();
    scroller->deleteLater();
    scroller = nullptr;
}

} // namespace Talo
