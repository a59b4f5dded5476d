#include <panel/window/MainWindow.hpp>

#include <panel/look/Look.hpp>
#include <panel/window/ActivationRepair.hpp>
#include <panel/window/Centre.hpp>
#include <panel/window/EditorsMenu.hpp>
#include <panel/window/MessageTexts.hpp>
#include <parameters/commands/ParameterFilter.hpp>
#include <parameters/input/FileDialogHelp.hpp>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QStatusBar>

namespace Panel {

namespace {

// Of the window's width; about as much as the list of objects and half of the editors.
constexpr double previewShare = 1.0 / 3;
// In pixels: the list and a form whose names and editors can be read.
constexpr int leastRest = 490;

// How long messages stay in the status bar, in milliseconds.
constexpr int refusalTime = 8000;
constexpr int savedTime = 4000;

} // namespace

MainWindow::MainWindow(Plugins& plugins, QWidget* parent)
    : QMainWindow(parent),
      plugins_(plugins),
      fractal_(std::make_unique<Fractal::FractalController>()),
      undoActions_(document_.history(), this),
      commands_(nullptr, this),
      objectList_(new ObjectList(pools_)),
      views_(new ViewStack(pools_, *this)),
      messageDock_(new MessageDock(*this)),
      toolBar_(new PoolToolBar),
      noticeBar_(new NoticeBar),
      notices_(new FileNotices(document_, *noticeBar_, this)),
      fileMenu_(new FileMenu(document_, *this)),
      pluginMenu_(new PluginMenu(plugins, *this)),
      historyDock_(new HistoryDock(document_.history())),
      helpDock_(new HelpDock),
      viewMenu_(new ViewMenu(*views_,
                             {messageDock_->toggleViewAction(), historyDock_->toggleViewAction(),
                              helpDock_->toggleViewAction(), fractal_->previewAction()},
                             this)) {
    setCentralWidget(new Centre(noticeBar_, objectList_, views_));
    makeDocks();
    addToolBar(toolBar_);
    menuBar()->addMenu(fileMenu_);
    makeEditMenu();
    viewMenu_->addMenu(new EditorsMenu(views_->editorChoice(), commands_, viewMenu_));
    menuBar()->addMenu(viewMenu_);
    menuBar()->addMenu(pluginMenu_);
    connectParts();
    showTitle();
    resize(1200, 800);
}

MainWindow::~MainWindow() {
    // While the network and the pools still exist: an editor may use them as it is deleted.
    views_->closeViews();
    closeEditors();
    views_->deleteViews();
    fractal_->showNetwork(nullptr, nullptr);
    document_.history().clear();
}

void MainWindow::makeDocks() {
    // Qt leaks a dock animation that runs when the window is deleted.
    setDockOptions(AllowNestedDocks | AllowTabbedDocks);
    addDockWidget(trailingDockArea(layoutDirection()), fractal_->dock());
    previewShare_ = new DockShare(*this, *fractal_->dock(), previewShare, leastRest);
    addDockWidget(trailingDockArea(layoutDirection()), historyDock_);
    addDockWidget(trailingDockArea(layoutDirection()), helpDock_);
    statusBar()->addPermanentWidget(fractal_->progressWidget());
    statusBar()->addPermanentWidget(pluginMenu_->statusLabel());
}

void MainWindow::makeEditMenu() {
    auto* const menu = menuBar()->addMenu(tr("&Edit"));
    menu->addActions({undoActions_.undoAction(), undoActions_.redoAction()});
    menu->addSeparator();
    menu->addActions(commands_.actions());
    menu->addSeparator();
    menu->addAction(toolBar_->filterField()->findAction());
    connect(menu, &QMenu::aboutToShow, &commands_, &Talo::ParameterCommands::updateActions);
}

void MainWindow::connectParts() {
    connect(&document_, &Document::aboutToClose, this, &MainWindow::networkAboutToClose);
    connect(&document_, &Document::opened, this, &MainWindow::showOpened);
    connect(&document_, &Document::modifiedChanged, this, &MainWindow::setWindowModified);
    connect(&document_, &Document::loaded, this, [this](QString const& file) { report(tr("Opened %1.").arg(file)); });
    connect(&document_, &Document::saved, this, &MainWindow::showSaved);
    connect(&document_, &Document::actionFired, this,
            [this](auto const& object, auto const& parameter, auto const& pool) {
                fractal_->fire(object, parameter, pool);
                report(actionMessage(object, parameter, pool));
            });
    connect(&undoActions_, &Talo::UndoActions::historyChanged, &document_, &Document::checkModifiedLater);
    connect(&undoActions_, &Talo::UndoActions::refused, this,
            [this](QString const& reason) { messages()->add(MessageList::Source::Error, reason); });
    connect(&undoActions_, &Talo::UndoActions::restored, this, &MainWindow::showChange);
    connect(historyDock_->view(), &Talo::HistoryView::stateChosen, &undoActions_, &Talo::UndoActions::goToState);
    connect(views_, &ViewStack::editorOpened, fractal_.get(), &Fractal::FractalController::followLinks);
    connect(views_, &ViewStack::refused, this, &MainWindow::showRefusal);
    connect(views_, &ViewStack::helpRequested, helpDock_, &HelpDock::showHelp);
    connect(fractal_.get(), &Fractal::FractalController::reported, this, &MainWindow::report);
    fileMenu_->setRunningWork([this] { return fractal_->unwrittenPicture(); });
    connect(fileMenu_, &FileMenu::commitRequested, this, &MainWindow::commitPendingEdit);
    connect(fileMenu_, &FileMenu::failed, this, &MainWindow::reportError);
    connect(notices_, &FileNotices::failed, this, &MainWindow::reportError);
    connect(notices_, &FileNotices::reported, this, &MainWindow::report);
    connect(pluginMenu_, &PluginMenu::reported, this, &MainWindow::report);
    connect(pluginMenu_, &PluginMenu::failed, this, &MainWindow::reportError);
    connect(toolBar_->filterField(), &QLineEdit::textChanged, this, &MainWindow::applyFilter);
    connect(toolBar_->filterField(), &QLineEdit::returnPressed, this, [this] {
        if (currentView())
            currentView()->panel()->rowArea()->focusFirstControl();
    });
    connect(toolBar_, &PoolToolBar::poolChosen, this, qOverload<int>(&MainWindow::choosePool));
    connect(objectList_, &ObjectList::objectChosen, this,
            [this](Kolt::ObjectPtr const& object) { views_->showObject(object, network()->kind(object)); });
    connect(&plugins_, &Plugins::aboutToChange, this, &MainWindow::closeEditors);
    connect(&plugins_, &Plugins::changed, this, &MainWindow::openEditors);
    new ActivationRepair(*this);
}

void MainWindow::showOpened(Talo::Network* network) {
    views_->closeViews();
    objectList_->showNetwork(nullptr);
    fractal_->showNetwork(nullptr, nullptr);
    // The old steps are about parameters that are deleted now.
    commitPendingEdit();
    document_.history().clear();
    undoActions_.setNaming(document_.naming());
    historyDock_->view()->setNaming(document_.naming());
    toolBar_->showPools(*network);
    pools_.setPool(network->pools().front());
    showTitle();
    fractal_->showNetwork(network, pools_.pool());
    objectList_->showNetwork(network);
    toolBar_->filterField()->clear();
    if (!network->objects().empty())
        showObject(QString::fromStdString(network->objects().front()->Name()));
    emit networkOpened();
}

void MainWindow::showSaved(QString const& file) {
    showTitle();
    report(tr("Saved the values to %1.").arg(file));
    statusBar()->showMessage(tr("Saved."), savedTime);
}

bool MainWindow::succeeded(QString const& reason, QString* error) {
    if (reason.isEmpty())
        return true;
    messages()->add(MessageList::Source::Error, reason);
    if (error)
        *error = reason;
    return false;
}

void MainWindow::choosePool(int index) {
    pools_.setPool(network()->pools().at(static_cast<std::size_t>(index)));
    fractal_->choosePool(pools_.pool());
    views_->showPool();
    filterObjects();
    // An icon shows one pool only; a new one shows the chosen pool.
    objectList_->closeIcons();
    objectList_->openIcons();
}

void MainWindow::applyFilter() {
    if (!network())
        return;
    filterObjects();
    views_->setFilter(toolBar_->filterField()->text());
}

void MainWindow::filterObjects() {
    Talo::ParameterFilter const filter(toolBar_->filterField()->text());
    if (filter.isEmpty())
        objectList_->setFilter({});
    else
        objectList_->setFilter([&](auto const& object) { return filter.finds(object, pools_.pool()); });
}

void MainWindow::closeEditors() {
    objectList_->closeIcons();
    objectList_->forgetCreators();
    views_->closeEditors();
    // The caller is about to unload the code that deletes them.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MainWindow::openEditors() {
    objectList_->openIcons();
    views_->openEditors();
    pluginMenu_->update();
}

void MainWindow::showTitle() {
    auto const file = network() ? network()->file() : QString();
    setWindowTitle(network() ? windowTitleFor(document_.title(), file) : tr("Talo panel"));
    setWindowFilePath(file);
    setProperty(Talo::FileFolderProperty, file.isEmpty() ? QString() : QFileInfo(file).absolutePath());
}

void MainWindow::showChange(Kolt::UndoStep const& step) {
    auto const parameter = step.changes().empty() ? nullptr : step.changes().front().parameter();
    auto const name = parameter ? network()->nameOf(parameter).section(QLatin1Char('.'), 0, 0) : QString();
    if (name.isEmpty())
        return;
    auto const object = network()->findObject(name);
    if (!views_->visibleView(object))
        showObject(name);
    if (auto const* const view = views_->visibleView(object))
        view->panel()->rowArea()->showRow(QString::fromStdString(parameter->Name()));
}

void MainWindow::showRefusal(QString const& reason) {
    messages()->add(MessageList::Source::Error, reason);
    statusBar()->showMessage(reason, refusalTime);
}

void MainWindow::reportError(QString const& title, QString const& text) {
    messages()->add(MessageList::Source::Error, text);
    showFailure(*this, title, text);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (fileMenu_->mayClose())
        QMainWindow::closeEvent(event);
    else
        event->ignore();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // What the host wrote by itself is noticed when the user comes back.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        document_.checkModified();
}

} // namespace Panel
