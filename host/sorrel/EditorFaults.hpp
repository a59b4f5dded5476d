#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Kolt {

/// Says which editors had a fault: an exception left their code, in a notification, an event or a slot, and was caught
/// by the host. Such an editor may be in any state; who shows it replaces it. There is one object, never destroyed.
/// User-interface thread.
class TALO_EXPORT EditorFaults : public QObject {
    Q_OBJECT

public:
    /// The object of the process.
    static EditorFaults& theFaults();

    /// Notes what makeEditor made, so that a fault in any part of it is known as this editor's. Forget it when it is
    /// destroyed.
    static void watch(QWidget& editor);
    /// Forgets an editor, which need no longer be there.
    static void forget(QObject const* editor);
    /// The editor that an object is or belongs to; null for none.
    static QWidget* editorOf(QObject* object);
    /// Warns that an event of an object ended with the exception that is being handled, and says so for the editor that
    /// it belongs to. REQUIRES: called in a catch block.
    void eventEnded(QObject* receiver);

signals:
    /// An editor had a fault; the sentence, without a full stop, says which.
    void failed(QWidget* editor, QString const& sentence);

private:
    EditorFaults();
    ~EditorFaults() override;
};

} // namespace Kolt
