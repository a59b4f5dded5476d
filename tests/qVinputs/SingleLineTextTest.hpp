#pragma once

#include "qVinputs/TextEditorTest.hpp"

#include <QLineEdit>

/// Editors of single-line texts.
class SingleLineText : public TextEditorTest {
protected:
    QLineEdit* edit(Kolt::ParameterRef const& parameter) { return create<QLineEdit>("simplestring", parameter); }
    static Kolt::ParameterPtr onEnterOnly(std::string const& text) {
        auto const parameter = makeText(text);
        parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences("UpdateOnEnterOnly")));
        return parameter;
    }
    static void setProperty(Kolt::ParameterPtr const& parameter, std::string const& name, Kolt::ValuePtr const& value) {
        parameter->setProperty(name, value, nullptr, nullptr, nullptr);
    }
};
