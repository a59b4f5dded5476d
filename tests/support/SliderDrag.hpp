#pragma once

#include <functional>
#include <initializer_list>
#include <QApplication>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QtTest/QTest>

/// The middle of a slider's handle.
inline QPoint handleOf(QSlider const* slider) {
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
}

/// Drags the handle of a slider with the mouse, by these numbers of pixels one after another. `afterMove` is called
/// after each move.
inline void dragHandle(QSlider* slider, std::initializer_list<int> distances,
                       std::function<void()> const& afterMove = {}) {
    auto place = handleOf(slider);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, place);
    for (int const distance : distances) {
        place.rx() += distance;
        QMouseEvent move(QEvent::MouseMove, place, slider->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
        if (afterMove)
            afterMove();
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, place);
}
