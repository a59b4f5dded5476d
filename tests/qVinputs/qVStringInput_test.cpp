#include "qVinputs/SingleLineTextTest.hpp"

#include <QClipboard>
#include <QMetaMethod>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(SingleLineText, IsKnownToQtByItsNames) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    auto const& meta = *editor->metaObject();
    EXPECT_STREQ(meta.className(), "Kolt::qVStringInput");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "newText()");
    EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodSignature(), "inputText(QString)");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(editor->qt_metacast("VInputValue<string>"), dynamic_cast<VInput<std::string>*>(editor));
}

TEST_F(SingleLineText, IsWhatATextWithoutPreferencesGets) {
    auto const parameter = makeText("a title");
    auto const editor = makeEditor(parameter, parent, &pools);
    ASSERT_TRUE(editor.widget);
    EXPECT_STREQ(editor.widget->metaObject()->className(), "Kolt::qVStringInput");
}

TEST_F(SingleLineText, ShowsTheTextAndWritesNothing) {
    auto const parameter = makeText("Gr\u00fc\u00dfe \u2014 \u65e5\u672c \U0001F600");
    watch(parameter);
    EXPECT_EQ(edit(parameter)->text(), QString::fromUtf8("Gr\u00fc\u00dfe \u2014 \u65e5\u672c \U0001F600"));
    EXPECT_THAT(recorder.values, IsEmpty());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_FALSE(parameter->properties());
}

TEST_F(SingleLineText, CommitsEveryKeystroke) {
    auto const parameter = makeText("");
    watch(parameter);
    auto* const editor = edit(parameter);
    auto const before = Tessera::Ageable::GlobalTime.load();
    QTest::keyClicks(editor, QStringLiteral("abc"));
    EXPECT_THAT(recorder.values, ElementsAre("a", "ab", "abc"));
    EXPECT_EQ(Tessera::Ageable::GlobalTime.load(), before + 3);
    EXPECT_EQ(parameter->ownValue()->age(), before + 3);
}

TEST_F(SingleLineText, CommitsADeletionAndAPasteAtOnce) {
    auto const parameter = makeText("abc");
    watch(parameter);
    auto* const editor = edit(parameter);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QGuiApplication::clipboard()->setText(QStringLiteral("xyz"));
    QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(recorder.values, ElementsAre("ab", "abxyz"));
}

TEST_F(SingleLineText, IsNotCommittedByLeavingItWhereEveryKeystrokeIs) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    auto* const other = new QLineEdit(parent);
    parent->layout()->addWidget(other);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    watch(parameter);
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_TRUE(focus(other));
    EXPECT_THAT(recorder.values, IsEmpty());
}

TEST_F(SingleLineText, IsCommittedWholeByReturnUnderUpdateOnEnterOnly) {
    auto const parameter = onEnterOnly("");
    watch(parameter);
    auto* const editor = edit(parameter);
    QTest::keyClicks(editor, QStringLiteral("abc"));
    EXPECT_THAT(recorder.values, IsEmpty());
    EXPECT_EQ(textOf(parameter), "");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_THAT(recorder.values, ElementsAre("abc"));
}

TEST_F(SingleLineText, IsCommittedWholeByFocusLossUnderUpdateOnEnterOnly) {
    auto const parameter = onEnterOnly("");
    watch(parameter);
    auto* const editor = edit(parameter);
    auto* const other = new QLineEdit(parent);
    parent->layout()->addWidget(other);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    QTest::keyClicks(editor, QStringLiteral("abc"));
    EXPECT_THAT(recorder.values, IsEmpty());
    ASSERT_TRUE(focus(other));
    EXPECT_THAT(recorder.values, ElementsAre("abc"));
}

TEST_F(SingleLineText, CommitsWhatQtReportsAsFinishedAlsoUnchanged) {
    auto const parameter = onEnterOnly("abc");
    auto* const editor = edit(parameter);
    auto* const other = new QLineEdit(parent);
    parent->layout()->addWidget(other);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    change(parameter, std::string("from the host"));
    watch(parameter);
    QSignalSpy const finished(editor, &QLineEdit::editingFinished);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClick(editor, Qt::Key_Enter);
    ASSERT_TRUE(focus(other));
    // Qt 5 reports that the focus is gone as well.
    EXPECT_GE(finished.count(), 2);
    EXPECT_THAT(recorder.values, testing::SizeIs(finished.count()));
    EXPECT_THAT(recorder.values, testing::Each("from the host"));
}

TEST_F(SingleLineText, TakesUpdateOnEnterOnlyFromTheCreatorWhereTheParameterHasNoPreferences) {
    *creator("simplestring")->preferences() += "UpdateOnEnterOnly";
    auto const parameter = makeText("");
    watch(parameter);
    auto* const editor = edit(parameter);
    QTest::keyClicks(editor, QStringLiteral("ab"));
    EXPECT_THAT(recorder.values, IsEmpty());
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_THAT(recorder.values, ElementsAre("ab"));
}

TEST_F(SingleLineText, FollowsTheParametersOwnPreferencesInPlaceOfTheCreators) {
    *creator("simplestring")->preferences() += "UpdateOnEnterOnly";
    auto const parameter = makeText("");
    parameter->setCreationPreferences(PreferencesPtr(new VCreationPreferences(VValueTrait<std::string>::OneLine())));
    watch(parameter);
    QTest::keyClicks(edit(parameter), QStringLiteral("ab"));
    EXPECT_THAT(recorder.values, ElementsAre("a", "ab"));
}

TEST_F(SingleLineText, CommitsTheSeparatorsOfAnInputMask) {
    auto const parameter = onEnterOnly("");
    setProperty(parameter, "inputmask", makeValue(std::string("999-999")));
    watch(parameter);
    auto* const editor = edit(parameter);
    EXPECT_EQ(editor->inputMask(), QStringLiteral("999-999"));
    QTest::keyClick(editor, Qt::Key_Home);
    QTest::keyClicks(editor, QStringLiteral("1x2y3456"));
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_THAT(recorder.values, ElementsAre("123-456"));
}

TEST_F(SingleLineText, IsNotFinishedWhileItsInputMaskIsNotFilled) {
    auto const parameter = onEnterOnly("");
    setProperty(parameter, "inputmask", makeValue(std::string("999-999")));
    watch(parameter);
    auto* const editor = edit(parameter);
    QTest::keyClick(editor, Qt::Key_Home);
    QTest::keyClicks(editor, QStringLiteral("12"));
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_THAT(recorder.values, IsEmpty());
}

TEST_F(SingleLineText, HasNoInputMaskFromAPropertyThatIsNoText) {
    auto const parameter = makeText("abc");
    setProperty(parameter, "inputmask", makeValue(999));
    EXPECT_EQ(edit(parameter)->inputMask(), QString());
}

TEST_F(SingleLineText, KeepsTheInputMaskItStartedWith) {
    auto const parameter = makeText("123");
    setProperty(parameter, "inputmask", makeValue(std::string("999")));
    auto* const editor = edit(parameter);
    setProperty(parameter, "inputmask", makeValue(std::string("99-99")));
    EXPECT_EQ(editor->inputMask(), QStringLiteral("999"));
}

TEST_F(SingleLineText, ShowsAChangeFromElsewhereAndSendsNothingBack) {
    auto const parameter = makeText("old");
    auto* const editor = edit(parameter);
    watch(parameter);
    change(parameter, std::string("\u00e9t\u00e9"));
    EXPECT_EQ(editor->text(), QString::fromUtf8("\u00e9t\u00e9"));
    EXPECT_THAT(recorder.values, ElementsAre("\u00e9t\u00e9"));
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(SingleLineText, DoesNotEchoASecondEditor) {
    auto const parameter = makeText("");
    auto* const left = edit(parameter);
    auto* const right = edit(parameter);
    watch(parameter);
    QTest::keyClicks(left, QStringLiteral("ab"));
    EXPECT_EQ(right->text(), QStringLiteral("ab"));
    QTest::keyClicks(right, QStringLiteral("c"));
    EXPECT_EQ(left->text(), QStringLiteral("abc"));
    EXPECT_THAT(recorder.values, ElementsAre("a", "ab", "abc"));
}

TEST_F(SingleLineText, IgnoresAValueOfAnotherType) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    auto const held = input.strong();
    held->onValueChange(makeValue(7), VContext(nullptr), nullptr);
    held->onValueChange(nullptr, VContext(nullptr), nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("abc"));
}

TEST_F(SingleLineText, KeepsATextBeingTypedWhenAPropertyChanges) {
    auto const parameter = onEnterOnly("abc");
    auto* const editor = edit(parameter);
    QTest::keyClicks(editor, QStringLiteral("def"));
    setProperty(parameter, "tooltip", makeValue(std::string("a hint")));
    EXPECT_EQ(editor->text(), QStringLiteral("abcdef"));
}

TEST_F(SingleLineText, KeepsItsCursorWhenItIsNotifiedOfTheTextThatItShows) {
    auto const parameter = makeText("abcdef");
    auto* const editor = edit(parameter);
    editor->setCursorPosition(2);
    QTest::keyClicks(editor, QStringLiteral("x"));
    change(parameter, std::string("abxcdef"));
    EXPECT_EQ(editor->cursorPosition(), 3);
    EXPECT_TRUE(editor->isUndoAvailable());
    editor->setSelection(1, 2);
    change(parameter, std::string("abxcdef"));
    EXPECT_EQ(editor->selectedText(), QStringLiteral("bx"));
    change(parameter, std::string("other"));
    EXPECT_EQ(editor->text(), QStringLiteral("other"));
}

TEST_F(SingleLineText, DropsAnEditWithoutAPoolSilently) {
    auto const parameter = makeText("abc");
    watch(parameter);
    auto* const editor = edit(parameter);
    pools.use(nullptr);
    QTest::keyClicks(editor, QStringLiteral("d"));
    EXPECT_EQ(editor->text(), QStringLiteral("abcd"));
    EXPECT_EQ(textOf(parameter), "abc");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_THAT(recorder.values, IsEmpty());
}

TEST_F(SingleLineText, StartsEmptyWithoutAnOwnerAndReportsEachCommit) {
    auto parameter = makeText("abc");
    ParameterRef const gone(parameter);
    parameter.reset();
    auto* const editor = edit(gone);
    EXPECT_EQ(editor->text(), QString());
    EXPECT_EQ(editor->inputMask(), QString());
    EXPECT_THAT(takeOutput(), IsEmpty());
    QTest::keyClicks(editor, QStringLiteral("ab"));
    EXPECT_EQ(takeWrittenOutput(), missingOwner + missingOwner);
    pools.use(nullptr);
    QTest::keyClicks(editor, QStringLiteral("c"));
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
    EXPECT_EQ(editor->text(), QStringLiteral("abc"));
}

TEST_F(SingleLineText, ReportsOnceAnOwnerThatGoesDuringTheCommit) {
    auto parameter = makeText("");
    watch(parameter);
    auto* const editor = edit(parameter);
    recorder.reaction = [&] { parameter.reset(); };
    QTest::keyClicks(editor, QStringLiteral("a"));
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
}

TEST_F(SingleLineText, MayBeDeletedByAListener) {
    auto const parameter = makeText("abc");
    watch(parameter);
    QPointer<QLineEdit> const editor = edit(parameter);
    recorder.reaction = [&] { delete editor; };
    ASSERT_TRUE(QMetaObject::invokeMethod(editor, "newText"));
    EXPECT_FALSE(editor);
    EXPECT_THAT(recorder.values, ElementsAre("abc"));
    EXPECT_GT(parameter->ownValue()->age(), 0U);
}

TEST_F(SingleLineText, MayBeDeletedLaterWithItsPanelByAListener) {
    auto parameter = makeText("");
    watch(parameter);
    QPointer<QLineEdit> const editor = edit(parameter);
    recorder.reaction = [&] {
        parameter.reset();
        parent->deleteLater();
        recorder.reaction = nullptr;
    };
    QTest::keyClicks(editor, QStringLiteral("a"));
    EXPECT_TRUE(waitUntil([&] { return !editor; }));
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
}

TEST_F(SingleLineText, WritesIntoItsPoolAlone) {
    auto const parameter = makeText("own", Values::PerPool);
    watch(parameter);
    auto* const editor = edit(parameter);
    EXPECT_EQ(editor->text(), QStringLiteral("own"));
    EXPECT_EQ(localTextOf(parameter), "(none)");
    QTest::keyClicks(editor, QStringLiteral("s"));
    EXPECT_EQ(localTextOf(parameter), "owns");
    EXPECT_EQ(textOf(parameter), "own");
    EXPECT_GT(parameter->getLocalValue(Kolt::currentPool(&pools), "", false)->age(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);

    pools.use(secondPool);
    QTest::keyClicks(editor, QStringLiteral("!"));
    EXPECT_EQ(localTextOf(parameter), "owns!");
}

TEST_F(SingleLineText, LeavesChangesInOtherPoolsAlone) {
    auto const parameter = makeText("own", Values::PerPool);
    auto* const editor = edit(parameter);
    change(parameter, std::string("elsewhere"), secondPool);
    EXPECT_EQ(editor->text(), QStringLiteral("own"));
    change(parameter, std::string("here"));
    EXPECT_EQ(editor->text(), QStringLiteral("here"));
}

TEST_F(SingleLineText, IsHandedThePoolsTextByTheFrontEnd) {
    auto const parameter = makeText("own", Values::PerPool);
    change(parameter, std::string("local"));
    auto const editor = makeEditor(parameter, parent, &pools);
    auto* const field = dynamic_cast<QLineEdit*>(editor.widget.data());
    EXPECT_EQ(field->text(), QStringLiteral("local"));
    pools.use(secondPool);
    showPoolValue(editor, parameter, &pools);
    EXPECT_EQ(field->text(), QStringLiteral("own"));
}

TEST_F(SingleLineText, CarriesZeroBytesAndLineBreaks) {
    std::string const text("a\0b\nc", 5);
    auto const parameter = makeText(text);
    auto* const editor = edit(parameter);
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClicks(editor, QStringLiteral("d"));
    EXPECT_EQ(textOf(parameter), text + "d");
}

TEST_F(SingleLineText, CarriesAMegabyte) {
    std::string const text(1'000'000, 'x');
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    change(parameter, text);
    EXPECT_EQ(editor->text().size(), 1'000'000);
    QTest::keyClicks(editor, QStringLiteral("y"));
    // Not EXPECT_EQ, which would print the long texts.
    EXPECT_TRUE(textOf(parameter) == text + "y");
    EXPECT_EQ(edit(parameter)->text().size(), 1'000'001);
}

TEST_F(SingleLineText, CarriesRandomBytesAsFarAsTheyAreUtf8) {
    auto const bytes = randomBytes(20'000);
    auto const parameter = makeText(bytes);
    auto* const editor = edit(parameter);
    EXPECT_TRUE(textOf(parameter) == bytes);
    ASSERT_TRUE(QMetaObject::invokeMethod(editor, "newText"));
    EXPECT_TRUE(textOf(parameter) == shown(bytes));
}

} // namespace
