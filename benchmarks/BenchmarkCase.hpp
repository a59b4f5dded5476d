#pragma once

#include <functional>
#include <lattice/Parameter.hpp>
#include <QString>
#include <QWidget>
#include <string>
#include <vector>

/// An editor of bare Qt: the controls that the plug-in's editor has, in a program that keeps the value itself. The
/// class derives from a Qt widget, holds the value, and connects the control's signal to a slot that stores it.
class BareEditor {
public:
    virtual ~BareEditor() = default;
    virtual QWidget* widget() = 0;
    /// The program stores the n-th value, 0 or 1, and shows it.
    virtual void change(int n) = 0;
    /// Called after a person's edit, with the text of the new value, where the program wants to know.
    std::function<void(QString const& text)> edited;

protected:
    /// Says that a person edited the value.
    void notify(QString const& text) const {
        if (edited)
            edited(text);
    }
};

/// One kind of editor: how the plug-in's comes to be, how the same is made of bare Qt, and how both are used.
struct BenchmarkCase {
    /// What it is called in the results; by default as the creator.
    std::string name;
    /// The creator that must be chosen, and the preferences of the parameter for which it is; empty for none.
    std::string creator;
    std::vector<std::string> preferences;
    /// A parameter with the 0-th value.
    std::function<Kolt::ParameterPtr()> makeParameter;
    /// The host sets the n-th value, 0 or 1, and notifies everybody.
    std::function<void(Kolt::VParameter&, int n)> change;
    /// The same controls, showing the 0-th value; the parent owns them.
    std::function<BareEditor*(QWidget* parent)> makeBare;
    /// One edit by events, the same in both editors, of which every second one is told apart by n, 0 or 1. Empty for
    /// a display.
    std::function<void(QWidget& editor, int n)> edit;
    /// A drag over a thousand positions of the editor's control; empty where there is nothing to drag.
    std::function<void(QWidget& editor)> drag;
};

/// A case whose parameter has a value of type T; its two values are given.
template <typename T>
BenchmarkCase benchmarkCase(std::string const& creator, std::vector<std::string> const& preferences, T const& first,
                            T const& second) {
    BenchmarkCase made;
    made.name = creator;
    made.creator = creator;
    made.preferences = preferences;
    made.makeParameter = [=] {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("object.parameter", Kolt::makeValue(first)));
        if (!preferences.empty())
            parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(
                Kolt::VCreationPreferences::Names(preferences.begin(), preferences.end()))));
        return parameter;
    };
    made.change = [=](Kolt::VParameter& parameter, int n) {
        if (!Kolt::setParameterValue(parameter, n == 0 ? first : second, nullptr, std::string(), false, nullptr,
                                     nullptr))
            qFatal("The benchmark cannot write the value.");
    };
    return made;
}

/// All cases, in the order of their families.
std::vector<BenchmarkCase> const& benchmarkCases();

// One function for each family, in a file of its own.
void addBooleanBenchmarks(std::vector<BenchmarkCase>& cases);
void addNumberBenchmarks(std::vector<BenchmarkCase>& cases);
void addSelectionBenchmarks(std::vector<BenchmarkCase>& cases);
void addActionBenchmarks(std::vector<BenchmarkCase>& cases);
void addTextBenchmarks(std::vector<BenchmarkCase>& cases);
