#include <panel/gallery/GalleryRow.hpp>

#include <parameters/rows/MutedLabel.hpp>
#include <QHBoxLayout>

namespace Panel {

namespace {

// In characters.
constexpr int leastEditorWidth = 22;

QString preferenceList(Kolt::VCreationPreferences const& preferences) {
    QStringList names;
    for (auto const& name : preferences.names())
        names << QString::fromStdString(name);
    return names.join(QLatin1String(", "));
}

} // namespace

GalleryRow::GalleryRow(Kolt::InputRegistry::Entry const& entry, Kolt::ParameterPtr const& parameter,
                       Kolt::ValuePoolSource& pools, QWidget* parent)
    : QWidget(parent),
      creatorName_(entry.creator.strong() ? entry.creator.strong()->Name() : std::string()),
      valueType_(entry.valueType),
      creator_(entry.creator),
      parameter_(parameter),
      editors_{{{parameter, pools}, {parameter, pools}}},
      rawValue_(new Talo::RawValueLabel(parameter, pools, this)),
      counter_(new NotificationCounter(parameter, this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    names_ = makeNames(entry);
    layout->addWidget(names_);
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        cells_.at(index) = makeCell(index);
        layout->addWidget(cells_.at(index), 1);
    }
    layout->addWidget(rawValue_);
    rawValue_->setFixedWidth(rawValue_->sizeHint().width());
    layout->addWidget(counter_);

    auto const chosen = editors_.front().choice().creator.strong();
    if (!parameter)
        noteLabel_->setText(tr("Nobody can make a value of this type."));
    else if (chosen != creator_.strong())
        noteLabel_->setText(chosen
                                ? tr("For these preferences %1 is chosen.").arg(QString::fromStdString(chosen->Name()))
                                : tr("No creator is chosen for these preferences."));
    noteLabel_->setVisible(!noteLabel_->text().isEmpty());
}

GalleryRow::~GalleryRow() = default;

QString GalleryRow::note() const {
    return noteLabel_->text();
}

QWidget* GalleryRow::makeNames(Kolt::InputRegistry::Entry const& entry) {
    auto* const names = new QWidget(this);
    auto* const layout = new QVBoxLayout(names);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(0);
    auto* const name = new QLabel(QString::fromStdString(creatorName_), names);
    auto const creator = entry.creator.strong();
    QLabel* const preferences =
        new Talo::MutedLabel(creator ? preferenceList(*creator->preferences()) : QString(), names);
    noteLabel_ = new QLabel(names);
    layout->addStretch(1);
    for (QLabel* const label : {name, preferences, noteLabel_}) {
        label->setTextFormat(Qt::PlainText);
        Talo::alignWithLayout(*label);
        layout->addWidget(label);
    }
    noteLabel_->setWordWrap(true);
    layout->addStretch(1);
    names->setToolTip(QString::fromStdString(entry.valueType).toHtmlEscaped());
    return names;
}

QWidget* GalleryRow::makeCell(std::size_t index) {
    auto* const cell = new QWidget(this);
    auto* const layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    auto& editor = editors_.at(index);
    auto* const widget = editor.open(cell);
    if (!widget)
        return cell;
    auto const name = tr("%1, editor %2").arg(QString::fromStdString(creatorName_)).arg(index + 1);
    widget->setAccessibleName(name);
    auto const parameter = parameter_.strong();
    editor.nameControls(name, parameter && parameter->isEdited());
    // An editor that cannot fill the column is at its beginning; some have a fixed size only once they are shown.
    layout->addWidget(widget, 1);
    layout->addStretch(0);
    return cell;
}

void GalleryRow::showPool() {
    for (auto& editor : editors_)
        editor.showPool();
    rawValue_->refresh();
}

int GalleryRow::nameWidth() const {
    return names_->sizeHint().width();
}

int GalleryRow::editorWidth() const {
    int width = leastEditorWidth * fontMetrics().averageCharWidth();
    for (auto const* const cell : cells_)
        width = qMax(width, cell->minimumSizeHint().width());
    return width;
}

void GalleryRow::setColumnWidths(int name, int editor, int counter) {
    names_->setFixedWidth(name);
    for (auto* const cell : cells_)
        cell->setMinimumWidth(editor);
    rawValue_->setFixedWidth(rawValue_->sizeHint().width());
    counter_->setFixedWidth(counter);
}

} // namespace Panel
