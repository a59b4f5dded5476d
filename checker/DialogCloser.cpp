#include <checker/DialogCloser.hpp>

#include <QApplication>
#include <QWidget>

namespace Checker {

DialogCloser::DialogCloser() {
    // A dialog runs an event loop of its own, in which the timer goes on.
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [] {
        if (auto* const popup = QApplication::activePopupWidget())
            popup->close();
        else if (auto* const dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    timer_.start(0);
}

} // namespace Checker
