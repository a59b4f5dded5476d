#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace Panel {

/// Remembers what a file held when it was last read or written here, and notices when it holds something else. Its
/// content decides, not its time. User-interface thread.
class FileGuard : public QObject {
    Q_OBJECT

public:
    enum class State {
        Same,    ///< it holds what is remembered, or nothing is remembered
        Changed, ///< it holds something else
        Vanished ///< it is not there any more, or is no file
    };

    explicit FileGuard(QObject* parent = nullptr);
    ~FileGuard() override;

    /// From now on what the file holds is remembered; of an empty name, nothing.
    void remember(QString const& file);
    /// Reads the file.
    State state() const;

signals:
    /// The file holds something else than before, or is gone. Emitted a moment later, once for each content.
    void changed();

private:
    void look();

    QString file_;
    QByteArray remembered_;
    // What was last reported.
    QByteArray told_;
    QFileSystemWatcher watcher_;
    QTimer timer_;
};

} // namespace Panel
