#include "support/TaloTest.hpp"
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>

namespace {

using Kolt::Enum;
using Kolt::makeValue;
using Kolt::MultipleStringSelection;
using Kolt::StringSelection;
using Kolt::VEnumSelection;
using Kolt::VMultipleStringList;
using Kolt::VStringList;
using Kolt::VValueTrait;
using Tessera::StringList;
using Tessera::StrongPtr;
using testing::ElementsAre;

using Names = std::vector<std::string>;

class EnumSelections : public TaloTest {
protected:
    VEnumSelection* const selection_ = new VEnumSelection({"red", "green", "red"});
    Enum value_{StrongPtr<StringList>(selection_)};
};

TEST_F(EnumSelections, SelectAPlaceAndIgnoreOneBeyondTheNames) {
    EXPECT_EQ(selection_->selectedNumber(), -1);
    selection_->select(2);
    EXPECT_EQ(selection_->selectedNumber(), 2);
    selection_->select(3);
    selection_->select(static_cast<unsigned>(-1));
    EXPECT_EQ(selection_->selectedNumber(), 2);
    VEnumSelection empty;
    empty.select(0);
    EXPECT_EQ(empty.selectedNumber(), -1);
}

TEST_F(EnumSelections, CopiesOfAValueShareTheSelection) {
    Enum const copy = value_;
    selection_->select(1);
    EXPECT_EQ(VValueTrait<Enum>::Text(copy), "green");
}

TEST_F(EnumSelections, ACloneHasASelectionOfItsOwn) {
    selection_->select(1);
    auto const clone = VValueTrait<Enum>::Clone(value_);
    EXPECT_TRUE(VValueTrait<Enum>::Equal(clone, value_));
    ASSERT_NE(dynamic_cast<VEnumSelection*>(clone.names().get()), nullptr);
    selection_->select(2);
    EXPECT_EQ(VValueTrait<Enum>::Text(clone), "green");
    EXPECT_FALSE(VValueTrait<Enum>::Equal(clone, value_));
}

TEST_F(EnumSelections, EqualNamesAtAnotherPlaceAreAnotherValue) {
    auto const clone = VValueTrait<Enum>::Clone(value_);
    selection_->select(0);
    dynamic_cast<VEnumSelection&>(*clone.names()).select(2);
    EXPECT_EQ(VValueTrait<Enum>::Text(clone), VValueTrait<Enum>::Text(value_));
    EXPECT_FALSE(VValueTrait<Enum>::Equal(clone, value_));
}

TEST_F(EnumSelections, TheTextIsTheSelectedName) {
    EXPECT_EQ(VValueTrait<Enum>::Text(value_), "");
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(value_, "red"));
    EXPECT_EQ(selection_->selectedNumber(), 0) << "the first of equal names";
    for (auto const* const wrong : {"", "blue", "Red", "1"})
        EXPECT_FALSE(VValueTrait<Enum>::setValueFromText(value_, wrong)) << wrong;
    EXPECT_EQ(selection_->selectedNumber(), 0);
}

TEST_F(EnumSelections, AValueWithoutASelectionHasNoText) {
    Enum none;
    EXPECT_EQ(VValueTrait<Enum>::Text(none), "");
    EXPECT_FALSE(VValueTrait<Enum>::setValueFromText(none, "red"));
    EXPECT_FALSE(VValueTrait<Enum>::Clone(none).names());
    EXPECT_TRUE(VValueTrait<Enum>::Equal(none, Enum()));
    EXPECT_FALSE(VValueTrait<Enum>::Equal(none, value_));

    Enum plain(StrongPtr<StringList>(new StringList(Names{"red"})));
    EXPECT_EQ(VValueTrait<Enum>::Text(plain), "") << "a list of another kind selects nothing";
    EXPECT_FALSE(VValueTrait<Enum>::setValueFromText(plain, "red"));
    EXPECT_TRUE(VValueTrait<Enum>::Equal(plain, VValueTrait<Enum>::Clone(plain)));
}

class StringSelections : public TaloTest {
protected:
    VStringList value_{new StringSelection({"low", "high", ""}, "high")};
};

TEST_F(StringSelections, SelectATextOfTheListOnly) {
    EXPECT_EQ(value_->selected(), "high");
    EXPECT_TRUE(value_->select("low"));
    EXPECT_FALSE(value_->select("Low"));
    EXPECT_EQ(value_->selected(), "low");
    EXPECT_TRUE(value_->select(""));
    EXPECT_EQ(value_->selected(), "");
}

TEST_F(StringSelections, StartWithoutAChoiceWhereNoneOrAWrongOneIsGiven) {
    EXPECT_EQ(StringSelection().selected(), "");
    EXPECT_FALSE(StringSelection().select(""));
    EXPECT_EQ(StringSelection({"a"}).selected(), "");
    EXPECT_EQ(StringSelection({"a"}, "b").selected(), "");
}

TEST_F(StringSelections, TheTextIsTheSelectedOne) {
    EXPECT_EQ(VValueTrait<VStringList>::Text(value_), "high");
    EXPECT_TRUE(VValueTrait<VStringList>::setValueFromText(value_, "low"));
    EXPECT_FALSE(VValueTrait<VStringList>::setValueFromText(value_, "middle"));
    EXPECT_EQ(value_->selected(), "low");
    VStringList none;
    EXPECT_EQ(VValueTrait<VStringList>::Text(none), "");
    EXPECT_FALSE(VValueTrait<VStringList>::setValueFromText(none, ""));
}

TEST_F(StringSelections, ACloneHasASelectionOfItsOwn) {
    auto const clone = VValueTrait<VStringList>::Clone(value_);
    EXPECT_TRUE(VValueTrait<VStringList>::Equal(clone, value_));
    value_->select("low");
    EXPECT_EQ(clone->selected(), "high");
    EXPECT_FALSE(VValueTrait<VStringList>::Equal(clone, value_));
    EXPECT_FALSE(VValueTrait<VStringList>::Clone(nullptr));
    EXPECT_TRUE(VValueTrait<VStringList>::Equal(nullptr, nullptr));
    EXPECT_FALSE(VValueTrait<VStringList>::Equal(nullptr, value_));
    EXPECT_FALSE(VValueTrait<VStringList>::Equal(value_, nullptr));
    EXPECT_FALSE(VValueTrait<VStringList>::Equal(value_, VStringList(new StringSelection({"low", "other"}, "low"))))
        << "the same text of another list";
}

class MultipleSelections : public TaloTest {
protected:
    Names chosen() const {
        Names names;
        for (auto const& text : *value_) {
            if (value_->isInSelection(text))
                names.push_back(text);
        }
        return names;
    }
    VMultipleStringList value_{new MultipleStringSelection({"b", "a", "c", "a"})};
};

TEST_F(MultipleSelections, StartWithNothingChosen) {
    EXPECT_THAT(chosen(), ElementsAre());
    EXPECT_EQ(value_->chosenCount(), 0U);
    EXPECT_EQ(MultipleStringSelection().chosenCount(), 0U);
}

TEST_F(MultipleSelections, AddRemoveAndToggleTextsOfTheList) {
    value_->add("c");
    value_->add("c");
    value_->addOrRemove("b");
    EXPECT_THAT(chosen(), ElementsAre("b", "c")) << "in the order of the list";
    value_->addOrRemove("c");
    EXPECT_THAT(chosen(), ElementsAre("b"));
    value_->removeFromSelection("b");
    value_->removeFromSelection("b");
    EXPECT_THAT(chosen(), ElementsAre());
}

TEST_F(MultipleSelections, IgnoreATextThatIsNotInTheList) {
    value_->add("x");
    value_->addOrRemove("x");
    value_->removeFromSelection("x");
    EXPECT_FALSE(value_->isInSelection("x"));
    EXPECT_EQ(value_->chosenCount(), 0U);
    value_->addAll();
    EXPECT_FALSE(value_->isInSelection("x"));
}

TEST_F(MultipleSelections, EqualTextsAreChosenTogether) {
    value_->add("a");
    EXPECT_THAT(chosen(), ElementsAre("a", "a"));
    EXPECT_EQ(value_->chosenCount(), 1U);
    value_->addOrRemove("a");
    EXPECT_THAT(chosen(), ElementsAre());
    value_->invertAll();
    EXPECT_THAT(chosen(), ElementsAre("b", "a", "c", "a"));
    EXPECT_EQ(value_->chosenCount(), 3U);
}

TEST_F(MultipleSelections, AllOfTextsThatDifferAreAsManyAsTheListHas) {
    MultipleStringSelection selection({"b", "a", "c"});
    selection.addAll();
    EXPECT_EQ(selection.chosenCount(), 3U);
    selection.invertAll();
    EXPECT_EQ(selection.chosenCount(), 0U);
    selection.invertAll();
    EXPECT_EQ(selection.chosenCount(), 3U);
}

TEST_F(MultipleSelections, ChooseAllNoneAndTheOthers) {
    value_->add("b");
    value_->invertAll();
    EXPECT_THAT(chosen(), ElementsAre("a", "c", "a"));
    value_->addAll();
    EXPECT_THAT(chosen(), ElementsAre("b", "a", "c", "a"));
    value_->removeAll();
    EXPECT_THAT(chosen(), ElementsAre());
}

TEST_F(MultipleSelections, TheTextIsTheChosenOnesOneALine) {
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value_), "");
    value_->add("c");
    value_->add("b");
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value_), "b\nc");
    value_->addAll();
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value_), "b\na\nc\na");
}

TEST_F(MultipleSelections, ATextReplacesTheChoiceOrChangesNothing) {
    value_->add("b");
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(value_, "c\na"));
    EXPECT_THAT(chosen(), ElementsAre("a", "c", "a"));
    for (auto const* const wrong : {"c\nx", "x", "c,a", "c\n\na", " c"})
        EXPECT_FALSE(VValueTrait<VMultipleStringList>::setValueFromText(value_, wrong)) << wrong;
    EXPECT_THAT(chosen(), ElementsAre("a", "c", "a"));
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(value_, ""));
    EXPECT_THAT(chosen(), ElementsAre());
    VMultipleStringList none;
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(none), "");
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::setValueFromText(none, ""));
}

TEST_F(MultipleSelections, TheTextReadsBackAsTheSameChoiceWhereATextIsEmpty) {
    VMultipleStringList const value(new MultipleStringSelection({"", "a", ""}));
    auto copy = VValueTrait<VMultipleStringList>::Clone(value);
    value->add("a");
    value->add("");
    copy->removeAll();
    EXPECT_TRUE(
        VValueTrait<VMultipleStringList>::setValueFromText(copy, VValueTrait<VMultipleStringList>::Text(value)));
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(copy, value));
}

TEST_F(MultipleSelections, EveryChoiceReadsBackFromItsText) {
    Names const texts = {"a", "", "b\nc", "c", "b", "d\\", "\\n", "d\\nb", "\\\\", "\n", "\\\n"};
    VMultipleStringList const value(new MultipleStringSelection(texts));
    auto copy = VValueTrait<VMultipleStringList>::Clone(value);
    for (unsigned choice = 0; choice < 1U << texts.size(); ++choice) {
        value->removeAll();
        copy->addAll();
        for (std::size_t place = 0; place < texts.size(); ++place)
            if (choice >> place & 1U)
                value->add(texts[place]);
        auto const written = VValueTrait<VMultipleStringList>::Text(value);
        ASSERT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(copy, written)) << written;
        ASSERT_TRUE(VValueTrait<VMultipleStringList>::Equal(copy, value)) << written;
    }
}

TEST_F(MultipleSelections, AChosenEmptyTextIsALineOfItsOwn) {
    VMultipleStringList value(new MultipleStringSelection({"a", ""}));
    value->addAll();
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value), "a\n");
    value->removeFromSelection("");
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value), "a");
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(value, "\n"));
    EXPECT_TRUE(value->isInSelection(""));
    EXPECT_FALSE(value->isInSelection("a"));
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value), "\n");
}

TEST_F(MultipleSelections, ALineFeedAtTheEndOfATextIsIgnoredWhereNoTextIsEmpty) {
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(value_, "b\nc\n"));
    EXPECT_THAT(chosen(), ElementsAre("b", "c"));
}

TEST_F(MultipleSelections, ATextWithALineFeedIsOneLine) {
    VMultipleStringList value(new MultipleStringSelection({"x\ny", "x", "y"}));
    value->add("x\ny");
    EXPECT_EQ(VValueTrait<VMultipleStringList>::Text(value), "x\\ny");
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::setValueFromText(value, "x\ny"));
    EXPECT_FALSE(value->isInSelection("x\ny"));
    EXPECT_TRUE(value->isInSelection("x"));
}

TEST_F(MultipleSelections, ACloneHasASelectionOfItsOwnThatOutlivesTheFirst) {
    value_->add("a");
    auto const clone = VValueTrait<VMultipleStringList>::Clone(value_);
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(clone, value_));
    value_->add("c");
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::Equal(clone, value_));
    value_.reset();
    EXPECT_TRUE(clone->isInSelection("a"));
    EXPECT_FALSE(clone->isInSelection("c"));
    clone->addAll();
    EXPECT_EQ(clone->chosenCount(), 3U);
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::Clone(nullptr));
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(nullptr, nullptr));
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::Equal(nullptr, clone));
}

TEST_F(MultipleSelections, ACloneSharesTheTextsAndCostsOneBitAText) {
    Names texts;
    for (int number = 0; number < 100000; ++number)
        texts.push_back("a text that is too long to be kept in the object itself " + std::to_string(number));
    value_ = VMultipleStringList(new MultipleStringSelection(std::move(texts)));
    value_->add(value_->at(99999));
    auto const clone = VValueTrait<VMultipleStringList>::Clone(value_);
    EXPECT_EQ(&clone->strings(), &value_->strings());
    EXPECT_LT(sizeof(MultipleStringSelection), 200U);
    EXPECT_TRUE(clone->isInSelection(value_->at(99999)));
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(clone, value_));
}

TEST_F(MultipleSelections, ChoicesAreComparedByTheFirstOfEqualTexts) {
    auto const one = VValueTrait<VMultipleStringList>::Clone(value_);
    one->add("b");
    one->add("a");
    one->add("c");
    value_->addAll();
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(one, value_)) << "whichever way all were chosen";
    one->removeFromSelection("a");
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::Equal(one, value_));
    value_->addOrRemove("a");
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(one, value_));
    EXPECT_FALSE(one->hasSameChoice(MultipleStringSelection({"b", "a", "c"})));
}

TEST_F(MultipleSelections, AListThatWasMadeAnewIsComparedByItsTexts) {
    VMultipleStringList const other(new MultipleStringSelection({"b", "a", "c", "a"}));
    EXPECT_TRUE(VValueTrait<VMultipleStringList>::Equal(other, value_));
    other->add("c");
    EXPECT_FALSE(VValueTrait<VMultipleStringList>::Equal(other, value_));
}

class SelectionValues : public TaloTest {};

TEST_F(SelectionValues, ShareTheirTextsWithTheirClones) {
    Enum const enumeration(StrongPtr<StringList>(new VEnumSelection({"a", "b"})));
    EXPECT_EQ(&VValueTrait<Enum>::Clone(enumeration).names()->strings(), &enumeration.names()->strings());
    VStringList const single(new StringSelection({"a", "b"}));
    EXPECT_EQ(&VValueTrait<VStringList>::Clone(single)->strings(), &single->strings());
}

TEST_F(SelectionValues, CloneDeeplySoThatAPoolsCopyIsApart) {
    auto const enumeration = makeValue(Enum(StrongPtr<StringList>(new VEnumSelection({"a", "b"}))));
    auto const single = makeValue(VStringList(new StringSelection({"a", "b"})));
    auto const multiple = makeValue(VMultipleStringList(new MultipleStringSelection({"a", "b"})));
    for (auto const& value : {enumeration, single, multiple}) {
        auto const clone = value->clone();
        EXPECT_EQ(clone->valueType(), value->valueType());
        EXPECT_TRUE(clone->equals(*value));
        EXPECT_TRUE(clone->setValueFromText("b"));
        EXPECT_EQ(clone->Text(), "b");
        EXPECT_EQ(value->Text(), "");
        EXPECT_FALSE(clone->equals(*value));
        EXPECT_FALSE(clone->setValueFromText("c"));
        EXPECT_EQ(clone->Text(), "b");
    }
    EXPECT_FALSE(enumeration->equals(*single));
    EXPECT_FALSE(single->equals(*multiple));
}

} // namespace
