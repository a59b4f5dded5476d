#include "PanelTest.hpp"

#include <parameters/rows/PlaceholderEditor.hpp>
#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollBar>

using testing::Contains;
using testing::HasSubstr;

namespace {

struct Step : Kolt::VUndoAction {
    Step(std::string const& text, bool works, int& undone) : VUndoAction(text), works_(works), undone_(undone) {}
    bool undo() override {
        ++undone_;
        return works_;
    }
    bool const works_;
    int& undone_;
};

class MainWindowTest : public PanelTest {
protected:
    QComboBox* poolSelector() const { return window->findChild<QToolBar*>()->findChild<QComboBox*>(); }
    std::string lastMessage() const {
        auto const texts = window->messages()->texts();
        return texts.isEmpty() ? std::string() : texts.constLast().toStdString();
    }
    void addStep(std::string const& text, bool works, int& undone) const {
        window->history().add(Tessera::StrongPtr<Kolt::VUndoAction>(new Step(text, works, undone)));
    }
};

} // namespace

TEST_F(MainWindowTest, ListsTheObjectsAndShowsTheFirst) {
    auto const* const objects = window->objectList()->objects();
    ASSERT_EQ(objects->rowCount(), 2);
    EXPECT_EQ(objects->index(0, 0).data().toString(), QStringLiteral("lamp"));
    EXPECT_EQ(objects->index(1, 0).data().toString(), QStringLiteral("second lamp"));
    ASSERT_NE(window->currentView(), nullptr);
    EXPECT_EQ(window->currentView()->object(), window->network()->findObject(QStringLiteral("lamp")));
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("Two lamps"));
}

TEST_F(MainWindowTest, ACheckBoxOfThePluginEditsABool) {
    auto* const steady = box("steady");
    ASSERT_NE(steady, nullptr);
    EXPECT_TRUE(steady->isChecked());
    auto const age = parameter("lamp.steady")->ownValue()->age();
    QTest::mouseClick(steady, Qt::LeftButton);
    EXPECT_EQ(valueOf("lamp.steady"), "false");
    EXPECT_GT(parameter("lamp.steady")->ownValue()->age(), age);
}

TEST_F(MainWindowTest, ChoosingAnObjectInTheListShowsIt) {
    window->objectList()->setCurrentIndex(window->objectList()->objects()->index(1, 0));
    EXPECT_EQ(window->currentView()->object(), window->network()->findObject(QStringLiteral("second lamp")));
    EXPECT_TRUE(box("on")->isChecked());
    EXPECT_FALSE(window->showObject(QStringLiteral("third lamp")));
    EXPECT_EQ(window->currentView()->object(), window->network()->findObject(QStringLiteral("second lamp")));
}

TEST_F(MainWindowTest, AnObjectThatIsChosenAgainHasTheSameEditors) {
    QPointer<QCheckBox> const first = box("on");
    window->showObject(QStringLiteral("second lamp"));
    window->showObject(QStringLiteral("lamp"));
    EXPECT_EQ(box("on"), first.data());
}

TEST_F(MainWindowTest, ASecondViewOfAnObjectFollowsTheFirst) {
    auto* const second = window->addView();
    ASSERT_NE(second, nullptr);
    ASSERT_NE(second, window->currentView());
    EXPECT_EQ(second->object(), window->currentView()->object());
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_FALSE(box(second, "steady")->isChecked());
    QTest::mouseClick(box(second, "steady"), Qt::LeftButton);
    EXPECT_TRUE(box("steady")->isChecked());
    EXPECT_EQ(valueOf("lamp.steady"), "true");
}

TEST_F(MainWindowTest, AClosedViewIsHiddenAtOnceAndDeletedLater) {
    QPointer<Panel::ObjectView> const view = window->addView();
    auto* const dock = qobject_cast<QDockWidget*>(view->parentWidget());
    ASSERT_NE(dock, nullptr);
    dock->close();
    ASSERT_TRUE(view);
    EXPECT_TRUE(dock->isHidden());
    EXPECT_TRUE(waitUntil([&] { return view.isNull(); }));
}

TEST_F(MainWindowTest, SwitchingThePoolKeepsTheScrollPosition) {
    window->resize(500, 200);
    window->show();
    auto* const bar = window->currentView()->panel()->rowArea()->verticalScrollBar();
    ASSERT_TRUE(waitUntil([&] { return bar->maximum() > 0; }));
    bar->setValue(bar->maximum());
    int const position = bar->value();
    poolSelector()->setCurrentIndex(1);
    EXPECT_EQ(bar->value(), position);
}

TEST_F(MainWindowTest, SwitchingThePoolSwitchesEveryEditor) {
    auto* const second = window->addView();
    EXPECT_FALSE(box("on")->isChecked());
    poolSelector()->setCurrentIndex(1);
    EXPECT_TRUE(box("on")->isChecked());
    EXPECT_TRUE(box(second, "on")->isChecked());
    EXPECT_TRUE(box("steady")->isChecked());
    QTest::mouseClick(box("on"), Qt::LeftButton);
    EXPECT_EQ(valueOf("lamp.on"), "false");
    // Written to the chosen pool, not to the parameter's own value.
    set("lamp.on", "true");
    ASSERT_TRUE(window->choosePool(QStringLiteral("day")));
    EXPECT_EQ(poolSelector()->currentText(), QStringLiteral("day"));
    EXPECT_FALSE(box("on")->isChecked());
    EXPECT_FALSE(window->choosePool(QStringLiteral("dusk")));
    EXPECT_EQ(poolSelector()->currentText(), QStringLiteral("day"));
}

TEST_F(MainWindowTest, SwitchingThePoolWritesNothing) {
    auto const before = window->network()->values();
    window->choosePool(QStringLiteral("night"));
    window->choosePool(QStringLiteral("day"));
    EXPECT_EQ(window->network()->values(), before);
}

TEST_F(MainWindowTest, AViewMadeLaterShowsTheChosenPoolAndRawValues) {
    window->choosePool(QStringLiteral("night"));
    window->setRawValuesShown(true);
    auto* const view = window->addView();
    EXPECT_TRUE(box(view, "on")->isChecked());
    EXPECT_FALSE(view->row(QStringLiteral("on"))->rawValue()->isHidden());
}

TEST_F(MainWindowTest, RawValuesAreShownOnDemand) {
    auto const* const row = window->currentView()->row(QStringLiteral("steady"));
    EXPECT_EQ(row->rawValue(), nullptr);
    action("rawValues")->trigger();
    auto* const raw = row->rawValue();
    ASSERT_NE(raw, nullptr);
    EXPECT_FALSE(raw->isHidden());
    EXPECT_EQ(raw->text(), QStringLiteral("true"));
    action("rawValues")->trigger();
    EXPECT_TRUE(raw->isHidden());
}

TEST_F(MainWindowTest, F1ShowsTheHelpOfTheRowInASideArea) {
    ASSERT_TRUE(window->openNetwork(networkFile("help.json", R"({ "pools": ["only"], "objects": [
        { "name": "lamp", "parameters": [ { "name": "on", "type": "bool", "value": true,
          "properties": { "label": "Lit", "help": "Turns the <b>lamp</b> on." } } ] } ] })")));
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    auto const* const view = window->findChild<Talo::HelpView*>();
    EXPECT_FALSE(view->isVisible());
    box("on")->setFocus();
    QTest::keyClick(box("on"), Qt::Key_F1);
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->toPlainText(), QStringLiteral("Lit\nTurns the lamp on."));
}

TEST_F(MainWindowTest, AdvancedParametersAreShownOnDemandInAllViews) {
    ASSERT_TRUE(window->openNetwork(networkFile("advanced.json", R"({ "pools": ["only"], "objects": [
        { "name": "lamp", "parameters": [ { "name": "on", "type": "bool", "value": true },
          { "name": "ballast", "type": "int", "value": 1, "properties": { "advanced": true } } ] } ] })")));
    window->show();
    auto const isShown = [](Panel::ObjectView* view) {
        return view->row(QStringLiteral("ballast"))->isVisibleTo(view);
    };
    auto* const first = window->currentView();
    EXPECT_FALSE(isShown(first));
    action("advanced")->trigger();
    EXPECT_TRUE(isShown(first));
    auto* const second = window->addView();
    EXPECT_TRUE(isShown(second));
    action("advanced")->trigger();
    EXPECT_FALSE(isShown(first));
    EXPECT_FALSE(isShown(second));
}

TEST_F(MainWindowTest, UndoNamesAndRevertsTheLatestStep) {
    EXPECT_FALSE(action("undo")->isEnabled());
    int undone = 0;
    addStep("Set int value to 7 & more", true, undone);
    EXPECT_TRUE(action("undo")->isEnabled());
    EXPECT_EQ(action("undo")->text(), QStringLiteral("&Undo: Set int value to 7 && more"));
    action("undo")->trigger();
    EXPECT_EQ(undone, 1);
    EXPECT_FALSE(action("undo")->isEnabled());
}

TEST_F(MainWindowTest, AStepThatCanNoLongerBeUndoneIsReported) {
    int undone = 0;
    addStep("Set int value to 7", false, undone);
    action("undo")->trigger();
    EXPECT_THAT(lastMessage(), HasSubstr("Set int value to 7"));
    EXPECT_EQ(window->messages()->texts(Panel::MessageList::Source::Error).size(), 1);
}

TEST_F(MainWindowTest, ABrokenFileLeavesEverythingOpenAsItWas) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    auto const objects = window->network()->objects();
    auto const values = window->network()->values();
    QPointer<Panel::ObjectView> const view = window->currentView();
    auto const title = window->windowTitle();
    int undone = 0;
    addStep("step", true, undone);

    auto const file = networkFile("broken.json", "{\n\"pools\": [\"day\"],\n\"objects\": 7\n}");
    QString error;
    EXPECT_FALSE(window->openNetwork(file, &error));
    EXPECT_THAT(error.toStdString(), HasSubstr(file.toStdString() + ":3:"));
    EXPECT_EQ(lastMessage(), error.toStdString());
    EXPECT_EQ(window->network()->objects(), objects);
    EXPECT_EQ(window->network()->values(), values);
    EXPECT_EQ(window->currentView(), view.data());
    EXPECT_EQ(window->windowTitle(), title);
    EXPECT_TRUE(action("undo")->isEnabled());
    EXPECT_FALSE(window->openNetwork(folder.filePath(QStringLiteral("missing.json")), &error));
    EXPECT_EQ(window->network()->objects(), objects);
}

TEST_F(MainWindowTest, ABrokenFileChosenInTheMenuIsReportedInABox) {
    auto const file = networkFile("broken.json", "{ \"pools\": <7> }");
    auto const objects = window->network()->objects();
    QTimer::singleShot(0, window.get(), [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>()->setText(file);
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
    action("open")->trigger();
    QPointer<QMessageBox> const box = window->findChild<QMessageBox*>();
    ASSERT_TRUE(box);
    EXPECT_THAT(box->informativeText().toStdString(), HasSubstr(file.toStdString() + ":1:"));
    EXPECT_EQ(window->network()->objects(), objects);
    box->accept();
    EXPECT_TRUE(waitUntil([&] { return box.isNull(); }));
}

TEST_F(MainWindowTest, UndoRevertsAnEditOfAnotherObject) {
    window->showObject(QStringLiteral("second lamp"));
    auto* const number = window->currentView()->row(QStringLiteral("level"))->editor()->findChild<QAbstractSlider*>();
    ASSERT_NE(number, nullptr);
    number->setFocus();
    QTest::keyClick(number, Qt::Key_Right);
    ASSERT_EQ(valueOf("second lamp.level"), "6");
    window->showObject(QStringLiteral("lamp"));
    action("undo")->trigger();
    EXPECT_EQ(valueOf("second lamp.level"), "5");
    EXPECT_TRUE(window->messages()->texts(Panel::MessageList::Source::Error).isEmpty());
}

TEST_F(MainWindowTest, AnotherNetworkTakesThePlaceOfTheOpenOne) {
    QPointer<Panel::ObjectView> const view = window->currentView();
    QPointer<Panel::ObjectView> const second = window->addView();
    int undone = 0;
    addStep("step", true, undone);
    auto const file = networkFile("other.json", R"({ "pools": ["only"], "objects": [
        { "name": "door", "parameters": [ { "name": "open", "type": "bool", "value": true } ] } ] })");
    ASSERT_TRUE(window->openNetwork(file));
    ASSERT_NE(window->currentView(), nullptr);
    EXPECT_TRUE(box("open")->isChecked());
    EXPECT_EQ(poolSelector()->count(), 1);
    EXPECT_EQ(window->pools().pool(), window->network()->pools().front());
    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("other.json"));
    EXPECT_TRUE(waitUntil([&] { return !view && !second; }));
}

TEST_F(MainWindowTest, ANetworkWithoutObjectsIsShownEmpty) {
    ASSERT_TRUE(window->openNetwork(networkFile("empty.json", R"({ "pools": ["only"], "objects": [] })")));
    EXPECT_EQ(window->objectList()->objects()->rowCount(), 0);
    EXPECT_EQ(window->currentView(), nullptr);
    EXPECT_EQ(window->addView(), nullptr);
}

TEST_F(MainWindowTest, SavedValuesAreThereWhenTheFileIsOpened) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    auto const values = window->network()->values();
    auto const file = folder.filePath(QStringLiteral("saved.json"));
    ASSERT_TRUE(window->saveValues(file));
    ASSERT_TRUE(window->openNetwork(file));
    EXPECT_EQ(window->network()->values(), values);
    EXPECT_FALSE(box("steady")->isChecked());
}

TEST_F(MainWindowTest, AFileThatCannotBeWrittenIsReported) {
    QString error;
    EXPECT_FALSE(window->saveValues(folder.filePath(QStringLiteral("missing/saved.json")), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(lastMessage(), error.toStdString());
}

TEST_F(MainWindowTest, AFiredActionIsAMessage) {
    auto const start = parameter("second lamp.start");
    auto const fired = Kolt::valueOr(start->ownValue(), Tessera::StrongPtr<Kolt::VAction>());
    ASSERT_TRUE(fired);
    fired->emitAction(window->pools().pool(), start);
    EXPECT_EQ(lastMessage(), "Action second lamp.start was fired in pool day.");
}

TEST_F(MainWindowTest, EveryEditorCanBeReachedAndIsNamed) {
    auto const* const row = window->currentView()->row(QStringLiteral("housing.painted"));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->nameLabel()->text(), QStringLiteral("painted"));
    EXPECT_EQ(row->nameLabel()->buddy(), row->editor());
    EXPECT_EQ(row->editor()->focusProxy(), box("housing.painted"));
    EXPECT_EQ(box("housing.painted")->accessibleName(), QStringLiteral("painted"));
}

TEST_F(MainWindowTest, TheToolTipOfARawValueTellsWhichEditorWasTakenAndWhy) {
    window->setRawValuesShown(true);
    auto const tip = window->currentView()->row(QStringLiteral("steady"))->rawValue()->toolTip().toStdString();
    auto const choice = Kolt::InputRegistry::theRegistry().choose(*parameter("lamp.steady"), {"QT"});
    EXPECT_THAT(tip, HasSubstr(QString::fromStdString(choice.explanation).toHtmlEscaped().toStdString()));
    EXPECT_THAT(tip, HasSubstr("Type: bool"));
}

TEST_F(MainWindowTest, IsActiveAgainWhenADialogClosesBelowAListThatFoldedOut) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QDialog dialog(window.get());
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QMenu list(&dialog);
    list.addAction(QStringLiteral("entry"));
    list.popup(dialog.mapToGlobal(QPoint(5, 5)));
    ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
    dialog.hide();
    window->activateWindow();
    EXPECT_TRUE(waitUntil([&] { return QGuiApplication::focusWindow() == window->windowHandle(); }));
    list.close();
    EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
}

TEST_F(MainWindowTest, IsActiveAgainWhenQtForgetsThatItHasTheFocus) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QApplication::setActiveWindow(nullptr);
    EXPECT_FALSE(window->isActiveWindow());
    EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
}
