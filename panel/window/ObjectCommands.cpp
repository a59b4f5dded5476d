#include <panel/window/ObjectCommands.hpp>

#include <panel/window/Document.hpp>
#include <panel/window/ViewStack.hpp>
#include <parameters/commands/ResetCommands.hpp>
#include <parameters/rows/ParameterDescription.hpp>

namespace Panel {

ObjectCommands::ObjectCommands(Document& document, ViewStack& views, Talo::ParameterCommands const& rowCommands,
                               Talo::PoolSource& pools, QObject* parent)
    : QObject(parent),
      document_(document),
      views_(views),
      rowCommands_(rowCommands),
      pools_(pools),
      resetSection_(makeAction("resetSection", tr("Reset s&ection to default"), &ObjectCommands::resetSection)),
      resetObject_(makeAction("resetObject", tr("Reset &object to default"), &ObjectCommands::resetObject)),
      resetAll_(makeAction("resetAllObjects", tr("Reset &all objects to default"), &ObjectCommands::resetAll)) {
    updateActions();
}

ObjectCommands::~ObjectCommands() = default;

QAction* ObjectCommands::makeAction(char const* name, QString const& text, void (ObjectCommands::*run)()) {
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

Talo::ParameterPanel* ObjectCommands::panel() const {
    for (QWidget* each = rowCommands_.row(); each; each = each->parentWidget())
        if (auto* const found = qobject_cast<Talo::ParameterPanel*>(each))
            return found;
    auto const* const view = views_.currentView();
    return view ? view->panel() : nullptr;
}

Kolt::ParameterPtr ObjectCommands::currentParameter() const {
    auto const* const row = rowCommands_.row();
    return row ? row->parameter() : nullptr;
}

void ObjectCommands::updateActions() {
    resetSection_->setEnabled(currentParameter() != nullptr);
    auto const* const shown = panel();
    resetObject_->setEnabled(shown && shown->object());
    resetAll_->setEnabled(document_.network() != nullptr);
}

void ObjectCommands::resetSection() {
    emit commitRequested();
    auto const parameter = currentParameter();
    if (auto* const shown = parameter ? panel() : nullptr)
        shown->resetSection(Talo::ParameterDescription(*parameter).section);
}

void ObjectCommands::resetObject() {
    emit commitRequested();
    if (auto* const shown = panel())
        shown->resetAll();
}

void ObjectCommands::resetAll() {
    emit commitRequested();
    std::vector<Kolt::ParameterPtr> all;
    if (document_.network())
        for (auto const& object : document_.network()->objects())
            all.insert(all.end(), object->parameters().begin(), object->parameters().end());
    Talo::resetToDefaults(all, pools_.pool());
}

} // namespace Panel
