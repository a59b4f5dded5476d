#include "parameters/FormTest.hpp"
#include "support/PluginFile.hpp"
#include "support/SliderDrag.hpp"

#include <memory>
#include <parameters/commands/UndoStackAdapter.hpp>
#include <parameters/OnePool.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QCheckBox>
#include <QClipboard>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <sorrel/QLeaveLineEdit.hpp>
#include <thread>

using Command = Talo::ParameterPanel::Command;
using Kolt::Parameter;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ParameterPanelTest : public FormTest {
protected:
    ParameterPanelTest() : FormTest("lamp") {}

    void SetUp() override {
        FormTest::SetUp();
        for (Kolt::ParameterPtr const& each :
             {Kolt::ParameterPtr(on), Kolt::ParameterPtr(level), Kolt::ParameterPtr(label)})
            add(each);
        ASSERT_NO_FATAL_FAILURE(show());
    }

    QCheckBox* box() const { return row("on")->editor()->findChild<QCheckBox*>(); }
    QSlider* slider() const { return row("level")->editor()->findChild<QSlider*>(); }
    QLineEdit* field() const {
        auto* const editor = row("label")->editor();
        auto* const self = qobject_cast<QLineEdit*>(editor);
        return self ? self : editor->findChild<QLineEdit*>();
    }
    void clickBox() const { QTest::mouseClick(box(), Qt::LeftButton, Qt::NoModifier, {8, box()->height() / 2}); }

    Parameter<bool> const on{"on", false};
    Parameter<int> const level = Parameter<int>::perPool("level", 40).min(0).max(100);
    Parameter<std::string> const label{"label", "desk"};
};

} // namespace

TEST_F(ParameterPanelTest, ShowsAnEditorForEachParameter) {
    EXPECT_THAT(panel->rowArea()->rows(), SizeIs(3));
    EXPECT_TRUE(box() && slider() && field());
    EXPECT_EQ(panel->object(), object);
    EXPECT_EQ(box()->accessibleName(), QStringLiteral("on"));
    EXPECT_EQ(panel->rowArea()->row(QStringLiteral("nothing")), nullptr);
}

TEST_F(ParameterPanelTest, EditsAreStepsOfTheDocumentsHistory) {
    auto* const undo = panel->action(Command::Undo);
    EXPECT_FALSE(undo->isEnabled());
    clickBox();
    EXPECT_TRUE(on.read());
    EXPECT_THAT(history.steps(), SizeIs(1));
    EXPECT_THAT(Kolt::UndoHistory::theHistory().steps(), IsEmpty());
    EXPECT_TRUE(undo->isEnabled());
    EXPECT_THAT(undo->text().toStdString(), HasSubstr("on: false → true"));
    EXPECT_EQ(undo->iconText(), QStringLiteral("Undo")) << "a tool button stays narrow";
    EXPECT_THAT(undo->toolTip().toStdString(), HasSubstr("on: false → true"));
    undo->trigger();
    EXPECT_FALSE(on.read());
    panel->action(Command::Redo)->trigger();
    EXPECT_TRUE(on.read());
}

TEST_F(ParameterPanelTest, TextsOfAFileInToolTipsAreShownAsTheyAre) {
    auto const* const text = "<b>not bold</b><img src='/etc/passwd'>";
    label->setProperty("tooltip", Kolt::makeValue(std::string(text)), nullptr, nullptr, nullptr);
    ASSERT_TRUE(label.write(std::string(text)));
    // An editor sets its parameter's tool tip unchanged, markup included.
    field()->setToolTip(text);
    QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), field()->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(field(), &event);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), QLatin1String(text));
    QToolTip::hideText();
    EXPECT_TRUE(waitUntil([] { return !QToolTip::isVisible(); }));

    auto* const undo = panel->action(Command::Undo);
    field()->setText("<img src=x>");
    field()->setFocus();
    QTest::keyClick(field(), Qt::Key_X);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_THAT(undo->toolTip().toStdString(), HasSubstr("&lt;img src=x&gt;x"));
}

TEST_F(ParameterPanelTest, TheKeysOfItsActionsWorkInThePanel) {
    panel->action(Command::Undo);
    clickBox();
    box()->setFocus();
    QTest::keyClick(box(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(on.read());
}

TEST_F(ParameterPanelTest, NamesParametersInUndoTextsAsTheHostDoes) {
    panel->setNaming([](Kolt::ParameterPtr const& parameter) {
        return QStringLiteral("lamp/") + QString::fromStdString(parameter->Name());
    });
    clickBox();
    EXPECT_THAT(panel->action(Command::Undo)->text().toStdString(), HasSubstr("lamp/on: "));
    panel->setNaming({});
    EXPECT_THAT(panel->action(Command::Undo)->text().toStdString(), testing::Not(HasSubstr("lamp/")));
}

TEST_F(ParameterPanelTest, ADragIsOneStep) {
    dragHandle(slider(), {20, 20, 20});
    EXPECT_TRUE(waitUntil([this] { return !history.isMacroOpen(); }));
    EXPECT_THAT(history.steps(), SizeIs(1));
}

TEST_F(ParameterPanelTest, FiltersAndSignalsAChange) {
    QSignalSpy const changes(panel, &Talo::ParameterPanel::filterChanged);
    panel->setProperty("filter", QStringLiteral("lev"));
    EXPECT_EQ(panel->filter(), QStringLiteral("lev"));
    EXPECT_EQ(panel->rowArea()->shownCount(), 1);
    panel->setFilter(QStringLiteral("lev"));
    EXPECT_EQ(changes.count(), 1) << "the same words are no change";
    panel->setFilter(QStringLiteral("nothing at all"));
    EXPECT_TRUE(panel->findChild<QLabel*>(QStringLiteral("emptyNote"))->isVisible());
    panel->setFilter({});
    EXPECT_EQ(panel->rowArea()->shownCount(), 3);
}

TEST_F(ParameterPanelTest, ShowsRawValuesOnDemand) {
    QSignalSpy const changes(panel, &Talo::ParameterPanel::rawValuesShownChanged);
    panel->setProperty("rawValuesShown", true);
    EXPECT_EQ(row("label")->rawValue()->text(), QStringLiteral("desk"));
    panel->setRawValuesShown(true);
    panel->setRawValuesShown(false);
    EXPECT_FALSE(row("label")->rawValue()->isVisible());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(ParameterPanelTest, ShowsAnotherPoolAndKeepsItsScrollPosition) {
    ASSERT_TRUE(level.write(70, secondPool));
    panel->resize(600, 60);
    auto* const bar = panel->rowArea()->verticalScrollBar();
    EXPECT_TRUE(waitUntil([&] { return bar->maximum() > 0; }));
    bar->setValue(bar->maximum());
    int const position = bar->value();
    pools.use(secondPool);
    panel->showPool();
    EXPECT_EQ(slider()->value(), 70);
    EXPECT_EQ(bar->value(), position);
}

TEST_F(ParameterPanelTest, FiltersByTheValuesOfTheShownPool) {
    ASSERT_TRUE(level.write(77, secondPool));
    panel->setFilter(QStringLiteral("77"));
    EXPECT_EQ(panel->rowArea()->shownCount(), 0);
    pools.use(secondPool);
    panel->showPool();
    EXPECT_EQ(panel->rowArea()->shownCount(), 1);
}

TEST_F(ParameterPanelTest, OnlyANewFilterScrollsToTheTop) {
    panel->resize(600, 60);
    auto* const bar = panel->rowArea()->verticalScrollBar();
    EXPECT_TRUE(waitUntil([&] { return bar->maximum() > 0; }));
    bar->setValue(bar->maximum());
    int const position = bar->value();
    panel->setFilter({});
    EXPECT_EQ(bar->value(), position);
    panel->setFilter(QStringLiteral("l"));
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(ParameterPanelTest, MayBeDeletedWhileItResetsAll) {
    ASSERT_TRUE(on.write(true));
    ASSERT_TRUE(level.write(7, firstPool));
    auto const connection = on.onChange([this](bool) { delete panel; });
    panel->action(Command::ResetAll)->trigger();
    EXPECT_EQ(panel, nullptr);
    EXPECT_FALSE(on.read());
    EXPECT_EQ(level.read(firstPool), 40);
}

TEST_F(ParameterPanelTest, ResetsOneOrAllAsOneStep) {
    ASSERT_TRUE(on.write(true));
    ASSERT_TRUE(level.write(7, firstPool));
    ASSERT_TRUE(label.write("floor"));
    auto* const reset = panel->action(Command::Reset);
    box()->setFocus();
    EXPECT_TRUE(reset->isEnabled());
    reset->trigger();
    EXPECT_FALSE(on.read());
    EXPECT_EQ(label.read(), "floor");
    panel->action(Command::ResetAll)->trigger();
    EXPECT_EQ(label.read(), "desk");
    EXPECT_EQ(level.read(firstPool), 40);
    EXPECT_THAT(history.steps(), SizeIs(2));
    panel->action(Command::Undo)->trigger();
    EXPECT_EQ(label.read(), "floor");
    EXPECT_EQ(level.read(firstPool), 7);
}

TEST_F(ParameterPanelTest, CopiesPastesAndSetsDefaults) {
    field()->setFocus();
    panel->action(Command::Copy)->trigger();
    ASSERT_TRUE(label.write("floor"));
    panel->action(Command::Paste)->trigger();
    EXPECT_EQ(label.read(), "desk");
    ASSERT_TRUE(label.write("shelf"));
    EXPECT_TRUE(row("label")->modifiedIndicator()->isVisible());
    QSignalSpy const changes(panel->rowArea(), &Talo::RowArea::defaultChanged);
    panel->action(Command::SetAsDefault)->trigger();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(row("label")->modifiedIndicator()->isVisible());
    EXPECT_EQ(label->defaults()->in(nullptr).value->Text(), "shelf");
}

TEST_F(ParameterPanelTest, SaysWhyACommandIsRefused) {
    QSignalSpy const refusals(panel, &Talo::ParameterPanel::refused);
    QApplication::clipboard()->setText(QStringLiteral("many"));
    slider()->setFocus();
    panel->action(Command::Paste)->trigger();
    ASSERT_EQ(refusals.count(), 1);
    EXPECT_THAT(refusals.at(0).at(0).toString().toStdString(), HasSubstr("is no value of level"));
    EXPECT_EQ(level.read(firstPool), 40);
}

TEST_F(ParameterPanelTest, SaysThatANumberIsRefusedAlsoWhileItIsDestroyed) {
    QSignalSpy const refusals(panel, &Talo::ParameterPanel::refused);
    auto* const number = row("level")->editor()->findChild<Kolt::QLeaveLineEdit*>();
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("-"));
    ASSERT_EQ(number->text(), QStringLiteral("-"));
    EXPECT_EQ(refusals.count(), 0);
    delete panel;
    ASSERT_EQ(refusals.count(), 1);
    EXPECT_THAT(refusals.at(0).at(0).toString().toStdString(), HasSubstr("\"-\""));
    EXPECT_EQ(level.read(firstPool), 40);
}

TEST_F(ParameterPanelTest, ClosesAndOpensEditorsAroundAnUnload) {
    auto const opened = std::make_shared<std::vector<std::string>>();
    QObject::connect(panel, &Talo::ParameterPanel::editorOpened, panel,
                     [this, opened](Kolt::ParameterPtr const& parameter, QWidget* editor) {
                         EXPECT_EQ(editor, panel->rowArea()->row(QString::fromStdString(parameter->Name()))->editor());
                         opened->push_back(parameter->Name());
                     });
    panel->closeEditors();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(loader.unload(pluginFile).ok);
    panel->openEditors();
    EXPECT_EQ(row("on")->editor()->findChild<QCheckBox*>(), nullptr) << "a placeholder";
    panel->closeEditors();
    ASSERT_TRUE(loader.load(pluginFile).ok);
    panel->openEditors();
    EXPECT_TRUE(box());
    EXPECT_THAT(*opened, ElementsAre("on", "level", "label", "on", "level", "label")) << "placeholders, then editors";
}

TEST_F(ParameterPanelTest, AWorkerMayReportAParameterThatHasAPlaceholder) {
    panel->closeEditors();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(loader.unload(pluginFile).ok);
    panel->openEditors();
    std::thread([&] {
        EXPECT_TRUE(setParameterValue(*on, true, nullptr, std::string(), false, nullptr, nullptr));
    }).join();
    EXPECT_EQ(row("on")->modifiedIndicator(), nullptr) << "the worker touches no widget";
    EXPECT_TRUE(waitUntil([&] { return row("on")->modifiedIndicator() != nullptr; }));
    panel->closeEditors();
    ASSERT_TRUE(loader.load(pluginFile).ok);
    panel->openEditors();
}

TEST_F(ParameterPanelTest, WritesWhatIsTypedOnDemand) {
    field()->setFocus();
    field()->selectAll();
    QTest::keyClicks(field(), QStringLiteral("shelf"));
    panel->commitPendingEdit();
    EXPECT_EQ(label.read(), "shelf");
    EXPECT_TRUE(field()->hasFocus());
    EXPECT_FALSE(history.isMacroOpen());
}

TEST_F(ParameterPanelTest, TheWheelChangesOnlyTheEditorWithTheFocus) {
    field()->setFocus();
    QPointF const place = slider()->rect().center();
    QWheelEvent event(place, slider()->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider(), &event);
    EXPECT_EQ(level.read(firstPool), 40);
}

TEST_F(ParameterPanelTest, OutlivesItsObjectAndItsPoolSource) {
    auto* const others = new Talo::OnePool("only");
    Talo::ParameterPanel other(object, *others);
    other.show();
    delete others;
    object = nullptr;
    EXPECT_EQ(panel->object(), nullptr);
    clickBox();
    EXPECT_TRUE(on.read());
    other.showPool();
}

TEST_F(ParameterPanelTest, WithoutAnObjectIsEmptyAndSaysSo) {
    expectQtWarning("there is no object to show");
    Talo::ParameterPanel const empty(nullptr, pools);
    EXPECT_EQ(empty.object(), nullptr);
    EXPECT_EQ(empty.rowArea()->shownCount(), 0);
}

TEST_F(ParameterPanelTest, OnePoolIsAlwaysTheSame) {
    Talo::OnePool const one("only");
    ASSERT_TRUE(one.pool());
    EXPECT_EQ(one.pool()->Name(), "only");
    EXPECT_EQ(Kolt::currentPool(&one), one.pool());
}

TEST_F(ParameterPanelTest, ItsStepsCanBeCommandsOfAnUndoStack) {
    QUndoStack stack;
    Talo::UndoStackAdapter const adapter(history, stack);
    clickBox();
    EXPECT_TRUE(waitUntil([&] { return stack.count() == 1; }));
    slider()->setFocus();
    QTest::keyClick(slider(), Qt::Key_Right);
    EXPECT_TRUE(waitUntil([&] { return stack.count() == 2; }));
    EXPECT_EQ(stack.undoText(), QStringLiteral("level: 40 → 41 (draft)"));
    stack.undo();
    stack.undo();
    EXPECT_FALSE(on.read());
    EXPECT_EQ(level.read(firstPool), 40);
    EXPECT_EQ(stack.index(), 0);
    stack.redo();
    EXPECT_TRUE(on.read());
    QTest::keyClick(slider(), Qt::Key_Right);
    EXPECT_TRUE(waitUntil([&] { return stack.index() == 2; })) << "a new step takes the place of the undone one";
    EXPECT_EQ(stack.count(), 2);
    history.clear();
    EXPECT_EQ(stack.count(), 0);
}
