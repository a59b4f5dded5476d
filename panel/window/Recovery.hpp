#pragma once

#include <memory>
#include <panel/window/Document.hpp>
#include <QDateTime>
#include <QLockFile>
#include <QTimer>

namespace Panel {

/// Keeps the unsaved values of the open network in a file, so that they survive the end of the program. The file is
/// written a few seconds after an edit, in one step, and removed when nothing is unsaved any more. Each network file
/// has recovery files of its own, one for each panel that has it open. User-interface thread.
class Recovery : public QObject {
    Q_OBJECT

public:
    /// Values that an earlier panel left behind.
    struct Found {
        /// When they were written; not valid where nothing was found.
        QDateTime written;
        /// For Talo::Network::takeValues.
        QByteArray values;
    };

    /// The user's folder for recovery files: talo/recovery in $XDG_STATE_HOME, or in ~/.local/state without that.
    static QString userFolder();
    /// Follows a document, which must outlive it, from the network that is open now. The folder is made when it is
    /// needed.
    Recovery(Document& document, QString folder, QObject* parent = nullptr);
    /// Leaves the recovery file as it is.
    ~Recovery() override;

    /// What was found for the open network when it was opened. It stays in its file until it is taken or discarded.
    Found const& found() const { return found_; }
    /// Gives what was found, for the network to take over; it counts as unsaved values from now on.
    Found take() { return std::exchange(found_, Found()); }
    /// Whether another panel has the same network file open.
    bool isOpenElsewhere() const { return isOpenElsewhere_; }
    /// Writes the unsaved values now, or removes the file if there are none.
    void write();
    /// Removes the recovery file: its values are saved, or given up.
    void discard();

signals:
    /// Another network was opened, or it was saved to another file: `found` and `isOpenElsewhere` speak of that now.
    void fileChanged();
    /// The recovery file cannot be written; said once for each network.
    void failed(QString const& reason);

private:
    void followFile();
    void takePlace();
    void showModified(bool modified);
    QString fileOf(int place, char const* suffix) const;
    QString writeFile(QByteArray const& values) const;

    Document& document_;
    QString const folder_;
    // The network's file, absolute; empty where there is none.
    QString networkFile_;
    // The place among the panels that have it open, as long as there is the lock that holds it.
    int place_ = 0;
    std::unique_ptr<QLockFile> lock_;
    Found found_;
    bool isOpenElsewhere_ = false;
    bool hasFailed_ = false;
    QTimer timer_;
};

} // namespace Panel
