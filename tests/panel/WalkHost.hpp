#pragma once

#include "WalkDice.hpp"

#include <functional>
#include <map>
#include <memory>
#include <panel/Translations.hpp>
#include <panel/window/MainWindow.hpp>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <vector>

/// What a random walk does beside the events of a user: chooses objects and pools, filters, writes values as the host
/// does, arranges and changes the look of the window, unloads and reloads plug-ins.
class WalkHost {
public:
    /// Writes a value, by the name "object.parameter" and its text, in the chosen pool.
    using Write = std::function<void(QString const& name, QString const& text)>;

    /// All of them must outlive the object.
    WalkHost(Panel::MainWindow& window, Panel::Plugins& plugins, WalkDice& dice, Write write);
    ~WalkHost();

    /// Does one thing.
    void act();
    /// Unloads or reloads the plug-ins; says nothing of a refusal, as while their code runs.
    void tryPlugins(bool unload);
    /// Gives the application the look back that it had at the start.
    void restoreLook();

private:
    using Action = void (WalkHost::*)();

    void chooseObject();
    void choosePool();
    void filter();
    void write();
    void toggleRawValues();
    void toggleAdvanced();
    void reloadPlugins();
    void showDock();
    void closeView();
    void resize();
    void changeLook();
    void changeLanguage();
    void wait();

    Panel::MainWindow& window_;
    Panel::Plugins& plugins_;
    WalkDice& dice_;
    Write const write_;
    // Texts that a parameter had, by its name.
    std::map<QString, std::vector<std::string>> texts_;
    QPalette const palette_;
    QFont const font_;
    QLocale const locale_;
    // While the language is another one.
    std::unique_ptr<Panel::Translations> translations_;
};
