#include <sorrel/InputFrontEnd.hpp>

#include <lattice/ActionNotifier.hpp>
#include <lattice/EditedValue.hpp>
#include <lattice/InputFaults.hpp>
#include <lattice/InputRegistry.hpp>
#include <sorrel/CommitOnDrop.hpp>
#include <sorrel/EditorFaults.hpp>
#include <sorrel/EventLoopDelivery.hpp>
#include <sorrel/QLeaveLineEdit.hpp>
#include <tuple>

namespace Kolt {

namespace {

/// Decouples an editor from the host's pool source, which may be destroyed before the editor.
class TrackedPoolSource : public ValuePoolSource {
public:
    explicit TrackedPoolSource(ValuePoolSource* source) : source_(source) {}
    Tessera::StrongPtr<ValuePoolProvider> getValuePoolProvider() const override {
        auto const source = source_.strong();
        return source ? source->getValuePoolProvider() : nullptr;
    }

private:
    Tessera::WeakPtr<ValuePoolSource> const source_;
};

void explainMissingPool(Editor& editor, VParameter const& parameter, ValuePoolSource const* poolSource) {
    if (!poolSource) {
        editor.choice.explanation += ", but without a pool source it drops every edit";
        VActionNotifier::Warning("The editor of the parameter \"" + parameter.fullName() +
                                 "\" has no pool source: it drops every edit");
    } else if (!currentPool(poolSource)) {
        editor.choice.explanation += ", but it drops every edit as long as its source has no pool";
    }
}

void explainMissingValue(Editor& editor, VParameter const& parameter, ValuePoolSource const* poolSource) {
    auto const pool = currentPool(poolSource);
    auto const needed = missingValueType(parameter, pool);
    if (needed.empty())
        return;
    auto const held = Tessera::Typename(parameter.effectiveValue(pool)->valueType());
    editor.choice.explanation += ", but it edits a value of type " + needed + " and not " + held;
    VActionNotifier::Warning("The parameter \"" + parameter.fullName() + "\" of type " + parameter.declaredType() +
                             " needs a value of type " + needed + " to be edited, not " + held);
}

/// Writes what the input's parameter holds once more, as an edit by the input. False if there is nothing of the
/// parameter's type to write.
bool writeCurrentValue(VInputBase& input, ValuePoolSource const* poolSource) {
    auto const parameter = input.owner().strong();
    if (!parameter)
        return false;
    auto const pool = currentPool(poolSource);
    if (!pool)
        return true; // an edit without a pool is dropped
    if (Tessera::Typename(parameter->effectiveValue(pool)->valueType()) != parameter->declaredType())
        return false;
    parameter->notifyValueChange(parameter->getLocalValue(pool, std::string(), true), pool, std::string(),
                                 Tessera::WeakPtr<ValueNotifier>(&input), nullptr, nullptr);
    markValueChanged(*parameter, pool);
    return true;
}

/// What a creator made for the parent: a widget, and its input.
using MadeWidget = std::pair<QPointer<QWidget>, InputRef>;

/// Calls the creator. If it throws, `fault` says so, and the result is empty.
MadeWidget make(QInputCreator& widgets, ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                std::string& fault) {
    try {
        return widgets.create(parameter, parent, poolSource);
    } catch (...) {
        fault = InputFaults::describeCurrent();
        return {};
    }
}

/// Why the host cannot use what a creator made, as the end of a sentence; empty if it can.
std::string faultOf(QWidget const* widget, QWidget const* parent) {
    if (!widget)
        return "made no widget";
    bool const isTheHosts = widget == parent || (parent && widget->isAncestorOf(parent));
    return isTheHosts ? "handed out a widget of the host's own" : "";
}

/// Puts the widget where the host wants it, if its creator did not. Says what was wrong, as the end of a sentence.
std::string adopt(QWidget& widget, QWidget* parent) {
    if (!parent || (widget.parentWidget() == parent && !widget.isWindow()))
        return {};
    bool const isElsewhere = widget.parentWidget() != parent;
    widget.setParent(parent, Qt::Widget);
    return isElsewhere ? "put its widget into another one than the given parent" : "made a window of its own";
}

/// Warns of what a creator did.
void tell(InputChoice const& choice, VParameter const& parameter, std::string const& deed) {
    auto const creator = choice.creator.strong();
    auto const* const object = creator.get();
    VActionNotifier::Warning("The creator of the editor of the parameter \"" + parameter.fullName() + "\"" +
                             (object ? ", of " + fileDefining(typeid(*object)) + "," : std::string()) + ' ' + deed);
}

/// Makes the widget and looks at it. Without a widget the choice's explanation says why.
void makeWidget(Editor& editor, QInputCreator& widgets, ParameterPtr const& parameter, QWidget* parent,
                ValuePoolSource* poolSource) {
    std::string fault;
    auto const made = make(widgets, parameter, parent, poolSource, fault);
    if (fault.empty())
        fault = faultOf(made.first, parent);
    if (!fault.empty()) {
        editor.choice.explanation += ", but it " + fault;
        tell(editor.choice, *parameter, fault);
        return;
    }
    std::tie(editor.widget, editor.input) = made;
    auto const deed = adopt(*editor.widget, parent);
    if (!deed.empty())
        tell(editor.choice, *parameter, deed);
    if (!editor.input.alive())
        tell(editor.choice, *parameter, "made a widget without an input, which cannot follow changes");
    EditorFaults::watch(*editor.widget);
}

/// What the editor's fields need to know of its input, which lives as long as they do.
void connectFields(Editor const& editor, ValuePoolSource const* poolSource) {
    auto const fields = editor.widget->findChildren<QLeaveLineEdit*>();
    for (auto* const field : fields)
        field->setValueWriter([input = editor.input, poolSource] {
            auto const living = input.strong();
            return living && writeCurrentValue(*living, poolSource);
        });
    CommitOnDrop::addTo(*editor.widget, editor.input, poolSource);
}

} // namespace

Editor makeEditor(ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource) {
    return makeEditor(parameter, parent, poolSource, {});
}

Editor makeEditor(ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                  CreatorRef const& chosen) {
    EventLoopDelivery::install();
    Editor editor;
    if (!parameter) {
        editor.choice.explanation = "there is no parameter";
        return editor;
    }
    if (auto const living = chosen.strong())
        editor.choice = {chosen, living->describe() + " was chosen by the user"};
    else
        editor.choice = InputRegistry::theRegistry().choose(*parameter, {"QT"});
    auto const creator = editor.choice.creator.strong();
    auto const widgets = creator ? creator->getInterface<QInputCreator>() : nullptr;
    if (!widgets) {
        if (creator)
            editor.choice.explanation += ", but it makes no Qt widgets";
        return editor;
    }
    auto* const tracked = poolSource ? new TrackedPoolSource(poolSource) : nullptr;
    makeWidget(editor, *widgets, parameter, parent, tracked);
    // The editor asks until its last child is gone.
    if (editor.widget)
        QObject::connect(editor.widget, &QObject::destroyed, &EditorFaults::theFaults(),
                         [tracked](QObject const* gone) {
                             EditorFaults::forget(gone);
                             delete tracked;
                         });
    else
        delete tracked;
    if (editor.widget)
        connectFields(editor, tracked);
    explainMissingValue(editor, *parameter, poolSource);
    explainMissingPool(editor, *parameter, poolSource);
    showPoolValue(editor, parameter, poolSource);
    return editor;
}

void showPoolValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource) {
    if (parameter && parameter->keepsValuesPerPool())
        showValue(editor, parameter, poolSource);
}

void showValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource) {
    auto const input = editor.input.strong();
    if (!input || !parameter)
        return;
    auto const living = parameter;
    auto const pool = currentPool(poolSource);
    bool const hadValue = living->getLocalValue(pool, std::string(), false) != nullptr;
    input->notify(living->effectiveValue(pool), VContext(pool, nullptr));
    // To look at a pool must not give it a value.
    if (!hadValue)
        removeCopyOfOwnValue(*living, pool);
}

} // namespace Kolt
