#pragma once

#include "PanelTest.hpp"

#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

/// A shown panel with a network that has a parameter of every edited type, for edits by mouse and keyboard.
class EditingTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("values.json", values), &error)) << qPrintable(error);
        window->resize(1000, 1400);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        text = window->network()->values();
    }

    void TearDown() override {
        window.reset();
        // The list of multiple selections prints this each time it shows a value.
        EXPECT_THAT(takeOutput(), testing::Each("calling getSeletion from valueChanged"));
        PanelTest::TearDown();
    }

    static constexpr char const* values = R"({
        "title": "Values",
        "pools": ["draft", "final"],
        "objects": [
            { "name": "all", "parameters": [
                { "name": "bool", "type": "bool", "value": false },
                { "name": "int", "type": "int", "value": 40, "properties": { "min": 0, "max": 100 },
                  "values": { "draft": 20 } },
                { "name": "double", "type": "double", "value": 0.5 },
                { "name": "colour", "type": "colour", "value": [0, 0.2, 0.4, 1] },
                { "name": "enum", "type": "enum", "entries": ["Red", "Green", "Blue"], "value": "Red" },
                { "name": "flags", "type": "flags", "value": { "bold": false, "wide": true } },
                { "name": "selection", "type": "selection", "entries": ["one", "two", "three"], "value": "one" },
                { "name": "multiselection", "type": "multiselection", "entries": ["a", "b", "c"], "value": ["b"] },
                { "name": "line", "type": "string", "preferences": ["OneLine"], "value": "edge" },
                { "name": "array", "type": "stringarray", "value": ["caption"] },
                { "name": "entered", "type": "string", "preferences": ["OneLine", "UpdateOnEnterOnly"],
                  "value": "2023" },
                { "name": "lines", "type": "string", "preferences": ["MultiLine"], "value": "first\nsecond" },
                { "name": "file", "type": "string", "preferences": ["FileInput"], "value": "" }
            ] },
            { "name": "others", "parameters": [
                { "name": "start", "type": "action", "value": "Start" },
                { "name": "said", "type": "info", "value": "Nothing." },
                { "name": "status", "type": "status", "value": "Ready." },
                { "name": "same int", "type": "int", "value": 3 },
                { "name": "wide flags", "type": "flags", "value": { "bold": false, "wide": false } }
            ] }
        ]
    })";

    Talo::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }
    template <typename Control>
    Control* control(char const* name) const {
        auto* const editor = row(name)->editor();
        auto* const self = qobject_cast<Control*>(editor);
        return self ? self : editor->findChild<Control*>();
    }
    QLineEdit* field(char const* name) const { return control<QLineEdit>(name); }
    QSlider* slider(char const* name) const { return control<QSlider>(name); }
    QRadioButton* choice(char const* name) const {
        auto const buttons = row("enum")->editor()->findChildren<QRadioButton*>();
        for (auto* const button : buttons)
            if (button->text() == QLatin1String(name))
                return button;
        return nullptr;
    }

    /// Clicks the indicator of a check box or radio button.
    static void click(QAbstractButton* button) {
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, {8, button->height() / 2});
    }

    /// The text of a value of the object "all" in the chosen pool.
    std::string held(char const* name) const { return valueOf(("all." + std::string(name)).c_str()); }

    /// The text of a value in one of the pools.
    std::string valueInPool(char const* name, std::size_t pool) const {
        return parameter(name)->effectiveValue(window->network()->pools().at(pool))->Text();
    }

    std::vector<std::string> steps() const {
        std::vector<std::string> steps;
        for (auto const& step : window->history().steps())
            steps.push_back(step->description());
        return steps;
    }
    QByteArray valuesNow() const { return window->network()->values(); }

    /// The content of the network's file.
    QByteArray text;
};
