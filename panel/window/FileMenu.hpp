#pragma once

#include <functional>
#include <panel/window/Document.hpp>
#include <panel/window/RecentMenu.hpp>
#include <QMenu>

namespace Panel {

/// The commands for the network file, with their dialogs. User-interface thread.
class FileMenu : public QMenu {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs and is closed by Quit; it owns the menu. `document` must outlive the menu.
    FileMenu(Document& document, QWidget& window);
    ~FileMenu() override;

    /// The files that were open last.
    RecentMenu& recent() const { return *recent_; }
    /// Opens a file in place of the open network, after the questions of mayClose().
    void openFile(QString const& file);
    /// Whether the network may be closed: the user agrees that running work ends, and the open values are saved or may
    /// be lost. Saves them if the user wants it.
    bool mayClose();
    /// `work` says what goes on that ends with the network, as a sentence; it is empty while nothing does.
    void setRunningWork(std::function<QString()> work) { runningWork_ = std::move(work); }

signals:
    /// The network is about to be saved or its unsaved changes to be looked at: pending edits are to be written.
    void commitRequested();
    /// Something failed: what, and the reason.
    void failed(QString const& title, QString const& reason);

private:
    void askForNetwork();
    void openRecent(QString const& file);
    /// Opens the network's file again, without its unsaved changes.
    void revert();
    bool mayRevert();
    void load(QString const& file);
    void showFile();
    void askForSaveFile();
    bool mayEndWork();
    bool mayDiscardChanges();
    bool mayOverwrite();
    bool saveOpen();
    bool save(QString const& file);

    Document& document_;
    QWidget& window_;
    RecentMenu* const recent_;
    QAction* const revertAction_;
    std::function<QString()> runningWork_;
};

} // namespace Panel
