#include "Sides.hpp"

#include <cstdlib>
#include <iostream>
#include <QCoreApplication>

namespace {

class OnePool : public Kolt::ValuePoolProvider {
public:
    Kolt::PoolPtr getValuePool() const override { return pool_; }

private:
    Kolt::PoolPtr const pool_{new Kolt::ValuePool};
};

} // namespace

BareSide::BareSide(BenchmarkCase const& benchmarkCase, int) : case_(benchmarkCase) {}

QWidget* BareSide::makeEditor(QWidget* parent) {
    auto* const editor = case_.makeBare(parent);
    if (!first_)
        first_ = editor;
    return editor->widget();
}

PluginSide::PluginSide(BenchmarkCase const& benchmarkCase, int count)
    : case_(benchmarkCase), provider_(new OnePool), parameters_(static_cast<std::size_t>(count)) {
    for (auto& parameter : parameters_)
        parameter = case_.makeParameter();
}

PluginSide::~PluginSide() = default;

QWidget* PluginSide::makeEditor(QWidget* parent) {
    auto const editor = Kolt::makeEditor(parameters_.at(next_++), parent, this);
    auto const creator = editor.choice.creator.strong();
    if (!editor.widget || creator->Name() != case_.creator) {
        std::cerr << "The editor \"" << case_.creator << "\" cannot be made: " << editor.choice.explanation << "\n";
        std::exit(1);
    }
    return editor.widget;
}

EditorWindow::EditorWindow() : content_(new QWidget), layout_(new QVBoxLayout(content_)) {
    area_.setWidgetResizable(true);
    area_.setWidget(content_);
    area_.resize(400, 600);
}

void EditorWindow::fill(Side& side, int count) {
    for (int n = 0; n < count; ++n) {
        auto* const editor = side.makeEditor(content_);
        if (!first_)
            first_ = editor;
        layout_->addWidget(editor);
    }
}

void EditorWindow::show() {
    area_.show();
    QCoreApplication::processEvents();
}
