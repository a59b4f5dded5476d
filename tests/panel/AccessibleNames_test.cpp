// Names for screen readers of what is not a row: the parts of the window, of the gallery, and the columns of tables.

#include "PanelTest.hpp"

#include <panel/gallery/Gallery.hpp>
#include <QAbstractItemView>
#include <QAccessible>
#include <QDockWidget>

using testing::IsEmpty;

namespace {

class AccessibleNamesTest : public PanelTest {
protected:
    static QString name(QObject* object) {
        auto* const interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(QAccessible::Name) : QString();
    }

    /// The widgets that take the focus and have no name.
    static std::vector<std::string> unnamed(QWidget const& window) {
        std::vector<std::string> all;
        auto const widgets = window.findChildren<QWidget*>();
        for (auto* const widget : widgets)
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() &&
                name(widget).isEmpty())
                all.push_back(widget->metaObject()->className() + (' ' + widget->objectName().toStdString()));
        return all;
    }

    /// The columns that are shown without a name, by their views.
    static std::vector<std::string> unnamedColumns(QWidget const& window) {
        std::vector<std::string> all;
        auto const views = window.findChildren<QAbstractItemView*>();
        for (auto* const view : views) {
            // A list has one column, which has the list's name.
            if (!view->model() || view->model()->columnCount() < 2)
                continue;
            for (int column = 0; column < view->model()->columnCount(); ++column)
                if (view->model()->headerData(column, Qt::Horizontal).toString().isEmpty())
                    all.push_back(view->objectName().toStdString() + ' ' + std::to_string(column));
        }
        return all;
    }
};

} // namespace

TEST_F(AccessibleNamesTest, EachPartOfTheWindowHasOne) {
    window->show();
    for (auto* const dock : window->findChildren<QDockWidget*>())
        dock->show();
    window->addView();
    window->setRawValuesShown(true);
    QCoreApplication::processEvents();
    EXPECT_THAT(unnamed(*window), IsEmpty());
    EXPECT_THAT(unnamedColumns(*window), IsEmpty());
}

TEST_F(AccessibleNamesTest, EachPartOfTheGalleryHasOne) {
    Panel::Gallery gallery;
    gallery.show();
    for (auto const state : Panel::galleryStates()) {
        gallery.showState(state);
        QCoreApplication::processEvents();
        EXPECT_THAT(unnamed(gallery), IsEmpty());
    }
    EXPECT_THAT(unnamedColumns(gallery), IsEmpty());
    takeOutput();
}

TEST_F(AccessibleNamesTest, ARowOfTheObjectListSaysWhatTheFilterFound) {
    window->show();
    window->setFilter(QStringLiteral("on"));
    auto* const list = QAccessible::queryAccessibleInterface(window->objectList());
    ASSERT_NE(list, nullptr);
    ASSERT_NE(list->tableInterface(), nullptr);
    auto* const cell = list->tableInterface()->cellAt(0, Panel::ObjectModel::Found);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("1 parameter found"));
    EXPECT_EQ(list->tableInterface()->columnDescription(Panel::ObjectModel::Found), QStringLiteral("Parameters found"));
}
