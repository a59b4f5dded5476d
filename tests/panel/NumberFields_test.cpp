#include "EditingTest.hpp"
#include "support/SliderDrag.hpp"
#include "support/TextDrop.hpp"

#include <QAccessible>
#include <QComboBox>
#include <QMessageBox>
#include <QStatusBar>

using testing::HasSubstr;

namespace {

/// The number fields of the shown panel. "all.int" holds 20 in the pool "draft", which is chosen, and 40 elsewhere.
class NumberFieldsTest : public EditingTest {
protected:
    void type(char const* name, char const* typed) const {
        field(name)->setFocus();
        field(name)->selectAll();
        QTest::keyClicks(field(name), QString::fromUtf8(typed));
        EXPECT_EQ(field(name)->text(), QLatin1String(typed));
    }
    std::string savedFile() const {
        QFile source(folder.filePath(QStringLiteral("values.json")));
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return source.readAll().toStdString();
    }
    /// Calls `asking`, which asks about unsaved values, and answers "Save".
    static void answerWithSave(std::function<void()> const& asking) {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = true;
                QTest::mouseClick(box->button(QMessageBox::Save), Qt::LeftButton);
            }
        });
        timer.start(0);
        asking();
        EXPECT_TRUE(asked);
    }
    QComboBox* poolSelector() const {
        for (auto* const comboBox : window->findChildren<QComboBox*>())
            if (comboBox->accessibleName() == QLatin1String("Pool"))
                return comboBox;
        return nullptr;
    }
    static std::string description(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description).toStdString();
    }
    std::vector<std::string> errors() const {
        std::vector<std::string> texts;
        for (auto const& each : window->messages()->texts(Panel::MessageList::Source::Error))
            texts.push_back(each.toStdString());
        return texts;
    }
};

} // namespace

TEST_F(NumberFieldsTest, ATypedNumberIsEnteredByTab) {
    type("int", "33");
    QTest::keyClick(field("int"), Qt::Key_Tab);
    EXPECT_EQ(held("int"), "33");
    EXPECT_EQ(steps().size(), 1U);
    type("double", "0.25");
    QTest::keyClick(field("double"), Qt::Key_Backtab);
    EXPECT_EQ(held("double"), "0.25");
    EXPECT_EQ(steps().size(), 2U);
}

TEST_F(NumberFieldsTest, AMinusInFrontOfZeroIsAnEditThatCanBeUndone) {
    type("double", "0");
    QTest::keyClick(field("double"), Qt::Key_Return);
    type("double", "-0");
    QTest::keyClick(field("double"), Qt::Key_Return);
    EXPECT_EQ(held("double"), "-0");
    EXPECT_EQ(steps().size(), 2U);
    window->undo();
    EXPECT_EQ(held("double"), "0");
    window->undo();
    EXPECT_EQ(held("double"), "0.5");
}

TEST_F(NumberFieldsTest, ATypedNumberIsEnteredByAClickElsewhere) {
    type("int", "33");
    click(choice("Green"));
    EXPECT_EQ(held("int"), "33");
    type("double", "0.25");
    QTest::mouseClick(field("line"), Qt::LeftButton);
    EXPECT_EQ(held("double"), "0.25");
    // The drag starts where the typed number left the handle.
    type("double", "0.5");
    dragHandle(slider("double"), {0});
    EXPECT_EQ(field("double")->text(), QString::number(std::stod(held("double")), 'f', 6));
}

TEST_F(NumberFieldsTest, ATypedNumberIsSaved) {
    type("int", "33");
    QTest::keyClick(field("int"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(held("int"), "33");
    EXPECT_THAT(savedFile(), HasSubstr("33"));
    EXPECT_TRUE(field("int")->hasFocus());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(NumberFieldsTest, ATypedNumberIsAskedAboutWhenTheProgramEnds) {
    for (bool const byKey : {true, false}) {
        type("int", byKey ? "33" : "34");
        answerWithSave([&] {
            if (byKey)
                QTest::keyClick(field("int"), Qt::Key_Q, Qt::ControlModifier);
            else
                window->close();
        });
        EXPECT_FALSE(window->isVisible());
        EXPECT_THAT(savedFile(), HasSubstr(byKey ? "33" : "34"));
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
}

TEST_F(NumberFieldsTest, ATypedNumberIsEnteredInThePoolInWhichItWasTyped) {
    type("int", "33");
    poolSelector()->setCurrentIndex(1);
    EXPECT_EQ(held("int"), "40");
    EXPECT_EQ(field("int")->text(), QLatin1String("40"));
    EXPECT_EQ(valueInPool("all.int", 0), "33");
    QTest::keyClick(field("int"), Qt::Key_Tab);
    EXPECT_EQ(held("int"), "40");

    // A host switches pools through its pool source only.
    type("int", "44");
    window->pools().setPool(window->network()->pools().front());
    window->currentView()->panel()->showPool();
    EXPECT_EQ(valueInPool("all.int", 1), "44");
    EXPECT_EQ(held("int"), "33");
    EXPECT_EQ(field("int")->text(), QLatin1String("33"));
}

TEST_F(NumberFieldsTest, ATypedNumberIsEnteredWhenAnotherObjectIsShown) {
    type("int", "33");
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    EXPECT_EQ(held("int"), "33");
}

TEST_F(NumberFieldsTest, ATypedTextStaysWhileTheHostSetsProperties) {
    type("int", "33");
    parameter("all.int")->setProperty("comment", Kolt::makeValue(1), nullptr, nullptr, nullptr);
    set("all.int", "21");
    EXPECT_EQ(field("int")->text(), QLatin1String("33"));
    QTest::keyClick(field("int"), Qt::Key_Escape);
    EXPECT_EQ(field("int")->text(), QLatin1String("21"));
    EXPECT_TRUE(field("int")->hasFocus());
    EXPECT_EQ(held("int"), "21");
}

TEST_F(NumberFieldsTest, ReturnInAnUntouchedFieldIsNoStep) {
    set("all.double", "1e-12");
    field("double")->setFocus();
    QTest::keyClick(field("double"), Qt::Key_Return);
    EXPECT_EQ(held("double"), "1e-12");
    EXPECT_TRUE(steps().empty());
}

TEST_F(NumberFieldsTest, ARefusedTextSaysWhy) {
    struct Case {
        char const* name;
        char const* typed;
        char const* reason;
    };
    for (auto const& [name, typed, reason] :
         {Case{"double", "1.000,5", "without group separators"}, Case{"double", "1e99", "too large"},
          Case{"double", "-", "no number"}, Case{"int", "1.5", "whole number without separators"}}) {
        auto const before = held(name);
        type(name, typed);
        QTest::keyClick(field(name), Qt::Key_Return);
        EXPECT_EQ(field(name)->text(), QLatin1String(typed));
        ASSERT_FALSE(errors().empty());
        EXPECT_THAT(errors().back(), HasSubstr(std::string(name) + " does not take \"" + typed + '"'));
        EXPECT_THAT(errors().back(), HasSubstr(reason));
        EXPECT_EQ(window->statusBar()->currentMessage().toStdString(), errors().back());
        auto const count = errors().size();
        QTest::keyClick(field(name), Qt::Key_Tab);
        EXPECT_EQ(errors().size(), count + 1);
        EXPECT_EQ(held(name), before);
        EXPECT_NE(field(name)->text(), QLatin1String(typed));
    }
}

TEST_F(NumberFieldsTest, TheControlsOfAllRowsBeginAtOneEdgeAndNumbersAreEquallyHigh) {
    EXPECT_EQ(row("double")->editor()->sizeHint().height(), row("int")->editor()->sizeHint().height());
    EXPECT_EQ(field("double")->height(), field("int")->height());
    std::map<int, std::vector<std::string>> edges;
    for (char const* const name : {"bool", "int", "double", "selection", "multiselection"}) {
        int edge = window->width();
        for (auto* const control : row(name)->editor()->findChildren<QWidget*>())
            if (control->isVisible() && control->window() == window.get())
                edge = std::min(edge, control->mapTo(window.get(), QPoint()).x());
        edges[edge].emplace_back(name);
    }
    EXPECT_EQ(edges.size(), 1U) << testing::PrintToString(edges);
}

TEST_F(NumberFieldsTest, TheAccessibleDescriptionSaysThatANumberIsOutsideItsRange) {
    EXPECT_EQ(description(field("int")), "all.int, type int, in pool draft");
    set("all.int", "500");
    EXPECT_THAT(description(field("int")), HasSubstr("all.int, type int, in pool draft\n500\noutside 0 to 100"));
    QTest::keyClick(slider("int"), Qt::Key_Left);
    EXPECT_EQ(description(field("int")), "all.int, type int, in pool draft");
}

TEST_F(NumberFieldsTest, ADroppedTextIsOneStep) {
    dropText(*field("int"), QStringLiteral("7"));
    EXPECT_EQ(held("int"), "720");
    EXPECT_EQ(steps().size(), 1U);
    dropText(*field("entered"), QStringLiteral("x"));
    EXPECT_EQ(held("entered"), field("entered")->text().toStdString());
    EXPECT_EQ(held("entered"), "x2023");
    EXPECT_EQ(steps().size(), 2U);
    dropText(*field("line"), QStringLiteral("y"));
    EXPECT_EQ(held("line"), "yedge");
    EXPECT_EQ(steps().size(), 3U);
}
