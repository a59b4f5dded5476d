#pragma once

#include "NumberEditorTest.hpp"

#include <limits>

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// Editors of parameters of the type double.
class QFloatTest : public NumberEditorTest<double> {
protected:
    using ParameterPtr = Kolt::ParameterPtr;
    using Values = Kolt::VParameter::Values;

    static void press(QSlider* control, Qt::MouseButton button, QPointF const& place) {
        QMouseEvent event(QEvent::MouseButtonPress, place, button, button, Qt::NoModifier);
        QApplication::sendEvent(control, &event);
        QMouseEvent release(QEvent::MouseButtonRelease, place, button, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(control, &release);
    }

    /// Moves the mouse along a control while its left button is pressed.
    static void drag(QSlider* control, int x) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, control->height() / 2.0), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(control, &move);
    }

    static ParameterPtr real(double value, std::vector<std::string> const& preferences = {},
                             Values values = Values::Shared) {
        return makeParameter("scale", Kolt::makeValue(value), preferences, values);
    }
    /// A parameter whose control has the positions 0 to `increment`; this is true for the numbers used in the tests.
    static ParameterPtr bounded(double value, double minimum, double maximum, double increment,
                                std::vector<std::string> const& preferences = {}) {
        auto const parameter = real(value, preferences);
        setBounds(parameter, minimum, maximum);
        setProperty(parameter, "increment", Kolt::makeValue(increment));
        return parameter;
    }
    static double held(ParameterPtr const& parameter) { return Kolt::valueOr(parameter->ownValue(), NotANumber); }
};
