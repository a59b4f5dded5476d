#include <sorrel/GuardedApplication.hpp>

#include <algorithm>
#include <QThread>
#include <QWidget>
#include <sorrel/EditorFaults.hpp>

namespace Kolt {

namespace {

/// Whether an object is a widget or belongs to one. The handler may have deleted it before it threw; a pointer that
/// knows would cost each event something.
bool isAlive(QObject const* object) {
    auto const widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](QWidget const* widget) {
        return widget == object || widget->children().contains(const_cast<QObject*>(object));
    });
}

} // namespace

GuardedApplication::GuardedApplication(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {}

GuardedApplication::~GuardedApplication() = default;

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        // Another thread has no editors, and nobody there to tell.
        if (QThread::currentThread() != thread())
            throw;
        EditorFaults::theFaults().eventEnded(isAlive(receiver) ? receiver : nullptr);
        return true;
    }
}

} // namespace Kolt
