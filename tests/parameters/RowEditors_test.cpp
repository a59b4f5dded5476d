// What a row adds to the plug-in's editors: it replaces an editor that cannot show a value, names the chosen file on a
// file button, and marks a half-filled field whose text is not stored.

#include "support/TestHost.hpp"

#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <lattice/TypedParameter.hpp>
#include <memory>
#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/ModifiedIndicator.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using Kolt::Parameter;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class RowEditorsTest : public PluginTest {
protected:
    using Values = Kolt::VParameter::Values;
    using Names = Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList>;

    static Kolt::Enum makeEnum(std::vector<std::string> names, int selected = -1) {
        Names const selection(new Kolt::VEnumSelection(std::move(names)));
        if (selected >= 0)
            selection->select(static_cast<unsigned>(selected));
        return Kolt::Enum(selection);
    }
    void show(std::vector<Kolt::ParameterPtr> const& parameters) {
        object = Kolt::ObjectPtr(new Kolt::VObject("object"));
        for (auto const& each : parameters) {
            each->setHistory(&history);
            object->addParameter(each);
        }
        panel = new Talo::ParameterPanel(object, pools, parent);
        panel->resize(600, 400);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }
    template <typename Control>
    Control* control(char const* name) const {
        auto* const editor = panel->rowArea()->row(QLatin1String(name))->editor();
        auto* const self = qobject_cast<Control*>(editor);
        return self ? self : editor->findChild<Control*>();
    }
    QList<QRadioButton*> choices() const {
        return panel->rowArea()->row(QStringLiteral("kind"))->editor()->findChildren<QRadioButton*>();
    }
    /// The text of the checked choice; empty if there is none.
    std::string marked() const {
        for (auto* const choice : choices())
            if (choice->isChecked())
                return choice->text().toStdString();
        return {};
    }
    void choose(int place) const {
        auto* const choice = choices()[place];
        QTest::mouseClick(choice, Qt::LeftButton, {}, {8, choice->height() / 2});
    }
    static void deleteLeftEditors() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    template <typename T>
    static void write(Kolt::ParameterPtr const& parameter, T const& value, Kolt::PoolPtr const& pool = nullptr) {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr));
    }
    static std::string accessibleText(QObject* object, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(object)->text(kind).toStdString();
    }
    static Kolt::ParameterPtr fileName(char const* name, char const* preference, std::string const& text,
                                       Values values = Values::Shared) {
        return makeParameter(name, Kolt::makeValue(text), {preference}, values);
    }

    void TearDown() override {
        // The enumeration's editor prints this when it gets a value without a choice.
        EXPECT_THAT(takeOutput(), testing::Each("Qt ENUM: INVALID SELECTION"));
        PluginTest::TearDown();
    }

    Kolt::UndoHistory history;
    Kolt::ObjectPtr object;
    QPointer<Talo::ParameterPanel> panel;
};

} // namespace

TEST_F(RowEditorsTest, UndoToNoChoiceShowsNone) {
    auto const kind = makeParameter("kind", Kolt::makeValue(makeEnum({"a", "b", "c"})));
    show({kind});
    EXPECT_EQ(marked(), "");
    choose(1);
    EXPECT_EQ(kind->ownValue()->Text(), "b");
    EXPECT_TRUE(waitUntil([&] { return !history.isMacroOpen(); }));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(kind->ownValue()->Text(), "");
    EXPECT_EQ(marked(), "");
    choose(1);
    EXPECT_EQ(kind->ownValue()->Text(), "b") << "it can be chosen again";
}

TEST_F(RowEditorsTest, AnEditorThatIsMadeAnewKeepsTheFocusAndIsReported) {
    auto const kind = makeParameter("kind", Kolt::makeValue(makeEnum({"a", "b"}, 1)));
    show({kind});
    auto const reported = std::make_shared<int>(0);
    QObject::connect(panel, &Talo::ParameterPanel::editorOpened, panel, [reported] { ++*reported; });
    choices()[1]->setFocus();
    write(kind, makeEnum({"a", "b"}));
    EXPECT_EQ(marked(), "");
    EXPECT_EQ(*reported, 1);
    EXPECT_EQ(Talo::ParameterRow::rowOf(QApplication::focusWidget()), panel->rowArea()->row(QStringLiteral("kind")));
}

TEST_F(RowEditorsTest, EachEditorThatIsMadeAnewIsLookedAtAfterAChange) {
    auto const kind = makeParameter("kind", Kolt::makeValue(makeEnum({"a", "b"}, 1)));
    show({kind});
    for (int round = 0; round < 3; ++round) {
        write(kind, makeEnum({"a", "b"}));
        EXPECT_EQ(marked(), "") << round;
        write(kind, makeEnum({"x", "y", "z"}, 2));
        EXPECT_EQ(marked(), "z") << round;
        panel->closeEditors();
        write(kind, makeEnum({"a", "b"}, 0));
        deleteLeftEditors();
        panel->openEditors();
        EXPECT_EQ(marked(), "a") << round;
    }
}

TEST_F(RowEditorsTest, ARowWithoutAnEditorFollowsTheDefault) {
    auto const on = makeParameter("on", Kolt::makeValue(false));
    on->rememberDefaults();
    object = Kolt::ObjectPtr(new Kolt::VObject("object"));
    object->addParameter(on);
    panel = new Talo::ParameterPanel(object, pools, parent);
    panel->closeEditors();
    parent->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(parent));
    auto* const row = panel->rowArea()->row(QStringLiteral("on"));
    ASSERT_EQ(row->editor(), nullptr);
    write(on, true);
    ASSERT_NE(row->modifiedIndicator(), nullptr);
    EXPECT_FALSE(row->modifiedIndicator()->isHidden());
    panel->openEditors();
    write(on, false);
    EXPECT_TRUE(row->modifiedIndicator()->isHidden());
}

TEST_F(RowEditorsTest, APoolWithoutAChoiceShowsNone) {
    auto const kind = makeParameter("kind", Kolt::makeValue(makeEnum({"a", "b", "c"})), {}, Values::PerPool);
    write(kind, makeEnum({"a", "b", "c"}, 2), firstPool);
    show({kind});
    EXPECT_EQ(marked(), "c");
    pools.use(secondPool);
    panel->showPool();
    EXPECT_EQ(marked(), "");
    EXPECT_FALSE(kind->getLocalValue(secondPool, std::string(), false));
    choose(2);
    EXPECT_EQ(kind->getLocalValue(secondPool, std::string(), false)->Text(), "c");
    pools.use(firstPool);
    panel->showPool();
    EXPECT_EQ(marked(), "c");
}

TEST_F(RowEditorsTest, OtherNamesGetButtonsOfTheirOwn) {
    auto const kind = makeParameter("kind", Kolt::makeValue(makeEnum({"a", "b"}, 1)), {}, Values::PerPool);
    write(kind, makeEnum({"x", "y", "z"}, 0), secondPool);
    show({kind});
    pools.use(secondPool);
    panel->showPool();
    deleteLeftEditors();
    ASSERT_EQ(choices().size(), 3);
    EXPECT_EQ(marked(), "x");
    choose(2);
    EXPECT_EQ(kind->effectiveValue(secondPool)->Text(), "z");
    EXPECT_EQ(kind->ownValue()->Text(), "b");
    write(kind, makeEnum({"p"}, 0), secondPool);
    ASSERT_EQ(choices().size(), 1);
    EXPECT_EQ(marked(), "p");
}

TEST_F(RowEditorsTest, AFileButtonWhoseNameBecomesEmptyShowsItsCaptionAgain) {
    for (auto const& [preference, caption] : {std::pair<char const*, char const*>{"FileInput", "Select File"},
                                              {"Save as", "Save as"},
                                              {"Save as PDF", "Save as PDF"}}) {
        for (auto const values : {Values::Shared, Values::PerPool}) {
            auto const file = fileName("file", preference, "/data/own.txt", values);
            show({file});
            auto* const button = control<QPushButton>("file");
            write(file, std::string("/data/other.txt"), firstPool);
            EXPECT_EQ(button->text(), QStringLiteral("other")) << caption;
            write(file, std::string(), firstPool);
            EXPECT_EQ(button->text(), QLatin1String(caption));
            EXPECT_EQ(button->toolTip(), QString()) << caption;
            delete panel;
        }
    }
}

TEST_F(RowEditorsTest, AFileButtonOfAPoolWithoutANameShowsItsCaption) {
    auto const file = fileName("file", "FileInput", "/data/own.txt", Values::PerPool);
    write(file, std::string(), secondPool);
    show({file});
    EXPECT_EQ(control<QPushButton>("file")->text(), QStringLiteral("own"));
    pools.use(secondPool);
    panel->showPool();
    EXPECT_EQ(control<QPushButton>("file")->text(), QStringLiteral("Select File"));
    panel->closeEditors();
    panel->openEditors();
    EXPECT_EQ(control<QPushButton>("file")->text(), QStringLiteral("Select File")) << "and at once";
}

TEST_F(RowEditorsTest, AFileButtonSaysTheCaptionAndTheName) {
    auto const file = fileName("file", "FileInput", "/data/R&D.tar.gz");
    auto const picture = fileName("picture", "Save as", "");
    show({file, picture});
    auto* const open = control<QPushButton>("file");
    EXPECT_EQ(open->text(), QStringLiteral("R&&D"));
    EXPECT_EQ(open->toolTip(), QStringLiteral("Select File: /data/R&D.tar.gz"));
    EXPECT_EQ(accessibleText(open, QAccessible::Value), "/data/R&D.tar.gz");
    EXPECT_THAT(accessibleText(open, QAccessible::Description), HasSubstr("Select File: /data/R&D.tar.gz"));

    auto* const save = control<QPushButton>("picture");
    EXPECT_EQ(accessibleText(save, QAccessible::Value), "");
    write(picture, std::string("/data/a.png"));
    EXPECT_EQ(save->toolTip(), QStringLiteral("Save as: /data/a.png"));
    EXPECT_EQ(accessibleText(save, QAccessible::Value), "/data/a.png");
    EXPECT_THAT(accessibleText(save, QAccessible::Description), HasSubstr("Save as: /data/a.png"));
    EXPECT_EQ(accessibleText(save, QAccessible::Name), "picture: Save as");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(save)->role(), QAccessible::Button);
}

TEST_F(RowEditorsTest, ADateThatIsLeftHalfFilledShowsThatItIsNotHeld) {
    auto const date = Parameter<std::string>("date", "2023-03-29")
                          .property("inputmask", "9999-99-99")
                          .preferences("OneLine", "UpdateOnEnterOnly");
    Parameter<std::string> const other("other");
    show({date, other});
    auto* const field = control<QLineEdit>("date");
    auto const sign = [&] { return field->findChild<QAction*>(QStringLiteral("unentered")); };
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, QStringLiteral("2024"));
    EXPECT_FALSE(sign()) << "it is still being typed";
    control<QLineEdit>("other")->setFocus();
    EXPECT_EQ(date.read(), "2023-03-29");
    ASSERT_TRUE(sign());
    EXPECT_THAT(field->toolTip().toStdString(), HasSubstr("The value is still 2023-03-29."));
    EXPECT_THAT(accessibleText(field, QAccessible::Description), HasSubstr("The value is still 2023-03-29."));
    field->setFocus();
    field->setCursorPosition(5);
    QTest::keyClicks(field, QStringLiteral("0506"));
    EXPECT_FALSE(sign());
    EXPECT_EQ(field->toolTip(), QString());
    control<QLineEdit>("other")->setFocus();
    EXPECT_EQ(date.read(), "2024-05-06");
    EXPECT_FALSE(sign());
}

TEST_F(RowEditorsTest, AHalfFilledDateThatIsHeldHasNoMark) {
    auto const date = Parameter<std::string>("date", "2023")
                          .property("inputmask", "9999-99-99")
                          .preferences("OneLine", "UpdateOnEnterOnly");
    Parameter<std::string> const other("other");
    show({date, other});
    auto* const field = control<QLineEdit>("date");
    field->setFocus();
    control<QLineEdit>("other")->setFocus();
    EXPECT_THAT(field->findChildren<QAction*>(), IsEmpty());
    field->setFocus();
    field->setCursorPosition(5);
    QTest::keyClicks(field, QStringLiteral("1"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(field->findChild<QAction*>(QStringLiteral("unentered"))) << "Return does not take it over";
    ASSERT_TRUE(date.write("2025-01-01"));
    EXPECT_FALSE(field->findChild<QAction*>(QStringLiteral("unentered")));
}

TEST_F(RowEditorsTest, ATextEditorOfAnArraySaysWhatValueItNeeds) {
    using Array = std::array<std::string, 1>;
    auto const held = makeParameter("caption", Kolt::makeValue(Array{"kept"}), {}, Values::PerPool);
    auto const text = makeParameter("title", Kolt::makeValue(std::string("typed")), {}, Values::Shared,
                                    Tessera::Typename(typeid(Array)));
    show({held, text});
    auto* const placeholder = control<Talo::PlaceholderEditor>("caption");
    ASSERT_NE(placeholder, nullptr) << "a field would lose what is typed";
    EXPECT_EQ(placeholder->text().toStdString(),
              "The editor of the type std::array<std::string, 1> needs a value of type std::string.");
    EXPECT_THAT(warnings.texts, testing::Each(HasSubstr("needs a value of type std::string to be edited")));
    EXPECT_FALSE(warnings.texts.empty());
    ASSERT_NE(control<QLineEdit>("title"), nullptr);
    EXPECT_EQ(control<QLineEdit>("title")->text().toStdString(), "typed");

    // A pool whose value is a text can be edited.
    held->setLocalValue(secondPool, Kolt::makeValue(std::string("final text")));
    pools.use(secondPool);
    panel->showPool();
    ASSERT_TRUE(waitUntil([&] { return control<QLineEdit>("caption") != nullptr; }));
    EXPECT_EQ(control<QLineEdit>("caption")->text().toStdString(), "final text");
}
