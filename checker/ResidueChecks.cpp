#include <checker/Check.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/ProcessCounts.hpp>
#include <checker/UnknownEditor.hpp>
#include <clocale>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <QWidget>

namespace Checker {

namespace {

std::size_t timerCount() {
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    std::size_t count = static_cast<std::size_t>(dispatcher->registeredTimers(qApp).size());
    auto const objects = qApp->findChildren<QObject*>();
    for (auto* const object : objects)
        count += static_cast<std::size_t>(dispatcher->registeredTimers(object).size());
    return count;
}

/// Opens, edits and closes every editor.
void work(LoadedPlugin& plugin) {
    plugin.forEachEditor([](Kolt::InputRegistry::Entry const& entry) {
        Findings ignored;
        (void)unknownEditor(entry, ignored);
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

/// What is printed meanwhile is counted by the parent process.
void onlyWork(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    work(plugin);
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
    checks.push_back({7, "output", "What its editors print is noted.", onlyWork, Check::Output::Noted});
    checks.push_back(
        {7, "left.style", "Style, palette and font of the program are not changed.",
         unchanged("the style sheet and font", [] {
             return (qApp->styleSheet() + QLatin1Char(' ') + QApplication::font().toString()).toStdString();
         })});
}

} // namespace Checker
