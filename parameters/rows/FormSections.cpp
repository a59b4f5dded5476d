#include <parameters/rows/FormSections.hpp>

#include <parameters/rows/SectionBox.hpp>
#include <utility>

namespace Talo {

namespace {

// In pixels.
constexpr QMargins sectionMargins(12, 8, 12, 8);

} // namespace

FormSections::FormSections(QWidget& content, RowLayout& layout, QStringList const& titles, QObject* parent)
    : QObject(parent),
      content_(content),
      layout_(layout),
      titles_(titles),
      boxes_(static_cast<std::size_t>(titles.size())) {
    measure();
}

FormSections::~FormSections() = default;

SectionBox* FormSections::box(std::size_t section) {
    auto*& made = boxes_[section];
    if (made)
        return made;
    auto const& title = titles_.at(static_cast<int>(section));
    made = new SectionBox(title, &content_);
    made->setFolded(layout_.isFolded(section));
    connect(made, &SectionBox::foldRequested, this, [this, title](bool folded) { fold(title, folded); });
    connect(made, &SectionBox::menuRequested, this,
            [this, title](QPoint const& place) { emit menuRequested(title, place); });
    // The form watches what is added to its content.
    made->installEventFilter(parent());
    made->show();
    return made;
}

void FormSections::measure() {
    SectionBox titled(QStringLiteral("X"));
    SectionBox plain{QString()};
    titled.ensurePolished();
    plain.ensurePolished();
    margins_ = titled.contentsMargins() + sectionMargins;
    auto const withoutTitle = plain.contentsMargins() + sectionMargins;
    for (std::size_t section = 0; section < boxes_.size(); ++section) {
        auto const& margins = titles_.at(static_cast<int>(section)).isEmpty() ? withoutTitle : margins_;
        layout_.setSectionMargins(section, {margins.top(), margins.bottom(), titled.foldedHeight()});
    }
}

void FormSections::arrange(int left, int width, int top, int bottom) {
    for (std::size_t section = 0; section < boxes_.size(); ++section) {
        int const height = layout_.sectionHeight(section);
        int const place = layout_.sectionTop(section);
        // That of an open section is made with its first row.
        bool const isSeen = layout_.isFolded(section) && height > 0 && place < bottom && place + height > top;
        auto* const made = isSeen ? box(section) : boxes_[section];
        if (!made)
            continue;
        made->setVisible(height > 0);
        made->setGeometry(left, place, width, height);
    }
}

QStringList FormSections::folded() const {
    auto titles = folded_.values();
    titles.sort();
    return titles;
}

void FormSections::setFolded(QStringList const& titles) {
    folded_ = {titles.begin(), titles.end()};
    updateLayout();
}

void FormSections::foldAll(bool folded) {
    folded_ = folded ? QSet<QString>(titles_.begin(), titles_.end()) : QSet<QString>();
    folded_.remove(QString());
    updateLayout();
    emit foldChanged();
}

bool FormSections::setAllOpen(bool open) {
    if (std::exchange(allOpen_, open) == open)
        return false;
    updateLayout();
    return true;
}

void FormSections::fold(QString const& title, bool folded) {
    if (folded)
        folded_.insert(title);
    else
        folded_.remove(title);
    updateLayout();
    emit foldChanged();
}

void FormSections::updateLayout() {
    for (std::size_t section = 0; section < boxes_.size(); ++section) {
        bool const isFolded = !allOpen_ && folded_.contains(titles_.at(static_cast<int>(section)));
        layout_.setFolded(section, isFolded);
        if (boxes_[section])
            boxes_[section]->setFolded(isFolded);
    }
}

} // namespace Talo
