#pragma once

#include <functional>
#include <QString>
#include <QWidget>
#include <vector>

namespace Checker {

/// Something that a person does with one of the widgets of an editor.
struct Gesture {
    int widget;                         ///< its place among the editor's widgets (workable)
    QString name;                       ///< for people: "the Up key"
    std::function<void(QWidget&)> doIt; ///< with real events
};

/// The widgets in an editor that a person can work with, the editor itself first.
QWidgetList workable(QWidget& editor);
/// Does a gesture; nothing if the editor has fewer widgets. Dialogs that open are closed again.
void perform(Gesture const& gesture, QWidget& editor);
/// What can be tried with an editor to change its value, the plainest first.
std::vector<Gesture> gesturesFor(QWidget& editor);

} // namespace Checker
