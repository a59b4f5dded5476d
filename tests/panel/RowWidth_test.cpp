// Long texts never make a form wider than its view: they wrap, are shortened, or scroll within their row.

#include "PanelTest.hpp"

#include <parameters/rows/RowArea.hpp>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

namespace {

class RowWidthTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        auto const text = QString::fromUtf8(R"({ "pools": ["day"], "objects": [ { "name": "wide", "parameters": [
            { "name": "files", "type": "multiselection", "value": [], "entries": ["%1", "second", "third"] },
            { "name": "note", "type": "info", "value": "%1 %1 %1 %1 %1 %1 %1 %1" },
            { "name": "state", "type": "status", "value": "fine" },
            { "name": "one", "type": "selection", "value": "b", "entries": ["%1", "b"] },
            { "name": "kind", "type": "enum", "value": "b", "entries": ["%1", "b"] },
            { "name": "flags", "type": "flags", "value": { "%1": true, "b": false } },
            { "name": "picture", "type": "string", "value": "%1", "preferences": ["Save as"] },
            { "name": "AnExtraordinarilyLongNameOfAParameterThatIsWiderThanHalfOfAWindow", "type": "int", "value": 3 },
            { "name": "last", "type": "bool", "value": true } ] } ] })")
                              .arg(QStringLiteral("a text that goes on and on until it is wider than any window ")
                                       .repeated(4)
                                       .trimmed());
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("wide.json", text.toUtf8().constData()), &error))
            << qPrintable(error);
        window->resize(640, 480);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QCoreApplication::processEvents();
        takeOutput();
    }
    void TearDown() override {
        window.reset();
        takeOutput();
        PanelTest::TearDown();
    }

    Talo::RowArea* area() const { return window->currentView()->panel()->rowArea(); }
    Talo::ParameterRow* row(char const* name) const { return area()->row(QString::fromUtf8(name)); }
    /// Everything of the form is in the view, or can be scrolled into it within its row.
    void expectNothingOutOfReach() {
        EXPECT_EQ(window->width(), 640);
        EXPECT_EQ(area()->horizontalScrollBar()->maximum(), 0);
        auto const object = window->currentView()->object();
        for (auto const& parameter : object->parameters()) {
            SCOPED_TRACE(parameter->Name());
            auto* const shown = row(parameter->Name().c_str());
            area()->ensureWidgetVisible(shown);
            QCoreApplication::processEvents();
            auto const right = [&](QWidget const* part) {
                return part->mapTo(area()->viewport(), QPoint(part->width(), 0)).x();
            };
            EXPECT_LE(right(shown), area()->viewport()->width());
            auto const* const editor = shown->editor();
            auto const* scroller = editor->parentWidget();
            while (scroller != shown && !qobject_cast<QScrollArea const*>(scroller))
                scroller = scroller->parentWidget();
            if (scroller == shown) {
                EXPECT_LE(right(editor), right(shown));
                for (auto const* const part : editor->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
                    // A display may take a while until a row that comes into sight is laid out.
                    EXPECT_TRUE(waitUntil([&] { return !part->isVisible() || right(part) <= right(shown); }, 5000))
                        << part->metaObject()->className() << right(part) << " > " << right(shown);
                }
            } else {
                EXPECT_LE(right(scroller), right(shown));
                auto const* const bar = qobject_cast<QScrollArea const*>(scroller)->horizontalScrollBar();
                EXPECT_GE(scroller->width() + bar->maximum(), editor->width());
                EXPECT_TRUE(bar->maximum() == 0 || bar->isVisible());
            }
        }
    }
};

} // namespace

TEST_F(RowWidthTest, LongTextsLeaveNothingOutOfReach) {
    expectNothingOutOfReach();
}

TEST_F(RowWidthTest, AListThatIsFilledAgainStaysInTheView) {
    auto const* const list = row("files")->editor()->findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    set("wide.files", "third");
    EXPECT_TRUE(waitUntil([&] { return list->selectedItems().size() == 1; }));
    QCoreApplication::processEvents();
    expectNothingOutOfReach();
    area()->ensureWidgetVisible(row("files"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(valueOf("wide.files"), "second\nthird");
    window->history().undo();
    EXPECT_EQ(valueOf("wide.files"), "third");
    QCoreApplication::processEvents();
    expectNothingOutOfReach();
    EXPECT_FALSE(takeOutput().empty());
}

TEST_F(RowWidthTest, ALateTextWraps) {
    auto const* const label = qobject_cast<QLabel*>(row("state")->editor());
    ASSERT_NE(label, nullptr);
    int const before = row("state")->height();
    set("wide.state",
        "a text that comes late and is far too long for one line of a form, so that it needs some lines, "
        "however wide the window is and whatever else stands in it, which this text makes sure of by going on and on");
    EXPECT_TRUE(waitUntil([&] { return row("state")->height() > before; }));
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    EXPECT_GT(label->height(), 2 * label->fontMetrics().height());
    expectNothingOutOfReach();
}

TEST_F(RowWidthTest, ANameThatIsShortenedIsWholeInItsToolTipAndInAWideView) {
    auto const name = QStringLiteral("AnExtraordinarilyLongNameOfAParameterThatIsWiderThanHalfOfAWindow");
    auto const* const shown = area()->row(name);
    EXPECT_NE(shown->nameLabel()->text(), name);
    EXPECT_TRUE(shown->nameLabel()->text().contains(QChar(0x2026)));
    EXPECT_TRUE(shown->toolTipText().contains(name));
    window->resize(2000, 480);
    EXPECT_TRUE(waitUntil([&] { return shown->nameLabel()->text() == name; }));
}
