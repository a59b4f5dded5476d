#include "support/TaloTest.hpp"

#include <lattice/TypedParameter.hpp>
#include <parameters/commands/ValueClipboard.hpp>
#include <QMimeData>

using testing::SizeIs;

namespace {

class ValueClipboardTest : public TaloTest {
protected:
    static Kolt::ParameterPtr number(char const* name, int value) {
        return Kolt::ParameterPtr(
            new Kolt::VParameter(name, Kolt::ValuePtr(new Kolt::VValue<int>(value)), Kolt::VParameter::Values::Shared));
    }
    static std::string pastedText(char const* text) {
        QMimeData data;
        data.setText(QString::fromUtf8(text));
        auto const pasted = Talo::ValueClipboard::paste(data, *number("width", 1), nullptr);
        return pasted.value ? pasted.value->Text() : "refused: " + pasted.error.toStdString();
    }
};

} // namespace

TEST_F(ValueClipboardTest, AValueIsCopiedAsTextAndWithItsType) {
    auto const data = Talo::ValueClipboard::copy(*number("width", 400), nullptr);
    EXPECT_EQ(data->text(), QStringLiteral("400"));
    EXPECT_EQ(data->data(Talo::ValueClipboard::mimeType()), QByteArrayLiteral("{\"type\":\"int\",\"value\":400}"));
}

TEST_F(ValueClipboardTest, AnotherTextIsReadWithoutTheBlanksAroundIt) {
    EXPECT_EQ(pastedText("12"), "12");
    EXPECT_EQ(pastedText(" 12\n"), "12");
}

TEST_F(ValueClipboardTest, ATextOfAnotherTypeIsRefusedByName) {
    EXPECT_EQ(pastedText("wide"), "refused: \"wide\" is no value of width, which is of type int.");
}

TEST_F(ValueClipboardTest, WithoutATextThereIsNothingToPaste) {
    auto const pasted = Talo::ValueClipboard::paste(QMimeData(), *number("width", 1), nullptr);
    EXPECT_FALSE(pasted.value);
    EXPECT_EQ(pasted.error, QStringLiteral("There is no value to paste into width."));
}

TEST_F(ValueClipboardTest, ATypedValueCountsMoreThanTheText) {
    auto const data = Talo::ValueClipboard::copy(*number("width", 400), nullptr);
    data->setText(QStringLiteral("7"));
    EXPECT_EQ(Talo::ValueClipboard::paste(*data, *number("height", 1), nullptr).value->Text(), "400");
}

TEST_F(ValueClipboardTest, SeveralValuesArePastedInTheirOrder) {
    auto const data = Talo::ValueClipboard::copyAll({number("x", 3), number("y", 4)}, nullptr);
    EXPECT_EQ(data->text(), QStringLiteral("3 4"));
    EXPECT_TRUE(Talo::ValueClipboard::hasValues(*data, 2));
    EXPECT_FALSE(Talo::ValueClipboard::hasValues(*data, 3));
    auto const pasted = Talo::ValueClipboard::pasteAll(*data, {number("a", 0), number("b", 0)}, nullptr);
    ASSERT_THAT(pasted.values, SizeIs(2));
    EXPECT_EQ(pasted.values[0]->Text(), "3");
    EXPECT_EQ(pasted.values[1]->Text(), "4");
}

TEST_F(ValueClipboardTest, WordsAreSeveralValuesAndOneThatDoesNotFitRefusesAll) {
    QMimeData data;
    data.setText(QStringLiteral("3, four; 5"));
    EXPECT_TRUE(Talo::ValueClipboard::hasValues(data, 3));
    auto const pasted = Talo::ValueClipboard::pasteAll(data, {number("a", 0), number("b", 0), number("c", 0)}, nullptr);
    EXPECT_THAT(pasted.values, SizeIs(0));
    EXPECT_EQ(pasted.error, QStringLiteral("\"four\" is no value of b, which is of type int."));
}
