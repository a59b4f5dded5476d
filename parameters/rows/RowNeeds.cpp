#include <parameters/rows/RowNeeds.hpp>

#include <QLayout>
#include <QWidget>

namespace Talo {

RowNeeds RowNeeds::of(QWidget const& row, QWidget const* editor, int nameWidth) {
    RowNeeds needs;
    auto* const layout = row.layout();
    needs.nameWidth = nameWidth;
    needs.height = layout->hasHeightForWidth() ? layout->heightForWidth(row.width()) : 0;
    needs.hint = layout->sizeHint();
    needs.least = layout->minimumSize();
    needs.most = layout->maximumSize();
    if (!editor)
        return needs;
    needs.editorHint = editor->sizeHint();
    needs.editorLeast = editor->minimumSizeHint();
    needs.editorLeastLimit = editor->minimumSize();
    needs.editorMostLimit = editor->maximumSize();
    return needs;
}

} // namespace Talo
