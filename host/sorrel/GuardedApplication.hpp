#pragma once

#include <QApplication>
#include <tessera/Export.hpp>

namespace Kolt {

/// The application object of a host that goes on where an exception leaves an event handler or a slot, as those of
/// plug-ins may. It warns (VActionNotifier::Warning) and tells whose editor it was (EditorFaults). User-interface
/// thread.
class TALO_EXPORT GuardedApplication : public QApplication {
    Q_OBJECT

public:
    /// As for QApplication: both are referred to as long as the object lives.
    GuardedApplication(int& argumentCount, char** arguments);
    ~GuardedApplication() override;

    /// Delivers an event. An exception counts as an event that was handled.
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace Kolt
