#include "MoreInputsTest.hpp"

#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <QAbstractItemView>
#include <QComboBox>
#include <QStyledItemDelegate>

namespace {

class DropdownTest : public MoreInputsTest {
protected:
    using Names = Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList>;

    static Kolt::ValuePtr enumOf(std::vector<std::string> names, unsigned selected) {
        Names const selection(new Kolt::VEnumSelection(std::move(names)));
        selection->select(selected);
        return Kolt::makeValue(Kolt::Enum(selection));
    }
    static std::vector<std::string> numbered(int count) {
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(count));
        for (int number = 0; number < count; ++number)
            names.push_back("entry " + std::to_string(number));
        return names;
    }
    QComboBox* box() const { return control<QComboBox>(); }
    std::string shown() const { return box()->currentText().toStdString(); }
    /// The entry that the open list would choose.
    std::string found() const { return box()->view()->currentIndex().data().toString().toStdString(); }
    void type(char const* typed) {
        QWidget* const target = box()->view()->isVisible() ? static_cast<QWidget*>(box()->view()) : box();
        QTest::keyClicks(target, QString::fromUtf8(typed));
    }
    void press(Qt::Key key) {
        QTest::keyClick(box()->view(), key);
        endGesture();
    }
};

/// Counts for how many entries a list asks the size.
class CountingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override {
        ++asked;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    mutable int asked = 0;
};

} // namespace

TEST_F(DropdownTest, TypingOpensTheListAndReturnChoosesInOneStep) {
    show(enumOf({"sine", "noise", "spiral", "grid"}, 1), "dropdown");
    box()->setFocus();
    type("s");
    EXPECT_TRUE(box()->view()->isVisible());
    EXPECT_EQ(found(), "spiral") << "the next that begins so";
    type("i");
    EXPECT_EQ(found(), "sine");
    EXPECT_EQ(text(), "noise") << "nothing is written yet";
    press(Qt::Key_Return);
    EXPECT_EQ(text(), "sine");
    EXPECT_EQ(shown(), "sine");
    EXPECT_EQ(recorder.values, std::vector<std::string>{"sine"});
    EXPECT_EQ(steps(), 1U);
    undo();
    EXPECT_EQ(text(), "noise");
    EXPECT_EQ(shown(), "noise");
}

TEST_F(DropdownTest, WhatBeginsSoComesBeforeWhatContainsIt) {
    show(enumOf({"large grid", "grid", "a map"}, 2), "dropdown");
    box()->setFocus();
    type("GR");
    EXPECT_EQ(found(), "grid");
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    type("rge g");
    EXPECT_EQ(found(), "large grid") << "in the middle, with a space";
    press(Qt::Key_Return);
    EXPECT_EQ(text(), "large grid");
}

TEST_F(DropdownTest, EscapeLeavesTheChoice) {
    show(enumOf({"sine", "noise"}, 1), "dropdown");
    box()->setFocus();
    type("s");
    press(Qt::Key_Escape);
    EXPECT_FALSE(box()->view()->isVisible());
    EXPECT_EQ(shown(), "noise");
    EXPECT_EQ(text(), "noise");
    EXPECT_EQ(steps(), 0U);
}

TEST_F(DropdownTest, ATextSelectionIsChosenAsWell) {
    Kolt::VStringList const modes(new Kolt::StringSelection({"steady", "blink"}, "steady"));
    show(Kolt::makeValue(modes), "dropdown");
    box()->setFocus();
    type("b");
    press(Qt::Key_Return);
    EXPECT_EQ(text(), "blink");
    EXPECT_EQ(modes->selected(), "blink") << "the selection that the host refers to";
}

TEST_F(DropdownTest, TenThousandEntriesAreNotMeasuredOneByOne) {
    show(enumOf(numbered(10000), 5000), "dropdown");
    CountingDelegate delegate;
    box()->view()->setItemDelegate(&delegate);
    box()->setFocus();
    box()->showPopup();
    EXPECT_TRUE(box()->view()->isVisible());
    EXPECT_EQ(found(), "entry 5000");
    type("entry 7777");
    EXPECT_EQ(found(), "entry 7777");
    EXPECT_LT(delegate.asked, 1000);
    EXPECT_GT(delegate.asked, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(text(), "entry 7777");
    box()->view()->setItemDelegate(new QStyledItemDelegate(box()));
}

TEST_F(DropdownTest, OtherNamesAreShownWhenTheyArrive) {
    show(enumOf({"sine", "noise"}, 1), "dropdown");
    Names const names(new Kolt::VEnumSelection({"one", "two", "three"}));
    EXPECT_TRUE(Kolt::setParameterValue(*value, Kolt::Enum(names), nullptr, std::string(), true, nullptr, nullptr));
    EXPECT_EQ(box()->count(), 3);
    EXPECT_EQ(box()->currentIndex(), -1) << "none is chosen";
    box()->setFocus();
    QTest::keyClick(box(), Qt::Key_Down);
    EXPECT_EQ(text(), "one");
}

TEST_F(DropdownTest, WithoutAPoolTheChoiceComesBack) {
    show(enumOf({"sine", "noise"}, 1), "dropdown");
    pools.use(nullptr);
    box()->setFocus();
    QTest::keyClick(box(), Qt::Key_Up);
    EXPECT_EQ(shown(), "noise");
    EXPECT_EQ(value->ownValue()->Text(), "noise");
}
