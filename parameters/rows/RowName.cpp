#include <parameters/rows/RowName.hpp>

#include <parameters/rows/SmallLabel.hpp>
#include <QStyle>
#include <utility>

namespace Talo {

namespace {

// In pixels, between a name and its dot, and between the name of a vector and that of its first component.
constexpr int indicatorDistance = 2;
constexpr int componentDistance = 12;

// Above and below, in pixels.
constexpr int margin = 4;

} // namespace

RowName::RowName(QWidget& row) : row_(row), label_(new NameLabel(&row)) {}

RowName::~RowName() = default;

QString RowName::note() const {
    return noteLabel_ ? noteLabel_->text() : QString();
}

void RowName::setName(QString const& name) {
    if (!isComponent_)
        label_->setName(name);
}

void RowName::setComponent(QString const& component, QString const& vector) {
    if (!std::exchange(isComponent_, true)) {
        width_ = -1;
        delete std::exchange(noteLabel_, nullptr);
    }
    label_->setName(component);
    if (vector.isEmpty()) {
        delete std::exchange(vectorLabel_, nullptr);
        return;
    }
    if (!vectorLabel_) {
        vectorLabel_ = new NameLabel(&row_);
        vectorLabel_->show();
    }
    vectorLabel_->setName(vector);
}

void RowName::setNote(QString const& note) {
    auto const shown = isComponent_ && !vectorLabel_ ? QString() : note;
    if (shown.isEmpty() && !noteLabel_)
        return;
    if (!noteLabel_)
        noteLabel_ = new SmallLabel(&row_);
    noteLabel_->setText(shown);
    noteLabel_->setVisible(!shown.isEmpty());
}

void RowName::setDefault(QString const& parameterName, QString const& defaultText) {
    if (!indicator_) {
        indicator_ = new ModifiedIndicator(&row_);
        indicator_->hide();
        // It keeps its room from now on.
        label_->updateGeometry();
    }
    indicator_->setDefault(parameterName, defaultText);
}

void RowName::showModified() {
    indicator_->show();
}

void RowName::hideModified() {
    if (!indicator_)
        return;
    indicator_->hide();
}

int RowName::columnNeed() const {
    int const noteWidth = note().isEmpty() ? 0 : noteLabel_->sizeHint().width();
    if (vectorLabel_)
        return qMax(vectorLabel_->wholeWidth(), noteWidth);
    int const nameWidth = label_->wholeWidth() + indicatorDistance + ModifiedIndicator::side(*label_);
    return isComponent_ ? 0 : qMax(nameWidth, noteWidth);
}

int RowName::vectorWidth(int column) {
    return column + componentDistance;
}

int RowName::vectorWidth() const {
    return vectorLabel_ ? vectorLabel_->minimumWidth() + indicatorDistance : 0;
}

void RowName::setColumnWidth(int width) {
    if (vectorLabel_) {
        vectorLabel_->setFixedWidth(vectorWidth(width) - indicatorDistance);
        vectorLabel_->shortenTo(width);
    } else if (!isComponent_) {
        label_->shortenTo(width - indicatorDistance - ModifiedIndicator::side(*label_));
        if (std::exchange(width_, width) != width)
            label_->updateGeometry();
    }
}

bool RowName::hasNote() const {
    return noteLabel_ && !noteLabel_->isHidden();
}

int RowName::indicatorRoom() const {
    // The editor of a component stays in its place when the dot comes.
    return indicator_ || isComponent_ ? indicatorDistance + ModifiedIndicator::side(*label_) : 0;
}

int RowName::lineHeight() const {
    int const height = label_->sizeHint().height();
    return indicator_ ? qMax(height, indicator_->sizeHint().height()) : height;
}

QSize RowName::sizeHint() const {
    auto const note = hasNote() ? noteLabel_->sizeHint() : QSize(0, 0);
    int const named = label_->sizeHint().width() + indicatorRoom();
    if (isComponent_) {
        // The note is below the vector's name, and the component's name beside both.
        int const vectorHeight = vectorLabel_ ? vectorLabel_->sizeHint().height() + note.height() : 0;
        return {vectorWidth() + named, 2 * margin + qMax(lineHeight(), vectorHeight)};
    }
    return {width_ < 0 ? qMax(named, note.width()) : width_, 2 * margin + lineHeight() + note.height()};
}

QSize RowName::maximumSize() const {
    return {sizeHint().width(), QLAYOUTSIZE_MAX};
}

void RowName::setGeometry(QRect const& geometry) {
    // As high as it needs, where the row wants it.
    geometry_ = {geometry.left(), geometry.top(), geometry.width(), qMin(geometry.height(), sizeHint().height())};
    if (!(alignment() & Qt::AlignTop))
        geometry_.moveTop(geometry.top() + (geometry.height() - geometry_.height()) / 2);
    arrange(geometry_.adjusted(0, margin, 0, -margin));
}

void RowName::arrange(QRect const& contents) {
    int const noteHeight = hasNote() ? noteLabel_->sizeHint().height() : 0;
    int const vectorEnd = contents.left() + vectorWidth();
    // What is in the line of the name: beside the editor, also where a note is below the name of the vector.
    QRect const line(vectorEnd, contents.top(), contents.right() + 1 - vectorEnd,
                     contents.height() - (isComponent_ ? 0 : noteHeight));
    // Alone it takes all of the width, as most names do.
    bool const isAlone = !isComponent_ && !indicator_ && !noteLabel_;
    int const most = qMax(0, line.width() - indicatorRoom());
    int const nameWidth = isAlone ? line.width() : qMin(most, label_->sizeHint().width());
    place(label_, {line.left(), line.top(), nameWidth, line.height()});
    if (indicator_) {
        auto const size = indicator_->sizeHint();
        place(indicator_,
              {QPoint(line.left() + nameWidth + indicatorDistance, line.top() + (line.height() - size.height()) / 2),
               size});
    }
    if (vectorLabel_)
        place(vectorLabel_,
              {contents.left(), contents.top(), vectorLabel_->minimumWidth(), contents.height() - noteHeight});
    int const noteWidth = vectorLabel_ ? vectorLabel_->minimumWidth() : contents.width();
    if (noteHeight > 0)
        place(noteLabel_, {contents.left(), contents.bottom() + 1 - noteHeight, noteWidth, noteHeight});
}

void RowName::place(QWidget* widget, QRect const& leftToRight) const {
    widget->setGeometry(QStyle::visualRect(row_.layoutDirection(), geometry_, leftToRight));
}

} // namespace Talo
