#include <sorrel/GuardedApplication.hpp>

#include <QPointer>
#include <QThread>
#include <sorrel/EditorFaults.hpp>

namespace Kolt {

GuardedApplication::GuardedApplication(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {}

GuardedApplication::~GuardedApplication() = default;

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    // The handler may delete the receiver before it throws.
    QPointer<QObject> const living(receiver);
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        // Another thread has no editors, and nobody there to tell.
        if (QThread::currentThread() != thread())
            throw;
        EditorFaults::theFaults().eventEnded(living);
        return true;
    }
}

} // namespace Kolt
