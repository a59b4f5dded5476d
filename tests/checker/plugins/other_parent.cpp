// It does not give its widget to the given parent.

#include "PlainEditor.hpp"

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    (void)parent;
    return plainEditor(parameter, nullptr, pools);
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("other_parent", &make);

} // namespace

TALO_PLUGIN(other_parent);
