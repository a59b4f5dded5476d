#include <fractal/objects/ObjectFactory.hpp>
#include <lattice/UndoHistory.hpp>
#include <panel/look/Look.hpp>
#include <panel/window/MainWindow.hpp>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>

namespace Panel {

namespace {

constexpr int keptViews = 8;

// In pixels; as wide as the list of objects and half of the editors.
constexpr int previewWidth = 400;

// How often it is looked whether a popup has gone, in milliseconds.
constexpr int popupInterval = 50;

} // namespace

MainWindow::MainWindow(Plugins& plugins, QWidget* parent)
    : QMainWindow(parent),
      plugins_(plugins),
      objectList_(new ObjectList(pools_)),
      viewStack_(new QStackedWidget),
      messageDock_(new MessageDock(*this)),
      historyView_(new Talo::HistoryView),
      poolSelector_(new QComboBox),
      filterField_(new QLineEdit),
      pluginLabel_(new QLabel) {
    auto* const splitter = new QSplitter;
    splitter->addWidget(objectList_);
    splitter->addWidget(viewStack_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({220, 780});
    splitter->setChildrenCollapsible(false);
    objectList_->setMinimumWidth(160);
    setCentralWidget(splitter);
    // Without animation: one that goes on when the window goes is never freed.
    setDockOptions(AllowNestedDocks | AllowTabbedDocks);

    fractal_ = std::make_unique<Fractal::FractalController>();
    addDockWidget(trailingDockArea(layoutDirection()), fractal_->dock());
    resizeDocks({fractal_->dock()}, {previewWidth}, Qt::Horizontal);
    statusBar()->addPermanentWidget(fractal_->progressWidget());
    connect(fractal_.get(), &Fractal::FractalController::reported, this,
            [this](QString const& text) { messages()->add(MessageList::Source::Panel, text); });
    makeHistoryDock();
    makeToolBar();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makePluginMenu();
    statusBar()->addPermanentWidget(pluginLabel_);
    showTitle();
    resize(1200, 800);

    connect(objectList_, &ObjectList::objectChosen, this, &MainWindow::showView);
    connect(&plugins_, &Plugins::aboutToChange, this, &MainWindow::closeEditors);
    connect(&plugins_, &Plugins::changed, this, &MainWindow::openEditors);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &MainWindow::repairActivation, Qt::QueuedConnection);
    historyConnection_ = Kolt::UndoHistory::theHistory().addListener([this] { historyChanged(); });
    updateUndo();
    updatePlugins();
}

MainWindow::~MainWindow() {
    historyConnection_.disconnect();
    // While the network and the pools still stand: what an editor does as it goes may need them.
    closeViews();
    closeEditors();
    qDeleteAll(views());
    fractal_->showNetwork(nullptr, nullptr);
    Kolt::UndoHistory::theHistory().clear();
}

bool MainWindow::openNetwork(QString const& file, QString* error) {
    auto loaded = Talo::Network::load(file, Fractal::makeObject);
    if (!loaded.network) {
        messages()->add(MessageList::Source::Error, loaded.error);
        if (error)
            *error = loaded.error;
        return false;
    }
    showNetwork(std::move(loaded.network));
    messages()->add(MessageList::Source::Panel, tr("Opened %1.").arg(file));
    return true;
}

void MainWindow::showNetwork(std::unique_ptr<Talo::Network> network) {
    if (!network)
        return;
    if (network_)
        emit networkAboutToClose();
    closeViews();
    objectList_->showNetwork(nullptr);
    fractal_->showNetwork(nullptr, nullptr);
    // These steps are about parameters that go now.
    gestures_.end();
    Kolt::UndoHistory::theHistory().clear();
    network_ = std::move(network);
    historyView_->setNaming(naming());
    network_->actionHandler = [this](Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter,
                                     Kolt::PoolPtr const& pool) {
        fractal_->fire(object, parameter, pool);
        messages()->add(MessageList::Source::Panel,
                        tr("Action %1.%2 was fired in pool %3.")
                            .arg(object ? QString::fromStdString(object->Name()) : tr("(no object)"),
                                 parameter ? QString::fromStdString(parameter->Name()) : tr("(no parameter)"),
                                 pool ? QString::fromStdString(pool->Name()) : tr("(no pool)")));
    };
    {
        QSignalBlocker const blocker(poolSelector_);
        poolSelector_->clear();
        for (auto const& pool : network_->pools())
            poolSelector_->addItem(QString::fromStdString(pool->Name()));
        pools_.setPool(network_->pools().front());
    }
    showTitle();
    updateModified();
    fractal_->showNetwork(network_.get(), pools_.pool());
    objectList_->showNetwork(network_.get());
    filterField_->clear();
    if (!network_->objects().empty())
        showObject(QString::fromStdString(network_->objects().front()->Name()));
    emit networkOpened();
}

bool MainWindow::saveValues(QString const& file, QString* error) {
    QString reason;
    if (network_ && network_->saveAs(file, &reason)) {
        showTitle();
        updateModified();
        auto const rows = findChildren<Talo::ParameterRow*>();
        for (auto* const row : rows)
            row->showDefault();
        messages()->add(MessageList::Source::Panel, tr("Saved the values to %1.").arg(file));
        statusBar()->showMessage(tr("Saved."), 4000);
        return true;
    }
    if (!network_)
        reason = tr("No network is open.");
    messages()->add(MessageList::Source::Error, reason);
    if (error)
        *error = reason;
    return false;
}

bool MainWindow::showObject(QString const& name) {
    return objectList_->chooseObject(name);
}

bool MainWindow::choosePool(QString const& name) {
    int const index = poolSelector_->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        poolSelector_->setCurrentIndex(index);
    return index >= 0;
}

void MainWindow::choosePool(int index) {
    auto const& pools = network_->pools();
    pools_.setPool(pools.at(static_cast<std::size_t>(index)));
    fractal_->choosePool(pools_.pool());
    auto const shown = views();
    for (auto* const view : shown)
        view->showPool();
    applyFilter();
    // An icon cannot be told of another pool; a new one shows it.
    objectList_->closeIcons();
    objectList_->openIcons();
}

void MainWindow::showView(Kolt::ObjectPtr const& object) {
    for (int index = 0; index < viewStack_->count(); ++index) {
        if (static_cast<ObjectView*>(viewStack_->widget(index))->object() == object) {
            // The last of the stack is the one that was shown last.
            auto* const known = viewStack_->widget(index);
            viewStack_->removeWidget(known);
            viewStack_->addWidget(known);
            viewStack_->setCurrentWidget(known);
            return;
        }
    }
    auto* const view = makeView(object, viewStack_);
    viewStack_->addWidget(view);
    viewStack_->setCurrentWidget(view);
    while (viewStack_->count() > keptViews) {
        auto* const oldest = viewStack_->widget(0);
        viewStack_->removeWidget(oldest);
        oldest->deleteLater();
    }
}

ObjectView* MainWindow::makeView(Kolt::ObjectPtr const& object, QWidget* parent) {
    auto* const view = new ObjectView(object, network_->kind(object), pools_, parent);
    view->setRawValuesShown(rawAction_->isChecked());
    view->setFilter(Talo::ParameterFilter(filterField_->text()));
    connect(view, &ObjectView::editorOpened, this,
            [this](Talo::ParameterRow const* row) { fractal_->followLinks(row->parameter(), row->editor()); });
    return view;
}

ObjectView* MainWindow::addView() {
    auto const object = currentView() ? currentView()->object() : nullptr;
    if (!object)
        return nullptr;
    auto* const dock = new QDockWidget(QString::fromStdString(object->Name()), this);
    dock->setAttribute(Qt::WA_DeleteOnClose);
    auto* const view = makeView(object, dock);
    dock->setWidget(view);
    int const half = viewStack_->width() / 2;
    addDockWidget(trailingDockArea(layoutDirection()), dock);
    resizeDocks({dock}, {half}, Qt::Horizontal);
    return view;
}

ObjectView* MainWindow::currentView() const {
    return static_cast<ObjectView*>(viewStack_->currentWidget());
}

std::vector<ObjectView*> MainWindow::views() const {
    auto const found = findChildren<ObjectView*>();
    return {found.begin(), found.end()};
}

void MainWindow::closeViews() {
    auto const shown = views();
    for (auto* const view : shown) {
        auto* const dock = qobject_cast<QDockWidget*>(view->parentWidget());
        QWidget* const closed = dock ? dock : static_cast<QWidget*>(view);
        closed->hide();
        if (!dock)
            viewStack_->removeWidget(view);
        closed->deleteLater();
    }
}

void MainWindow::closeEditors() {
    objectList_->closeIcons();
    objectList_->forgetCreators();
    auto const shown = views();
    for (auto* const view : shown)
        view->closeEditors();
    // Whoever asked for this is about to take away the code that deletes them.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MainWindow::openEditors() {
    objectList_->openIcons();
    auto const shown = views();
    for (auto* const view : shown)
        view->openEditors();
    updatePlugins();
}

void MainWindow::repairActivation() {
    if (!windowHandle() || QGuiApplication::focusWindow() != windowHandle() || QApplication::activeWindow())
        return;
    // Qt takes no notice of a focus that comes meanwhile, as after a file was typed into a dialog that proposes names,
    // and keys do nothing then.
    if (QApplication::activePopupWidget())
        QTimer::singleShot(popupInterval, this, &MainWindow::repairActivation);
    else
        QApplication::setActiveWindow(this);
}

void MainWindow::setRawValuesShown(bool shown) {
    rawAction_->setChecked(shown);
}

void MainWindow::setFilter(QString const& words) {
    filterField_->setText(words);
}

void MainWindow::applyFilter() {
    if (!network_)
        return;
    auto const filter = Talo::ParameterFilter(filterField_->text());
    auto const pool = pools_.pool();
    if (filter.isEmpty())
        objectList_->setFilter({});
    else
        objectList_->setFilter([&](auto const& object) { return filter.finds(object, pool); });
    auto const shown = views();
    for (auto* const view : shown)
        view->setFilter(filter);
}

bool MainWindow::rawValuesShown() const {
    return rawAction_->isChecked();
}

} // namespace Panel
