#include <parameters/commands/UndoActions.hpp>

namespace Talo {

namespace {

QString actionText(QString const& name, Kolt::UndoHistory::Step const& step, ParameterNaming const& naming) {
    if (!step)
        return name;
    return UndoActions::tr("%1: %2").arg(name, undoText(*step, naming).replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace

UndoActions::UndoActions(Kolt::UndoHistory& history, QObject* parent)
    : QObject(parent),
      history_(history),
      filter_(InputFilter::shared()),
      undoAction_(new QAction(this)),
      redoAction_(new QAction(this)) {
    undoAction_->setObjectName(QStringLiteral("undo"));
    undoAction_->setShortcuts(QKeySequence::Undo);
    connect(undoAction_, &QAction::triggered, this, &UndoActions::undo);
    redoAction_->setObjectName(QStringLiteral("redo"));
    redoAction_->setShortcuts(QKeySequence::Redo);
    connect(redoAction_, &QAction::triggered, this, &UndoActions::redo);
    // A tool button has no room for the step; its tool tip names it.
    undoAction_->setIconText(tr("&Undo").remove(QLatin1Char('&')));
    redoAction_->setIconText(tr("&Redo").remove(QLatin1Char('&')));
    connection_ = history_.addListener([this] {
        update();
        emit historyChanged();
    });
    update();
}

UndoActions::~UndoActions() = default;

void UndoActions::setNaming(ParameterNaming naming) {
    naming_ = std::move(naming);
    update();
}

Kolt::UndoHistory::Step UndoActions::undoStep() {
    filter_->gestures().end();
    auto const step = history_.nextUndo();
    if (!step)
        return nullptr;
    auto const text = undoText(*step, naming_);
    if (history_.undo())
        return step;
    emit refused(tr("Can no longer be undone: %1").arg(text));
    return nullptr;
}

Kolt::UndoHistory::Step UndoActions::redoStep() {
    filter_->gestures().end();
    auto const step = history_.nextRedo();
    if (!step)
        return nullptr;
    auto const text = undoText(*step, naming_);
    if (history_.redo())
        return step;
    emit refused(tr("Can no longer be redone: %1").arg(text));
    return nullptr;
}

void UndoActions::undo() {
    if (auto const step = undoStep())
        emit restored(*step);
}

void UndoActions::redo() {
    if (auto const step = redoStep())
        emit restored(*step);
}

void UndoActions::goToState(int steps) {
    auto const done = static_cast<int>(history_.steps().size());
    Kolt::UndoHistory::Step last;
    for (int count = done; count > steps; --count)
        if (auto const step = undoStep())
            last = step;
    for (int count = done; count < steps; ++count)
        if (auto const step = redoStep())
            last = step;
    if (last)
        emit restored(*last);
}

void UndoActions::update() {
    auto const undoStep = history_.nextUndo();
    undoAction_->setEnabled(undoStep != nullptr);
    undoAction_->setText(actionText(tr("&Undo"), undoStep, naming_));
    auto const redoStep = history_.nextRedo();
    redoAction_->setEnabled(redoStep != nullptr);
    redoAction_->setText(actionText(tr("&Redo"), redoStep, naming_));
}

} // namespace Talo
