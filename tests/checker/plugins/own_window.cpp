// Its widget is a window of its own.

#include "PlainEditor.hpp"

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    auto made = plainEditor(parameter, parent, pools);
    made.first->setWindowFlag(Qt::Window);
    return made;
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("own_window", &make);

} // namespace

TALO_PLUGIN(own_window);
