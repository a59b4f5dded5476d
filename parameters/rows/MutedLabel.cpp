#include <parameters/rows/MutedLabel.hpp>

#include <QStyle>

namespace Talo {

QColor mutedText(QPalette const& palette) {
    auto const& text = palette.color(QPalette::Active, QPalette::WindowText);
    auto const& ground = palette.color(QPalette::Active, QPalette::Window);
    auto const between = [](int near, int far) { return (2 * near + far) / 3; };
    return {between(text.red(), ground.red()), between(text.green(), ground.green()),
            between(text.blue(), ground.blue())};
}

MutedLabel::MutedLabel(QString const& text, QWidget* parent) : QLabel(text, parent), look_(new ParentLook(*this)) {
    connect(look_, &ParentLook::changed, this, [this] {
        updateColour();
        // A label that never had a text does not notice another font by itself.
        setIndent(indent());
    });
    updateColour();
}

MutedLabel::~MutedLabel() = default;

void MutedLabel::updateColour() {
    // The label's own text colour is the muted one already, so the parent's palette is asked.
    auto const colour = mutedText(look_->palette());
    auto muted = palette();
    if (muted.color(QPalette::Active, QPalette::WindowText) == colour)
        return;
    for (auto const group : {QPalette::Active, QPalette::Inactive}) {
        muted.setColor(group, QPalette::WindowText, colour);
        muted.setColor(group, QPalette::Text, colour);
    }
    setPalette(muted);
}

void alignWithLayout(QLabel& label) {
    label.setAlignment(QStyle::visualAlignment(label.layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute |
                       Qt::AlignVCenter);
}

} // namespace Talo
