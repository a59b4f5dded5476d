#include "HistoryTest.hpp"
#include "support/SliderDrag.hpp"

#include <parameters/rows/RowArea.hpp>
#include <QScrollBar>

#include "support/WheelTurn.hpp"
#include <parameters/input/FocusOutline.hpp>
#include <QColorDialog>
#include <QDockWidget>
#include <QSpinBox>
#include <QTextEdit>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(HistoryTest, AColourIsEditedByKeyboardAlone) {
    auto* const swatch = row("colour")->editor();
    swatch->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(swatch->hasFocus());
    auto* const frame = swatch->findChild<Talo::FocusOutline*>();
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->geometry(), swatch->rect());
    slider("int")->setFocus();
    EXPECT_FALSE(frame->isVisible());
    swatch->setFocus(Qt::TabFocusReason);
    QTest::keyClick(swatch, Qt::Key_Space);
    auto* const dialog = swatch->findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_NE(dialog->findChild<QSpinBox*>()->accessibleName(), QStringLiteral("colour"));
    QTest::keyClick(dialog->findChild<QSpinBox*>(), Qt::Key_Up);
    QTest::keyClick(dialog->findChild<QSpinBox*>(), Qt::Key_Up);
    dialog->hide();
    EXPECT_THAT(steps(), SizeIs(2));
    undo();
    undo();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(HistoryTest, TwoDragsAreTwoSteps) {
    dragHandle(slider("int"), {20, 20});
    auto const between = valuesNow();
    dragHandle(slider("int"), {20, 20});
    EXPECT_THAT(steps(), SizeIs(2));
    undo();
    EXPECT_EQ(valuesNow(), between);
    undo();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(HistoryTest, ADragThatComesBackIsNoStep) {
    dragHandle(slider("int"), {30, 20, -50});
    EXPECT_EQ(valuesNow(), text);
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    EXPECT_THAT(steps(), IsEmpty());
    EXPECT_FALSE(action("undo")->isEnabled());
}

TEST_F(HistoryTest, ATypedWordIsOneStepUntilTheFieldIsLeft) {
    auto* const line = field("line");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral(" of it"));
    EXPECT_EQ(held("line"), "edge of it");
    EXPECT_THAT(steps(), SizeIs(1));
    field("array")->setFocus();
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    line->setFocus();
    line->end(false);
    QTest::keyClicks(line, QStringLiteral("self"));
    EXPECT_THAT(steps(), ElementsAre("line: edge → edge of it", "line: edge of it → edge of itself"));
    undo();
    EXPECT_EQ(held("line"), "edge of it");
    EXPECT_EQ(line->text(), QStringLiteral("edge of it"));
}

TEST_F(HistoryTest, ReturnEndsATypedWord) {
    auto* const line = field("line");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("a"));
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    QTest::keyClicks(line, QStringLiteral("b"));
    EXPECT_THAT(steps(), ElementsAre("line: edge → edgea", "line: edgea → edgeab"));
}

TEST_F(HistoryTest, APressElsewhereEndsATypedWord) {
    auto* const line = field("line");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("a"));
    QTest::mouseClick(line, Qt::LeftButton);
    QTest::keyClicks(line, QStringLiteral("b"));
    EXPECT_THAT(steps(), SizeIs(1)) << "a press in the field only moves the cursor";
    click(control<QCheckBox>("bool"));
    EXPECT_THAT(steps(), SizeIs(2));
    undo();
    undo();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(HistoryTest, AnEditAfterADestroyedFieldIsAStepOfItsOwn) {
    auto* const second = window->addView();
    auto* const line = qobject_cast<QLineEdit*>(second->row(QStringLiteral("line"))->editor());
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("x"));
    delete line;
    EXPECT_TRUE(noGesture());
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_THAT(steps(), SizeIs(2));
}

TEST_F(HistoryTest, UndoWhileTypingUndoesTheWholeWord) {
    for (auto const* const name : {"line", "array", "lines"}) {
        auto* const editor = row(name)->editor();
        editor->setFocus();
        QTest::keyClicks(editor, QStringLiteral("abc"));
        EXPECT_NE(valuesNow(), text) << name;
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(valuesNow(), text) << name;
        EXPECT_THAT(steps(), IsEmpty()) << name;
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_THAT(held(name), HasSubstr("abc")) << name;
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(valuesNow(), text) << name;
    }
    EXPECT_EQ(field("line")->text(), QStringLiteral("edge"));
    EXPECT_EQ(control<QTextEdit>("lines")->toPlainText(), QStringLiteral("first\nsecond"));
}

TEST_F(HistoryTest, UndoWhileTypingGoesOnWithEarlierSteps) {
    click(control<QCheckBox>("bool"));
    auto* const line = field("line");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("abc"));
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(held("line"), "edge");
    EXPECT_EQ(held("bool"), "true");
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(held("bool"), "false");
}

TEST_F(HistoryTest, ATextThatIsNotWrittenYetIsUndoneByItsField) {
    click(control<QCheckBox>("bool"));
    auto* const number = field("int");
    number->setFocus();
    number->end(false);
    QTest::keyClicks(number, QStringLiteral("5"));
    EXPECT_EQ(number->text(), QStringLiteral("205"));
    QTest::keyClick(number, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(number->text(), QStringLiteral("20"));
    EXPECT_EQ(held("bool"), "true") << "the field had something to take back";
    QTest::keyClick(number, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(held("bool"), "false");
}

TEST_F(HistoryTest, AKeyThatIsHeldDownIsOneStep) {
    auto* const handle = slider("int");
    handle->setFocus();
    for (bool const repeats : {false, true, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), repeats);
        QApplication::sendEvent(handle, &press);
    }
    EXPECT_EQ(held("int"), "24");
    EXPECT_THAT(steps(), SizeIs(1));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(handle, &release);
    QTest::keyClick(handle, Qt::Key_Right);
    EXPECT_THAT(steps(), SizeIs(2));
}

TEST_F(HistoryTest, TurnsOfTheWheelAreOneStepUntilItRests) {
    auto* const handle = slider("int");
    handle->setFocus();
    turnWheel(*handle, 1);
    turnWheel(*handle, 1);
    EXPECT_THAT(steps(), SizeIs(1));
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    turnWheel(*handle, -1);
    EXPECT_THAT(steps(), SizeIs(2));
}

TEST_F(HistoryTest, WhatTheHostWritesIsNoStep) {
    for (auto const* const setting : {"all.int", "all.double"})
        set(setting, "7");
    set("all.enum", "Green");
    set("all.selection", "two");
    EXPECT_TRUE(choice("Green")->isChecked());
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(HistoryTest, SwitchingThePoolIsNoStep) {
    window->choosePool(QStringLiteral("final"));
    window->choosePool(QStringLiteral("draft"));
    EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(HistoryTest, UndoWorksInThePoolOfTheEditWhicheverIsChosen) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_EQ(held("int"), "21");
    window->choosePool(QStringLiteral("final"));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_EQ(held("int"), "41");
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("all.int: 40 → 41 (final)"));
    undo();
    EXPECT_EQ(held("int"), "40");
    EXPECT_EQ(field("int")->text(), QStringLiteral("40"));
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("all.int: 20 → 21 (draft)"));
    undo();
    EXPECT_EQ(valuesNow(), text) << "a pool that had no value of its own has none again";
    EXPECT_EQ(field("int")->text(), QStringLiteral("40")) << "the chosen pool is still the other one";
    window->choosePool(QStringLiteral("draft"));
    EXPECT_EQ(field("int")->text(), QStringLiteral("20"));
}

TEST_F(HistoryTest, UndoAndRedoShowTheObjectOfTheChange) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    ASSERT_EQ(window->currentView()->object()->Name(), "others");
    undo();
    EXPECT_EQ(window->currentView()->object()->Name(), "all");
    EXPECT_EQ(window->objectList()->currentIndex().data().toString(), QStringLiteral("all"));
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    redo();
    EXPECT_EQ(window->currentView()->object()->Name(), "all");
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    window->goToState(0);
    EXPECT_EQ(window->currentView()->object()->Name(), "all");
}

TEST_F(HistoryTest, UndoScrollsToTheChange) {
    window->resize(1000, 400);
    auto* const area = window->currentView()->panel()->rowArea();
    auto* const bar = area->verticalScrollBar();
    EXPECT_TRUE(waitUntil([&] { return bar->maximum() > 0; }));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    bar->setValue(bar->maximum());
    EXPECT_TRUE(row("int")->visibleRegion().isEmpty());
    undo();
    EXPECT_EQ(row("int")->visibleRegion().boundingRect(), row("int")->rect());
}

TEST_F(HistoryTest, AViewThatShowsTheChangeAlreadyIsEnough) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    EXPECT_TRUE(waitUntil([this] { return noGesture(); }));
    auto const* const other = window->addView();
    EXPECT_TRUE(waitUntil([&] { return !other->visibleRegion().isEmpty(); }));
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    undo();
    EXPECT_EQ(window->currentView()->object()->Name(), "others");
}

TEST_F(HistoryTest, StepsOutliveTheViewOfTheirEdit) {
    auto* const second = window->addView();
    auto* const handle = second->row(QStringLiteral("int"))->editor()->findChild<QSlider*>();
    QTest::keyClick(handle, Qt::Key_Right);
    QPointer<Panel::ObjectView> const view = second;
    qobject_cast<QDockWidget*>(second->parentWidget())->close();
    EXPECT_TRUE(waitUntil([&] { return view.isNull(); }));
    undo();
    EXPECT_EQ(valuesNow(), text);
    redo();
    EXPECT_EQ(held("int"), "21");
}

TEST_F(HistoryTest, StepsOutliveTheirPlugin) {
    QTest::keyClick(slider("int"), Qt::Key_Right);
    click(choice("Blue"));
    QString error;
    ASSERT_TRUE(plugins.reload(&error)) << qPrintable(error);
    QTest::keyClick(slider("int"), Qt::Key_Right);
    auto const edited = valuesNow();
    EXPECT_THAT(steps(), SizeIs(3));
    action("unload")->trigger();
    for (int count = 0; count < 3; ++count)
        undo();
    EXPECT_EQ(valuesNow(), text);
    action("reload")->trigger();
    EXPECT_TRUE(choice("Red")->isChecked());
    for (int count = 0; count < 3; ++count)
        redo();
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_TRUE(choice("Blue")->isChecked());
    EXPECT_EQ(field("int")->text(), QStringLiteral("22"));
    EXPECT_TRUE(window->messages()->texts(Panel::MessageList::Source::Error).isEmpty());
}

TEST_F(HistoryTest, AStepOfARemovedParameterIsReported) {
    click(control<QCheckBox>("bool"));
    window->network()->findObject(QStringLiteral("all"))->removeParameter(parameter("all.bool"));
    undo();
    EXPECT_THAT(window->messages()->texts(Panel::MessageList::Source::Error).join(QString()).toStdString(),
                HasSubstr("bool: false → true"));
    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_FALSE(action("redo")->isEnabled());
}

TEST_F(HistoryTest, TheListShowsEveryStateAndGoesToTheChosenOne) {
    click(control<QCheckBox>("bool"));
    EXPECT_FALSE(list()->isVisible());
    action("showHistory")->trigger();
    ASSERT_TRUE(waitUntil([&] { return list()->isVisible(); }));
    click(choice("Blue"));
    QTest::keyClick(slider("int"), Qt::Key_Right);
    auto const edited = valuesNow();
    std::vector<std::string> const all{"Start", "all.bool: false → true", "all.enum: Red → Blue",
                                       "all.int: 20 → 21 (draft)"};
    EXPECT_TRUE(waitUntil([&] { return rows() == all; }));
    EXPECT_EQ(list()->currentRow(), 3);

    auto const placeOf = [&](int row) { return list()->visualItemRect(list()->item(row)).center(); };
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(1));
    EXPECT_EQ(held("bool"), "true");
    EXPECT_EQ(held("enum"), "Red");
    EXPECT_EQ(held("int"), "20");
    auto const isMuted = [&](int row) { return list()->item(row)->font().italic(); };
    EXPECT_TRUE(waitUntil([&] { return isMuted(2) && isMuted(3); }));
    EXPECT_FALSE(isMuted(1));
    EXPECT_EQ(rows(), all);
    EXPECT_THAT(list()->item(2)->data(Qt::AccessibleTextRole).toString().toStdString(), HasSubstr("undone"));

    list()->setFocus();
    list()->setCurrentRow(0);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(valuesNow(), text);
    list()->setCurrentRow(3);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_TRUE(waitUntil([&] { return !isMuted(2) && list()->currentRow() == 3; }));

    undo();
    click(control<QCheckBox>("bool"));
    EXPECT_TRUE(waitUntil([&] { return rows().back() == "all.bool: true → false"; }));
    EXPECT_THAT(rows(), SizeIs(4));
}

TEST_F(HistoryTest, LongTextsAreShortenedToWhatDiffers) {
    auto const longText = QString(200, QLatin1Char('x')) + QStringLiteral(" end");
    set("all.line", longText.toUtf8().constData());
    auto* const line = field("line");
    line->setFocus();
    line->end(false);
    QTest::keyClicks(line, QStringLiteral("ing"));
    EXPECT_EQ(action("undo")->text().toStdString(), "&Undo: all.line: …xxxx end → …xxxx ending");
    undo();
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Backspace);
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("… → (empty)"));
}

TEST_F(HistoryTest, AnotherNetworkStartsWithAnEmptyHistory) {
    click(control<QCheckBox>("bool"));
    undo();
    click(choice("Blue"));
    ASSERT_TRUE(window->openNetwork(networkFile("other.json", lamps)));
    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_FALSE(action("redo")->isEnabled());
    EXPECT_THAT(window->history().steps(), IsEmpty());
}
