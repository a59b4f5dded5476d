#include "qVinputs/SingleLineTextTest.hpp"

#include <array>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

class ArrayOfOneText : public SingleLineText {
protected:
    using Array = std::array<std::string, 1>;

    // As networks store them: declared as an array, with a text as the value.
    static ParameterPtr makeDeclaredArray(std::string const& text, Values values = Values::Shared) {
        return ParameterPtr(new VParameter("array", makeValue(text), values, Tessera::Typename(typeid(Array))));
    }
};

TEST_F(ArrayOfOneText, IsEditedWhereItsValueIsAText) {
    auto const parameter = makeDeclaredArray("abc");
    watch(parameter);
    auto const editor = makeEditor(parameter, parent, &pools);
    auto* const field = dynamic_cast<QLineEdit*>(editor.widget.data());
    EXPECT_EQ(editor.choice.creator.strong()->Name(), "singlelinestring");
    EXPECT_EQ(field->text(), QStringLiteral("abc"));
    QTest::keyClicks(field, QStringLiteral("d"));
    EXPECT_THAT(recorder.values, ElementsAre("abcd"));
    EXPECT_EQ(textOf(parameter), "abcd");
    change(parameter, std::string("host"));
    EXPECT_EQ(field->text(), QStringLiteral("host"));
}

TEST_F(ArrayOfOneText, IsEditedInItsPoolWhereItsValueIsAText) {
    auto const parameter = makeDeclaredArray("abc", Values::PerPool);
    QTest::keyClicks(create<QLineEdit>("singlelinestring", parameter), QStringLiteral("d"));
    EXPECT_EQ(localTextOf(parameter), "abcd");
    EXPECT_EQ(textOf(parameter), "abc");
}

TEST_F(ArrayOfOneText, StartsEmptyAndWritesNothingWhereItHoldsATrueArray) {
    auto const parameter = makeValueParameter(Array{"kept"});
    watch(parameter);
    auto* const editor = create<QLineEdit>("singlelinestring", parameter);
    EXPECT_EQ(editor->text(), QString());
    QTest::keyClicks(editor, QStringLiteral("abc"));
    EXPECT_EQ(editor->text(), QStringLiteral("abc"));
    EXPECT_EQ(textOf(parameter), "kept");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_THAT(recorder.values, IsEmpty());
    change(parameter, Array{"host"});
    EXPECT_EQ(editor->text(), QStringLiteral("abc"));
}

TEST_F(ArrayOfOneText, SaysWhatItNeedsWhereItHoldsATrueArray) {
    auto const parameter = makeValueParameter(Array{"kept"});
    auto const editor = makeEditor(parameter, parent, &pools);
    EXPECT_THAT(editor.choice.explanation,
                testing::EndsWith(", but it edits a value of type std::string and not std::array<std::string, 1>"));
    EXPECT_THAT(warnings.texts, ElementsAre("The parameter \"" + parameter->fullName() +
                                            "\" of type std::array<std::string, 1> needs a value of type std::string "
                                            "to be edited, not std::array<std::string, 1>"));
    warnings.texts.clear();
    EXPECT_TRUE(makeEditor(makeDeclaredArray("abc"), parent, &pools).widget);
    EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ArrayOfOneText, KeepsATrueArrayOfAPoolAsItIs) {
    auto const parameter = makeValueParameter(Array{"own"}, Values::PerPool);
    auto* const editor = create<QLineEdit>("singlelinestring", parameter);
    QTest::keyClicks(editor, QStringLiteral("a"));
    EXPECT_EQ(localTextOf(parameter), "(none)");
    change(parameter, Array{"local"});
    auto const local = parameter->getLocalValue(Kolt::currentPool(&pools), "", false);
    QTest::keyClicks(editor, QStringLiteral("b"));
    EXPECT_EQ(parameter->getLocalValue(Kolt::currentPool(&pools), "", false), local);
    EXPECT_EQ(localTextOf(parameter), "local");
    EXPECT_EQ(local->age(), 0U);
}

} // namespace
