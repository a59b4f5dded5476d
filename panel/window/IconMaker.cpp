#include <panel/window/IconMaker.hpp>

#include <sorrel/InputFrontEnd.hpp>
#include <sorrel/QIconizer.hpp>

namespace Panel {

ObjectIcon IconMaker::makeIcon(Kolt::ObjectPtr const& object, QWidget* parent) {
    // A copy, as asking a parameter may change the object.
    auto const parameters = object->parameters();
    for (auto const& parameter : parameters) {
        if (auto* const icon = makeIcon(object, parameter, parent))
            return {icon, parameter};
    }
    return {};
}

QWidget* IconMaker::makeIcon(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, QWidget* parent) {
    auto const choice = Kolt::InputRegistry::theRegistry().choose(*parameter, {"QT"});
    auto const creator = choice.creator.strong();
    if (!creator || withoutIcons_.count(creator.get()) > 0)
        return nullptr;
    // Never shown; it deletes the editor.
    QWidget outOfSight;
    auto const editor = Kolt::makeEditor(parameter, &outOfSight, &pools_);
    auto const input = editor.input.strong();
    auto const iconizer = input ? input->getInterface<Kolt::QIconizer>() : nullptr;
    if (!iconizer) {
        withoutIcons_.insert(creator.get());
        return nullptr;
    }
    auto* const icon = iconizer->createIcon(parent, object, pools_.getValuePoolProvider());
    return icon ? icon->widget() : nullptr;
}

} // namespace Panel
