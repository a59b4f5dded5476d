// After a change of the language all says what it would say had it been made just now.

#include "parameters/FormTest.hpp"

#include <algorithm>
#include <parameters/commands/HelpView.hpp>
#include <parameters/commands/HistoryView.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/commands/UndoActions.hpp>
#include <parameters/rows/MixedButton.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTranslator>

using Command = Talo::ParameterPanel::Command;
using Kolt::Parameter;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

namespace {

class LanguageChangeTest : public FormTest {
protected:
    LanguageChangeTest() : FormTest("lamp") {}

    void TearDown() override {
        french.reset();
        delete panel;
        FormTest::TearDown();
    }

    /// Has the program speak French, as a menu of a host would while it runs.
    void changeLanguage() {
        french = std::make_unique<QTranslator>();
        ASSERT_TRUE(french->load(QStringLiteral(":/translations/talo_parameters_fr.qm")));
        QCoreApplication::installTranslator(french.get());
        QCoreApplication::processEvents();
    }

    static std::string said(QAction const& action) {
        return "action \"" + action.text().toStdString() + "\" \"" + action.iconText().toStdString() + "\" \"" +
               action.toolTip().toStdString() + "\" " + action.shortcut().toString().toStdString();
    }
    /// What a widget and all in it say, to readers of the screen as well.
    static std::vector<std::string> said(QWidget& whole) {
        std::vector<std::string> all;
        auto const widgets = QList<QWidget*>{&whole} + whole.findChildren<QWidget*>();
        for (auto const* const widget : widgets) {
            if (!widget->isVisibleTo(whole.parentWidget()))
                continue;
            std::string texts;
            for (auto const& text :
                 {widget->property("text").toString(), widget->property("placeholderText").toString(),
                  widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()})
                texts += text.isEmpty() ? std::string() : " \"" + text.toStdString() + "\"";
            if (auto const* const raw = qobject_cast<Talo::RawValueLabel const*>(widget))
                texts += " " + raw->stamp().toStdString();
            if (!texts.empty())
                all.push_back(widget->metaObject()->className() + texts);
            for (auto const* const action : widget->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly))
                all.push_back(said(*action));
        }
        return all;
    }
    /// What the panel says, after all that waits was done; sorted, as marks are made when they are needed.
    std::vector<std::string> saidByPanel() const {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        auto all = said(*panel);
        std::sort(all.begin(), all.end());
        return all;
    }
    /// What the panel says now, and what a new one for the same objects does.
    void expectLikeNew(std::vector<Kolt::ObjectPtr> const& objects) {
        auto const now = saidByPanel();
        delete panel;
        showPanel(objects);
        auto const fresh = saidByPanel();
        ASSERT_EQ(now.size(), fresh.size());
        for (std::size_t number = 0; number < now.size(); ++number)
            EXPECT_EQ(now[number], fresh[number]);
    }
    void showPanel(std::vector<Kolt::ObjectPtr> const& objects) {
        panel = new Talo::ParameterPanel(objects, pools, parent);
        panel->setRawValuesShown(true);
        for (auto const command : {Command::Undo, Command::Reset, Command::ResetSection, Command::ResetAll})
            panel->action(command);
        panel->resize(600, 900);
        panel->show();
        parent->resize(600, 900);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }
    void set(char const* name, char const* text) {
        auto const parameter = object->findParameter(name);
        auto const value = parameter->ownValue()->clone();
        ASSERT_TRUE(value->setValueFromText(text));
        EXPECT_TRUE(history.store(parameter, firstPool, {value, false}));
    }

    std::unique_ptr<QTranslator> french;
};

} // namespace

TEST_F(LanguageChangeTest, APanelSaysAllAnew) {
    add(Parameter<bool>("on", false));
    add(Parameter<int>::perPool("level", 5).min(0).max(100).unit("lm"));
    add(Parameter<double>("Origin X", 1.0));
    add(Parameter<double>("Origin Y", 2.0).property("rowOf", "Origin X"));
    add(makeParameter("name", Kolt::makeValue(std::string()), {"OneLine"}));
    add(makeParameter("file", Kolt::makeValue(std::string("a.txt")), {"FileInput"}));
    add(makeParameter("strange", Kolt::makeValue(1), {}, Kolt::VParameter::Values::Shared, "Strange"));
    showPanel({object});
    set("on", "true");
    set("level", "7");
    set("Origin X", "3");
    set("name", "reading");
    auto const english = saidByPanel();
    EXPECT_THAT(english, Contains(HasSubstr("Default: (empty)")));
    EXPECT_THAT(english, Contains(HasSubstr("No editor is registered for the type Strange")));
    changeLanguage();
    EXPECT_THAT(saidByPanel(), Not(Contains(HasSubstr("Default"))));
    expectLikeNew({object});
}

TEST_F(LanguageChangeTest, AHiddenMarkSpeaksTheLanguageOnceItIsShown) {
    add(Parameter<bool>("on", false));
    showPanel({object});
    set("on", "true");
    set("on", "false");
    changeLanguage();
    set("on", "true");
    EXPECT_THAT(saidByPanel(), Contains(HasSubstr("par d\303\251faut")));
    expectLikeNew({object});
}

TEST_F(LanguageChangeTest, AnIncompleteTextIsExplainedAnew) {
    add(Parameter<std::string>("day").property("inputmask", "9999-99-99").preferences("OneLine", "UpdateOnEnterOnly"));
    showPanel({object});
    auto* const field = qobject_cast<QLineEdit*>(row("day")->editor());
    QTest::keyClicks(field, QStringLiteral("2026"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_THAT(saidByPanel(), Contains(HasSubstr("The text is incomplete")));
    changeLanguage();
    EXPECT_THAT(saidByPanel(), Not(Contains(HasSubstr("The text is incomplete"))));
    EXPECT_THAT(field->accessibleDescription().toStdString(), HasSubstr(field->toolTip().toStdString()));
    EXPECT_EQ(field->text(), QStringLiteral("2026--"));
}

TEST_F(LanguageChangeTest, ValuesThatDifferAreNamedAnew) {
    add(makeParameter("name", Kolt::makeValue(std::string()), {"OneLine"}));
    Kolt::ObjectPtr const other(new Kolt::VObject("other"));
    other->addParameter(makeParameter("name", Kolt::makeValue(std::string("reading")), {"OneLine"}));
    showPanel({object, other});
    auto* const mixed = qobject_cast<Talo::MixedButton*>(row("name")->cover());
    ASSERT_NE(mixed, nullptr);
    changeLanguage();
    EXPECT_EQ(row("name")->cover(), mixed);
    EXPECT_EQ(mixed->menu()->actions().front()->text(), QStringLiteral("&Modifier"));
    EXPECT_EQ(mixed->menu()->actions().at(2)->text(), QStringLiteral("(vide) (lamp)"));
    expectLikeNew({object, other});
}

TEST_F(LanguageChangeTest, AFilterThatFindsNothingSaysSoAnew) {
    add(Parameter<bool>("on", false));
    showPanel({object});
    panel->setFilter(QStringLiteral("nothing like it"));
    auto const* const note = panel->findChild<QLabel*>(QStringLiteral("emptyNote"));
    EXPECT_EQ(note->text(), QStringLiteral("No parameter of this object is found by the filter."));
    changeLanguage();
    EXPECT_NE(note->text(), QStringLiteral("No parameter of this object is found by the filter."));
}

TEST_F(LanguageChangeTest, TheListOfStepsAndTheHelpSpeakIt) {
    add(makeParameter("name", Kolt::makeValue(std::string()), {"OneLine"}));
    set("name", "reading");
    auto const texts = [](Talo::HistoryView const& view) {
        std::vector<std::string> all{view.accessibleName().toStdString(), view.accessibleDescription().toStdString()};
        for (int row = 0; row < view.count(); ++row)
            all.push_back(view.item(row)->text().toStdString() + " " + view.item(row)->toolTip().toStdString());
        return all;
    };
    Talo::HistoryView view(history);
    view.show();
    Talo::HelpView help;
    EXPECT_THAT(texts(view), Contains(HasSubstr("(empty)")));
    changeLanguage();
    QCoreApplication::processEvents();
    Talo::HistoryView fresh(history);
    fresh.show();
    EXPECT_THAT(texts(view), AllOf(Contains(HasSubstr("(vide)")), ElementsAreArray(texts(fresh))));
    Talo::HelpView freshHelp;
    EXPECT_NE(help.accessibleName(), QStringLiteral("Help"));
    EXPECT_EQ(said(help), said(freshHelp));
}

TEST_F(LanguageChangeTest, CommandsWithoutAWindowSpeakIt) {
    add(makeParameter("name", Kolt::makeValue(std::string()), {"OneLine"}));
    set("name", "reading");
    Talo::UndoActions actions(history);
    Talo::ParameterCommands commands(nullptr);
    auto const texts = [](Talo::UndoActions const& undo, Talo::ParameterCommands const& own) {
        std::vector<std::string> all{said(*undo.undoAction()), said(*undo.redoAction())};
        for (auto const* const action : own.actions())
            all.push_back(said(*action));
        return all;
    };
    EXPECT_THAT(said(*actions.undoAction()), HasSubstr("&Undo: name: (empty)"));
    changeLanguage();
    EXPECT_THAT(said(*actions.undoAction()), Not(HasSubstr("Undo")));
    Talo::UndoActions const freshActions(history);
    Talo::ParameterCommands const freshCommands(nullptr);
    EXPECT_THAT(texts(actions, commands), ElementsAreArray(texts(freshActions, freshCommands)));
}
