#include <panel/window/MainWindow.hpp>

#include <panel/look/Look.hpp>
#include <panel/window/ActivationRepair.hpp>
#include <panel/window/Centre.hpp>
#include <panel/window/EditorsMenu.hpp>
#include <panel/window/FileDrop.hpp>
#include <panel/window/HelpMenu.hpp>
#include <panel/window/MessageTexts.hpp>
#include <panel/window/ObjectColumn.hpp>
#include <parameters/input/FileDialogHelp.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QStatusBar>

namespace Panel {

namespace {

// Of the window's width; about as much as the list of objects and half of the editors.
constexpr double previewShare = 1.0 / 3;
// In characters: the list and a form whose names and editors can be read.
constexpr int leastRest = 70;

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
      objectCommands_(new ObjectCommands(document_, *views_, *objectList_, commands_, pools_, this)),
      presetMenu_(new PresetMenu(
          document_, [this] { return objectCommands_->panel(); }, this)),
      messageDock_(new MessageDock(*this)),
      toolBar_(new PoolToolBar),
      noticeBar_(new NoticeBar),
      notices_(new FileNotices(document_, *noticeBar_, this)),
      fileMenu_(new FileMenu(document_, *this)),
      pluginMenu_(new PluginMenu(plugins, *this)),
      historyDock_(new HistoryDock(document_.history())),
      helpDock_(new HelpDock),
      comparisonDock_(new ComparisonDock),
      viewMenu_(
          new ViewMenu(*views_,
                       {messageDock_->toggleViewAction(), historyDock_->toggleViewAction(),
                        helpDock_->toggleViewAction(), comparisonDock_->toggleViewAction(), fractal_->previewAction()},
                       this)) {
    setCentralWidget(new Centre(noticeBar_, new ObjectColumn(objectList_), views_));
    makeDocks();
    addToolBar(toolBar_);
    menuBar()->addMenu(fileMenu_);
    makeEditMenu();
    viewMenu_->addMenu(new EditorsMenu(views_->editorChoice(), commands_, viewMenu_));
    menuBar()->addMenu(viewMenu_);
    menuBar()->addMenu(pluginMenu_);
    menuBar()->addMenu(new HelpMenu(*this));
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
    tabifyDockWidget(messageDock_, comparisonDock_);
    statusBar()->addPermanentWidget(fractal_->progressWidget());
    statusBar()->addPermanentWidget(pluginMenu_->statusLabel());
}

void MainWindow::makeEditMenu() {
    auto* const menu = menuBar()->addMenu(tr("&Edit"));
    menu->addActions({undoActions_.undoAction(), undoActions_.redoAction()});
    menu->addSeparator();
    menu->addActions(commands_.actions());
    menu->addSeparator();
    menu->addActions(objectCommands_->clipboardActions());
    menu->addSeparator();
    menu->addActions(objectCommands_->resetActions());
    menu->addMenu(presetMenu_);
    menu->addSeparator();
    menu->addActions({toolBar_->filterField()->findAction(), toolBar_->filterField()->onlyChangedAction()});
    connect(menu, &QMenu::aboutToShow, &commands_, &Talo::ParameterCommands::updateActions);
    connect(menu, &QMenu::aboutToShow, objectCommands_, &ObjectCommands::updateActions);
}

void MainWindow::showObjectMenu(QPoint const& place) {
    auto* const menu = new QMenu(objectList_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    objectCommands_->updateActions();
    // Sections belong to a row.
    menu->addActions(objectCommands_->clipboardActions().mid(1));
    menu->addSeparator();
    menu->addActions(objectCommands_->resetActions().mid(1));
    menu->addMenu(presetMenu_);
    menu->popup(objectList_->viewport()->mapToGlobal(place));
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
    connect(&undoActions_, &Talo::UndoActions::refused, this,
            [this](QString const& reason) { messages()->add(MessageList::Source::Error, reason); });
    connect(&undoActions_, &Talo::UndoActions::restored, this, &MainWindow::showChange);
    connect(&undoActions_, &Talo::UndoActions::historyChanged, comparisonDock_->view(), &ComparisonView::compareLater);
    connect(comparisonDock_->view(), &ComparisonView::parameterChosen, this, &MainWindow::revealParameter);
    connect(historyDock_->view(), &Talo::HistoryView::stateChosen, &undoActions_, &Talo::UndoActions::goToState);
    connect(views_, &ViewStack::editorOpened, fractal_.get(), &Fractal::FractalController::followLinks);
    connect(views_, &ViewStack::refused, this, &MainWindow::showRefusal);
    connect(views_, &ViewStack::helpRequested, helpDock_, &HelpDock::showHelp);
    connect(fractal_.get(), &Fractal::FractalController::reported, this, &MainWindow::report);
    objectList_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(objectList_, &QWidget::customContextMenuRequested, this, &MainWindow::showObjectMenu);
    // Their keys work before a menu is opened.
    connect(this, &MainWindow::networkOpened, objectCommands_, &ObjectCommands::updateActions);
    connect(objectCommands_, &ObjectCommands::commitRequested, this, &MainWindow::commitPendingEdit);
    connect(objectCommands_, &ObjectCommands::refused, this, &MainWindow::showRefusal);
    connect(presetMenu_, &PresetMenu::commitRequested, this, &MainWindow::commitPendingEdit);
    connect(presetMenu_, &PresetMenu::failed, this, &MainWindow::reportError);
    connect(presetMenu_, &PresetMenu::reported, this, &MainWindow::report);
    fileMenu_->setRunningWork([this] { return fractal_->unwrittenPicture(); });
    connect(fileMenu_, &FileMenu::commitRequested, this, &MainWindow::commitPendingEdit);
    connect(fileMenu_, &FileMenu::failed, this, &MainWindow::reportError);
    connect(notices_, &FileNotices::failed, this, &MainWindow::reportError);
    connect(notices_, &FileNotices::reported, this, &MainWindow::report);
    connect(pluginMenu_, &PluginMenu::reported, this, &MainWindow::report);
    connect(pluginMenu_, &PluginMenu::failed, this, &MainWindow::reportError);
    connect(toolBar_->filterField(), &FilterField::filterChanged, this, &MainWindow::applyFilter);
    connect(toolBar_->filterField(), &QLineEdit::returnPressed, this, [this] {
        if (currentView())
            currentView()->panel()->rowArea()->focusFirstControl();
    });
    connect(toolBar_, &PoolToolBar::poolChosen, this, qOverload<int>(&MainWindow::choosePool));
    connect(objectList_, &ObjectList::objectChosen, this,
            [this](Kolt::ObjectPtr const& object) { views_->showObject(object, network()->kind(object)); });
    connect(objectList_, &ObjectList::objectsChosen, this, [this](std::vector<Kolt::ObjectPtr> const& objects) {
        views_->showObjects(objects, network()->kind(objects.front()));
    });
    connect(&plugins_, &Plugins::aboutToChange, this, &MainWindow::closeEditors);
    connect(&plugins_, &Plugins::changed, this, &MainWindow::openEditors);
    new ActivationRepair(*this);
    auto const* const drop = new FileDrop(*this);
    connect(drop, &FileDrop::dropped, fileMenu_, &FileMenu::openFile);
    connect(drop, &FileDrop::refused, this, &MainWindow::showRefusal);
}

void MainWindow::showOpened(Talo::Network* network) {
    // A file that is opened again shows what it showed before.
    bool const isSameFile = !network->file().isEmpty() && windowFilePath() == network->file();
    auto const shown = isSameFile && currentView() ? currentView()->object() : nullptr;
    auto const shownName = shown ? QString::fromStdString(shown->Name()) : QString();
    auto const poolName = isSameFile && pools_.pool() ? QString::fromStdString(pools_.pool()->Name()) : QString();
    views_->closeViews();
    objectList_->showNetwork(nullptr);
    comparisonDock_->view()->showNetwork(nullptr);
    fractal_->showNetwork(nullptr, nullptr);
    // The old steps are about parameters that are deleted now.
    commitPendingEdit();
    document_.history().clear();
    undoActions_.setNaming(document_.naming());
    historyDock_->view()->setNaming(document_.naming());
    toolBar_->showPools(*network);
    views_->setPools(network->pools());
    comparisonDock_->view()->showNetwork(network);
    pools_.setPool(network->pools().front());
    showTitle();
    fractal_->showNetwork(network, pools_.pool());
    objectList_->showNetwork(network);
    toolBar_->filterField()->reset();
    if (!network->objects().empty())
        showObject(QString::fromStdString(network->objects().front()->Name()));
    choosePool(poolName);
    showObject(shownName);
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
    auto const* const field = toolBar_->filterField();
    views_->setFilter(field->text(), field->onlyChangedAction()->isChecked());
}

void MainWindow::filterObjects() {
    auto const filter = toolBar_->filterField()->filter();
    if (filter.isEmpty()) {
        objectList_->setFilter({});
        toolBar_->showFound({});
        return;
    }
    toolBar_->showFound(objectList_->setFilter(
        [&](auto const& object, auto const& kind) { return filter.countIn(object, pools_.pool(), kind); }));
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
    showParameter(name, QString::fromStdString(parameter->Name()));
}

void MainWindow::showParameter(QString const& object, QString const& parameter) {
    auto const shown = network()->findObject(object);
    if (!views_->visibleView(shown))
        showObject(object);
    if (auto const* const view = views_->visibleView(shown))
        view->panel()->rowArea()->showRow(parameter);
}

void MainWindow::revealParameter(QString const& object, QString const& parameter) {
    showParameter(object, parameter);
    auto const* const view = views_->visibleView(network()->findObject(object));
    auto const* const row = view ? view->row(parameter) : nullptr;
    if (!row || row->isVisible())
        return;
    toolBar_->filterField()->reset();
    if (Talo::isAdvanced(*network()->findObject(object)->findParameter(parameter.toStdString())))
        setAdvancedShown(true);
    view->panel()->rowArea()->foldAllSections(false);
    view->panel()->rowArea()->showRow(parameter);
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
