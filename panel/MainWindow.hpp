#pragma once

#include <memory>
#include <panel/MessageList.hpp>
#include <panel/network/Network.hpp>
#include <panel/ObjectList.hpp>
#include <panel/ObjectView.hpp>
#include <panel/Plugins.hpp>
#include <panel/SchedulerDriver.hpp>
#include <panel/StandardOutputTap.hpp>
#include <panel/WarningListener.hpp>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>

namespace Panel {

/// The control panel: the objects of a network on the left, the parameters of the chosen one on the right, messages
/// below. It owns the network. The views of objects that were once chosen are kept, so that steps recorded by their
/// editors can still be taken back.
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
    void showNetwork(std::unique_ptr<Network> network);
    /// The open network; null as long as none was opened.
    Network* network() const { return network_.get(); }
    /// Writes the network with its values. False, and the reason in `error` unless that is null.
    bool saveValues(QString const& file, QString* error = nullptr);

    /// Chooses an object by its name; false when there is none.
    bool showObject(QString const& name);
    /// Chooses a pool by its name; false when there is none.
    bool choosePool(QString const& name);
    /// Shows the chosen object once more, in a view of its own that can be moved out of the window. Null when no object
    /// is chosen.
    ObjectView* addView();
    void setRawValuesShown(bool shown);
    bool rawValuesShown() const;
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput();

    /// The view of the chosen object; null when none is chosen.
    ObjectView* currentView() const;
    ObjectList* objectList() const { return objectList_; }
    MessageList* messages() const { return messages_; }
    PoolSource& pools() { return pools_; }

signals:
    /// The open network is about to give way to another one.
    void networkAboutToClose();
    /// Another network was opened and is shown.
    void networkOpened();

public slots:
    /// Takes the latest step of the history back.
    void undo();

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu(QAction* showMessages);
    void makePluginMenu();
    void makePoolSelector();

    void askForNetwork();
    void askForSaveFile();
    void saveAs(QString const& file);
    void askForPlugin();
    void closePlugins();
    void reloadPlugins();
    /// Tells of a failure, in the list and where the user looks.
    void complain(QString const& title, QString const& text);

    void showView(Kolt::ObjectPtr const& object);
    ObjectView* makeView(Kolt::ObjectPtr const& object, QWidget* parent);
    std::vector<ObjectView*> views() const;
    void closeViews();
    void closeEditors();
    void openEditors();
    void choosePool(int index);
    void updateUndo();
    void updatePlugins();

    Plugins& plugins_;
    PoolSource pools_;
    std::unique_ptr<Network> network_;
    SchedulerDriver scheduler_;
    WarningListener warnings_;
    std::unique_ptr<StandardOutputTap> outputTap_;

    ObjectList* const objectList_;
    QStackedWidget* const viewStack_;
    MessageList* const messages_;
    QComboBox* const poolSelector_;
    QLabel* const pluginLabel_;
    QAction* undoAction_ = nullptr;
    QAction* rawAction_ = nullptr;
    QAction* unloadAction_ = nullptr;
    QAction* reloadAction_ = nullptr;
};

} // namespace Panel
