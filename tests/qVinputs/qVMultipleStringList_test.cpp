#include "MultipleSelectionTest.hpp"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace std::string_literals;
using Rows = std::vector<int>;

namespace {

class MultipleStringListTest : public MultipleSelectionTest {
protected:
    static std::string typeName() { return Tessera::Typename(typeid(Selection)); }
};

} // namespace

TEST_F(MultipleStringListTest, IsAFrameWithAColumnOfControlsAndAListOfRows) {
    auto const parameter = parameterOf(makeSelection(rowNames(3), {"row 1"}));
    auto const editor = open(parameter);
    auto const& widget = *editor.widget;
    ASSERT_NE(qobject_cast<QFrame const*>(&widget), nullptr);
    EXPECT_STREQ(widget.metaObject()->className(), "Kolt::qVMultipleStringList");
    EXPECT_STREQ(widget.metaObject()->superClass()->className(), "QFrame");
    EXPECT_EQ(slotsOf(widget), (QStringList{"updateSelection()", "updateSelectionA(QListWidgetItem*)", "wildSelect()",
                                            "numberSelect()"}));
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<VMultipleStringList>"), nullptr);

    auto* const row = qobject_cast<QHBoxLayout*>(widget.layout());
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->count(), 2);
    auto* const column = qobject_cast<QVBoxLayout*>(row->itemAt(0)->layout());
    ASSERT_NE(column, nullptr);
    EXPECT_EQ(row->itemAt(1)->widget(), list(widget));
    EXPECT_EQ(row->stretch(0), 0);
    EXPECT_EQ(row->stretch(1), 0);
    EXPECT_EQ(qobject_cast<QFrame const*>(&widget)->frameStyle(), QFrame().frameStyle());
    std::vector<QWidget*> const expected = {
        button(widget, "All"),      button(widget, "None"), button(widget, "Inverse"),   removeBox(widget),
        label(widget, "Wildcard:"), wildcardEdit(widget),   label(widget, "By Number:"), numberEdit(widget)};
    ASSERT_EQ(column->count(), 8);
    for (int place = 0; place < 8; ++place)
        EXPECT_EQ(column->itemAt(place)->widget(), expected[static_cast<std::size_t>(place)]) << place;
    for (int place = 0; place < 8; ++place)
        EXPECT_EQ(column->stretch(place), 0) << place;
    EXPECT_EQ(removeBox(widget)->text(), "remove");
    EXPECT_FALSE(removeBox(widget)->isChecked());

    EXPECT_EQ(list(widget)->movement(), QListView::Static);
    EXPECT_EQ(list(widget)->selectionMode(), QAbstractItemView::MultiSelection);
    EXPECT_TRUE(list(widget)->isVisibleTo(editor.widget));
    ASSERT_EQ(list(widget)->count(), 3);
    EXPECT_EQ(list(widget)->item(2)->text(), "row 2");
    EXPECT_EQ(selectedRows(widget), Rows{1});
    EXPECT_EQ(list(widget)->currentRow(), 1);
}

TEST_F(MultipleStringListTest, TheToolTipsExplainTheFields) {
    auto const parameter = parameterOf(makeSelection({}));
    auto const editor = open(parameter);
    auto const& widget = *editor.widget;
    EXPECT_EQ(removeBox(widget)->toolTip(), "Removes selections specified by Wildcard of by Numbers if checked. ");
    QString const wildcards = "Use a common wildcard for selection: e.g. *foo*004*. Enter triggers the selection.";
    EXPECT_EQ(wildcardEdit(widget)->toolTip(), wildcards);
    EXPECT_EQ(label(widget, "Wildcard:")->toolTip(), wildcards);
    QString const numbers =
        "Use numbers of items for selection. e.g. 0-5,9 selects the range from 0 to 5 and item number 9. Also use "
        "2nd, 3rd, 4th, etc to select every 2nd and so on. This can be shifted by adding a number: e.g. 4th+2 selects "
        "every forth item and starting with the 3rd. Enter triggers the selection.";
    EXPECT_EQ(numberEdit(widget)->toolTip(), numbers);
    EXPECT_EQ(label(widget, "By Number:")->toolTip(), numbers);
}

TEST_F(MultipleStringListTest, TheSizeFollowsTheLongestTextAndTheListsOwnHint) {
    auto const parameter = parameterOf(makeSelection({"short", std::string(200, 'W')}));
    auto const editor = open(parameter);
    auto const hint = list(*editor.widget)->sizeHint();
    auto const text = QFontMetrics(list(*editor.widget)->font()).horizontalAdvance(QString(200, 'W'));
    auto const height = static_cast<int>(hint.height() * 1.3);
    ASSERT_GT(text * 15 / 10, hint.width());
    QSize const wide(text * 15 / 10, height);
    EXPECT_EQ(editor.widget->minimumSize(), wide);
    EXPECT_EQ(editor.widget->maximumSize(), wide);
    EXPECT_EQ(editor.widget->size(), wide);

    setElsewhere(parameter, makeSelection({"short"}));
    EXPECT_EQ(editor.widget->size(), QSize(hint.width(), height)) << "the widths are measured anew";
}

TEST_F(MultipleStringListTest, AnotherFontOfTheListCountsWithTheNextValue) {
    auto const parameter = parameterOf(makeSelection({std::string(200, 'W')}));
    auto const editor = open(parameter);
    auto const before = editor.widget->width();
    auto font = list(*editor.widget)->font();
    font.setPixelSize(3 * QFontInfo(font).pixelSize());
    list(*editor.widget)->setFont(font);
    tellOfChange(parameter);
    EXPECT_EQ(editor.widget->width(), QFontMetrics(font).horizontalAdvance(QString(200, 'W')) * 15 / 10);
    EXPECT_GT(editor.widget->width(), before);
}

TEST_F(MultipleStringListTest, AnEmptyListTakesItsSizeFromItsOwnHint) {
    auto const parameter = parameterOf(makeSelection({}));
    auto const editor = open(parameter);
    auto const hint = list(*editor.widget)->sizeHint();
    EXPECT_EQ(list(*editor.widget)->count(), 0);
    EXPECT_EQ(editor.widget->size(), QSize(hint.width(), static_cast<int>(hint.height() * 1.3)));
    record(parameter);
    for (auto const* const label : {"All", "None", "Inverse"})
        press(*editor.widget, label);
    enterWildcard(*editor.widget, "*");
    enterNumbers(*editor.widget, "0,1st,0-0");
    EXPECT_EQ(commits(), 5U);
}

TEST_F(MultipleStringListTest, AParentIsAdjustedAndAMissingOneIsNot) {
    auto const parameter = parameterOf(makeSelection({std::string(200, 'W')}));
    auto const creator = qtCreator(typeName(), "selection");
    auto* const frame = new QWidget(parent);
    frame->resize(10, 10);
    auto* const layout = new QVBoxLayout(frame);
    auto const inside = creator->create(parameter, frame, &pools);
    layout->addWidget(inside.first);
    tellOfChange(parameter);
    EXPECT_EQ(frame->size(), frame->sizeHint());

    auto const alone = creator->create(parameter, nullptr, &pools);
    ASSERT_TRUE(alone.first);
    tellOfChange(parameter);
    delete alone.first;
}

TEST_F(MultipleStringListTest, TheTraceLineIsPrintedForEveryFilling) {
    auto const parameter = parameterOf(makeSelection(rowNames(2)));
    auto const editor = open(parameter);
    EXPECT_EQ(takeWrittenOutput(), trace + "\n"s) << "once at the start, and flushed";
    tellOfChange(parameter);
    tellOfChange(parameter);
    EXPECT_EQ(takeOutput(), Lines(2, trace));
    press(*editor.widget, "All");
    enterNumbers(*editor.widget, "1");
    EXPECT_EQ(takeOutput(), Lines()) << "what the user does fills nothing";
    editor.input.strong()->onValueChange(Kolt::makeValue(1), Kolt::VContext(firstPool, nullptr), nullptr);
    setElsewhere(parameter, Selection());
    EXPECT_EQ(takeOutput(), Lines()) << "a value of another type, or without a selection, fills nothing";
    EXPECT_EQ(list(*editor.widget)->count(), 2);
}

TEST_F(MultipleStringListTest, WithoutASelectionObjectNothingIsFilledNorPrinted) {
    auto const parameter = parameterOf(Selection());
    auto const editor = open(parameter);
    EXPECT_EQ(takeOutput(), Lines());
    EXPECT_EQ(list(*editor.widget)->count(), 0);
    record(parameter);
    press(*editor.widget, "All");
    EXPECT_EQ(commits(), 1U) << "the rest of the commit runs";
}

TEST_F(MultipleStringListTest, WhenTheSelectionObjectGoesTheViewPartAndTheCommitRemain) {
    auto const selection = makeSelection(rowNames(4), {"row 0"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    setElsewhere(parameter, Selection());
    record(parameter);
    press(*editor.widget, "Inverse");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{1, 2, 3}));
    enterNumbers(*editor.widget, "0");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 1, 2, 3}));
    removeBox(*editor.widget)->setChecked(true);
    enterWildcard(*editor.widget, "*1");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2, 3}));
    removeBox(*editor.widget)->setChecked(false);
    press(*editor.widget, "None");
    enterNumbers(*editor.widget, "0-1,3");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 1, 3})) << "every row that is named";
    press(*editor.widget, "All");
    EXPECT_EQ(commits(), 6U);
    click(*editor.widget, 1);
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2, 3}));
    EXPECT_EQ(commits(), 6U) << "a click stops before the commit";
    EXPECT_EQ(chosen(selection), "row 0") << "the editor does not know it any more";
}

TEST_F(MultipleStringListTest, AClickTogglesOneRow) {
    auto const selection = makeSelection(rowNames(4), {"row 0"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    click(*editor.widget, 2);
    EXPECT_EQ(chosen(selection), "row 0\nrow 2");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2}));
    click(*editor.widget, 0);
    EXPECT_EQ(chosen(selection), "row 2");
    EXPECT_EQ(recorder.values, (Lines{"row 0\nrow 2", "row 2"}));
    EXPECT_GT(parameter->ownValue()->age(), 0U);
}

TEST_F(MultipleStringListTest, AfterAClickTheChoiceIsWhatTheListShows) {
    auto const selection = makeSelection(rowNames(4), {"row 0"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    selection->add("row 3");
    click(*editor.widget, 1);
    EXPECT_EQ(chosen(selection), "row 0\nrow 1");
}

TEST_F(MultipleStringListTest, AClickWithoutAPoolChangesTheViewAlone) {
    auto const selection = makeSelection(rowNames(3));
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    pools.use(nullptr);
    click(*editor.widget, 1);
    EXPECT_EQ(selectedRows(*editor.widget), Rows{1});
    EXPECT_EQ(chosen(selection), "");
    EXPECT_EQ(commits(), 0U);
}

TEST_F(MultipleStringListTest, EveryOtherActionWithoutAPoolChangesInPlaceAndStoresNothing) {
    auto const selection = makeSelection(rowNames(4));
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    pools.use(nullptr);
    press(*editor.widget, "All");
    EXPECT_EQ(chosen(selection), "row 0\nrow 1\nrow 2\nrow 3");
    press(*editor.widget, "None");
    EXPECT_EQ(chosen(selection), "");
    enterNumbers(*editor.widget, "1");
    EXPECT_EQ(chosen(selection), "row 1");
    enterWildcard(*editor.widget, "*3");
    EXPECT_EQ(chosen(selection), "row 1\nrow 3");
    press(*editor.widget, "Inverse");
    EXPECT_EQ(chosen(selection), "row 0\nrow 2");
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(MultipleStringListTest, TheKeyboardChangesTheViewUntilTheNextRelease) {
    auto const selection = makeSelection(rowNames(4));
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    parent->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return parent->isActiveWindow(); }));
    record(parameter);
    auto* const rows = list(*editor.widget);
    rows->setFocus();
    rows->setCurrentRow(1, QItemSelectionModel::NoUpdate);
    QTest::keyClick(rows, Qt::Key_Space);
    EXPECT_EQ(selectedRows(*editor.widget), Rows{1});
    EXPECT_EQ(chosen(selection), "");
    EXPECT_EQ(commits(), 0U);
    click(*editor.widget, 3);
    EXPECT_EQ(chosen(selection), "row 1\nrow 3");
    EXPECT_EQ(commits(), 1U);
}

TEST_F(MultipleStringListTest, AllNoneAndInverseChangeTheViewAndTheChoice) {
    auto const selection = makeSelection(rowNames(4), {"row 0", "row 2"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    press(*editor.widget, "Inverse");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{1, 3}));
    EXPECT_EQ(chosen(selection), "row 1\nrow 3");
    press(*editor.widget, "All");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 1, 2, 3}));
    EXPECT_EQ(chosen(selection), "row 0\nrow 1\nrow 2\nrow 3");
    press(*editor.widget, "None");
    EXPECT_EQ(selectedRows(*editor.widget), Rows());
    EXPECT_EQ(chosen(selection), "");
    EXPECT_EQ(commits(), 3U);
}

TEST_F(MultipleStringListTest, AfterNoneAClickLeavesExactlyItsRow) {
    auto const selection = makeSelection(rowNames(4), {"row 0", "row 2"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    press(*editor.widget, "None");
    click(*editor.widget, 3);
    EXPECT_EQ(selectedRows(*editor.widget), Rows{3});
    EXPECT_EQ(chosen(selection), "row 3");
}

TEST_F(MultipleStringListTest, TheButtonsActOnAPressOfAnyMouseButton) {
    auto const selection = makeSelection(rowNames(2));
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    for (auto const mouseButton : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        selection->removeAll();
        QTest::mousePress(button(*editor.widget, "All"), mouseButton);
        EXPECT_EQ(chosen(selection), "row 0\nrow 1") << mouseButton;
        QTest::mousePress(button(*editor.widget, "None"), mouseButton);
        EXPECT_EQ(chosen(selection), "") << mouseButton;
        QTest::mousePress(button(*editor.widget, "Inverse"), mouseButton);
        EXPECT_EQ(chosen(selection), "row 0\nrow 1") << mouseButton;
    }
    record(parameter);
    QTest::mouseRelease(button(*editor.widget, "All"), Qt::LeftButton);
    button(*editor.widget, "None")->click();
    EXPECT_EQ(commits(), 0U) << "neither a release nor a click by the program acts";
}

TEST_F(MultipleStringListTest, AllAndInverseReachRowsWithASlash) {
    auto const selection = makeSelection({"a", "b/c", "/"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    press(*editor.widget, "All");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 1, 2}));
    click(*editor.widget, 0);
    EXPECT_EQ(chosen(selection), "b/c\n/") << "the click loses none of them";
    press(*editor.widget, "Inverse");
    EXPECT_EQ(selectedRows(*editor.widget), Rows{0});
    EXPECT_EQ(chosen(selection), "a");
}

TEST_F(MultipleStringListTest, AClickInAListWithoutASelectionGivesThePoolNoValue) {
    auto const parameter = parameterOf(makeSelection(rowNames(3)), Values::PerPool);
    auto const editor = openShown(parameter);
    ASSERT_TRUE(parameter->ownValue()->assign(*Kolt::makeValue(Selection())));
    record(parameter);
    click(*editor.widget, 1);
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
    EXPECT_EQ(commits(), 0U);
}

TEST_F(MultipleStringListTest, RowsThatWereShownWhileOneIsPressedStayChosenWhenTheMouseMoves) {
    // Qt deselects the row that was selected last, unless another row was inserted after it.
    for (auto const& [rowCount, expected] : {std::pair<int, Rows>{8, {1, 2, 3, 5}}, {10, {1, 2, 3, 5, 7}}}) {
        auto const selection = makeSelection(rowNames(rowCount), {"row 1", "row 2", "row 5", "row 7"});
        auto const parameter = parameterOf(selection);
        auto const editor = openShown(parameter);
        auto* const rows = list(*editor.widget);
        auto const place = rows->visualItemRect(rows->item(3)).center();
        QTest::mousePress(rows->viewport(), Qt::LeftButton, {}, place);
        tellOfChange(parameter);
        EXPECT_EQ(selectedRows(*editor.widget), (Rows{1, 2, 5, 7}));
        move(*rows, place + QPoint(1, 0));
        QTest::mouseRelease(rows->viewport(), Qt::LeftButton, {}, place + QPoint(1, 0));
        EXPECT_EQ(selectedRows(*editor.widget), expected);
        EXPECT_EQ(selection->chosenCount(), expected.size());
    }
}
