#pragma once

#include <panel/window/Document.hpp>
#include <QMenu>

namespace Panel {

/// The commands for the network file, with their dialogs. User-interface thread.
class FileMenu : public QMenu {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs and is closed by Quit; it owns the menu. `document` must outlive the menu.
    FileMenu(Document& document, QWidget& window);
    ~FileMenu() override;

    /// Whether the open values may be lost: they are saved, or the user agrees. Saves them if the user wants it.
    bool mayDiscardChanges();

signals:
    /// The network is about to be saved or its unsaved changes to be looked at: pending edits are to be written.
    void commitRequested();
    /// Something failed: what, and the reason.
    void failed(QString const& title, QString const& reason);

private:
    void askForNetwork();
    void askForSaveFile();
    bool save(QString const& file);

    Document& document_;
    QWidget& window_;
};

} // namespace Panel
