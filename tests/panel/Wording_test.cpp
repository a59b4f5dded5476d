// What the panel says, and how large its rows are for large texts.

#include "EditingTest.hpp"

#include <panel/gallery/Gallery.hpp>
#include <parameters/commands/HistoryView.hpp>
#include <QAccessible>
#include <QLCDNumber>

using testing::HasSubstr;

namespace {

class WordingTest : public EditingTest {
protected:
    static std::string accessibleName(QWidget* widget) {
        auto const* const interface = QAccessible::queryAccessibleInterface(widget);
        return interface ? interface->text(QAccessible::Name).toStdString() : std::string();
    }
};

} // namespace

TEST_F(WordingTest, TheTitleNamesTheFileBesideTheNetwork) {
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("Values[*]"));
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("values.json"));
}

TEST_F(WordingTest, AColourIsAColourInTheHistory) {
    window->history().beginMacro();
    auto const colour = Kolt::makeValue(Ferro::rgba_float_t{1.0F, 0.4F, 0.0F, 0.5F});
    EXPECT_TRUE(window->history().store(parameter("all.colour"), window->pools().pool(), {colour, false}));
    window->history().endMacro();
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("#003366"));
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("#ff6600, alpha 0.50"));
}

TEST_F(WordingTest, ARawValueSaysInWhichPoolItIsNotSet) {
    window->setRawValuesShown(true);
    window->choosePool(QStringLiteral("final"));
    auto* const raw = row("int")->rawValue();
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("not set in pool final"));
    window->choosePool(QStringLiteral("draft"));
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("pool draft"));
    EXPECT_THAT(raw->stamp().toStdString(), testing::Not(HasSubstr("not set")));
}

TEST_F(WordingTest, RawValuesAreNamedForScreenReaders) {
    window->setRawValuesShown(true);
    EXPECT_EQ(accessibleName(row("int")->rawValue()), "Raw value of int");
    EXPECT_EQ(row("int")->rawValue()->accessibleDescription(), QStringLiteral("20"));
}

TEST_F(WordingTest, TheRowsOfTheObjectsAreAsHighAsLargeTextsNeed) {
    auto* const list = window->objectList();
    auto const rowHeight = [&] { return list->visualRect(list->objects()->index(0, 0)).height(); };
    int const before = rowHeight();
    auto large = list->font();
    large.setPixelSize(3 * QFontInfo(large).pixelSize());
    list->setFont(large);
    EXPECT_TRUE(waitUntil([&] { return rowHeight() >= QFontMetrics(large).height(); }));
    EXPECT_GT(rowHeight(), before);
}

TEST_F(WordingTest, TheGalleryNamesItsValuesAndCounters) {
    Panel::Gallery gallery;
    auto const* const page = gallery.showState(Panel::GalleryState::Normal);
    for (auto const* const row : page->rows()) {
        EXPECT_THAT(accessibleName(row->rawValue()), HasSubstr("Raw value of "));
        EXPECT_THAT(accessibleName(row->counter()), HasSubstr("Notifications of "));
    }
}
