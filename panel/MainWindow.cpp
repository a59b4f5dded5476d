#include <lattice/UndoAction.hpp>
#include <panel/MainWindow.hpp>
#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>

namespace Panel {

MainWindow::MainWindow(Plugins& plugins, QWidget* parent)
    : QMainWindow(parent),
      plugins_(plugins),
      objectList_(new ObjectList(pools_)),
      viewStack_(new QStackedWidget),
      messages_(new MessageList),
      poolSelector_(new QComboBox),
      pluginLabel_(new QLabel) {
    auto* const splitter = new QSplitter;
    splitter->addWidget(objectList_);
    splitter->addWidget(viewStack_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({220, 780});
    splitter->setChildrenCollapsible(false);
    objectList_->setMinimumWidth(160);
    setCentralWidget(splitter);
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);

    auto* const messageDock = new QDockWidget(tr("Messages"));
    messageDock->setObjectName(QStringLiteral("messages"));
    messageDock->setWidget(messages_);
    addDockWidget(Qt::BottomDockWidgetArea, messageDock);
    resizeDocks({messageDock}, {110}, Qt::Vertical);

    makePoolSelector();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu(messageDock->toggleViewAction());
    makePluginMenu();
    statusBar()->addPermanentWidget(pluginLabel_);
    setWindowTitle(tr("Talo panel"));
    resize(1000, 760);

    connect(objectList_, &ObjectList::objectChosen, this, &MainWindow::showView);
    connect(&warnings_, &WarningListener::warned, this,
            [this](QString const& text) { messages_->add(MessageList::Source::Warning, text); });
    connect(&plugins_, &Plugins::aboutToChange, this, &MainWindow::closeEditors);
    connect(&plugins_, &Plugins::changed, this, &MainWindow::openEditors);
    Kolt::UndoHistory::theHistory().setListener([this] { updateUndo(); });
    updateUndo();
    updatePlugins();
}

MainWindow::~MainWindow() {
    Kolt::UndoHistory::theHistory().setListener({});
    // While the network and the pools still stand: what an editor does as it goes may need them.
    closeViews();
    closeEditors();
    qDeleteAll(views());
}

bool MainWindow::openNetwork(QString const& file, QString* error) {
    auto loaded = Network::load(file);
    if (!loaded.network) {
        messages_->add(MessageList::Source::Error, loaded.error);
        if (error)
            *error = loaded.error;
        return false;
    }
    showNetwork(std::move(loaded.network));
    messages_->add(MessageList::Source::Panel, tr("Opened %1.").arg(file));
    return true;
}

void MainWindow::showNetwork(std::unique_ptr<Network> network) {
    if (!network)
        return;
    if (network_)
        emit networkAboutToClose();
    closeViews();
    objectList_->showNetwork(nullptr);
    // These steps are about parameters that go now.
    Kolt::UndoHistory::theHistory().forget([](auto const&) { return true; });
    network_ = std::move(network);
    network_->actionHandler = [this](Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter,
                                     Tessera::StrongPtr<Kolt::ValuePool> const& pool) {
        messages_->add(MessageList::Source::Panel,
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
    setWindowTitle(tr("%1 – Talo panel")
                       .arg(network_->title().isEmpty() ? QFileInfo(network_->file()).fileName() : network_->title()));
    setWindowFilePath(network_->file());
    objectList_->showNetwork(network_.get());
    if (!network_->objects().empty())
        showObject(QString::fromStdString(network_->objects().front()->Name()));
    emit networkOpened();
}

bool MainWindow::saveValues(QString const& file, QString* error) {
    QString reason;
    if (network_ ? network_->save(file, &reason) : false) {
        messages_->add(MessageList::Source::Panel, tr("Saved the values to %1.").arg(file));
        statusBar()->showMessage(tr("Saved."), 4000);
        return true;
    }
    if (!network_)
        reason = tr("No network is open.");
    messages_->add(MessageList::Source::Error, reason);
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
    auto const shown = views();
    for (auto* const view : shown)
        view->showPool();
    // An icon cannot be told of another pool; a new one shows it.
    objectList_->closeIcons();
    objectList_->openIcons();
}

void MainWindow::showView(Kolt::ObjectPtr const& object) {
    for (int index = 0; index < viewStack_->count(); ++index) {
        if (static_cast<ObjectView*>(viewStack_->widget(index))->object() == object) {
            viewStack_->setCurrentIndex(index);
            return;
        }
    }
    auto* const view = makeView(object, viewStack_);
    viewStack_->addWidget(view);
    viewStack_->setCurrentWidget(view);
}

ObjectView* MainWindow::makeView(Kolt::ObjectPtr const& object, QWidget* parent) {
    auto* const view = new ObjectView(object, network_->kind(object), pools_, parent);
    view->setRawValuesShown(rawAction_->isChecked());
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
    addDockWidget(Qt::RightDockWidgetArea, dock);
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

void MainWindow::setRawValuesShown(bool shown) {
    rawAction_->setChecked(shown);
}

bool MainWindow::rawValuesShown() const {
    return rawAction_->isChecked();
}

void MainWindow::tapStandardOutput() {
    if (outputTap_)
        return;
    outputTap_ = std::make_unique<StandardOutputTap>();
    connect(outputTap_.get(), &StandardOutputTap::linePrinted, this,
            [this](QString const& line) { messages_->add(MessageList::Source::Output, line); });
}

void MainWindow::undo() {
    auto& history = Kolt::UndoHistory::theHistory();
    auto const steps = history.steps();
    if (steps.empty())
        return;
    auto const description = QString::fromStdString(steps.back()->description());
    if (!history.undo())
        messages_->add(MessageList::Source::Error, tr("Can no longer be taken back: %1").arg(description));
}

void MainWindow::updateUndo() {
    auto const steps = Kolt::UndoHistory::theHistory().steps();
    undoAction_->setEnabled(!steps.empty());
    undoAction_->setText(steps.empty() ? tr("&Undo")
                                       : tr("&Undo: %1")
                                             .arg(QString::fromStdString(steps.back()->description())
                                                      .replace(QLatin1Char('&'), QLatin1String("&&"))));
}

} // namespace Panel
