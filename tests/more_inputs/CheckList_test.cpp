#include "MoreInputsTest.hpp"

#include <bramble/MultipleStringSelection.hpp>
#include <QCheckBox>
#include <QListWidget>

namespace {

class CheckListTest : public MoreInputsTest {
protected:
    static Kolt::VMultipleStringList selectionOf(std::vector<std::string> const& texts) {
        return Kolt::VMultipleStringList(new Kolt::MultipleStringSelection(texts));
    }
    QList<QCheckBox*> boxes() const {
        QList<QCheckBox*> visible;
        for (auto* const box : editor()->findChildren<QCheckBox*>())
            if (!box->isHidden())
                visible << box;
        return visible;
    }
};

} // namespace

TEST_F(CheckListTest, EachBoxIsOneText) {
    auto const selection = selectionOf({"red", "green & blue", "grey"});
    show(Kolt::makeValue(selection), "text list");
    ASSERT_EQ(boxes().size(), 3);
    EXPECT_EQ(boxes()[1]->text(), QStringLiteral("green && blue")) << "no mark of a key";
    boxes()[1]->setFocus();
    QTest::keyClick(boxes()[1], Qt::Key_Space);
    endGesture();
    EXPECT_EQ(text(), "green & blue");
    EXPECT_TRUE(selection->isInSelection("green & blue")) << "the selection that the host refers to";
    QTest::mouseClick(boxes()[0], Qt::LeftButton, {}, {8, boxes()[0]->height() / 2});
    endGesture();
    EXPECT_EQ(text(), "red\ngreen & blue");
    EXPECT_EQ(steps(), 2U);
    undo();
    EXPECT_FALSE(boxes()[0]->isChecked());
    EXPECT_TRUE(boxes()[1]->isChecked());
}

TEST_F(CheckListTest, EqualTextsAreChosenTogether) {
    show(Kolt::makeValue(selectionOf({"red", "red", "blue"})), "text list");
    QTest::mouseClick(boxes()[1], Qt::LeftButton, {}, {8, boxes()[1]->height() / 2});
    EXPECT_TRUE(boxes()[0]->isChecked());
    EXPECT_TRUE(boxes()[1]->isChecked());
}

TEST_F(CheckListTest, OtherTextsGetOtherBoxes) {
    show(Kolt::makeValue(selectionOf({"red", "blue"})), "text list");
    auto const other = selectionOf({"one", "two", "three"});
    other->add("two");
    EXPECT_TRUE(Kolt::setParameterValue(*value, other, nullptr, std::string(), true, nullptr, nullptr));
    ASSERT_EQ(boxes().size(), 3);
    EXPECT_TRUE(boxes()[1]->isChecked());
}

TEST_F(CheckListTest, ALongListKeepsItsUsualEditor) {
    show(Kolt::makeValue(selectionOf(std::vector<std::string>(33, "text"))), "text list");
    EXPECT_NE(control<QListWidget>(), nullptr);
    // The usual editor has a trace.
    takeOutput();
}

TEST_F(CheckListTest, WithoutAPoolTheBoxIsClearedAgain) {
    show(Kolt::makeValue(selectionOf({"red", "blue"})), "text list");
    pools.use(nullptr);
    QTest::mouseClick(boxes()[0], Qt::LeftButton, {}, {8, boxes()[0]->height() / 2});
    EXPECT_FALSE(boxes()[0]->isChecked());
    EXPECT_EQ(value->ownValue()->Text(), "");
}
