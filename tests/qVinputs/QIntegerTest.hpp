#pragma once

#include "NumberEditorTest.hpp"

#include <lattice/UndoAction.hpp>
#include <limits>

constexpr int LargestInt = std::numeric_limits<int>::max();
constexpr int SmallestInt = std::numeric_limits<int>::min();

/// Editors of parameters of the type int.
class QIntegerTest : public NumberEditorTest<int> {
protected:
    using ParameterPtr = Kolt::ParameterPtr;
    using Values = Kolt::VParameter::Values;

    /// Calls the slot that is connected to the control's signal.
    static void callSlot(Kolt::Editor const& editor, int value) {
        ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "valueChanged", Q_ARG(int, value)));
    }

    static ParameterPtr integer(int value, std::vector<std::string> const& preferences = {},
                                Values values = Values::Shared) {
        return makeParameter("count", Kolt::makeValue(value), preferences, values);
    }
    static ParameterPtr bounded(int value, int minimum, int maximum, std::vector<std::string> const& preferences = {}) {
        auto const parameter = integer(value, preferences);
        setBounds(parameter, minimum, maximum);
        return parameter;
    }
    static std::string property(ParameterPtr const& parameter, char const* name) {
        return parameter->properties()->getValue(name)->Text();
    }
    static std::vector<std::string> undoTexts() {
        std::vector<std::string> texts;
        for (auto const& step : Kolt::UndoHistory::theHistory().steps())
            texts.push_back(step->description());
        return texts;
    }

    /// When the next undo step is recorded, moves the control once more.
    void moveAtNextStep(Kolt::Editor const& editor, int value) {
        historyConnection = Kolt::UndoHistory::theHistory().addListener([editor, value, moved = false]() mutable {
            if (!std::exchange(moved, true))
                callSlot(editor, value);
        });
    }

    void TearDown() override {
        historyConnection.disconnect();
        NumberEditorTest::TearDown();
    }

    Kolt::Connection historyConnection;
};
