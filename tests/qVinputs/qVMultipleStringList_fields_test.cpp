#include "MultipleSelectionTest.hpp"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace std::string_literals;
using Rows = std::vector<int>;

namespace {

class MultipleStringListFieldsTest : public MultipleSelectionTest {
protected:
    static std::string typeName() { return Tessera::Typename(typeid(Selection)); }
};

} // namespace

TEST_F(MultipleStringListFieldsTest, AWildcardMatchesWholeTextsInAnyCase) {
    auto const selection = makeSelection({"abc", "xabc", "ABD", "a/b", "a", "", "xyz"}, {"xyz"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    auto const choice = [&](char const* pattern) {
        press(*editor.widget, "None");
        enterWildcard(*editor.widget, pattern);
        return selectedRows(*editor.widget);
    };
    enterWildcard(*editor.widget, "A*");
    EXPECT_EQ(chosen(selection), "abc\nABD\na\nxyz") << "other rows keep their state";
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2, 4, 6}));
    EXPECT_EQ(commits(), 1U);
    EXPECT_EQ(choice("*"), (Rows{0, 1, 2, 4, 5, 6})) << "a star stops at a slash";
    EXPECT_EQ(choice("*/*"), Rows{3});
    EXPECT_EQ(choice("a?b"), Rows()) << "and so does a question mark";
    EXPECT_EQ(choice("???"), (Rows{0, 2, 6}));
    EXPECT_EQ(choice("ab[cd]"), (Rows{0, 2}));
    EXPECT_EQ(choice("ab[!c]"), Rows{2});
    EXPECT_EQ(choice("a"), Rows{4});
    EXPECT_EQ(choice(""), Rows{5}) << "an empty pattern matches an empty text";
    EXPECT_EQ(choice("a.c"), Rows());
    EXPECT_EQ(wildcardEdit(*editor.widget)->text(), "a.c") << "the field keeps its text";
}

TEST_F(MultipleStringListFieldsTest, AnInvalidWildcardMatchesNothingAndPrintsNothing) {
    auto const selection = makeSelection({"[", "a"}, {"a"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    enterWildcard(*editor.widget, "[");
    EXPECT_EQ(chosen(selection), "a");
    EXPECT_EQ(commits(), 1U);
    EXPECT_EQ(printed(), Lines());
}

TEST_F(MultipleStringListFieldsTest, WithRemoveCheckedTheFieldsTakeAway) {
    auto const names = rowNames(6);
    auto const selection = makeSelection(names, names);
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    removeBox(*editor.widget)->setChecked(true);
    enterNumbers(*editor.widget, "1,3,5");
    EXPECT_EQ(chosen(selection), "row 0\nrow 2\nrow 4");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2, 4}));
    enterWildcard(*editor.widget, "ROW 2");
    EXPECT_EQ(chosen(selection), "row 0\nrow 4");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 4}));
    EXPECT_TRUE(removeBox(*editor.widget)->isChecked());
    EXPECT_EQ(numberEdit(*editor.widget)->text(), "1,3,5") << "the field keeps its text";
}

TEST_F(MultipleStringListFieldsTest, NumbersAddRows) {
    auto const selection = makeSelection(rowNames(10), {"row 9"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    enterNumbers(*editor.widget, "5-2,4th+2,0-99");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{2, 3, 4, 5, 6, 9}));
    EXPECT_EQ(chosen(selection), "row 2\nrow 3\nrow 4\nrow 5\nrow 6\nrow 9");
    EXPECT_EQ(commits(), 1U) << "the text is committed as one";
}

TEST_F(MultipleStringListFieldsTest, ReturnInAnEmptyNumberFieldCommitsOnce) {
    auto const selection = makeSelection(rowNames(3), {"row 1"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    enterNumbers(*editor.widget, "");
    EXPECT_EQ(recorder.values, Lines{"row 1"});
}

TEST_F(MultipleStringListFieldsTest, TheSlotForOneItemTogglesItsTextAndLeavesTheView) {
    auto const selection = makeSelection(rowNames(3), {"row 1"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    record(parameter);
    takeOutput();
    auto const toggle = [&](QListWidgetItem* item) {
        return QMetaObject::invokeMethod(editor.widget, "updateSelectionA", Q_ARG(QListWidgetItem*, item));
    };
    EXPECT_TRUE(toggle(list(*editor.widget)->item(2)));
    EXPECT_EQ(takeWrittenOutput(), "qVMultipleStringList::updateSelectionA\nrow 2\n");
    EXPECT_EQ(chosen(selection), "row 1\nrow 2");
    EXPECT_EQ(selectedRows(*editor.widget), Rows{1});
    EXPECT_EQ(commits(), 1U);
    EXPECT_TRUE(toggle(list(*editor.widget)->item(1)));
    EXPECT_EQ(chosen(selection), "row 2");
    takeOutput();

    EXPECT_TRUE(toggle(nullptr));
    EXPECT_EQ(commits(), 2U) << "no item, nothing at all";
    EXPECT_EQ(takeOutput(), Lines());
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "updateSelection"));
    EXPECT_EQ(commits(), 2U);
}

TEST_F(MultipleStringListFieldsTest, TextsKeepTheirFullLength) {
    auto const selection = makeSelection({"a", "a\0b"s, "gr\xC3\xBCn"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    EXPECT_EQ(list(*editor.widget)->item(1)->text(), QString::fromUtf8("a\0b", 3));
    enterNumbers(*editor.widget, "1,2");
    EXPECT_EQ(chosen(selection), "a\0b\ngr\xC3\xBCn"s);
    takeOutput();
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "updateSelectionA",
                                          Q_ARG(QListWidgetItem*, list(*editor.widget)->item(1))));
    EXPECT_EQ(takeOutput(), (Lines{"qVMultipleStringList::updateSelectionA", "a\0b"s}));
}

TEST_F(MultipleStringListFieldsTest, ATextThatIsNoUtf8IsShownWithReplacements) {
    auto const selection = makeSelection({"bad\xFF", "good"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    EXPECT_EQ(list(*editor.widget)->item(0)->text(), QString("bad") + QChar(QChar::ReplacementCharacter));
    enterNumbers(*editor.widget, "0,1");
    EXPECT_EQ(chosen(selection), "good") << "the list does not know the shown text";
    press(*editor.widget, "All");
    EXPECT_EQ(chosen(selection), "bad\xFF\ngood");
}

TEST_F(MultipleStringListFieldsTest, EqualTextsAreRowsOfTheirOwn) {
    auto const selection = makeSelection({"a", "b", "a"});
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    click(*editor.widget, 0);
    EXPECT_EQ(selectedRows(*editor.widget), Rows{0});
    EXPECT_TRUE(selection->isInSelection("a"));
    tellOfChange(parameter);
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 2}));
    EXPECT_EQ(list(*editor.widget)->currentRow(), 2);
}

TEST_F(MultipleStringListFieldsTest, WhenTheOwnerIsGoneEveryActionChangesInPlaceAndIsReportedOnce) {
    auto const selection = makeSelection(rowNames(3));
    auto parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    parameter.reset();
    click(*editor.widget, 1);
    EXPECT_EQ(chosen(selection), "row 1");
    EXPECT_EQ(printed(), Lines{missingOwnerLine});
    press(*editor.widget, "Inverse");
    EXPECT_EQ(chosen(selection), "row 0\nrow 2");
    EXPECT_EQ(printed(), Lines{missingOwnerLine});
    enterNumbers(*editor.widget, "1");
    EXPECT_EQ(chosen(selection), "row 0\nrow 1\nrow 2");
    EXPECT_EQ(printed(), Lines{missingOwnerLine});
}

TEST_F(MultipleStringListFieldsTest, ARefusedStoreMarksNothing) {
    auto const parameter = refusingParameterOf(makeSelection(rowNames(2)));
    auto const editor = openShown(parameter);
    record(parameter);
    press(*editor.widget, "All");
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(MultipleStringListFieldsTest, EveryActionForAPoolLeavesTheParametersOwnAlone) {
    std::vector<std::function<void(QWidget&)>> const actions = {
        [](QWidget& editor) { press(editor, "All"); },
        [](QWidget& editor) { press(editor, "None"); },
        [](QWidget& editor) { press(editor, "Inverse"); },
        [](QWidget& editor) { click(editor, 1); },
        [](QWidget& editor) { enterWildcard(editor, "*1"); },
        [](QWidget& editor) { enterNumbers(editor, "1"); },
        [](QWidget& editor) {
            QMetaObject::invokeMethod(&editor, "updateSelectionA", Q_ARG(QListWidgetItem*, list(editor)->item(1)));
        }};
    for (std::size_t n = 0; n < actions.size(); ++n) {
        auto const own = makeSelection(rowNames(3), {"row 0"});
        auto const parameter = parameterOf(own, Values::PerPool);
        auto const editor = openShown(parameter);
        actions[n](*editor.widget);
        EXPECT_EQ(chosen(own), "row 0") << n;
        auto const local = parameter->getLocalValue(firstPool, std::string(), false);
        ASSERT_TRUE(local) << n;
        EXPECT_NE(local->Text(), "row 0") << n;
        delete editor.widget;
        takeOutput();
    }
}

TEST_F(MultipleStringListFieldsTest, TheFirstValueIsThePoolsIfItHasOne) {
    auto const parameter = parameterOf(makeSelection(rowNames(3), {"row 0"}), Values::PerPool);
    parameter->getLocalValue(firstPool, std::string(), true)->setValueFromText("row 2");
    auto const creator = qtCreator(typeName(), "selection");
    EXPECT_EQ(selectedRows(*creator->create(parameter, parent, &pools).first), Rows{2});
    pools.use(secondPool);
    EXPECT_EQ(selectedRows(*creator->create(parameter, parent, &pools).first), Rows{0});
}

TEST_F(MultipleStringListFieldsTest, TheEditablePreferenceChangesNothing) {
    auto const parameter = parameterOf(makeSelection(rowNames(2)), Values::Shared, {"editable"});
    auto const editor = openShown(parameter);
    EXPECT_TRUE(editor.choice.creator.strong()->preferences()->contains("editable"));
    press(*editor.widget, "All");
    EXPECT_EQ(selectedRows(*editor.widget), (Rows{0, 1}));
}

TEST_F(MultipleStringListFieldsTest, SurvivesTheLossOfItsControls) {
    auto const selection = makeSelection(rowNames(2));
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    auto const& widget = *editor.widget;
    record(parameter);
    delete removeBox(widget);
    delete list(widget);
    press(widget, "All");
    EXPECT_EQ(chosen(selection), "row 0\nrow 1");
    press(widget, "Inverse");
    enterNumbers(widget, "0");
    EXPECT_EQ(chosen(selection), "");
    delete numberEdit(widget);
    delete wildcardEdit(widget);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "numberSelect"));
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "wildSelect"));
    EXPECT_EQ(commits(), 5U);
    tellOfChange(parameter);
}

TEST_F(MultipleStringListFieldsTest, AViewThatTheHostFrozeStaysFrozen) {
    auto const parameter = parameterOf(makeSelection(rowNames(2)));
    auto const editor = openShown(parameter);
    EXPECT_TRUE(list(*editor.widget)->updatesEnabled());
    press(*editor.widget, "All");
    EXPECT_TRUE(list(*editor.widget)->updatesEnabled());
    list(*editor.widget)->setUpdatesEnabled(false);
    press(*editor.widget, "None");
    tellOfChange(parameter);
    EXPECT_FALSE(list(*editor.widget)->updatesEnabled());
}
