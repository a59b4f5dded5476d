// It hands out the host's own window.

#include "PlainEditor.hpp"

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    auto made = plainEditor(parameter, parent, pools);
    return {parent, made.second};
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("takes_the_window", &make);

} // namespace

TALO_PLUGIN(takes_the_window);
