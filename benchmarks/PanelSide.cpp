#include "BenchmarkCase.hpp"
#include "PanelSides.hpp"

#include <algorithm>
#include <lattice/UndoHistory.hpp>
#include <numeric>
#include <panel/window/ObjectView.hpp>
#include <parameters/PoolSource.hpp>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>

namespace {

class ProjectSide : public PanelSide {
public:
    ProjectSide(Kinds const& kinds, int count, int numbers, bool perPool) : kinds_(kinds) {
        pools_.setPool(firstPool_);
        for (int number = 0; number < count; ++number)
            add(*object_, perPool ? makeWithPools(caseOf(number)) : caseOf(number).makeParameter());
        for (int number = 0; number < numbers; ++number)
            add(*simulation_, Kolt::ParameterPtr(new Kolt::VParameter(std::to_string(number), Kolt::makeValue(0.0))));
    }
    ~ProjectSide() override { close(); }

    void open(QSize const& size) override {
        window_ = std::make_unique<QMainWindow>();
        view_ = new Panel::ObjectView({object_}, QString(), pools_);
        views_ = new QSplitter;
        views_->addWidget(view_);
        window_->setCentralWidget(views_);
        auto* const menu = window_->menuBar()->addMenu(QStringLiteral("Edit"));
        using Command = Talo::ParameterPanel::Command;
        menu->addActions({view_->panel()->action(Command::Undo), view_->panel()->action(Command::Redo)});
        window_->resize(size);
        window_->show();
        window_->activateWindow();
        QCoreApplication::processEvents();
    }
    void close() override {
        window_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QScrollBar* scrollBar() override { return view_->panel()->rowArea()->verticalScrollBar(); }
    int rowCount() override { return static_cast<int>(view_->rows().size()); }
    QWidget* editor(int number) override { return view_->rows().at(static_cast<std::size_t>(number))->editor(); }
    void change(int number, int n) override {
        caseOf(number).change(*object_->parameters().at(static_cast<std::size_t>(number)), n);
    }
    void changeNumbers(double number) override {
        for (auto const& parameter : simulation_->parameters())
            if (!Kolt::setParameterValue(*parameter, number, nullptr, std::string(), false, nullptr, nullptr))
                qFatal("The benchmark cannot write the value.");
    }
    void filter(QString const& text) override { view_->panel()->setFilter(text); }
    void rememberDefaults() override {
        for (auto const& parameter : object_->parameters())
            parameter->rememberDefaults();
        view_->panel()->rowArea()->showDefaults();
    }
    void showRawValues() override { view_->panel()->setRawValuesShown(true); }
    void openSecondView() override {
        views_->addWidget(new Panel::ObjectView({object_}, QString(), pools_));
        QCoreApplication::processEvents();
    }
    void switchPool(int n) override {
        pools_.setPool(n == 0 ? firstPool_ : secondPool_);
        view_->panel()->showPool();
    }

private:
    Kolt::ParameterPtr makeWithPools(BenchmarkCase const& benchmarkCase) const {
        auto const first = benchmarkCase.makeParameter();
        auto const second = benchmarkCase.makeParameter();
        benchmarkCase.change(*second, 1);
        Kolt::ParameterPtr const parameter(
            new Kolt::VParameter(first->Name(), first->ownValue(), Kolt::VParameter::Values::PerPool));
        if (auto const* const properties = first->properties())
            for (auto const& [name, value] : *properties)
                parameter->setProperty(name, value, nullptr, nullptr, nullptr);
        parameter->setCreationPreferences(first->creationPreferences());
        parameter->setLocalValue(secondPool_, second->ownValue());
        return parameter;
    }
    BenchmarkCase const& caseOf(int number) const {
        return benchmarkCases().at(static_cast<std::size_t>(kinds_[static_cast<std::size_t>(number) % kinds_.size()]));
    }
    void add(Kolt::VObject& object, Kolt::ParameterPtr const& parameter) {
        parameter->setHistory(&history_);
        parameter->rememberDefaults();
        object.addParameter(parameter);
    }

    Kinds const kinds_;
    Kolt::PoolPtr const firstPool_{new Kolt::ValuePool("first")};
    Kolt::PoolPtr const secondPool_{new Kolt::ValuePool("second")};
    Kolt::UndoHistory history_;
    Talo::PoolSource pools_;
    Kolt::ObjectPtr const object_{new Kolt::VObject("object")};
    Kolt::ObjectPtr const simulation_{new Kolt::VObject("simulation")};
    std::unique_ptr<QMainWindow> window_;
    QSplitter* views_ = nullptr;
    Panel::ObjectView* view_ = nullptr;
};

} // namespace

Kinds allKinds() {
    Kinds kinds(benchmarkCases().size());
    std::iota(kinds.begin(), kinds.end(), 0);
    return kinds;
}

Kinds kindsNamed(std::vector<std::string> const& names) {
    Kinds kinds;
    auto const& cases = benchmarkCases();
    for (auto const& name : names) {
        auto const found =
            std::find_if(cases.begin(), cases.end(), [&](auto const& each) { return each.name == name; });
        if (found == cases.end())
            qFatal("There is no editor \"%s\".", name.c_str());
        kinds.push_back(static_cast<int>(found - cases.begin()));
    }
    return kinds;
}

std::unique_ptr<PanelSide> makePanelSide(Kinds const& kinds, int count, int numbers) {
    return std::make_unique<ProjectSide>(kinds, count, numbers, false);
}

std::unique_ptr<PanelSide> makePoolSide(Kinds const& kinds, int count, int numbers) {
    return std::make_unique<ProjectSide>(kinds, count, numbers, true);
}
