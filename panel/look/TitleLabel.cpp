#include <panel/look/TitleLabel.hpp>

namespace Panel {

TitleLabel::TitleLabel(QString const& text, double scale, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    auto* const look = new Talo::ParentLook(*this);
    auto const follow = [this, look, scale] {
        auto bold = look->scaledFont(scale);
        bold.setBold(true);
        setFont(bold);
    };
    connect(look, &Talo::ParentLook::changed, this, follow);
    follow();
}

TitleLabel::~TitleLabel() = default;

} // namespace Panel
