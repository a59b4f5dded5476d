// Colours and sizes of texts that change while the panel runs.

#include "PanelTest.hpp"

#include <algorithm>
#include <cmath>
#include <panel/look/Look.hpp>
#include <panel/window/Session.hpp>
#include <parameters/commands/HistoryView.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <QDockWidget>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>

using Panel::Theme;
using testing::IsEmpty;

namespace {

double luminance(QColor const& colour) {
    auto const linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(QColor const& one, QColor const& other) {
    auto const [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The contrast of what is drawn in a part of a picture with its ground, which is the most frequent colour.
double contrastIn(QImage const& picture, QRect const& part) {
    QHash<QRgb, int> counts;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb ground = 0;
    for (auto each = counts.begin(); each != counts.end(); ++each)
        if (each.value() > counts.value(ground))
            ground = each.key();
    double strongest = 1;
    for (auto each = counts.begin(); each != counts.end(); ++each)
        strongest = std::max(strongest, contrast(QColor(each.key()), QColor(ground)));
    return strongest;
}

/// A shown panel with notes, units, sections, a long text, a link, messages and a history.
class RunTimeLookTest : public PanelTest {
protected:
    void SetUp() override {
        system = QApplication::palette();
        Panel::applyLook(Theme::Light);
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("pump.json", pump), &error)) << qPrintable(error);
        fill();
        show(*window);
    }
    void TearDown() override {
        Panel::setTextSize(0);
        Panel::setTheme(Theme::System);
        PanelTest::TearDown();
    }

    /// The colours before any were chosen.
    QPalette system;

    static constexpr char const* pump = R"json({
        "title": "Pump", "pools": ["day", "night"],
        "objects": [ { "name": "pump", "kind": "moves water", "parameters": [
            { "name": "on", "type": "bool", "value": true },
            { "name": "speed", "type": "int", "value": 5,
              "properties": { "min": 0, "max": 9, "unit": "rpm", "help": "How fast.", "label": "Speed of the motor" } },
            { "name": "ratio", "type": "double", "value": 0.5, "values": { "night": 0.25 } },
            { "name": "Housing.mode", "type": "selection", "entries": ["slow", "fast"], "value": "slow" },
            { "name": "Housing.colour", "type": "colour", "value": [0, 0.2, 0.4, 1] },
            { "name": "Housing.glass", "type": "colour", "value": [1, 1, 1, 0.1] },
            { "name": "Housing.kind", "type": "enum", "entries": ["Red", "Green"], "value": "Red" },
            { "name": "Housing.flags", "type": "flags", "value": { "bold": true, "wide": false } },
            { "name": "Housing.locked", "type": "string", "preferences": ["OneLine"], "value": "text",
              "properties": { "readOnly": true } },
            { "name": "said", "type": "info", "value": "See <a href='x'>there</a>, please." }
        ] } ] })json";

    static void show(Panel::MainWindow& shown) {
        shown.resize(900, 900);
        shown.show();
        shown.setFocus();
    }
    /// Brings the window into the state that the tests look at.
    void fill() { window->findChild<QDockWidget*>(QStringLiteral("messages"))->hide(); }
    void settle() const {
        for (int round = 0; round < 4; ++round) {
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
    }
    QImage picture() const {
        settle();
        return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    void choose(char const* name) {
        action(name)->trigger();
        // Qt 6 tells the widgets of it by an event.
        QCoreApplication::processEvents();
    }
    /// How the window looks when it is made anew under the colours and the size of now.
    QImage pictureOfNewWindow() {
        auto const file = window->network()->file();
        window = std::make_unique<Panel::MainWindow>(plugins);
        EXPECT_TRUE(window->openNetwork(file));
        fill();
        show(*window);
        return picture();
    }
    /// Where two pictures differ; null where they are equal.
    static QRect difference(QImage const& one, QImage const& other) {
        if (one.size() != other.size())
            return other.rect();
        QRect differs;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x)
                if (one.pixel(x, y) != other.pixel(x, y))
                    differs |= QRect(x, y, 1, 1);
        return differs;
    }
    /// The texts of labels that cannot be read in the window as it is drawn now.
    std::vector<std::string> unreadable() const {
        auto const whole = picture();
        std::vector<std::string> texts;
        for (auto* const label : window->findChildren<QLabel*>()) {
            QRect const seen = label->visibleRegion().boundingRect();
            // A swatch has the colour of its value; what cannot be read on it is beside it.
            if (label->text().trimmed().isEmpty() || seen.height() < label->fontMetrics().height() ||
                label->inherits("QColorLabel") || label->autoFillBackground() || !label->isEnabled())
                continue;
            QRect const part(label->mapTo(window.get(), seen.topLeft()), seen.size());
            if (contrastIn(whole, part) < 4.5)
                texts.push_back(label->text().toStdString());
        }
        return texts;
    }
};

} // namespace

TEST_F(RunTimeLookTest, TheMenuChangesTheColoursOfTheWindow) {
    EXPECT_TRUE(action("lightTheme")->isChecked());
    auto const light = window->palette().color(QPalette::Window);
    choose("darkTheme");
    EXPECT_TRUE(action("darkTheme")->isChecked());
    EXPECT_FALSE(action("lightTheme")->isChecked());
    EXPECT_LT(window->palette().color(QPalette::Window).lightness(), 100);
    choose("lightTheme");
    EXPECT_EQ(window->palette().color(QPalette::Window), light);
    choose("systemTheme");
    EXPECT_TRUE(action("systemTheme")->isChecked());
    for (auto const role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Highlight})
        EXPECT_EQ(window->palette().color(role), system.color(role)) << role;
}

TEST_F(RunTimeLookTest, AllTextsCanBeReadAfterTheColoursChanged) {
    window->setRawValuesShown(true);
    EXPECT_THAT(unreadable(), IsEmpty());
    for (auto const* const each : {"darkTheme", "lightTheme", "darkTheme", "systemTheme"}) {
        choose(each);
        EXPECT_THAT(unreadable(), IsEmpty()) << each;
    }
}

TEST_F(RunTimeLookTest, TheWindowLooksAsOneThatWasMadeInTheseColours) {
    picture();
    choose("darkTheme");
    auto const changed = picture();
    EXPECT_EQ(difference(changed, pictureOfNewWindow()), QRect());
}

TEST_F(RunTimeLookTest, TheWindowLooksAsOneThatWasMadeInThisSize) {
    auto const usual = picture();
    for (int step = 0; step < 4; ++step)
        choose("largerText");
    auto const larger = picture();
    EXPECT_NE(difference(larger, usual), QRect());
    choose("usualText");
    EXPECT_EQ(difference(picture(), usual), QRect()) << "and back";
    Panel::setTextSize(4);
    EXPECT_EQ(difference(larger, pictureOfNewWindow()), QRect());
}

TEST_F(RunTimeLookTest, TheSizeHasBoundsAndKeys) {
    // Some platforms give the font in pixels.
    auto const size = [this] {
        QCoreApplication::processEvents();
        return QFontInfo(window->font()).pointSizeF();
    };
    double const usual = size();
    EXPECT_FALSE(action("usualText")->isEnabled());
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    double const larger = size();
    EXPECT_GT(larger, usual);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(size(), usual);
    for (int step = 0; step < 20; ++step)
        choose("smallerText");
    EXPECT_FALSE(action("smallerText")->isEnabled());
    EXPECT_EQ(Panel::textSize(), Panel::SmallestText);
    EXPECT_LT(size(), usual);
    EXPECT_GT(size(), usual / 2);
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), usual);
    for (int step = 0; step < 20; ++step)
        choose("largerText");
    EXPECT_FALSE(action("largerText")->isEnabled());
    EXPECT_NEAR(size(), 2 * usual, 0.1 * usual);
}

TEST_F(RunTimeLookTest, MessagesAndTheHistoryFollow) {
    window->findChild<QDockWidget*>(QStringLiteral("messages"))->show();
    auto* const messages = window->messages();
    messages->add(Panel::MessageList::Source::Warning, QStringLiteral("Careful."));
    action("showHistory")->trigger();
    auto* const history = window->findChild<Talo::HistoryView*>();
    box("on")->click();
    window->undo();
    settle();
    int const width = messages->header()->sectionSize(0);
    choose("darkTheme");
    choose("largerText");
    settle();
    for (int row = 0; row < messages->topLevelItemCount(); ++row) {
        auto const* const item = messages->topLevelItem(row);
        EXPECT_GE(contrast(item->foreground(0).color(), messages->palette().color(QPalette::Base)), 4.5);
        EXPECT_GE(contrast(item->foreground(0).color(), messages->palette().color(QPalette::AlternateBase)), 4.5);
    }
    auto const* const warning = messages->topLevelItem(messages->topLevelItemCount() - 1);
    EXPECT_EQ(warning->font(1).pointSizeF(), messages->font().pointSizeF());
    EXPECT_GT(messages->header()->sectionSize(0), width);
    ASSERT_EQ(history->count(), 2);
    EXPECT_GE(contrast(history->item(1)->foreground().color(), history->palette().color(QPalette::Base)), 4.5);
    EXPECT_EQ(history->item(1)->font().pointSizeF(), history->font().pointSizeF());
}

TEST_F(RunTimeLookTest, TheSessionRemembersColoursAndSize) {
    auto const settings = folder.filePath(QStringLiteral("panel.ini"));
    {
        Panel::Session session(settings);
        session.follow(*window);
        choose("darkTheme");
        choose("largerText");
        choose("largerText");
        ASSERT_TRUE(window->close());
    }
    Panel::setTextSize(0);
    Panel::setTheme(Theme::Light);
    window = std::make_unique<Panel::MainWindow>(plugins);
    ASSERT_TRUE(window->openNetwork(folder.filePath(QStringLiteral("pump.json"))));
    Panel::Session session(settings);
    session.follow(*window);
    EXPECT_EQ(Panel::theme(), Theme::Dark);
    EXPECT_EQ(Panel::textSize(), 2);
    EXPECT_TRUE(action("darkTheme")->isChecked());
    QSettings(settings, QSettings::IniFormat).setValue(QStringLiteral("window/look"), QStringLiteral("no such look"));
    QSettings(settings, QSettings::IniFormat).setValue(QStringLiteral("window/textSize"), 4000);
    Panel::Session damaged(settings);
    damaged.follow(*window);
    EXPECT_EQ(Panel::theme(), Theme::Dark);
    EXPECT_EQ(Panel::textSize(), Panel::LargestText);
}
