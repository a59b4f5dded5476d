// The keys and the description of the program.

#include "PanelTest.hpp"

#include <panel/window/KeysDialog.hpp>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>

using testing::HasSubstr;
using testing::Not;

namespace {

class HelpMenuTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        window->show();
    }
    /// The dialog, which closes by itself with the window.
    template <typename Dialog>
    Dialog* opened(char const* command, char const* name) {
        action(command)->trigger();
        return window->findChild<Dialog*>(QLatin1String(name));
    }
};

} // namespace

TEST_F(HelpMenuTest, TheKeysAreThoseOfAllActions) {
    auto* const dialog = opened<Panel::KeysDialog>("showKeys", "keys");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
    auto const text = dialog->text();
    auto const lines = text.split(QLatin1Char('\n'));
    for (auto* const each : window->findChildren<QAction*>())
        for (auto const& key : each->shortcuts()) {
            auto const shown = key.toString(QKeySequence::NativeText);
            EXPECT_TRUE(
                std::any_of(lines.begin(), lines.end(),
                            [&](QString const& line) {
                                return line.section(QLatin1Char('\t'), 1).split(QLatin1String(", ")).contains(shown);
                            }))
                << qPrintable(each->text()) << qPrintable(shown);
        }
    EXPECT_THAT(text.toStdString(), HasSubstr("File\nOpen\tCtrl+O\n"));
    EXPECT_THAT(text.toStdString(), HasSubstr("\nUndo\tCtrl+Z"));
    EXPECT_THAT(text.toStdString(), HasSubstr("\nFind a parameter\tCtrl+F\n"));
    EXPECT_THAT(text.toStdString(), HasSubstr("\nNext or previous control\tTab, Shift+Tab\n"));
    EXPECT_THAT(text.toStdString(), Not(HasSubstr("&")));
    EXPECT_EQ(text.count(QStringLiteral("\tCtrl+F\n")), 1) << "each once";
    delete dialog;
}

TEST_F(HelpMenuTest, TheKeysAreThoseOfNow) {
    action("find")->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    auto* const dialog = opened<Panel::KeysDialog>("showKeys", "keys");
    EXPECT_THAT(dialog->text().toStdString(), HasSubstr("Find a parameter\tCtrl+G\n"));
    delete dialog;
}

TEST_F(HelpMenuTest, TheKeysAreCopiedAsText) {
    auto* const dialog = opened<Panel::KeysDialog>("showKeys", "keys");
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("copyKeys")), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), dialog->text());
    auto const* const table = dialog->findChild<QTableWidget*>();
    EXPECT_EQ(table->rowCount(),
              dialog->text().count(QLatin1Char('\n')) - dialog->text().count(QStringLiteral("\n\n")));
    QPointer<QDialog> const shown = dialog;
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return shown.isNull(); }));
}

TEST_F(HelpMenuTest, AboutSaysTheVersionTheLicenceAndQt) {
    auto* const about = opened<QMessageBox>("about", "aboutBox");
    ASSERT_TRUE(about);
    EXPECT_TRUE(about->isVisible());
    EXPECT_EQ(about->text().toStdString(), "Talo panel " TALO_VERSION);
    EXPECT_THAT(about->informativeText().toStdString(), HasSubstr("MIT licence"));
    EXPECT_THAT(about->informativeText().toStdString(), HasSubstr(std::string("Qt ") + qVersion()));
    delete about;
}
