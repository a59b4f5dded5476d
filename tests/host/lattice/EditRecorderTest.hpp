#pragma once

#include "support/TaloTest.hpp"

#include <functional>
#include <lattice/EditRecorder.hpp>
#include <lattice/Input.hpp>
#include <lattice/UndoHistory.hpp>

/// The part of an input that the history uses: a source of changes.
class SmallInput : public Kolt::VInputBase {
public:
    using Kolt::VInputBase::VInputBase;
    void onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const& newValue, Kolt::VContext const&,
                       Kolt::ValueMap const*) override {
        shown = newValue ? newValue->Text() : std::string();
        if (answer)
            answer();
    }
    template <typename T>
    bool edit(T const& value, Kolt::PoolPtr const& pool) {
        auto const parameter = owner().strong();
        return Kolt::setParameterValue(*parameter, value, pool, std::string(), true,
                                       Tessera::WeakPtr<Kolt::ValueNotifier>(this), nullptr);
    }
    std::string shown;
    std::function<void()> answer;
};

/// Undoes an edit as an integer editor's record does: through the input, which may be gone.
class SmallRecord : public Kolt::VUndoAction {
public:
    SmallRecord(Tessera::WeakPtr<SmallInput, Kolt::ValueNotifier> const& input, int previous, int& undone)
        : VUndoAction("record"), input_(input), previous_(previous), undone_(undone) {}
    bool undo() override {
        ++undone_;
        auto const input = input_.strong();
        return input && input->edit(previous_, nullptr);
    }

private:
    Tessera::WeakPtr<SmallInput, Kolt::ValueNotifier> input_;
    int previous_;
    int& undone_;
};

class EditRecorderTest : public TaloTest {
protected:
    void SetUp() override { history.clear(); }
    void TearDown() override {
        while (history.isMacroOpen())
            history.endMacro();
        history.clear();
    }

    template <typename T>
    static Kolt::ParameterPtr makeParameter(T const& value,
                                            Kolt::VParameter::Values values = Kolt::VParameter::Values::Shared) {
        return Kolt::ParameterPtr(new Kolt::VParameter("p", Kolt::makeValue(value), values));
    }
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (auto const& step : history.steps())
            names.push_back(step->description());
        return names;
    }
    static std::string text(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool = nullptr) {
        return parameter->effectiveValue(pool)->Text();
    }

    Kolt::UndoHistory& history = Kolt::UndoHistory::theHistory();
    Kolt::PoolPtr const draft = Kolt::PoolPtr(new Kolt::ValuePool("draft"));
    Kolt::PoolPtr const final = Kolt::PoolPtr(new Kolt::ValuePool("final"));
};

/// A watched int parameter with an input.
class WatchedInt : public EditRecorderTest {
protected:
    void SetUp() override {
        EditRecorderTest::SetUp();
        input.activateNotification();
    }
    void editRecorded(int value) {
        handOverRecord(std::stoi(text(parameter)));
        input.edit(value, nullptr);
    }
    void handOverRecord(int previous) {
        parameter->AddUndoAction(
            Tessera::StrongPtr<Kolt::VUndoAction>(
                new SmallRecord(Tessera::WeakPtr<SmallInput, Kolt::ValueNotifier>(&input), previous, recordsUndone)),
            7);
    }

    Kolt::ParameterPtr parameter = makeParameter(1);
    SmallInput input{parameter};
    std::shared_ptr<Kolt::EditRecorder> recorder = Kolt::EditRecorder::watch(parameter);
    int recordsUndone = 0;
};
