// Long lists of texts in the editors of selections: filled anew only with other texts.

#include "MultipleSelectionTest.hpp"

#include <bramble/StringSelection.hpp>
#include <QComboBox>
#include <QSignalSpy>

namespace {

constexpr int rowsOfALongList = 300;

class LongListsTest : public MultipleSelectionTest {
protected:
    using Single = Kolt::VStringList;

    static Single single(std::vector<std::string> texts, std::string const& selected) {
        return Single(new Kolt::StringSelection(std::move(texts), selected));
    }
    static QComboBox* box(Kolt::Editor const& editor) { return editor.widget->findChild<QComboBox*>(); }
    static QSignalSpy insertions(QAbstractItemModel* model) {
        return QSignalSpy(model, &QAbstractItemModel::rowsInserted);
    }
};

} // namespace

TEST_F(LongListsTest, ABoxIsFilledOnlyWithOtherTexts) {
    auto const selection = single(rowNames(rowsOfALongList), "row 7");
    auto const parameter = parameterOf(selection);
    auto const editor = open(parameter);
    auto const inserted = insertions(box(editor)->model());
    selection->select("row 200");
    tellOfChange(parameter);
    EXPECT_EQ(box(editor)->currentText(), QStringLiteral("row 200"));
    // Equal texts of another list are no other texts.
    setElsewhere(parameter, single(rowNames(rowsOfALongList), "row 299"));
    EXPECT_EQ(box(editor)->currentIndex(), 299);
    setElsewhere(parameter, single(rowNames(rowsOfALongList), ""));
    EXPECT_EQ(box(editor)->currentIndex(), 0);
    EXPECT_EQ(inserted.count(), 0);
    auto others = rowNames(rowsOfALongList);
    others[5] = "another";
    setElsewhere(parameter, single(others, "row 299"));
    EXPECT_EQ(box(editor)->itemText(5), QStringLiteral("another"));
    EXPECT_EQ(box(editor)->currentIndex(), 299);
}

TEST_F(LongListsTest, OfEqualTextsTheBoxShowsTheLastOne) {
    auto texts = rowNames(rowsOfALongList);
    texts[250] = "row 3";
    auto const selection = single(texts, "row 7");
    auto const parameter = parameterOf(selection);
    auto const editor = open(parameter);
    auto const inserted = insertions(box(editor)->model());
    selection->select("row 3");
    tellOfChange(parameter);
    EXPECT_EQ(box(editor)->currentIndex(), 250);
    EXPECT_EQ(inserted.count(), 0);
}

TEST_F(LongListsTest, EntriesThatTheListDoesNotHaveGoWithTheNextChange) {
    auto const selection = single(rowNames(rowsOfALongList), "row 7");
    auto const parameter = parameterOf(selection, Values::Shared, {"editable"});
    auto const editor = open(parameter);
    auto* const field = box(editor)->lineEdit();
    field->selectAll();
    QTest::keyClicks(box(editor), QStringLiteral("typed"));
    QTest::keyClick(box(editor), Qt::Key_Return);
    EXPECT_EQ(printed(), Lines{"FAILED selecting element"});
    ASSERT_EQ(box(editor)->count(), rowsOfALongList + 1);
    tellOfChange(parameter);
    EXPECT_EQ(box(editor)->count(), rowsOfALongList);
    EXPECT_EQ(field->text(), QStringLiteral("row 7"));
    box(editor)->setItemText(9, QStringLiteral("changed"));
    tellOfChange(parameter);
    EXPECT_EQ(box(editor)->itemText(9), QStringLiteral("row 9"));
    // What was typed and not entered goes, too, without the focus.
    field->setText(QStringLiteral("half"));
    tellOfChange(parameter);
    EXPECT_EQ(field->text(), QStringLiteral("row 7"));
}

TEST_F(LongListsTest, AListOfRowsIsFilledOnlyWithOtherTextsAndStillTellsOfIt) {
    auto const selection = makeSelection(rowNames(rowsOfALongList), {"row 3", "row 9"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    auto* const rows = list(*editor.widget);
    takeOutput();
    auto const inserted = insertions(rows->model());
    tellOfChange(parameter);
    EXPECT_EQ(takeOutput(), Lines{trace});
    EXPECT_EQ(selectedRows(*rows), (std::vector<int>{3, 9}));
    EXPECT_EQ(rows->currentRow(), 9);
    selection->add("row 299");
    tellOfChange(parameter);
    EXPECT_EQ(selectedRows(*rows), (std::vector<int>{3, 9, 299}));
    EXPECT_EQ(rows->currentRow(), 299);
    selection->removeAll();
    tellOfChange(parameter);
    EXPECT_EQ(selectedRows(*rows), std::vector<int>());
    EXPECT_EQ(rows->currentRow(), -1);
    EXPECT_EQ(inserted.count(), 0);
    rows->item(4)->setText(QStringLiteral("changed"));
    tellOfChange(parameter);
    EXPECT_EQ(rows->item(4)->text(), QStringLiteral("row 4"));
}

TEST_F(LongListsTest, AListOfRowsThatWasUsedIsFilledAnew) {
    auto const selection = makeSelection(rowNames(rowsOfALongList), {"row 3"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    auto* const rows = list(*editor.widget);
    click(*editor.widget, 3);
    auto const inserted = insertions(rows->model());
    tellOfChange(parameter);
    EXPECT_EQ(inserted.count(), 1);
    tellOfChange(parameter);
    EXPECT_EQ(inserted.count(), 1);
    QTest::keyClick(rows, Qt::Key_Down);
    tellOfChange(parameter);
    EXPECT_EQ(inserted.count(), 2);
    takeOutput();
}
