#include "SelectionTest.hpp"
#include "support/TextDrop.hpp"
#include <bramble/StringSelection.hpp>

#include <QAbstractItemView>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>

using namespace std::string_literals;
using Kolt::StringSelection;
using Kolt::VStringList;

namespace {

class StringListTest : public SelectionTest {
protected:
    static VStringList makeStrings(std::vector<std::string> strings, std::string const& selected = {}) {
        return VStringList(new StringSelection(std::move(strings), selected));
    }
    static QComboBox* combo(Kolt::Editor const& editor) { return editor.widget->findChild<QComboBox*>(); }
    static QStringList texts(Kolt::Editor const& editor) {
        QStringList texts;
        for (int place = 0; place < combo(editor)->count(); ++place)
            texts.append(combo(editor)->itemText(place));
        return texts;
    }
    /// Chooses an entry of the drop-down list, which may be the current one. The list stays closed, because the
    /// offscreen platform warns about popups.
    static void choose(Kolt::Editor const& editor, int place) {
        auto* const view = combo(editor)->view();
        view->setCurrentIndex(combo(editor)->model()->index(place, 0));
        QTest::keyClick(view, Qt::Key_Return);
    }
    static void type(Kolt::Editor const& editor, QString const& text) {
        combo(editor)->lineEdit()->selectAll();
        // The box has the focus and passes the keys to its line edit.
        QTest::keyClicks(combo(editor), text);
        QTest::keyClick(combo(editor), Qt::Key_Return);
    }
    static constexpr char const* failedLine = "FAILED selecting element";
};

} // namespace

TEST_F(StringListTest, IsAFrameAroundAComboBox) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}, "tiff"));
    auto const editor = open(parameter);
    auto const* const frame = qobject_cast<QFrame*>(editor.widget.data());
    ASSERT_NE(frame, nullptr);
    EXPECT_STREQ(frame->metaObject()->className(), "Kolt::qVStringList");
    EXPECT_STREQ(frame->metaObject()->superClass()->className(), "QFrame");
    EXPECT_EQ(slotsOf(*editor.widget), QStringList{"selectItem(QString)"});
    EXPECT_EQ(frame->metaObject()->method(frame->metaObject()->methodOffset()).parameterNames(),
              QList<QByteArray>{"what"});
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<VStringList>"), nullptr);
    EXPECT_EQ(frame->lineWidth(), 0);
    EXPECT_EQ(frame->frameStyle(), QFrame().frameStyle());
    ASSERT_NE(qobject_cast<QHBoxLayout*>(frame->layout()), nullptr);
    EXPECT_EQ(qobject_cast<QHBoxLayout*>(frame->layout())->stretch(0), 0);
    EXPECT_EQ(frame->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(frame->layout()->spacing(), 0);
    EXPECT_EQ(frame->layout()->itemAt(0)->widget(), combo(editor));
    EXPECT_EQ(combo(editor)->sizeAdjustPolicy(), QComboBox::AdjustToContents);
    EXPECT_FALSE(combo(editor)->isEditable());
    EXPECT_TRUE(combo(editor)->isVisibleTo(editor.widget));
    EXPECT_EQ(texts(editor), (QStringList{"png", "tiff"}));
    EXPECT_EQ(combo(editor)->currentIndex(), 1);
    EXPECT_TRUE(combo(editor)->itemIcon(0).isNull());
    EXPECT_FALSE(combo(editor)->itemData(0).isValid());
}

TEST_F(StringListTest, TheEditablePreferenceMakesTheBoxEditable) {
    auto const parameter = parameterOf(makeStrings({"png"}), Values::Shared, {"editable"});
    EXPECT_TRUE(combo(open(parameter))->isEditable());
}

TEST_F(StringListTest, AnEmptyListOrNoneGivesAnEmptyBox) {
    for (auto const& value : {makeStrings({}), VStringList()}) {
        auto const parameter = parameterOf(value);
        auto const editor = open(parameter);
        EXPECT_EQ(combo(editor)->count(), 0);
        EXPECT_EQ(combo(editor)->currentIndex(), -1);
    }
}

TEST_F(StringListTest, WithoutASelectedTextTheFirstEntryIsShown) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}));
    EXPECT_EQ(combo(open(parameter))->currentIndex(), 0);
}

TEST_F(StringListTest, OfEqualTextsTheLastIsCurrent) {
    auto const parameter = parameterOf(makeStrings({"a", "b", "a", "B"}, "a"));
    auto const editor = open(parameter);
    EXPECT_EQ(combo(editor)->currentIndex(), 2);
    setElsewhere(parameter, makeStrings({"x", "a", "b", "a", "y"}, "a"));
    EXPECT_EQ(combo(editor)->currentIndex(), 3) << "also where the first of them is not the first text";
    setElsewhere(parameter, makeStrings({"b", "a", "B", "b"}, "B"));
    EXPECT_EQ(combo(editor)->currentIndex(), 2) << "texts are compared byte for byte";
}

TEST_F(StringListTest, AChoiceSelectsInPlaceAndCommits) {
    auto const strings = makeStrings({"png", "tiff", "gif"}, "png");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    record(parameter);
    choose(editor, 2);
    EXPECT_EQ(strings->selected(), "gif");
    EXPECT_EQ(recorder.values, Lines{"gif"});
    EXPECT_EQ(Kolt::valueOr(parameter->ownValue(), VStringList()), strings);
    EXPECT_GT(parameter->ownValue()->age(), 0U);
}

TEST_F(StringListTest, ChoosingTheCurrentEntryCommits) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}, "tiff"));
    auto const editor = open(parameter);
    record(parameter);
    choose(editor, 1);
    EXPECT_EQ(recorder.values, Lines{"tiff"});
}

TEST_F(StringListTest, ChoosingTheShownFirstEntrySelectsItWhereNoneWasSelected) {
    auto const strings = makeStrings({"png", "tiff"});
    auto const parameter = parameterOf(strings);
    choose(open(parameter), 0);
    EXPECT_EQ(strings->selected(), "png");
}

TEST_F(StringListTest, TheArrowKeysChoose) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    QTest::keyClick(combo(editor), Qt::Key_Down);
    EXPECT_EQ(strings->selected(), "tiff");
}

TEST_F(StringListTest, AChangeFromElsewhereFillsTheBoxAnew) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}, "tiff"));
    auto const editor = open(parameter);
    record(parameter);
    QSignalSpy const activations(combo(editor), SIGNAL(activated(int)));
    setElsewhere(parameter, makeStrings({"wav", "mp3", "ogg"}, "mp3"));
    EXPECT_EQ(texts(editor), (QStringList{"wav", "mp3", "ogg"}));
    EXPECT_EQ(combo(editor)->currentIndex(), 1);
    EXPECT_EQ(activations.count(), 0);
    EXPECT_EQ(commits(), 1U) << "the change itself";
}

TEST_F(StringListTest, AChangeOfTheChoiceAloneFillsNothingAnew) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff", "gif"}, "tiff"));
    auto const editor = open(parameter);
    QSignalSpy const insertions(combo(editor)->model(), &QAbstractItemModel::rowsInserted);
    setElsewhere(parameter, makeStrings({"png", "tiff", "gif"}, "gif"));
    EXPECT_EQ(combo(editor)->currentIndex(), 2);
    EXPECT_EQ(insertions.count(), 0);
    // An entry that somebody else has changed is made anew.
    combo(editor)->setItemText(0, QStringLiteral("jpeg"));
    setElsewhere(parameter, makeStrings({"png", "tiff", "gif"}, "png"));
    EXPECT_EQ(texts(editor), (QStringList{"png", "tiff", "gif"}));
    EXPECT_EQ(combo(editor)->currentIndex(), 0);
    EXPECT_GT(insertions.count(), 0);
}

TEST_F(StringListTest, ATypedTextOfTheListIsSelected) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings, Values::Shared, {"editable"});
    auto const editor = open(parameter);
    record(parameter);
    type(editor, "tiff");
    EXPECT_EQ(strings->selected(), "tiff");
    EXPECT_EQ(recorder.values, Lines{"tiff"});
    EXPECT_EQ(combo(editor)->count(), 2);
}

TEST_F(StringListTest, ATypedTextThatTheListDoesNotHaveFailsAndStaysInTheBox) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings, Values::Shared, {"editable"});
    auto const editor = open(parameter);
    record(parameter);
    type(editor, "webp");
    EXPECT_EQ(takeWrittenOutput(), failedLine + "\n"s) << "the line is flushed";
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(strings->selected(), "png");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_EQ(texts(editor), (QStringList{"png", "tiff", "webp"})) << "as in any editable combo box";
    tellOfChange(parameter);
    EXPECT_EQ(texts(editor), (QStringList{"png", "tiff"}));
}

TEST_F(StringListTest, WithoutASelectionObjectAChoiceFails) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}, "png"));
    auto const editor = open(parameter);
    setElsewhere(parameter, VStringList());
    EXPECT_EQ(texts(editor), (QStringList{"png", "tiff"})) << "the view is left as it is";
    record(parameter);
    choose(editor, 1);
    EXPECT_EQ(takeOutput(), Lines{failedLine});
    EXPECT_EQ(commits(), 0U);
}

TEST_F(StringListTest, TextsKeepTheirFullLength) {
    auto const strings = makeStrings({"a", "a\0b"s, "gr\xC3\xBCn"}, "a");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    EXPECT_EQ(combo(editor)->itemText(1), QString::fromUtf8("a\0b", 3));
    choose(editor, 1);
    EXPECT_EQ(strings->selected(), "a\0b"s);
    choose(editor, 2);
    EXPECT_EQ(strings->selected(), "gr\xC3\xBCn");
}

TEST_F(StringListTest, ATextThatIsNoUtf8IsShownWithReplacementsAndCannotBeChosen) {
    auto const strings = makeStrings({"good", "bad\xFF"}, "good");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    EXPECT_EQ(combo(editor)->itemText(1), QString("bad") + QChar(QChar::ReplacementCharacter));
    choose(editor, 1);
    EXPECT_EQ(takeOutput(), Lines{failedLine});
    EXPECT_EQ(strings->selected(), "good");
}

TEST_F(StringListTest, WithoutAPoolTheChoiceIsMadeInPlaceAndNotStored) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    record(parameter);
    pools.use(nullptr);
    choose(editor, 1);
    EXPECT_EQ(strings->selected(), "tiff");
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(StringListTest, WhenTheOwnerIsGoneTheChoiceIsMadeInPlaceAndReported) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto parameter = parameterOf(strings);
    auto const editor = open(parameter);
    parameter.reset();
    choose(editor, 1);
    EXPECT_EQ(strings->selected(), "tiff");
    EXPECT_EQ(takeOutput(), Lines{missingOwnerLine});
}

TEST_F(StringListTest, ARefusedStoreMarksNothing) {
    auto const parameter = refusingParameterOf(makeStrings({"png", "tiff"}, "png"));
    auto const editor = open(parameter);
    record(parameter);
    choose(editor, 1);
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(StringListTest, AChoiceForAPoolLeavesTheParametersOwnAlone) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings, Values::PerPool);
    auto const editor = open(parameter);
    choose(editor, 1);
    EXPECT_EQ(strings->selected(), "png");
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "tiff");

    auto const made = qtCreator(Tessera::Typename(typeid(VStringList)), "selection")->create(parameter, parent, &pools);
    EXPECT_EQ(made.first->findChild<QComboBox*>()->currentText(), "tiff") << "the first value is the pool's";
}

TEST_F(StringListTest, ARefusedTextGivesThePoolNoValue) {
    auto const parameter = parameterOf(makeStrings({"png", "tiff"}, "png"), Values::PerPool, {"editable"});
    auto const editor = open(parameter);
    type(editor, "webp");
    EXPECT_EQ(takeOutput(), Lines{failedLine});
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
    type(editor, "tiff");
    ASSERT_TRUE(parameter->getLocalValue(firstPool, std::string(), false));
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "tiff");
    EXPECT_EQ(parameter->ownValue()->Text(), "png");
}

TEST_F(StringListTest, ARefusedChoiceWithoutASelectionGivesThePoolNoValue) {
    auto const parameter = parameterOf(VStringList(), Values::PerPool);
    auto const editor = open(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "selectItem", Q_ARG(QString, "png")));
    EXPECT_EQ(takeOutput(), Lines{failedLine});
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
}

TEST_F(StringListTest, SurvivesTheLossOfItsComboBox) {
    auto const strings = makeStrings({"png", "tiff"}, "png");
    auto const parameter = parameterOf(strings);
    auto const editor = open(parameter);
    delete combo(editor);
    tellOfChange(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "selectItem", Q_ARG(QString, "tiff")));
    EXPECT_EQ(strings->selected(), "tiff");
}

TEST_F(StringListTest, ATextThatIsBeingTypedStaysWhenSomethingElseChanges) {
    auto const parameter = parameterOf(makeStrings({"one", "two", "three"}, "one"), Values::Shared, {"editable"});
    auto const editor = open(parameter);
    parent->show();
    parent->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    combo(editor)->setFocus();
    auto* const field = combo(editor)->lineEdit();
    field->selectAll();
    QTest::keyClicks(combo(editor), QStringLiteral("tw"));
    ASSERT_EQ(field->text(), QStringLiteral("two")) << "completed by Qt";
    auto const typed = field->text();
    parameter->setProperty("comment", Kolt::makeValue(1), nullptr, nullptr, nullptr);
    EXPECT_EQ(field->text(), typed);
    setElsewhere(parameter, makeStrings({"one", "two", "three", "four"}, "three"));
    EXPECT_EQ(field->text(), typed);
    EXPECT_EQ(combo(editor)->count(), 4);
    EXPECT_EQ(combo(editor)->currentIndex(), 2);
    // What the user has selected stays selected, too.
    field->setSelection(1, 2);
    parameter->setProperty("comment", Kolt::makeValue(2), nullptr, nullptr, nullptr);
    EXPECT_EQ(field->selectedText(), QStringLiteral("wo"));
    EXPECT_EQ(field->cursorPosition(), 3);
    setElsewhere(parameter, makeStrings({"one", "two", "three"}, "three"));
    EXPECT_EQ(field->selectedText(), QStringLiteral("wo"));
    EXPECT_EQ(field->cursorPosition(), 3);
    field->setSelection(3, -1);
    setElsewhere(parameter, makeStrings({"one", "two", "three", "four"}, "three"));
    EXPECT_EQ(field->selectedText(), QStringLiteral("o"));
    EXPECT_EQ(field->cursorPosition(), 2);
    QTest::keyClicks(combo(editor), QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("twx")) << "the completion gives way to what is typed";
    combo(editor)->clearFocus();
    setElsewhere(parameter, makeStrings({"one", "two"}, "one"));
    EXPECT_EQ(field->text(), QStringLiteral("one")) << "nothing is being typed any more";
}

TEST_F(StringListTest, ADroppedTextIsTakenOverOrNotShown) {
    auto const parameter = parameterOf(makeStrings({"one", "two", "twone"}, "one"), Values::Shared, {"editable"});
    auto const editor = open(parameter);
    auto* const field = combo(editor)->lineEdit();
    record(parameter);
    dropText(*field, QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("one"));
    EXPECT_EQ(commits(), 0U);
    dropText(*field, QStringLiteral("tw"));
    EXPECT_EQ(field->text(), QStringLiteral("twone"));
    EXPECT_EQ(commits(), 1U);
    EXPECT_EQ(combo(editor)->currentIndex(), 2);
    EXPECT_EQ(combo(editor)->count(), 3);
}

TEST_F(StringListTest, AListenerMayDeleteTheEditorThatATextWasDroppedOn) {
    auto const parameter = parameterOf(makeStrings({"one", "twone"}, "one"), Values::Shared, {"editable"});
    auto const editor = open(parameter);
    record(parameter);
    recorder.reaction = [&] { editor.widget->deleteLater(); };
    dropText(*combo(editor)->lineEdit(), QStringLiteral("tw"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(editor.widget);
    EXPECT_EQ(commits(), 1U);
}
