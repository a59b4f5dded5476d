#pragma once

#include <QWidget>
#include <string>

namespace Checker {

/// What an editor shows, as a text by which two editors are compared: the texts, numbers, choices and marks of the
/// widget and everything in it, and for what is none of Qt's usual widgets its picture. User-interface thread.
std::string shownState(QWidget& editor);

} // namespace Checker
