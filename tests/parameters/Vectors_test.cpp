// The components of a vector in one row of a form.

#include "parameters/FormTest.hpp"

#include <parameters/commands/ValueClipboard.hpp>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>

using Kolt::Parameter;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class VectorsTest : public FormTest {
protected:
    VectorsTest() : FormTest("box") {}

    /// Adds a number between -1000 and 1000 that shares the row of another one.
    Parameter<double> addNumber(char const* name, double value, char const* rowOf = "") {
        auto const number = Parameter<double>(name, value).min(-1000.0).max(1000.0);
        if (*rowOf)
            number.property("rowOf", rowOf);
        add(number);
        return number;
    }
    /// "Origin X", "Origin Y" and "Origin Z", after a parameter "on".
    void addOrigin() {
        add(Parameter<bool>("on", true));
        addNumber("Origin X", 1);
        addNumber("Origin Y", 2, "Origin X");
        addNumber("Origin Z", 3, "Origin X");
        add(Parameter<bool>("last", true));
    }
    void resizeForm(int width) const {
        panel->resize(width, 400);
        QCoreApplication::processEvents();
    }

    /// The place of a row in the form.
    QRect place(char const* name) const { return {row(name)->mapTo(area()->viewport(), QPoint()), row(name)->size()}; }
    std::vector<double> origin() const {
        std::vector<double> values;
        for (auto const* const name : {"Origin X", "Origin Y", "Origin Z"})
            values.push_back(Kolt::valueOr(object->findParameter(name)->ownValue(), 0.0));
        return values;
    }
    QString shortName(char const* name) const { return row(name)->nameLabel()->text(); }
};

} // namespace

TEST_F(VectorsTest, TheComponentsStandSideBySideBehindTheNameOfTheVector) {
    addOrigin();
    show();
    resizeForm(900);
    for (auto const direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        panel->setLayoutDirection(direction);
        QCoreApplication::processEvents();
        auto const x = place("Origin X");
        auto const y = place("Origin Y");
        auto const z = place("Origin Z");
        EXPECT_EQ(x.top(), y.top());
        EXPECT_EQ(y.top(), z.top());
        EXPECT_EQ(x.height(), z.height());
        bool const isLeftToRight = direction == Qt::LeftToRight;
        EXPECT_LT(isLeftToRight ? x.right() : y.right(), isLeftToRight ? y.left() : x.left());
        EXPECT_LT(isLeftToRight ? y.right() : z.right(), isLeftToRight ? z.left() : y.left());
        EXPECT_EQ(isLeftToRight ? x.left() : x.right(), isLeftToRight ? place("on").left() : place("on").right());
        EXPECT_EQ(isLeftToRight ? z.right() : z.left(), isLeftToRight ? place("on").right() : place("on").left());
        EXPECT_GT(place("last").top(), x.bottom());
        EXPECT_NEAR(row("Origin X")->editor()->width(), row("Origin Y")->editor()->width(), 2);
    }
}

TEST_F(VectorsTest, TheFirstNamesTheRowAndEachHasAShortLabel) {
    addOrigin();
    show();
    ASSERT_TRUE(row("Origin X")->vectorLabel());
    EXPECT_EQ(row("Origin X")->vectorLabel()->text(), QStringLiteral("Origin"));
    EXPECT_EQ(row("Origin Y")->vectorLabel(), nullptr);
    EXPECT_EQ(shortName("Origin X"), QStringLiteral("X"));
    EXPECT_EQ(shortName("Origin Z"), QStringLiteral("Z"));
    EXPECT_EQ(row("Origin Z")->editor()->accessibleName(), QStringLiteral("Origin Z"));
    EXPECT_EQ(row("Origin X")->editor()->accessibleName(), QStringLiteral("Origin X"));
}

TEST_F(VectorsTest, LabelsNameTheVectorAndItsComponents) {
    addNumber("a0", 1).label("Size");
    addNumber("a1", 2, "a0").label("high & wide");
    addNumber("minimum", 1);
    addNumber("maximum", 2, "minimum");
    addNumber("rangeFrom", 1);
    addNumber("rangeTo", 2, "rangeFrom");
    show();
    EXPECT_EQ(row("a0")->vectorLabel()->text(), QStringLiteral("Size"));
    EXPECT_EQ(shortName("a0"), QStringLiteral("0"));
    EXPECT_EQ(shortName("a1"), QStringLiteral("high && wide"));
    EXPECT_EQ(row("minimum")->vectorLabel()->text(), QStringLiteral("minimum")) << "\"m\" is no word";
    EXPECT_EQ(shortName("maximum"), QStringLiteral("maximum"));
    EXPECT_EQ(row("rangeFrom")->vectorLabel()->text(), QStringLiteral("range"));
    EXPECT_EQ(shortName("rangeTo"), QStringLiteral("To"));
}

TEST_F(VectorsTest, WhatRefersToNothingKeepsARowOfItsOwn) {
    addNumber("a", 1, "nothing");
    addNumber("b", 1, "b");
    addNumber("c", 1, "d");
    addNumber("d", 1);
    addNumber("e", 1, "a");
    show();
    for (auto const* const name : {"a", "b", "c", "d", "e"}) {
        EXPECT_EQ(row(name)->vectorLabel(), nullptr) << name;
        EXPECT_EQ(shortName(name), QLatin1String(name));
    }
}

TEST_F(VectorsTest, ANarrowFormHasFewerSideBySide) {
    addNumber("v0", 0);
    for (auto const* const name : {"v1", "v2", "v3", "v4", "v5"})
        addNumber(name, 1, "v0");
    show();
    resizeForm(1600);
    EXPECT_EQ(place("v2").top(), place("v0").top()) << "six are three and three, as at most four stand side by side";
    EXPECT_GT(place("v3").top(), place("v0").bottom());
    EXPECT_EQ(place("v3").left() + row("v3")->width(), place("v0").right() + 1) << "in columns";
    resizeForm(250);
    EXPECT_GT(place("v2").top(), place("v0").bottom());
    for (auto const* const name : {"v0", "v1", "v2", "v3", "v4", "v5"})
        EXPECT_TRUE(area()->viewport()->rect().contains({place(name).right(), 0})) << name << " is in reach";
    EXPECT_GE(row("v0")->editor()->width(), row("v0")->editor()->minimumSizeHint().width());
    resizeForm(1600);
    EXPECT_EQ(place("v2").top(), place("v0").top());
}

TEST_F(VectorsTest, TheFilterShowsTheWholeVectorAndAConditionHidesAComponent) {
    addOrigin();
    object->findParameter("Origin X")
        ->setProperty("visibleWhen", Kolt::makeValue(std::string("on=true")), nullptr, nullptr, nullptr);
    show();
    resizeForm(900);
    panel->setFilter("y");
    EXPECT_THAT(shownRows(), ElementsAre("Origin X", "Origin Y", "Origin Z"));
    panel->setFilter("");
    QTest::mouseClick(control<QCheckBox>("on"), Qt::LeftButton, {}, {8, control<QCheckBox>("on")->height() / 2});
    ASSERT_TRUE(waitUntil([&] { return !row("Origin X")->isVisible(); }));
    ASSERT_TRUE(row("Origin Y")->vectorLabel()) << "the first that is shown has the name";
    EXPECT_EQ(row("Origin Y")->vectorLabel()->text(), QStringLiteral("Origin"));
    EXPECT_EQ(place("Origin Y").left(), place("on").left());
    EXPECT_EQ(place("Origin Z").top(), place("Origin Y").top());
    history.undo();
    ASSERT_TRUE(waitUntil([&] { return row("Origin X")->isVisible(); }));
    EXPECT_EQ(row("Origin Y")->vectorLabel(), nullptr);
    EXPECT_GT(place("Origin Y").left(), place("Origin X").right());
}

TEST_F(VectorsTest, CopyAndPasteTakeTheWholeVectorAsOneStep) {
    addOrigin();
    show();
    row("Origin Y")->copyValue();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1 2 3"));
    QApplication::clipboard()->setText("4, 5\t-6.5");
    row("Origin Z")->pasteValue();
    EXPECT_THAT(origin(), ElementsAre(4, 5, -6.5));
    ASSERT_EQ(history.steps().size(), 1U);
    history.undo();
    EXPECT_THAT(origin(), ElementsAre(1, 2, 3));
}

TEST_F(VectorsTest, ValuesArriveExactlyAndOneValueGoesToOneComponent) {
    addOrigin();
    show();
    ASSERT_TRUE(Kolt::setParameterValue(*object->findParameter("Origin Y"), 1.0 / 3, nullptr, std::string(), true,
                                        nullptr, nullptr));
    row("Origin X")->copyValue();
    auto const copied = QApplication::clipboard()->mimeData()->data(Talo::ValueClipboard::mimeType());
    ASSERT_TRUE(Kolt::setParameterValue(*object->findParameter("Origin Y"), 9.0, nullptr, std::string(), true, nullptr,
                                        nullptr));
    row("Origin X")->pasteValue();
    EXPECT_THAT(origin(), ElementsAre(1, 1.0 / 3, 3)) << copied.toStdString();
    QApplication::clipboard()->setText("7");
    row("Origin Z")->pasteValue();
    EXPECT_THAT(origin(), ElementsAre(1, 1.0 / 3, 7));
}

TEST_F(VectorsTest, WhatCannotBePastedAsAWholeChangesNothing) {
    addOrigin();
    object->findParameter("Origin Z")->setProperty("readOnly", Kolt::makeValue(true), nullptr, nullptr, nullptr);
    show();
    QSignalSpy const refused(panel, &Talo::ParameterPanel::refused);
    QApplication::clipboard()->setText("4 5 6");
    row("Origin X")->pasteValue();
    EXPECT_EQ(refused.value(0).value(0).toString(), QStringLiteral("Origin Z cannot be changed here."));
    object->findParameter("Origin Z")->setProperty("readOnly", nullptr, nullptr, nullptr, nullptr);
    QApplication::clipboard()->setText("4 five 6");
    row("Origin X")->pasteValue();
    EXPECT_THAT(refused.value(1).value(0).toString().toStdString(), HasSubstr("\"five\" is no value of Origin Y"));
    row("Origin X")->copyValue();
    row("on")->pasteValue();
    EXPECT_THAT(refused.value(2).value(0).toString().toStdString(), HasSubstr("\"1 2 3\" is no value of on"));
    EXPECT_THAT(origin(), ElementsAre(1, 2, 3));
    EXPECT_THAT(history.steps(), IsEmpty());
}

TEST_F(VectorsTest, ADotMarksTheComponentAndMovesNothing) {
    addOrigin();
    show();
    resizeForm(900);
    auto const before = row("Origin Y")->editor()->geometry();
    row("Origin Y")->setFocus();
    ASSERT_TRUE(Kolt::setParameterValue(*object->findParameter("Origin Y"), 9.0, nullptr, std::string(), true, nullptr,
                                        nullptr));
    QCoreApplication::processEvents();
    ASSERT_TRUE(row("Origin Y")->modifiedIndicator() && row("Origin Y")->modifiedIndicator()->isVisible());
    EXPECT_EQ(row("Origin X")->modifiedIndicator(), nullptr);
    EXPECT_EQ(row("Origin Y")->editor()->geometry(), before);
    EXPECT_EQ(row("Origin Y")->modifiedIndicator()->accessibleName(), QStringLiteral("Reset Origin Y to its default"));
    QTest::mouseClick(row("Origin Y")->modifiedIndicator(), Qt::LeftButton);
    EXPECT_THAT(origin(), ElementsAre(1, 2, 3));
}

TEST_F(VectorsTest, TabGoesThroughTheComponentsInTheirOrder) {
    addOrigin();
    show();
    resizeForm(900);
    control<QCheckBox>("on")->setFocus();
    std::vector<std::string> visited;
    for (int steps = 0; steps < 12 && (visited.empty() || visited.back() != "last"); ++steps) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        auto const* const current = Talo::ParameterRow::rowOf(QApplication::focusWidget());
        ASSERT_TRUE(current);
        auto const name = current->parameterName().toStdString();
        if (visited.empty() || visited.back() != name)
            visited.push_back(name);
    }
    EXPECT_THAT(visited, ElementsAre("Origin X", "Origin Y", "Origin Z", "last"));
}

TEST_F(VectorsTest, ManyVectorsAreMadeWhereTheyAreSeen) {
    for (int number = 0; number < 300; ++number) {
        auto const first = "v" + std::to_string(number) + " x";
        addNumber(first.c_str(), number);
        addNumber(("v" + std::to_string(number) + " y").c_str(), number, first.c_str());
    }
    show();
    resizeForm(900);
    EXPECT_LT(area()->rows().size(), 60U);
    area()->showRow("v250 y");
    QCoreApplication::processEvents();
    EXPECT_TRUE(row("v250 x")->isVisible());
    EXPECT_EQ(place("v250 x").top(), place("v250 y").top());
    EXPECT_TRUE(area()->viewport()->rect().contains(place("v250 y")));
    EXPECT_LT(area()->rows().size(), 200U);
}
