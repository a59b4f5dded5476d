#include "support/TaloTest.hpp"

#include <algorithm>
#include <QApplication>

namespace {

bool hasApplication() {
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

// The widgets without a parent, except those that Qt creates for itself and keeps.
std::vector<QWidget*> standingWidgets() {
    std::vector<QWidget*> standing;
    if (hasApplication()) {
        auto const widgets = QApplication::allWidgets();
        std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(standing), [](QWidget const* widget) {
            return widget->parentWidget() == nullptr && widget->windowType() != Qt::Desktop &&
                   !widget->inherits("QTipLabel");
        });
    }
    return standing;
}

void deleteLeavingObjects() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

std::vector<std::string> lines(std::string const& text) {
    std::vector<std::string> result;
    for (std::size_t start = 0; start < text.size();) {
        auto const end = std::min(text.find('\n', start), text.size());
        result.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return result;
}

} // namespace

TaloTest::TaloTest() {
    for (auto* const widget : standingWidgets()) {
        earlierWidgets_.emplace_back(widget);
    }
    // Qt asks the display which window is at a point; the window manager may remove a window in the meantime.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        allowQtWarning("XCB error: 3 \\(BadWindow\\).*TranslateCoords");
}

TaloTest::~TaloTest() {
    deleteLeavingObjects();
    for (auto* const widget : standingWidgets()) {
        if (std::find(earlierWidgets_.begin(), earlierWidgets_.end(), widget) == earlierWidgets_.end()) {
            ADD_FAILURE() << "surviving widget: " << widget->metaObject()->className() << " '"
                          << qPrintable(widget->objectName()) << "' with " << widget->findChildren<QWidget*>().size()
                          << " widgets in it";
        }
    }
    for (auto const& line : takeOutput()) {
        ADD_FAILURE() << "unexpected line on standard output: " << line;
    }
    for (auto const& complaint : messages_.complaints()) {
        ADD_FAILURE() << qPrintable(complaint);
    }
}

std::vector<std::string> TaloTest::takeOutput() {
    return lines(output_.take());
}

std::string TaloTest::takeWrittenOutput() {
    return output_.takeWritten();
}

void TaloTest::allowQtWarning(std::string const& pattern) {
    messages_.allow(QRegularExpression(QString::fromStdString(pattern)));
}

void TaloTest::expectQtWarning(std::string const& pattern) {
    messages_.expect(QRegularExpression(QString::fromStdString(pattern)));
}
