// Making an editor throws.

#include "PlainEditor.hpp"
#include <stdexcept>

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    (void)parameter, (void)parent, (void)pools;
    throw std::runtime_error("planted");
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("throws_in_create", &make);

} // namespace

TALO_PLUGIN(throws_in_create);
