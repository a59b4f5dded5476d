#include "SelectionTest.hpp"
#include <bramble/FlagList.hpp>

#include <QCheckBox>
#include <QFrame>
#include <QVBoxLayout>

using namespace std::string_literals;
using Kolt::FlagList;

namespace {

class FlagListTest : public SelectionTest {
protected:
    /// The boxes from top to bottom.
    static QList<QCheckBox*> boxes(Kolt::Editor const& editor) {
        QList<QCheckBox*> boxes;
        auto const* const layout = editor.widget->layout();
        for (int place = 0; place < layout->count(); ++place)
            boxes.append(qobject_cast<QCheckBox*>(layout->itemAt(place)->widget()));
        return boxes;
    }
    static QStringList texts(Kolt::Editor const& editor) {
        QStringList texts;
        for (auto const* const box : boxes(editor))
            texts.append(box->text());
        return texts;
    }
    static void toggle(Kolt::Editor const& editor, int place) { QTest::keyClick(boxes(editor)[place], Qt::Key_Space); }
    static FlagList valueOf(Kolt::ParameterPtr const& parameter) {
        return Kolt::valueOr(parameter->ownValue(), FlagList());
    }
};

} // namespace

TEST_F(FlagListTest, IsAThinFrameWithACheckBoxForEachFlag) {
    auto const parameter = parameterOf(FlagList{{"axes", true}, {"grid", false}});
    auto const editor = open(parameter);
    auto const* const frame = qobject_cast<QFrame*>(editor.widget.data());
    ASSERT_NE(frame, nullptr);
    EXPECT_STREQ(frame->metaObject()->className(), "Kolt::qVFlagList");
    EXPECT_STREQ(frame->metaObject()->superClass()->className(), "QFrame");
    EXPECT_EQ(slotsOf(*editor.widget), QStringList{"GotABoxChanged(int)"});
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<Options>"), nullptr);
    EXPECT_EQ(frame->frameStyle(), QFrame::Panel | QFrame::Plain);
    ASSERT_NE(qobject_cast<QVBoxLayout*>(frame->layout()), nullptr);
    EXPECT_EQ(frame->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    EXPECT_EQ(texts(editor), (QStringList{"axes", "grid"}));
    EXPECT_TRUE(boxes(editor)[0]->isChecked());
    EXPECT_FALSE(boxes(editor)[1]->isChecked());
}

TEST_F(FlagListTest, NoFlagsGiveAnEmptyFrame) {
    auto const parameter = parameterOf(FlagList());
    auto const editor = open(parameter);
    EXPECT_TRUE(boxes(editor).empty());
    record(parameter);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "GotABoxChanged", Q_ARG(int, 0)));
    EXPECT_EQ(commits(), 1U);
    EXPECT_EQ(valueOf(parameter), FlagList());
}

TEST_F(FlagListTest, TheBoxesStandInTheOrderOfTheNamesWhateverCameFirst) {
    auto const parameter = parameterOf(FlagList{{"b", false}});
    auto const editor = open(parameter);
    setElsewhere(parameter, FlagList{{"d", true}});
    setElsewhere(parameter, FlagList{{"a", true}, {"b", true}, {"c", false}, {"d", false}});
    EXPECT_EQ(texts(editor), (QStringList{"a", "b", "c", "d"}));
    EXPECT_TRUE(boxes(editor)[0]->isChecked());
    EXPECT_TRUE(boxes(editor)[1]->isChecked());
    EXPECT_FALSE(boxes(editor)[2]->isChecked());
    EXPECT_FALSE(boxes(editor)[3]->isChecked());
}

TEST_F(FlagListTest, TheTabKeyFollowsTheOrderOfTheBoxes) {
    auto const parameter = parameterOf(FlagList{{"b", false}, {"d", false}});
    auto const editor = open(parameter);
    setElsewhere(parameter, FlagList{{"a", false}, {"c", false}});
    parent->show();
    parent->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return parent->isActiveWindow(); }));
    boxes(editor)[0]->setFocus();
    for (int place = 0; place < 3; ++place) {
        EXPECT_TRUE(boxes(editor)[place]->hasFocus()) << place;
        QTest::keyClick(boxes(editor)[place], Qt::Key_Tab);
    }
    EXPECT_TRUE(boxes(editor)[3]->hasFocus());
}

TEST_F(FlagListTest, AToggleCommitsTheStateOfAllBoxes) {
    auto const parameter = parameterOf(FlagList{{"a", false}, {"b", false}});
    auto const editor = open(parameter);
    record(parameter);
    {
        // Change one box without a signal; the next toggle writes both.
        QSignalBlocker const blocker(boxes(editor)[0]);
        boxes(editor)[0]->setChecked(true);
    }
    EXPECT_EQ(commits(), 0U);
    QTest::mouseClick(boxes(editor)[1], Qt::LeftButton, {}, QPoint(6, boxes(editor)[1]->height() / 2));
    EXPECT_EQ(recorder.values, Lines{"a=true\nb=true"});
    EXPECT_EQ(valueOf(parameter), (FlagList{{"a", true}, {"b", true}}));
    EXPECT_GT(parameter->ownValue()->age(), 0U);
}

TEST_F(FlagListTest, EveryBoxIsConnectedOnceHoweverOftenValuesArrive) {
    auto const parameter = parameterOf(FlagList{{"a", false}, {"b", false}});
    auto const editor = open(parameter);
    setElsewhere(parameter, FlagList{{"a", true}});
    setElsewhere(parameter, FlagList{{"b", true}, {"c", true}});
    setElsewhere(parameter, FlagList{{"b", false}});
    record(parameter);
    for (int place = 0; place < 3; ++place) {
        toggle(editor, place);
        EXPECT_EQ(commits(), static_cast<std::size_t>(place) + 1);
    }
}

TEST_F(FlagListTest, AChangeFromElsewhereIsNoEdit) {
    auto const parameter = parameterOf(FlagList{{"a", false}, {"b", false}});
    auto const editor = open(parameter);
    record(parameter);
    setElsewhere(parameter, FlagList{{"a", true}, {"b", true}});
    EXPECT_TRUE(boxes(editor)[0]->isChecked());
    EXPECT_EQ(commits(), 1U) << "the change itself";
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(FlagListTest, WhatAnotherListenerSetsWhileAValueIsShownIsNoEdit) {
    auto const parameter = parameterOf(FlagList{{"a", false}, {"b", false}});
    auto const editor = open(parameter);
    auto const both = boxes(editor);
    // "a" is as the new value says when "b" is set.
    QObject::connect(both[1], &QCheckBox::stateChanged, both[0], [&] { both[0]->setChecked(true); });
    record(parameter);
    setElsewhere(parameter, FlagList{{"a", false}, {"b", true}});
    EXPECT_TRUE(both[0]->isChecked());
    EXPECT_EQ(commits(), 1U) << "the host's alone";
    toggle(editor, 0);
    EXPECT_EQ(commits(), 2U);
}

TEST_F(FlagListTest, AFlagThatVanishesKeepsItsBoxAndComesBackWithTheNextToggle) {
    auto const parameter = parameterOf(FlagList{{"a", false}, {"x", true}});
    auto const editor = open(parameter);
    setElsewhere(parameter, FlagList{{"a", false}});
    EXPECT_EQ(texts(editor), (QStringList{"a", "x"}));
    EXPECT_TRUE(boxes(editor)[1]->isChecked());
    EXPECT_FALSE(valueOf(parameter).contains("x"));
    toggle(editor, 0);
    EXPECT_EQ(valueOf(parameter), (FlagList{{"a", true}, {"x", true}}));
}

TEST_F(FlagListTest, NamesKeepTheirFullLength) {
    auto const parameter = parameterOf(FlagList{{"a\0b"s, true}, {"bad\xFF", false}});
    auto const editor = open(parameter);
    EXPECT_EQ(boxes(editor)[0]->text(), QString::fromUtf8("a\0b", 3));
    EXPECT_EQ(boxes(editor)[1]->text(), QString("bad") + QChar(QChar::ReplacementCharacter));
    toggle(editor, 0);
    EXPECT_EQ(valueOf(parameter), (FlagList{{"a\0b"s, false}, {"bad\xFF", false}}));
}

TEST_F(FlagListTest, ARefusedStoreMarksNothing) {
    auto const parameter = refusingParameterOf(FlagList{{"a", false}});
    auto const editor = open(parameter);
    record(parameter);
    toggle(editor, 0);
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(FlagListTest, WithoutAPoolOrAnOwnerAToggleChangesTheBoxAlone) {
    auto parameter = parameterOf(FlagList{{"a", false}});
    auto const editor = open(parameter);
    record(parameter);
    pools.use(nullptr);
    toggle(editor, 0);
    EXPECT_TRUE(boxes(editor)[0]->isChecked());
    EXPECT_EQ(commits(), 0U);
    EXPECT_EQ(valueOf(parameter), (FlagList{{"a", false}}));
    EXPECT_TRUE(takeOutput().empty());
    parameter.reset();
    toggle(editor, 0);
    EXPECT_EQ(takeOutput(), Lines{missingOwnerLine});
}

TEST_F(FlagListTest, TheFirstValueIsThePoolsIfItHasOne) {
    auto const parameter = parameterOf(FlagList{{"a", false}}, Values::PerPool);
    parameter->getLocalValue(firstPool, std::string(), true)->setValueFromText("a=true");
    auto const made = qtCreator("Kolt::FlagList", "checkboxes")->create(parameter, parent, &pools);
    EXPECT_TRUE(made.first->findChild<QCheckBox*>()->isChecked());
    pools.use(secondPool);
    auto const other = qtCreator("Kolt::FlagList", "checkboxes")->create(parameter, parent, &pools);
    EXPECT_FALSE(other.first->findChild<QCheckBox*>()->isChecked());
}

TEST_F(FlagListTest, ALostBoxIsLeftOutAndMadeAnewWithTheNextValue) {
    auto const parameter = parameterOf(FlagList{{"a", true}, {"b", false}, {"c", false}});
    auto const editor = open(parameter);
    delete boxes(editor)[0];
    toggle(editor, 0);
    EXPECT_EQ(valueOf(parameter), (FlagList{{"a", true}, {"b", true}, {"c", false}}));
    tellOfChange(parameter);
    EXPECT_EQ(texts(editor), (QStringList{"a", "b", "c"}));
    EXPECT_TRUE(boxes(editor)[0]->isChecked());
    toggle(editor, 0);
    EXPECT_FALSE(valueOf(parameter).isSet("a"));
}

TEST_F(FlagListTest, AnAmpersandOfANameIsShownAndIsNoShortcut) {
    auto const parameter = parameterOf(FlagList{{"R&D", true}});
    auto const editor = open(parameter);
    EXPECT_EQ(texts(editor), QStringList{"R&&D"}) << "which Qt draws as R&D";
    EXPECT_TRUE(boxes(editor)[0]->shortcut().isEmpty());
    toggle(editor, 0);
    EXPECT_EQ(valueOf(parameter), (FlagList{{"R&D", false}}));
}
