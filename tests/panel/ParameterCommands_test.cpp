#include "EditingTest.hpp"

#include <parameters/commands/ValueClipboard.hpp>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ParameterCommandsTest : public EditingTest {
protected:
    void SetUp() override {
        EditingTest::SetUp();
        QApplication::clipboard()->clear();
    }

    /// Opens the context menu of a part of a row.
    static QMenu* contextMenu(QWidget* part) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {1, 1}, part->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(part, &event);
        return Talo::ParameterRow::rowOf(part)->findChild<QMenu*>();
    }
    static QAction* commandOf(QMenu* menu, char const* name) {
        return menu->findChild<QAction*>(QString::fromUtf8(name), Qt::FindDirectChildrenOnly);
    }
    static bool close(QPointer<QMenu> const& menu) {
        menu->close();
        return waitUntil([&] { return menu.isNull(); });
    }
    /// Gives the focus to the editor of a parameter.
    void focus(char const* name) const {
        auto* const editor = row(name)->editor();
        // A popup leaves the window inactive on some platforms.
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        editor->setFocus();
        ASSERT_EQ(Talo::ParameterRow::rowOf(QApplication::focusWidget()), row(name)) << name;
    }
    void copy(char const* name) const {
        focus(name);
        action("copyValue")->trigger();
    }
    void paste(char const* name) const {
        focus(name);
        action("pasteValue")->trigger();
    }
    static void putText(char const* text) { QApplication::clipboard()->setText(QString::fromUtf8(text)); }
    std::string refusal() const {
        auto const errors = window->messages()->texts(Panel::MessageList::Source::Error);
        EXPECT_EQ(window->statusBar()->currentMessage(), errors.isEmpty() ? QString() : errors.constLast());
        return errors.isEmpty() ? std::string() : errors.constLast().toStdString();
    }
    Talo::ModifiedIndicator* marker(char const* name) const { return row(name)->modifiedIndicator(); }
    bool isMarked(char const* name) const { return marker(name) && marker(name)->isVisible(); }
};

} // namespace

TEST_F(ParameterCommandsTest, ADotMarksWhatIsNotTheDefaultAndNamesIt) {
    EXPECT_FALSE(isMarked("int"));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_TRUE(isMarked("int"));
    EXPECT_THAT(marker("int")->toolTip().toStdString(), HasSubstr("Default: 20"));
    EXPECT_EQ(marker("int")->accessibleDescription(), QStringLiteral("Default: 20"));
    EXPECT_EQ(marker("int")->accessibleName(), QStringLiteral("Reset int to its default"));
    action("undo")->trigger();
    EXPECT_FALSE(isMarked("int"));
    set("all.int", "50");
    EXPECT_TRUE(isMarked("int")) << "whoever wrote it";
}

TEST_F(ParameterCommandsTest, TheDotIsAboutTheChosenPool) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    window->choosePool(QStringLiteral("final"));
    EXPECT_FALSE(isMarked("int"));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_THAT(marker("int")->toolTip().toStdString(), HasSubstr("Default: 40"));
    QTest::mouseClick(marker("int"), Qt::LeftButton);
    EXPECT_EQ(held("int"), "40");
    window->choosePool(QStringLiteral("draft"));
    EXPECT_TRUE(isMarked("int"));
    QTest::mouseClick(marker("int"), Qt::LeftButton);
    EXPECT_EQ(valuesNow(), text) << "a pool that had no value of its own has none again";
}

TEST_F(ParameterCommandsTest, TheDotResetsByMouseAndKeyboardAndUndoRevertsIt) {
    click(choice("Blue"));
    QTest::mouseClick(marker("enum"), Qt::LeftButton);
    EXPECT_EQ(held("enum"), "Red");
    EXPECT_TRUE(choice("Red")->isChecked());
    EXPECT_FALSE(isMarked("enum"));
    action("undo")->trigger();
    EXPECT_EQ(held("enum"), "Blue");
    EXPECT_TRUE(choice("Blue")->isChecked());
    marker("enum")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(marker("enum"), Qt::Key_Space);
    EXPECT_EQ(held("enum"), "Red");
    EXPECT_THAT(steps(), ElementsAre("enum: Red → Blue", "enum: Blue → Red"));
}

TEST_F(ParameterCommandsTest, NothingThatIsOnlyShownHasADefault) {
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    set("others.said", "Something.");
    for (auto const* const name : {"start", "said", "status"}) {
        EXPECT_FALSE(isMarked(name)) << name;
        focus("same int");
        EXPECT_TRUE(action("copyValue")->isEnabled());
        QPointer<QMenu> const menu = contextMenu(row(name));
        ASSERT_TRUE(menu) << name;
        for (auto const* const command : {"resetValue", "copyValue", "pasteValue", "setAsDefault"})
            EXPECT_FALSE(commandOf(menu, command)->isEnabled()) << name << command;
        EXPECT_TRUE(close(menu)) << name;
    }
}

TEST_F(ParameterCommandsTest, TheKeyResetsTheRowThatHasTheFocus) {
    auto* const line = field("line");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("wise"));
    EXPECT_EQ(held("line"), "edgewise");
    QTest::keyClick(line, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(held("line"), "edge");
    EXPECT_EQ(line->text(), QStringLiteral("edge"));
    EXPECT_THAT(steps(), SizeIs(2)) << "the typed text and the reset";
    action("undo")->trigger();
    EXPECT_EQ(held("line"), "edgewise");
}

TEST_F(ParameterCommandsTest, AMenuActsOnTheRowThatHadTheFocus) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    focus("int");
    window->menuBar()->setFocus();
    EXPECT_TRUE(action("resetValue")->isEnabled());
    action("resetValue")->trigger();
    EXPECT_EQ(held("int"), "20");
    window->objectList()->setFocus();
    EXPECT_FALSE(action("resetValue")->isEnabled());
}

TEST_F(ParameterCommandsTest, TheMenuOffersNoCommandBeforeARowHasTheFocus) {
    window.reset();
    window = std::make_unique<Panel::MainWindow>(plugins);
    ASSERT_TRUE(window->openNetwork(folder.filePath(QStringLiteral("values.json"))));
    ASSERT_EQ(QApplication::focusWidget(), nullptr);
    for (auto const* const name : {"resetValue", "setAsDefault", "copyValue", "pasteValue", "showHelp"})
        EXPECT_FALSE(action(name)->isEnabled()) << name;
}

TEST_F(ParameterCommandsTest, ARowOffersItsCommandsInAContextMenu) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    QPointer<QMenu> const menu = contextMenu(row("int")->nameLabel());
    ASSERT_TRUE(menu);
    EXPECT_THAT(menu->actions(), SizeIs(7)) << "five, a line and the editors";
    EXPECT_FALSE(commandOf(menu, "showHelp")->isEnabled()) << "there is none";
    auto const first = menu->actionGeometry(commandOf(menu, "resetValue")).center();
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, first);
    EXPECT_EQ(held("int"), "20");
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
}

TEST_F(ParameterCommandsTest, AKeyActsOnTheRowWithTheFocusAfterTheMenuOfAnotherOneWasDismissed) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    click(choice("Blue"));
    focus("int");
    EXPECT_TRUE(close(contextMenu(row("enum")->nameLabel())));
    focus("int");
    QTest::keyClick(slider("int"), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(held("int"), "20");
    EXPECT_EQ(held("enum"), "Blue");
}

TEST_F(ParameterCommandsTest, PasteActsOnTheRowWithTheFocusAfterTheMenuOfAnotherOneWasDismissed) {
    focus("int");
    QPointer<QMenu> const menu = contextMenu(row("line")->nameLabel());
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_EQ(Talo::ParameterRow::rowOf(QApplication::focusWidget()), row("int")) << "a menu takes no focus";
    putText("33");
    QTest::keyClick(slider("int"), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(held("int"), "33");
    EXPECT_EQ(held("line"), "edge");
    QTest::keyClick(slider("int"), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(held("int"), "20");
    action("pasteValue")->trigger();
    EXPECT_EQ(held("int"), "33");
}

TEST_F(ParameterCommandsTest, SetAsDefaultMovesTheDefaultAndSavesNothing) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    ASSERT_TRUE(isMarked("int"));
    auto const value = held("int");
    focus("int");
    action("setAsDefault")->trigger();
    EXPECT_FALSE(isMarked("int"));
    EXPECT_TRUE(waitUntil([this] { return window->isWindowModified(); }));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_TRUE(isMarked("int"));
    action("resetValue")->trigger();
    EXPECT_EQ(held("int"), value);
}

TEST_F(ParameterCommandsTest, EveryTypeIsCopiedAndPastedExactly) {
    set("all.double", "0.1234567890123456");
    set("all.colour", "0.1 0.25 0.7 0.5");
    set("all.flags", "bold=true");
    set("all.multiselection", "a\nc");
    set("all.enum", "Green");
    set("all.selection", "three");
    set("all.line", "  blanks around  ");
    set("all.array", "");
    set("all.lines", "one\ntwo\n");
    set("all.bool", "true");
    set("all.int", "7");
    for (auto const* const name : {"bool", "int", "double", "colour", "enum", "flags", "selection", "multiselection",
                                   "line", "array", "entered", "lines", "file"}) {
        auto const value = held(name);
        copy(name);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), value) << name;
        EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasFormat(Talo::ValueClipboard::mimeType())) << name;
        auto const copied = valuesNow();
        action("resetValue")->trigger();
        if (name != std::string("entered") && name != std::string("file")) {
            EXPECT_NE(held(name), value) << name;
            EXPECT_NE(valuesNow(), copied) << name;
        }
        paste(name);
        EXPECT_EQ(held(name), value) << name;
        EXPECT_EQ(valuesNow(), copied) << name;
        EXPECT_EQ(refusal(), "") << name;
    }
}

TEST_F(ParameterCommandsTest, APasteIsAStep) {
    putText("77");
    paste("int");
    EXPECT_EQ(field("int")->text(), QStringLiteral("77"));
    EXPECT_THAT(steps(), ElementsAre("int: 20 → 77"));
    action("undo")->trigger();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(ParameterCommandsTest, TheKeysCopyAndPasteAValueAndLeaveTextsToTheirFields) {
    auto* const line = field("line");
    line->setFocus();
    line->setSelection(0, 2);
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ed"));
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("edge"));
    auto* const array = field("array");
    array->setFocus();
    QTest::keyClick(array, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(held("array"), "edge") << "a text goes into another type of text";
    array->end(false);
    QTest::keyClick(array, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(held("array"), "edgeedge");
}

TEST_F(ParameterCommandsTest, AValueGoesFromPoolToPool) {
    copy("int");
    window->choosePool(QStringLiteral("final"));
    paste("int");
    EXPECT_EQ(held("int"), "20");
    action("undo")->trigger();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(ParameterCommandsTest, PlainTextIsReadWithoutTheBlanksAroundANumber) {
    putText(" 12\n");
    paste("int");
    EXPECT_EQ(held("int"), "12");
    putText(" 12\n");
    paste("line");
    EXPECT_EQ(held("line"), " 12\n");
}

TEST_F(ParameterCommandsTest, APasteThatDoesNotFitIsRefusedWithASentenceAndChangesNothing) {
    putText("many");
    paste("int");
    EXPECT_EQ(refusal(), "\"many\" is no value of int, which is of type int.");
    putText("Purple");
    paste("enum");
    EXPECT_THAT(refusal(), HasSubstr("enum"));
    paste("multiselection");
    EXPECT_THAT(refusal(), HasSubstr("multiselection"));
    putText("slanted=true");
    paste("flags");
    EXPECT_THAT(refusal(), HasSubstr("flags"));
    QApplication::clipboard()->clear();
    paste("line");
    EXPECT_EQ(refusal(), "The clipboard is empty.");
    auto* const picture = new QMimeData;
    picture->setData(QStringLiteral("image/png"), "no text");
    QApplication::clipboard()->setMimeData(picture);
    paste("line");
    EXPECT_EQ(refusal(), "There is no value to paste into line.");
    EXPECT_EQ(valuesNow(), text);
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(ParameterCommandsTest, ATypedValueThatDoesNotFitIsRefused) {
    auto const putTyped = [](char const* json) {
        auto* const data = new QMimeData;
        data->setData(Talo::ValueClipboard::mimeType(), json);
        QApplication::clipboard()->setMimeData(data);
    };
    for (auto const* const json :
         {R"({"type": "flags", "value": {"bold": true}})", R"({"type": "flags", "value": 7})", R"({"type": "flags"})",
          R"({"type": "flags", "value": {"bold": true, "wide": true, "slanted": true}})", "no JSON", ""}) {
        putTyped(json);
        paste("flags");
        EXPECT_THAT(refusal(), HasSubstr("flags")) << json;
    }
    putTyped(R"({"type": "enum", "value": "Purple"})");
    paste("enum");
    EXPECT_THAT(refusal(), HasSubstr("Purple"));
    EXPECT_EQ(valuesNow(), text);
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(ParameterCommandsTest, AParameterThatIsRemovedSaysSo) {
    focus("bool");
    window->network()->findObject(QStringLiteral("all"))->removeParameter(parameter("all.bool"));
    for (auto const* const command : {"resetValue", "copyValue", "pasteValue"}) {
        action(command)->trigger();
        EXPECT_THAT(refusal(), HasSubstr("bool")) << command;
    }
    EXPECT_TRUE(waitUntil([&] { return !isMarked("bool"); }));
}

TEST_F(ParameterCommandsTest, APasteWithoutAPoolIsRefused) {
    putText("7");
    focus("int");
    window->pools().setPool(nullptr);
    action("pasteValue")->trigger();
    EXPECT_THAT(refusal(), HasSubstr("pool"));
    window->pools().setPool(window->network()->pools().front());
    EXPECT_EQ(valuesNow(), text);
}
