// Presets in the window: saved, applied, removed, and what happens to files that cannot be used.

#include "PanelTest.hpp"

#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A shown panel with three pumps of one kind, the third one with other parameters, and two objects without a kind.
class PresetsTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("pumps.json", pumps), &error)) << qPrintable(error);
        window->show();
    }

    static constexpr char const* pumps = R"({
        "title": "Pumps",
        "pools": ["day", "night"],
        "objects": [
            { "name": "first", "kind": "pump", "parameters": [
                { "name": "on", "type": "bool", "value": false },
                { "name": "level", "type": "int", "value": 5, "values": { "day": 5, "night": 2 },
                  "properties": { "min": 0, "max": 100 } },
                { "name": "mode", "type": "selection", "entries": ["slow", "fast"], "value": "slow" },
                { "name": "locked", "type": "int", "value": 1,
                  "properties": { "readOnly": true, "min": 0, "max": 9 } }
            ] },
            { "name": "second", "kind": "pump", "parameters": [
                { "name": "on", "type": "bool", "value": true },
                { "name": "level", "type": "int", "value": 9, "values": { "day": 9, "night": 8 },
                  "properties": { "min": 0, "max": 100 } },
                { "name": "mode", "type": "selection", "entries": ["slow", "fast"], "value": "fast" },
                { "name": "locked", "type": "int", "value": 3,
                  "properties": { "readOnly": true, "min": 0, "max": 9 } }
            ] },
            { "name": "third", "kind": "pump", "parameters": [
                { "name": "on", "type": "bool", "value": true },
                { "name": "level", "type": "double", "value": 9, "properties": { "max": 10.0 } },
                { "name": "mode", "type": "selection", "entries": ["fast", "stopped"], "value": "fast" }
            ] },
            { "name": "a", "parameters": [ { "name": "on", "type": "bool", "value": true } ] },
            { "name": "b", "parameters": [ { "name": "on", "type": "bool", "value": false } ] }
        ]
    })";

    QString presetFile() const { return folder.filePath(QStringLiteral("pumps.json.presets")); }
    /// The menu as it is when it is shown for an object.
    QMenu* menuFor(char const* object) const {
        EXPECT_TRUE(window->showObject(QLatin1String(object)));
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("presets"));
        emit menu->aboutToShow();
        return menu;
    }
    /// The presets of an object by the names that they were given.
    std::vector<std::string> presetsOf(char const* object) const {
        std::vector<std::string> names;
        for (auto* const each : menuFor(object)->actions())
            if (!each->data().isNull())
                names.push_back(each->data().toString().toStdString());
        return names;
    }
    static QAction* preset(QMenu const* menu, QString const& name) {
        for (auto* const each : menu->actions())
            if (each->data() == QVariant(name))
                return each;
        return nullptr;
    }
    void apply(char const* object, QString const& name) const {
        auto* const found = preset(menuFor(object), name);
        ASSERT_TRUE(found) << qPrintable(name);
        found->trigger();
    }
    /// Calls `asking` and answers its dialogs: types the name, and clicks the button with this object name, if any.
    static void answer(QString const& name, char const* button, std::function<void()> const& asking) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* const dialog = QApplication::activeModalWidget();
            if (auto* const input = qobject_cast<QInputDialog*>(dialog)) {
                input->setTextValue(name);
                input->accept();
            } else if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
                auto* const wanted = box->findChild<QPushButton*>(QLatin1String(button));
                QTest::mouseClick(wanted ? wanted : box->button(QMessageBox::Cancel), Qt::LeftButton);
            }
        });
        timer.start(0);
        asking();
    }
    void save(char const* object, QString const& name, char const* button = "") const {
        auto* const menu = menuFor(object);
        answer(name, button, [menu] { menu->findChild<QAction*>(QStringLiteral("savePreset"))->trigger(); });
    }
    std::vector<std::string> valuesOf(std::string const& object) const {
        return {valueOf((object + ".on").c_str()), valueOf((object + ".level").c_str()),
                valueOf((object + ".mode").c_str())};
    }
    std::vector<std::string> errors() const {
        std::vector<std::string> all;
        for (auto const& each : window->messages()->texts(Panel::MessageList::Source::Error))
            all.push_back(each.toStdString());
        // Failures are shown in a dialog that does not wait.
        for (auto* const box : window->findChildren<QMessageBox*>())
            box->close();
        return all;
    }
    QByteArray bytes() const {
        QFile source(presetFile());
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(PresetsTest, WhatIsSavedIsAppliedToAnotherObjectOfTheKindAsOneStep) {
    auto const before = window->network()->values();
    save("first", QStringLiteral("quiet"));
    EXPECT_EQ(window->network()->values(), before);
    EXPECT_THAT(presetsOf("second"), ElementsAre("quiet"));
    apply("second", QStringLiteral("quiet"));
    EXPECT_THAT(valuesOf("second"), ElementsAre("false", "5", "slow"));
    EXPECT_EQ(valueOf("second.locked"), "3") << "what is read-only stays";
    ASSERT_THAT(window->history().steps(), SizeIs(1));
    window->undo();
    EXPECT_EQ(window->network()->values(), before);
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(PresetsTest, TheChosenPoolIsReadAndWritten) {
    window->choosePool(QStringLiteral("night"));
    save("first", QStringLiteral("low"));
    window->choosePool(QStringLiteral("day"));
    apply("second", QStringLiteral("low"));
    EXPECT_EQ(valueOf("second.level"), "2");
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(valueOf("second.level"), "8");
}

TEST_F(PresetsTest, ThePresetsOfOtherKindsAreNotOffered) {
    save("first", QStringLiteral("quiet"));
    save("a", QStringLiteral("mine"));
    EXPECT_THAT(presetsOf("first"), ElementsAre("quiet"));
    EXPECT_THAT(presetsOf("a"), ElementsAre("mine"));
    EXPECT_THAT(presetsOf("b"), IsEmpty()) << "an object without a kind has presets of its own";
}

TEST_F(PresetsTest, WhatDoesNotFitIsToldAndTheRestIsTaken) {
    save("first", QStringLiteral("quiet"));
    apply("third", QStringLiteral("quiet"));
    EXPECT_THAT(valuesOf("third"), ElementsAre("false", "9", "fast"));
    auto const told = errors();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_THAT(told.front(), HasSubstr("level: it is of another type"));
    EXPECT_THAT(told.front(), HasSubstr("mode: expected"));
}

TEST_F(PresetsTest, NamesHaveAnyCharacters) {
    QStringList const names{QStringLiteral("a & b"), QStringLiteral("../etc/passwd"), QStringLiteral("\"quoted\" \\"),
                            QStringLiteral("größer → 日本"), QStringLiteral("100%1 <b>")};
    for (auto const& name : names)
        save("first", name);
    EXPECT_THAT(presetsOf("second"), SizeIs(5));
    EXPECT_EQ(preset(menuFor("second"), names.first())->text(), QStringLiteral("a && b"));
    for (auto const& name : names) {
        set("second.level", "50");
        apply("second", name);
        EXPECT_EQ(valueOf("second.level"), "5") << qPrintable(name);
    }
    save("first", QStringLiteral("   "));
    EXPECT_THAT(presetsOf("second"), SizeIs(5));
    EXPECT_THAT(errors(), ElementsAre("A preset needs a name."));
}

TEST_F(PresetsTest, ANameThatIsTakenIsAskedAbout) {
    save("first", QStringLiteral("quiet"));
    auto const first = bytes();
    save("second", QStringLiteral("quiet"));
    EXPECT_EQ(bytes(), first) << "cancelled";
    save("second", QStringLiteral("quiet"), "replacePreset");
    EXPECT_THAT(presetsOf("first"), ElementsAre("quiet"));
    apply("first", QStringLiteral("quiet"));
    EXPECT_THAT(valuesOf("first"), ElementsAre("true", "9", "fast"));
}

TEST_F(PresetsTest, OneIsRemoved) {
    save("first", QStringLiteral("quiet"));
    save("first", QStringLiteral("loud"));
    auto* const removeMenu = menuFor("second")->findChild<QMenu*>(QStringLiteral("removePreset"));
    ASSERT_TRUE(removeMenu);
    preset(removeMenu, QStringLiteral("loud"))->trigger();
    EXPECT_THAT(presetsOf("first"), ElementsAre("quiet"));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(PresetsTest, ADamagedFileIsToldAndNeverWritten) {
    QFile file(presetFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{ \"presets\": [ { \"kind\": \"pump\", ");
    file.close();
    auto const before = bytes();
    auto* const menu = menuFor("first");
    auto const texts = [&] {
        std::vector<std::string> all;
        for (auto* const each : menu->actions())
            all.push_back(each->text().toStdString());
        return all;
    }();
    EXPECT_THAT(texts, Contains("The file with the presets cannot be read."));
    save("first", QStringLiteral("quiet"));
    EXPECT_EQ(bytes(), before);
    auto const told = errors();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_THAT(told.front(), HasSubstr("pumps.json.presets:1: "));
}

TEST_F(PresetsTest, ANetworkThatIsSavedElsewhereTakesItsPresetsAlong) {
    save("first", QStringLiteral("quiet"));
    auto const other = folder.filePath(QStringLiteral("other.json"));
    QString error;
    ASSERT_TRUE(window->saveValues(other, &error)) << qPrintable(error);
    EXPECT_THAT(presetsOf("second"), ElementsAre("quiet"));
    save("first", QStringLiteral("loud"));
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("pumps.json")), &error)) << qPrintable(error);
    EXPECT_THAT(presetsOf("second"), ElementsAre("quiet")) << "presets that are there stay";
}

TEST_F(PresetsTest, WithoutAFileNothingCanBeSaved) {
    window->showNetwork(Talo::Network::create(QStringLiteral("New"), {"day"}));
    window->network()->addObject("lamp", {});
    auto* const menu = window->findChild<QMenu*>(QStringLiteral("presets"));
    emit menu->aboutToShow();
    EXPECT_FALSE(menu->findChild<QAction*>(QStringLiteral("savePreset"))->isEnabled());
}
