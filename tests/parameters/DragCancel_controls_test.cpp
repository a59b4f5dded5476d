// Escape during a drag of controls that a plug-in of others may use: dials and scroll bars.

#include "support/TaloTest.hpp"

#include <lattice/EditRecorder.hpp>
#include <lattice/UndoHistory.hpp>
#include <parameters/input/GestureTarget.hpp>
#include <parameters/input/InputFilter.hpp>
#include <QApplication>
#include <QDial>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Target : public QWidget, public Talo::GestureTarget {
public:
    explicit Target(Kolt::UndoHistory& history) : history_(history) {}
    Kolt::UndoHistory& history() const override { return history_; }

private:
    Kolt::UndoHistory& history_;
};

/// A row with a control that stores its value as an input does.
class DragCancelControlsTest : public TaloTest {
protected:
    void watch(QAbstractSlider* shown) {
        control = shown;
        parameter = Kolt::ParameterPtr(new Kolt::VParameter("level", Kolt::makeValue(20)));
        parameter->setHistory(&history);
        control->setRange(0, 100);
        control->setValue(20);
        auto* const layout = new QVBoxLayout(&target);
        layout->addWidget(control);
        QObject::connect(control, &QAbstractSlider::valueChanged, &target, [this](int value) {
            ASSERT_TRUE(history.store(parameter, nullptr, {Kolt::makeValue(value), false}) || history.isRestoring());
        });
        target.resize(200, 200);
        target.show();
        target.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&target));
    }
    int value() const { return Kolt::valueOr(parameter->ownValue(), -1); }
    void send(QEvent::Type type, QPoint const& place) const {
        auto const button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        auto const buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, control->mapToGlobal(place), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(control, &event);
    }
    /// Drags between two places, cancels, and drags on.
    void dragAndCancel(QPoint const& from, QPoint const& to) {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to);
        ASSERT_NE(value(), 20);
        QTest::keyClick(control, Qt::Key_Escape);
        EXPECT_EQ(value(), 20);
        EXPECT_FALSE(control->isSliderDown());
        send(QEvent::MouseMove, from + (to - from) / 2);
        send(QEvent::MouseButtonRelease, to);
        QApplication::processEvents();
        EXPECT_EQ(value(), 20);
        EXPECT_THAT(history.steps(), IsEmpty());
        control->setValue(20);
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to);
        send(QEvent::MouseButtonRelease, to);
        EXPECT_NE(value(), 20);
        EXPECT_THAT(history.steps(), SizeIs(1));
    }

    Kolt::UndoHistory history;
    Kolt::ParameterPtr parameter;
    std::shared_ptr<Talo::InputFilter> const filter = Talo::InputFilter::shared();
    Target target{history};
    QAbstractSlider* control = nullptr;
};

} // namespace

TEST_F(DragCancelControlsTest, ADial) {
    watch(new QDial);
    dragAndCancel({control->width() / 2, 20}, {control->width() - 20, control->height() / 2});
}

TEST_F(DragCancelControlsTest, AScrollBar) {
    watch(new QScrollBar(Qt::Horizontal));
    QStyleOptionSlider option;
    option.initFrom(control);
    option.minimum = 0;
    option.maximum = 100;
    option.sliderPosition = option.sliderValue = 20;
    option.pageStep = control->pageStep();
    option.orientation = Qt::Horizontal;
    auto const handle =
        control->style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, control).center();
    dragAndCancel(handle, handle + QPoint(40, 0));
}

TEST_F(DragCancelControlsTest, ASliderThatMovesOnlyAtTheEnd) {
    auto* const slider = new QSlider(Qt::Vertical);
    watch(slider);
    slider->setTracking(false);
    auto const handle = QPoint(slider->width() / 2, slider->height() * 8 / 10 - 2);
    send(QEvent::MouseButtonPress, handle);
    send(QEvent::MouseMove, handle - QPoint(0, 50));
    EXPECT_EQ(value(), 20);
    QTest::keyClick(control, Qt::Key_Escape);
    send(QEvent::MouseButtonRelease, handle - QPoint(0, 50));
    QApplication::processEvents();
    EXPECT_EQ(value(), 20);
    EXPECT_THAT(history.steps(), IsEmpty());
}
