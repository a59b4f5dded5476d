#pragma once

#include "support/TestHost.hpp"

#include <QDial>
#include <QHelpEvent>
#include <QSlider>
#include <QToolTip>
#include <sorrel/QLeaveLineEdit.hpp>

/// Shared by the tests of the editors of integers and of floating-point numbers. T is the type of the numbers.
template <typename T>
class NumberEditorTest : public PluginTest {
protected:
    static QSlider* slider(Kolt::Editor const& editor) { return editor.widget->findChild<QSlider*>(); }
    static QDial* dial(Kolt::Editor const& editor) { return editor.widget->findChild<QDial*>(); }
    static Kolt::QLeaveLineEdit* lineEdit(Kolt::Editor const& editor) {
        return editor.widget->findChild<Kolt::QLeaveLineEdit*>();
    }
    static std::string text(Kolt::Editor const& editor) { return lineEdit(editor)->text().toStdString(); }
    /// Replaces the text in the field by typing, and presses Return.
    static void type(Kolt::Editor const& editor, char const* typed) {
        lineEdit(editor)->selectAll();
        QTest::keyClicks(lineEdit(editor), typed);
        QTest::keyClick(lineEdit(editor), Qt::Key_Return);
    }

    /// The tool tip that appears when the mouse rests on a widget.
    static std::string toolTip(QWidget* widget) {
        QToolTip::hideText();
        auto const place = widget->rect().center();
        QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
        return QToolTip::text().toStdString();
    }

    static void setProperty(Kolt::ParameterPtr const& parameter, char const* name, Kolt::ValuePtr const& value) {
        parameter->setProperty(name, value, nullptr, nullptr, nullptr);
    }
    static void setBounds(Kolt::ParameterPtr const& parameter, T minimum, T maximum) {
        setProperty(parameter, "min", Kolt::makeValue(minimum));
        setProperty(parameter, "max", Kolt::makeValue(maximum));
    }
    static void changeElsewhere(Kolt::ParameterPtr const& parameter, T value, Kolt::PoolPtr const& pool) {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr));
    }
    void record(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    }

    RecordingNotifier recorder;
};
