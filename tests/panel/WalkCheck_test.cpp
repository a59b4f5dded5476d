// What the random walk looks at when it rests: each check finds a fault that is planted, and none at the start.

#include "FractalPanelTest.hpp"
#include "PreviewCheck.hpp"
#include "RowCheck.hpp"
#include "WindowCheck.hpp"

#include <parameters/commands/HistoryView.hpp>
#include <parameters/rows/ModifiedIndicator.hpp>
#include <QDial>
#include <QDockWidget>
#include <QScrollBar>
#include <QSlider>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class WalkCheckTest : public FractalPanelTest {
protected:
    void SetUp() override {
        FractalPanelTest::SetUp();
        window->setRawValuesShown(true);
        auto* const view = window->findChild<Talo::HistoryView*>();
        for (auto* above = view->parentWidget(); above != window.get(); above = above->parentWidget())
            above->show();
        store("formula.iterations", "300");
        settle();
        ASSERT_THAT(rowFaults(*window), IsEmpty());
        ASSERT_THAT(windowFaults(*window), IsEmpty());
    }

    void TearDown() override {
        FractalPanelTest::TearDown();
        // The editor of the selections prints what it does.
        takeOutput();
    }

    static void settle() {
        for (int round = 0; round < 3; ++round)
            QTest::qWait(20);
    }

    /// An edit with an undo step.
    void store(char const* name, char const* text) {
        auto const edited = parameter(name);
        Kolt::ValuePtr const value(edited->ownValue()->clone());
        ASSERT_TRUE(value->setValueFromText(text));
        ASSERT_TRUE(window->history().store(edited, window->pools().pool(), {value, false}));
        waitUntil([this] { return window->isWindowModified(); });
    }

    Talo::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }

    void expectRowFault(char const* fault) const { EXPECT_THAT(rowFaults(*window), Contains(HasSubstr(fault))); }
    void expectWindowFault(char const* fault) const {
        EXPECT_THAT(windowFaults(*window), ElementsAre(HasSubstr(fault)));
    }
};

} // namespace

TEST_F(WalkCheckTest, FindsAMarkThatIsMissing) {
    row("iterations")->modifiedIndicator()->hide();
    expectRowFault("formula.iterations has changed and is not marked");
}

TEST_F(WalkCheckTest, FindsAMarkThatStays) {
    Kolt::ValuePtr const original = parameter("formula.iterations")->defaults()->in(window->pools().pool()).value;
    parameter("formula.iterations")
        ->getLocalValue(window->pools().pool(), std::string(), false)
        ->setValueFromText(original->Text());
    expectRowFault("formula.iterations is marked as changed");
}

TEST_F(WalkCheckTest, FindsAMarkThatNamesAnotherDefault) {
    row("iterations")->modifiedIndicator()->setDefault(QStringLiteral("iterations"), QStringLiteral("7"));
    expectRowFault("formula.iterations mark's tool tip");
}

TEST_F(WalkCheckTest, FindsANoteAboutAnotherPool) {
    auto const labels = row("iterations")->nameLabel()->parentWidget()->findChildren<QLabel*>();
    for (auto* const label : labels) {
        if (label->text() == row("iterations")->note())
            label->setText(QStringLiteral("in pool other"));
    }
    expectRowFault("formula.iterations note \"in pool other\", not \"in pool draft\"");
}

TEST_F(WalkCheckTest, FindsARawValueThatStaysBehind) {
    parameter("formula.iterations")
        ->getLocalValue(window->pools().pool(), std::string(), false)
        ->setValueFromText("123");
    expectRowFault("formula.iterations raw value \"300\", not \"123\"");
}

TEST_F(WalkCheckTest, FindsARawValueThatIsReadOrExplainedWrongly) {
    row("iterations")->rawValue()->setAccessibleDescription(QStringLiteral("9"));
    row("quality")->rawValue()->setToolTip(QStringLiteral("none"));
    EXPECT_THAT(rowFaults(*window), ElementsAre(HasSubstr("formula.iterations raw value read as \"9\""),
                                                HasSubstr("formula.quality raw value's tool tip \"none\"")));
}

TEST_F(WalkCheckTest, FindsARawValueThatIsNotShown) {
    row("quality")->rawValue()->hide();
    expectRowFault("formula.quality does not show its raw value");
}

TEST_F(WalkCheckTest, FindsAControlThatAScreenReaderCannotName) {
    row("iterations")->editor()->findChild<QSlider*>()->setAccessibleName(QString());
    expectRowFault("formula.iterations QSlider has no accessible name");
}

TEST_F(WalkCheckTest, FindsAControlThatIsReadAsThatOfAnotherPool) {
    row("iterations")
        ->editor()
        ->findChild<QSlider*>()
        ->setAccessibleDescription(QStringLiteral("formula.iterations, in pool final"));
    expectRowFault("without \"formula.iterations, type int, in pool draft\"");
}

TEST_F(WalkCheckTest, FindsRowsThatStandOnEachOther) {
    row("quality")->move(row("iterations")->pos());
    expectRowFault("formula.quality stands on iterations");
}

TEST_F(WalkCheckTest, FindsAFormThatScrollsTooFarOrIsScrolledElsewhere) {
    auto* const area = window->currentView()->panel()->rowArea();
    area->verticalScrollBar()->setMaximum(5000);
    expectRowFault("formula scrolls to 5000");
    area->widget()->move(0, -17);
    expectRowFault("formula is scrolled by 17, not 0");
}

TEST_F(WalkCheckTest, FindsATitleOfAnotherNetwork) {
    window->setWindowTitle(window->network()->title() + QStringLiteral("[*] - other.json"));
    expectWindowFault("without \"fractal.json\"");
}

TEST_F(WalkCheckTest, FindsATitleThatDoesNotTellOfUnsavedValues) {
    window->setWindowModified(false);
    expectWindowFault("title does not say that values are unsaved");
}

TEST_F(WalkCheckTest, FindsUndoOfAnotherStep) {
    action("undo")->setText(QStringLiteral("Undo: formula.quality"));
    expectWindowFault("undo \"Undo: formula.quality\" without \"formula.iterations: ");
}

TEST_F(WalkCheckTest, FindsRedoThatCannotBeDone) {
    action("redo")->setEnabled(true);
    expectWindowFault("redo is enabled without a step");
}

TEST_F(WalkCheckTest, FindsAHistoryThatStaysBehind) {
    auto* const view = window->findChild<Talo::HistoryView*>();
    view->item(1)->setText(QStringLiteral("formula.quality"));
    expectWindowFault("history row 1 \"formula.quality\", not \"formula.iterations: ");
    delete view->takeItem(1);
    EXPECT_THAT(windowFaults(*window), Contains("history has rows 1, not 2"));
}

TEST_F(WalkCheckTest, FindsAHistoryThatShowsAStepAsUndone) {
    auto* const item = window->findChild<Talo::HistoryView*>()->item(1);
    auto font = item->font();
    font.setItalic(true);
    item->setFont(font);
    expectWindowFault("history row 1 looks as if it was undone");
}

TEST_F(WalkCheckTest, FindsAnObjectThatTheListHides) {
    auto* const list = window->objectList();
    auto const index = list->objects()->find(QStringLiteral("layers"));
    list->setRowHidden(index.row(), index.parent(), true);
    expectWindowFault("object list shows or hides layers against the filter");
}

TEST_F(WalkCheckTest, FindsAFormOfAnotherObjectThanTheListIsAt) {
    QSignalBlocker const blocker(window->objectList());
    window->showObject(QStringLiteral("layers"));
    expectWindowFault("object list is at layers, the form shows formula");
}

TEST_F(WalkCheckTest, FindsAMessageThatSaysNothing) {
    window->messages()->add(Panel::MessageList::Source::Panel, QString());
    expectWindowFault("is empty");
}

TEST_F(WalkCheckTest, FindsCommandsForAnotherRowThanThatWithTheFocus) {
    row("iterations")->editor()->findChild<QSlider*>()->setFocus();
    EXPECT_THAT(focusFaults(*window), IsEmpty());
    QSignalBlocker const blocker(qApp);
    row("quality")->editor()->findChild<QDial*>()->setFocus();
    EXPECT_THAT(focusFaults(*window), ElementsAre("the focus is in quality, the commands are about iterations"));
}

TEST_F(WalkCheckTest, FindsAPreviewOfOtherValues) {
    window->fractalController().previewAction()->trigger();
    auto const& renderer = window->fractalController().previewRenderer();
    ASSERT_TRUE(waitUntil([&] { return renderer.isFine() && renderer.isAtRest(); }));
    EXPECT_EQ(previewFault(*window), "");
    // Nobody is notified.
    parameter("formula.iterations")->getLocalValue(window->pools().pool(), std::string(), false)->setValueFromText("3");
    EXPECT_EQ(previewFault(*window), "the preview is not the picture of the values");
}
