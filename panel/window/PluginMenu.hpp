#pragma once

#include <panel/window/Plugins.hpp>
#include <QLabel>
#include <QMenu>

namespace Panel {

/// The commands for plug-in files, and a label that says how many are loaded. User-interface thread.
class PluginMenu : public QMenu {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs and owns the menu. `plugins` must outlive the menu.
    PluginMenu(Plugins& plugins, QWidget& window);
    ~PluginMenu() override;

    /// Belongs to the widget that takes it over.
    QLabel* statusLabel() const { return statusLabel_; }
    /// Shows what is loaded.
    void update();

signals:
    /// Something was done: a sentence.
    void reported(QString const& text);
    /// Something failed: what, and the reason.
    void failed(QString const& title, QString const& reason);

private:
    void askForPlugin();
    // Whether nothing is known against the file, or the user wants it nevertheless.
    bool isWanted(QString const& file);
    void unload();
    void reload();

    Plugins& plugins_;
    QLabel* const statusLabel_;
    QAction* const loadAction_;
    QAction* const unloadAction_;
    QAction* const reloadAction_;
};

} // namespace Panel
