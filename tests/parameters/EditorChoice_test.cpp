// A person chooses who edits a parameter, in a panel of any host.

#include "FormTest.hpp"

#include <parameters/commands/RowCommands.hpp>
#include <parameters/EditorChoice.hpp>
#include <QDial>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>

using testing::HasSubstr;

namespace {

class EditorChoiceTest : public FormTest {
protected:
    EditorChoiceTest() : FormTest("object") {}

    void SetUp() override {
        FormTest::SetUp();
        add(Kolt::Parameter<int>("level", 5).min(0).max(10));
        add(Kolt::Parameter<int>("other", 7));
        add(Kolt::Parameter<bool>("on", true));
        show();
        panel->setEditorChoice(&choice);
    }

    bool isDial(char const* name) const { return control<QDial>(name) && control<QDial>(name)->isVisible(); }
    bool isSlider(char const* name) const { return control<QSlider>(name) && control<QSlider>(name)->isVisible(); }
    std::string valueOf(char const* name) const { return row(name)->parameter()->ownValue()->Text(); }
    /// The actions of the submenu at this place in a row's menu of editors.
    QList<QAction*> choices(QMenu const& rowMenu, int place) const {
        auto const menus = rowMenu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_EQ(menus.size(), 1);
        auto const submenus = menus.first()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_EQ(submenus.size(), 2);
        QList<QAction*> actions;
        for (auto* const action : submenus.at(place)->actions())
            if (!action->isSeparator())
                actions << action;
        return actions;
    }
    static QStringList texts(QList<QAction*> const& actions) {
        QStringList all;
        for (auto const* const action : actions)
            all << action->text();
        return all;
    }

    QString const dial = QStringLiteral("intDial {QT, dial}");
    Talo::EditorChoice choice;
};

} // namespace

TEST_F(EditorChoiceTest, OneParameterGetsAnotherEditorAtOnce) {
    ASSERT_TRUE(isSlider("level"));
    QPointer<QWidget> const untouched = row("other")->editor();
    choice.chooseForParameter(QStringLiteral("object.level"), dial);
    EXPECT_TRUE(isDial("level"));
    EXPECT_EQ(row("other")->editor(), untouched);
    EXPECT_TRUE(isSlider("other"));
    EXPECT_EQ(valueOf("level"), "5");
    EXPECT_TRUE(history.steps().empty());
    EXPECT_EQ(row("level")->parameter()->ownValue()->age(), 0U);

    choice.chooseForParameter(QStringLiteral("object.level"), QString());
    EXPECT_TRUE(isSlider("level"));
}

TEST_F(EditorChoiceTest, ATypesChoiceHoldsUnlessTheParameterHasItsOwn) {
    choice.chooseForType(QStringLiteral("int"), dial);
    EXPECT_TRUE(isDial("level"));
    EXPECT_TRUE(isDial("other"));
    choice.chooseForParameter(QStringLiteral("object.level"), QStringLiteral("int {QT}"));
    EXPECT_TRUE(isSlider("level"));
    EXPECT_TRUE(isDial("other"));
}

TEST_F(EditorChoiceTest, ANewPanelAsksTheChoiceForItsFirstEditors) {
    choice.chooseForType(QStringLiteral("int"), dial);
    delete panel;
    panel = new Talo::ParameterPanel(object, pools, parent);
    panel->setEditorChoice(&choice);
    panel->resize(600, 400);
    panel->show();
    EXPECT_TRUE(isDial("level"));
}

TEST_F(EditorChoiceTest, EditsAreRecordedAsBefore) {
    choice.chooseForParameter(QStringLiteral("object.level"), dial);
    control<QLineEdit>("level")->selectAll();
    QTest::keyClicks(control<QLineEdit>("level"), QStringLiteral("8\r"));
    QCoreApplication::processEvents();
    EXPECT_EQ(valueOf("level"), "8");
    EXPECT_EQ(history.steps().size(), 1U);
    choice.chooseForParameter(QStringLiteral("object.level"), QString());
    EXPECT_EQ(history.steps().size(), 1U);
    panel->action(Talo::ParameterPanel::Command::Undo)->trigger();
    EXPECT_EQ(valueOf("level"), "5");
    EXPECT_EQ(control<QSlider>("level")->value(), 5);
}

TEST_F(EditorChoiceTest, AnUnknownCreatorLeavesTheUsualOne) {
    choice.chooseForParameter(QStringLiteral("object.level"), QStringLiteral("gone {QT, gone}"));
    EXPECT_TRUE(isSlider("level"));
    EXPECT_EQ(choice.ofParameters().value(QStringLiteral("object.level")), QStringLiteral("gone {QT, gone}"));
    choice.chooseForParameter(QStringLiteral("object.level"), QStringLiteral("boolean {QT}"));
    EXPECT_TRUE(isSlider("level")) << "a creator of another type";
}

TEST_F(EditorChoiceTest, TheRowsMenuOffersTheCreatorsOfItsType) {
    std::unique_ptr<QMenu> menu(Talo::makeRowMenu(*row("level")));
    auto actions = choices(*menu, 0);
    EXPECT_EQ(texts(actions), (QStringList{QStringLiteral("&Usual"), QStringLiteral("int {QT}"), dial,
                                           QStringLiteral("intDialPeriodic {QT, dial, periodic}")}));
    EXPECT_TRUE(actions[0]->isChecked());
    actions[2]->trigger();
    EXPECT_TRUE(isDial("level"));
    EXPECT_TRUE(isSlider("other"));
    choices(*menu, 1)[2]->trigger();
    EXPECT_TRUE(isDial("other"));

    menu.reset(Talo::makeRowMenu(*row("level")));
    EXPECT_TRUE(choices(*menu, 0)[2]->isChecked());
    EXPECT_TRUE(choices(*menu, 1)[2]->isChecked());
    choices(*menu, 0)[0]->trigger();
    choices(*menu, 1)[0]->trigger();
    EXPECT_TRUE(isSlider("level"));
    EXPECT_TRUE(choice.ofParameters().isEmpty());
    EXPECT_TRUE(choice.ofTypes().isEmpty());
}

TEST_F(EditorChoiceTest, WithoutAChoiceTheRowsMenuHasNone) {
    panel->setEditorChoice(nullptr);
    std::unique_ptr<QMenu> const menu(Talo::makeRowMenu(*row("level")));
    EXPECT_TRUE(menu->findChildren<QMenu*>().isEmpty());
}

TEST_F(EditorChoiceTest, AChoiceThatIsDestroyedLeavesTheUsualEditors) {
    auto other = std::make_unique<Talo::EditorChoice>();
    other->chooseForType(QStringLiteral("int"), dial);
    panel->setEditorChoice(other.get());
    EXPECT_TRUE(isDial("level"));
    other.reset();
    panel->showPool();
    EXPECT_TRUE(isSlider("level"));
}

TEST_F(EditorChoiceTest, TheFocusStaysInTheRow) {
    control<QSlider>("level")->setFocus();
    choice.chooseForParameter(QStringLiteral("object.level"), dial);
    EXPECT_TRUE(row("level")->isAncestorOf(QApplication::focusWidget()));
}
