#include <panel/window/ObjectCommands.hpp>

#include <panel/window/Document.hpp>
#include <panel/window/ObjectList.hpp>
#include <panel/window/ViewStack.hpp>
#include <parameters/commands/ObjectClipboard.hpp>
#include <parameters/commands/ResetCommands.hpp>
#include <parameters/rows/ParameterDescription.hpp>

namespace Panel {

ObjectCommands::ObjectCommands(Document& document, ViewStack& views, ObjectList const& list,
                               Talo::ParameterCommands const& rowCommands, Talo::PoolSource& pools, QObject* parent)
    : QObject(parent),
      document_(document),
      views_(views),
      list_(list),
      rowCommands_(rowCommands),
      pools_(pools),
      resetSection_(makeAction("resetSection", tr("Reset s&ection to default"), &ObjectCommands::resetSection)),
      resetObject_(makeAction("resetObject", tr("Reset &object to default"), &ObjectCommands::resetObject)),
      resetAll_(makeAction("resetAllObjects", tr("Reset &all objects to default"), &ObjectCommands::resetAll)),
      copySection_(makeAction("copySection", tr("Copy sectio&n"), &ObjectCommands::copySection)),
      copyObjects_(makeAction("copyObjects", tr("Copy o&bjects"), &ObjectCommands::copyObjects)),
      pasteObjects_(makeAction("pasteObjects", tr("Paste into ob&jects"), &ObjectCommands::pasteObjects)) {
    copyObjects_->setShortcut(tr("Ctrl+Alt+C"));
    pasteObjects_->setShortcut(tr("Ctrl+Alt+V"));
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
    copySection_->setEnabled(currentParameter() != nullptr);
    // By its key it is used without a menu, whatever came to the clipboard.
    copyObjects_->setEnabled(document_.network() != nullptr);
    pasteObjects_->setEnabled(document_.network() != nullptr);
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

std::vector<Kolt::ObjectPtr> ObjectCommands::chosenObjects() const {
    auto const* const shown = panel();
    auto const* const view = views_.currentView();
    if (shown && (!view || shown != view->panel()))
        return shown->object() ? std::vector<Kolt::ObjectPtr>{shown->object()} : std::vector<Kolt::ObjectPtr>();
    return list_.chosenObjects();
}

Kolt::PoolPtr ObjectCommands::pool() const {
    auto const* const shown = panel();
    return shown ? shown->pool() : pools_.pool();
}

void ObjectCommands::copySection() {
    emit commitRequested();
    auto const parameter = currentParameter();
    auto const object = panel() ? panel()->object() : nullptr;
    if (parameter && object)
        Talo::copySection(object, Talo::ParameterDescription(*parameter).section, pool());
}

void ObjectCommands::copyObjects() {
    emit commitRequested();
    Talo::copyObjects(chosenObjects(), pool());
}

void ObjectCommands::pasteObjects() {
    emit commitRequested();
    auto const reasons = Talo::pasteObjects(chosenObjects(), pool());
    for (auto const& reason : reasons)
        emit refused(reason);
}

} // namespace Panel
