#pragma once

#include <fractal/ui/FractalController.hpp>
#include <memory>
#include <panel/window/ComparisonDock.hpp>
#include <panel/window/DockShare.hpp>
#include <panel/window/Document.hpp>
#include <panel/window/FileMenu.hpp>
#include <panel/window/FileNotices.hpp>
#include <panel/window/HelpDock.hpp>
#include <panel/window/HistoryDock.hpp>
#include <panel/window/MessageDock.hpp>
#include <panel/window/ObjectCommands.hpp>
#include <panel/window/ObjectList.hpp>
#include <panel/window/PluginMenu.hpp>
#include <panel/window/PoolToolBar.hpp>
#include <panel/window/PresetMenu.hpp>
#include <panel/window/ViewMenu.hpp>
#include <panel/window/ViewStack.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/commands/UndoActions.hpp>
#include <parameters/input/PendingEdit.hpp>
#include <parameters/PoolSource.hpp>
#include <parameters/SchedulerDriver.hpp>
#include <QMainWindow>

namespace Panel {

/// The control panel: the objects of a network on the left, the parameters of the chosen one on the right, messages
/// below. It owns the network. The views of the objects that were chosen last are kept.
///
/// One for the process at a time, as it listens to the host's warnings, undo steps and scheduled objects.
/// User-interface thread.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `plugins` must outlive the window.
    explicit MainWindow(Plugins& plugins, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens a network file in place of what is open. False if the file is no network: what is open stays, and the
    /// reason is in `error` unless that is null.
    bool openNetwork(QString const& file, QString* error = nullptr) { return succeeded(document_.open(file), error); }
    /// Shows a network in place of the one that is open; null is ignored.
    void showNetwork(std::unique_ptr<Talo::Network> network) { document_.setNetwork(std::move(network)); }
    /// The open network; null until one was opened.
    Talo::Network* network() const { return document_.network(); }
    /// Writes the network with its values and uses that file from now on. False if that fails; the reason is in `error`
    /// unless that is null.
    bool saveValues(QString const& file, QString* error = nullptr) { return succeeded(document_.save(file), error); }

    /// Chooses an object by its name; false if there is none.
    bool showObject(QString const& name) { return objectList_->chooseObject(name); }
    /// Chooses a pool by its name; false if there is none.
    bool choosePool(QString const& name) { return toolBar_->choosePool(name); }
    /// Shows the chosen object once more, in a view of its own that can be moved out of the window. Null if no object
    /// is chosen.
    ObjectView* addView() { return views_->addView(); }
    ViewStack& views() { return *views_; }
    void setRawValuesShown(bool shown) { viewMenu_->rawValuesAction()->setChecked(shown); }
    void setAdvancedShown(bool shown) { viewMenu_->advancedAction()->setChecked(shown); }
    bool advancedShown() const { return viewMenu_->advancedAction()->isChecked(); }
    /// Colours and sizes of texts.
    LookMenu& look() const { return viewMenu_->look(); }
    bool rawValuesShown() const { return viewMenu_->rawValuesAction()->isChecked(); }
    /// Shows the parameters that these words find (ParameterFilter), and the objects that have some.
    void setFilter(QString const& words) { toolBar_->filterField()->setText(words); }
    /// The network files that were open last.
    RecentMenu& recentFiles() const { return fileMenu_->recent(); }
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput() { messageDock_->tapStandardOutput(); }

    /// Gives the docks the places that QMainWindow::saveState wrote with this version; false if they cannot be read.
    bool restoreDocks(QByteArray const& state, int version) {
        bool const restored = restoreState(state, version);
        if (restored)
            previewShare_->adoptWidth();
        return restored;
    }

    /// The view of the chosen object; null if none is chosen.
    ObjectView* currentView() const { return views_->currentView(); }
    ObjectList* objectList() const { return objectList_; }
    MessageList* messages() const { return messageDock_->messages(); }
    Talo::PoolSource& pools() { return pools_; }
    /// Records the edits of the open network.
    Kolt::UndoHistory& history() { return document_.history(); }
    /// Computes and shows the network's picture.
    Fractal::FractalController& fractalController() { return *fractal_; }

    /// Says when another panel has the network's file open, and asks whether values that a panel left behind are to be
    /// restored. `recovery`, of this window's document, must outlive the window's event loop.
    void follow(Recovery& recovery) { notices_->follow(recovery); }
    Document& document() { return document_; }

    /// Ends the edit that goes on: a typed text that waits for its field to be left is written.
    void commitPendingEdit() { Talo::commitPendingEdit(*this); }

signals:
    /// The open network is about to be replaced.
    void networkAboutToClose();
    /// Another network was opened and is shown.
    void networkOpened();

public slots:
    void undo() { undoActions_.undo(); }
    void redo() { undoActions_.redo(); }
    /// Goes to the state after that many undo steps, counted from the start.
    void goToState(int steps) { undoActions_.goToState(steps); }

protected:
    /// Asks whether unsaved values may be lost.
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeDocks();
    void makeEditMenu();
    /// Shows the commands for the chosen object at a place in the list.
    void showObjectMenu(QPoint const& place);
    void connectParts();

    void showOpened(Talo::Network* network);
    void showSaved(QString const& file);
    void choosePool(int index);
    void applyFilter();
    void filterObjects();
    void closeEditors();
    void openEditors();
    void showTitle();
    /// Scrolls to a parameter in a view of its object.
    void showParameter(QString const& object, QString const& parameter);
    /// Does so for a person who asks for it: ends the filter and unfolds, if the row is hidden by them.
    void revealParameter(QString const& object, QString const& parameter);
    /// Shows the first parameter that a step changed, in a view of its object.
    void showChange(Kolt::UndoStep const& step);
    /// Reports a failure, if there is a reason for one; says whether there is none.
    bool succeeded(QString const& reason, QString* error);
    void report(QString const& text) { messages()->add(MessageList::Source::Panel, text); }
    /// Shows why a command was refused, in the list and where the user looks.
    void showRefusal(QString const& reason);
    /// Shows a failure, in the list and in a dialog.
    void reportError(QString const& title, QString const& text);

    Plugins& plugins_;
    Talo::PoolSource pools_;
    Document document_;
    // Deleted before the document, whose objects it works for.
    std::unique_ptr<Fractal::FractalController> const fractal_;
    Talo::SchedulerDriver scheduler_;
    Talo::UndoActions undoActions_;
    Talo::ParameterCommands commands_;

    ObjectList* const objectList_;
    ViewStack* const views_;
    ObjectCommands* const objectCommands_;
    PresetMenu* const presetMenu_;
    MessageDock* const messageDock_;
    PoolToolBar* const toolBar_;
    NoticeBar* const noticeBar_;
    FileNotices* const notices_;
    FileMenu* const fileMenu_;
    PluginMenu* const pluginMenu_;
    HistoryDock* const historyDock_;
    HelpDock* const helpDock_;
    ComparisonDock* const comparisonDock_;
    DockShare* previewShare_ = nullptr;
    ViewMenu* const viewMenu_;
};

} // namespace Panel
