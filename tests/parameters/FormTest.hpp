#pragma once

#include "support/TestHost.hpp"

#include <lattice/Object.hpp>
#include <lattice/TypedParameter.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/RowArea.hpp>

/// A host's window: a panel for one object, with the real plug-in.
class FormTest : public PluginTest {
protected:
    explicit FormTest(char const* objectName) : object(new Kolt::VObject(objectName)) {}

    /// Gives the object a parameter whose edits the history keeps.
    void add(Kolt::ParameterPtr const& parameter) {
        parameter->setHistory(&history);
        parameter->rememberDefaults();
        object->addParameter(parameter);
    }

    void show() {
        panel = new Talo::ParameterPanel(object, pools, parent);
        panel->resize(600, 400);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }

    Talo::RowArea* area() const { return panel->rowArea(); }
    Talo::ParameterRow* row(char const* name) const { return area()->row(QLatin1String(name)); }
    template <typename Control>
    Control* control(char const* name) const {
        return row(name)->editor()->findChild<Control*>();
    }
    std::vector<std::string> shownRows() const {
        std::vector<std::string> names;
        for (auto* const each : area()->rows())
            if (each->isVisible())
                names.push_back(each->parameterName().toStdString());
        return names;
    }

    Kolt::UndoHistory history;
    Kolt::ObjectPtr object;
    QPointer<Talo::ParameterPanel> panel;
};
