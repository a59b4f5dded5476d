#include "RandomWalk.hpp"

#include "PreviewCheck.hpp"
#include "WalkTime.hpp"

#include <gtest/gtest.h>
#include <network/JsonFormat.hpp>
#include <QColorDialog>
#include <QJsonDocument>
#include <QPushButton>

namespace {

constexpr int attemptsToActivate = 10;

// In milliseconds. How long the host and the panel have after each event.
constexpr int betweenEvents = 20;

// In milliseconds. The longest that the panel waits before it does something.
constexpr int whenAllIsDone = 2000;

// In milliseconds. A picture that takes longer is cancelled.
constexpr int longestPicture = 2000;

// In milliseconds. No coarse preview takes longer; a fine one that does is not waited for.
constexpr int longestPreview = 60'000;
constexpr int longestFinePreview = 2000;

// In milliseconds. Longer than the preview waits before it is refined.
constexpr int beforeFinePreview = 200;

/// Waits for the thread that computes the preview; virtual time stands.
template <typename Condition>
bool waitForThread(Condition const& condition, int longest = longestPreview) {
    for (int waited = 0; !condition() && waited < longest; ++waited) {
        VirtualTime::waitForThreads(1);
        QCoreApplication::processEvents();
    }
    return condition();
}

QStringList namesIn(QString const& folder) {
    QStringList names;
    for (auto const* const name : {"walk.json", "other.json", "picture.png", "document.pdf", "colours.gpl", "no/where"})
        names << folder + QLatin1Char('/') + QLatin1String(name);
    return names;
}

} // namespace

RandomWalk::RandomWalk(Panel::MainWindow& window, Panel::Plugins& plugins, QString const& folder,
                       QString const& logFile)
    : window_(window),
      plugins_(plugins),
      file_(window.network()->file()),
      dice_(logFile),
      user_(window, dice_, namesIn(folder)),
      host_(window, plugins, dice_, [this](QString const& name, QString const& text) { writeAsHost(name, text); }),
      closer_(namesIn(folder), [this](unsigned number) { host_.tryPlugins(number % 2 == 0); }) {
    following_ = QObject::connect(&window_, &Panel::MainWindow::networkOpened, &closer_, [this] { followNetwork(); });
    QObject::connect(&window_, &Panel::MainWindow::networkAboutToClose, &closer_, [this] { record_.reset(); });
    auto const& fractal = window_.fractalController();
    QObject::connect(&fractal.renderQueue(), &Fractal::RenderQueue::computed, &closer_,
                     [this, &fractal] { renderedAt_ = fractal.previewRenderer().changes(); });
    followNetwork();
}

RandomWalk::~RandomWalk() = default;

void RandomWalk::followNetwork() {
    start_ = values();
    writtenByHost_.clear();
    record_ = std::make_unique<ValueRecord>(*window_.network(), window_.history());
}

QJsonObject RandomWalk::values() const {
    return QJsonDocument::fromJson(window_.network()->values()).object();
}

void RandomWalk::writeAsHost(QString const& name, QString const& text) {
    // Afterwards a value that nothing explains would count as what the write brought about.
    auto const before = unexplained();
    unexplainedBefore_.insert(unexplainedBefore_.end(), before.begin(), before.end());
    QString error;
    EXPECT_TRUE(window_.network()->setText(name, text, window_.pools().pool(), &error)) << qPrintable(error);
    auto const written = record_->takeHostWrite();
    writtenByHost_.insert(written.begin(), written.end());
    // A pool gets a value of its own, even if it is the one that it inherited.
    writtenByHost_.insert(name);
}

std::vector<std::string> RandomWalk::unexplained() const {
    auto all = unexplainedBefore_;
    auto const now = record_->differences("without a step or a write");
    all.insert(all.end(), now.begin(), now.end());
    return all;
}

void RandomWalk::act(WalkEvent const& event) {
    dice_.begin(lineOf(event), event.seed);
    closer_.beginEvent(event.seed);
    if (!window_.isVisible()) {
        window_.show();
        window_.activateWindow();
    }
    // Wait, as a user would, until the window has noticed that a popup closed.
    waitSoon([this] {
        return QApplication::activePopupWidget() || QApplication::activeWindow() ||
               QGuiApplication::focusWindow() != window_.windowHandle();
    });
    constexpr unsigned userOfHundred = 96;
    if (user_.holdsButton() || dice_.below(100) < userOfHundred)
        user_.act();
    else
        host_.act();
    QCoreApplication::processEvents();
    awaitPictures();
    if (VirtualTime::isRunning())
        pass(betweenEvents);
}

bool RandomWalk::awaitCoarsePreview() {
    auto const& renderer = window_.fractalController().previewRenderer();
    return waitForThread([&] { return !renderer.isComputing() || renderer.isRefining(); });
}

bool RandomWalk::awaitFinePreview() {
    auto const& renderer = window_.fractalController().previewRenderer();
    // A change is noticed with the next events, and the text below a picture may change its size. Always as often, as
    // what depends on the thread must not decide how much time passes.
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        if (!awaitCoarsePreview())
            return false;
        if (VirtualTime::isRunning())
            pass(beforeFinePreview);
    }
    return waitForThread([&] { return renderer.isAtRest(); }, longestFinePreview);
}

bool RandomWalk::awaitPictures() {
    // The fine preview may take as long as it likes: only its own pixels depend on it.
    if (!awaitCoarsePreview())
        return false;
    auto const& queue = window_.fractalController().renderQueue();
    for (int waited = 0; queue.isComputing(); ++waited) {
        if (waited == longestPicture) {
            auto* const cancel = window_.findChild<QPushButton*>(QStringLiteral("cancel"));
            if (!cancel)
                return false;
            cancel->click();
        } else if (waited > 10 * longestPicture) {
            return false;
        }
        VirtualTime::waitForThreads(1);
        QCoreApplication::processEvents();
    }
    return true;
}

bool RandomWalk::bringToFront() {
    window_.show();
    for (int attempt = 0; attempt < attemptsToActivate; ++attempt) {
        // A window manager ignores a request for a window that is not shown yet, so repeat it.
        bool const isActive = waitSoon([this] {
            if (!window_.isActiveWindow())
                window_.activateWindow();
            return window_.isActiveWindow();
        });
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
    dice_.begin(lineOf({WalkEvent::Kind::Rest}), 0);
    closer_.beginEvent(0);
    user_.release();
    if (!waitSoon([] { return QApplication::activeModalWidget() == nullptr; }, 30000))
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
               ", active: " + nameOf(QApplication::activeWindow());
    window_.objectList()->setFocus();
    if (!window_.objectList()->hasFocus())
        return "the list of objects does not get the focus";
    if (!awaitPictures())
        return "a picture is computed without end";
    // Run deferred work: the end of a gesture, rows that are created later, and the question whether values are
    // unsaved.
    if (VirtualTime::isRunning())
        pass(whenAllIsDone);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {};
}

std::vector<std::string> RandomWalk::changesSinceStart() const {
    std::vector<std::string> all;
    auto const now = values();
    for (auto object = start_.begin(); object != start_.end(); ++object) {
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
            all.push_back(name.toStdString() + " is " + text(held) + " after all was taken back, not " +
                          text(parameter.value()));
        }
    }
    return all;
}

std::vector<std::string> RandomWalk::goBackAndForth() {
    dice_.begin(lineOf({WalkEvent::Kind::Back}), 0);
    auto const& history = window_.history();
    // Steps that the walk itself had undone must not be redone.
    auto const undoneBefore = history.undoneSteps().size();
    while (history.nextUndo())
        window_.undo();
    auto all = changesSinceStart();
    auto const first = record_->differences("after all was taken back");
    all.insert(all.end(), first.begin(), first.end());
    while (history.undoneSteps().size() > undoneBefore)
        window_.redo();
    auto const last = record_->differences("after all was made again");
    all.insert(all.end(), last.begin(), last.end());
    return all;
}

std::string RandomWalk::findPreviewFault() {
    // A fine picture of thousands of iterations takes too long, on a slow machine minutes; it is left out.
    if (!awaitFinePreview())
        return {};
    bool const isOfRenderAction = renderedAt_ == window_.fractalController().previewRenderer().changes();
    return isOfRenderAction ? std::string() : previewFault(window_);
}

void RandomWalk::beginAnew() {
    QString error;
    EXPECT_TRUE(window_.openNetwork(file_, &error)) << qPrintable(error);
}
