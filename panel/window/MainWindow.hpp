#pragma once

#include <fractal/ui/FractalController.hpp>
#include <memory>
#include <network/Network.hpp>
#include <panel/window/MessageDock.hpp>
#include <panel/window/ObjectList.hpp>
#include <panel/window/ObjectView.hpp>
#include <panel/window/Plugins.hpp>
#include <parameters/commands/HistoryView.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/input/GestureWatcher.hpp>
#include <parameters/SchedulerDriver.hpp>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QStackedWidget>
#include <QToolBar>

namespace Panel {

/// The control panel: the objects of a network on the left, the parameters of the chosen one on the right, messages
/// below. It owns the network. The views of the objects that were chosen last are kept.
///
/// One for the process at a time, as it is told of the host's warnings, undo steps and scheduled objects.
/// User-interface thread.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `plugins` must outlive the window.
    explicit MainWindow(Plugins& plugins, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens a network file in place of what is open. False, with what is open left as it is and the reason in `error`
    /// unless that is null, when the file is no network.
    bool openNetwork(QString const& file, QString* error = nullptr);
    /// Shows a network in place of the one that is open; null is ignored.
    void showNetwork(std::unique_ptr<Talo::Network> network);
    /// The open network; null as long as none was opened.
    Talo::Network* network() const { return network_.get(); }
    /// Writes the network with its values and goes on with that file. False, and the reason in `error` unless that is
    /// null.
    bool saveValues(QString const& file, QString* error = nullptr);

    /// Chooses an object by its name; false when there is none.
    bool showObject(QString const& name);
    /// Chooses a pool by its name; false when there is none.
    bool choosePool(QString const& name);
    /// Shows the chosen object once more, in a view of its own that can be moved out of the window. Null when no object
    /// is chosen.
    ObjectView* addView();
    void setRawValuesShown(bool shown);
    /// Shows the parameters that these words find (ParameterFilter), and the objects that have some.
    void setFilter(QString const& words);
    bool rawValuesShown() const;
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput() { messageDock_->tapStandardOutput(); }

    /// The view of the chosen object; null when none is chosen.
    ObjectView* currentView() const;
    ObjectList* objectList() const { return objectList_; }
    MessageList* messages() const { return messageDock_->messages(); }
    Talo::PoolSource& pools() { return pools_; }
    /// Where the network's picture is computed and shown.
    Fractal::FractalController& fractalController() { return *fractal_; }

    /// Ends the edit that goes on: a typed text that waits for the field to be left is written.
    void commitPendingEdit();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The open network is about to give way to another one.
    void networkAboutToClose();
    /// Another network was opened and is shown.
    void networkOpened();

public slots:
    /// Takes the latest step of the history back.
    void undo();
    /// Makes the step again that was taken back last.
    void redo();
    /// Goes to the state after that many steps, counted as the history list does.
    void goToState(int steps);

protected:
    /// Asks whether values that were changed and not saved may go.
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeHistoryDock();
    void makePluginMenu();
    void makeToolBar();
    void makePoolSelector(QToolBar& toolBar);
    void makeFilterField(QToolBar& toolBar);

    void askForNetwork();
    void askForSaveFile();
    bool saveAs(QString const& file);
    /// Whether the open values may go: they are saved, or the user says so. Saves them if the user wants it.
    bool mayLoseChanges();
    void askForPlugin();
    void closePlugins();
    void reloadPlugins();
    /// Tells of a failure, in the list and where the user looks.
    void reportError(QString const& title, QString const& text);

    void showView(Kolt::ObjectPtr const& object);
    ObjectView* makeView(Kolt::ObjectPtr const& object, QWidget* parent);
    std::vector<ObjectView*> views() const;
    void closeViews();
    void closeEditors();
    void openEditors();
    void choosePool(int index);
    void applyFilter();
    /// Has Qt notice that the window has the focus, after a popup was open as it got it.
    void repairActivation();
    /// Names parameters by object and name. For the network that is open at the moment.
    Talo::ParameterNaming naming() const;
    void historyChanged();
    void updateUndo();
    void updateModified();
    void showTitle();
    void updatePlugins();

    Plugins& plugins_;
    Talo::PoolSource pools_;
    std::unique_ptr<Talo::Network> network_;
    // Goes before the network, whose objects it works for.
    std::unique_ptr<Fractal::FractalController> fractal_;
    Talo::SchedulerDriver scheduler_;
    Talo::GestureWatcher gestures_;
    Talo::ParameterCommands commands_{gestures_, this};

    ObjectList* const objectList_;
    QStackedWidget* const viewStack_;
    MessageDock* const messageDock_;
    Talo::HistoryView* const historyView_;
    QComboBox* const poolSelector_;
    QLineEdit* const filterField_;
    QLabel* const pluginLabel_;
    QTimer modifiedTimer_;
    Kolt::Connection historyConnection_;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
    QAction* findAction_ = nullptr;
    QAction* rawAction_ = nullptr;
    QAction* unloadAction_ = nullptr;
    QAction* reloadAction_ = nullptr;
};

} // namespace Panel
