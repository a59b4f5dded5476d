#include <parameters/rows/RowName.hpp>

#include <parameters/rows/SmallLabel.hpp>
#include <QGridLayout>
#include <utility>

namespace Talo {

namespace {

// In pixels, between a name and its dot, and between the name of a vector and that of its first component.
constexpr int indicatorDistance = 2;
constexpr int componentDistance = 12;

enum Column { VectorColumn, NameColumn, IndicatorColumn, RestColumn, ColumnCount };

} // namespace

RowName::RowName(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)), label_(new NameLabel(this)) {
    grid_->setContentsMargins(0, 4, 0, 4);
    grid_->setHorizontalSpacing(indicatorDistance);
    grid_->setVerticalSpacing(0);
    // Alone it takes all of the width, as most names do.
    grid_->addWidget(label_, 0, NameColumn);
}

RowName::~RowName() = default;

QString RowName::note() const {
    return noteLabel_ ? noteLabel_->text() : QString();
}

void RowName::setName(QString const& name) {
    if (!isComponent_)
        label_->setName(name);
}

void RowName::leaveRestEmpty() {
    grid_->setColumnStretch(RestColumn, 1);
}

void RowName::setComponent(QString const& component, QString const& vector) {
    leaveRestEmpty();
    if (!std::exchange(isComponent_, true)) {
        // Beside the editor, also where a note is below the name of the vector.
        grid_->removeWidget(label_);
        grid_->addWidget(label_, 0, NameColumn, 2, 1);
        delete std::exchange(noteLabel_, nullptr);
    }
    label_->setName(component);
    keepIndicatorRoom();
    if (vector.isEmpty()) {
        delete std::exchange(vectorLabel_, nullptr);
        return;
    }
    if (!vectorLabel_) {
        vectorLabel_ = new NameLabel(this);
        grid_->addWidget(vectorLabel_, 0, VectorColumn);
        vectorLabel_->show();
    }
    vectorLabel_->setName(vector);
}

void RowName::setNote(QString const& note) {
    auto const shown = isComponent_ && !vectorLabel_ ? QString() : note;
    if (shown.isEmpty() && !noteLabel_)
        return;
    if (!noteLabel_) {
        noteLabel_ = new SmallLabel(this);
        leaveRestEmpty();
        if (isComponent_)
            grid_->addWidget(noteLabel_, 1, VectorColumn);
        else
            grid_->addWidget(noteLabel_, 1, NameColumn, 1, ColumnCount - NameColumn);
    }
    noteLabel_->setText(shown);
    noteLabel_->setVisible(!shown.isEmpty());
}

void RowName::setDefault(QString const& parameterName, QString const& defaultText) {
    if (!indicator_) {
        indicator_ = new ModifiedIndicator(this);
        grid_->addWidget(indicator_, 0, IndicatorColumn, isComponent_ ? 2 : 1, 1);
        indicator_->hide();
        keepIndicatorRoom();
        leaveRestEmpty();
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

void RowName::keepIndicatorRoom() {
    if (!isComponent_)
        return;
    // An empty column has no distance to the others.
    bool const isEmpty = !indicator_;
    grid_->setColumnMinimumWidth(IndicatorColumn, ModifiedIndicator::side(*label_) + (isEmpty ? indicatorDistance : 0));
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
        setFixedWidth(width);
        label_->shortenTo(width - indicatorDistance - ModifiedIndicator::side(*label_));
    }
}

} // namespace Talo
