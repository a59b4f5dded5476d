#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

namespace Panel {

/// The keys of one part of the program.
struct KeyGroup {
    /// A command and its keys, as people read them.
    struct Entry {
        QString command; ///< without the mark of its key
        QString keys;    ///< "Ctrl+Z", or several with commas between them
    };
    QString title; ///< "Edit"
    QVector<Entry> entries;
};

/// The keys of the commands in the menus of a window, those of its other actions, and the keys that controls
/// understand. As they are now; in the language of the translations in force.
QVector<KeyGroup> keysOf(QWidget const& window);

} // namespace Panel
