#include <parameters/commands/UndoStackAdapter.hpp>

#include <algorithm>
#include <QPointer>
#include <QScopedValueRollback>

namespace Talo {

class UndoStackAdapter::Command : public QUndoCommand {
public:
    Command(UndoStackAdapter& adapter, QString const& text) : QUndoCommand(text), adapter_(&adapter) {}

    void undo() override {
        apply([](Kolt::UndoHistory& history) { history.undo(); });
    }
    void redo() override {
        // The stack redoes a command when it is pushed; the step is done already.
        if (std::exchange(isNew_, false))
            return;
        apply([](Kolt::UndoHistory& history) { history.redo(); });
    }

private:
    template <typename Action>
    void apply(Action const& action) {
        if (!adapter_)
            return;
        QScopedValueRollback const guard(adapter_->isApplying_, true);
        action(adapter_->history_);
        adapter_->last_ = adapter_->history_.nextUndo();
    }

    QPointer<UndoStackAdapter> const adapter_;
    bool isNew_ = true;
};

UndoStackAdapter::UndoStackAdapter(Kolt::UndoHistory& history, QUndoStack& stack, QObject* parent)
    : QObject(parent), history_(history), stack_(stack), last_(history.nextUndo()) {
    connection_ = history_.addListener([this] { historyChanged(); });
}

UndoStackAdapter::~UndoStackAdapter() = default;

void UndoStackAdapter::historyChanged() {
    if (isApplying_)
        return;
    if (history_.steps().empty() && history_.undoneSteps().empty()) {
        last_.reset();
        stack_.clear();
        return;
    }
    // The step of an open macro still changes, and its text with it.
    if (history_.isMacroOpen())
        QMetaObject::invokeMethod(this, &UndoStackAdapter::historyChanged, Qt::QueuedConnection);
    else
        pushClosedSteps();
}

void UndoStackAdapter::pushClosedSteps() {
    auto const steps = history_.steps();
    auto const known = std::find(steps.rbegin(), steps.rend(), last_);
    // A full history may have forgotten the last one; then all of its steps are new to the stack.
    for (auto step = known.base(); step != steps.end(); ++step) {
        last_ = *step;
        stack_.push(new Command(*this, undoText(**step, naming_)));
    }
}

} // namespace Talo
