#include <sorrel/InputFrontEnd.hpp>

#include <lattice/ActionNotifier.hpp>
#include <lattice/InputRegistry.hpp>
#include <sorrel/EventLoopDelivery.hpp>
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
        VActionNotifier::Warning("The editor of the parameter \"" + parameter.Name() +
                                 "\" has no pool source: it drops every edit");
    } else if (!currentPool(poolSource)) {
        editor.choice.explanation += ", but it drops every edit as long as its source has no pool";
    }
}

} // namespace

Editor makeEditor(ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource) {
    EventLoopDelivery::install();
    Editor editor;
    if (!parameter) {
        editor.choice.explanation = "there is no parameter";
        return editor;
    }
    editor.choice = InputRegistry::theRegistry().choose(*parameter, {"QT"});
    auto const creator = editor.choice.creator.strong();
    auto const widgets = creator ? creator->getInterface<QInputCreator>() : nullptr;
    if (!widgets) {
        if (creator)
            editor.choice.explanation += ", but it makes no Qt widgets";
        return editor;
    }
    auto* const tracked = poolSource ? new TrackedPoolSource(poolSource) : nullptr;
    std::tie(editor.widget, editor.input) = widgets->create(parameter, parent, tracked);
    // The editor asks until its last child is gone.
    if (editor.widget)
        QObject::connect(editor.widget, &QObject::destroyed, [tracked] { delete tracked; });
    else
        delete tracked;
    explainMissingPool(editor, *parameter, poolSource);
    showPoolValue(editor, parameter, poolSource);
    return editor;
}

void showPoolValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource) {
    auto const input = editor.input.strong();
    if (!input || !parameter || !parameter->keepsValuesPerPool())
        return;
    auto const pool = currentPool(poolSource);
    input->notify(parameter->effectiveValue(pool), VContext(pool, nullptr));
}

} // namespace Kolt
