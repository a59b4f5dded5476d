#include "qVinputs/TextEditorTest.hpp"

#include <QClipboard>
#include <QLineEdit>
#include <QMetaMethod>
#include <QTextEdit>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

class MultiLineText : public TextEditorTest {
protected:
    QTextEdit* edit(ParameterRef const& parameter) { return create<QTextEdit>("string", parameter); }
    static void insert(QTextEdit* editor, QString const& text) { editor->textCursor().insertText(text); }
    static void send(QTextEdit* editor, QEvent::Type type) {
        QEvent event(type);
        QCoreApplication::sendEvent(editor, &event);
    }
};

TEST_F(MultiLineText, IsKnownToQtByItsNames) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    auto const& meta = *editor->metaObject();
    EXPECT_STREQ(meta.className(), "Kolt::qVString");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "newText()");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(editor->qt_metacast("VInputValue<string>"), dynamic_cast<VInput<std::string>*>(editor));
}

TEST_F(MultiLineText, IsWhatTheMultiLinePreferenceGets) {
    auto const parameter = makeText("a\nb");
    parameter->setCreationPreferences(PreferencesPtr(new VCreationPreferences(VValueTrait<std::string>::MultiLine())));
    auto const editor = makeEditor(parameter, parent, &pools);
    ASSERT_TRUE(editor.widget);
    EXPECT_STREQ(editor.widget->metaObject()->className(), "Kolt::qVString");
}

TEST_F(MultiLineText, ShowsTheTextAndWritesNothing) {
    auto const parameter = makeText("Gr\u00fc\u00dfe\n\u65e5\u672c \U0001F600\n");
    watch(parameter);
    auto* const editor = edit(parameter);
    EXPECT_EQ(editor->toPlainText(), QString::fromUtf8("Gr\u00fc\u00dfe\n\u65e5\u672c \U0001F600\n"));
    EXPECT_THAT(recorder.values, IsEmpty());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(MultiLineText, CommitsNothingByTheInsertionItself) {
    auto const parameter = makeText("a");
    watch(parameter);
    auto* const editor = edit(parameter);
    insert(editor, QStringLiteral("b"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("ab"));
    EXPECT_THAT(recorder.values, IsEmpty());
}

TEST_F(MultiLineText, IsCommittedInFullHoweverLongItIs) {
    // Line feeds shift the letters, so that any part of the text begins or ends within a surrogate pair in some case.
    for (auto const* const begin : {"", "a", "\u00fc\u00fcb"}) {
        auto text = std::string(begin);
        for (int number = 0; number < 5000; ++number)
            text += number % 7 == 0 ? "\u00fc\n" : "\U0001F600\u65e5\U0001F601";
        auto const parameter = makeText("");
        auto* const editor = edit(parameter);
        insert(editor, QString::fromStdString(text));
        send(editor, QEvent::Leave);
        EXPECT_EQ(textOf(parameter), text);
    }
}

TEST_F(MultiLineText, IsCommittedWhenTheMouseLeavesWithoutTheFocus) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    insert(editor, QStringLiteral("one\ntwo"));
    watch(parameter);
    QTest::mouseMove(editor, QPoint(5, 5));
    ASSERT_TRUE(waitUntil([&] { return editor->underMouse(); }));
    EXPECT_THAT(recorder.values, IsEmpty());
    auto const before = Tessera::Ageable::GlobalTime.load();
    QTest::mouseMove(parent, QPoint(1, 1));
    ASSERT_TRUE(waitUntil([&] { return !editor->underMouse(); }));
    EXPECT_THAT(recorder.values, ElementsAre("one\ntwo"));
    EXPECT_EQ(parameter->ownValue()->age(), before + 1);
    EXPECT_TRUE(editor->hasFocus());
    parent->hide();
}

TEST_F(MultiLineText, IsCommittedWhenTheFocusLeaves) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    auto* const other = new QLineEdit(parent);
    parent->layout()->addWidget(other);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    insert(editor, QStringLiteral("text"));
    watch(parameter);
    ASSERT_TRUE(focus(other));
    EXPECT_THAT(recorder.values, ElementsAre("text"));
}

TEST_F(MultiLineText, IsCommittedWhenKeypadFocusLeavesAndByNoOtherEvent) {
    auto const parameter = makeText("text");
    auto* const editor = edit(parameter);
    watch(parameter);
    send(editor, static_cast<QEvent::Type>(151));
    EXPECT_THAT(recorder.values, ElementsAre("text"));
    for (auto const type : {QEvent::Enter, QEvent::ToolTipChange, QEvent::WindowActivate, QEvent::LanguageChange})
        send(editor, type);
    send(editor, static_cast<QEvent::Type>(150));
    EXPECT_THAT(recorder.values, ElementsAre("text"));
}

TEST_F(MultiLineText, IsCommittedByEachKeyAsItWasBeforeTheKey) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    watch(parameter);
    QTest::keyClicks(editor, QStringLiteral("ab"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClick(editor, Qt::Key_C);
    EXPECT_THAT(recorder.values, ElementsAre("", "a", "ab", "ab\n"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("ab\nc"));
}

TEST_F(MultiLineText, IsCommittedBeforeAKeyWithAModifierIsApplied) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    editor->selectAll();
    watch(parameter);
    QTest::keyClick(editor, Qt::Key_X, Qt::ControlModifier);
    // One commit for the modifier, which is a key, too.
    EXPECT_THAT(recorder.values, ElementsAre("abc", "abc"));
    EXPECT_EQ(editor->toPlainText(), QString());
}

TEST_F(MultiLineText, CommitsAlsoWhatDidNotChange) {
    auto const parameter = makeText("same");
    auto* const editor = edit(parameter);
    watch(parameter);
    auto const before = Tessera::Ageable::GlobalTime.load();
    send(editor, QEvent::Leave);
    send(editor, QEvent::Leave);
    EXPECT_THAT(recorder.values, ElementsAre("same", "same"));
    EXPECT_EQ(parameter->ownValue()->age(), before + 2);
}

TEST_F(MultiLineText, KeepsCursorAndSelectionWhenNotifiedOfItsOwnCommit) {
    auto const parameter = makeText("one two three");
    auto* const editor = edit(parameter);
    auto cursor = editor->textCursor();
    cursor.setPosition(4);
    cursor.setPosition(7, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
    send(editor, QEvent::Leave);
    EXPECT_EQ(editor->textCursor().selectedText(), QStringLiteral("two"));
}

TEST_F(MultiLineText, KeepsTheCursorForAnEqualTextFromElsewhere) {
    auto const parameter = makeText("one two three");
    auto* const editor = edit(parameter);
    auto cursor = editor->textCursor();
    cursor.setPosition(4);
    editor->setTextCursor(cursor);
    change(parameter, std::string("one two three"));
    EXPECT_EQ(editor->textCursor().position(), 4);
    change(parameter, std::string("one two"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("one two"));
    EXPECT_NE(editor->textCursor().position(), 4);
}

TEST_F(MultiLineText, ShowsWhatAListenerMakesOfItsCommit) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    watch(parameter);
    recorder.reaction = [&] {
        recorder.reaction = nullptr;
        change(parameter, std::string("corrected"));
    };
    send(editor, QEvent::Leave);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("corrected"));
    EXPECT_THAT(recorder.values, ElementsAre("abc", "corrected"));
}

TEST_F(MultiLineText, ShowsAnEarlierTextAgainAfterTyping) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    send(editor, QEvent::Leave);
    insert(editor, QStringLiteral("x"));
    change(parameter, std::string("abc"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("abc"));
}

TEST_F(MultiLineText, DoesNotEchoASecondEditor) {
    auto const parameter = makeText("");
    auto* const left = edit(parameter);
    auto* const right = edit(parameter);
    watch(parameter);
    insert(left, QStringLiteral("ab"));
    send(left, QEvent::Leave);
    EXPECT_EQ(right->toPlainText(), QStringLiteral("ab"));
    EXPECT_THAT(recorder.values, ElementsAre("ab"));
}

TEST_F(MultiLineText, HoldsPlainText) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    EXPECT_FALSE(editor->acceptRichText());
    auto* const rich = new QMimeData;
    rich->setHtml(QStringLiteral("<b>bold</b>"));
    rich->setText(QStringLiteral("bold"));
    QGuiApplication::clipboard()->setMimeData(rich);
    editor->paste();
    EXPECT_FALSE(editor->toHtml().contains(QStringLiteral("font-weight:600")));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("bold"));
    change(parameter, std::string("<b>text</b>"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("<b>text</b>"));
}

TEST_F(MultiLineText, CommitsWhatTheDocumentMakesOfLineEndsAndBlanks) {
    auto const parameter = makeText("a\r\nb\rc\u00a0d\u2028e");
    auto* const editor = edit(parameter);
    EXPECT_EQ(textOf(parameter), "a\r\nb\rc\u00a0d\u2028e");
    send(editor, QEvent::Leave);
    EXPECT_EQ(textOf(parameter), "a\nb\nc d\ne");
}

TEST_F(MultiLineText, CarriesZeroBytes) {
    std::string const text("a\0b\nc", 5);
    auto const parameter = makeText(text);
    auto* const editor = edit(parameter);
    insert(editor, QStringLiteral("x"));
    send(editor, QEvent::Leave);
    EXPECT_EQ(textOf(parameter), text + "x");
}

TEST_F(MultiLineText, CarriesAMegabyte) {
    std::string text;
    while (text.size() < 1'000'000)
        text += "a line of sixty-four characters, which is what a line may hold.\n";
    auto const parameter = makeText(text);
    auto* const editor = edit(parameter);
    QTest::keyClicks(editor, QStringLiteral("y"));
    send(editor, QEvent::Leave);
    // Not EXPECT_EQ, which would print the long texts.
    EXPECT_TRUE(textOf(parameter) == text + "y");
    change(parameter, text);
    EXPECT_TRUE(editor->toPlainText().toStdString() == text);
}

TEST_F(MultiLineText, CarriesRandomBytesAsFarAsTheDocumentKeepsThem) {
    auto const bytes = randomBytes(200'000);
    auto const parameter = makeText(bytes);
    auto* const editor = edit(parameter);
    EXPECT_TRUE(textOf(parameter) == bytes);
    send(editor, QEvent::Leave);
    auto expected = QString::fromStdString(bytes);
    QTextDocument document;
    document.setPlainText(expected);
    expected = document.toPlainText();
    EXPECT_TRUE(textOf(parameter) == expected.toStdString());
    EXPECT_GT(expected.size(), 100'000);
}

TEST_F(MultiLineText, IgnoresAValueOfAnotherType) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    auto const held = input.strong();
    insert(editor, QStringLiteral("abc"));
    held->onValueChange(makeValue(7), VContext(nullptr), nullptr);
    held->onValueChange(nullptr, VContext(nullptr), nullptr);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("abc"));
}

TEST_F(MultiLineText, KeepsATextBeingTypedWhenAPropertyChanges) {
    auto const parameter = makeText("abc");
    auto* const editor = edit(parameter);
    insert(editor, QStringLiteral("x"));
    parameter->setProperty("tooltip", makeValue(std::string("a hint")), nullptr, nullptr, nullptr);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("abcx"));
}

TEST_F(MultiLineText, DropsAnEditWithoutAPoolSilently) {
    auto const parameter = makeText("abc");
    watch(parameter);
    auto* const editor = edit(parameter);
    pools.use(nullptr);
    insert(editor, QStringLiteral("x"));
    send(editor, QEvent::Leave);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("abcx"));
    EXPECT_EQ(textOf(parameter), "abc");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_THAT(recorder.values, IsEmpty());
}

TEST_F(MultiLineText, StartsEmptyWithoutAnOwnerAndReportsEachCommit) {
    auto parameter = makeText("abc");
    ParameterRef const gone(parameter);
    parameter.reset();
    auto* const editor = edit(gone);
    EXPECT_EQ(editor->toPlainText(), QString());
    EXPECT_THAT(takeOutput(), IsEmpty());
    send(editor, QEvent::Leave);
    EXPECT_EQ(takeWrittenOutput(), missingOwner);
    pools.use(nullptr);
    send(editor, QEvent::Leave);
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
}

TEST_F(MultiLineText, MayBeDeletedByAListener) {
    auto const parameter = makeText("abc");
    watch(parameter);
    QPointer<QTextEdit> const editor = edit(parameter);
    recorder.reaction = [&] { delete editor; };
    ASSERT_TRUE(QMetaObject::invokeMethod(editor, "newText"));
    EXPECT_FALSE(editor);
    EXPECT_THAT(recorder.values, ElementsAre("abc"));
}

TEST_F(MultiLineText, MayBeDeletedLaterWithItsPanelByAListener) {
    auto parameter = makeText("");
    watch(parameter);
    QPointer<QTextEdit> const editor = edit(parameter);
    recorder.reaction = [&] {
        recorder.reaction = nullptr;
        parameter.reset();
        parent->deleteLater();
    };
    QTest::keyClick(editor, Qt::Key_A);
    EXPECT_TRUE(waitUntil([&] { return !editor; }));
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
}

TEST_F(MultiLineText, IsCommittedWhenItIsHiddenBeforeItIsDeleted) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    insert(editor, QStringLiteral("being typed"));
    watch(parameter);
    parent->hide();
    delete parent;
    EXPECT_EQ(textOf(parameter), "being typed");
}

TEST_F(MultiLineText, IsCommittedWhenItsWindowIsDestroyed) {
    auto const parameter = makeText("");
    auto* const editor = edit(parameter);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    insert(editor, QStringLiteral("being typed"));
    delete parent;
    EXPECT_EQ(textOf(parameter), "being typed");
}

TEST_F(MultiLineText, CommitsNothingWhileItIsDestroyed) {
    auto const parameter = makeText("old");
    auto* const editor = edit(parameter);
    ASSERT_TRUE(showPanel());
    ASSERT_TRUE(focus(editor));
    insert(editor, QStringLiteral("being typed"));
    watch(parameter);
    delete editor;
    EXPECT_THAT(recorder.values, IsEmpty());
    EXPECT_EQ(textOf(parameter), "old");
}

TEST_F(MultiLineText, WritesIntoItsPoolAlone) {
    auto const parameter = makeText("own", Values::PerPool);
    auto* const editor = edit(parameter);
    insert(editor, QStringLiteral(" text"));
    send(editor, QEvent::Leave);
    EXPECT_EQ(localTextOf(parameter), "own text");
    EXPECT_EQ(textOf(parameter), "own");
    change(parameter, std::string("elsewhere"), secondPool);
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("own text"));
}

TEST_F(MultiLineText, IsHandedThePoolsTextByTheFrontEnd) {
    auto const parameter = makeText("own", Values::PerPool);
    parameter->setCreationPreferences(PreferencesPtr(new VCreationPreferences(VValueTrait<std::string>::MultiLine())));
    change(parameter, std::string("local"));
    auto const editor = makeEditor(parameter, parent, &pools);
    auto* const field = dynamic_cast<QTextEdit*>(editor.widget.data());
    EXPECT_EQ(field->toPlainText(), QStringLiteral("local"));
    pools.use(secondPool);
    showPoolValue(editor, parameter, &pools);
    EXPECT_EQ(field->toPlainText(), QStringLiteral("own"));
}

} // namespace
