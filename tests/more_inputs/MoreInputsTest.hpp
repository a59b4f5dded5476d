#pragma once

#include "support/TestHost.hpp"

#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QAction>

/// A panel with one parameter, "value", whose editor comes from the plug-in more_inputs.
class MoreInputsTest : public PluginTest {
protected:
    void SetUp() override {
        PluginTest::SetUp();
        auto const outcome = loader.load(TALO_MORE_PLUGIN_FILE);
        ASSERT_TRUE(outcome.ok) << outcome.message;
    }

    void TearDown() override {
        PluginTest::TearDown();
        value.reset();
        object.reset();
        history.clear();
        auto const outcome = loader.unload(TALO_MORE_PLUGIN_FILE);
        EXPECT_TRUE(outcome.ok) << outcome.message;
    }

    /// Shows a value with an editor of this preference and these properties.
    void show(Kolt::ValuePtr const& start, std::string const& preference,
              std::map<std::string, Kolt::ValuePtr> const& properties = {},
              Kolt::VParameter::Values values = Kolt::VParameter::Values::Shared) {
        value = makeParameter("value", start, {preference}, values);
        value->setHistory(&history);
        for (auto const& [name, property] : properties)
            value->setProperty(name, property, nullptr, nullptr, nullptr);
        object = Kolt::ObjectPtr(new Kolt::VObject("object"));
        object->addParameter(value);
        panel = new Talo::ParameterPanel(object, pools, parent);
        panel->resize(600, 400);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
        value->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    }
    Talo::ParameterRow* row() const { return panel->rowArea()->row(QStringLiteral("value")); }
    QWidget* editor() const { return row()->editor(); }
    template <typename Control>
    Control* control() const {
        auto* const self = qobject_cast<Control*>(editor());
        return self ? self : editor()->findChild<Control*>();
    }
    std::string text() const { return value->effectiveValue(firstPool)->Text(); }
    /// Lets a gesture end that ends when control returns to the event loop.
    static void endGesture() { QCoreApplication::processEvents(); }
    std::size_t steps() const { return history.steps().size(); }
    void undo() { panel->action(Talo::ParameterPanel::Command::Undo)->trigger(); }

    Kolt::UndoHistory history;
    Kolt::ObjectPtr object;
    Kolt::ParameterPtr value;
    RecordingNotifier recorder;
    QPointer<Talo::ParameterPanel> panel;
};
