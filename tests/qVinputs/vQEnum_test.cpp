#include "SelectionTest.hpp"
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>

#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

using namespace std::string_literals;

namespace {

using Names = Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList>;

class EnumTest : public SelectionTest {
protected:
    static Names makeNames(std::vector<std::string> names, int selected = -1) {
        Names const selection(new Kolt::VEnumSelection(std::move(names)));
        if (selected >= 0)
            selection->select(static_cast<unsigned>(selected));
        return selection;
    }
    static QList<QRadioButton*> buttons(Kolt::Editor const& editor) {
        return editor.widget->findChildren<QRadioButton*>();
    }
    /// The index of the checked button; -1 for none.
    static int marked(Kolt::Editor const& editor) {
        auto const all = buttons(editor);
        for (int place = 0; place < all.size(); ++place) {
            if (all[place]->isChecked())
                return place;
        }
        return -1;
    }
    static void choose(Kolt::Editor const& editor, int place) {
        QTest::keyClick(buttons(editor)[place], Qt::Key_Space);
    }
    /// Rows and columns of the buttons in the grid.
    static std::vector<std::pair<int, int>> places(Kolt::Editor const& editor) {
        std::vector<std::pair<int, int>> places;
        auto const* const grid = qobject_cast<QGridLayout*>(editor.widget->layout());
        for (auto* const button : buttons(editor)) {
            int row = 0;
            int column = 0;
            int rowSpan = 0;
            int columnSpan = 0;
            grid->getItemPosition(grid->indexOf(button), &row, &column, &rowSpan, &columnSpan);
            places.emplace_back(row, column);
        }
        return places;
    }
    Kolt::Editor openWithWrap(Kolt::ValuePtr const& wrap) {
        auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b", "c", "d", "e"}, 0)));
        parameter->setProperty("wrap", wrap, nullptr, nullptr, nullptr);
        kept_.push_back(parameter);
        return open(parameter);
    }
    static Kolt::Enum valueOf(Kolt::ParameterPtr const& parameter) {
        return Kolt::valueOr(parameter->ownValue(), Kolt::Enum());
    }
    static constexpr char const* invalidLine = "Qt ENUM: INVALID SELECTION";

    std::vector<std::pair<int, int>> const threeColumns{{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}};

private:
    std::vector<Kolt::ParameterPtr> kept_;
};

} // namespace

TEST_F(EnumTest, IsAGroupBoxWithARadioButtonForEachName) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"sine", "noise"}, 1)));
    auto const editor = open(parameter);
    ASSERT_TRUE(editor.widget);
    auto const* const box = qobject_cast<QGroupBox*>(editor.widget.data());
    ASSERT_NE(box, nullptr);
    EXPECT_STREQ(box->metaObject()->className(), "Kolt::vQEnum");
    EXPECT_STREQ(box->metaObject()->superClass()->className(), "QGroupBox");
    EXPECT_EQ(slotsOf(*editor.widget), QStringList{"changeState(bool)"});
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<Enum>"), nullptr);
    EXPECT_EQ(editor.widget->qt_metacast("VInputValue<FlagList>"), nullptr);
    EXPECT_FALSE(box->isFlat());
    EXPECT_TRUE(box->title().isEmpty());
    EXPECT_EQ(box->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    ASSERT_EQ(buttons(editor).size(), 2);
    EXPECT_EQ(buttons(editor)[0]->text(), "sine");
    EXPECT_EQ(buttons(editor)[1]->text(), "noise");
    EXPECT_EQ(buttons(editor)[0]->parentWidget(), editor.widget);
    EXPECT_EQ(marked(editor), 1);
}

TEST_F(EnumTest, FiveNamesStandInTwoRowsOfThreeColumns) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b", "c", "d", "e"})));
    EXPECT_EQ(places(open(parameter)), threeColumns);
}

TEST_F(EnumTest, TheWrapPropertyIsTheNumberOfColumns) {
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue(1))),
              (std::vector<std::pair<int, int>>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}}));
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue(2))),
              (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {1, 0}, {1, 1}, {2, 0}}));
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue(9))),
              (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}}));
}

TEST_F(EnumTest, AWrapBelowOneOrOfAnotherTypeCountsAsThree) {
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue(0))), threeColumns);
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue(-2))), threeColumns);
    EXPECT_EQ(places(openWithWrap(Kolt::makeValue("1"s))), threeColumns);
}

TEST_F(EnumTest, NoNamesGiveAnEmptyBox) {
    for (auto const& value : {Kolt::Enum(makeNames({})), Kolt::Enum(),
                              Kolt::Enum(Tessera::StrongPtr<Tessera::StringList>(new Tessera::StringList({"a"})))}) {
        auto const parameter = parameterOf(value);
        auto const editor = open(parameter);
        ASSERT_TRUE(editor.widget);
        EXPECT_TRUE(buttons(editor).empty());
        EXPECT_EQ(editor.widget->layout()->count(), 0);
    }
}

TEST_F(EnumTest, ALaterValueWithoutNamesChangesWhatIsCommittedAndLeavesTheView) {
    auto const names = makeNames({"a", "b"}, 1);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    setElsewhere(parameter, Kolt::Enum());
    EXPECT_EQ(marked(editor), 1);
    EXPECT_TRUE(takeOutput().empty());
    record(parameter);
    choose(editor, 0);
    EXPECT_EQ(marked(editor), 0);
    EXPECT_EQ(names->selectedNumber(), 1) << "there is no list to select in";
    EXPECT_EQ(commits(), 1U) << "the rest of the commit runs";
    EXPECT_FALSE(valueOf(parameter).names());
}

TEST_F(EnumTest, AChoiceSelectsInPlaceAndCommits) {
    auto const names = makeNames({"a", "b", "c"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    record(parameter);
    QTest::mouseClick(buttons(editor)[2], Qt::LeftButton, {}, QPoint(6, buttons(editor)[2]->height() / 2));
    EXPECT_EQ(names->selectedNumber(), 2);
    EXPECT_EQ(recorder.values, Lines{"c"});
    EXPECT_EQ(valueOf(parameter).names(), names);
    EXPECT_GT(parameter->ownValue()->age(), 0U);
}

TEST_F(EnumTest, TheArrowKeysChoose) {
    auto const names = makeNames({"a", "b", "c"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    parent->show();
    parent->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return parent->isActiveWindow(); }));
    buttons(editor)[0]->setFocus();
    QTest::keyClick(buttons(editor)[0], Qt::Key_Right);
    EXPECT_EQ(names->selectedNumber(), 1);
}

TEST_F(EnumTest, ClickingTheMarkedButtonCommitsNothing) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b"}, 1)));
    auto const editor = open(parameter);
    record(parameter);
    choose(editor, 1);
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(EnumTest, ASlotCallForALostMarkCommitsNothing) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b"}, 1)));
    auto const editor = open(parameter);
    record(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "changeState", Q_ARG(bool, false)));
    EXPECT_EQ(commits(), 0U);
}

TEST_F(EnumTest, WithoutAMarkedButtonACommitSelectsNothing) {
    auto const names = makeNames({"a", "b"});
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    record(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "changeState", Q_ARG(bool, true)));
    EXPECT_EQ(names->selectedNumber(), -1);
    EXPECT_EQ(commits(), 1U);
}

TEST_F(EnumTest, OneClickWithManyEditorsIsACommitByEachAndThenQuiet) {
    auto const names = makeNames({"a", "b", "c"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    std::vector<Kolt::Editor> editors;
    for (int n = 0; n < 5; ++n)
        editors.push_back(open(parameter));
    record(parameter);
    choose(editors[2], 1);
    EXPECT_EQ(recorder.values, Lines(5, "b"));
    for (auto const& editor : editors)
        EXPECT_EQ(marked(editor), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(commits(), 5U);
}

TEST_F(EnumTest, AChangeFromElsewhereThatMovesTheMarkIsCommittedOnceMore) {
    auto const names = makeNames({"a", "b"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    record(parameter);
    names->select(1);
    tellOfChange(parameter);
    EXPECT_EQ(marked(editor), 1);
    EXPECT_EQ(commits(), 2U) << "the change itself, and the editor's";
    tellOfChange(parameter);
    EXPECT_EQ(commits(), 3U) << "the mark stays, so the editor is quiet";
}

TEST_F(EnumTest, OpeningWithASelectedPlaceBeyondTheButtonsPrintsNothing) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b"})));
    auto const editor = open(parameter);
    EXPECT_EQ(marked(editor), -1);
    EXPECT_TRUE(takeOutput().empty());
}

TEST_F(EnumTest, AChangeToAPlaceBeyondTheButtonsPrintsALineAndLeavesTheMark) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b"})));
    auto const editor = open(parameter);
    tellOfChange(parameter);
    EXPECT_EQ(takeOutput(), Lines{invalidLine});
    EXPECT_EQ(marked(editor), -1);

    setElsewhere(parameter, Kolt::Enum(makeNames({"a", "b"}, 1)));
    EXPECT_EQ(marked(editor), 1);
    EXPECT_TRUE(takeOutput().empty());
    auto const longer = makeNames({"x", "y", "z"}, 2);
    setElsewhere(parameter, Kolt::Enum(longer));
    EXPECT_EQ(takeWrittenOutput(), invalidLine + "\n"s) << "the line is flushed";
    EXPECT_EQ(marked(editor), 1);
    EXPECT_EQ(longer->selectedNumber(), 2) << "the value is left as it is";
    EXPECT_EQ(buttons(editor).size(), 2) << "the buttons are those of the first value";
}

TEST_F(EnumTest, NamesKeepTheirFullLength) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a\0b"s, "gr\xC3\xBCn", "bad\xFF"}, 0)));
    auto const editor = open(parameter);
    EXPECT_EQ(buttons(editor)[0]->text(), QString::fromUtf8("a\0b", 3));
    EXPECT_EQ(buttons(editor)[1]->text(), QString::fromUtf8("gr\xC3\xBCn"));
    EXPECT_EQ(buttons(editor)[2]->text(), QString("bad") + QChar(QChar::ReplacementCharacter));
}

TEST_F(EnumTest, WithoutAPoolTheChoiceIsMadeInPlaceAndNotStored) {
    auto const names = makeNames({"a", "b"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    record(parameter);
    pools.use(nullptr);
    choose(editor, 1);
    EXPECT_EQ(names->selectedNumber(), 1);
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(EnumTest, WhenTheOwnerIsGoneTheChoiceIsMadeInPlaceAndReported) {
    auto const names = makeNames({"a", "b"}, 0);
    auto parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    parameter.reset();
    choose(editor, 1);
    EXPECT_EQ(names->selectedNumber(), 1);
    EXPECT_EQ(takeOutput(), Lines{missingOwnerLine});
}

TEST_F(EnumTest, ARefusedStoreMarksNothing) {
    auto const parameter = refusingParameterOf(Kolt::Enum(makeNames({"a", "b"}, 0)));
    auto const editor = open(parameter);
    record(parameter);
    choose(editor, 1);
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(EnumTest, TheFirstValueIsThePoolsIfItHasOne) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b", "c"}, 0)), Values::PerPool);
    parameter->getLocalValue(firstPool, std::string(), true)->setValueFromText("c");
    // Only the creator, without the front end, which would show the pool's value again.
    auto const made = qtCreator("Kolt::Enum", "enum")->create(parameter, parent, &pools);
    EXPECT_TRUE(made.first->findChildren<QRadioButton*>()[2]->isChecked());
    pools.use(secondPool);
    auto const other = qtCreator("Kolt::Enum", "enum")->create(parameter, parent, &pools);
    EXPECT_TRUE(other.first->findChildren<QRadioButton*>()[0]->isChecked());
}

TEST_F(EnumTest, AChoiceForAPoolWithoutAValueLeavesTheParametersOwnAlone) {
    auto const names = makeNames({"a", "b", "c"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names), Values::PerPool);
    auto const editor = open(parameter);
    choose(editor, 2);
    EXPECT_EQ(names->selectedNumber(), 0);
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "c");
}

TEST_F(EnumTest, APoolsValueOfAnotherTypeGivesWayToACopyOfItsOwn) {
    auto const names = makeNames({"a", "b", "c"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names), Values::PerPool);
    auto const editor = open(parameter);
    // A parameter whose declared type is not that of its value, as can happen while scripts run.
    struct OtherParameter : Kolt::VParameter {
        OtherParameter(Kolt::ValuePtr const& value)
            : VParameter("object.parameter", value, Values::PerPool, "Kolt::Enum") {}
    };
    Kolt::ParameterPtr const mixed(new OtherParameter(Kolt::makeValue("text"s)));
    auto const made = qtCreator("Kolt::Enum", "enum")->create(mixed, parent, &pools);
    auto const input = made.second.strong();
    input->onValueChange(Kolt::makeValue(Kolt::Enum(names)), Kolt::VContext(firstPool, nullptr), nullptr);
    record(mixed);
    EXPECT_TRUE(QMetaObject::invokeMethod(made.first, "changeState", Q_ARG(bool, true)));
    EXPECT_EQ(commits(), 1U);
    auto const stored = Kolt::valueOr(mixed->getLocalValue(firstPool, std::string(), false), Kolt::Enum());
    ASSERT_TRUE(stored.names());
    EXPECT_NE(stored.names(), names);
    EXPECT_EQ(Kolt::VValueTrait<Kolt::Enum>::Text(stored), "a");
    takeOutput();
}

TEST_F(EnumTest, SurvivesTheLossOfItsButtons) {
    auto const names = makeNames({"a", "b"}, 0);
    auto const parameter = parameterOf(Kolt::Enum(names));
    auto const editor = open(parameter);
    qDeleteAll(buttons(editor));
    names->select(1);
    tellOfChange(parameter);
    record(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "changeState", Q_ARG(bool, true)));
    EXPECT_EQ(commits(), 1U);
    EXPECT_EQ(names->selectedNumber(), 1);
}

TEST_F(EnumTest, AnAmpersandOfANameIsShownAndIsNoShortcut) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"R&D", "sales"}, 0)));
    auto const editor = open(parameter);
    EXPECT_EQ(buttons(editor)[0]->text(), "R&&D") << "which Qt draws as R&D";
    EXPECT_TRUE(buttons(editor)[0]->shortcut().isEmpty());
    EXPECT_EQ(buttons(editor)[1]->text(), "sales");
}

TEST_F(EnumTest, AShownPoolWithoutAValueStaysWithoutOne) {
    auto const parameter = parameterOf(Kolt::Enum(makeNames({"a", "b", "c"}, 0)), Values::PerPool);
    parameter->getLocalValue(firstPool, std::string(), true)->setValueFromText("c");
    auto const editor = open(parameter);
    EXPECT_EQ(marked(editor), 2);
    pools.use(secondPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    EXPECT_EQ(marked(editor), 0);
    EXPECT_FALSE(parameter->getLocalValue(secondPool, std::string(), false));
    choose(editor, 1);
    EXPECT_EQ(parameter->getLocalValue(secondPool, std::string(), false)->Text(), "b");
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "c");
    EXPECT_EQ(parameter->ownValue()->Text(), "a");
}
