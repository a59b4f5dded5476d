// A form of thousands of rows: which rows are made and kept while a button is held, and where Tab goes.

#include "parameters/FormTest.hpp"

#include <bramble/Info.hpp>
#include <parameters/rows/ModifiedIndicator.hpp>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

using Kolt::Parameter;

namespace {

constexpr std::size_t mostRows = 80;

class LongForm : public FormTest {
protected:
    LongForm() : FormTest("pump") {}

    QScrollBar* bar() const { return area()->verticalScrollBar(); }
    /// Where the handle of the scroll bar is.
    QPoint handle() const {
        QStyleOptionSlider option;
        option.initFrom(bar());
        option.orientation = Qt::Vertical;
        option.maximum = bar()->maximum();
        option.pageStep = bar()->pageStep();
        option.sliderPosition = bar()->value();
        option.subControls = QStyle::SC_All;
        return bar()
            ->style()
            ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar())
            .center();
    }
    static void moveHeld(QWidget* widget, QPoint const& place) {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget, &move);
        QCoreApplication::processEvents();
    }
};

/// Counts how often widgets are asked to lay out what is in them.
class LayoutCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

TEST_F(LongForm, ADragOfTheScrollBarKeepsFewRows) {
    for (int number = 0; number < 2000; ++number)
        add(Parameter<int>("number " + std::to_string(number), number));
    ASSERT_NO_FATAL_FAILURE(show());
    auto const at = handle();
    QTest::mousePress(bar(), Qt::LeftButton, {}, at);
    std::size_t most = 0;
    for (int y = at.y(); y < bar()->height(); y += 3) {
        moveHeld(bar(), {at.x(), y});
        most = std::max(most, area()->rows().size());
    }
    EXPECT_TRUE(bar()->isSliderDown());
    EXPECT_EQ(bar()->value(), bar()->maximum());
    EXPECT_LE(most, mostRows);
    QTest::mouseRelease(bar(), Qt::LeftButton, {}, {at.x(), bar()->height()});
    EXPECT_EQ(area()->rows().back()->parameterName(), "number 1999");
}

TEST_F(LongForm, TheRowThatHasTheMouseStaysHoweverFarItIs) {
    for (int number = 0; number < 2000; ++number)
        add(Parameter<double>("number " + std::to_string(number), 0.25).min(0).max(1));
    ASSERT_NO_FATAL_FAILURE(show());
    QPointer<QSlider> const slider = control<QSlider>("number 3");
    QPointer<Talo::ParameterRow> const other = row("number 4");
    slider->setFocusPolicy(Qt::NoFocus);
    auto const middle = slider->rect().center();
    QTest::mousePress(slider.data(), Qt::LeftButton, {}, middle);
    for (int page = 0; page < 10; ++page) {
        bar()->setValue(bar()->value() + 10 * bar()->pageStep());
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_FALSE(other);
    ASSERT_TRUE(slider);
    moveHeld(slider, slider->rect().topRight());
    QTest::mouseRelease(slider.data(), Qt::LeftButton, {}, slider->rect().topRight());
    EXPECT_GT(Kolt::valueOr(object->parameters()[3]->ownValue(), 0.0), 0.9);
    EXPECT_EQ(history.steps().size(), 1U);
}

TEST_F(LongForm, TabPassesThousandsOfDisplaysWithoutMakingThem) {
    add(Parameter<bool>("first", false));
    for (int number = 0; number < 2000; ++number)
        object->addParameter(Parameter<Kolt::info>("text " + std::to_string(number), Kolt::info{"A label."}));
    add(Parameter<bool>("last", false));
    ASSERT_NO_FATAL_FAILURE(show());
    control<QCheckBox>("first")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(row("last")->isAncestorOf(QApplication::focusWidget()));
    EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty());
    EXPECT_LE(area()->rows().size(), mostRows);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(row("first")->isAncestorOf(QApplication::focusWidget()));
    EXPECT_LE(area()->rows().size(), mostRows);
}

TEST_F(LongForm, TabStopsAtTheMarkOfAReadOnlyValue) {
    add(Parameter<bool>("first", false));
    for (int number = 0; number < 500; ++number) {
        Kolt::ParameterPtr const parameter = Parameter<int>("number " + std::to_string(number), number);
        parameter->setProperty("readOnly", Kolt::makeValue(true), nullptr, nullptr, nullptr);
        add(parameter);
    }
    add(Parameter<bool>("last", false));
    ASSERT_TRUE(
        Kolt::setParameterValue(*object->parameters()[300], 7, nullptr, std::string(), false, nullptr, nullptr));
    ASSERT_NO_FATAL_FAILURE(show());
    control<QCheckBox>("first")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), row("number 299")->modifiedIndicator());
    EXPECT_LE(area()->rows().size(), mostRows);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(row("last")->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(LongForm, OnlyARowThatGrowsMovesTheRowsBelow) {
    auto const text = Parameter<Kolt::info>("text", Kolt::info{"one"});
    object->addParameter(text);
    add(Parameter<bool>("below", false));
    ASSERT_NO_FATAL_FAILURE(show());
    int const before = row("below")->y();
    ASSERT_TRUE(text.write(Kolt::info{"two"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(row("below")->y(), before);
    ASSERT_TRUE(text.write(Kolt::info{"one\ntwo\nthree"}));
    QTRY_VERIFY(row("below")->y() > before);
    ASSERT_TRUE(text.write(Kolt::info{"one"}));
    QTRY_COMPARE(row("below")->y(), before);
}

TEST_F(LongForm, TheMarkOfAChangedValueComesAndGoesWithoutMovingAnything) {
    auto const on = Parameter<bool>("on", false);
    add(on);
    ASSERT_NO_FATAL_FAILURE(show());
    ASSERT_TRUE(on.write(true));
    QCoreApplication::processEvents();
    auto const label = row("on")->nameLabel()->geometry();
    auto const editor = row("on")->editor()->geometry();
    ASSERT_TRUE(row("on")->modifiedIndicator()->isVisible());
    ASSERT_TRUE(on.write(false));
    QCoreApplication::processEvents();
    EXPECT_FALSE(row("on")->modifiedIndicator()->isVisible());
    EXPECT_EQ(row("on")->nameLabel()->geometry(), label);
    EXPECT_EQ(row("on")->editor()->geometry(), editor);
}

TEST_F(LongForm, NamesThatAreShortenedInANarrowFormAreNotCutOff) {
    for (auto const* const name : {"on", "quality", "iterations", "a name of many words"}) {
        add(makeParameter(name, Kolt::makeValue(1), {}, Kolt::VParameter::Values::PerPool));
        add(Parameter<int>(std::string(name) + " of all", 1));
    }
    ASSERT_NO_FATAL_FAILURE(show());
    // The mark needs room beside some of them.
    ASSERT_TRUE(
        Kolt::setParameterValue(*object->parameters().back(), 2, nullptr, std::string(), true, nullptr, nullptr));
    for (int const width : {600, 260, 220, 180}) {
        panel->resize(width, 400);
        QCoreApplication::processEvents();
        for (auto const* const each : area()->rows()) {
            auto const* const label = each->nameLabel();
            auto const text = label->text().replace(QLatin1String("&&"), QLatin1String("&"));
            EXPECT_LE(label->fontMetrics().horizontalAdvance(text), label->width()) << width << text.toStdString();
            EXPECT_LE(label->geometry().right(), each->editor()->geometry().left()) << width << text.toStdString();
        }
    }
}

TEST_F(LongForm, AChangeOfAValueLaysOutNothingAroundItsSection) {
    auto const on = Parameter<bool>("on", false);
    add(on);
    ASSERT_NO_FATAL_FAILURE(show());
    // The first one makes the mark of a changed value.
    ASSERT_TRUE(on.write(true));
    QCoreApplication::processEvents();
    LayoutCounter counter;
    area()->widget()->installEventFilter(&counter);
    panel->installEventFilter(&counter);
    for (bool const value : {false, true, false}) {
        ASSERT_TRUE(on.write(value));
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(counter.count, 0);
}

TEST_F(LongForm, TheMarkNamesTheDefaultOfNow) {
    auto const size = Parameter<int>("size", 1);
    add(size);
    ASSERT_NO_FATAL_FAILURE(show());
    ASSERT_TRUE(size.write(2));
    EXPECT_EQ(row("size")->modifiedIndicator()->accessibleDescription(), QLatin1String("Default: 1"));
    row("size")->setAsDefault();
    EXPECT_FALSE(row("size")->modifiedIndicator()->isVisible());
    ASSERT_TRUE(size.write(3));
    EXPECT_TRUE(row("size")->modifiedIndicator()->isVisible());
    EXPECT_EQ(row("size")->modifiedIndicator()->accessibleDescription(), QLatin1String("Default: 2"));
}
