#pragma once

#include <parameters/rows/BoxFrame.hpp>
#include <QGroupBox>
#include <tessera/Export.hpp>

namespace Talo {

/// The frame around the rows of a section. One with a title can be folded: a click on the title asks for it. The box
/// only shows the state; the form hides the rows. User-interface thread.
class TALO_EXPORT SectionBox : public QGroupBox {
    Q_OBJECT

public:
    /// An open box.
    explicit SectionBox(QString const& title, QWidget* parent = nullptr);
    ~SectionBox() override;

    /// Whether the arrow says that the section is folded.
    bool isFolded() const { return isFolded_; }
    /// Shows an arrow that says whether the section is folded.
    void setFolded(bool folded);
    /// The height of a folded box, in pixels.
    int foldedHeight() const;

signals:
    /// The title was clicked.
    void foldRequested(bool folded);
    /// A menu for the section is wanted at this place of the screen.
    void menuRequested(QPoint const& place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool isOnTitle(QPoint const& place) const;
    void paintTitle(QPainter& painter, QStyleOptionGroupBox const& option) const;

    bool isFolded_ = false;
    bool isPressed_ = false;
    BoxFrame frame_;
};

} // namespace Talo
