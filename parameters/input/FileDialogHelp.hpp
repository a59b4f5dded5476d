#pragma once

#include <tessera/Export.hpp>

class QEvent;
class QWidget;

namespace Talo {

/// The folder, as a QString, in which the file dialogs of editors start where no file is chosen yet: a property that a
/// host sets on any widget around the editors, its window for instance.
constexpr char FileFolderProperty[] = "fileFolder";

/// The kinds of files that a dialog saves, as a filter of QFileDialog: a property of the editor that opens the dialog.
/// The rows set it to the property "Extension" of their parameter.
constexpr char FileKindsProperty[] = "fileKinds";

/// Prepares a file dialog of Qt's own as it is shown: it starts in the host's folder, and a name without a suffix gets
/// the one of the chosen kind of files, so that the kind's list shows what was saved. Other events do nothing.
/// User-interface thread.
void helpFileDialog(QWidget& widget, QEvent const& event);

} // namespace Talo
