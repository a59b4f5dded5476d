#include <checker/Check.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/UnknownEditor.hpp>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <QTemporaryFile>
#include <QWidget>
#include <unistd.h>

namespace Checker {

namespace {

std::size_t threadCount() {
    std::size_t count = 0;
    std::error_code ignored;
    for ([[maybe_unused]] auto const& entry : std::filesystem::directory_iterator("/proc/self/task", ignored))
        ++count;
    return count;
}

std::size_t timerCount() {
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    std::size_t count = static_cast<std::size_t>(dispatcher->registeredTimers(qApp).size());
    for (auto* const object : qApp->findChildren<QObject*>())
        count += static_cast<std::size_t>(dispatcher->registeredTimers(object).size());
    return count;
}

/// Opens, edits and closes every editor.
void work(LoadedPlugin& plugin) {
    plugin.forEachEditor([](Kolt::InputRegistry::Entry const& entry) {
        Findings told;
        (void)unknownEditor(entry, told);
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Loads the plug-in, lets its editors work, unloads it, and compares what `measure` gives before and afterwards.
template <typename Measure>
std::function<void(Subject const&, Findings&)> unchanged(std::string const& what, Measure const& measure) {
    return [what, measure](Subject const& subject, Findings& findings) {
        auto const before = measure();
        LoadedPlugin plugin(subject.file, findings);
        work(plugin);
        findings.expectEqual(measure(), before, what + " after its editors were closed");
        plugin.unload();
        findings.expectEqual(measure(), before, what + " after it was unloaded");
    };
}

std::string locales() {
    return std::string(std::setlocale(LC_ALL, nullptr)) + ' ' + QLocale().name().toStdString();
}

/// Directs standard output into a file as long as it lives.
class CapturedOutput {
public:
    CapturedOutput() : real_(dup(STDOUT_FILENO)) {
        std::fflush(stdout);
        if (file_.open())
            dup2(file_.handle(), STDOUT_FILENO);
    }
    ~CapturedOutput() {
        std::fflush(stdout);
        dup2(real_, STDOUT_FILENO);
        close(real_);
    }
    CapturedOutput(CapturedOutput const&) = delete;
    CapturedOutput& operator=(CapturedOutput const&) = delete;

    int lines() {
        std::fflush(stdout);
        file_.seek(0);
        return file_.readAll().count('\n');
    }

private:
    QTemporaryFile file_;
    int const real_;
};

void noteOutput(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    CapturedOutput output;
    work(plugin);
    int const lines = output.lines();
    if (lines > 0)
        findings.note("its editors print " + std::to_string(lines) + " lines on standard output");
}

} // namespace

void addResidueChecks(std::vector<Check>& checks) {
    checks.push_back({7, "left.widgets", "No widget is left.", unchanged("the number of widgets", [] {
                          return static_cast<std::size_t>(QApplication::allWidgets().size());
                      })});
    checks.push_back({7, "left.timers", "No timer of the application is left.",
                      unchanged("the number of timers of the application", timerCount)});
    checks.push_back({7, "left.threads", "No thread is left.", unchanged("the number of threads", threadCount)});
    checks.push_back({7, "left.locale", "The locale is not changed.", unchanged("the locale", locales)});
    checks.push_back({7, "output", "What is printed on standard output is noted.", noteOutput});
    checks.push_back({7, "left.style", "Style, palette and font of the program are not changed.",
                      unchanged("the style sheet and font", [] {
                          return (qApp->styleSheet() + ' ' + QApplication::font().toString()).toStdString();
                      })});
}

} // namespace Checker
