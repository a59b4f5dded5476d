#include "RandomWalk.hpp"

#include "RandomStrokes.hpp"
#include "support/TaloTest.hpp"
#include "WindowMouse.hpp"
#include <lattice/UndoHistory.hpp>
#include <network/JsonFormat.hpp>
#include <QColorDialog>
#include <QDockWidget>
#include <QJsonDocument>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr int mostViews = 3;

// In milliseconds: for what usually happens at once, and is no failure if it does not.
constexpr int soon = 1000;

constexpr int attemptsToActivate = 10;

std::string nameOf(QObject const* object) {
    return object ? object->metaObject()->className() + std::string(" ") + qPrintable(object->objectName()) : "none";
}

QStringList namesIn(QString const& folder) {
    QStringList names;
    for (auto const* const name : {"walk.json", "other.json", "picture.png", "document.pdf", "colours.gpl", "no/where"})
        names << folder + QLatin1Char('/') + QLatin1String(name);
    return names;
}

} // namespace

RandomWalk::RandomWalk(Panel::MainWindow& window, Panel::Plugins& plugins, QString const& folder, unsigned seed)
    : window_(window),
      plugins_(plugins),
      file_(window.network()->file()),
      random_(seed),
      closer_(random_, namesIn(folder)) {
    following_ = QObject::connect(&window_, &Panel::MainWindow::networkOpened, &closer_, [this] { followNetwork(); });
    followNetwork();
}

void RandomWalk::followNetwork() {
    start_ = values();
    writtenByHost_.clear();
    texts_.clear();
    for (auto const& object : window_.network()->objects()) {
        for (auto const& parameter : object->parameters())
            texts_[window_.network()->nameOf(parameter)].push_back(parameter->ownValue()->Text());
    }
}

QJsonObject RandomWalk::values() const {
    return QJsonDocument::fromJson(window_.network()->values()).object();
}

void RandomWalk::step() {
    closer_.beginEvent();
    if (!window_.isVisible()) {
        window_.show();
        window_.activateWindow();
    }
    // Wait, as a user would, until the window has noticed that a popup closed.
    waitUntil(
        [this] {
            return QApplication::activePopupWidget() || QApplication::activeWindow() ||
                   QGuiApplication::focusWindow() != window_.windowHandle();
        },
        soon);
    auto const choice = below(1000);
    if (held_ || button_ != Qt::NoButton)
        moveOrRelease();
    else if (choice < 450)
        useMouse();
    else if (choice < 520)
        turnWheel();
    else if (choice < 960)
        pressKey();
    else
        useHost();
    QCoreApplication::processEvents();
}

QList<QWidget*> RandomWalk::candidates() {
    if (auto* const popup = QApplication::activePopupWidget())
        return QList<QWidget*>{popup} + popup->findChildren<QWidget*>();
    auto const dialogs = window_.findChildren<QColorDialog*>();
    for (auto* const dialog : dialogs) {
        if (!dialog->isVisible())
            continue;
        // One of the buttons picks a colour from the screen and would wait for a click there.
        auto const buttons = dialog->findChildren<QPushButton*>();
        for (auto* const button : buttons)
            button->setEnabled(false);
        if (below(2) == 0)
            return dialog->findChildren<QWidget*>();
    }
    auto const views = window_.findChildren<Panel::ObjectView*>();
    switch (below(10)) {
    case 0:
        return window_.findChildren<QWidget*>();
    case 1:
        return window_.objectList()->findChildren<QWidget*>();
    case 2:
        return oneOf(views)->findChildren<QWidget*>();
    default: {
        auto const rows = window_.currentView()->rows();
        return rows.empty() ? window_.findChildren<QWidget*>() : oneOf(rows)->findChildren<QWidget*>();
    }
    }
}

QWidget* RandomWalk::target() {
    QList<QWidget*> seen;
    auto const all = candidates();
    for (auto* const widget : all) {
        if (widget->isVisible() && widget->window()->windowHandle() && !widget->visibleRegion().isEmpty())
            seen << widget;
    }
    return seen.isEmpty() ? nullptr : oneOf(seen);
}

void RandomWalk::useMouse() {
    if (auto* const widget = target())
        press(*widget);
}

void RandomWalk::press(QWidget& widget) {
    auto const area = widget.visibleRegion().boundingRect();
    auto const point =
        inWindow(widget, area.topLeft() + QPoint(static_cast<int>(below(static_cast<unsigned>(area.width()))),
                                                 static_cast<int>(below(static_cast<unsigned>(area.height())))));
    QPointer<QWindow> const window = widget.window()->windowHandle();
    auto const kind = below(20);
    auto const button = kind == 0 ? Qt::RightButton : kind == 1 ? Qt::MiddleButton : Qt::LeftButton;
    if (kind == 2) {
        QTest::mouseMove(window.data(), point);
        return;
    }
    QPointer<QWidget> const target(&widget);
    activate(widget.window());
    if (!target || !window || !target->isVisible())
        return;
    if (kind < 12) {
        // The second press of a double click must follow soon, so subtract the pause that QTest adds to the time
        // stamps.
        click(window, button, point);
        if (window && kind == 3) {
            QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
            click(window, button, point);
        }
    } else {
        held_ = target;
        button_ = button;
        QTest::mousePress(window.data(), button, {}, point);
    }
}

void RandomWalk::disturb(Talo::ParameterRow& row) {
    auto const parameter = row.parameter();
    auto const buttons = row.findChild<QListWidget*>() ? row.findChildren<QPushButton*>() : QList<QPushButton*>();
    if (!buttons.isEmpty() && below(2) == 0)
        QTest::mouseClick(oneOf(buttons), Qt::LeftButton);
    else if (parameter && parameter->isEdited())
        parameter->notifyValueChange(parameter->effectiveValue(row.pool()), row.pool(), std::string(), nullptr, nullptr,
                                     nullptr);
}

void RandomWalk::moveOrRelease() {
    auto* const row = Talo::ParameterRow::rowOf(held_);
    if (row && below(4) == 0) {
        disturb(*row);
        return;
    }
    auto* const widget = held_ && held_->isVisible() ? held_.data() : static_cast<QWidget*>(&window_);
    auto* const window = widget->window()->windowHandle();
    auto const spread = [&](int length) { return static_cast<int>(below(static_cast<unsigned>(length) + 40)) - 20; };
    auto const point = inWindow(*widget, {spread(widget->width()), spread(widget->height())});
    if (window && below(3) != 0) {
        QTest::mouseMove(window, point);
        return;
    }
    held_.clear();
    auto const button = std::exchange(button_, Qt::NoButton);
    if (window)
        QTest::mouseRelease(window, button, {}, point);
}

void RandomWalk::turnWheel() {
    auto* const widget = target();
    if (!widget)
        return;
    auto const point = inWindow(*widget, widget->visibleRegion().boundingRect().center());
    auto* const window = widget->window()->windowHandle();
    QWheelEvent event(point, window->mapToGlobal(point), QPoint(), QPoint(0, below(2) == 0 ? 120 : -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

void RandomWalk::pressKey() {
    auto* const window = QGuiApplication::focusWindow();
    // Without an active window, no key arrives.
    if (!window || !QApplication::activeWindow()) {
        window_.activateWindow();
        return;
    }
    auto const& stroke = below(60) == 0 ? oneOf(rareStrokes()) : oneOf(strokes());
    if (stroke.key == Qt::Key_N && window_.findChildren<Panel::ObjectView*>().size() >= mostViews)
        return;
    QString text;
    if ((stroke.modifiers & (Qt::ControlModifier | Qt::AltModifier)) == 0 && QTest::keyToAscii(stroke.key) != 0)
        text = QLatin1Char(QTest::keyToAscii(stroke.key));
    if (stroke.modifiers == Qt::ShiftModifier)
        text = text.toUpper();
    qt_handleKeyEvent(window, QEvent::KeyPress, stroke.key, stroke.modifiers, text);
    // The key may have closed the window.
    if (auto* const next = QGuiApplication::focusWindow())
        qt_handleKeyEvent(next, QEvent::KeyRelease, stroke.key, stroke.modifiers, text);
}

void RandomWalk::useHost() {
    static constexpr Action actions[] = {
        &RandomWalk::chooseObject,    &RandomWalk::chooseObject, &RandomWalk::chooseObject, &RandomWalk::choosePool,
        &RandomWalk::filter,          &RandomWalk::write,        &RandomWalk::write,        &RandomWalk::write,
        &RandomWalk::toggleRawValues, &RandomWalk::showDock,     &RandomWalk::closeView,    &RandomWalk::resize};
    // A user who turns to something else closes an open popup.
    while (auto* const popup = QApplication::activePopupWidget())
        popup->close();
    if (below(60) == 0)
        reloadPlugins();
    else
        (this->*oneOf(actions))();
}

void RandomWalk::chooseObject() {
    window_.showObject(QString::fromStdString(oneOf(window_.network()->objects())->Name()));
}

void RandomWalk::choosePool() {
    window_.choosePool(QString::fromStdString(oneOf(window_.network()->pools())->Name()));
}

void RandomWalk::filter() {
    static constexpr char const* words[] = {"", "", "", "a", "formula", "1", "true", "nothing like it", "e o"};
    window_.setFilter(QLatin1String(oneOf(words)));
}

void RandomWalk::write() {
    auto const object = oneOf(window_.network()->objects());
    auto const parameter = oneOf(object->parameters());
    auto const name = window_.network()->nameOf(parameter);
    // Only the objects themselves write the other parameters.
    if (!parameter->isEdited())
        return;
    auto& texts = texts_[name];
    auto const pool = window_.pools().pool();
    texts.push_back(parameter->effectiveValue(pool)->Text());
    auto text = QString::fromStdString(oneOf(texts));
    if (dynamic_cast<Kolt::VValue<int> const*>(parameter->ownValue().get()) ||
        dynamic_cast<Kolt::VValue<double> const*>(parameter->ownValue().get()))
        text = QString::number(below(40));
    writtenByHost_.insert(name);
    QString error;
    EXPECT_TRUE(window_.network()->setText(name, text, pool, &error)) << qPrintable(error);
}

void RandomWalk::toggleRawValues() {
    window_.setRawValuesShown(!window_.rawValuesShown());
}

void RandomWalk::reloadPlugins() {
    QString error;
    bool const unloads = !plugins_.loadedFiles().isEmpty() && below(2) == 0;
    EXPECT_TRUE(unloads ? plugins_.unload(&error) : plugins_.reload(&error)) << qPrintable(error);
}

void RandomWalk::showDock() {
    auto const docks = window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    auto* const dock = oneOf(docks);
    dock->setVisible(!dock->isVisible());
}

void RandomWalk::closeView() {
    auto const docks = window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const dock : docks) {
        if (qobject_cast<Panel::ObjectView*>(dock->widget())) {
            dock->close();
            return;
        }
    }
}

void RandomWalk::resize() {
    window_.resize(500 + static_cast<int>(below(600)), 400 + static_cast<int>(below(500)));
}

bool RandomWalk::bringToFront() {
    window_.show();
    for (int attempt = 0; attempt < attemptsToActivate; ++attempt) {
        // A window manager ignores a request for a window that is not shown yet, so repeat it.
        bool const isActive = waitUntil(
            [this] {
                if (!window_.isActiveWindow())
                    window_.activateWindow();
                return window_.isActiveWindow();
            },
            2 * soon);
        if (isActive)
            return true;
        // After a popup or dialog has closed, Qt activates the window through the window system, with the time of the
        // last user event. A walk has no user events, so the request may be ignored as too old. A window that is shown
        // anew is activated by the window manager.
        window_.hide();
        QCoreApplication::processEvents();
        window_.show();
    }
    return false;
}

std::string RandomWalk::settle() {
    closer_.beginEvent();
    if (button_ != Qt::NoButton) {
        QTest::mouseRelease(window_.windowHandle(), std::exchange(button_, Qt::NoButton), {}, QPoint(1, 1));
        held_.clear();
    }
    if (!waitUntil([] { return QApplication::activeModalWidget() == nullptr; }))
        return "a modal dialog stays open";
    while (auto* const popup = QApplication::activePopupWidget())
        popup->close();
    auto const dialogs = window_.findChildren<QColorDialog*>();
    for (auto* const dialog : dialogs)
        dialog->hide();
    if (plugins_.loadedFiles().isEmpty()) {
        QString error;
        EXPECT_TRUE(plugins_.reload(&error)) << qPrintable(error);
    }
    if (!bringToFront())
        return "the window does not become active; shown: " + std::to_string(int{window_.isVisible()}) +
               ", focus: " + nameOf(QGuiApplication::focusWindow());
    window_.objectList()->setFocus();
    if (!window_.objectList()->hasFocus())
        return "the list of objects does not get the focus";
    if (auto* const cancel = window_.findChild<QPushButton*>(QStringLiteral("cancel")))
        cancel->click();
    if (!waitUntil([this] { return !window_.fractalController().renderQueue().isComputing(); }))
        return "a picture is computed without end";
    // Run deferred work: the end of a gesture, and rows that are created later.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {};
}

std::vector<std::string> RandomWalk::differences(QJsonObject const& expected, char const* when) const {
    std::vector<std::string> all;
    auto const now = values();
    for (auto object = expected.begin(); object != expected.end(); ++object) {
        auto const parameters = object.value().toObject();
        for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter) {
            auto const name = object.key() + QLatin1Char('.') + parameter.key();
            auto const held = now[object.key()][parameter.key()];
            if (writtenByHost_.count(name) > 0 || held == parameter.value() ||
                !window_.network()->findParameter(name)->isEdited())
                continue;
            auto const text = [](QJsonValue const& value) {
                return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact).toStdString();
            };
            all.push_back(name.toStdString() + " is " + text(held) + " " + when + ", not " + text(parameter.value()));
        }
    }
    return all;
}

std::vector<std::string> RandomWalk::goBackAndForth() {
    auto const& history = window_.history();
    auto const end = values();
    // Steps that the walk itself had undone must not be redone.
    auto const undoneBefore = history.undoneSteps().size();
    while (history.nextUndo())
        window_.undo();
    auto all = differences(start_, "after all was taken back");
    while (history.undoneSteps().size() > undoneBefore)
        window_.redo();
    auto const there = differences(end, "after all was made again");
    all.insert(all.end(), there.begin(), there.end());
    return all;
}

void RandomWalk::beginAnew() {
    QString error;
    EXPECT_TRUE(window_.openNetwork(file_, &error)) << qPrintable(error);
}
