#include "QFloatTest.hpp"

#include <QAccessible>

using Kolt::ParameterPtr;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// What an editor says about its number besides the text: tool tip, mark and accessible value.
class QFloatFactsTest : public QFloatTest {
protected:
    static QAccessibleInterface* accessible(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }
    static QImage picture(QWidget* widget) { return widget->grab().toImage(); }
};

} // namespace

TEST_F(QFloatFactsTest, TheToolTipHasAllDigitsTheRangeAndTheKeys) {
    auto const parameter = bounded(1 / 3.0, -1.5, 2.0, 200);
    auto const editor = open(parameter);
    for (QWidget* const part : std::vector<QWidget*>{editor.widget, lineEdit(editor), slider(editor)}) {
        EXPECT_THAT(toolTip(part), StartsWith("0.3333333333333333\n-1.5 to 2\n"));
        EXPECT_THAT(toolTip(part), HasSubstr("Escape"));
        EXPECT_THAT(toolTip(part), HasSubstr("90 per cent"));
    }
    auto const dialEditor = open(bounded(0.5, 0.0, 1.0, 200, {"dial"}));
    EXPECT_THAT(toolTip(dial(dialEditor)), Not(HasSubstr("per cent"))) << "its keys do nothing";
    changeElsewhere(parameter, 1e-12, firstPool);
    EXPECT_THAT(toolTip(lineEdit(editor)), HasSubstr("1e-12"));
    slider(editor)->setValue(0);
    EXPECT_THAT(toolTip(slider(editor)), HasSubstr("-1.5\n"));
}

TEST_F(QFloatFactsTest, ANumberOutsideTheRangeIsMarked) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}}) {
        auto const parameter = bounded(0.5, 0.0, 1.0, 200, preferences);
        auto const editor = open(parameter);
        auto const inside = picture(lineEdit(editor));
        type(editor, "500");
        EXPECT_TRUE(lineEdit(editor)->isMarked());
        EXPECT_THAT(toolTip(lineEdit(editor)), HasSubstr("outside 0 to 1"));
        EXPECT_THAT(toolTip(editor.widget), HasSubstr("outside 0 to 1"));
        EXPECT_THAT(lineEdit(editor)->toolTip().toStdString(), HasSubstr("outside 0 to 1")) << "for screen readers";
        setProperty(parameter, "max", Kolt::makeValue(1000.0));
        EXPECT_FALSE(lineEdit(editor)->isMarked());
        EXPECT_THAT(toolTip(lineEdit(editor)), HasSubstr("\n0 to 1000"));
        changeElsewhere(parameter, -0.001, firstPool);
        EXPECT_TRUE(lineEdit(editor)->isMarked());
        changeElsewhere(parameter, 0.5, firstPool);
        EXPECT_FALSE(lineEdit(editor)->isMarked());
        EXPECT_EQ(picture(lineEdit(editor)), inside);
    }
}

TEST_F(QFloatFactsTest, TheMarkCanBeSeen) {
    auto const parameter = bounded(500.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    auto const marked = picture(lineEdit(editor));
    setProperty(parameter, "max", Kolt::makeValue(1000.0));
    EXPECT_NE(picture(lineEdit(editor)), marked);
}

TEST_F(QFloatFactsTest, BoundsInTheWrongOrderAreNoRange) {
    auto const parameter = bounded(5.0, 3.0, -3.0, 200);
    auto const editor = open(parameter);
    EXPECT_FALSE(lineEdit(editor)->isMarked());
    EXPECT_THAT(toolTip(lineEdit(editor)), StartsWith("5\nReturn"));
}

TEST_F(QFloatFactsTest, TheAccessibleValueIsTheNumber) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}}) {
        auto const parameter = bounded(0.25, -1.0, 1.0, 200, preferences);
        auto const editor = open(parameter);
        auto* const control = editor.widget->findChild<QAbstractSlider*>();
        auto* const interface = accessible(control);
        ASSERT_NE(interface, nullptr);
        auto* const value = interface->valueInterface();
        ASSERT_NE(value, nullptr);
        EXPECT_EQ(interface->role(), preferences.empty() ? QAccessible::Slider : QAccessible::Dial);
        EXPECT_EQ(value->currentValue().toDouble(), 0.25);
        EXPECT_EQ(interface->text(QAccessible::Value), QLatin1String("0.25"));
        EXPECT_EQ(value->minimumValue().toDouble(), -1.0);
        EXPECT_EQ(value->maximumValue().toDouble(), 1.0);
        EXPECT_EQ(value->minimumStepSize().toDouble(), 2.0 / 199);
        control->setValue(150);
        EXPECT_EQ(value->currentValue().toDouble(), 0.5);
        type(editor, "500");
        EXPECT_EQ(value->currentValue().toDouble(), 500.0);
        value->setCurrentValue(-0.5);
        EXPECT_EQ(held(parameter), -0.5);
        control->setAccessibleName(QStringLiteral("scale"));
        EXPECT_EQ(interface->text(QAccessible::Name), QLatin1String("scale"));
    }
}

TEST_F(QFloatFactsTest, OtherSlidersReportTheirPosition) {
    auto const editor = open(real(0.25));
    QSlider plain(Qt::Horizontal);
    plain.setValue(7);
    auto* const interface = accessible(&plain);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->text(QAccessible::Value), QLatin1String("7"));
}

TEST_F(QFloatFactsTest, TheToolTipOfTheHostStays) {
    auto const editor = open(bounded(0.5, 0.0, 1.0, 200));
    editor.widget->setToolTip(QStringLiteral("how much"));
    EXPECT_EQ(toolTip(slider(editor)), "how much");
}

TEST_F(QFloatFactsTest, AWiderControlDoesNotChangeTheRangeOfTheParameter) {
    auto const parameter = bounded(1.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    for (auto const key : {Qt::Key_Plus, Qt::Key_Down})
        QTest::keyClick(slider(editor), key);
    slider(editor)->setValue(slider(editor)->maximum());
    ASSERT_GT(held(parameter), 1.0);
    EXPECT_THAT(toolTip(slider(editor)), HasSubstr("outside 0 to 1\n"));
}
