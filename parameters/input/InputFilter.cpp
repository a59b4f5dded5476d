#include <parameters/input/InputFilter.hpp>

#include <parameters/input/EditorToolTip.hpp>
#include <parameters/input/FileDialogHelp.hpp>
#include <parameters/input/FocusDisplay.hpp>
#include <parameters/input/LinkColour.hpp>
#include <parameters/input/WheelGuard.hpp>
#include <QCoreApplication>
#include <QEvent>

namespace Talo {

std::shared_ptr<InputFilter> InputFilter::shared() {
    static std::weak_ptr<InputFilter> existing;
    auto filter = existing.lock();
    if (!filter) {
        filter.reset(new InputFilter);
        existing = filter;
    }
    return filter;
}

InputFilter::InputFilter() {
    QCoreApplication::instance()->installEventFilter(this);
}

InputFilter::~InputFilter() = default;

bool InputFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
        emit languageChanged();
    if (!watched->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(watched);
    helpFileDialog(*widget, *event);
    displayFocus(*widget, *event);
    followLinkColour(*widget, *event);
    // A guarded wheel changes nothing, so it begins no gesture.
    return WheelGuard::filter(*widget, *event) || showEditorToolTip(*widget, *event) ||
           gestures_.filter(*widget, *event);
}

} // namespace Talo
