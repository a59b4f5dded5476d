// Sizes follow the font of the window, also while it is shown.

#include "PanelTest.hpp"

#include <panel/gallery/Gallery.hpp>
#include <QHeaderView>
#include <QLabel>

namespace {

class FontSizeTest : public PanelTest {
protected:
    void TearDown() override {
        QApplication::setFont(usual);
        PanelTest::TearDown();
    }
    void enlarge() const {
        auto large = usual;
        large.setPixelSize(2 * QFontInfo(usual).pixelSize());
        QApplication::setFont(large);
    }

    QFont const usual = QApplication::font();
};

} // namespace

TEST_F(FontSizeTest, TheListOfObjectsKeepsRoomForNames) {
    window->show();
    auto const* const column = window->objectList()->parentWidget();
    int const before = column->minimumWidth();
    enlarge();
    EXPECT_TRUE(waitUntil([&] { return column->minimumWidth() >= 2 * before - 20; })) << column->minimumWidth();
}

TEST_F(FontSizeTest, TheColumnsOfTheMessagesFitTheirTexts) {
    window->show();
    enlarge();
    auto const fits = [&](int column, QString const& text) {
        auto const* const list = window->messages();
        return list->header()->sectionSize(column) > QFontMetrics(list->font()).horizontalAdvance(text);
    };
    EXPECT_TRUE(waitUntil([&] { return window->messages()->font() == QApplication::font(); }));
    EXPECT_TRUE(waitUntil([&] { return fits(0, QStringLiteral("00:00:00")) && fits(1, QStringLiteral("warning")); }));
}

TEST_F(FontSizeTest, TheFilterHasRoomForItsExplanation) {
    auto const* const field = window->findChild<QLineEdit*>(QStringLiteral("filter"));
    window->show();
    enlarge();
    EXPECT_TRUE(waitUntil(
        [&] { return field->maximumWidth() > field->fontMetrics().horizontalAdvance(field->placeholderText()); }));
    EXPECT_TRUE(waitUntil([&] { return field->font().pixelSize() == 2 * QFontInfo(usual).pixelSize(); }));
}

TEST_F(FontSizeTest, TheColumnsOfTheGalleryFitTheirTitles) {
    Panel::Gallery gallery;
    gallery.show();
    auto const* const page = gallery.showState(Panel::GalleryState::Normal);
    enlarge();
    auto const fits = [&] {
        for (auto const* const label : page->findChildren<QLabel*>())
            if (label->text() == QStringLiteral("Notifications"))
                return label->font() == QApplication::font() && label->width() >= label->sizeHint().width();
        return false;
    };
    EXPECT_TRUE(waitUntil(fits));
    takeOutput();
}
