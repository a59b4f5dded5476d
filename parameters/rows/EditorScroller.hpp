#pragma once

#include <QScrollArea>
#include <tessera/Export.hpp>

namespace Talo {

/// Scrolls an editor sideways that cannot become as narrow as its row, such as buttons with long captions. It is as
/// high as the editor. Takes no focus itself. User-interface thread.
class TALO_EXPORT EditorScroller : public QScrollArea {
    Q_OBJECT

public:
    /// Takes the editor over.
    EditorScroller(QWidget* editor, QWidget* parent);
    ~EditorScroller() override;

    /// Always: where the editor has to be scrolled, the scroll bar is below it.
    bool hasHeightForWidth() const override { return true; }
    /// The height of the editor, and of the scroll bar if the editor needs more than this width; in pixels.
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Follows the size that the editor asks for.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool viewportEvent(QEvent* event) override;
};

} // namespace Talo
