#include <parameters/commands/UndoActions.hpp>

#include <network/PlainText.hpp>

namespace Talo {

namespace {

void describe(QAction& action, QString const& name, Kolt::UndoHistory::Step const& step,
              ParameterNaming const& naming) {
    // An edit after an edit leaves nothing to redo, as before.
    if (!step && !action.isEnabled() && action.text() == name)
        return;
    action.setEnabled(step != nullptr);
    auto const what = step ? undoText(*step, naming) : QString();
    auto const with = [&](QString const& shownName, QString const& shownWhat) {
        return step ? UndoActions::tr("%1: %2").arg(shownName, shownWhat) : shownName;
    };
    // A tool button has no room for the step; its tool tip names it.
    action.setIconText(QString(name).remove(QLatin1Char('&')));
    // One ampersand marks the key, two are one.
    action.setText(with(name, QString(what).replace(QLatin1Char('&'), QLatin1String("&&"))));
    action.setToolTip(plainToolTip(with(action.iconText(), what)));
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
    connect(filter_.get(), &InputFilter::languageChanged, this, &UndoActions::update);
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
    describe(*undoAction_, tr("&Undo"), history_.nextUndo(), naming_);
    describe(*redoAction_, tr("&Redo"), history_.nextRedo(), naming_);
}

} // namespace Talo
