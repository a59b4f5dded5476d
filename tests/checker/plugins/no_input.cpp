// Its widget has no input.

#include "PlainEditor.hpp"

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    return {plainEditor(parameter, parent, pools).first, Kolt::InputRef()};
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("no_input", &make);

} // namespace

TALO_PLUGIN(no_input);
