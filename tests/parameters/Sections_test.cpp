// The sections of a form: how they are folded, and what stays reachable.

#include "parameters/FormTest.hpp"

#include <parameters/rows/SectionBox.hpp>
#include <QCheckBox>
#include <QSignalSpy>

using Kolt::Parameter;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A form with three sections: one without a title, "Motor" and "Housing".
class SectionsTest : public FormTest {
protected:
    SectionsTest() : FormTest("pump") {}

    void SetUp() override {
        FormTest::SetUp();
        for (auto const* const name : {"on", "Motor.fast", "Motor.loud", "Housing.red", "Housing.open"})
            add(Parameter<bool>(name, false));
        ASSERT_NO_FATAL_FAILURE(show());
    }

    Talo::SectionBox* box(char const* title) const {
        for (auto* const each : area()->findChildren<Talo::SectionBox*>())
            if (each->title() == QLatin1String(title))
                return each;
        return nullptr;
    }
    void clickTitle(char const* title) const { QTest::mouseClick(box(title), Qt::LeftButton, {}, {10, 6}); }
};

} // namespace

TEST_F(SectionsTest, AClickOnTheTitleFoldsAndOpens) {
    QSignalSpy const changed(area(), &Talo::RowArea::foldChanged);
    int const openHeight = box("Motor")->height();
    int const before = box("Housing")->y();
    clickTitle("Motor");
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(box("Motor")->isFolded());
    EXPECT_TRUE(box("Motor")->isVisible());
    EXPECT_EQ(box("Motor")->height(), box("Motor")->foldedHeight());
    EXPECT_EQ(box("Housing")->y(), before - (openHeight - box("Motor")->height()));
    EXPECT_THAT(shownRows(), ElementsAre("on", "Housing.red", "Housing.open"));
    EXPECT_EQ(area()->foldedSections(), QStringList{"Motor"});
    clickTitle("Motor");
    EXPECT_EQ(box("Motor")->height(), openHeight);
    EXPECT_EQ(box("Housing")->y(), before);
    EXPECT_THAT(shownRows(), ElementsAre("on", "Motor.fast", "Motor.loud", "Housing.red", "Housing.open"));
    EXPECT_THAT(area()->foldedSections(), IsEmpty());
}

TEST_F(SectionsTest, OtherPlacesDoNotFold) {
    QSignalSpy const changed(area(), &Talo::RowArea::foldChanged);
    QTest::mouseClick(box("Motor"), Qt::LeftButton, {}, {3, box("Motor")->height() - 3});
    QTest::mouseClick(box("Motor"), Qt::RightButton, {}, {10, 6});
    QTest::mouseClick(box(""), Qt::LeftButton, {}, {10, 3});
    QTest::mousePress(box("Motor"), Qt::LeftButton, {}, {10, 6});
    QTest::mouseRelease(box("Motor"), Qt::LeftButton, {}, {10, box("Motor")->height() - 3});
    EXPECT_EQ(changed.size(), 0);
}

TEST_F(SectionsTest, TabLeavesFoldedRowsOut) {
    clickTitle("Motor");
    auto* const first = row("on")->editor()->findChild<QCheckBox*>();
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(row("Housing.red")->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), first);
}

TEST_F(SectionsTest, TheFilterShowsWhatIsFolded) {
    clickTitle("Motor");
    panel->setFilter("loud");
    EXPECT_THAT(shownRows(), ElementsAre("Motor.loud"));
    EXPECT_FALSE(box("Motor")->isFolded());
    EXPECT_EQ(area()->foldedSections(), QStringList{"Motor"});
    panel->setFilter("");
    EXPECT_THAT(shownRows(), ElementsAre("on", "Housing.red", "Housing.open"));
}

TEST_F(SectionsTest, AllAreFoldedAndOpenedByOneCommand) {
    QSignalSpy const changed(area(), &Talo::RowArea::foldChanged);
    area()->foldAllSections(true);
    EXPECT_THAT(shownRows(), ElementsAre("on")) << "rows without a section stay";
    EXPECT_EQ(area()->foldedSections(), (QStringList{"Housing", "Motor"}));
    area()->foldAllSections(false);
    EXPECT_EQ(shownRows().size(), 5U);
    EXPECT_EQ(changed.size(), 2);
}

TEST_F(SectionsTest, AFoldedSectionOfANewFormHasItsTitle) {
    auto* const second = new Talo::ParameterPanel(object, pools);
    second->rowArea()->setFoldedSections({QStringLiteral("Motor"), QStringLiteral("no such section")});
    second->resize(600, 400);
    second->show();
    QPointer<Talo::SectionBox> folded;
    for (auto* const each : second->findChildren<Talo::SectionBox*>())
        if (each->title() == QLatin1String("Motor"))
            folded = each;
    ASSERT_TRUE(folded);
    EXPECT_TRUE(folded->isFolded());
    EXPECT_TRUE(folded->isVisible());
    QTest::mouseClick(folded, Qt::LeftButton, {}, {10, 6});
    EXPECT_TRUE(second->rowArea()->row(QStringLiteral("Motor.fast"))->isVisible());
    delete second;
}

TEST_F(SectionsTest, AHiddenSectionHasNoTitle) {
    clickTitle("Motor");
    for (auto const* const name : {"Motor.fast", "Motor.loud"})
        object->findParameter(name)->setProperty("advanced", Kolt::makeValue(true), nullptr, nullptr, nullptr);
    auto* const second = new Talo::ParameterPanel(object, pools, parent);
    second->resize(600, 400);
    second->show();
    for (auto* const each : second->findChildren<Talo::SectionBox*>())
        EXPECT_NE(each->title(), QStringLiteral("Motor"));
    second->setAdvancedShown(true);
    EXPECT_TRUE(second->rowArea()->row(QStringLiteral("Motor.fast"))->isVisible());
}
