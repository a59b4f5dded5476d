#pragma once

#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <algorithm>
#include <lattice/ActionNotifier.hpp>
#include <lattice/UndoHistory.hpp>
#include <panel/window/MainWindow.hpp>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolButton>

/// A panel with the built plug-in file and a network of two lamps.
class PanelTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        QString error;
        ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
        window = std::make_unique<Panel::MainWindow>(plugins);
        ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps), &error)) << qPrintable(error);
    }

    void TearDown() override {
        waitForFading();
        window.reset();
        QString error;
        EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
        TaloTest::TearDown();
    }

    /// Qt leaks the animation of the filter's clear button if the button is destroyed before the animation has ended.
    void waitForFading() const {
        auto const* const filter = window ? window->findChild<QLineEdit*>(QStringLiteral("filter")) : nullptr;
        auto const* const button = filter ? filter->findChild<QToolButton*>() : nullptr;
        double const opacity = filter && !filter->text().isEmpty() ? 1 : 0;
        EXPECT_TRUE(!button || waitUntil([&] { return button->property("opacity").toDouble() == opacity; }));
    }

    static constexpr char const* lamps = R"({
        "title": "Two lamps",
        "pools": ["day", "night"],
        "objects": [
            { "name": "lamp", "kind": "light source", "parameters": [
                { "name": "on", "type": "bool", "value": false, "values": { "night": true } },
                { "name": "steady", "type": "bool", "value": true },
                { "name": "housing.painted", "type": "bool", "value": false, "perPool": true }
            ] },
            { "name": "second lamp", "parameters": [
                { "name": "on", "type": "bool", "value": true },
                { "name": "start", "type": "action", "value": "Start" },
                { "name": "level", "type": "int", "value": 9, "values": { "day": 5, "night": 2 } }
            ] }
        ]
    })";

    QString networkFile(QString const& name, char const* text) const {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
            ADD_FAILURE() << "cannot write " << qPrintable(file.fileName());
        return file.fileName();
    }

    /// Opens a network in place of the one that is open.
    void open(char const* text) const {
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("opened.json", text), &error)) << qPrintable(error);
    }

    Kolt::ParameterPtr parameter(char const* name) const {
        return window->network()->findParameter(QString::fromUtf8(name));
    }
    /// The value of a parameter in the chosen pool, as text.
    std::string valueOf(char const* name) const {
        auto const found = parameter(name);
        return found->effectiveValue(window->pools().pool())->Text();
    }
    static QCheckBox* box(Panel::ObjectView const* view, char const* name) {
        auto const* const row = view ? view->row(QString::fromUtf8(name)) : nullptr;
        return row && row->editor() ? row->editor()->findChild<QCheckBox*>() : nullptr;
    }
    QCheckBox* box(char const* name) const { return box(window->currentView(), name); }
    QAction* action(char const* name) const { return window->findChild<QAction*>(QString::fromUtf8(name)); }
    /// The menu that has an action.
    QMenu* menuWith(char const* name) const {
        auto const menus = window->findChildren<QMenu*>();
        auto const found = std::find_if(menus.begin(), menus.end(), [action = action(name)](auto const* menu) {
            return menu->actions().contains(action);
        });
        return found == menus.end() ? nullptr : *found;
    }
    /// Sets a value as the host would, in the chosen pool.
    void set(char const* name, char const* text) {
        QString error;
        EXPECT_TRUE(window->network()->setText(QString::fromUtf8(name), QString::fromUtf8(text), window->pools().pool(),
                                               &error))
            << qPrintable(error);
    }

    QTemporaryDir folder;
    Panel::Plugins plugins;
    std::unique_ptr<Panel::MainWindow> window;
};
