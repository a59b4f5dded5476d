#pragma once

#include "support/TestHost.hpp"

/// A value that keeps its initial content and refuses every store.
template <typename T>
class RefusingValue : public Kolt::VValue<T> {
public:
    using Kolt::VValue<T>::VValue;
    bool set(T const&) override { return false; }
};

/// Shared by the tests of the editors of selections.
class SelectionTest : public PluginTest {
protected:
    using Values = Kolt::VParameter::Values;

    template <typename T>
    static Kolt::ParameterPtr parameterOf(T const& value, Values values = Values::Shared,
                                          std::vector<std::string> const& preferences = {}) {
        return makeParameter("object.parameter", Kolt::makeValue(value), preferences, values);
    }
    /// A parameter whose value cannot be changed.
    template <typename T>
    static Kolt::ParameterPtr refusingParameterOf(T const& value) {
        return makeParameter("object.parameter", Kolt::ValuePtr(new RefusingValue<T>(value)));
    }
    /// Sets the parameter's value as another editor does, and notifies.
    template <typename T>
    void setElsewhere(Kolt::ParameterPtr const& parameter, T const& value) {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, value, firstPool, std::string(), false, nullptr, nullptr));
    }
    static void tellOfChange(Kolt::ParameterPtr const& parameter) {
        parameter->notifyValueChange(parameter->ownValue(), nullptr, std::string(), nullptr, nullptr, nullptr);
    }
    /// Records every commit.
    void record(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    }
    std::size_t commits() const { return recorder.values.size(); }

    using Lines = std::vector<std::string>;
    RecordingNotifier recorder;
};

/// The signatures of the slots that an editor's class adds.
inline QStringList slotsOf(QWidget const& editor) {
    QStringList signatures;
    auto const* const meta = editor.metaObject();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        EXPECT_EQ(meta->method(index).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta->method(index).methodSignature()));
    }
    return signatures;
}
