#include "support/TaloTest.hpp"

#include <parameters/rows/RowLayout.hpp>

using Talo::RowLayout;

namespace {

/// Two sections with three and two rows; rows 0, 2 and 3 share a height class, the others share another.
class RowLayoutTest : public TaloTest {
protected:
    RowLayoutTest() {
        layout.addSection();
        for (auto const heightClass : {0U, 1U, 0U})
            layout.addRow(heightClass);
        layout.addSection();
        for (auto const heightClass : {0U, 1U})
            layout.addRow(heightClass);
        layout.setSectionMargins(0, {10, 3, 8});
        layout.setSectionMargins(1, {20, 5, 16});
        layout.arrange();
    }

    // The space above, below, between sections and between rows, and the height of rows whose height is unknown.
    RowLayout layout{{7, 9, 11, 2, 30}};
};

} // namespace

TEST_F(RowLayoutTest, RowsOfUnknownHeightAreBelowEachOther) {
    EXPECT_EQ(layout.rowCount(), 5U);
    EXPECT_EQ(layout.sectionCount(), 2U);
    EXPECT_EQ(layout.sectionTop(0), 7);
    EXPECT_EQ(layout.top(0), 17);
    EXPECT_EQ(layout.top(1), 17 + 32);
    EXPECT_EQ(layout.top(2), 17 + 64);
    EXPECT_EQ(layout.sectionHeight(0), 10 + 3 * 30 + 2 * 2 + 3);
    EXPECT_EQ(layout.sectionTop(1), 7 + 107 + 11);
    EXPECT_EQ(layout.top(3), 125 + 20);
    EXPECT_EQ(layout.sectionHeight(1), 20 + 2 * 30 + 2 + 5);
    EXPECT_EQ(layout.totalHeight(), 125 + 87 + 9);
    EXPECT_EQ(layout.sectionOf(2), 0U);
    EXPECT_EQ(layout.sectionOf(3), 1U);
}

TEST_F(RowLayoutTest, OfAFoldedSectionOnlyTheTitleHasAPlace) {
    layout.setFolded(0, true);
    layout.arrange();
    EXPECT_TRUE(layout.isFolded(0));
    EXPECT_EQ(layout.sectionHeight(0), 8);
    EXPECT_EQ(layout.sectionTop(1), 7 + 8 + 11);
    EXPECT_FALSE(layout.isShown(1));
    EXPECT_TRUE(layout.isShown(3));
    EXPECT_EQ(layout.shownCount(), 5U) << "they are not hidden by a filter";
    EXPECT_EQ(layout.firstRowBelow(15), 3U);
    for (auto const row : {0U, 1U, 2U})
        layout.setShown(row, false);
    layout.arrange();
    EXPECT_EQ(layout.sectionHeight(0), 0) << "without a shown row there is no title";
    layout.setFolded(0, false);
    layout.setShown(1, true);
    layout.arrange();
    EXPECT_EQ(layout.sectionHeight(0), 10 + 30 + 3);
    EXPECT_TRUE(layout.isShown(1));
}

TEST_F(RowLayoutTest, AMeasuredRowIsTheEstimateForItsClassOnly) {
    EXPECT_TRUE(layout.setHeight(0, 50));
    EXPECT_FALSE(layout.setHeight(0, 50)) << "the same height is no change";
    layout.arrange();
    EXPECT_EQ(layout.height(0), 50);
    EXPECT_EQ(layout.height(1), 30);
    EXPECT_EQ(layout.height(2), 50);
    EXPECT_EQ(layout.height(3), 50);
    EXPECT_EQ(layout.height(4), 30);
}

TEST_F(RowLayoutTest, AMeasuredRowKeepsItsHeightWhenAnotherOneOfItsClassIsMeasured) {
    layout.setHeight(0, 50);
    layout.setHeight(2, 70);
    layout.arrange();
    EXPECT_EQ(layout.height(0), 50);
    EXPECT_EQ(layout.height(2), 70);
    EXPECT_EQ(layout.height(3), 70) << "the latest measure is the estimate";
    layout.dropHeight(0);
    layout.arrange();
    EXPECT_EQ(layout.height(0), 70) << "a row that no longer exists is estimated again";
}

TEST_F(RowLayoutTest, ForgottenEstimatesComeBackWithTheNextMeasure) {
    layout.setHeight(0, 50);
    layout.arrange();
    layout.forgetEstimates();
    layout.arrange();
    EXPECT_EQ(layout.height(3), 50) << "nothing better is known";
    layout.setHeight(0, 60);
    layout.arrange();
    EXPECT_EQ(layout.height(3), 60);
}

TEST_F(RowLayoutTest, AHiddenRowTakesNoRoom) {
    layout.setShown(1, false);
    layout.arrange();
    EXPECT_EQ(layout.shownCount(), 4U);
    EXPECT_EQ(layout.top(2), 17 + 32) << "where the hidden row would begin";
    EXPECT_EQ(layout.top(1), layout.top(2));
    EXPECT_EQ(layout.sectionHeight(0), 10 + 2 * 30 + 2 + 3);
}

TEST_F(RowLayoutTest, ASectionWithoutShownRowsTakesNoRoom) {
    for (auto const row : {0U, 1U, 2U})
        layout.setShown(row, false);
    layout.arrange();
    EXPECT_EQ(layout.sectionHeight(0), 0);
    EXPECT_EQ(layout.sectionTop(1), 7);
    EXPECT_EQ(layout.totalHeight(), 7 + 87 + 9);
}

TEST_F(RowLayoutTest, TheFirstRowBelowAPlaceIsFound) {
    EXPECT_EQ(layout.firstRowBelow(-100), 0U);
    EXPECT_EQ(layout.firstRowBelow(layout.bottom(0) - 1), 0U);
    EXPECT_EQ(layout.firstRowBelow(layout.bottom(0)), 1U);
    EXPECT_EQ(layout.firstRowBelow(layout.bottom(4)), layout.rowCount());
}

TEST_F(RowLayoutTest, AHighHiddenRowDoesNotHideTheRowsAfterIt) {
    layout.setHeight(1, 500);
    layout.setShown(1, false);
    layout.arrange();
    EXPECT_EQ(layout.firstRowBelow(layout.bottom(0)), 1U) << "the place of the hidden row";
    EXPECT_EQ(layout.firstRowBelow(layout.top(2) + 1), 2U);
    EXPECT_EQ(layout.firstRowBelow(layout.bottom(2)), 3U);
}
