#include <lattice/InputRegistry.hpp>
#include <panel/window/MainWindow.hpp>
#include <QDockWidget>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>

namespace Panel {

namespace {

QString networkFilter() {
    return MainWindow::tr("Networks (*.json);;All files (*)");
}

} // namespace

void MainWindow::makeToolBar() {
    auto* const toolBar = addToolBar(tr("Pool and filter"));
    toolBar->setObjectName(QStringLiteral("pool"));
    toolBar->setMovable(false);
    makePoolSelector(*toolBar);
    auto* const gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    toolBar->addWidget(gap);
    makeFilterField(*toolBar);
}

void MainWindow::makeFilterField(QToolBar& toolBar) {
    filterField_->setObjectName(QStringLiteral("filter"));
    filterField_->setPlaceholderText(tr("Filter by name, object or value"));
    filterField_->setAccessibleName(tr("Filter"));
    filterField_->setToolTip(tr("Shows the parameters whose name, object or value has all of these words"));
    filterField_->setClearButtonEnabled(true);
    // Wide enough for the text that says what it is for, beside the button.
    auto const metrics = filterField_->fontMetrics();
    filterField_->setMaximumWidth(metrics.horizontalAdvance(filterField_->placeholderText()) + 3 * metrics.height());
    toolBar.addWidget(filterField_);
    connect(filterField_, &QLineEdit::textChanged, this, &MainWindow::applyFilter);

    findAction_ = new QAction(tr("&Find a parameter"), this);
    findAction_->setObjectName(QStringLiteral("find"));
    findAction_->setShortcut(QKeySequence::Find);
    connect(findAction_, &QAction::triggered, this, [this] {
        filterField_->setFocus(Qt::ShortcutFocusReason);
        filterField_->selectAll();
    });
    // Escape clears it, but not by a shortcut: whatever is being computed has that one.
    filterField_->installEventFilter(this);
    // On to what was found.
    connect(filterField_, &QLineEdit::returnPressed, this, [this] {
        if (currentView())
            currentView()->focusFirstEditor();
    });
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != filterField_ || event->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QMainWindow::eventFilter(watched, event);
    filterField_->clear();
    return true;
}

void MainWindow::makePoolSelector(QToolBar& toolBar) {
    auto* const label = new QLabel(tr("P&ool:"));
    label->setContentsMargins(8, 0, 6, 0);
    label->setBuddy(poolSelector_);
    toolBar.addWidget(label);
    toolBar.addWidget(poolSelector_);
    poolSelector_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    poolSelector_->setMinimumContentsLength(12);
    poolSelector_->setAccessibleName(tr("Pool"));
    poolSelector_->setToolTip(tr("The pool whose values are edited"));
    connect(poolSelector_, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        if (index >= 0)
            choosePool(index);
    });
}

void MainWindow::makeFileMenu() {
    auto* const menu = menuBar()->addMenu(tr("&File"));
    auto* const openAction = menu->addAction(tr("&Open..."), this, &MainWindow::askForNetwork, QKeySequence::Open);
    openAction->setObjectName(QStringLiteral("open"));
    menu->addAction(
        tr("&Save values"), this,
        [this] {
            if (network_)
                saveAs(network_->file());
        },
        QKeySequence::Save);
    menu->addAction(tr("Save values &as..."), this, &MainWindow::askForSaveFile, QKeySequence(tr("Ctrl+Shift+S")));
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(tr("Ctrl+Q")));
}

void MainWindow::makeViewMenu() {
    auto* const menu = menuBar()->addMenu(tr("&View"));
    menu->addAction(tr("&New view"), this, &MainWindow::addView, QKeySequence(tr("Ctrl+N")));
    menu->addSeparator();
    rawAction_ = menu->addAction(tr("&Raw values"));
    rawAction_->setObjectName(QStringLiteral("rawValues"));
    rawAction_->setCheckable(true);
    rawAction_->setShortcut(tr("Ctrl+R"));
    connect(rawAction_, &QAction::toggled, this, [this](bool shown) {
        auto const all = views();
        for (auto* const view : all)
            view->setRawValuesShown(shown);
    });
    menu->addAction(messageDock_->toggleViewAction());
    menu->addAction(static_cast<QDockWidget*>(historyView_->parentWidget())->toggleViewAction());
    menu->addAction(fractal_->previewAction());
}

void MainWindow::makePluginMenu() {
    auto* const menu = menuBar()->addMenu(tr("&Plug-ins"));
    menu->addAction(tr("&Load..."), this, &MainWindow::askForPlugin);
    unloadAction_ = menu->addAction(tr("&Unload"), this, &MainWindow::closePlugins);
    unloadAction_->setObjectName(QStringLiteral("unload"));
    reloadAction_ = menu->addAction(tr("&Reload"), this, &MainWindow::reloadPlugins);
    reloadAction_->setObjectName(QStringLiteral("reload"));
}

void MainWindow::askForNetwork() {
    if (!mayLoseChanges())
        return;
    auto const file = QFileDialog::getOpenFileName(this, tr("Open a network"), network_ ? network_->file() : QString(),
                                                   networkFilter());
    QString error;
    if (!file.isEmpty() && !openNetwork(file, &error))
        reportError(tr("The network cannot be opened"), error);
}

void MainWindow::askForSaveFile() {
    saveAs(QFileDialog::getSaveFileName(this, tr("Save the values"), network_ ? network_->file() : QString(),
                                        networkFilter()));
}

bool MainWindow::saveAs(QString const& file) {
    QString error;
    if (file.isEmpty())
        return false;
    commitPendingEdit();
    bool const saved = saveValues(file, &error);
    if (!saved)
        reportError(tr("The values cannot be saved"), error);
    return saved;
}

void MainWindow::askForPlugin() {
    auto const file =
        QFileDialog::getOpenFileName(this, tr("Load a plug-in"), QString(), tr("Plug-ins (*.talo);;All files (*)"));
    QString error;
    if (!file.isEmpty() && !plugins_.load(file, &error))
        reportError(tr("The plug-in cannot be loaded"), error);
}

void MainWindow::closePlugins() {
    QString error;
    if (plugins_.unload(&error))
        messages()->add(MessageList::Source::Panel, tr("The plug-ins were unloaded."));
    else
        reportError(tr("The plug-ins cannot be unloaded"), error);
}

void MainWindow::reloadPlugins() {
    QString error;
    if (plugins_.reload(&error))
        messages()->add(MessageList::Source::Panel, tr("The plug-ins were loaded again."));
    else
        reportError(tr("The plug-ins cannot be loaded again"), error);
}

void MainWindow::reportError(QString const& title, QString const& text) {
    if (!messages()->texts(MessageList::Source::Error).endsWith(text))
        messages()->add(MessageList::Source::Error, text);
    auto* const box = new QMessageBox(QMessageBox::Warning, title, title, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(
        QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"))));
    box->open();
}

void MainWindow::updatePlugins() {
    auto const creators = Kolt::InputRegistry::theRegistry().entries().size();
    auto const loaded = plugins_.loadedFiles().size();
    unloadAction_->setEnabled(loaded > 0);
    reloadAction_->setEnabled(!plugins_.knownFiles().isEmpty());
    pluginLabel_->setText(tr("Plug-ins: %1, kinds of editors: %2").arg(loaded).arg(creators));
}

} // namespace Panel
