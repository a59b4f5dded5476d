// It makes no widget.

#include "PlainEditor.hpp"

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    (void)parameter, (void)parent, (void)pools;
    return {};
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("makes_nothing", &make);

} // namespace

TALO_PLUGIN(makes_nothing);
