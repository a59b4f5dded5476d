// Its spin box lies deep in other widgets.

#include "PlainEditor.hpp"
#include <QFrame>
#include <QGroupBox>
#include <QVBoxLayout>

namespace {

std::pair<QPointer<QWidget>, Kolt::InputRef> make(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                  Kolt::ValuePoolSource* pools) {
    auto* const frame = new QFrame(parent);
    auto* const layout = new QVBoxLayout(frame);
    auto* const box = new QGroupBox(frame);
    layout->addWidget(box);
    auto* const inner = new QVBoxLayout(box);
    auto const made = plainEditor(parameter, box, pools);
    inner->addWidget(made.first);
    return {frame, made.second};
}

TALO_STATIC_CREATOR FunctionCreator<decltype(&make)> const creator("good_nested", &make);

} // namespace

TALO_PLUGIN(good_nested);
