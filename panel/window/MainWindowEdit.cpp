#include <lattice/UndoHistory.hpp>
#include <panel/look/Look.hpp>
#include <panel/window/MainWindow.hpp>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

namespace Panel {

namespace {

// How long the note in the title may lag behind the values, in milliseconds: to compare all of them takes a while.
constexpr int modifiedDelay = 100;

// How long a refused command stays in the status bar, in milliseconds.
constexpr int refusalTime = 8000;

QString menuText(QString const& name, Kolt::UndoHistory::Step const& step, Talo::ParameterNaming const& naming) {
    if (!step)
        return name;
    return MainWindow::tr("%1: %2").arg(name,
                                        Talo::undoText(*step, naming).replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace

void MainWindow::makeEditMenu() {
    auto* const menu = menuBar()->addMenu(tr("&Edit"));
    undoAction_ = menu->addAction(tr("&Undo"), this, &MainWindow::undo);
    undoAction_->setObjectName(QStringLiteral("undo"));
    undoAction_->setShortcuts(QKeySequence::Undo);
    redoAction_ = menu->addAction(tr("&Redo"), this, &MainWindow::redo);
    redoAction_->setObjectName(QStringLiteral("redo"));
    redoAction_->setShortcuts(QKeySequence::Redo);
    menu->addSeparator();
    menu->addActions(commands_.actions());
    menu->addSeparator();
    menu->addAction(findAction_);
    connect(menu, &QMenu::aboutToShow, &commands_, &Talo::ParameterCommands::updateActions);
    connect(&commands_, &Talo::ParameterCommands::refused, this, [this](QString const& reason) {
        messages()->add(MessageList::Source::Error, reason);
        statusBar()->showMessage(reason, refusalTime);
    });
    modifiedTimer_.setSingleShot(true);
    modifiedTimer_.setInterval(modifiedDelay);
    connect(&modifiedTimer_, &QTimer::timeout, this, &MainWindow::updateModified);
}

void MainWindow::makeHistoryDock() {
    auto* const dock = new QDockWidget(tr("History"));
    dock->setObjectName(QStringLiteral("historyDock"));
    dock->setWidget(historyView_);
    addDockWidget(trailingDockArea(layoutDirection()), dock);
    // Whoever wants it finds it in the view menu.
    dock->hide();
    dock->toggleViewAction()->setObjectName(QStringLiteral("showHistory"));
    connect(historyView_, &Talo::HistoryView::stateChosen, this, &MainWindow::goToState);
}

Talo::ParameterNaming MainWindow::naming() const {
    return [network = network_.get()](Kolt::ParameterPtr const& parameter) {
        return network ? network->nameOf(parameter) : QString();
    };
}

void MainWindow::undo() {
    gestures_.end();
    auto& history = Kolt::UndoHistory::theHistory();
    auto const step = history.nextUndo();
    if (!step)
        return;
    auto const text = Talo::undoText(*step, naming());
    if (!history.undo())
        messages()->add(MessageList::Source::Error, tr("Can no longer be taken back: %1").arg(text));
}

void MainWindow::redo() {
    gestures_.end();
    auto& history = Kolt::UndoHistory::theHistory();
    auto const step = history.nextRedo();
    if (!step)
        return;
    auto const text = Talo::undoText(*step, naming());
    if (!history.redo())
        messages()->add(MessageList::Source::Error, tr("Can no longer be made again: %1").arg(text));
}

void MainWindow::goToState(int steps) {
    auto const& history = Kolt::UndoHistory::theHistory();
    auto const done = static_cast<int>(history.steps().size());
    for (int count = done; count > steps; --count)
        undo();
    for (int count = done; count < steps; ++count)
        redo();
}

void MainWindow::historyChanged() {
    updateUndo();
    historyView_->historyChanged();
    if (!modifiedTimer_.isActive())
        modifiedTimer_.start();
}

void MainWindow::updateUndo() {
    auto const& history = Kolt::UndoHistory::theHistory();
    auto const undoStep = history.nextUndo();
    undoAction_->setEnabled(undoStep != nullptr);
    undoAction_->setText(menuText(tr("&Undo"), undoStep, naming()));
    auto const redoStep = history.nextRedo();
    redoAction_->setEnabled(redoStep != nullptr);
    redoAction_->setText(menuText(tr("&Redo"), redoStep, naming()));
}

void MainWindow::updateModified() {
    setWindowModified(network_ && network_->isModified());
}

void MainWindow::showTitle() {
    if (!network_) {
        setWindowTitle(tr("Talo panel"));
        return;
    }
    auto const title = network_->title().isEmpty() ? QFileInfo(network_->file()).fileName() : network_->title();
    setWindowTitle(tr("%1[*] – Talo panel").arg(title));
    setWindowFilePath(network_->file());
}

void MainWindow::commitPendingEdit() {
    // Fields write when they lose the focus, but not when only their window does, as it may have by now.
    QPointer<QWidget> const focus = QApplication::focusWidget() ? QApplication::focusWidget() : focusWidget();
    if (Talo::ParameterRow::rowOf(focus)) {
        QFocusEvent leave(QEvent::FocusOut, Qt::OtherFocusReason);
        QApplication::sendEvent(focus, &leave);
    }
    if (focus && focus->hasFocus()) {
        QFocusEvent come(QEvent::FocusIn, Qt::OtherFocusReason);
        QApplication::sendEvent(focus, &come);
    }
    gestures_.end();
}

bool MainWindow::mayLoseChanges() {
    commitPendingEdit();
    updateModified();
    if (!isWindowModified())
        return true;
    auto const title = network_->title().isEmpty() ? QFileInfo(network_->file()).fileName() : network_->title();
    QMessageBox box(QMessageBox::Warning, tr("Unsaved values"), tr("The values of “%1” were changed.").arg(title),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("Unless they are saved, the changes are lost."));
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
    int const answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveAs(network_->file()));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (mayLoseChanges())
        QMainWindow::closeEvent(event);
    else
        event->ignore();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    // What the host wrote by itself is noticed at the latest when somebody looks.
    if (isActiveWindow())
        updateModified();
    else
        QMetaObject::invokeMethod(this, &MainWindow::repairActivation, Qt::QueuedConnection);
}

} // namespace Panel
