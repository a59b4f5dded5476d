#include "EditingTest.hpp"

#include <QListWidget>
#include <QPushButton>

using testing::SizeIs;

namespace {

class KeyboardChoiceTest : public EditingTest {
protected:
    QListWidget* list() const { return control<QListWidget>("multiselection"); }
    QPushButton* button(char const* caption) const {
        for (auto* const button : row("multiselection")->editor()->findChildren<QPushButton*>())
            if (button->text() == QLatin1String(caption))
                return button;
        return nullptr;
    }
};

} // namespace

TEST_F(KeyboardChoiceTest, CommitsAChoiceByKeyAsOneStep) {
    list()->setFocus();
    list()->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_EQ(held("multiselection"), "a\nb");
    EXPECT_THAT(steps(), SizeIs(1));
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(held("multiselection"), "a\nb\nc");
}

TEST_F(KeyboardChoiceTest, LeavesTheValueAloneAtKeysThatChooseNothing) {
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(held("multiselection"), "b");
    EXPECT_THAT(steps(), SizeIs(0));
}

TEST_F(KeyboardChoiceTest, ButtonsThatActWhenTheyArePressedDoSoByKey) {
    button("Inverse")->setFocus();
    QTest::keyClick(button("Inverse"), Qt::Key_Space);
    EXPECT_EQ(held("multiselection"), "a\nc");
    QTest::keyClick(button("None"), Qt::Key_Space);
    EXPECT_EQ(held("multiselection"), "");
}
