#pragma once

#include <parameters/rows/ParentLook.hpp>
#include <QColor>
#include <QLabel>
#include <tessera/Export.hpp>

namespace Talo {

/// The colour for texts of less weight: between the text and its background, and readable on it.
TALO_EXPORT QColor mutedText(QPalette const& palette);

/// A label whose text is muted. It takes the colour from the palette of its parent and follows changes of that palette.
/// User-interface thread.
class TALO_EXPORT MutedLabel : public QLabel {
    Q_OBJECT

public:
    /// A label that shows this text.
    explicit MutedLabel(QString const& text = {}, QWidget* parent = nullptr);
    ~MutedLabel() override;

    /// What the label looks like by its parent.
    ParentLook const& parentLook() const { return *look_; }

private:
    void updateColour();

    ParentLook* const look_;
};

/// Aligns a label's text to the side where lines begin in the layout. A label by itself follows the script of its text,
/// so a title in Latin letters would be at the far side of its column in a layout from right to left.
TALO_EXPORT void alignWithLayout(QLabel& label);

} // namespace Talo
