#include "HistoryTest.hpp"

#include "support/FileDialogs.hpp"
#include "support/SliderDrag.hpp"

#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>

using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// The test parameter is the name of a parameter, "/" and the way to edit it.
class HistoryOfType : public HistoryTest, public testing::WithParamInterface<char const*> {
protected:
    std::string name() const { return std::string(GetParam()).substr(0, std::string(GetParam()).find('/')); }

    void edit() {
        std::string const way = GetParam();
        if (!editsNumber(way) && !editsText(way) && !editsChoice(way))
            FAIL() << "nobody knows how to edit " << way;
    }

    /// The texts and states that an editor shows.
    static QStringList shownBy(QWidget& editor) {
        QStringList shown;
        auto parts = editor.findChildren<QWidget*>();
        parts.prepend(&editor);
        for (auto* const part : std::as_const(parts)) {
            // Skip dialogs and the tools of a list.
            if (part->window() != editor.window())
                continue;
            if (auto* const view = qobject_cast<QListWidget*>(part)) {
                for (auto* const item : view->selectedItems())
                    shown << item->text();
                return shown;
            }
            if (auto* const lines = qobject_cast<QTextEdit*>(part))
                return {lines->toPlainText()};
            if (auto* const line = qobject_cast<QLineEdit*>(part); line && !editor.findChild<QListWidget*>())
                shown << line->text();
            if (auto* const button = qobject_cast<QAbstractButton*>(part); button && !editor.findChild<QListWidget*>())
                shown << button->text() + QLatin1String(button->isChecked() ? "+" : "-");
            if (auto* const handle = qobject_cast<QAbstractSlider*>(part))
                shown << QString::number(handle->value());
            if (auto* const box = qobject_cast<QComboBox*>(part))
                shown << box->currentText();
            if (part == &editor && qobject_cast<QLabel*>(part))
                shown << part->palette().color(QPalette::Window).name();
        }
        return shown;
    }

private:
    // Each makes one edit in the named way, and returns false if it does not know the name.
    bool editsNumber(std::string const& way) {
        if (way == "int/drag")
            dragHandle(slider("int"), {30, 30, -10});
        else if (way == "int/keys")
            QTest::keyClick(slider("int"), Qt::Key_Right);
        else if (way == "int/text")
            enter(field("int"), "77");
        else if (way == "int/text beyond the range")
            enter(field("int"), "777");
        else if (way == "double/keys")
            QTest::keyClick(slider("double"), Qt::Key_Right);
        else if (way == "double/drag")
            dragHandle(slider("double"), {30, 30, -10});
        else if (way == "double/text")
            enter(field("double"), "0.25");
        else
            return false;
        return true;
    }
    bool editsText(std::string const& way) {
        if (way == "multiselection/wildcard")
            enter(field("multiselection"), "[ac]");
        else if (way == "line/text" || way == "array/text" || way == "entered/text")
            enter(field(name().c_str()), "word");
        else if (way == "lines/text")
            writeLines();
        else if (way == "file/dialog")
            chooseFile();
        else
            return false;
        return true;
    }
    bool editsChoice(std::string const& way) {
        if (way == "bool/click")
            click(control<QCheckBox>("bool"));
        else if (way == "colour/dialog")
            pickColour();
        else if (way == "enum/click")
            click(choice("Blue"));
        else if (way == "flags/click")
            click(control<QCheckBox>("flags"));
        else if (way == "selection/keys")
            QTest::keyClick(control<QComboBox>("selection"), Qt::Key_Down);
        else if (way == "multiselection/button")
            QTest::mouseClick(control<QPushButton>("multiselection"), Qt::LeftButton);
        else
            return false;
        return true;
    }
    static void enter(QLineEdit* field, char const* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
    void pickColour() {
        auto* const swatch = row("colour")->editor();
        QTest::mouseClick(swatch, Qt::LeftButton);
        auto* const dialog = swatch->findChild<QColorDialog*>();
        ASSERT_NE(dialog, nullptr);
        auto* const channel = dialog->findChild<QSpinBox*>();
        ASSERT_NE(channel, nullptr);
        QTest::keyClick(channel, Qt::Key_Up);
        dialog->hide();
    }
    void writeLines() {
        auto* const lines = control<QTextEdit>("lines");
        lines->setFocus();
        QTest::keyClicks(lines, QStringLiteral("word"));
        field("line")->setFocus();
    }
    void chooseFile() {
        auto const chosen = networkFile("chosen.txt", "x");
        auto* const button = control<QPushButton>("file");
        ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                                   [&](QFileDialog& dialog) { enterFileName(dialog, chosen); }));
    }
};

} // namespace

TEST_P(HistoryOfType, AnEditIsOneStepThatCanBeUndoneAndRedone) {
    edit();
    auto const edited = valuesNow();
    EXPECT_NE(edited, text);
    EXPECT_THAT(steps(), SizeIs(1));
    undo();
    EXPECT_EQ(valuesNow(), text) << valuesNow().toStdString();
    EXPECT_THAT(steps(), IsEmpty());
    redo();
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_THAT(steps(), SizeIs(1));
    undo();
    EXPECT_EQ(valuesNow(), text);
    EXPECT_TRUE(window->messages()->texts(Panel::MessageList::Source::Error).isEmpty());
}

TEST_P(HistoryOfType, EveryViewShowsTheValueAfterUndoAndRedo) {
    auto* const second = window->addView();
    auto const parameter = QString::fromStdString(name());
    edit();
    auto const agree = [&] {
        auto const first = shownBy(*window->currentView()->row(parameter)->editor());
        auto const other = shownBy(*second->row(parameter)->editor());
        EXPECT_FALSE(first.isEmpty());
        EXPECT_EQ(first.join(QLatin1Char('|')).toStdString(), other.join(QLatin1Char('|')).toStdString());
        return first;
    };
    undo();
    auto const before = agree();
    redo();
    auto const after = agree();
    EXPECT_NE(before, after);
    undo();
    EXPECT_EQ(agree(), before);
}

TEST_P(HistoryOfType, AnEditInAPoolIsUndoneWhicheverPoolIsChosen) {
    auto json = QByteArray(values).replace("\"type\": ", "\"perPool\": true, \"type\": ");
    QString error;
    ASSERT_TRUE(window->openNetwork(networkFile("pools.json", json.constData()), &error)) << qPrintable(error);
    auto const before = valuesNow();
    auto const ownBefore = parameter(("all." + name()).c_str())->ownValue()->Text();
    edit();
    auto const afterDraft = valuesNow();
    ASSERT_NE(afterDraft, before);
    window->choosePool(QStringLiteral("final"));
    EXPECT_EQ(valuesNow(), afterDraft);
    edit();
    auto const afterBoth = valuesNow();
    EXPECT_NE(afterBoth, afterDraft);
    EXPECT_EQ(parameter(("all." + name()).c_str())->ownValue()->Text(), ownBefore);
    EXPECT_THAT(steps(), SizeIs(2));
    window->choosePool(QStringLiteral("draft"));
    undo();
    EXPECT_EQ(valuesNow(), afterDraft);
    window->choosePool(QStringLiteral("final"));
    undo();
    EXPECT_EQ(valuesNow(), before) << valuesNow().toStdString();
    redo();
    redo();
    EXPECT_EQ(valuesNow(), afterBoth);
    undo();
    undo();
    EXPECT_EQ(valuesNow(), before);
    EXPECT_FALSE(window->network()->isModified());
}

INSTANTIATE_TEST_SUITE_P(EveryType, HistoryOfType,
                         testing::Values("bool/click", "int/drag", "int/keys", "int/text", "int/text beyond the range",
                                         "double/keys", "double/drag", "double/text", "colour/dialog", "enum/click",
                                         "flags/click", "selection/keys", "multiselection/button",
                                         "multiselection/wildcard", "line/text", "array/text", "entered/text",
                                         "lines/text", "file/dialog"),
                         [](auto const& way) {
                             std::string name;
                             for (char const letter : std::string(way.param))
                                 name += std::isalpha(static_cast<unsigned char>(letter)) ? letter : '_';
                             return name;
                         });
