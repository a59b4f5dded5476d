#include <sorrel/EditorFaults.hpp>

#include <lattice/ActionNotifier.hpp>
#include <lattice/Input.hpp>
#include <lattice/InputFaults.hpp>
#include <mutex>
#include <unordered_set>

namespace Kolt {

namespace {

/// What makeEditor made. A mark of each, such as a property, would take six times the memory.
struct WatchedEditors {
    std::unordered_set<QObject const*> editors;
    // An input may fail on any thread.
    std::mutex mutex;
};

WatchedEditors& watched() {
    static auto* const all = new WatchedEditors;
    return *all;
}

void inputFailed(VInputBase& input, std::string const& sentence) {
    // Almost every input is a widget as well.
    auto* const editor = EditorFaults::editorOf(dynamic_cast<QWidget*>(&input));
    if (editor)
        emit EditorFaults::theFaults().failed(editor, QString::fromStdString(sentence));
}

} // namespace

EditorFaults::EditorFaults() {
    InputFaults::setListener(inputFailed);
}

EditorFaults::~EditorFaults() = default;

EditorFaults& EditorFaults::theFaults() {
    static auto* const faults = new EditorFaults;
    return *faults;
}

void EditorFaults::watch(QWidget& editor) {
    theFaults();
    std::lock_guard const lock(watched().mutex);
    watched().editors.insert(&editor);
}

void EditorFaults::forget(QObject const* editor) {
    std::lock_guard const lock(watched().mutex);
    watched().editors.erase(editor);
}

QWidget* EditorFaults::editorOf(QObject* object) {
    std::lock_guard const lock(watched().mutex);
    for (; object; object = object->parent())
        if (watched().editors.count(object) > 0)
            return static_cast<QWidget*>(object);
    return nullptr;
}

void EditorFaults::eventEnded(QObject* receiver) {
    auto* const editor = editorOf(receiver);
    // The class is the plug-in's, and so is what it throws.
    auto const file = editor ? fileDefining(typeid(*editor)) : std::string();
    auto const sentence = (editor ? "An editor of " + file : std::string("The handling of an event")) + ' ' +
                          InputFaults::describeCurrent();
    VActionNotifier::Warning(sentence);
    if (editor)
        emit failed(editor, QString::fromStdString(sentence));
}

} // namespace Kolt
