#pragma once

#include <memory>
#include <parameters/input/GestureWatcher.hpp>
#include <QObject>
#include <tessera/Export.hpp>

namespace Talo {

/// The one event filter that this library installs on the application. It passes events on to the gesture watcher,
/// the wheel guards and the help for file dialogs. All panels and guards share it: it is made for the first of them and
/// removed with the last one. User-interface thread, after the application object was made.
class TALO_EXPORT InputFilter : public QObject {
    Q_OBJECT

public:
    /// The shared filter; keep the pointer for as long as it is needed.
    static std::shared_ptr<InputFilter> shared();
    ~InputFilter() override;

    /// Opens and closes the macros of the user's gestures.
    GestureWatcher& gestures() { return gestures_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Translations were installed or removed. Widgets receive QEvent::LanguageChange, other objects may not.
    void languageChanged();

private:
    InputFilter();

    GestureWatcher gestures_;
};

} // namespace Talo
